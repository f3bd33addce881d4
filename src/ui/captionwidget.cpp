#include "captionwidget.h"

#include "appconfig.h"
#include "captioninfo.h"
#include "captionitem.h"
#include "captionmanager.h"
#include "confirmation.h"
#include "globalmanager.h"
#include "logcategories.h"
#include "settings.h"
#include "speechservice.h"

#include <QCheckBox>
#include <QComboBox>
#include <QEvent>
#include <QDebug>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QStyle>
#include <QToolButton>
#include <QPushButton>
#include <QScrollBar>
#include <QStackedWidget>
#include <QVBoxLayout>

CaptionWidget::CaptionWidget(QWidget* parent)
    : BaseWidget(parent)
{
    setObjectName(QStringLiteral("caption_widget"));
    setAttribute(Qt::WA_StyledBackground, true);
    buildUi();
    // Rows hold the records' pointers: they go before the records do.
    connect(CaptionManager::instance(), &CaptionManager::aboutToReplaceCaptions, this, [this]() {
        m_editItem = nullptr;
        m_selectedItem = nullptr;
        m_playingItem = nullptr;
        m_list->clear();
        m_items.clear();
        // A search for the old captions would hide the new ones.
        const QSignalBlocker blocker(m_search);
        m_search->clear();
    });
    // A caption created at the player's position shows at once, in view.
    connect(CaptionManager::instance(), &CaptionManager::captionInserted, this, [this](CaptionInfo* info) {
        createCaption(QByteArray());
        scrollToCaption(info);
    });
    retranslate();
    createCaption(QByteArray());
}

void CaptionWidget::scrollToCaption(CaptionInfo* info)
{
    const int index = getCaptionInfoBySearch().indexOf(info);
    if (index < 0) {
        return;
    }
    while (m_list->count() <= index && m_list->count() < getCaptionInfoBySearch().size()) {
        const int from = m_list->count();
        loadItems(from, from + PAGE_SIZE - 1);
        m_page = (m_list->count() - 1) / PAGE_SIZE;
    }
    m_list->scrollToItem(m_list->item(index));
}

void CaptionWidget::buildUi()
{
    m_logo = new QLabel(this);
    m_logo->setPixmap(QIcon(QStringLiteral(":/images/caption/caption_logo.svg")).pixmap(AppConfig::rate(QSize(18, 18))));
    m_title = new QLabel(this);
    m_title->setObjectName(QStringLiteral("sub_title"));
    m_popupButton = new QPushButton(this);
    m_popupButton->setObjectName(QStringLiteral("property"));
    m_popupButton->setCursor(Qt::PointingHandCursor);

    auto* header = new QHBoxLayout();
    header->setSpacing(AppConfig::rate(6));
    header->addWidget(m_logo);
    header->addWidget(m_title, 1);
    header->addWidget(m_popupButton);

    m_searchComponent = new QWidget(this);
    m_searchComponent->setObjectName(QStringLiteral("search_component"));
    m_search = new QLineEdit(m_searchComponent);
    m_search->setClearButtonEnabled(true);
    m_search->addAction(QIcon(QStringLiteral(":/images/caption/search.svg")), QLineEdit::LeadingPosition);
    m_searchButton = new QPushButton(m_searchComponent);
    auto* searchLayout = new QHBoxLayout(m_searchComponent);
    searchLayout->setContentsMargins(0, 0, 0, 0);
    searchLayout->setSpacing(AppConfig::rate(4));
    searchLayout->addWidget(m_search, 1);
    searchLayout->addWidget(m_searchButton);

    m_list = new QListWidget(this);
    m_list->setObjectName(QStringLiteral("caption_list"));
    m_list->setSelectionMode(QAbstractItemView::NoSelection);
    m_list->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    m_list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_list->viewport()->installEventFilter(this);

    m_emptyWidget = new QWidget(this);
    m_emptyWidget->setObjectName(QStringLiteral("caption_empty"));
    m_emptyLabel = new QLabel(m_emptyWidget);
    m_emptyLabel->setAlignment(Qt::AlignCenter);
    m_emptyLabel->setWordWrap(true);
    m_languageBox = new QComboBox(m_emptyWidget);
    m_languageBox->setObjectName(QStringLiteral("language_combobox"));
    m_autoButton = new QPushButton(m_emptyWidget);
    m_autoButton->setObjectName(QStringLiteral("auto_caption"));
    m_createButton = new QPushButton(m_emptyWidget);
    m_localButton = new QPushButton(m_emptyWidget);
    auto* emptyLayout = new QVBoxLayout(m_emptyWidget);
    emptyLayout->setSpacing(AppConfig::rate(8));
    emptyLayout->addStretch(1);
    emptyLayout->addWidget(m_emptyLabel);
    emptyLayout->addWidget(m_languageBox);
    emptyLayout->addWidget(m_autoButton);
    emptyLayout->addWidget(m_createButton);
    emptyLayout->addWidget(m_localButton);
    emptyLayout->addStretch(2);

    m_selectAll = new QCheckBox(this);
    m_selectAll->setObjectName(QStringLiteral("select_all"));
    m_selectAll->setTristate(false);
    // Hide/show and clear are icons (named by their tooltips): the narrow panel
    // keeps its width for the tick box and the capture button in every language.
    m_showTextButton = new QPushButton(this);
    m_showTextButton->setObjectName(QStringLiteral("show_text"));
    m_showTextButton->setIconSize(AppConfig::rate(QSize(16, 16)));
    m_showTextButton->setProperty("iconOnly", true);
    m_clearButton = new QPushButton(this);
    m_clearButton->setObjectName(QStringLiteral("show"));
    m_clearButton->setIcon(QIcon(QStringLiteral(":/images/caption/trash.svg")));
    m_clearButton->setIconSize(AppConfig::rate(QSize(16, 16)));
    m_clearButton->setProperty("iconOnly", true);
    m_captureButton = new QPushButton(this);
    m_captureButton->setObjectName(QStringLiteral("capture"));

    m_bottomBar = new QWidget(this);
    auto* bottom = new QVBoxLayout(m_bottomBar);
    bottom->setContentsMargins(0, 0, 0, 0);
    bottom->setSpacing(AppConfig::rate(6));
    auto* selectRow = new QHBoxLayout();
    m_selectRow = selectRow;
    selectRow->setSpacing(AppConfig::rate(4));
    selectRow->addWidget(m_selectAll, 1);
    selectRow->addWidget(m_showTextButton);
    selectRow->addWidget(m_clearButton);
    bottom->addLayout(selectRow);
    bottom->addWidget(m_captureButton);

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(AppConfig::rate(8, 8, 8, 8));
    layout->setSpacing(AppConfig::rate(6));
    layout->addLayout(header);
    layout->addWidget(m_searchComponent);
    layout->addWidget(m_list, 1);
    layout->addWidget(m_emptyWidget, 1);
    layout->addWidget(m_bottomBar);

    setMinimumWidth(AppConfig::rate(260));
    fillLanguageBox();
    connect(SpeechService::instance(), &SpeechService::languagesChanged, this, &CaptionWidget::fillLanguageBox);

    connect(m_search, &QLineEdit::textChanged, this, &CaptionWidget::searchTextChanged);
    connect(m_searchButton, &QPushButton::clicked, this, [this]() { searchTextChanged(m_search->text()); });
    connect(m_list->verticalScrollBar(), &QScrollBar::valueChanged, this, &CaptionWidget::scrollValueChanged);
    // Rows that do not fill the list leave nothing to scroll: load on.
    connect(m_list->verticalScrollBar(), &QScrollBar::rangeChanged, this,
            [this]() { scrollValueChanged(m_list->verticalScrollBar()->value()); });
    connect(m_list, &QListWidget::itemClicked, this, &CaptionWidget::captionListItemClicked);
    connect(m_popupButton, &QPushButton::clicked, this, [this]() {
        if (isWindow() || parentWidget() == nullptr || window()->objectName() == QStringLiteral("caption_dialog")) {
            emit closeInDialog();
        } else {
            emit showInDialog();
        }
    });
    connect(m_autoButton, &QPushButton::clicked, this, [this]() { emit autoCaptionSignal(currentLanguageKey()); });
    connect(m_languageBox, qOverload<int>(&QComboBox::activated), this, [this](int) {
        CaptionManager* captions = CaptionManager::instance();
        captions->setCurrentLangItem(captions->getLangItemByKey(currentLanguageKey()));
    });
    connect(m_createButton, &QPushButton::clicked, this, &CaptionWidget::createCaptionSignal);
    connect(m_localButton, &QPushButton::clicked, this, &CaptionWidget::loadLocalSubtitleSignal);
    connect(m_clearButton, &QPushButton::clicked, this, [this]() {
        // Every caption goes, ticked or not: say how many before they do.
        const int count = CaptionManager::instance()->getCaptions().size();
        if (count > 0
            && !Confirmation::ask(window(), tr("Clear captions"), tr("Remove all %Ln captions?", nullptr, count),
                                  tr("Remove"))) {
            return;
        }
        emit clearCaptionSignal();
    });
    connect(m_captureButton, &QPushButton::clicked, this, [this]() { emit captureSelectSignal(0); });
    connect(m_selectAll, &QCheckBox::clicked, this, [this](bool checked) {
        for (CaptionInfo* info : CaptionManager::instance()->getCaptions()) {
            info->isCheck = checked;
        }
        for (CaptionItem* item : qAsConst(m_items)) {
            item->setCheck(checked, false);
        }
        updateSelectAllText();
        emit checkAllItems(checked);
    });
    connect(m_showTextButton, &QPushButton::clicked, this, [this]() {
        m_textShown = !m_textShown;
        for (CaptionInfo* info : CaptionManager::instance()->getCaptions()) {
            info->isShow = m_textShown;
        }
        for (CaptionItem* item : qAsConst(m_items)) {
            item->setShowText(m_textShown, false);
        }
        retranslate();
        emit captionTextChangedSignal(nullptr);
    });
}

void CaptionWidget::addSaveActions(QAction* save, QAction* saveAs)
{
    auto* button = new QToolButton(this);
    button->setObjectName(QStringLiteral("save_captions"));
    save->setIcon(style()->standardIcon(QStyle::SP_DialogSaveButton));
    button->setDefaultAction(save);
    button->setIconSize(AppConfig::rate(QSize(16, 16)));
    button->setToolButtonStyle(Qt::ToolButtonIconOnly);
    auto* menu = new QMenu(button);
    menu->addActions({save, saveAs});
    button->setMenu(menu);
    // A split button would take the width the tick box needs in longer languages.
    button->setPopupMode(QToolButton::InstantPopup);
    m_selectRow->insertWidget(m_selectRow->indexOf(m_clearButton), button);
}

void CaptionWidget::fillLanguageBox()
{
    CaptionManager* captions = CaptionManager::instance();
    const int stored = Settings::instance()->value(AppConfig::AI_CAPTION_LANG).toInt();
    const int current = m_languageBox->count() > 0 ? currentLanguageKey() : stored;
    const QSignalBlocker blocker(m_languageBox);
    m_languageBox->clear();
    const SpeechService* service = SpeechService::instance();
    for (Language::LanguageItem* item : captions->getLangItems()) {
        // The names are translatable source texts of the caption model.
        const QString name = CaptionManager::tr(item->name.toUtf8().constData());
        // Languages the speech engine does not recognise say what they need.
        m_languageBox->addItem(service->recognises(item->code) ? name : tr("%1 – needs a speech server").arg(name),
                               item->key);
    }
    const int index = qMax(0, captions->getLangItemIndexByKey(current));
    m_languageBox->setCurrentIndex(index);
    if (!captions->getCurrentLangItem()) {
        captions->setCurrentLangItem(current);
    }
}

int CaptionWidget::currentLanguageKey() const
{
    return m_languageBox->currentData().toInt();
}

void CaptionWidget::changeLang(int type)
{
    Q_UNUSED(type)
    retranslate();
}

void CaptionWidget::retranslate()
{
    updateTilte(getCaptionInfoBySearch().size());
    m_search->setPlaceholderText(tr("search text"));
    m_searchButton->setText(tr("Search"));
    m_popupButton->setText(tr("Popup"));
    m_showTextButton->setIcon(QIcon(m_textShown ? QStringLiteral(":/images/caption/eye_off.svg")
                                                : QStringLiteral(":/images/caption/eye.svg")));
    m_showTextButton->setToolTip(m_textShown ? tr("Hide") : tr("Show"));
    m_showTextButton->setAccessibleName(m_showTextButton->toolTip());
    m_clearButton->setToolTip(tr("Clear"));
    m_clearButton->setAccessibleName(m_clearButton->toolTip());
    m_captureButton->setText(tr("Capture checked"));
    m_autoButton->setText(tr("Auto captions"));
    m_createButton->setText(tr("Create"));
    m_localButton->setText(tr("Add local subtitle"));
    m_emptyLabel->setText(tr("No captions yet. Generate them from the video's speech, create one at the "
                             "current time, or add a subtitle file."));
    fillLanguageBox();
    updateSelectAllText();
    for (CaptionItem* item : qAsConst(m_items)) {
        item->refresh();
    }
}

void CaptionWidget::showEmptyState(bool empty)
{
    m_list->setVisible(!empty);
    m_emptyWidget->setVisible(empty);
    m_bottomBar->setEnabled(!empty);
}

void CaptionWidget::createCaption(const QByteArray& data)
{
    Q_UNUSED(data)
    m_page = 0;
    m_editItem = nullptr;
    m_selectedItem = nullptr;
    m_playingItem = nullptr;
    m_list->clear();
    m_items.clear();
    const QList<CaptionInfo*> result = getCaptionInfoBySearch();
    // The list stays visible while searching, even when nothing matches.
    showEmptyState(CaptionManager::instance()->getCaptions().isEmpty());
    updateTilte(result.size());
    loadItems(0, PAGE_SIZE - 1);
    updateSelectAllText();
}

void CaptionWidget::updateTilte(int count)
{
    m_title->setText(tr("Captions (%1)").arg(count));
}

void CaptionWidget::loadItems(int from, int to)
{
    m_loading = true;
    qCDebug(lcUi) << "loadItems:" << from << to;
    const QList<CaptionInfo*> result = getCaptionInfoBySearch();
    to = qMin(to, result.size() - 1);
    for (int i = from; i <= to; ++i) {
        CaptionInfo* info = result.at(i);
        auto* row = new QListWidgetItem(m_list);
        row->setData(Qt::UserRole, QVariant::fromValue(info));
        auto* item = new CaptionItem(info);
        m_list->setItemWidget(row, item);
        fitRow(row);
        m_items.append(item);
        connect(item, &CaptionItem::changeToEditSignal, this, [this](bool editing, CaptionItem* edited) {
            if (editing) {
                if (m_editItem && m_editItem != edited) {
                    m_editItem->changeToEdit(false);
                }
                m_editItem = edited;
                GlobalManager::instance()->emitEvent(AppConfig::CHANGE_CAPTION,
                                                     QVariant::fromValue(edited->getCaptionInfo()));
            } else if (m_editItem == edited) {
                m_editItem = nullptr;
            }
        });
        connect(item, &CaptionItem::captionChangedSignal, this, [this](CaptionInfo* changed, CaptionItem*) {
            GlobalManager::instance()->emitEvent(AppConfig::CHANGE_CAPTION, QVariant::fromValue(changed));
            emit captionTextChangedSignal(changed);
        });
        connect(item, &CaptionItem::captionCheckStateChangedSignal, this, [this](CaptionInfo* changed, int state) {
            updateCaptionByCheck(changed);
            updateSelectAllText();
            emit captionCheckStateChangedSignal(changed, state);
        });
    }
    m_loading = false;
}

QList<CaptionInfo*> CaptionWidget::getCaptionInfoBySearch() const
{
    const QString text = m_search ? m_search->text() : QString();
    qCDebug(lcUi) << "getCaptionInfoBySearch" << text;
    const QList<CaptionInfo*> all = CaptionManager::instance()->getCaptions();
    if (text.isEmpty()) {
        return all;
    }
    QList<CaptionInfo*> result;
    for (CaptionInfo* info : all) {
        if (info->text.contains(text, Qt::CaseSensitive)) {
            result.append(info);
        }
    }
    return result;
}

void CaptionWidget::searchTextChanged(const QString& text)
{
    qCDebug(lcUi) << "search text" << text;
    createCaption(QByteArray());
}

void CaptionWidget::scrollValueChanged(int value)
{
    // The next page comes a screen before the end, so the bar never sticks
    // at a bottom that is not the list's end.
    const QScrollBar* bar = m_list->verticalScrollBar();
    if (value < bar->maximum() - qMax(bar->pageStep(), m_list->viewport()->height())) {
        return;
    }
    const int next = m_page * PAGE_SIZE + PAGE_SIZE;
    if (next < CaptionManager::instance()->getCaptions().size() && !m_loading) {
        loadItems(next, m_page * PAGE_SIZE + 2 * PAGE_SIZE - 1);
        ++m_page;
    }
}

void CaptionWidget::captionListItemClicked(QListWidgetItem* row)
{
    if (!row) {
        return;
    }
    auto* info = row->data(Qt::UserRole).value<CaptionInfo*>();
    auto* item = qobject_cast<CaptionItem*>(m_list->itemWidget(row));
    if (!info || !item) {
        return;
    }
    GlobalManager::instance()->emitEvent(AppConfig::TIME_POS, info->startMs());
    if (m_selectedItem && m_selectedItem != item) {
        m_selectedItem->setSelect(false);
    }
    item->setSelect(true);
    m_selectedItem = item;
    if (m_editItem && m_editItem != item) {
        m_editItem->changeToEdit(false);
    }
}

void CaptionWidget::changeCaptionPlayByTime(double seconds)
{
    const double ms = QString::number(seconds, 'f', 2).toDouble() * 1000.0;
    if (m_playingItem) {
        m_playingItem->changeToPlay(false);
        m_playingItem = nullptr;
    }
    for (CaptionItem* item : qAsConst(m_items)) {
        const CaptionInfo* info = item->getCaptionInfo();
        const double start = info->startMs();
        const double end = info->endMs();
        if (start <= ms && ms <= end) {
            item->changeToPlay(true);
            m_playingItem = item;
            break;
        }
    }
}

void CaptionWidget::resetEditStatus()
{
    if (m_editItem) {
        m_editItem->changeToEdit(false);
        m_editItem = nullptr;
    }
}

void CaptionWidget::resetSearchStatus()
{
    if (m_search->hasFocus()) {
        m_search->clearFocus();
    }
}

void CaptionWidget::updateSelectAllText()
{
    const QList<CaptionInfo*> all = CaptionManager::instance()->getCaptions();
    int checked = 0;
    for (const CaptionInfo* info : all) {
        checked += info->isCheck ? 1 : 0;
    }
    const QSignalBlocker blocker(m_selectAll);
    if (!all.isEmpty() && checked == all.size()) {
        m_selectAll->setCheckState(Qt::Checked);
    } else if (checked == 0) {
        m_selectAll->setCheckState(Qt::Unchecked);
    } else {
        m_selectAll->setCheckState(Qt::PartiallyChecked);
    }
    m_selectAll->setText(all.isEmpty() ? tr("Select all") : tr("Select all (%1/%2)").arg(QString::number(checked), QString::number(all.size())));
}

void CaptionWidget::changeCaptureString(const QString& text)
{
    m_captureButton->setText(text);
}

void CaptionWidget::updateCaptionItem(CaptionInfo* info)
{
    for (int i = 0; i < m_list->count(); ++i) {
        auto* item = qobject_cast<CaptionItem*>(m_list->itemWidget(m_list->item(i)));
        if (item && (!info || item->getCaptionInfo() == info)) {
            item->refresh();
            fitRow(m_list->item(i));
        }
    }
}

void CaptionWidget::fitRow(QListWidgetItem* row)
{
    // Rows are as wide as the list and as tall as their wrapped text.
    QWidget* item = m_list->itemWidget(row);
    if (!item) {
        return;
    }
    const int width = m_list->viewport()->width();
    const int height = item->hasHeightForWidth() ? item->heightForWidth(width) : -1;
    row->setSizeHint(QSize(width, height > 0 ? height : item->sizeHint().height()));
}

bool CaptionWidget::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_list->viewport() && event->type() == QEvent::Resize) {
        for (int i = 0; i < m_list->count(); ++i) {
            fitRow(m_list->item(i));
        }
    }
    return BaseWidget::eventFilter(watched, event);
}
