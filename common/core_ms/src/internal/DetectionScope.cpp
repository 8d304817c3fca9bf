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
void revisit(const FolderListing &listing, const FolderVisitor &visit)
{
    if (visit)
        std::ignore = std::ranges::any_of(listing.folders, visit);
}

} // namespace

DetectionScope::DetectionScope(const QString &path)
    : m_path(path)
    , m_outer(std::exchange(t_current, this))
{}

DetectionScope::~DetectionScope()
{
    t_current = m_outer;
}

PathUtils::Kind DetectionScope::kind(const QString &path)
{
    DetectionScope *scope = t_current;
    if (!scope || scope->m_path != path)
        return PathUtils::kind(path);
    if (!scope->m_kind)
        scope->m_kind = PathUtils::kind(path);
    return *scope->m_kind;
}

FolderListing DetectionScope::listing(const QString &folder, const FolderVisitor &visit)
{
    DetectionScope *scope = t_current;
    if (!scope || scope->m_path != folder)
        return listFolder(folder, visit);
    if (scope->m_listing) {
        revisit(*scope->m_listing, visit);
        return *scope->m_listing;
    }
    FolderListing listing = listFolder(folder, visit);
    // A visitor that has seen enough leaves a part, of no use to the next.
    if (listing.isComplete || !listing.isFolder)
        scope->m_listing = listing;
    return listing;
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
