#ifndef REGISTERDIALOG_H
#define REGISTERDIALOG_H

#include <QDialog>
#include <QVariant>

class QLabel;
class QLineEdit;
class QPushButton;

// Lets the user enter a licence key and follows its check on the event bus.
class RegisterDialog : public QDialog
{
    Q_OBJECT
public:
    explicit RegisterDialog(QWidget* parent = nullptr);

    QLineEdit* keyEdit() const { return m_keyEdit; }
    QPushButton* registerButton() const { return m_registerButton; }
    QPushButton* closeButton() const { return m_closeButton; }
    QString statusText() const;
    bool isWaiting() const { return m_waiting; }

public slots:
    void globalEventHandle(QString eventName, QVariant value);

private:
    void registerClickHandle();
    void setWaiting(bool waiting);
    void showRegisteredState();
    void retranslate();

    // What the status line says, so that it can be said again in another language.
    enum Status { StatusNone, StatusChecking, StatusRegistered, StatusServer };
    Status m_status = StatusNone;
    QLabel* m_introLabel = nullptr;
    QLabel* m_statusLabel = nullptr;
    QLineEdit* m_keyEdit = nullptr;
    QPushButton* m_registerButton = nullptr;
    QPushButton* m_closeButton = nullptr;
    bool m_waiting = false;
};

#endif // REGISTERDIALOG_H
