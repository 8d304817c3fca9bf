#include <ozm_common_core_mini/PathUtils.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>

#ifdef Q_OS_UNIX
#include <sys/stat.h>
#endif

namespace ozm {

namespace {

#ifdef Q_OS_UNIX
// One call where QFileInfo, which also answers for resources and caches, costs about as much again.
PathUtils::Kind kindOnDisk(const QString &path)
{
    struct stat entry = {};
    if (::stat(QFile::encodeName(path).constData(), &entry) != 0)
        return PathUtils::Kind::Missing;
    if (S_ISDIR(entry.st_mode))
        return PathUtils::Kind::Folder;
    return S_ISREG(entry.st_mode) ? PathUtils::Kind::File : PathUtils::Kind::Other;
}
#else
PathUtils::Kind kindOnDisk(const QString &path)
{
    const QFileInfo entry(path);
    if (entry.isDir())
        return PathUtils::Kind::Folder;
    if (entry.isFile())
        return PathUtils::Kind::File;
    return entry.exists() ? PathUtils::Kind::Other : PathUtils::Kind::Missing;
}
#endif

bool isSeparator(QChar c)
{
    return c == u'/' || c == QDir::separator();
}

} // namespace

PathUtils::Kind PathUtils::kind(const QString &path)
{
    // The system would stop reading at a null character, and answer for another path.
    if (path.isEmpty() || path.contains(QChar(u'\0')))
        return Kind::Missing;
    return kindOnDisk(path);
}

bool PathUtils::exists(const QString &path)
{
    return kind(path) != Kind::Missing;
}

bool PathUtils::isExistingFile(const QString &path)
{
    return kind(path) == Kind::File;
}

bool PathUtils::isExistingDir(const QString &path)
{
    return kind(path) == Kind::Folder;
}

bool PathUtils::isDirectory(const QString &path)
{
    return kind(path) == Kind::Folder;
}

bool PathUtils::hasExtension(QStringView path, QStringView extension)
{
    for (qsizetype i = path.size(); i-- > 0;) {
        if (path[i] == u'.')
            return path.sliced(i + 1).compare(extension, Qt::CaseInsensitive) == 0;
        if (isSeparator(path[i]))
            break;
    }
    return extension.isEmpty();
}

} // namespace ozm
