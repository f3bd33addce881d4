#ifndef CAPTIONLABELWIDGET_H
#define CAPTIONLABELWIDGET_H

#include <QWidget>

class QLabel;
class QLineEdit;
class QStackedLayout;

// The text of one caption row: a label that turns into an editor on double click.
class CaptionLabelWidget : public QWidget
{
    Q_OBJECT
public:
    explicit CaptionLabelWidget(QWidget* parent = nullptr);

    void setText(const QString& text);
    QString text() const;
    void setEditing(bool editing);
    bool isEditing() const { return m_editing; }
    void setTextStyle(const QString& style);
    QLineEdit* editor() const { return m_editor; }

signals:
    // Sent when editing starts (true) and when it ends (false) with the final text.
    void changeEidtSignal(bool editing, QString text);

protected:
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void finishEditing(bool accept);

    QStackedLayout* m_stack = nullptr;
    QLabel* m_label = nullptr;
    QLineEdit* m_editor = nullptr;
    bool m_editing = false;
    QString m_text;
};

#endif // CAPTIONLABELWIDGET_H
