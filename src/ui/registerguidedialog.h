#ifndef REGISTERGUIDEDIALOG_H
#define REGISTERGUIDEDIALOG_H

#include <QDialog>

#include <functional>

class QLabel;
class QPushButton;

// Shown once per run after an export from an unregistered copy: explains the
// watermark and offers to register.
class RegisterGuideDialog : public QDialog
{
    Q_OBJECT
public:
    explicit RegisterGuideDialog(QWidget* parent = nullptr);

    // The export flow's entry: when the copy is unregistered and the guide was
    // not shown yet in this run, marks it shown, opens the guide and calls
    // then() once it is closed; otherwise calls then() at once. Returns whether
    // the guide was opened.
    static bool showAfterExport(QWidget* parent, const std::function<void()>& then);

    QPushButton* registerButton() const { return m_registerButton; }
    QPushButton* laterButton() const { return m_laterButton; }

private:
    void retranslate();

    QLabel* m_title = nullptr;
    QLabel* m_text = nullptr;
    QPushButton* m_registerButton = nullptr;
    QPushButton* m_laterButton = nullptr;
};

#endif // REGISTERGUIDEDIALOG_H
