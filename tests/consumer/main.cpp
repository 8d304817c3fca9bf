#include <ozm_common_core_mini/ColumnNames.h>
#include <ozm_common_core_mini/RowNode.h>
#include <ozm_common_stable/Result.h>
#include <ozm_widgets/AbstractTemplateEditor.h>
#include <ozm_widgets/DefaultWidgetCreator.h>
#include <ozm_widgets/TemplateEditorJSEngine.h>
#include <ozm_widgets/db/common/AuditTrailLoggingInterface.h>
#include <ozm_widgets/db/common/UndoCommand.h>
#include <ozm_widgets/db/common/UndoRedoHints.h>
#include <ozm_widgets/db/common/UndoStack.h>

#include <QCoreApplication>
#include <QDateTime>
#include <QTemporaryDir>
#include <QTextStream>

using namespace Qt::StringLiterals;
using namespace ozm;

namespace {

class SetCharge : public UndoCommand
{
public:
    SetCharge(RowNode *row, int charge)
        : m_row(row)
        , m_charge(charge)
        , m_oldCharge(row->getDataAt(kCharge))
    {
        setText(u"Set charge"_s);
        setLogData({OperationLogItemType::Set,
                    OperationLogItemSubject(OperationLogItemSubject::Type::Label, *row),
                    {kCharge},
                    charge,
                    m_oldCharge});
    }

protected:
    Error doRedo() override { return set(m_charge); }
    Error doUndo() override { return set(m_oldCharge); }

private:
    Error set(const QVariant &charge)
    {
        return m_row->setDataAt(kCharge, charge) ? Error() : Error(ErrorCode::Failed, u"No such column"_s);
    }

    RowNode *m_row;
    QVariant m_charge;
    QVariant m_oldCharge;
};

class Logger : public AuditTrailLoggingInterface
{
public:
    using Item = QSharedPointer<OperationLogItem>;

    bool commitMacro(Item) override { return true; }
    Item logCommand(Item parent, const UndoCommand &command, OperationLogItemUndoContext context) override
    {
        OperationLogItemData data = *command.logData();
        data.setUndoContext(context);
        return keep(parent, data);
    }
    Item logCommandInMacro(Item macro, const UndoCommand &command,
                           OperationLogItemUndoContext context) override
    {
        return logCommand(macro, command, context);
    }
    Item logBeginMacro(Item parent, const OperationLogItemData &data) override { return keep(parent, data); }

    QList<Item> items;

private:
    Item keep(const Item &parent, const OperationLogItemData &data)
    {
        items.append(OperationLogItemPrivate::createItem(
            parent, items.size() + 1, QDateTime::currentMSecsSinceEpoch(), u"consumer"_s, data));
        return items.constLast();
    }
};

Error saveTable(const QString &path)
{
    using Location = IFileAccessor::DestinationFileLocation;
    return DefaultWidgetCreator::fileAccessor()->saveCsvFile(Location("file:"_L1 + path),
                                                             {{kName, u"T12"_s}});
}

} // namespace

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    RowNode row({kName, kCharge});
    row.setDataAt(kName, u"T12"_s);
    row.setDataAt(kCharge, 2);

    Logger logger;
    UndoStack stack;
    stack.setLogging(&logger);
    if (const Error error = stack.push(new SetCharge(&row, 3)); error.hasError())
        return 1;
    stack.undo();

    const QTemporaryDir folder;
    if (saveTable(folder.filePath(u"table.csv"_s)).hasError())
        return 1;

    QTextStream out(stdout);
    for (const Logger::Item &item : std::as_const(logger.items))
        out << item->dataToString() << '\n';

    const QString text =
        u"[Name], <script>templateEditorCore.number(inputParameters['[Charge]'], 1)</script>"_s;
    QString decoded;
    // By the plug-in, and by the helper program beside it.
    using Place = TemplateEditorJSEngine::ScriptPlace;
    for (const Place place : {Place::InProgram, Place::HelperProcess}) {
        TemplateEditorJSEngine::setScriptPlace(place);
        decoded +=
            AbstractTemplateEditor::withoutScriptTags(AbstractTemplateEditor::decodeTEC(text, &row, {}));
    }
    out << decoded << '\n';
    return row.getDataAt(kCharge) == 2 && logger.items.size() == 2 && decoded == u"T12, 2.0T12, 2.0"_s ? 0
                                                                                                       : 1;
}
