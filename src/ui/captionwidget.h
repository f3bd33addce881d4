#ifndef CAPTIONWIDGET_H
#define CAPTIONWIDGET_H

#include "basewidget.h"

#include <QByteArray>
#include <QList>

class CaptionInfo;
class QAction;
class QHBoxLayout;
class CaptionItem;
class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;
class QListWidget;
class QListWidgetItem;
class QPushButton;
class QToolButton;

// The caption list: one row per caption of the open video, created lazily.
class CaptionWidget : public BaseWidget
{
    Q_OBJECT
public:
    static constexpr int PAGE_SIZE = 36;

    explicit CaptionWidget(QWidget* parent = nullptr);

    void createCaption(const QByteArray& data);
    void updateTilte(int count);
    void loadItems(int from, int to);
    QList<CaptionInfo*> getCaptionInfoBySearch() const;
    void changeCaptionPlayByTime(double seconds);
    void resetEditStatus();
    void resetSearchStatus();
    void updateSelectAllText();
    void changeCaptureString(const QString& text);
    // Refreshes the row of a caption edited elsewhere (overlay, toolbar).
    void updateCaptionItem(CaptionInfo* info);
    // Makes sure the caption's row exists and is in view.
    void scrollToCaption(CaptionInfo* info);
    // The save actions of the window, as a button by the clear button.
    void addSaveActions(QAction* save, QAction* saveAs);
    // Key of the language chosen for automatic captions.
    int currentLanguageKey() const;

    QList<CaptionItem*> items() const { return m_items; }
    QListWidget* listWidget() const { return m_list; }
    QLineEdit* searchEdit() const { return m_search; }
    CaptionItem* playingItem() const { return m_playingItem; }
    CaptionItem* editItem() const { return m_editItem; }
    int page() const { return m_page; }

signals:
    void createCaptionSignal();
    void loadLocalSubtitleSignal();
    void clearCaptionSignal();
    void showInDialog();
    void closeInDialog();
    void captionCheckStateChangedSignal(CaptionInfo* info, int state);
    void checkAllItems(bool checked);
    void captureSelectSignal(int type);
    void autoCaptionSignal(int languageKey);
    void captionTextChangedSignal(CaptionInfo* info);

public slots:
    void changeLang(int type) override;
    void searchTextChanged(const QString& text);
    void scrollValueChanged(int value);
    void captionListItemClicked(QListWidgetItem* item);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void buildUi();
    void retranslate();
    void showEmptyState(bool empty);
    void fillLanguageBox();
    void fitRow(QListWidgetItem* row);

    QLabel* m_logo = nullptr;
    QLabel* m_title = nullptr;
    QPushButton* m_popupButton = nullptr;
    QWidget* m_searchComponent = nullptr;
    QLineEdit* m_search = nullptr;
    QPushButton* m_searchButton = nullptr;
    QListWidget* m_list = nullptr;
    QWidget* m_emptyWidget = nullptr;
    QLabel* m_emptyLabel = nullptr;
    QComboBox* m_languageBox = nullptr;
    QPushButton* m_autoButton = nullptr;
    QPushButton* m_createButton = nullptr;
    QPushButton* m_localButton = nullptr;
    QCheckBox* m_selectAll = nullptr;
    QPushButton* m_showTextButton = nullptr;
    QPushButton* m_clearButton = nullptr;
    QPushButton* m_captureButton = nullptr;
    QWidget* m_bottomBar = nullptr;
    QHBoxLayout* m_selectRow = nullptr;

    QList<CaptionItem*> m_items;
    int m_page = 0;
    bool m_loading = false;
    bool m_textShown = true;
    CaptionItem* m_selectedItem = nullptr;
    CaptionItem* m_editItem = nullptr;
    CaptionItem* m_playingItem = nullptr;
};

#endif // CAPTIONWIDGET_H
