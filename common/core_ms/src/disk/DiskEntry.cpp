#include "disk/DiskEntry.h"

#include "disk/FolderOnDisk.h"

#include <QDir>
#include <QFileInfo>

#ifdef Q_OS_UNIX
#include <cerrno>
#endif

namespace ozm::disk {

namespace {

bool isSeparator(QChar c)
{
    return c == u'/' || c == QDir::separator();
}

} // namespace

DiskEntry entryAt(const QString &path)
{
    return FolderOnDisk(path).entry();
}

EntryKind kindAt(const QString &path)
{
    return FolderOnDisk(path).kind();
}

QString withoutSlashAtEnd(const QString &path)
{
    qsizetype size = path.size();
    while (size > 1 && isSeparator(path.at(size - 1)))
        --size;
    return path.first(size);
}

#ifdef Q_OS_UNIX
Obstacle obstacleOf(int systemError)
{
    switch (systemError) {
    case 0:
        return Obstacle::None;
    case ENOENT:
    case ENOTDIR:
        return Obstacle::Missing;
    case EACCES:
    case EPERM:
        return Obstacle::Closed;
    case ENAMETOOLONG:
        return Obstacle::TooLong;
    case ELOOP:
        return Obstacle::LinkLoop;
    case EILSEQ:
        return Obstacle::NotText;
    case EMFILE:
    case ENFILE:
        return Obstacle::TooManyOpen;
    default:
        return Obstacle::NotAnswering;
    }
}
#endif

} // namespace ozm::disk
