#ifndef ABOUTDIALOG_H
#define ABOUTDIALOG_H

#include <QDialog>

class QLabel;
class QPushButton;

// Name, version and purpose of the application.
class AboutDialog : public QDialog
{
    Q_OBJECT
public:
    explicit AboutDialog(QWidget* parent = nullptr);

private:
    void retranslate();

    QLabel* m_text = nullptr;
    QPushButton* m_close = nullptr;
};

#endif // ABOUTDIALOG_H
