#pragma once

#include "DataSourceLocation.h"
#include "MsDataFormat.h"
#include "disk/DiskEntry.h"

#include <QSet>

#include <optional>

namespace ozm::msreader {

/**
 * The formats that the data at @p location has; several when the rules of several vendors fit.
 *
 * @p byNameOnly looks at the text of the path and at nothing else: no system call is made. @p stopAtFirst
 * leaves it at the first detector, in registry order, that finds anything. What cannot be read is not data.
 * A line for support that names the rules which decided goes to "ozm.generic" (debug). Safe from any thread.
 */
[[nodiscard]] QSet<VendorDataFormat> detectFormats(const DataSourceLocation &location, bool byNameOnly,
                                                   bool stopAtFirst);

/// Returns true when detectFormats() finds anything, at the price of a few questions to the disk where they
/// suffice.
[[nodiscard]] bool hasDetectableFormat(const DataSourceLocation &location, bool byNameOnly);

/**
 * The one format under which the data at @p path is listed, or Unknown.
 *
 * Where several fit, data that lies directly in a folder goes before data of another vendor somewhere below
 * it; otherwise the registry's order holds. The tree below a folder is walked only when nothing else fits.
 * @p entry is what the caller knows of the path already, which is then not asked again.
 */
[[nodiscard]] VendorDataFormat nearestFormat(const QString &path,
                                             const std::optional<disk::DiskEntry> &entry = {});

/// The first format, by value, that a file (or a folder) of this name can have, or Unknown. Looks at the text
/// only. This is the one place that says what a raw folder is called.
[[nodiscard]] VendorDataFormat formatByName(const QString &path, EntryKind kind);

} // namespace ozm::msreader
