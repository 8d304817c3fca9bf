#include "internal/DetectionScope.h"

#include "internal/Logging.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace ozm::msreader::internal {

namespace {

thread_local DetectionScope *t_current = nullptr;

QString namesOf(const QSet<VendorDataFormat> &formats)
{
    QStringList names;
    for (const VendorDataFormat format : formats)
        names.append(MsDataFormat::toString(format));
    names.sort();
    return names.isEmpty() ? u"no format"_s : names.join(", "_L1);
}

template <typename Rules>
QString textOf(const Rules &rules)
{
    QStringList texts;
    for (const QLatin1StringView rule : rules)
        texts.append(rule);
    return texts.isEmpty() ? u"no detector takes this name"_s : texts.join("; "_L1);
}

/// As visiting while reading, over what was read before.
void revisit(const disk::FolderListing &listing, const disk::FolderVisitor &visit)
{
    if (visit)
        std::ignore =
            std::ranges::any_of(listing.folders, visit) || std::ranges::any_of(listing.others, visit);
}

} // namespace

DetectionScope::DetectionScope(const QString &path, const std::optional<disk::DiskEntry> &entry)
    : m_path(path)
    , m_outer(std::exchange(t_current, this))
    , m_entry(entry)
{}

DetectionScope::~DetectionScope()
{
    t_current = m_outer;
}

DetectionScope *DetectionScope::current(const QString &path)
{
    DetectionScope *scope = t_current;
    if (!scope)
        return nullptr;
    // Nearly always the very same text, which needs no comparison.
    const bool isOwn = scope->m_path.constData() == path.constData() || scope->m_path == path;
    return isOwn ? scope : nullptr;
}

const disk::DiskEntry &DetectionScope::entry()
{
    if (!m_entry)
        m_entry = disk::entryAt(m_path);
    return *m_entry;
}

EntryKind DetectionScope::kind(const QString &path)
{
    DetectionScope *scope = current(path);
    return scope ? scope->entry().kind : disk::kindAt(path);
}

disk::FolderListing DetectionScope::listing(const QString &folder, const disk::FolderVisitor &visit)
{
    DetectionScope *scope = current(folder);
    if (!scope)
        return disk::listFolder(folder, visit);
    if (scope->m_listing) {
        revisit(*scope->m_listing, visit);
        return *scope->m_listing;
    }
    disk::FolderListing listing = disk::listFolder(folder, visit);
    scope->keep(listing);
    return listing;
}

disk::FolderListing DetectionScope::firstListing(const QString &folder, const disk::FolderVisitor &visit)
{
    disk::FolderListing listing = disk::listSmallFolder(folder, visit);
    if (DetectionScope *scope = current(folder))
        scope->keep(listing);
    return listing;
}

bool DetectionScope::hasListing(const QString &folder)
{
    const DetectionScope *scope = current(folder);
    return scope && scope->m_listing;
}

void DetectionScope::keep(const disk::FolderListing &listing)
{
    // A visitor that has seen enough leaves a part, of no use to the next.
    if (listing.isComplete || !listing.isFolder)
        m_listing = listing;
}

void DetectionScope::noteNoSpot(const QString &folder, const QString &name)
{
    if (DetectionScope *scope = current(folder))
        scope->m_noSpots.insert(name);
}

bool DetectionScope::isKnownNoSpot(const QString &folder, const QString &name)
{
    const DetectionScope *scope = current(folder);
    return scope && scope->m_noSpots.contains(name);
}

void DetectionScope::note(QLatin1StringView rule)
{
    if (t_current)
        t_current->m_rules.append(rule);
}

void DetectionScope::report(const QSet<VendorDataFormat> &formats) const
{
    if (lcGeneric().isDebugEnabled())
        write(namesOf(formats));
}

void DetectionScope::reportWhether(bool isData) const
{
    if (lcGeneric().isDebugEnabled())
        write(isData ? u"data"_s : u"no format"_s);
}

void DetectionScope::write(const QString &answer) const
{
    qCDebug(lcGeneric).noquote() << "Detected" << answer << "in" << m_path << "by:" << textOf(m_rules);
}

} // namespace ozm::msreader::internal
