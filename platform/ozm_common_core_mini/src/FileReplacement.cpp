#include "FileReplacement.h"

#include <QFileInfo>
#include <QSaveFile>

#ifdef Q_OS_UNIX
#include <sys/stat.h>
#include <unistd.h>
#endif

namespace ozm {

namespace {

enum class Target
{
    Absent,
    OwnFile, ///< A new file in its place would be the same to everybody.
    SharedFile,
    Device,
    Refused
};

#ifdef Q_OS_UNIX
Target targetAt(const QString &path)
{
    struct stat entry = {};
    if (::stat(QFile::encodeName(path).constData(), &entry) != 0)
        return Target::Absent;
    if (S_ISCHR(entry.st_mode) || S_ISBLK(entry.st_mode))
        return Target::Device;
    if (!S_ISREG(entry.st_mode))
        return Target::Refused;
    const bool isOwn = entry.st_nlink == 1 && entry.st_uid == ::geteuid() && entry.st_gid == ::getegid();
    return isOwn ? Target::OwnFile : Target::SharedFile;
}
#else
Target targetAt(const QString &path)
{
    const QFileInfo entry(path);
    if (!entry.exists())
        return Target::Absent;
    return entry.isFile() ? Target::OwnFile : Target::Refused;
}
#endif

bool writeAll(QFileDevice &file, const QByteArray &bytes)
{
    return file.write(bytes) == bytes.size() && file.flush();
}

bool writeToDevice(const QString &path, const QByteArray &bytes)
{
    QFile device(path);
    return device.open(QIODevice::WriteOnly | QIODevice::Unbuffered) && writeAll(device, bytes);
}

bool writeBeside(const QString &path, const QByteArray &bytes)
{
    QSaveFile file(path);
    return file.open(QIODevice::WriteOnly) && writeAll(file, bytes) && file.commit();
}

/// The old content goes back when the new one does not fit: its own blocks are there for it.
bool writeOver(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadWrite | QIODevice::ExistingOnly))
        return false;
    const QByteArray old = file.readAll();
    if (old.size() == file.size() && file.seek(0) && writeAll(file, bytes) && file.resize(bytes.size()))
        return true;
    if (file.seek(0) && writeAll(file, old))
        file.resize(old.size());
    return false;
}

} // namespace

bool replaceFile(const QString &path, const QByteArray &bytes)
{
    if (path.contains(QChar::Null))
        return false;
    switch (targetAt(path)) {
    case Target::Absent:
        return writeBeside(path, bytes);
    case Target::OwnFile:
        // A read-only file in a writable folder is not replaced: a plain write would not do that either.
        return QFileInfo(path).isWritable() && (writeBeside(path, bytes) || writeOver(path, bytes));
    case Target::SharedFile:
        return writeOver(path, bytes);
    case Target::Device:
        return writeToDevice(path, bytes);
    case Target::Refused:
        break;
    }
    return false;
}

} // namespace ozm
