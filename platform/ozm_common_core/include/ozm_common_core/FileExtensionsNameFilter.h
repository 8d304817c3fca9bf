#pragma once

#include <ozm_common_core/ozm_common_core_export.h>
#include <ozm_qt_shared_libs_core/FileTypes.h>

#include <QList>
#include <QString>

/**
 * The name filters of a file dialog, which know the file types they were made of.
 *
 *     FileExtensionsNameFilter filter;
 *     filter.add(tr("Tables"), csv).add(FileExtensionsNameFilter(u"All files (*)"_s));
 *     dialog.setNameFilter(filter.toFilterString()); // "Tables (*.csv);;All files (*)"
 */
class OZM_COMMON_CORE_EXPORT FileExtensionsNameFilter
{
public:
    FileExtensionsNameFilter() = default;
    /// The filters of a toolkit's text, "Tables (*.csv *.tsv);;All files (*)", kept as they are written.
    explicit FileExtensionsNameFilter(const QString &filterText);

    /// Adds a filter for the extensions of @p type.
    FileExtensionsNameFilter &add(const QString &description, const FileTypes::Ref &type);
    FileExtensionsNameFilter &add(const FileExtensionsNameFilter &other);

    /// As QFileDialog takes it: "Tables (*.csv);;All files (*)".
    [[nodiscard]] QString toFilterString() const;

    /// True when a filter was made of @p type, or takes every extension of it by a pattern of its own, so that
    /// a filter is the same after it was a text. A type without extensions is in no filter.
    [[nodiscard]] bool containsType(const FileTypes::Ref &type) const;

private:
    QStringList m_filters;
};
