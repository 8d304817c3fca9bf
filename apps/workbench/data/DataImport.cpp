#include "data/DataImport.h"

#include "data/DataProgress.h"
#include "samples/SampleEditor.h"

#include <QDir>
#include <QDropEvent>
#include <QMimeData>
#include <QUrl>

#include <utility>

namespace workbench {

DataImport::DataImport(SampleEditor &editor, FolderQuestion question, QObject *parent)
    : QObject(parent)
    , m_editor(editor)
    , m_question(std::move(question))
    , m_progress(new DataProgress(qobject_cast<QWidget *>(parent)))
{
    m_progress->hide();
    connect(m_progress, &DataProgress::canceled, &m_finder, &DataFinder::cancel);
    connect(&m_finder, &DataFinder::progressed, m_progress, &DataProgress::show);
    connect(&m_finder, &DataFinder::finished, this, &DataImport::add);
    // The search was for the samples that were open when it began.
    connect(&editor.table(), &SampleTable::wasReset, &m_finder, &DataFinder::cancel);
}

DataImport::~DataImport() = default;

QWidget *DataImport::progress() const
{
    return m_progress;
}

void DataImport::acceptDropsOn(QWidget *widget)
{
    widget->setAcceptDrops(true);
    widget->installEventFilter(this);
}

void DataImport::ask()
{
    const QString folder = m_question();
    if (!folder.isEmpty())
        search(folder);
}

void DataImport::search(const QString &folder)
{
    start(m_finder.search(folder));
}

void DataImport::inspect(const QStringList &paths)
{
    start(m_finder.inspect(paths));
}

bool DataImport::eventFilter(QObject *watched, QEvent *event)
{
    const auto type = event->type();
    if (type != QEvent::DragEnter && type != QEvent::DragMove && type != QEvent::Drop)
        return QObject::eventFilter(watched, event);
    auto *drag = static_cast<QDropEvent *>(event);
    if (drag->mimeData()->hasUrls()) {
        // Whatever the other program offers, its files stay where they are.
        drag->setDropAction(Qt::CopyAction);
        drag->accept();
        if (type == QEvent::Drop)
            drop(*drag->mimeData());
    }
    return true;
}

void DataImport::drop(const QMimeData &data)
{
    QStringList paths;
    QStringList notLocal;
    for (const QUrl &url : data.urls())
        if (url.isLocalFile())
            paths.append(url.toLocalFile());
        else
            notLocal.append(tr("\"%1\": It is not on a disk of this computer.").arg(url.toDisplayString()));
    if (m_finder.isRunning()) {
        Q_EMIT reported(tr("Nothing was added, because a search for data is running."), {});
        return;
    }
    m_notLocal = notLocal;
    if (paths.isEmpty())
        add({});
    else
        start(m_finder.inspect(paths));
}

void DataImport::start(bool started)
{
    if (!started)
        return;
    m_progress->show(0, 0);
    Q_EMIT runningChanged(true);
}

void DataImport::add(const DataFindings &findings)
{
    m_progress->hide();
    Q_EMIT runningChanged(false);
    const QStringList refusals = std::exchange(m_notLocal, {}) + findings.refusals;
    if (findings.wasCanceled) {
        Q_EMIT reported(tr("The search was canceled; nothing was added."), {});
        return;
    }
    if (findings.error.hasError()) {
        Q_EMIT reported(
            tr("Nothing was added."),
            {tr("\"%1\": %2").arg(QDir::toNativeSeparators(findings.source), findings.error.errorMessage())});
        return;
    }
    const int before = m_editor.table().rowCount();
    // The editor itself reports what keeps it from adding them.
    if (m_editor.addData(findings.samples, findings.source).hasError())
        return;
    const int count = m_editor.table().rowCount() - before;
    if (count > 0)
        Q_EMIT added();
    const auto known = findings.samples.size() - count;
    QString summary =
        count == 1 ? tr("1 sample with data was added") : tr("%1 samples with data were added").arg(count);
    if (known > 0)
        summary += tr(", %1 are in the table already").arg(known);
    Q_EMIT reported(summary + tr("."), refusals);
}

} // namespace workbench
