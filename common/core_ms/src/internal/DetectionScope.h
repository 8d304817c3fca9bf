#pragma once

#include "MsDataFormat.h"
#include "disk/FolderListing.h"
#include "disk/FolderOnDisk.h"

#include <QLatin1StringView>
#include <QSet>
#include <QString>
#include <QVarLengthArray>

#include <optional>

namespace ozm::msreader::internal {

/**
 * One detection, while it runs: everything it learned about its path, and which rules decided.
 *
 * Detectors hold nothing and know only the path, so that each would ask the disk again what another just
 * asked. Inside a scope the kind and the listing of the detection's own path are asked once, and a folder in
 * it that one detector has read need not be read by the next; every other path, and a detector called without
 * a scope, asks the disk each time.
 *
 *     DetectionScope scope(path);
 *     found = detector.detectFormat(path);
 *     scope.report(found);
 *
 * A scope belongs to the thread that made it and must end in the order of its making.
 */
class DetectionScope
{
public:
    /// @p entry is what the caller knows of the path already.
    explicit DetectionScope(const QString &path, const std::optional<disk::DiskEntry> &entry = {});
    ~DetectionScope();
    Q_DISABLE_COPY_MOVE(DetectionScope)

    /// The entry at the scope's path, asked for once.
    [[nodiscard]] const disk::DiskEntry &entry();

    [[nodiscard]] static EntryKind kind(const QString &path);
    [[nodiscard]] static disk::FolderListing listing(const QString &folder,
                                                     const disk::FolderVisitor &visit = {});

    /// The same for a start: it ends where the listing stops being cheap.
    [[nodiscard]] static disk::FolderListing firstListing(const QString &folder,
                                                          const disk::FolderVisitor &visit);

    /// Returns true when the whole listing is known.
    [[nodiscard]] static bool hasListing(const QString &folder);

    /// Remembers that the entry @p name of @p folder is no spot of FID spectra, and tells whether it is known.
    static void noteNoSpot(const QString &folder, const QString &name);
    [[nodiscard]] static bool isKnownNoSpot(const QString &folder, const QString &name);

    /// Remembers, for the line to support, the rule that led to an answer.
    static void note(QLatin1StringView rule);

    /// Writes that line.
    void report(const QSet<VendorDataFormat> &formats) const;
    /// The same for a question that asked for no more than a yes or no.
    void reportWhether(bool isData) const;

private:
    [[nodiscard]] static DetectionScope *current(const QString &path);
    void keep(const disk::FolderListing &listing);
    void write(const QString &answer) const;

    const QString m_path;
    DetectionScope *const m_outer;
    std::optional<disk::DiskEntry> m_entry;
    std::optional<disk::FolderListing> m_listing;
    QSet<QString> m_noSpots;
    QVarLengthArray<QLatin1StringView, 4> m_rules;
};

} // namespace ozm::msreader::internal
