#ifndef OUTPUTFILES_H
#define OUTPUTFILES_H

#include <QCoreApplication>
#include <QString>
#include <QStringList>

// Moves finished pictures from the export's temporary folder into the output
// folder under names that never replace an existing file.
class OutputFiles
{
    Q_DECLARE_TR_FUNCTIONS(OutputFiles)
public:
    // dir/stem.ext, or dir/stem(n).ext with the first n that is free.
    static QString freeName(const QString& dir, const QString& stem, const QString& ext);
    // Moves each file into dest, else into fallback. A file that can be moved
    // nowhere stays where it is (it is the only copy) and is listed as it is;
    // every failure adds one text to *errors. Returns the pictures' paths.
    static QStringList moveInto(const QStringList& tempPaths, const QString& dest, const QString& fallback,
                                QStringList* errors = nullptr);
};

#endif // OUTPUTFILES_H
