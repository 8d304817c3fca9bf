#pragma once

#include <ozm_common_stable/Error.h>
#include <ozm_widgets/MsDataSearchOptions.h>
#include <ozm_widgets/ozm_widgets_export.h>

#include <QList>
#include <QObject>

#include <memory>

namespace ozm::msreader {

/**
 * Finds mass-spectrometry data on disk and says what it is: in a folder, on a thread of its own or where it
 * is called, and at one path.
 *
 *     auto *search = new ozm::msreader::MsDataSearch(this);
 *     connect(search, &ozm::msreader::MsDataSearch::found, model, &SampleModel::append);
 *     connect(search, &ozm::msreader::MsDataSearch::finished, this, &Window::showSummary);
 *     search->start(folder);
 *
 * A search gives its samples in an order that depends on their names only: folder by folder, each in the
 * order of its entries' names without regard to letter case. It never looks into a folder that is data, and
 * lists nothing twice: what links lead to comes last, and only if it was not listed under its own name. Links
 * to a folder that contains the searched one are not followed. A searched folder that is itself data is the
 * only sample.
 *
 * All signals come in the thread the object lives in, and samples in batches, several a second, so that a
 * table can take ten thousand of them while it is scrolled. Not even start() touches the disk in that thread.
 * Destroying the object cancels the search and waits for it, which on a share that does not answer can take
 * as long as the system lets a question take.
 *
 * The static functions work where they are called and may take long on a share. They are safe from any thread.
 */
class OZM_WIDGETS_EXPORT MsDataSearch : public QObject
{
    Q_OBJECT

public:
    explicit MsDataSearch(QObject *parent = nullptr);
    ~MsDataSearch() override;

    /**
     * Searches @p folder and returns when it is done. A canceled search is no error.
     *
     * An error when @p folder does not exist (code 1), is a file (code 2) or cannot be read (code 4). Entries
     * further down that cannot be read are passed over.
     */
    [[nodiscard]] static Error run(const QString &folder, const MsDataSearchOptions &options,
                                   const MsDataSearchCallbacks &callbacks);

    /**
     * The data at @p path, or why it is refused. A slash at the end of @p path is left out; folders are not
     * measured.
     *
     *     const auto sample = ozm::msreader::MsDataSearch::sampleAt(droppedPath);
     *     if (sample.isData())
     *         addSample(sample);
     *     else
     *         showStatus(sample.refusal);
     */
    [[nodiscard]] static MsSample sampleAt(const QString &path);

    /// The bytes of the file at @p path, or of all files below it that can be read, links not followed; -1
    /// when there is nothing at @p path, or when @p isCanceled, asked before every entry, answers true.
    [[nodiscard]] static qint64 sizeOnDisk(const QString &path, const std::function<bool()> &isCanceled = {});

    /// True from start() until finished() has been emitted.
    [[nodiscard]] bool isRunning() const;

    /// Begins to search @p folder; false, and nothing happens, while another search is running.
    bool start(const QString &folder, const MsDataSearchOptions &options = {});

    /// Asks the running search to end; finished() tells when it has.
    void cancel();

Q_SIGNALS:
    /// Some more data, in the order in which it was come across.
    void found(const QList<ozm::msreader::MsSample> &samples);
    /// Now and then, with the @p folder that is read now.
    void progressed(int foldersSearched, int samplesFound, const QString &folder);
    /// @p path cannot be read, for @p reason.
    void passedOver(const QString &path, const QString &reason);

    /// The last signal of a search: @p error as in run().
    void finished(const ozm::Error &error, bool wasCanceled);

private:
    class Private;
    const std::unique_ptr<Private> d;
};

} // namespace ozm::msreader
