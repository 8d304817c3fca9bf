#pragma once

#include <ozm_audit/InspectionCopy.h>

#include <QDir>

namespace ozm::audit {

/// Writes @p bytes to a new file of the copy.
[[nodiscard]] Error writeCopyFile(const QDir &folder, const QString &name, const QByteArray &bytes);

/// The entries for people: a table for spreadsheets, and pages.
[[nodiscard]] Error writeCopyCsv(const QDir &folder, const QList<Entry> &entries);
[[nodiscard]] Error writeCopyPdf(const QDir &folder, const QList<Entry> &entries, const QString &title,
                                 const Checkpoint &checkpoint);
[[nodiscard]] QByteArray copyReadme(const Checkpoint &checkpoint, qsizetype entries, bool whole);

} // namespace ozm::audit
