#include "checkupdatedialog.h"

#include "appconfig.h"
#include "globalmanager.h"
#include "logcategories.h"
#include "screenmanager.h"
#include "translatemanager.h"

#include <QDebug>
#include <QFile>
#include <QHBoxLayout>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLabel>
#include <QPushButton>
#include <QStackedWidget>
#include <QTimer>
#include <QVBoxLayout>
#include <QVersionNumber>

CheckUpdateDialog::CheckUpdateDialog(QWidget* parent)
    : QDialog(parent)
    , m_runningVersion(GlobalManager::instance()->getAppVersion())
{
    setObjectName(QStringLiteral("check_update_dialog"));
    initUi();
    retranslate();
    connect(TranslateManager::instance(), &TranslateManager::notify, this, &CheckUpdateDialog::retranslate);

    QFile style(QStringLiteral(":/qss/check_update_dialog.qss"));
    if (style.open(QIODevice::ReadOnly)) {
        QString sheet = QString::fromUtf8(style.readAll());
        ScreenManager::instance()->styleDpiChange(sheet);
        setStyleSheet(sheet);
    }

    // Details of the last published version known, until a fresh answer comes.
    const QString saved = GlobalManager::readFileContent(DownloadManager::versionFileCachePath());
    if (!saved.isEmpty()) {
        updateInfo(saved.toUtf8());
    }

    m_checkTimer = new QTimer(this);
    m_checkTimer->setInterval(1000);
    connect(m_checkTimer, &QTimer::timeout, this, &CheckUpdateDialog::updateTimer);
    connect(DownloadManager::instance(), &DownloadManager::downloadLastVersionStateChanged, this,
            &CheckUpdateDialog::downloadLastVersionStatus);
    showCheckingLayer();
}

void CheckUpdateDialog::initUi()
{
    setMinimumWidth(AppConfig::rate(420));
    m_stack = new QStackedWidget(this);

    // Checking
    auto* checking = new QWidget(m_stack);
    m_checkingLabel = new QLabel(checking);
    m_checkingLabel->setObjectName(QStringLiteral("checking_label"));
    m_checkingLabel->setWordWrap(true);
    m_checkingLabel->setAlignment(Qt::AlignCenter);
    m_retryButton = new QPushButton(checking);
    m_closeButton = new QPushButton(checking);
    auto* checkingButtons = new QHBoxLayout();
    checkingButtons->addStretch();
    checkingButtons->addWidget(m_retryButton);
    checkingButtons->addWidget(m_closeButton);
    auto* checkingLayout = new QVBoxLayout(checking);
    checkingLayout->addStretch();
    checkingLayout->addWidget(m_checkingLabel);
    checkingLayout->addStretch();
    checkingLayout->addLayout(checkingButtons);
    connect(m_retryButton, &QPushButton::clicked, this, [this]() { checkForUpdate(m_tag, m_retry); });
    connect(m_closeButton, &QPushButton::clicked, this, &QDialog::reject);

    // Already the latest
    auto* latest = new QWidget(m_stack);
    m_latestLabel = new QLabel(latest);
    m_latestLabel->setObjectName(QStringLiteral("latest_label"));
    m_latestLabel->setWordWrap(true);
    m_latestLabel->setAlignment(Qt::AlignCenter);
    m_okButton = new QPushButton(latest);
    QPushButton* okButton = m_okButton;
    auto* latestButtons = new QHBoxLayout();
    latestButtons->addStretch();
    latestButtons->addWidget(okButton);
    auto* latestLayout = new QVBoxLayout(latest);
    latestLayout->addStretch();
    latestLayout->addWidget(m_latestLabel);
    latestLayout->addStretch();
    latestLayout->addLayout(latestButtons);
    connect(okButton, &QPushButton::clicked, this, &QDialog::accept);

    // Update available
    auto* update = new QWidget(m_stack);
    m_updateTitle = new QLabel(update);
    QLabel* title = m_updateTitle;
    title->setObjectName(QStringLiteral("update_title_label"));
    m_versionLabel = new QLabel(update);
    m_dateLabel = new QLabel(update);
    m_sizeLabel = new QLabel(update);
    m_changeLabel = new QLabel(update);
    m_changeLabel->setObjectName(QStringLiteral("change_label"));
    m_changeLabel->setTextFormat(Qt::RichText);
    m_changeLabel->setWordWrap(true);
    m_changeLabel->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    m_laterButton = new QPushButton(update);
    m_updateNowButton = new QPushButton(update);
    m_updateNowButton->setObjectName(QStringLiteral("update_now_button"));
    m_updateNowButton->setDefault(true);
    auto* updateButtons = new QHBoxLayout();
    updateButtons->addStretch();
    updateButtons->addWidget(m_laterButton);
    updateButtons->addWidget(m_updateNowButton);
    auto* updateLayout = new QVBoxLayout(update);
    updateLayout->addWidget(title);
    updateLayout->addWidget(m_versionLabel);
    updateLayout->addWidget(m_dateLabel);
    updateLayout->addWidget(m_sizeLabel);
    updateLayout->addWidget(m_changeLabel, 1);
    updateLayout->addLayout(updateButtons);
    connect(m_laterButton, &QPushButton::clicked, this, &QDialog::reject);
    connect(m_updateNowButton, &QPushButton::clicked, this, [this]() {
        if (!m_url.isEmpty()) {
            GlobalManager::instance()->openUrl(m_url);
        }
        accept();
    });

    m_stack->insertWidget(CheckingLayer, checking);
    m_stack->insertWidget(LatestLayer, latest);
    m_stack->insertWidget(UpdateLayer, update);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(AppConfig::rate(20, 20, 20, 20));
    layout->addWidget(m_stack);
}

// ---------------------------------------------------------------- pure helpers

bool CheckUpdateDialog::isLatestVersion(const QString& running, const QString& latest)
{
    return QVersionNumber::compare(QVersionNumber::fromString(running),
                                   QVersionNumber::fromString(latest))
           >= 0;
}

bool CheckUpdateDialog::offersUpdate(const QByteArray& body, const QString& running)
{
    const QJsonObject win = QJsonDocument::fromJson(body).object().value(QStringLiteral("win")).toObject();
    const QString latest = win.value(QStringLiteral("version")).toString();
    return !latest.isEmpty() && !isLatestVersion(running, latest);
}

QString CheckUpdateDialog::changeListHtml(const QJsonArray& changes)
{
    QString list;
    for (const QJsonValue& entry : changes) {
        list += entry.toString() + QStringLiteral("<br>");
    }
    return QStringLiteral("<p style='line-height:20px'>%1</p>").arg(list);
}

// ---------------------------------------------------------------- state

void CheckUpdateDialog::updateInfo(const QByteArray& body)
{
    const QJsonObject win = QJsonDocument::fromJson(body).object().value(QStringLiteral("win")).toObject();
    m_version = win.value(QStringLiteral("version")).toString();
    m_size = win.value(QStringLiteral("size")).toString();
    m_date = win.value(QStringLiteral("date")).toString();
    m_change = win.value(QStringLiteral("change")).toArray();
    m_url = win.value(QStringLiteral("url")).toString();

    m_isLatest = isLatestVersion(m_runningVersion, m_version);

    m_shownVersion = m_version;
    m_shownDate = m_date;
    m_shownSize = m_size;
    updateDetailTexts();
    m_changeLabel->setText(changeListHtml(m_change));
}

void CheckUpdateDialog::updateDetailTexts()
{
    m_versionLabel->setText(tr("Version: %1").arg(m_shownVersion));
    m_dateLabel->setText(tr("Release date: %1").arg(m_shownDate));
    m_sizeLabel->setText(tr("Size: %1").arg(m_shownSize));
}

void CheckUpdateDialog::retranslate()
{
    setWindowTitle(tr("Check for update"));
    m_retryButton->setText(tr("Try again"));
    m_closeButton->setText(tr("Close"));
    m_latestLabel->setText(tr("Your current use is already the latest version."));
    m_okButton->setText(tr("OK"));
    m_updateTitle->setText(tr("A new version is available"));
    m_laterButton->setText(tr("Remind me later"));
    m_updateNowButton->setText(tr("Update now"));
    updateDetailTexts();
    if (m_showingError) {
        m_checkingLabel->setText(checkErrorText());
    } else {
        m_checkingLabel->setText(checkingDotsText());
    }
}

void CheckUpdateDialog::checkForUpdate(const QString& tag, int retry)
{
    m_tag = tag;
    m_retry = retry;
    showCheckingLayer();
    DownloadManager::instance()->downloadLastVersion(tag, retry);
}

void CheckUpdateDialog::downloadLastVersionStatus(DownloadManager::DownloadState state, QString text,
                                                  QByteArray data)
{
    qCDebug(lcUi) << "downloadLastVersionStatus:" << state << text << data;
    const QString tag = DownloadManager::tagOfStateText(text);
    // Answers to someone else's check are not ours to show.
    if (!m_tag.isEmpty() && tag != m_tag) {
        return;
    }
    if (state == DownloadManager::DownloadFinished) {
        updateInfo(data);
        if (m_version.isEmpty() && tag != DownloadManager::TAG_START) {
            showCheckError(tr("The version information could not be read."));
            return;
        }
        QTimer::singleShot(0, this, &CheckUpdateDialog::showResultLayer);
    } else if (state == DownloadManager::DownloadError && tag != DownloadManager::TAG_START) {
        showCheckError(QString::fromUtf8(data));
    }
}

void CheckUpdateDialog::updateTimer()
{
    ++m_dotCount;
    m_checkingLabel->setText(checkingDotsText());
}

void CheckUpdateDialog::showCheckingLayer()
{
    m_dotCount = 0;
    m_showingError = false;
    m_checkingLabel->setText(tr("Check for update"));
    m_retryButton->hide();
    m_checkTimer->start();
    m_stack->setCurrentIndex(CheckingLayer);
}

void CheckUpdateDialog::showResultLayer()
{
    m_checkTimer->stop();
    m_stack->setCurrentIndex(m_isLatest ? LatestLayer : UpdateLayer);
}

void CheckUpdateDialog::showCheckError(const QString& error)
{
    m_checkTimer->stop();
    m_checkError = error;
    m_showingError = true;
    m_checkingLabel->setText(checkErrorText());
    m_retryButton->setVisible(!m_tag.isEmpty());
    m_stack->setCurrentIndex(CheckingLayer);
}

QString CheckUpdateDialog::checkingDotsText() const
{
    return QStringLiteral("%1%2").arg(tr("Check for update"), QString(m_dotCount % 4, QLatin1Char('.')));
}

QString CheckUpdateDialog::checkErrorText() const
{
    return tr("Could not check for updates. Please check your network connection and try again.\n%1")
        .arg(m_checkError);
}

CheckUpdateDialog::Layer CheckUpdateDialog::currentLayer() const
{
    return static_cast<Layer>(m_stack->currentIndex());
}

QString CheckUpdateDialog::checkingText() const
{
    return m_checkingLabel->text();
}

QString CheckUpdateDialog::changeText() const
{
    return m_changeLabel->text();
}

QString CheckUpdateDialog::versionText() const
{
    return m_versionLabel->text();
}

QString CheckUpdateDialog::sizeText() const
{
    return m_sizeLabel->text();
}

QString CheckUpdateDialog::dateText() const
{
    return m_dateLabel->text();
}

void CheckUpdateDialog::offerAtStartUp(QWidget* parent, DownloadManager::DownloadState state, const QString& text,
                                       const QByteArray& data)
{
    if (DownloadManager::tagOfStateText(text) != DownloadManager::TAG_START
        || state != DownloadManager::DownloadFinished) {
        return;
    }
    if (offersUpdate(data, GlobalManager::instance()->getAppVersion())) {
        auto* dialog = new CheckUpdateDialog(parent);
        dialog->setAttribute(Qt::WA_DeleteOnClose);
        dialog->downloadLastVersionStatus(state, text, data);
        dialog->show();
    }
}
