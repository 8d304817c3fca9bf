#include <ozm_common_core/FileExtensionsNameFilter.h>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

QStringList patterns(const FileTypes::Ref &type)
{
    QStringList all;
    for (const QString &extension : type.data().extensions)
        all.append("*."_L1 + extension);
    all.removeDuplicates(); // An extension may stand for files and for folders.
    return all;
}

/// The words between the last parentheses of a filter.
QStringList patternsOf(const QString &filter)
{
    const qsizetype open = filter.lastIndexOf(u'(');
    const qsizetype close = filter.lastIndexOf(u')');
    const QString inside = open >= 0 && close > open ? filter.sliced(open + 1, close - open - 1) : filter;
    return QString(inside).replace(u';', u' ').split(u' ', Qt::SkipEmptyParts);
}

} // namespace

FileExtensionsNameFilter::FileExtensionsNameFilter(const QString &filterText)
    : m_filters(filterText.split(";;"_L1, Qt::SkipEmptyParts))
{}

FileExtensionsNameFilter &FileExtensionsNameFilter::add(const QString &description,
                                                        const FileTypes::Ref &type)
{
    m_filters.append(description + " ("_L1 + patterns(type).join(u' ') + u')');
    return *this;
}

FileExtensionsNameFilter &FileExtensionsNameFilter::add(const FileExtensionsNameFilter &other)
{
    m_filters += other.m_filters;
    return *this;
}

QString FileExtensionsNameFilter::toFilterString() const
{
    return m_filters.join(";;"_L1);
}

bool FileExtensionsNameFilter::containsType(const FileTypes::Ref &type) const
{
    const QStringList wanted = patterns(type);
    if (wanted.isEmpty())
        return false;
    return std::ranges::any_of(m_filters, [&wanted](const QString &filter) {
        const QStringList taken = patternsOf(filter);
        return std::ranges::all_of(wanted, [&taken](const QString &pattern) {
            return taken.contains(pattern, Qt::CaseInsensitive);
        });
    });
}
