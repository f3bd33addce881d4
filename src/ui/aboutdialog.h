#ifndef ABOUTDIALOG_H
#define ABOUTDIALOG_H

#include <QDialog>

class QLabel;

// Name, version and purpose of the application.
class AboutDialog : public QDialog
{
    Q_OBJECT
public:
    explicit AboutDialog(QWidget* parent = nullptr);

private:
    QLabel* m_text = nullptr;
};

#endif // ABOUTDIALOG_H
