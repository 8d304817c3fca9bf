#pragma once

#include <ozm_widgets/IFileAccessor.h>

#include <QStringList>

class QWidget;

/**
 * All that the workbench asks of its user about files, each question with a remembered folder of its own. An
 * empty answer, or a canceled location, means that nothing was chosen.
 */
namespace workbench::files {

using Location = ozm::IFileAccessor::DestinationFileLocation;

[[nodiscard]] QString askSamples(QWidget *parent, const QString &current);
/// Mass-spectrometry data, files and folders together, beginning in @p folder or else in the one remembered.
[[nodiscard]] QStringList askData(QWidget *parent, const QString &folder = {});
[[nodiscard]] QString askDataFolder(QWidget *parent);
[[nodiscard]] Location askSaveSamples(QWidget *parent, const QString &current);
/// JSON or CSV, by the extension.
[[nodiscard]] Location askExportTrail(QWidget *parent);

/// A template in the folder that the editor saves to; empty when canceled.
[[nodiscard]] QString askOpenTemplate(QWidget *parent);
/// HTML or PDF, by the extension.
[[nodiscard]] Location askSaveReport(QWidget *parent, const QString &name);
/// For a file for each report.
[[nodiscard]] QString askReportFolder(QWidget *parent);

/// Saves through the accessor, as @p writer does, and offers to open what was written.
ozm::Error save(QWidget *parent, const Location &location, const ozm::IFileAccessor::Writer &writer);

/// True when the toolkit's dialogs are shown in place of the system's; kept for the next run.
[[nodiscard]] bool usesToolkitDialogs();
void setUsesToolkitDialogs(bool on);
/// Does what the user chose in an earlier run, unless the environment says otherwise.
void restoreDialogChoice();

} // namespace workbench::files
