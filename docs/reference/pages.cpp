// The code that the pages of the reference show. It is compiled with the tests and never run.

#include <ozm_audit/Logger.h>
#include <ozm_audit/Store.h>
#include <ozm_audit_widgets/SigningSession.h>
#include <ozm_audit_widgets/TrailView.h>
#include <ozm_common_core_mini/ColumnNames.h>
#include <ozm_common_core_mini/RowNode.h>
#include <ozm_common_stable/Result.h>
#include <ozm_widgets/AbstractTemplateEditor.h>
#include <ozm_widgets/BlackSplitterHandle.h>
#include <ozm_widgets/DefaultWidgetCreator.h>
#include <ozm_widgets/MessageBoxDescription.h>
#include <ozm_widgets/MsDataSearch.h>
#include <ozm_widgets/OZMDockWidgetTitleBar.h>
#include <ozm_widgets/OZMStyle.h>
#include <ozm_widgets/OzmCoreApplication.h>
#include <ozm_widgets/ReportPaper.h>
#include <ozm_widgets/db/common/AuditTrailLoggingInterface.h>
#include <ozm_widgets/db/common/UndoCommand.h>
#include <ozm_widgets/db/common/UndoMacro.h>
#include <ozm_widgets/db/common/UndoStack.h>

#include <QApplication>
#include <QDockWidget>
#include <QFile>

using namespace Qt::StringLiterals;

namespace {

//! [command]
class SetCharge : public ozm::UndoCommand
{
public:
    SetCharge(RowNode *row, int charge)
        : m_row(row)
    {
        using namespace ozm;
        setText(u"Set charge"_s);
        setLogData({OperationLogItemType::Set,
                    {OperationLogItemSubject::Type::Label, *row},
                    {kCharge},
                    charge,
                    row->getDataAt(kCharge)});
    }

protected:
    ozm::Error doRedo() override { return set(logData()->value()); }
    ozm::Error doUndo() override { return set(logData()->oldValue()); }
    //! [command]

private:
    ozm::Error set(const QVariant &charge)
    {
        m_row->setDataAt(kCharge, charge);
        return {};
    }

    RowNode *m_row;
};

struct SampleEditor : AbstractTemplateEditor
{
    //! [editor]
    QList<ShortCode> shortCodes() const override
    {
        return {ShortCode(u"[Name]"_s, u"Name"_s, u"The sample's name"_s, {}),
                ShortCode(u"[Charge]"_s, u"Charge"_s, u"The charge of the ion"_s, {})};
    }
    QList<RowNode *> previewRows() const override { return m_rows; }
    //! [editor]

    QList<RowNode *> m_rows;
};

} // namespace

ozm::Error undo(ozm::UndoStack &stack, ozm::AuditTrailLoggingInterface &logger, RowNode *row, RowNode *other)
{
    //! [undo]
    stack.setLogging(&logger); // hears of each step, with its record
    ozm::Error error = stack.push(new SetCharge(row, 3));
    if (error.hasError())
        return error; // nothing was changed
    stack.undo();

    ozm::UndoMacro macro(stack, {ozm::OperationLogItemType::Event, {}, {}, u"Two at once"_s},
                         u"Two at once"_s);
    error = stack.push(new SetCharge(row, 2));
    if (!error.hasError())
        error = stack.push(new SetCharge(other, 2));
    if (!error.hasError())
        macro.end(); // otherwise the macro is aborted
    //! [undo]
    return error;
}

ozm::Error trail(ozm::UndoStack &stack, RowNode *row)
{
    //! [store]
    auto store = ozm::audit::Store::open(u"sqlite:trail.sqlite"_s);
    if (!store)
        return store.error();
    ozm::audit::Logger logger(*store.value(), {.user = {u"jdoe"_s, u"Jane Doe"_s}});
    stack.setLogging(&logger);

    ozm::Error error = logger.push(stack, new SetCharge(row, 3)); // recorded, durable, and then made
    const auto checked = store.value()->verify();
    if (checked && !checked.value().isWhole())
        qWarning() << checked.value().toString(); // names the first damaged entry
    //! [store]
    return error;
}

QWidget *review(ozm::audit::Store &store, ozm::audit::Logger &logger, ozm::audit::SigningSession &session)
{
    //! [review]
    auto *view = new ozm::audit::TrailView(store);
    view->setLogger(&logger, {u"mroe"_s, u"Mary Roe"_s, u"quality assurance"_s});
    view->setSigningSession(&session); // without one, the view has no signatures

    ozm::audit::TrailFilter filter;
    filter.query.outcome = ozm::audit::Query::Outcome::Failed;
    filter.preset = ozm::audit::ReviewPreset::OutOfHours;
    view->setFilter(filter);
    view->showNewest();
    //! [review]
    return view;
}

void search(QObject *owner, const QString &folder)
{
    //! [search]
    auto *search = new ozm::msreader::MsDataSearch(owner);
    QObject::connect(search, &ozm::msreader::MsDataSearch::found, owner,
                     [](const QList<ozm::msreader::MsSample> &samples) {
                         for (const ozm::msreader::MsSample &sample : samples)
                             qInfo() << sample.path << sample.formatName;
                     });
    search->start(folder); // on a thread of its own

    const ozm::msreader::MsSample one = ozm::msreader::MsDataSearch::sampleAt(folder);
    qInfo() << (one.isData() ? one.formatName : one.refusal);
    //! [search]
}

int style(int argc, char **argv)
{
    //! [style]
    QApplication application(argc, argv);
    ozm::OzmCoreApplication::start(); // style, icons, the user's language

    QDockWidget dock(u"History"_s);
    dock.setTitleBarWidget(new OZMDockWidgetTitleBar(&dock));
    ozm::BlackSplitter splitter(Qt::Horizontal);

    // From any thread: the box comes up on the GUI thread, and this one waits for the answer.
    if (OZMStyle::question(&dock, ozm::OzmMessageBoxSignal::UnsavedChanges, u"Samples"_s,
                           u"Save the changes?"_s) == QMessageBox::Yes)
        splitter.setFocus();
    //! [style]
    return QApplication::exec();
}

ozm::Error report(RowNode *row, const QString &path)
{
    //! [report]
    const QString text = u"<h1>[Name]</h1> <script>inputParameters['[Charge]'] * 2</script>"_s;
    const ozm::TemplateReport report = AbstractTemplateEditor::decodeTECReport(text, row, {});
    for (const ozm::FailedScript &script : report.failed)
        qWarning() << script.line << script.message;

    const ozm::ReportPaper paper(report.text, {.title = u"Certificate"_s, .footer = u"Laboratory 3"_s});
    return paper.writePdf(path);
    //! [report]
}

ozm::Error files(QWidget *window, const FileExtensionsNameFilter &filter)
{
    //! [files]
    ozm::DefaultWidgetCreator::initialize(); // once, at start-up

    const auto accessor = ozm::DefaultWidgetCreator::fileAccessor();
    const auto place = accessor->getSaveFileName(window, u"Save table"_s, {}, filter);
    if (place.isCanceled())
        return {};
    return accessor->saveCsvFile(place, {{u"Name"_s, u"Charge"_s}, {u"T12"_s, u"2"_s}});
    //! [files]
}

//! [result]
ozm::Result<QByteArray> contentOf(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return ozm::Error(ozm::ErrorCode::FileAccess, file.errorString()).ecatch(OZM_HERE);
    return file.readAll();
}

ozm::Error show(const QString &path)
{
    const auto content = contentOf(path);
    if (!content)
        return content.error(); // knows where it arose
    qInfo() << content.value().size();
    return {};
}
//! [result]
