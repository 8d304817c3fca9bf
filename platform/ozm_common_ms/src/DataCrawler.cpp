#include "DataCrawler.h"

#include "SampleExaminer.h"

#include <ozm_common_ms/MsDataFileUtils.h>

#include <internal/FolderReader.h>
#include <internal/Logging.h>

#include <QFileInfo>

#include <algorithm>
#include <iterator>

using namespace Qt::StringLiterals;

namespace ozm::msreader {

namespace {

using internal::EntryKind;
using internal::FolderReader;
using Kind = MsDataFileInfo::Kind;

// A total order: names that differ in letter case only still have their places.
bool namesInOrder(const QString &a, const QString &b)
{
    const int order = a.compare(b, Qt::CaseInsensitive);
    return order != 0 ? order < 0 : a < b;
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

/// As the user wrote it, but from the root and without a slash at its end, by which no name ends.
QString tidied(const QString &folder)
{
    QString path = QFileInfo(folder).absoluteFilePath();
    while (path.size() > 1 && path.endsWith(u'/'))
        path.chop(1);
    return path;
}

Error checkStart(const QString &folder)
{
    switch (kindOf(folder)) {
    case Kind::Folder:
        return {};
    case Kind::File:
        return Error(ErrorCode::BadParameter, u"The search path is a file, not a folder: %1"_s.arg(folder));
    case Kind::None:
        break;
    }
    return Error(ErrorCode::Failed, u"Search path does not exist"_s);
}

} // namespace

DataCrawler::DataCrawler(const MsDataSearchOptions &options, const MsDataSearchCallbacks &callbacks)
    : m_options(options)
    , m_callbacks(callbacks)
{}

Error DataCrawler::search(const QString &folder)
{
    if (Error error = checkStart(folder); error.hasError())
        return error.ecatch(OZM_HERE);
    const QString path = tidied(folder);
    m_realStart = realPathOf(path);
    const Item start{path, m_realStart, Kind::Folder};
    if (listIfData(start))
        return {};
    if (!readFolder(start)) {
        return Error(ErrorCode::FileAccess, u"The search path cannot be read: %1"_s.arg(folder))
            .ecatch(OZM_HERE);
    }
    searchWaiting();
    return {};
}

void DataCrawler::searchWaiting()
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

void DataCrawler::visit(const Item &item)
{
    if (m_samples.contains(item.realPath) || listIfData(item))
        return;
    if (item.kind == Kind::Folder && m_options.recursive && !readFolder(item))
        passOver(item.path);
}

void DataCrawler::visitLink(const QString &path)
{
    const Item item{path, realPathOf(path), kindOf(path)};
    // Leads nowhere, to a sample or a part of one, or up to where the search would begin again.
    if (item.kind == Kind::None || item.realPath.isEmpty() || isInsideSample(item.realPath) ||
        isSameOrInside(m_realStart, item.realPath))
        return;
    visit(item);
}

bool DataCrawler::isInsideSample(const QString &realPath) const
{
    for (qsizetype end = realPath.size(); end > 0; end = realPath.lastIndexOf(u'/', end - 1)) {
        if (m_samples.contains(realPath.first(end)))
            return true;
    }
    return false;
}

bool DataCrawler::listIfData(const Item &item)
{
    if (!canBeData(item.path, item.kind))
        return false;
    MsDataFileInfo info = examine(item.path, item.kind, m_options.checkLevel);
    if (!info.isData())
        return false;
    if (item.kind == Kind::Folder && m_options.measureFolders)
        info.size = MsDataFileUtils::sizeOnDisk(item.path, m_callbacks.isCanceled);
    m_samples.insert(item.realPath);
    if (m_callbacks.found)
        m_callbacks.found(info);
    return true;
}

bool DataCrawler::readFolder(const Item &folder)
{
    if (m_readFolders.contains(folder.realPath))
        return true;
    reportProgress(folder.path);
    m_readFolders.insert(folder.realPath);

    QList<Item> entries;
    FolderReader reader(folder.path);
    while (!isCanceled() && reader.next()) {
        const Item entry = entryOf(folder, reader);
        const bool isFileOfData = entry.kind == Kind::File && canBeData(entry.path, entry.kind);
        if (entry.isLink || entry.kind == Kind::Folder || isFileOfData)
            entries.append(entry);
    }
    queueEntries(std::move(entries));
    return reader.isComplete() || isCanceled();
}

DataCrawler::Item DataCrawler::entryOf(const Item &folder, const internal::FolderReader &reader)
{
    const QString name = reader.name();
    Item entry{childOf(folder.path, name), childOf(folder.realPath, name), Kind::None};
    switch (reader.kind()) {
    case EntryKind::Folder:
        entry.kind = Kind::Folder;
        break;
    case EntryKind::File:
        entry.kind = Kind::File;
        break;
    case EntryKind::Other:
        break;
    case EntryKind::Unsettled:
        entry.isLink = QFileInfo(entry.path).isSymLink();
        entry.kind = entry.isLink ? Kind::None : kindOf(entry.path);
        break;
    }
    return entry;
}

void DataCrawler::queueEntries(QList<Item> entries)
{
    // All of one folder, so that their paths compare as their names do.
    std::ranges::sort(entries, namesInOrder, &Item::path);
    for (const Item &entry : std::as_const(entries)) {
        if (entry.isLink)
            m_links.append(entry.path);
    }
    // The stack gives the last one first.
    std::ranges::copy_if(entries.crbegin(), entries.crend(), std::back_inserter(m_stack),
                         [](const Item &entry) { return !entry.isLink; });
}

void DataCrawler::passOver(const QString &folder)
{
    const QString reason = kindOf(folder) == Kind::Folder ? u"The folder cannot be read."_s
                                                          : u"The folder is no longer there."_s;
    qCInfo(lcGeneric) << "Passed over" << folder << reason;
    if (m_callbacks.passedOver)
        m_callbacks.passedOver(folder, reason);
}

void DataCrawler::reportProgress(const QString &folder)
{
    if (m_callbacks.progressed)
        m_callbacks.progressed(int(m_readFolders.size()), int(m_samples.size()), folder);
}

bool DataCrawler::isCanceled() const
{
    return m_callbacks.isCanceled && m_callbacks.isCanceled();
}

} // namespace ozm::msreader
