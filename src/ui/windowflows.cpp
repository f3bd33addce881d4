#include "windowflows.h"

#include "appconfig.h"
#include "appconfig.h"
#include "autocaptionflow.h"
#include "captioneditor.h"
#include "captionfileflow.h"
#include "captioninfo.h"
#include "captionsaveflow.h"
#include "captionwidget.h"
#include "capturecontroller.h"
#include "closeguard.h"
#include "exportnotice.h"
#include "globalmanager.h"
#include "imageexporter.h"
#include "imageitem.h"
#include "imageswidget.h"
#include "loadingdialog.h"
#include "logcategories.h"
#include "mainmenu.h"
#include "messagedialog.h"
#include "playercapturesource.h"
#include "previewwidget.h"
#include "registerguidedialog.h"
#include "settings.h"
#include "speechenginedialog.h"
#include "undohistory.h"
#include "videoplaywidget.h"

#include <QDebug>
#include <QAction>
#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QMessageBox>
#include <QPushButton>

WindowFlows::WindowFlows(const Parts& parts)
    : QObject(parts.window)
    , m_parts(parts)
{
    m_history = new UndoHistory(parts.strip, this);
    m_saver = new CaptionSaveFlow(parts.window);
    connect(m_saver, &CaptionSaveFlow::failed, this, &WindowFlows::showMessage);
    m_closeGuard = new CloseGuard(parts.window, parts.strip, m_saver);
    initCapture();
    initAutoCaptions();
    initCaptionFiles();
    initExports();
    initHistory();
}

void WindowFlows::showMessage(const QString& title, const QString& message)
{
    qCDebug(lcUi) << "message:" << title << message;
    m_parts.messages->showMessage(title, message);
}

void WindowFlows::initCapture()
{
    VideoPlayWidget* player = m_parts.player;
    auto* source = new PlayerCaptureSource(player);
    m_capture = new CaptureController(source, m_parts.strip, this);
    m_editor = new CaptionEditor(source, m_capture, this);
    connect(player, &VideoPlayWidget::captionEditSignal, this, [this](CaptionInfo* caption, bool isAll) {
        QString text = isAll ? tr("Edit the style of all captions") : tr("Edit caption");
        if (caption && caption->isInsert && caption->editMarks.isEmpty()) {
            text = tr("Create caption");
        }
        m_history->recordCaptions(text, [this, caption, isAll]() { m_editor->styleEdited(caption, isAll); });
    });
    connect(m_parts.captions, &CaptionWidget::captionTextChangedSignal, this, [this](CaptionInfo* caption) {
        if (!caption) {
            // Ticks and shown texts are no step of their own.
            m_editor->textEdited(nullptr);
            return;
        }
        m_history->recordCaptions(tr("Edit caption text"), [this, caption]() { m_editor->textEdited(caption); });
    });
    connect(m_parts.captions, &CaptionWidget::clearCaptionSignal, this, [this]() {
        m_history->recordCaptions(tr("Clear captions"), []() {
            GlobalManager::instance()->emitEvent(AppConfig::REMOVE_CAPTION, QString());
        });
    });
    connect(m_editor, &CaptionEditor::captionChanged, m_parts.captions, &CaptionWidget::updateCaptionItem);

    connect(m_parts.captions, &CaptionWidget::createCaptionSignal, this, [this]() {
        if (!m_parts.player->isLoadFile()) {
            showMessage(tr("No video"), tr("Open a video first, then create a caption at the current time."));
            return;
        }
        m_parts.player->insertCaptionAtCurrentTime();
    });
    connect(player, &VideoPlayWidget::captionInsertRefused, this, [this]() {
        showMessage(tr("No room for a caption"),
                    tr("A caption already covers the current time. Move to a moment without a caption."));
    });
    // The caption panel's capture button is the player's.
    connect(m_parts.captions, &CaptionWidget::captureSelectSignal, this, [this](int) {
        m_parts.player->getControlButton(VideoPlayWidget::ButtonCaptureSelected)->click();
    });
    connect(player, &VideoPlayWidget::captureNowRequested, m_capture, &CaptureController::captureNow);
    connect(player, &VideoPlayWidget::captureCheckedRequested, m_capture, &CaptureController::startCaptureChecked);
    connect(m_capture, &CaptureController::busy, m_parts.loading, &LoadingDialog::showWithText);
    connect(m_capture, &CaptureController::idle, m_parts.loading, &QWidget::hide);
    connect(m_capture, &CaptureController::failed, this, &WindowFlows::showMessage);
    connect(m_capture, &CaptureController::frameReplaced, m_parts.preview, &PreviewWidget::updateImageShow);
    connect(m_capture, &CaptureController::recaptureFinished, this, &WindowFlows::recaptureFinished);
    connect(m_capture, &CaptureController::checkedPassFinished, this, [this](int skipped) {
        m_parts.captions->changeCaptureString(tr("Capture checked"));
        if (skipped > 0) {
            showMessage(tr("Some captions were not captured"),
                        tr("%n caption(s) start at or after the end of the video, or have no readable start "
                           "time, and were skipped.",
                           nullptr, skipped));
        }
        emit captureCheckedFinished();
    });
}

void WindowFlows::initAutoCaptions()
{
    m_autoCaptions = new AutoCaptionFlow(this);
    connect(m_autoCaptions, &AutoCaptionFlow::busy, m_parts.loading, &LoadingDialog::showWithText);
    connect(m_autoCaptions, &AutoCaptionFlow::failed, this, [this](const QString& title, const QString& message) {
        m_parts.loading->hide();
        showMessage(title, message);
    });
    connect(m_autoCaptions, &AutoCaptionFlow::languageNeedsServer, this, [this](const QString& language) {
        m_parts.loading->hide();
        offerSpeechEngine(language);
    });
    connect(m_parts.captions, &CaptionWidget::autoCaptionSignal, this, [this](int languageKey) {
        if (!m_parts.player->isLoadFile()) {
            showMessage(tr("No video"), tr("Open a video first, then generate its captions."));
            return;
        }
        m_autoCaptions->start(languageKey, GlobalManager::instance()->getCurrentFile().absoluteFilePath());
    });
}

void WindowFlows::offerSpeechEngine(const QString& language)
{
    qCDebug(lcUi) << "language needs a speech server:" << language;
    auto* box = new QMessageBox(QMessageBox::Information, tr("%1 needs a speech server").arg(language),
                                tr("The built-in speech engine recognises English only. To make captions in %1, "
                                   "connect a transcription server in Speech engine.")
                                    .arg(language),
                                QMessageBox::NoButton, m_parts.window);
    box->setObjectName(QStringLiteral("speech_engine_needed"));
    box->setAttribute(Qt::WA_DeleteOnClose);
    QPushButton* open = box->addButton(tr("Speech engine..."), QMessageBox::AcceptRole);
    box->addButton(QCoreApplication::translate("Confirmation", "Cancel"), QMessageBox::RejectRole);
    box->setDefaultButton(open);
    connect(box, &QMessageBox::buttonClicked, this, [this, open](QAbstractButton* button) {
        if (button == open) {
            SpeechEngineDialog::showFor(m_parts.window);
        }
    });
    box->open();
}

void WindowFlows::initCaptionFiles()
{
    m_captionFiles = new CaptionFileFlow(m_parts.window);
    LoadingDialog* loading = m_parts.loading;
    connect(m_captionFiles, &CaptionFileFlow::progress, loading, [loading](const QString& text, int percent) {
        loading->showWithText(text);
        loading->setProgress(percent);
    });
    // Cancel gives up the load; the dialog then closes itself.
    connect(loading, &QDialog::rejected, m_captionFiles, &CaptionFileFlow::cancel);
    connect(m_captionFiles, &CaptionFileFlow::cancelled, loading, &LoadingDialog::hideAndReset);
    connect(m_captionFiles, &CaptionFileFlow::finished, this,
            [this, loading](const QString& assPath, const QString& title, const QString& problem) {
                loading->hideAndReset();
                m_parts.captions->createCaption(QByteArray());
                if (!problem.isEmpty()) {
                    showMessage(title, problem);
                }
                m_parts.player->loadSubTitleFile(assPath);
                m_history->captionsLoaded(assPath);
                m_closeGuard->markCaptionsSaved();
            });
}

void WindowFlows::addActions(MainMenu* menu)
{
    const QList<QAction*> actions{m_saver->saveAction(), m_saver->saveAsAction(), m_history->undoAction(),
                                  m_history->redoAction()};
    menu->addEditActions(actions);
    m_parts.captions->addSaveActions(m_saver->saveAction(), m_saver->saveAsAction());
    m_parts.window->addActions(actions);
}

void WindowFlows::initHistory()
{
    connect(m_capture, &CaptureController::framesRecaptured, m_history, &UndoHistory::framesRecaptured);
    connect(m_history, &UndoHistory::captionsRestored, this, [this]() {
        m_capture->forgetEdit();
        m_parts.captions->createCaption(QByteArray());
        m_parts.captions->updateSelectAllText();
    });
}

void WindowFlows::initExports()
{
    // One message for every failure of an export, from either panel.
    m_notice = new ExportNotice(m_parts.window);
    auto finished = [this](const QStringList& files, const QStringList& errors) {
        if (!files.isEmpty()) {
            m_closeGuard->markSelectionExported();
        }
        if (!errors.isEmpty()) {
            showMessage(ImageExporter::summary(files, errors), errors.join(QLatin1Char('\n')));
        }
        const QString chosen = Settings::instance()->value(AppConfig::FILE_SAVE_PATH).toString();
        m_notice->showExport(files, chosen);
        // The chosen folder could not take the pictures: the field shows where they went.
        if (!files.isEmpty() && QDir(QFileInfo(files.first()).absolutePath()) != QDir(chosen)) {
            GlobalManager::instance()->saveSettings(AppConfig::FILE_SAVE_PATH,
                                                    QFileInfo(files.first()).absolutePath());
        }
    };
    ImagesWidget* strip = m_parts.strip;
    PreviewWidget* preview = m_parts.preview;
    connect(strip, &ImagesWidget::showRegisterGuide, this, [this, strip]() {
        RegisterGuideDialog::showAfterExport(m_parts.window, [strip]() { strip->registerGuideClosedHandle(); });
    });
    connect(preview, &PreviewWidget::showRegisterGuide, this, [this, preview]() {
        RegisterGuideDialog::showAfterExport(m_parts.window, [preview]() { preview->registerGuideClosedHandle(); });
    });
    connect(strip, &ImagesWidget::exportFinishedSignal, this, finished);
    connect(preview, &PreviewWidget::exportFinishedSignal, this, finished);
}
