#include "windowflows.h"

#include "autocaptionflow.h"
#include "captioninfo.h"
#include "captioneditor.h"
#include "captionfileflow.h"
#include "captionwidget.h"
#include "appconfig.h"
#include "exportnotice.h"
#include "settings.h"
#include "capturecontroller.h"
#include "globalmanager.h"
#include "imageexporter.h"
#include "imageitem.h"
#include "imageswidget.h"
#include "loadingdialog.h"
#include "messagedialog.h"
#include "playercapturesource.h"
#include "previewwidget.h"
#include "registerguidedialog.h"
#include "videoplaywidget.h"

#include <QDebug>
#include <QDir>
#include <QFileInfo>
#include <QPushButton>

WindowFlows::WindowFlows(const Parts& parts)
    : QObject(parts.window)
    , m_parts(parts)
{
    initCapture();
    initAutoCaptions();
    initCaptionFiles();
    initExports();
}

void WindowFlows::showMessage(const QString& title, const QString& message)
{
    qDebug() << "message:" << title << message;
    m_parts.messages->showMessage(title, message);
}

void WindowFlows::initCapture()
{
    VideoPlayWidget* player = m_parts.player;
    auto* source = new PlayerCaptureSource(player);
    m_capture = new CaptureController(source, m_parts.strip, this);
    m_editor = new CaptionEditor(source, m_capture, this);
    connect(player, &VideoPlayWidget::captionEditSignal, m_editor, &CaptionEditor::styleEdited);
    connect(m_parts.captions, &CaptionWidget::captionTextChangedSignal, m_editor, &CaptionEditor::textEdited);
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
    connect(m_parts.captions, &CaptionWidget::autoCaptionSignal, this, [this](int languageKey) {
        if (!m_parts.player->isLoadFile()) {
            showMessage(tr("No video"), tr("Open a video first, then generate its captions."));
            return;
        }
        m_autoCaptions->start(languageKey, GlobalManager::instance()->getCurrentFile().absoluteFilePath());
    });
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
            });
}

void WindowFlows::initExports()
{
    // One message for every failure of an export, from either panel.
    m_notice = new ExportNotice(m_parts.window);
    auto finished = [this](const QStringList& files, const QStringList& errors) {
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
