#ifndef MESSAGEDIALOG_H
#define MESSAGEDIALOG_H

#include <QDialog>

class QLabel;
class QPushButton;

// The application's message box: a title, a message and an OK button.
class MessageDialog : public QDialog
{
    Q_OBJECT
public:
    explicit MessageDialog(QWidget* parent = nullptr);

    // Shows the message without blocking the caller.
    void showMessage(const QString& title, const QString& message);
    QString title() const;
    QString message() const;

private:
    QLabel* m_title = nullptr;
    QLabel* m_message = nullptr;
    QPushButton* m_ok = nullptr;
};

#endif // MESSAGEDIALOG_H
