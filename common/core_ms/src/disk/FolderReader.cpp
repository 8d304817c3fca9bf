#include "disk/FolderReader.h"

#include <QDirIterator>
#include <QFile>

#ifdef Q_OS_LINUX
#include <cerrno>
#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#endif

namespace ozm::disk {

#ifdef Q_OS_LINUX

namespace {

// Holds some 700 entries, more than most folders have, and stays below what the allocator maps anew.
constexpr std::size_t kFirstPiece = 32UL * 1024;
// Holds some 50 entries.
constexpr std::size_t kSmallPiece = 2UL * 1024;
// For the rest of a large folder: about 100,000 entries a call, where the C library takes 700.
constexpr std::size_t kLargePiece = 4UL * 1024 * 1024;
constexpr std::size_t kLongestEntry = sizeof(dirent64);

bool isDotOrDotDot(std::string_view name)
{
    return name == "." || name == "..";
}

/// The slash and the dot need the right to enter the folder, without which its listing is of no use. Asking
/// for them here spares a question about it.
QByteArray enterable(const QString &folder)
{
    return QFile::encodeName(folder) + "/.";
}

} // namespace

class FolderReader::Private
{
public:
    Private(const QString &folder, FirstPiece piece)
        : m_firstPiece(piece == FirstPiece::Small ? kSmallPiece : kFirstPiece)
    {
        // A null character would end the name early, and another folder would be read.
        if (folder.isEmpty() || folder.contains(QChar(u'\0'))) {
            m_obstacle = folder.isEmpty() ? Obstacle::Missing : Obstacle::NotText;
            return;
        }
        m_descriptor = ::open(enterable(folder).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC | O_NONBLOCK);
        m_obstacle = m_descriptor >= 0 ? Obstacle::None : obstacleOf(errno);
        m_isFolder =
            m_descriptor >= 0 || m_obstacle == Obstacle::Closed || m_obstacle == Obstacle::TooManyOpen;
    }

    ~Private()
    {
        if (m_descriptor >= 0)
            ::close(m_descriptor);
    }

    bool next()
    {
        do {
            if (m_position == m_filled && !fill())
                return false;
            m_entry = reinterpret_cast<const dirent64 *>(m_piece.get() + m_position);
            m_position += m_entry->d_reclen;
        } while (isDotOrDotDot(bytes()));
        return true;
    }

    bool isText() const { return QByteArrayView(bytes()).isValidUtf8(); }
    QString name() const { return QString::fromUtf8(bytes()); }

    std::optional<EntryKind> kind() const
    {
        switch (m_entry->d_type) {
        case DT_DIR:
            return EntryKind::Folder;
        case DT_REG:
            return EntryKind::File;
        case DT_LNK:
        case DT_UNKNOWN:
            return std::nullopt;
        default:
            return EntryKind::Other;
        }
    }

    DiskEntry entry() const
    {
        struct stat found = {};
        if (::fstatat(m_descriptor, m_entry->d_name, &found, 0) != 0)
            return {EntryKind::Missing, -1, obstacleOf(errno)};
        if (S_ISREG(found.st_mode))
            return {EntryKind::File, qint64(found.st_size), Obstacle::None};
        return {S_ISDIR(found.st_mode) ? EntryKind::Folder : EntryKind::Other, -1, Obstacle::None};
    }

    bool isLink() const
    {
        struct stat found = {};
        return m_entry->d_type == DT_LNK ||
               (m_entry->d_type == DT_UNKNOWN &&
                ::fstatat(m_descriptor, m_entry->d_name, &found, AT_SYMLINK_NOFOLLOW) == 0 &&
                S_ISLNK(found.st_mode));
    }

    bool isFolder() const { return m_isFolder; }
    bool isComplete() const { return m_isComplete; }
    Obstacle obstacle() const { return m_obstacle; }
    bool isPieceFull() const
    {
        return m_piece && m_position == m_filled && m_filled + kLongestEntry > m_size;
    }

private:
    std::string_view bytes() const { return m_entry->d_name; }

    bool fill()
    {
        if (m_descriptor < 0 || m_isComplete)
            return false;
        // A piece that had room left is the only one, most often: the next call finds the end.
        const std::size_t size = isPieceFull() ? kLargePiece : m_firstPiece;
        if (size > m_size) {
            m_piece = std::make_unique_for_overwrite<char[]>(size);
            m_size = size;
        }
        const auto count = ::getdents64(m_descriptor, m_piece.get(), m_size);
        m_isComplete = count == 0;
        if (count < 0)
            m_obstacle = obstacleOf(errno);
        m_position = 0;
        m_filled = count > 0 ? static_cast<std::size_t>(count) : 0;
        return count > 0;
    }

    const std::size_t m_firstPiece;
    int m_descriptor = -1;
    Obstacle m_obstacle = Obstacle::None;
    bool m_isFolder = false;
    bool m_isComplete = false;
    std::unique_ptr<char[]> m_piece;
    std::size_t m_size = 0;
    std::size_t m_filled = 0;
    std::size_t m_position = 0;
    const dirent64 *m_entry = nullptr;
};

#else

class FolderReader::Private
{
public:
    Private(const QString &folder, FirstPiece)
        : m_folder(folder)
        , m_entries(folder, QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot)
    {}

    bool next()
    {
        if (!m_entries.hasNext())
            return false;
        m_entries.next();
        return true;
    }

    bool isText() const { return true; }
    QString name() const { return m_entries.fileName(); }

    std::optional<EntryKind> kind() const
    {
        const QFileInfo entry = m_entries.fileInfo();
        if (entry.isSymLink() || entry.isJunction())
            return std::nullopt;
        if (entry.isDir())
            return EntryKind::Folder;
        return entry.isFile() ? EntryKind::File : EntryKind::Other;
    }

    DiskEntry entry() const { return entryAt(m_entries.filePath()); }

    bool isLink() const
    {
        const QFileInfo entry = m_entries.fileInfo();
        return entry.isSymLink() || entry.isJunction();
    }

    bool isFolder() const { return QFileInfo(m_folder.path()).isDir(); }
    bool isComplete() const { return m_folder.isReadable(); }
    bool isPieceFull() const { return false; }

    Obstacle obstacle() const
    {
        if (isComplete())
            return Obstacle::None;
        return m_folder.exists() ? Obstacle::Closed : Obstacle::Missing;
    }

private:
    QDir m_folder;
    QDirIterator m_entries;
};

#endif

FolderReader::FolderReader(const QString &folder, FirstPiece piece)
    : d(std::make_unique<Private>(folder, piece))
{}

FolderReader::~FolderReader() = default;

bool FolderReader::next()
{
    return d->next();
}

bool FolderReader::nextNamed()
{
    while (d->next()) {
        if (d->isText())
            return true;
    }
    return false;
}

bool FolderReader::isText() const
{
    return d->isText();
}

QString FolderReader::name() const
{
    return d->name();
}

std::optional<EntryKind> FolderReader::kind() const
{
    return d->kind();
}

DiskEntry FolderReader::entry() const
{
    return d->entry();
}

bool FolderReader::isLink() const
{
    return d->isLink();
}

bool FolderReader::isFolder() const
{
    return d->isFolder();
}

bool FolderReader::isComplete() const
{
    return d->isComplete();
}

Obstacle FolderReader::obstacle() const
{
    return d->obstacle();
}

bool FolderReader::isPieceFull() const
{
    return d->isPieceFull();
}

} // namespace ozm::disk
