#pragma once

#include <ozm_common_stable/Error.h>
#include <ozm_widgets/MsSample.h>

#include <QList>
#include <QMap>
#include <QString>

namespace workbench {

class SampleTable;

/// The data that was found, as new samples for @p table, their texts by column. Each is called after its file, with a
/// number where that name is taken; data that a sample of the table has already is left out.
[[nodiscard]] QList<QMap<QString, QString>> samplesOf(const QList<ozm::msreader::MsSample> &found,
                                                      const SampleTable &table);

/// The word for @p kind in files and records.
[[nodiscard]] QString kindText(ozm::EntryKind kind);

/// @p found in the order of their paths below @p folder, which does not depend on the disk.
[[nodiscard]] QList<ozm::msreader::MsSample> sortedBelow(const QString &folder,
                                                         QList<ozm::msreader::MsSample> found);

/// Writes what was found in @p folder, and its formats, to the CSV file at @p path.
[[nodiscard]] ozm::Error writeFormats(const QList<ozm::msreader::MsSample> &found, const QString &folder,
                                      const QString &path);

} // namespace workbench
