#pragma once

#include <ozm_common_stable/Error.h>

#include <QList>
#include <QString>

#include <optional>

class QDebug;

namespace ozm::msreader {

/// Which of a data source's samples is meant, by the name users gave it and by the vendor's own.
struct SampleIdentification
{
    QString sampleName;
    QString nativeSampleId;

    /// "sampleName: %1, nativeSampleId: %2".
    [[nodiscard]] QString toString() const;

    bool operator==(const SampleIdentification &) const = default;
};

/**
 * Where the data of one sample lives: at a local path, or embedded in a database.
 *
 *     const auto location = DataSourceLocation::fromLocalPath(path);
 *     if (hasDetectableFormat(location, false))
 *         open(location);
 */
struct DataSourceLocation
{
    enum Kind : qint32
    {
        LocalPath = 1,
        DatabaseHandler = 2
    };

    Kind kind = LocalPath;
    QString localPath;               ///< The file or folder of a LocalPath.
    const void *dbHandler = nullptr; ///< The handler of a DatabaseHandler; not owned, never dereferenced.
    std::optional<QString> label;    ///< Printed after the rest.
    std::optional<SampleIdentification> sample;

    [[nodiscard]] static DataSourceLocation fromLocalPath(const QString &path);
    [[nodiscard]] static DataSourceLocation fromDatabaseHandler(const void *handler);

    /// Refuses, with code 2, a path that is empty, or longer than the shortest limit of the supported systems
    /// without the prefix that lifts it. Does not look at the disk.
    [[nodiscard]] static Error checkValidVendorFilePath(const QString &path);
};

QDebug operator<<(QDebug debug, const DataSourceLocation &location);
QDebug operator<<(QDebug debug, const QList<DataSourceLocation> &locations);

} // namespace ozm::msreader
