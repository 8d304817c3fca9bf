#pragma once

#include "MsDataFormat.h"
#include "internal/FolderListing.h"

#include <ozm_common_core_mini/PathUtils.h>

#include <QLatin1StringView>
#include <QSet>
#include <QString>
#include <QVarLengthArray>

#include <optional>

namespace ozm::msreader::internal {

/**
 * One detection, while it runs: what it learned about its path, and which rules decided.
 *
 * Detectors hold nothing and know only the path, so that each would ask the disk again what another just
 * asked. Inside a scope the kind and the listing of the detection's own path are asked once; every other
 * path, and a detector called without a scope, asks the disk each time.
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
    explicit DetectionScope(const QString &path);
    ~DetectionScope();
    Q_DISABLE_COPY_MOVE(DetectionScope)

    [[nodiscard]] static PathUtils::Kind kind(const QString &path);
    [[nodiscard]] static FolderListing listing(const QString &folder, const FolderVisitor &visit = {});

    /// Remembers, for the line to support, the rule that led to an answer.
    static void note(QLatin1StringView rule);

    /// Writes that line.
    void report(const QSet<VendorDataFormat> &formats) const;
    /// The same for a question that asked for no more than a yes or no.
    void reportWhether(bool isData) const;

private:
    void write(const QString &answer) const;

    const QString m_path;
    DetectionScope *const m_outer;
    std::optional<PathUtils::Kind> m_kind;
    std::optional<FolderListing> m_listing;
    QVarLengthArray<QLatin1StringView, 4> m_rules;
};

} // namespace ozm::msreader::internal
