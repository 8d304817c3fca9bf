#include "internal/AcqDataSearch.h"

#include "internal/BrukerFolder.h"
#include "internal/DetectionScope.h"
#include "internal/FormatTable.h"

#include <QFileInfo>
#include <QHash>

#include <algorithm>
#include <deque>
#include <optional>

using namespace Qt::StringLiterals;

namespace ozm::msreader::internal {

namespace {

constexpr auto kAcqData = "AcqData"_L1;

struct Candidate
{
    QString path;
    bool isNamedD;
    bool isSettled; ///< Known to be a folder, and no link to one.
};

/**
 * The folders read so far, and whether each holds "AcqData".
 *
 * Only a link can lead to a folder for a second time, so folders are told apart, which costs several system
 * calls each, from the first link on.
 */
class ReadFolders
{
public:
    /// Nothing for a folder that was not read yet.
    std::optional<bool> holdsAcqData(const Candidate &candidate)
    {
        if (candidate.isSettled && !m_hasLinks)
            return std::nullopt;
        for (const auto &[path, holds] : m_beforeLinks)
            m_read.insert(QFileInfo(path).canonicalFilePath(), holds);
        m_beforeLinks.clear();
        m_hasLinks = true;
        const auto known = m_read.constFind(QFileInfo(candidate.path).canonicalFilePath());
        return known != m_read.cend() ? std::optional(*known) : std::nullopt;
    }

    void add(const QString &path, bool holds)
    {
        if (m_hasLinks)
            m_read.insert(QFileInfo(path).canonicalFilePath(), holds);
        else
            m_beforeLinks.append({path, holds});
    }

private:
    bool m_hasLinks = false;
    QList<std::pair<QString, bool>> m_beforeLinks;
    QHash<QString, bool> m_read;
};

bool listsAcqData(const QString &folder, const disk::FolderListing &listing)
{
    return std::ranges::any_of(listing.folders, [&folder](const disk::FolderListing::Entry &entry) {
        return entry.name.compare(kAcqData, Qt::CaseInsensitive) == 0 && disk::leadsToFolder(folder, entry);
    });
}

class Walk
{
public:
    explicit Walk(const QString &folder)
        : m_root(folder)
    {
        m_waiting.push_back({folder, true, true});
    }

    bool findsAcqData()
    {
        while (!m_waiting.empty()) {
            const Candidate candidate = std::move(m_waiting.front());
            m_waiting.pop_front();
            if (decides(candidate))
                return true;
        }
        return false;
    }

private:
    bool decides(const Candidate &candidate)
    {
        if (!candidate.isSettled && disk::kindAt(candidate.path) != EntryKind::Folder)
            return false;
        // The same folder may count under one name and not under another.
        if (const std::optional<bool> holds = m_read.holdsAcqData(candidate))
            return *holds && candidate.isNamedD;
        return read(candidate) && candidate.isNamedD;
    }

    bool read(const Candidate &candidate)
    {
        const disk::FolderListing listing =
            candidate.path == m_root ? DetectionScope::listing(m_root) : disk::listFoldersIn(candidate.path);
        const bool holds = listsAcqData(candidate.path, listing);
        m_read.add(candidate.path, holds);
        if (isDirectEntry(candidate.path) && lacksSpectra(listing))
            DetectionScope::noteNoSpot(m_root, candidate.path.sliced(m_root.size() + 1));
        for (const disk::FolderListing::Entry &entry : listing.folders) {
            m_waiting.push_back(
                {candidate.path + u'/' + entry.name, isNamedD(entry.name), entry.kind == EntryKind::Folder});
        }
        return holds;
    }

    [[nodiscard]] bool isDirectEntry(const QString &path) const
    {
        return path.size() > m_root.size() && path.lastIndexOf(u'/') == m_root.size();
    }

    const QString m_root;
    std::deque<Candidate> m_waiting;
    ReadFolders m_read;
};

} // namespace

bool holdsAcqDataDirectly(const disk::FolderOnDisk &folder)
{
    // An entry counts when a listing shows it: a folder that may be entered but not listed holds no data.
    const bool holds = folder.holdsFolder(kAcqData) && folder.mayBeListed();
    if (holds)
        DetectionScope::note("Agilent: AcqData folder"_L1);
    return holds;
}

bool isAcqData(const disk::FolderOnDisk &folder, const disk::FolderListing::Entry &entry)
{
    if (entry.name.compare(kAcqData, Qt::CaseInsensitive) != 0)
        return false;
    const EntryKind kind = entry.kind ? *entry.kind : folder.kindOf(entry.name);
    if (kind == EntryKind::Folder)
        DetectionScope::note("Agilent: AcqData folder"_L1);
    return kind == EntryKind::Folder;
}

bool holdsAcqDataBelow(const QString &folder)
{
    const bool holds = Walk(folder).findsAcqData();
    DetectionScope::note(holds ? "Agilent: AcqData folder further down"_L1 : "Agilent: no AcqData folder"_L1);
    return holds;
}

} // namespace ozm::msreader::internal
