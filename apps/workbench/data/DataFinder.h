#pragma once

#include <ozm_widgets/MsDataSearch.h>

#include <QList>
#include <QStringList>

#include <atomic>
#include <memory>

class QThread;

namespace workbench {

/// The result of a look at the disk.
struct DataFindings
{
    QString source; ///< The folder that was searched, or that holds what was dropped.
    QList<ozm::msreader::MsSample> samples;
    QStringList refusals; ///< What is not among the samples, and why, a sentence each.
    ozm::Error error;     ///< The folder itself cannot be searched.
    bool wasCanceled = false;
};

/**
 * Looks for mass-spectrometry data on a thread of its own, sizes of folders included.
 *
 *     connect(finder, &DataFinder::finished, this, &Window::addFindings);
 *     finder->search(folder);
 *
 * All signals come in the thread the object lives in. Destroying it cancels what runs, and waits for it.
 */
class DataFinder : public QObject
{
    Q_OBJECT

public:
    explicit DataFinder(QObject *parent = nullptr);
    ~DataFinder() override;

    [[nodiscard]] bool isRunning() const;

    /// Begins to look through @p folder and all below it; false while something runs.
    bool search(const QString &folder);
    /// Begins to look at each of @p paths, not into folders that are not data; false while something runs.
    bool inspect(const QStringList &paths);
    void cancel();

Q_SIGNALS:
    /// How many folders, or dropped things, were looked at, and how many samples were found.
    void progressed(int searched, int found);
    void finished(const workbench::DataFindings &findings);

private:
    [[nodiscard]] DataFindings inspected(const QStringList &paths);
    void finish();

    ozm::msreader::MsDataSearch m_search;
    std::unique_ptr<QThread> m_inspection;
    std::atomic<bool> m_isCanceled = false;
    DataFindings m_findings;
};

} // namespace workbench
