#include "dialogs/SaveProbe.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>

#ifdef Q_OS_UNIX
#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#endif

using namespace Qt::StringLiterals;

namespace ozm {

namespace {

// As many as Linux follows.
constexpr int kMostLinks = 40;

/// The file that a write to @p path would create: a dangling link is followed to its target.
QString targetOf(const QString &path)
{
    QString target = path;
    for (int i = 0; i < kMostLinks; ++i) {
        const QFileInfo info(target);
        if (!info.isSymbolicLink())
            return target;
        target = info.symLinkTarget();
    }
    return {};
}

bool canBeOpened(const QString &path)
{
    if (mayBlock(path))
        return false;
    // Appending is to seek, which a device cannot; nor can it be cut short by a plain opening.
    const QFileInfo entry(path);
    const bool isDevice = entry.exists() && !entry.isFile() && !entry.isDir();
    QFile file(path);
    return file.open((isDevice ? QIODevice::WriteOnly : QIODevice::Append) | QIODevice::ExistingOnly);
}

#ifdef Q_OS_LINUX
/// A file without a name shows that one can be made, and leaves no trace even in the folder's times. False
/// where the file system has no such files; that is then asked the long way.
bool canMakeUnnamed(const QString &path)
{
    const QByteArray name = QFile::encodeName(path);
    struct stat entry = {};
    // The name is not part of that trial: it may still be too long.
    if (::lstat(name.constData(), &entry) == 0 || errno != ENOENT)
        return false;
    const QByteArray folder = QFile::encodeName(QFileInfo(path).absolutePath());
    const int file = ::open(folder.constData(), O_TMPFILE | O_WRONLY | O_CLOEXEC, 0600);
    if (file < 0)
        return false;
    ::close(file);
    return true;
}
#else
bool canMakeUnnamed(const QString &)
{
    return false;
}
#endif

bool canBeMade(const QString &path)
{
    if (path.isEmpty())
        return false;
    if (canMakeUnnamed(path))
        return true;
    QFile file(path);
    // Only what was not there is opened, so that only what this made is removed.
    return file.open(QIODevice::WriteOnly | QIODevice::NewOnly) && file.remove();
}

} // namespace

bool mayBlock(const QString &path)
{
#ifdef Q_OS_UNIX
    struct stat entry = {};
    return ::stat(QFile::encodeName(path).constData(), &entry) == 0 && S_ISFIFO(entry.st_mode);
#else
    return path.startsWith(R"(\\.\pipe\)"_L1, Qt::CaseInsensitive);
#endif
}

QString notWrittenText(const QString &path, const QString &reason)
{
    const QString text = QCoreApplication::translate("SaveProbe", "\"%1\" cannot be written.")
                             .arg(QDir::toNativeSeparators(path));
    return reason.isEmpty() ? text : u"%1 (%2)"_s.arg(text, reason);
}

SaveProbe probeSave(const QString &path)
{
    // The system would stop reading at a null character, and answer for another file.
    if (path.contains(QChar::Null))
        return SaveProbe::NotCreatable;
    if (QFile::exists(path))
        return canBeOpened(path) ? SaveProbe::Writable : SaveProbe::Locked;
    return canBeMade(targetOf(path)) ? SaveProbe::Writable : SaveProbe::NotCreatable;
}

} // namespace ozm
