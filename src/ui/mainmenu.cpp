#include "mainmenu.h"

#include "aboutdialog.h"
#include "appconfig.h"
#include "checkupdatedialog.h"
#include "globalmanager.h"
#include "registerdialog.h"
#include "settings.h"
#include "speechenginedialog.h"
#include "translatemanager.h"

#include <QAction>
#include <QActionGroup>
#include <QDesktopServices>
#include <QFileDialog>
#include <QFileInfo>
#include <QUrl>

MainMenu::MainMenu(QWidget* parent)
    : QMenu(parent)
    , m_formatGroup(new QActionGroup(this))
    , m_languageGroup(new QActionGroup(this))
{
    setObjectName(QStringLiteral("main_menu"));
    auto add = [this](int type) {
        QAction* action = addAction(QString());
        connect(action, &QAction::triggered, this, [this, type]() { emit menuTapped(type); });
        m_actions.insert(type, action);
        return action;
    };
    // Ctrl+O belongs to the player panel; the menu only names it.
    add(MenuOpenVideo);
    add(MenuAddSubtitle);
    add(MenuCaptionPanel)->setCheckable(true);
    addSeparator();
    add(MenuOutputFolder);
    add(MenuSpeechEngine);

    m_formatMenu = addMenu(QString());
    for (const QString& format : {AppConfig::FORMAT_PNG, AppConfig::FORMAT_JPG, AppConfig::FORMAT_WEBP}) {
        QAction* action = m_formatMenu->addAction(format);
        action->setCheckable(true);
        action->setData(format);
        m_formatGroup->addAction(action);
        connect(action, &QAction::triggered, this,
                [format]() { GlobalManager::instance()->saveSettings(AppConfig::FILE_EXTENSION, format); });
    }

    m_languageMenu = addMenu(QString());
    const QMap<int, QString> names = TranslateManager::instance()->getLangNameMap();
    for (auto it = names.constBegin(); it != names.constEnd(); ++it) {
        QAction* action = m_languageMenu->addAction(it.value());
        action->setCheckable(true);
        action->setData(it.key());
        m_languageGroup->addAction(action);
        const int type = it.key();
        connect(action, &QAction::triggered, this, [this, type]() { emit languageTapped(type); });
    }
    addSeparator();
    add(MenuCheckUpdate);
    add(MenuRegister);
    add(MenuLogFolder);
    add(MenuAbout);
    addSeparator();
    add(MenuQuit)->setShortcut(QKeySequence::Quit);
    connect(this, &QMenu::aboutToShow, this, &MainMenu::refreshChecks);
    retranslate();
}

QMap<int, QString> MainMenu::texts()
{
    return {
        {MenuOpenVideo, tr("Open video...")},
        {MenuAddSubtitle, tr("Add local subtitle...")},
        {MenuCaptionPanel, tr("Caption panel")},
        {MenuOutputFolder, tr("Output folder...")},
        {MenuSpeechEngine, tr("Speech engine...")},
        {MenuCheckUpdate, tr("Check for updates")},
        {MenuRegister, tr("Register...")},
        {MenuAbout, tr("About Glimmer")},
        {MenuLogFolder, tr("Open log folder")},
        {MenuQuit, tr("Quit")},
    };
}

void MainMenu::retranslate()
{
    const QMap<int, QString> labels = texts();
    for (auto it = m_actions.constBegin(); it != m_actions.constEnd(); ++it) {
        it.value()->setText(labels.value(it.key()));
    }
    action(MenuOpenVideo)->setText(labels.value(MenuOpenVideo) + QLatin1Char('\t')
                                   + QKeySequence(Qt::CTRL | Qt::Key_O).toString(QKeySequence::NativeText));
    m_formatMenu->setTitle(tr("Output format"));
    m_languageMenu->setTitle(tr("Language"));
}

void MainMenu::addEditActions(const QList<QAction*>& actions)
{
    QAction* before = action(MenuOutputFolder);
    insertActions(before, actions);
    insertSeparator(before);
}

void MainMenu::refreshChecks()
{
    const QString format = Settings::instance()->value(AppConfig::FILE_EXTENSION).toString();
    for (QAction* action : m_formatGroup->actions()) {
        action->setChecked(action->data().toString() == format);
    }
    for (QAction* action : m_languageGroup->actions()) {
        action->setChecked(action->data().toInt() == TranslateManager::instance()->getLangType());
    }
    action(MenuRegister)->setVisible(!GlobalManager::instance()->isRegister());
}

void MainMenu::openDialog(int type)
{
    QWidget* window = parentWidget();
    GlobalManager* global = GlobalManager::instance();
    switch (type) {
    case MenuOutputFolder: {
        const QString current = Settings::instance()->value(AppConfig::FILE_SAVE_PATH).toString();
        const QString dir = QFileDialog::getExistingDirectory(window, tr("Choose the output folder"), current);
        if (!dir.isEmpty()) {
            global->saveSettings(AppConfig::FILE_SAVE_PATH, dir);
        }
        break;
    }
    case MenuSpeechEngine:
        SpeechEngineDialog::showFor(window);
        break;
    case MenuCheckUpdate: {
        auto* dialog = new CheckUpdateDialog(window);
        dialog->setAttribute(Qt::WA_DeleteOnClose);
        dialog->show();
        dialog->checkForUpdate();
        break;
    }
    case MenuRegister: {
        auto* dialog = new RegisterDialog(window);
        dialog->setAttribute(Qt::WA_DeleteOnClose);
        dialog->open();
        break;
    }
    case MenuAbout:
        if (!m_aboutDialog) {
            m_aboutDialog = new AboutDialog(window);
            m_aboutDialog->setAttribute(Qt::WA_DeleteOnClose);
        }
        m_aboutDialog->show();
        m_aboutDialog->raise();
        break;
    case MenuLogFolder:
        QDesktopServices::openUrl(QUrl::fromLocalFile(QFileInfo(global->getLogFilePath()).absolutePath()));
        break;
    default:
        break;
    }
}
