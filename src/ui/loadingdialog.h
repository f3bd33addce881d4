#ifndef LOADINGDIALOG_H
#define LOADINGDIALOG_H

#include <QDialog>

class QLabel;
class QProgressBar;
class QPushButton;

// A small modal dialog with a busy indicator, a text and a cancel button,
// shown while captions are made or frames are captured.
class LoadingDialog : public QDialog
{
    Q_OBJECT
public:
    explicit LoadingDialog(QWidget* parent = nullptr, Qt::WindowFlags flags = Qt::WindowFlags());

    void setText(const QString& text);
    QString text() const;
    // Shows the dialog with a text; a visible dialog just changes its text.
    void showWithText(const QString& text);
    QPushButton* cancelButton() const { return m_cancel; }
    // A bar filled to percent; -1 for the busy indicator.
    void setProgress(int percent);
    int progress() const;
    // Hides the dialog and puts the busy indicator back for the next user.
    void hideAndReset();

public slots:
    void changeLang(int type);

private:
    QLabel* m_text = nullptr;
    QProgressBar* m_busy = nullptr;
    QPushButton* m_cancel = nullptr;
};

#endif // LOADINGDIALOG_H
