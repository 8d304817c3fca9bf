#pragma once

#include <ozm_common_ms/MsDataSearchOptions.h>
#include <ozm_common_ms/ozm_common_ms_export.h>
#include <ozm_common_stable/Error.h>

#include <QList>
#include <QObject>

#include <memory>

namespace ozm::msreader {

/**
 * A search of MsDataFileUtils on a thread of its own.
 *
 *     auto *search = new ozm::msreader::MsDataSearch(this);
 *     connect(search, &MsDataSearch::found, model, &SampleModel::append);
 *     connect(search, &MsDataSearch::finished, this, &Window::showSummary);
 *     search->start(folder);
 *
 * All signals come in the thread the object lives in, and samples in batches, several a second, so that a
 * table can take ten thousand of them while it is scrolled. Not even start() touches the disk in that thread.
 * Destroying the object cancels the search and waits for it, which on a share that does not answer can take
 * as long as the system lets a question take.
 */
class OZM_COMMON_MS_EXPORT MsDataSearch : public QObject
{
    Q_OBJECT

public:
    explicit MsDataSearch(QObject *parent = nullptr);
    ~MsDataSearch() override;

    /// True from start() until finished() has been emitted.
    [[nodiscard]] bool isRunning() const;

    /// Begins to search @p folder; false, and nothing happens, while another search is running.
    bool start(const QString &folder, const MsDataSearchOptions &options = {});

    /// Asks the running search to end; finished() tells when it has.
    void cancel();

Q_SIGNALS:
    void found(const QList<ozm::msreader::MsDataFileInfo> &samples);
    void progressed(int foldersSearched, int samplesFound, const QString &folder);
    void passedOver(const QString &folder, const QString &reason);

    /// The last signal of a search: @p error as in MsDataFileUtils::search().
    void finished(const ozm::Error &error, bool wasCanceled);

private:
    class Private;
    const std::unique_ptr<Private> d;
};

} // namespace ozm::msreader
