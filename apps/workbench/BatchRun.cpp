#include "BatchRun.h"

#include "audit/TrailStore.h"
#include "data/DataSamples.h"
#include "reports/ReportSeries.h"
#include "samples/SampleEditor.h"
#include "window/MainWindow.h"

#include <ozm_common_core_mini/ColumnNames.h>
#include <ozm_qt_shared_libs_core/FileTypes.h>
#include <ozm_widgets/MsDataSearch.h>

#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <QPixmap>
#include <QTemporaryFile>

#include <csignal>
#include <cstdio>
#include <utility>

using namespace Qt::StringLiterals;
using ozm::Error;
using ozm::ErrorCode;
using ozm::msreader::MsSample;

namespace workbench {

namespace {

// As many as the window shows at a glance.
constexpr int kRenamed = 3;
constexpr QSize kPicture(1200, 760);
constexpr auto kCertificatesFile = "certificates.pdf"_L1;
constexpr auto kCertificatesFolder = "certificates"_L1;

volatile std::sig_atomic_t interruptCount = 0;

extern "C" void countInterrupt(int signal)
{
    interruptCount = 1;
    // A second one ends the program.
    std::signal(signal, SIG_DFL);
}

/// While there is one, an interrupt is noted and does not end the program.
class InterruptWatch
{
public:
    InterruptWatch()
        : m_former(std::signal(SIGINT, &countInterrupt))
    {}
    ~InterruptWatch() { std::signal(SIGINT, m_former); }
    InterruptWatch(const InterruptWatch &) = delete;
    InterruptWatch &operator=(const InterruptWatch &) = delete;

    [[nodiscard]] static bool wasInterrupted() { return interruptCount != 0; }

private:
    void (*m_former)(int);
};

QString tr(const char *text)
{
    return QCoreApplication::translate("BatchRun", text);
}

/// One line, out at once: who reads it may rely on what it says even if the program dies.
void tell(const QString &line)
{
    const QByteArray bytes = line.simplified().toUtf8() + '\n';
    std::fwrite(bytes.constData(), 1, static_cast<std::size_t>(bytes.size()), stdout);
    std::fflush(stdout);
}

void tellRecord(const AuditEntry &entry)
{
    QString line = tr("recorded %1: ").arg(entry.record.number) + entry.text;
    if (entry.record.outcomeCode != 0)
        line += tr(" - refused: ") + entry.record.outcomeText;
    tell(line);
}

void tellData(const MsSample &info, const QDir &folder)
{
    const QString size = info.size < 0 ? tr("size unknown") : tr("%1 bytes").arg(info.size);
    tell(tr("found %1: %2 (%3), %4, %5")
             .arg(folder.relativeFilePath(info.path), info.formatName, info.description, kindText(info.kind),
                  size));
}

/// All data in @p folder, in the order in which it is listed; @p folder itself where that is data.
ozm::Result<QList<MsSample>> findData(const QString &folder, const MsSample &itself)
{
    if (itself.isData())
        return QList<MsSample>{itself};
    QList<MsSample> samples;
    ozm::msreader::MsDataSearchOptions options;
    options.measureFolders = true;
    ozm::msreader::MsDataSearchCallbacks callbacks;
    callbacks.found = [&samples](const MsSample &sample) { samples.append(sample); };
    callbacks.passedOver = [](const QString &path, const QString &reason) {
        tell(tr("passed over %1: %2").arg(QDir::toNativeSeparators(path), reason));
    };
    Error error = ozm::msreader::MsDataSearch::run(folder, options, callbacks);
    if (error.hasError())
        return error;
    return sortedBelow(folder, samples);
}

Error prepareDirectory(const QString &path)
{
    const QDir directory(path);
    QTemporaryFile probe(directory.filePath(u"writable-XXXXXX"_s));
    if (directory.mkpath(u"."_s) && probe.open())
        return {};
    return Error(ErrorCode::FileAccess,
                 tr("The folder \"%1\" cannot be written to. Choose another with --out.")
                     .arg(QDir::toNativeSeparators(path)))
        .ecatch(OZM_HERE);
}

/// A run works on a CSV file of samples, on data, or on a folder in which it looks for data.
struct Input
{
    [[nodiscard]] bool isOfData() const { return isFolder || sample.isData(); }

    bool isFolder = false;
    MsSample sample;
};

Input inputAt(const QString &path)
{
    Input input{QFileInfo(path).isDir(), ozm::msreader::MsDataSearch::sampleAt(path)};
    if (input.sample.isData() && input.isFolder)
        input.sample.size = ozm::msreader::MsDataSearch::sizeOnDisk(path);
    return input;
}

/// The run itself: each function is a step, and a step that fails ends the run.
class Run
{
public:
    Run(SampleEditor &editor, const BatchOptions &options, const QString &trail)
        : m_editor(editor)
        , m_options(options)
        , m_out(options.outDirectory)
        , m_input(inputAt(options.input))
        , m_window(editor, trail)
    {
        m_window.setMessagesShown(false);
        // The window fits itself to a screen, of which a run without one has any size.
        m_window.resize(kPicture);
        m_window.show();
    }

    Error all()
    {
        for (const auto step :
             {&Run::load, &Run::edit, &Run::add, &Run::rename, &Run::tryInvalid, &Run::undoAndRedo,
              &Run::repeat, &Run::save, &Run::report, &Run::reportOnEach, &Run::grab})
            if (Error error = (this->*step)(); error.hasError())
                return error;
        return {};
    }

private:
    [[nodiscard]] qint64 idAt(int index) const
    {
        const RowNode *row = m_editor.table().row(index);
        return row ? SampleTable::idOf(*row) : 0;
    }

    Error load()
    {
        // As a table it would be refused for its columns, which says nothing about what is wrong with it.
        const auto dataTypes = FileTypes::find(u"MS"_s);
        if (!m_input.isOfData() && m_input.sample.kind != ozm::EntryKind::Missing && dataTypes &&
            FileTypes::fileMatchesAnyType(m_options.input, {*dataTypes}))
            return Error(ErrorCode::BadParameter,
                         tr("\"%1\" cannot be used as data. %2")
                             .arg(QDir::toNativeSeparators(m_options.input), m_input.sample.refusal));
        Error error = m_input.isOfData() ? loadData() : m_editor.load(m_options.input);
        if (error.hasError() || m_editor.table().rowCount() > 0)
            return error;
        return Error(ErrorCode::BadParameter,
                     tr("\"%1\" holds no samples.").arg(QDir::toNativeSeparators(m_options.input)));
    }

    Error loadData()
    {
        const QString path = QDir::cleanPath(QFileInfo(m_options.input).absoluteFilePath());
        const auto found = findData(path, m_input.sample);
        if (!found)
            return found.error();
        const QString folder = m_input.sample.isData() ? QFileInfo(path).path() : path;
        for (const MsSample &info : found.value())
            tellData(info, QDir(folder));
        Error error = writeFormats(found.value(), folder, m_out.filePath(u"formats.csv"_s));
        return error.hasError() ? error : m_editor.addData(found.value(), path);
    }

    Error edit()
    {
        // Data has no charge.
        if (m_input.isOfData())
            return m_editor.setCell(idAt(0), kComment, tr("Checked by the batch run"));
        // The two charges become one step of the history, and stay two records of the trail.
        for (const auto &charge : {u"3"_s, u"4"_s})
            if (Error error = m_editor.setCell(idAt(0), kCharge, charge); error.hasError())
                return error;
        return m_editor.setCell(idAt(0), kComment, tr("Charge checked against the isotope pattern"));
    }

    Error add()
    {
        if (m_input.isOfData())
            return {};
        QString name = tr("Batch control");
        for (int number = 2; m_editor.table().hasName(name); ++number)
            name = tr("Batch control %1").arg(number);
        return m_editor.addSample({{kName, name},
                                   {kSequence, u"PEPTIDEK"_s},
                                   {kCharge, u"2"_s},
                                   {kMass, u"927.4549"_s},
                                   {kComment, tr("Added by the batch run")}});
    }

    Error rename()
    {
        QList<qint64> ids;
        for (int index = 0; index < qMin(kRenamed, m_editor.table().rowCount()); ++index)
            ids.append(idAt(index));
        return m_editor.renameSamples(ids, tr("* (checked)"));
    }

    Error tryInvalid()
    {
        Error refusal = m_editor.setCell(idAt(0), kCharge, u"0"_s);
        if (!refusal.hasError())
            return Error(ErrorCode::Failed, tr("An invalid charge was taken.")).ecatch(OZM_HERE);
        // A warning says that the refusal itself is not recorded.
        const bool recorded = refusal.errorCode() == ErrorCode::BadParameter && refusal.warnings().isEmpty();
        return recorded ? Error() : refusal;
    }

    Error undoAndRedo()
    {
        Error error = m_editor.undo();
        return error.hasError() ? error : m_editor.redo();
    }

    Error repeat()
    {
        for (int step = 1; step <= m_options.steps; ++step) {
            const qint64 id = idAt(step % m_editor.table().rowCount());
            Error error = m_editor.setCell(id, kComment, tr("Step %1").arg(step));
            if (error.hasError())
                return error;
        }
        return {};
    }

    Error save()
    {
        Error error = m_editor.save(m_out.filePath(u"samples.csv"_s));
        return error.hasError() ? error : m_editor.exportTrail(m_out.filePath(u"audit.json"_s));
    }

    /// A certificate for each of the renamed samples, and a list of all.
    Error report()
    {
        const std::vector<RowNode> all = allRows();
        const std::vector<RowNode> first(all.begin(),
                                         all.begin() + qMin<qsizetype>(kRenamed, std::ssize(all)));
        const ReportContext context = reportContext(all);
        ReportPages pages;
        for (const ReportTemplate &each : reportTemplates()) {
            const auto filled = fillReport(each.path, each.forGroup, each.forGroup ? all : first, context);
            if (!filled)
                return filled.error();
            ReportPages made = filled.value();
            if (each.forGroup)
                made.pages.first().name = each.title;
            pages.append(made);
        }
        for (const QString &trouble : std::as_const(pages.troubles))
            tell(tr("report: ") + trouble);
        Error error = saveReportHtml(pages, m_out.filePath(u"report.html"_s));
        return error.hasError() ? error : saveReportPdf(pages, m_out.filePath(u"report.pdf"_s), context);
    }

    [[nodiscard]] std::vector<RowNode> allRows() const
    {
        std::vector<RowNode> all;
        all.reserve(size_t(m_editor.table().rowCount()));
        for (int index = 0; index < m_editor.table().rowCount(); ++index)
            all.push_back(*m_editor.table().row(index));
        return all;
    }

    [[nodiscard]] ReportContext reportContext(const std::vector<RowNode> &rows) const
    {
        return {m_options.user, QFileInfo(m_options.input).fileName(), rows};
    }

    /// A report on each sample, when they were asked for.
    Error reportOnEach()
    {
        if (m_options.reports == BatchReports::None)
            return {};
        const std::vector<RowNode> all = allRows();
        const QString path = m_options.reportTemplate.isEmpty() ? reportTemplates().constFirst().path
                                                                : m_options.reportTemplate;
        auto filler = ReportFiller::of(path, false, all, reportContext(all));
        if (!filler)
            return filler.error();
        const InterruptWatch watch;
        const auto progress = [](int done, int count, const QString &name) {
            if (!name.isEmpty())
                tell(tr("report %1 of %2: %3").arg(done + 1).arg(count).arg(name));
            return !InterruptWatch::wasInterrupted();
        };
        const bool isOneFile = m_options.reports == BatchReports::InOneFile;
        const auto series =
            isOneFile ? writeReportsToFile(filler.value(), m_out.filePath(kCertificatesFile), progress)
                      : writeReportsToFolder(filler.value(), m_out.filePath(kCertificatesFolder), progress);
        if (!series)
            return series.error();
        for (const QString &trouble : series.value().troubles)
            tell(tr("report: ") + trouble);
        tell(tr("reports: %1 file(s) written").arg(series.value().files));
        return series.value().isCanceled ? Error(ErrorCode::Failed, tr("The reports were interrupted."))
                                         : Error();
    }

    Error grab()
    {
        QApplication::processEvents();
        const QString path = m_out.filePath(u"window.png"_s);
        if (m_window.grab().save(path))
            return {};
        return Error(ErrorCode::FileAccess,
                     tr("\"%1\" cannot be written.").arg(QDir::toNativeSeparators(path)))
            .ecatch(OZM_HERE);
    }

    SampleEditor &m_editor;
    const BatchOptions &m_options;
    const QDir m_out;
    const Input m_input;
    MainWindow m_window;
};

void tellResults(const BatchOptions &options, const QString &trail)
{
    const QDir out(options.outDirectory);
    tell(trail);
    QStringList names{u"audit.json"_s, u"samples.csv"_s, u"report.html"_s, u"report.pdf"_s, u"window.png"_s};
    if (options.reports == BatchReports::InOneFile)
        names.prepend(kCertificatesFile);
    else if (options.reports == BatchReports::InOneEach)
        names.prepend(kCertificatesFolder);
    for (const QString &name : std::as_const(names))
        tell(QFileInfo(out.filePath(name)).absoluteFilePath());
    if (inputAt(options.input).isOfData())
        tell(QFileInfo(out.filePath(u"formats.csv"_s)).absoluteFilePath());
}

} // namespace

Error runBatch(const BatchOptions &options)
{
    if (Error error = prepareDirectory(options.outDirectory); error.hasError())
        return error;
    const auto store = openTrail(options.database, options.outDirectory, options.user);
    if (!store)
        return store.error();

    SampleEditor editor(*store.value(), options.user);
    if (Error error = editor.start(); error.hasError())
        return error;
    QObject::connect(&editor.trail(), &AuditTrail::recorded, &editor, &tellRecord);
    if (Error error = Run(editor, options, store.value()->place()).all(); error.hasError())
        return error;
    tellResults(options, store.value()->place());
    return {};
}

} // namespace workbench
