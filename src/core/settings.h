#ifndef SETTINGS_H
#define SETTINGS_H

#include <QMap>
#include <QObject>
#include <QString>
#include <QVariant>

// Both settings stores: the persistent one (native QSettings, user scope,
// organisation "Glimmer") and the one that lives for the current run only.
// Every key's default is a row of one table in settings.cpp; a key that is
// read with different defaults by different readers, on purpose, has a row
// per reader.
class Settings : public QObject
{
    Q_OBJECT
public:
    enum Reader {
        AnyReader = 0,
        // The export worker writes PNG when no format was ever chosen, while
        // every panel shows and offers JPG.
        ExportWorker = 1,
    };
    Q_ENUM(Reader)

    static Settings* instance();
    // The table's default for key as reader reads it; an invalid QVariant
    // for a key the table does not know.
    static QVariant defaultValue(const QString& key, Reader reader = AnyReader);

    // Persistent store. value() falls back to the table's default, read() to
    // the caller's. setValue() writes at once and emits valueWritten().
    QVariant value(const QString& key, Reader reader = AnyReader) const;
    QVariant read(const QString& key, const QVariant& fallback) const;
    bool contains(const QString& key) const;
    void setValue(const QString& key, const QVariant& value);

    // The store of the current run. A null value reads as the default.
    QVariant inAppValue(const QString& key, Reader reader = AnyReader) const;
    QVariant readInApp(const QString& key, const QVariant& fallback) const;
    void setInAppValue(const QString& key, const QVariant& value);

signals:
    // A persistent value was written (also when it did not change).
    void valueWritten(QString key);

private:
    explicit Settings(QObject* parent = nullptr);

    QMap<QString, QVariant> m_inApp;
};

#endif // SETTINGS_H
