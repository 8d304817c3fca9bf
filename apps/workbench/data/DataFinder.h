#pragma once

#include <ozm_widgets/MsDataLook.h>
#include <ozm_widgets/MsDataSearch.h>

#include <QList>
#include <QStringList>

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
 * Looks for mass-spectrometry data beside the event loop, sizes of folders included.
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
    void take(const ozm::msreader::MsSample &sample);
    void finish();

    ozm::msreader::MsDataSearch m_search;
    ozm::msreader::MsDataLook m_look;
    int m_looked = 0;
    bool m_isEnding = false; ///< Canceled, and nobody was told yet.
    DataFindings m_findings;
};

} // namespace workbench
