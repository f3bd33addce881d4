#include "appconfig.h"
#include "captionmanager.h"
#include "downloadmanager.h"
#include "globalmanager.h"
#include "licensemanager.h"
#include "logcategories.h"
#include "mainwindow.h"
#include "screenmanager.h"
#include "translatemanager.h"

#include <QApplication>
#include <QCursor>
#include <QDebug>
#include <QMessageBox>
#include <QScreen>
#include <QSharedMemory>
#include <QSslSocket>

#include <clocale>
#include <cstdio>
#include <cstring>
#include <stdexcept>

namespace {

// --help and --version are answered before anything else starts, so that they
// work without a display and while another copy runs.
bool printInformation(int argc, char* argv[])
{
    for (int i = 1; i < argc; ++i) {
        if (std::strcmp(argv[i], "--version") == 0 || std::strcmp(argv[i], "-v") == 0) {
            std::printf("glimmer %s\n", GLIMMER_VERSION);
            return true;
        }
        if (std::strcmp(argv[i], "--help") == 0 || std::strcmp(argv[i], "-h") == 0) {
            std::printf("Usage: glimmer [OPTION] [VIDEO]\n"
                        "Turn the moments of a video into still pictures with their captions.\n"
                        "VIDEO, a path or a file: URL, is opened at start-up.\n"
                        "\n"
                        "Options:\n"
                        "  -h, --help     Display this help and exit.\n"
                        "  -v, --version  Display the version and exit.\n");
            return true;
        }
    }
    return false;
}

} // namespace

int main(int argc, char* argv[])
{
    if (printInformation(argc, argv)) {
        return 0;
    }
    QSharedMemory guard(AppConfig::APP_NAME);
#ifndef Q_OS_WIN
    // A crashed run leaves its segment behind on Unix. Attaching and detaching
    // once drops a segment that no live process holds; one that a running copy
    // holds survives and is caught by the attach below.
    if (guard.attach(QSharedMemory::ReadWrite)) {
        guard.detach();
    }
#endif
    if (guard.attach(QSharedMemory::ReadWrite)) {
        return 1;
    }
    guard.create(1, QSharedMemory::ReadWrite);

    CaptionManager::registerMetaTypes();

    auto* app = new QApplication(argc, argv);
    // libmpv refuses to start under a non-C numeric locale.
    std::setlocale(LC_NUMERIC, "C");
    AppConfig::initResources();

    GlobalManager::instance()->initLog();
    qCDebug(lcApp) << "sslLibraryBuildVersionString" << QSslSocket::sslLibraryBuildVersionString();
    qCDebug(lcApp) << "supportsSsl" << (QSslSocket::supportsSsl() ? "true" : "false");
    qCDebug(lcApp) << "sslLibraryVersionString" << QSslSocket::sslLibraryVersionString();

    ScreenManager::instance()->init(QGuiApplication::screenAt(QCursor::pos()));
    TranslateManager::instance()->init();

    auto* styleSheet = new QString(AppConfig::loadApplicationStyleSheet());
    app->setStyleSheet(*styleSheet);

    MainWindow* window = nullptr;
    try {
        window = new MainWindow(nullptr);
    } catch (const std::runtime_error& error) {
        // The player cannot run without libmpv: say so instead of vanishing.
        qCCritical(lcApp) << "MainWindow:" << error.what();
        QMessageBox::critical(nullptr, AppConfig::APP_NAME,
                              QCoreApplication::translate("main", "The video player could not be started: %1")
                                  .arg(QString::fromLocal8Bit(error.what())));
        guard.detach();
        delete styleSheet;
        delete app;
        return 1;
    }
    window->show();
    window->resize(AppConfig::rate(QSize(1100, 741)));
    DownloadManager::instance()->downloadLastVersion(DownloadManager::TAG_START, 5);
    LicenseManager::instance()->restore();
    window->startUp(QCoreApplication::arguments().mid(1));

    QObject::connect(app, &QCoreApplication::aboutToQuit, [&guard]() { guard.detach(); });
    const int result = app->exec();

    delete styleSheet;
    delete app;
    return result;
}
