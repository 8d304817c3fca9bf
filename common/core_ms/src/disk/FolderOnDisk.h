#pragma once

#include "disk/DiskEntry.h"

#include <QLatin1StringView>
#include <QStringView>
#include <QVarLengthArray>

namespace ozm::disk {

/**
 * Asks for a path and for entries below it, one system call a question.
 *
 * The path is brought into the system's encoding once, and no text is built for an entry: beside a question
 * that the system answers from its cache, both would show.
 *
 *     const FolderOnDisk folder(path);
 *     if (folder.holdsFile("analysis.tdf"_L1) && folder.holdsFile("analysis.tdf_bin"_L1))
 *         ...
 *
 * Names below the folder may hold slashes. One object is for one thread at a time.
 */
class FolderOnDisk
{
public:
    explicit FolderOnDisk(const QString &path);

    /// Of the path itself.
    [[nodiscard]] DiskEntry entry() const;
    [[nodiscard]] EntryKind kind() const { return entry().kind; }

    /// Of the entry @p name below the path.
    [[nodiscard]] EntryKind kindOf(QLatin1StringView name) const;
    [[nodiscard]] EntryKind kindOf(QStringView folder, QLatin1StringView name = {}) const;
    [[nodiscard]] bool holdsFile(QLatin1StringView name) const { return kindOf(name) == EntryKind::File; }
    [[nodiscard]] bool holdsFolder(QLatin1StringView name) const { return kindOf(name) == EntryKind::Folder; }

    /// Returns true when the rights of the folder, which must exist, allow to list it.
    [[nodiscard]] bool mayBeListed() const;

private:
#ifdef Q_OS_UNIX
    void add(char c) const
    {
        m_bytes.append(c);
    }
    void add(QLatin1StringView text) const
    {
        m_bytes.append(text.data(), text.size());
    }
    void add(QStringView text) const;
    [[nodiscard]] DiskEntry ask() const;
    /// Takes what a question added off again.
    void reset() const
    {
        m_bytes.resize(m_size);
    }

    mutable QVarLengthArray<char, 1024> m_bytes;
    qsizetype m_size = 0;
    bool m_isText = true;
#else
    const QString m_path;
#endif
};

} // namespace ozm::disk
