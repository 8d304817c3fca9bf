#pragma once

#include <ozm_common_stable/Error.h>

#include <QString>

namespace workbench {

/// Reports on all samples, beside those that each run makes.
enum class BatchReports
{
    None,
    InOneFile, ///< "certificates.pdf"
    InOneEach, ///< A file for each sample in the folder "certificates".
};

struct BatchOptions
{
    QString input;        ///< The CSV file to work on, or a folder to search for data.
    QString outDirectory; ///< Made when it is not there.
    QString database;     ///< The audit trail, see openTrail(); by default in the directory.
    QString user;
    int steps = 0; ///< Further edits, so that a run lasts long enough to be interrupted.
    BatchReports reports = BatchReports::None;
    QString reportTemplate; ///< A template file; by default, the workbench's certificate.
};

/**
 * Takes the samples of a file through every kind of edit without anybody at the screen, and leaves the audit
 * trail, its export, the samples and a picture of the window in a directory. The samples of a folder are the
 * mass-spectrometry data in it; "formats.csv" then lists them with their formats.
 *
 * Each step that is on the disk is told on standard output, a line a record with its number. An earlier
 * audit trail is continued; the other files are replaced. An interrupt (Ctrl+C) while reports are made ends the run with
 * an error; the reports that were written before, and an earlier "certificates.pdf", stay. Needs a QApplication.
 */
[[nodiscard]] ozm::Error runBatch(const BatchOptions &options);

} // namespace workbench
