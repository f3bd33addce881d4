#include "mainwindow.h"

#include "appconfig.h"
#include "globalmanager.h"
#include "translatemanager.h"

#include <QApplication>
#include <QDebug>
#include <QTranslator>

MainWindow::MainWindow(QWidget* parent)
    : QWidget(parent)
    , m_translator(new QTranslator(this))
{
    setObjectName(QStringLiteral("main_window"));
    setWindowTitle(AppConfig::APP_NAME);
    connect(GlobalManager::instance(), &GlobalManager::globalEvent, this, &MainWindow::globalEventHandle);
    changeLangByType(TranslateManager::instance()->getLangType());
}

MainWindow::~MainWindow() = default;

void MainWindow::startUp(const QStringList& arguments)
{
    Q_UNUSED(arguments)
}

void MainWindow::changeLangByType(int type)
{
    if (!m_translator->isEmpty()) {
        QApplication::removeTranslator(m_translator);
    }
    const QString file = TranslateManager::instance()->getLangFileMap().value(type);
    qDebug() << "changeLangByType" << file << type;
    if (m_translator->load(file)) {
        QApplication::installTranslator(m_translator);
    }
    TranslateManager::instance()->setLangType(static_cast<TranslateManager::LanguageType>(type));
    emit TranslateManager::instance()->notify(type);
}

void MainWindow::languageMenuTapByType(int type)
{
    changeLangByType(type);
    GlobalManager::instance()->saveSettings(AppConfig::APP_LANG, type);
}

void MainWindow::globalEventHandle(QString eventName, QVariant value)
{
    Q_UNUSED(eventName)
    Q_UNUSED(value)
}
