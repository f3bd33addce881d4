#ifndef CAPTIONSTYLEBAR_H
#define CAPTIONSTYLEBAR_H

#include <QWidget>

class CaptionEdit;
class CaptionInfo;
class QCheckBox;
class QLabel;
class QPushButton;
class QSpinBox;
class QTimer;

// Toolbar under the video for the caption on screen: font size, position in
// the 384x288 script space, border and shadow, applied to that caption or,
// with "Apply to all", to every caption. Changes go out shortly after the
// last step of a spin box, so that holding an arrow rewrites the file once.
class CaptionStyleBar : public QWidget
{
    Q_OBJECT
public:
    explicit CaptionStyleBar(QWidget* parent = nullptr);

    // The caption's edit record, created from its style on first use.
    static CaptionEdit* ensureEdit(CaptionInfo* info);
    // The values the caption shows now, without creating a record.
    static CaptionEdit currentValues(const CaptionInfo* info);

    void setCaption(CaptionInfo* info);
    CaptionInfo* caption() const { return m_caption; }
    bool isApplyToAll() const;
    void setInsertEnabled(bool enabled);
    bool hasPendingEdit() const;

    QSpinBox* fontSizeBox() const { return m_fontSize; }
    QSpinBox* xBox() const { return m_x; }
    QSpinBox* yBox() const { return m_y; }
    QSpinBox* borderBox() const { return m_border; }
    QSpinBox* shadowBox() const { return m_shadow; }
    QCheckBox* applyAllBox() const { return m_applyAll; }
    QCheckBox* captureBox() const { return m_capture; }
    QPushButton* insertButton() const { return m_insert; }
    QPushButton* editTextButton() const { return m_editText; }

public slots:
    // A new position from dragging the caption: applied at once.
    void setPosition(CaptionInfo* info, int x, int y);
    // Sends a change still waiting for its delay.
    void commitPending();
    void changeLang();

signals:
    void captionEditSignal(CaptionInfo* edit, bool isAll);
    void captionCheckStateChangedSignal(CaptionInfo* info, int state);
    void insertCaptionSignal();
    void editTextSignal();

private:
    QSpinBox* addSpinBox(const QString& objectName, int minimum, int maximum);
    void loadValues();
    void valueEdited();
    void updateEnabled();

    CaptionInfo* m_caption = nullptr;
    QLabel* m_sizeLabel = nullptr;
    QLabel* m_xLabel = nullptr;
    QLabel* m_yLabel = nullptr;
    QLabel* m_borderLabel = nullptr;
    QLabel* m_shadowLabel = nullptr;
    QSpinBox* m_fontSize = nullptr;
    QSpinBox* m_x = nullptr;
    QSpinBox* m_y = nullptr;
    QSpinBox* m_border = nullptr;
    QSpinBox* m_shadow = nullptr;
    QCheckBox* m_applyAll = nullptr;
    QCheckBox* m_capture = nullptr;
    QPushButton* m_insert = nullptr;
    QPushButton* m_editText = nullptr;
    QTimer* m_commitTimer = nullptr;
    CaptionInfo* m_pendingCaption = nullptr;
    bool m_insertEnabled = false;
};

#endif // CAPTIONSTYLEBAR_H
