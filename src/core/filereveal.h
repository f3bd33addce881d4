#ifndef FILEREVEAL_H
#define FILEREVEAL_H

#include <QStringList>

// Shows files to the user in the desktop's file manager: over D-Bus
// (org.freedesktop.FileManager1.ShowItems), else by opening their folder;
// on macOS through the Finder. Never blocks and fails quietly.
class FileReveal
{
public:
    static void reveal(const QStringList& paths);
};

#endif // FILEREVEAL_H
