#include "FileReplacement.h"

#include <QFileInfo>
#include <QSaveFile>

#ifdef Q_OS_UNIX
#include <sys/stat.h>
#include <unistd.h>
#else
#include <io.h>
#endif

#include <cerrno>

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

/// False when the disk fails to store what was written. Some file systems cannot be asked, and are believed.
bool isStored(const QFileDevice &file)
{
#ifdef Q_OS_UNIX
    while (::fsync(file.handle()) != 0) {
        if (errno != EINTR)
            return errno != EIO && errno != ENOSPC && errno != EDQUOT;
    }
    return true;
#else
    return ::_commit(file.handle()) == 0 || errno == EBADF;
#endif
}

bool writeToDevice(const QString &path, const QByteArray &bytes)
{
    QFile device(path);
    return device.open(QIODevice::WriteOnly | QIODevice::Unbuffered) && writeAll(device, bytes);
}

enum class Beside
{
    Written,
    Impossible, ///< The folder takes no new file, or not in the place of the former one.
    Failed
};

Beside writeBeside(const QString &path, const QByteArray &bytes)
{
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        return Beside::Impossible;
    if (!writeAll(file, bytes) || !isStored(file)) {
        file.cancelWriting();
        return Beside::Failed;
    }
    return file.commit() ? Beside::Written : Beside::Impossible;
}

/// The old content goes back when the new one does not fit: its own blocks are there for it.
bool writeOver(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadWrite | QIODevice::ExistingOnly))
        return false;
    const QByteArray old = file.readAll();
    // Without all of the old content nothing could be put back.
    if (file.error() != QFileDevice::NoError || old.size() != file.size())
        return false;
    const auto put = [&file](const QByteArray &content) {
        return file.seek(0) && writeAll(file, content) &&
               (file.size() == content.size() || file.resize(content.size())) && isStored(file);
    };
    if (put(bytes))
        return true;
    (void)put(old);
    return false;
}

} // namespace

bool replaceFile(const QString &path, const QByteArray &bytes)
{
    if (path.contains(QChar::Null))
        return false;
    switch (targetAt(path)) {
    case Target::Absent:
        return writeBeside(path, bytes) == Beside::Written;
    case Target::OwnFile: {
        // A read-only file in a writable folder is not replaced: a plain write would not do that either.
        if (!QFileInfo(path).isWritable())
            return false;
        // A disk that is full or fails must not get at the only copy.
        const Beside beside = writeBeside(path, bytes);
        return beside == Beside::Written || (beside == Beside::Impossible && writeOver(path, bytes));
    }
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
