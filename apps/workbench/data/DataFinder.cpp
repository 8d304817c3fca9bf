#include "data/DataFinder.h"

#include <ozm_widgets/MsDataSearch.h>

#include <QDir>
#include <QFileInfo>
#include <QThread>

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
}

DataFinder::~DataFinder()
{
    cancel();
    if (m_inspection)
        m_inspection->wait();
}

bool DataFinder::isRunning() const
{
    return m_search.isRunning() || m_inspection;
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
    m_isCanceled = false;
    m_inspection.reset(QThread::create([this, paths] {
        const DataFindings findings = inspected(paths);
        QMetaObject::invokeMethod(
            this,
            [this, findings] {
                // A thread that has handed this over has nothing left to do: the wait is short.
                m_inspection->wait();
                m_inspection.reset();
                m_findings = findings;
                finish();
            },
            Qt::QueuedConnection);
    }));
    m_inspection->start(QThread::LowPriority);
    return true;
}

DataFindings DataFinder::inspected(const QStringList &paths)
{
    DataFindings findings;
    findings.source = QFileInfo(paths.constFirst()).absolutePath();
    int searched = 0;
    for (const QString &path : paths) {
        MsSample info = MsDataSearch::sampleAt(QDir::cleanPath(path));
        if (info.kind == ozm::EntryKind::Folder && info.isData())
            info.size = MsDataSearch::sizeOnDisk(info.path, [this] { return m_isCanceled.load(); });
        if (m_isCanceled)
            break;
        if (info.isData())
            findings.samples.append(info);
        else
            findings.refusals.append(tr("\"%1\": %2").arg(QFileInfo(info.path).fileName(), info.refusal));
        const int found = static_cast<int>(findings.samples.size());
        QMetaObject::invokeMethod(
            this, [this, looked = ++searched, found] { Q_EMIT progressed(looked, found); },
            Qt::QueuedConnection);
    }
    findings.wasCanceled = m_isCanceled;
    return findings;
}

void DataFinder::cancel()
{
    m_isCanceled = true;
    m_search.cancel();
}

void DataFinder::finish()
{
    // Whoever is told may start the next search at once.
    const DataFindings findings = std::exchange(m_findings, {});
    Q_EMIT finished(findings);
}

} // namespace workbench
