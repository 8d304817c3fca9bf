#include "data/DataFinder.h"

#include <QDir>
#include <QFileInfo>

using namespace ozm::msreader;

namespace workbench {

DataFinder::DataFinder(QObject *parent)
    : QObject(parent)
{
    connect(&m_search, &MsDataSearch::found, this,
            [this](const QList<MsSample> &samples) { m_findings.samples += samples; });
    connect(&m_search, &MsDataSearch::progressed, this,
            [this](int folders, int samples) { Q_EMIT progressed(folders, samples); });
    connect(&m_search, &MsDataSearch::passedOver, this, [this](const QString &folder, const QString &reason) {
        m_findings.refusals.append(
            tr("\"%1\" was passed over: %2").arg(QDir::toNativeSeparators(folder), reason));
    });
    connect(&m_search, &MsDataSearch::finished, this, [this](const ozm::Error &error, bool wasCanceled) {
        m_findings.error = error;
        m_findings.wasCanceled = wasCanceled;
        finish();
    });
    m_look.setMeasuresFolders(true);
    connect(&m_look, &MsDataLook::seen, this, &DataFinder::take);
    connect(&m_look, &MsDataLook::finished, this, &DataFinder::finish);
}

DataFinder::~DataFinder() = default;

bool DataFinder::isRunning() const
{
    return m_search.isRunning() || m_look.isRunning() || m_isEnding;
}

bool DataFinder::search(const QString &folder)
{
    if (isRunning())
        return false;
    m_findings = {};
    // Samples are kept by paths that mean the same tomorrow, when the program is started elsewhere.
    m_findings.source = QDir::cleanPath(QFileInfo(folder).absoluteFilePath());
    MsDataSearchOptions options;
    options.measureFolders = true;
    return m_search.start(m_findings.source, options);
}

bool DataFinder::inspect(const QStringList &paths)
{
    if (isRunning() || paths.isEmpty())
        return false;
    m_findings = {};
    m_findings.source = QFileInfo(paths.constFirst()).absolutePath();
    m_looked = 0;
    QStringList cleaned;
    for (const QString &path : paths)
        cleaned.append(QDir::cleanPath(path));
    m_look.look(cleaned);
    return true;
}

void DataFinder::take(const MsSample &sample)
{
    if (sample.isData())
        m_findings.samples.append(sample);
    else
        m_findings.refusals.append(tr("\"%1\": %2").arg(QFileInfo(sample.path).fileName(), sample.refusal));
    Q_EMIT progressed(++m_looked, static_cast<int>(m_findings.samples.size()));
}

void DataFinder::cancel()
{
    m_search.cancel();
    if (!m_look.isRunning())
        return;
    m_look.cancel();
    m_findings.wasCanceled = true;
    m_isEnding = true;
    // Not from within the call that cancels, as with a search.
    QMetaObject::invokeMethod(this, &DataFinder::finish, Qt::QueuedConnection);
}

void DataFinder::finish()
{
    m_isEnding = false;
    // Whoever is told may start the next search at once.
    const DataFindings findings = std::exchange(m_findings, {});
    Q_EMIT finished(findings);
}

} // namespace workbench
