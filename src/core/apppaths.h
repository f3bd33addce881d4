#ifndef APPPATHS_H
#define APPPATHS_H

#include <QString>

// The program's standard places on disk.
class AppPaths
{
public:
    // The user's pictures folder + "/" + name, created when missing.
    static QString writePath(const QString& name);
    // The folder of the running executable.
    static QString dirPath();
    // The first temporary location + "/" + name, created when missing.
    static QString tempPath(const QString& name);
    // path when it is a folder that exists (or can be made) and takes files;
    // otherwise the default export folder.
    static QString dirByCheck(const QString& path);
    static bool isUsableDir(const QString& path);
};

#endif // APPPATHS_H
