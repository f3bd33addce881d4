#include "filereveal.h"

#include "logcategories.h"

#include <QCoreApplication>
#include <QDebug>
#include <QDesktopServices>
#include <QFileInfo>
#include <QUrl>

#ifdef Q_OS_MACOS
#include <QFile>
#include <QProcess>
#else
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#endif

void FileReveal::reveal(const QStringList& paths)
{
    if (paths.isEmpty()) {
        return;
    }
#ifdef Q_OS_MACOS
    QStringList items;
    for (const QString& path : paths) {
        items.append(QStringLiteral("\"%1\" as POSIX file").arg(path));
    }
    const QString command
        = QStringLiteral("osascript -e 'tell application \"Finder\" to reveal {%1} activate'")
              .arg(items.join(QStringLiteral(", ")));
    const QString script = QStringLiteral("/tmp/selectfile.sh");
    QFile file(script);
    if (file.open(QIODevice::WriteOnly | QIODevice::Truncate)) {
        file.write(command.toUtf8());
        file.close();
    }
    qCDebug(lcCore) << "openfileselected:" << command;
    QProcess::startDetached(QStringLiteral("/bin/sh"), {script});
#else
    QStringList uris;
    for (const QString& path : paths) {
        uris.append(QUrl::fromLocalFile(path).toString(QUrl::FullyEncoded));
    }
    qCDebug(lcCore) << "openfileselected:" << uris;
    const QUrl folder = QUrl::fromLocalFile(QFileInfo(paths.first()).absolutePath());
    QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected()) {
        QDesktopServices::openUrl(folder);
        return;
    }
    QDBusMessage call = QDBusMessage::createMethodCall(
        QStringLiteral("org.freedesktop.FileManager1"), QStringLiteral("/org/freedesktop/FileManager1"),
        QStringLiteral("org.freedesktop.FileManager1"), QStringLiteral("ShowItems"));
    call << uris << QString();
    // Asynchronous: a file manager that is slow to start must not freeze the window.
    auto* watcher = new QDBusPendingCallWatcher(bus.asyncCall(call, 5000), QCoreApplication::instance());
    QObject::connect(watcher, &QDBusPendingCallWatcher::finished, [folder](QDBusPendingCallWatcher* w) {
        if (w->isError()) {
            // No file manager service: open the folder itself, quietly if that fails too.
            qCDebug(lcCore) << "openfileselected: file manager unavailable:" << w->error().message();
            QDesktopServices::openUrl(folder);
        }
        w->deleteLater();
    });
#endif
}
