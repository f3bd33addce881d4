#ifndef FILEMANAGER_H
#define FILEMANAGER_H

#include <QObject>
#include <QString>

// Locates the external programs the application runs.
class FileManager : public QObject
{
    Q_OBJECT
public:
    static FileManager* instance();

    // A tool shipped next to the executable wins over one on PATH. Returns the
    // path next to the executable when the tool is found nowhere, so that the
    // failure names the expected place.
    QString findTool(const QString& name) const;

private:
    explicit FileManager(QObject* parent = nullptr);
};

#endif // FILEMANAGER_H
