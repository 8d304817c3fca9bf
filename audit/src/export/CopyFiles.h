#pragma once

#include <ozm_audit/InspectionCopy.h>

#include <QDir>
#include <QFile>

#include <memory>

namespace ozm::audit {

/// Writes @p bytes to a new file of the copy.
[[nodiscard]] Error writeCopyFile(const QDir &folder, const QString &name, const QByteArray &bytes);

/**
 * The files of a copy that grow with every entry: the exact bytes, a table for spreadsheets, and pages.
 *
 * Each error is the end of the copy; files that are not finished are the caller's to remove.
 */
class CopyFiles
{
public:
    /// @p count says how many entries will be added: the pages are numbered before the last one is known.
    CopyFiles(const QDir &folder, const QString &title, const Checkpoint &checkpoint, qint64 count);
    ~CopyFiles();
    Q_DISABLE_COPY_MOVE(CopyFiles)

    [[nodiscard]] Error open();
    [[nodiscard]] Error add(const Entry &entry);
    [[nodiscard]] Error close();

private:
    class Pages;

    const QString m_title;
    const Checkpoint m_checkpoint;
    const qint64 m_count;
    QFile m_entries;
    QFile m_csv;
    QFile m_pdf;
    std::unique_ptr<Pages> m_pages;
};

/// @p choice says in words which entries were chosen; empty for all of them.
[[nodiscard]] QByteArray copyReadme(const Checkpoint &checkpoint, qint64 entries, const QString &choice,
                                    bool whole);

} // namespace ozm::audit
