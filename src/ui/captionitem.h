#ifndef CAPTIONITEM_H
#define CAPTIONITEM_H

#include <QWidget>

class CaptionInfo;
class CaptionLabelWidget;
class QCheckBox;
class QLabel;
class QToolButton;

// One row of the caption list. Shows the caption record it points to; never copies it.
class CaptionItem : public QWidget
{
    Q_OBJECT
public:
    explicit CaptionItem(CaptionInfo* info, QWidget* parent = nullptr);

    CaptionInfo* getCaptionInfo() const { return m_info; }
    void setCheck(bool checked, bool notify);
    void setShowText(bool show, bool notify);
    void setSelect(bool selected);
    bool isSelect() const { return m_selected; }
    void changeToPlay(bool playing);
    bool isPlaying() const { return m_playing; }
    void changeToEdit(bool editing);
    bool isEditing() const;
    // Re-reads the record (after an edit elsewhere).
    void refresh();
    CaptionLabelWidget* labelWidget() const { return m_label; }
    QCheckBox* checkBox() const { return m_check; }

signals:
    void changeToEditSignal(bool editing, CaptionItem* item);
    void captionChangedSignal(CaptionInfo* info, CaptionItem* item);
    void captionCheckStateChangedSignal(CaptionInfo* info, int state);

private:
    void updateTextStyle();

    CaptionInfo* m_info = nullptr;
    QLabel* m_index = nullptr;
    QLabel* m_time = nullptr;
    CaptionLabelWidget* m_label = nullptr;
    QCheckBox* m_check = nullptr;
    QToolButton* m_showButton = nullptr;
    bool m_selected = false;
    bool m_playing = false;
};

#endif // CAPTIONITEM_H
