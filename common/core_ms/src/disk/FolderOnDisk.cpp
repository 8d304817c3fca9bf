#include "disk/FolderOnDisk.h"

#include <QFile>
#include <QFileInfo>

#include <algorithm>

#ifdef Q_OS_UNIX
#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#endif

namespace ozm::disk {

namespace {

#ifdef Q_OS_UNIX
bool isAscii(QStringView text)
{
    return std::ranges::all_of(text, [](QChar c) { return c.unicode() < 0x80; });
}

EntryKind kindOfMode(mode_t mode)
{
    if (S_ISDIR(mode))
        return EntryKind::Folder;
    return S_ISREG(mode) ? EntryKind::File : EntryKind::Other;
}
#else
DiskEntry lookUp(const QString &path)
{
    if (path.isEmpty() || path.contains(QChar(u'\0')))
        return {EntryKind::Missing, -1, Obstacle::NotText};
    const QFileInfo info(path);
    if (info.isDir())
        return {EntryKind::Folder, -1, Obstacle::None};
    if (info.isFile())
        return {EntryKind::File, info.size(), Obstacle::None};
    return info.exists() ? DiskEntry{EntryKind::Other, -1, Obstacle::None} : DiskEntry();
}
#endif

} // namespace

#ifdef Q_OS_UNIX

FolderOnDisk::FolderOnDisk(const QString &path)
{
    add(path);
    m_size = m_bytes.size();
    // The system would stop reading at a null character, and answer for another path; so would the encoder's
    // stand-in for half a character.
    m_isText = m_size > 0 && !m_bytes.contains('\0') && path.isValidUtf16();
}

void FolderOnDisk::add(QStringView text) const
{
    if (!isAscii(text)) {
        const QByteArray encoded = QFile::encodeName(text.toString());
        m_bytes.append(encoded.constData(), encoded.size());
        return;
    }
    const qsizetype before = m_bytes.size();
    m_bytes.resize(before + text.size());
    std::ranges::transform(text, m_bytes.begin() + before, [](QChar c) { return c.toLatin1(); });
}

DiskEntry FolderOnDisk::ask() const
{
    if (!m_isText) {
        reset();
        return {EntryKind::Missing, -1, m_size == 0 ? Obstacle::Missing : Obstacle::NotText};
    }
    add('\0');
    struct stat found = {};
    const bool isThere = ::stat(m_bytes.constData(), &found) == 0;
    const int failure = errno;
    reset();
    if (!isThere)
        return {EntryKind::Missing, -1, obstacleOf(failure)};
    const EntryKind kind = kindOfMode(found.st_mode);
    return {kind, kind == EntryKind::File ? qint64(found.st_size) : -1, Obstacle::None};
}

DiskEntry FolderOnDisk::entry() const
{
    return ask();
}

EntryKind FolderOnDisk::kindOf(QLatin1StringView name) const
{
    add('/');
    add(name);
    return ask().kind;
}

EntryKind FolderOnDisk::kindOf(QStringView folder, QLatin1StringView name) const
{
    add('/');
    add(folder);
    add(name);
    return ask().kind;
}

bool FolderOnDisk::mayBeListed() const
{
    add('\0');
    bool may = m_isText && ::faccessat(AT_FDCWD, m_bytes.constData(), R_OK, AT_EACCESS) == 0;
    if (!may && m_isText && errno != EACCES) {
        // Some sandboxes refuse the question itself.
        const int folder = ::open(m_bytes.constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC | O_NONBLOCK);
        may = folder >= 0;
        if (may)
            ::close(folder);
    }
    reset();
    return may;
}

#else

FolderOnDisk::FolderOnDisk(const QString &path)
    : m_path(path)
{}

DiskEntry FolderOnDisk::entry() const
{
    return lookUp(m_path);
}

EntryKind FolderOnDisk::kindOf(QLatin1StringView name) const
{
    return lookUp(m_path + u'/' + name).kind;
}

EntryKind FolderOnDisk::kindOf(QStringView folder, QLatin1StringView name) const
{
    return lookUp(m_path + u'/' + folder + name).kind;
}

bool FolderOnDisk::mayBeListed() const
{
    return QFileInfo(m_path).isReadable();
}

#endif

} // namespace ozm::disk
