#include "search/FolderSearch.h"

#include "FormatDetection.h"
#include "disk/FolderReader.h"
#include "internal/Logging.h"
#include "search/RefusalReason.h"
#include "search/SampleRecognition.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <platform/Errors.h>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace ozm::msreader {

namespace {

using disk::FolderReader;
using disk::Obstacle;

class SearchText
{
    Q_DECLARE_TR_FUNCTIONS(ozm::msreader::FolderSearch)
};

bool canBeData(const QString &path, EntryKind kind)
{
    return formatByName(path, kind) != VendorDataFormat::Unknown;
}

QString realPathOf(const QString &path)
{
    return QFileInfo(path).canonicalFilePath();
}

QString childOf(const QString &folder, const QString &name)
{
    return folder.endsWith(u'/') ? folder + name : folder + u'/' + name;
}

bool isSameOrInside(const QString &path, const QString &folder)
{
    return path == folder || path.startsWith(childOf(folder, {}));
}

} // namespace

FolderSearch::FolderSearch(const MsDataSearchOptions &options, const MsDataSearchCallbacks &callbacks)
    : m_options(options)
    , m_callbacks(callbacks)
{}

Error FolderSearch::checkStart(const QString &folder)
{
    const disk::DiskEntry entry = disk::entryAt(folder);
    switch (entry.kind) {
    case EntryKind::Folder:
        return {};
    case EntryKind::File:
    case EntryKind::Other:
        return Error(ozm::codes::BadParameter,
                     SearchText::tr("The search path is a file, not a folder: %1").arg(folder));
    case EntryKind::Missing:
        break;
    }
    if (entry.obstacle == Obstacle::Missing || entry.obstacle == Obstacle::NotText)
        return Error(ozm::codes::Failed, SearchText::tr("Search path does not exist"));
    return Error(ozm::codes::FileAccess, folder + u": "_s + refusalReason(folder, entry));
}

Error FolderSearch::search(const QString &folder)
{
    if (Error error = checkStart(folder); error.hasError())
        return error.ecatch(OZM_PLACE);
    // As the user wrote it, but from the root.
    const QString path = disk::withoutSlashAtEnd(QFileInfo(folder).absoluteFilePath());
    m_realStart = realPathOf(path);
    const Item start{path, m_realStart == path ? path : m_realStart, EntryKind::Folder};
    if (listIfData(start))
        return {};
    if (const Obstacle obstacle = readFolder(start); obstacle != Obstacle::None) {
        return Error(ozm::codes::FileAccess,
                     SearchText::tr("The search path cannot be read: %1").arg(folder) + u'\n' +
                         folderReason(obstacle))
            .ecatch(OZM_PLACE);
    }
    searchWaiting();
    return {};
}

void FolderSearch::searchWaiting()
{
    while (!isCanceled()) {
        if (!m_stack.isEmpty())
            visit(m_stack.takeLast());
        else if (!m_links.isEmpty())
            visitLink(m_links.takeFirst());
        else
            return;
    }
}

void FolderSearch::visit(const Item &item)
{
    if (m_samples.contains(item.realPath) || listIfData(item) || item.kind != EntryKind::Folder)
        return;
    Obstacle obstacle = Obstacle::None;
    if (m_options.recursive)
        obstacle = readFolder(item);
    else if (canBeData(item.path, item.kind))
        obstacle = FolderReader(item.path).obstacle(); // A closed folder may be data.
    if (obstacle != Obstacle::None)
        passOver(item.path, folderReason(obstacle));
}

void FolderSearch::visitLink(const QString &path)
{
    const disk::DiskEntry entry = disk::entryAt(path);
    const bool leadsNowhere = entry.obstacle == Obstacle::Missing || entry.obstacle == Obstacle::LinkLoop;
    if (entry.kind == EntryKind::Missing && !leadsNowhere)
        passOver(path, refusalReason(path, entry));
    const Item item{path, realPathOf(path), entry.kind, entry.size};
    // Leads nowhere, to a sample or a part of one, or up to where the search would begin again.
    if (entry.kind == EntryKind::Missing || item.realPath.isEmpty() || isInsideSample(item.realPath) ||
        isSameOrInside(m_realStart, item.realPath))
        return;
    visit(item);
}

bool FolderSearch::isInsideSample(const QString &realPath) const
{
    for (qsizetype end = realPath.size(); end > 0; end = realPath.lastIndexOf(u'/', end - 1)) {
        if (m_samples.contains(realPath.first(end)))
            return true;
    }
    return false;
}

bool FolderSearch::listIfData(const Item &item)
{
    if (!canBeData(item.path, item.kind))
        return false;
    MsSample sample = listedSample(item.path, item.kind, m_options.byNameOnly);
    if (!sample.isData())
        return false;
    sample.size = item.size;
    if (item.kind == EntryKind::Folder && m_options.measureFolders)
        sample.size = sizeOnDisk(item.path, m_callbacks.isCanceled);
    m_samples.insert(item.realPath);
    if (m_callbacks.found)
        m_callbacks.found(sample);
    return true;
}

Obstacle FolderSearch::readFolder(const Item &folder)
{
    if (m_readFolders.contains(folder.realPath))
        return Obstacle::None;
    reportProgress(folder.path);
    m_readFolders.insert(folder.realPath);

    QList<Entry> entries;
    FolderReader reader(folder.path);
    while (!isCanceled() && reader.next()) {
        const Entry entry = entryAt(reader);
        if (!isWorthAVisit(entry))
            continue;
        if (reader.isText())
            entries.append(entry);
        else
            passOver(childOf(folder.path, entry.name), nameReason());
    }
    queueEntries(folder, std::move(entries));
    return reader.obstacle();
}

FolderSearch::Entry FolderSearch::entryAt(const FolderReader &reader) const
{
    Entry entry;
    entry.name = reader.name();
    const auto kind = reader.kind();
    entry.isLink = !kind && reader.isLink();
    if (!entry.isLink)
        entry.kind = kind ? *kind : reader.entry().kind;
    if (entry.kind == EntryKind::File && m_options.measureFiles && canBeData(entry.name, entry.kind))
        entry.size = reader.entry().size;
    return entry;
}

bool FolderSearch::isWorthAVisit(const Entry &entry) const
{
    const bool isFolder = entry.kind == EntryKind::Folder;
    return entry.isLink || (isFolder && m_options.recursive) || canBeData(entry.name, entry.kind);
}

void FolderSearch::queueEntries(const Item &folder, QList<Entry> entries)
{
    // A total order: names that differ in letter case only still have their places.
    std::ranges::sort(entries, [](const Entry &a, const Entry &b) {
        const int order = a.name.compare(b.name, Qt::CaseInsensitive);
        return order != 0 ? order < 0 : a.name < b.name;
    });
    for (const Entry &entry : std::as_const(entries)) {
        if (entry.isLink)
            m_links.append(childOf(folder.path, entry.name));
    }
    const bool isReal = folder.path == folder.realPath;
    // The stack gives the last one first.
    for (qsizetype i = entries.size(); i-- > 0;) {
        const Entry &entry = entries.at(i);
        if (entry.isLink)
            continue;
        const QString path = childOf(folder.path, entry.name);
        m_stack.append({path, isReal ? path : childOf(folder.realPath, entry.name), entry.kind, entry.size});
    }
}

void FolderSearch::passOver(const QString &path, const QString &reason) const
{
    qCInfo(lcGeneric) << "Passed over" << path << reason;
    if (m_callbacks.passedOver)
        m_callbacks.passedOver(path, reason);
}

void FolderSearch::reportProgress(const QString &folder) const
{
    if (m_callbacks.progressed)
        m_callbacks.progressed(int(m_readFolders.size()), int(m_samples.size()), folder);
}

bool FolderSearch::isCanceled() const
{
    return m_callbacks.isCanceled && m_callbacks.isCanceled();
}

} // namespace ozm::msreader
