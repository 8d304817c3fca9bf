#include "internal/FolderReader.h"

#include <QDirIterator>
#include <QFile>

#ifdef Q_OS_LINUX
#include <cerrno>
#include <dirent.h>
#include <fcntl.h>
#include <unistd.h>
#endif

namespace ozm::msreader::internal {

#ifdef Q_OS_LINUX

namespace {

// Holds some 700 entries, more than most folders have, and stays below what the allocator maps anew.
constexpr std::size_t kFirstPiece = 32UL * 1024;
// For the rest of a large folder: about 100,000 entries a call, where the C library takes 700.
constexpr std::size_t kLargePiece = 4UL * 1024 * 1024;

bool isDotOrDotDot(std::string_view name)
{
    return name == "." || name == "..";
}

} // namespace

class FolderReader::Private
{
public:
    explicit Private(const QString &folder)
    {
        // A null character would end the name early, and another folder would be read.
        if (folder.contains(QChar(u'\0')))
            return;
        m_descriptor =
            ::open(QFile::encodeName(folder).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC | O_NONBLOCK);
        m_isFolder = m_descriptor >= 0 || errno == EACCES || errno == EMFILE || errno == ENFILE;
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
        } while (isDotOrDotDot(bytes()) || !QByteArrayView(bytes()).isValidUtf8());
        return true;
    }

    QString name() const { return QString::fromUtf8(bytes()); }

    EntryKind kind() const
    {
        switch (m_entry->d_type) {
        case DT_DIR:
            return EntryKind::Folder;
        case DT_REG:
            return EntryKind::File;
        case DT_LNK:
        case DT_UNKNOWN:
            return EntryKind::Unsettled;
        default:
            return EntryKind::Other;
        }
    }

    bool isFolder() const { return m_isFolder; }
    bool isComplete() const { return m_isComplete; }

private:
    std::string_view bytes() const { return m_entry->d_name; }

    bool fill()
    {
        if (m_descriptor < 0 || m_isComplete)
            return false;
        const std::size_t size = m_piece ? kLargePiece : kFirstPiece;
        if (size != m_size) {
            m_piece = std::make_unique_for_overwrite<char[]>(size);
            m_size = size;
        }
        const auto count = ::getdents64(m_descriptor, m_piece.get(), m_size);
        m_isComplete = count == 0;
        m_position = 0;
        m_filled = count > 0 ? static_cast<std::size_t>(count) : 0;
        return count > 0;
    }

    int m_descriptor = -1;
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
    explicit Private(const QString &folder)
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

    QString name() const { return m_entries.fileName(); }

    EntryKind kind() const
    {
        const QFileInfo entry = m_entries.fileInfo();
        if (entry.isSymLink() || entry.isJunction())
            return EntryKind::Unsettled;
        if (entry.isDir())
            return EntryKind::Folder;
        return entry.isFile() ? EntryKind::File : EntryKind::Other;
    }

    bool isFolder() const { return QFileInfo(m_folder.path()).isDir(); }
    bool isComplete() const { return m_folder.isReadable(); }

private:
    QDir m_folder;
    QDirIterator m_entries;
};

#endif

FolderReader::FolderReader(const QString &folder)
    : d(std::make_unique<Private>(folder))
{}

FolderReader::~FolderReader() = default;

bool FolderReader::next()
{
    return d->next();
}

QString FolderReader::name() const
{
    return d->name();
}

EntryKind FolderReader::kind() const
{
    return d->kind();
}

bool FolderReader::isFolder() const
{
    return d->isFolder();
}

bool FolderReader::isComplete() const
{
    return d->isComplete();
}

} // namespace ozm::msreader::internal
