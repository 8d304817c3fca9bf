#include "UndoTestTools.h"

using namespace Qt::StringLiterals;

namespace ozm::test {

namespace {

QString idOf(const QSharedPointer<OperationLogItem> &item)
{
    return item ? QString::number(item->id()) : u"-"_s;
}

} // namespace

OperationLogItemData recordOf(const QString &name)
{
    return {OperationLogItemType::Set, OperationLogItemSubject::Type::Project, {name}, 1};
}

ScriptedCommand::ScriptedCommand(Script script, QStringList *journal, UndoCommand *parent)
    : UndoCommand(parent)
    , m_script(std::move(script))
    , m_journal(journal)
{
    setText(m_script.name);
    setAuditTrailEnabled(m_script.auditTrail);
    if (m_script.logged)
        setLogData(recordOf(m_script.name));
}

ScriptedCommand::~ScriptedCommand()
{
    m_journal->append(u"dies "_s + m_script.name);
}

bool ScriptedCommand::mergeWith(const QUndoCommand *other)
{
    return m_script.greedy || canMergeWith(other);
}

Error ScriptedCommand::doUndo()
{
    if (m_script.inUndo)
        m_script.inUndo();
    return note(u"undo "_s, m_script.failsUndo);
}

Error ScriptedCommand::doRedo()
{
    if (m_script.inRedo)
        m_script.inRedo();
    setObsolete(m_script.obsoleteAfterRedo);
    return note(u"redo "_s, m_script.failsRedo);
}

Error ScriptedCommand::beforeBeginFirst()
{
    if (m_script.inBefore)
        m_script.inBefore();
    return note(u"before "_s, m_script.failsBefore);
}

Error ScriptedCommand::afterEndLast(bool committed)
{
    return note(committed ? u"after "_s : u"aborted "_s, false);
}

Error ScriptedCommand::note(const QString &what, bool fails)
{
    m_journal->append(what + m_script.name);
    return fails ? Error(ErrorCode::Failed, what + m_script.name) : Error();
}

bool RecordingLogger::commitMacro(const QSharedPointer<OperationLogItem> &macro)
{
    QStringList children;
    for (const auto &child : macro->children())
        children.append(idOf(child));
    m_journal->append(u"commit %1 [%2]"_s.arg(idOf(macro), children.join(u' ')));
    return !fails;
}

QSharedPointer<OperationLogItem> RecordingLogger::logCommand(const QSharedPointer<OperationLogItem> &parent,
                                                             const UndoCommand &command,
                                                             OperationLogItemUndoContext context)
{
    const QString what = OperationLogItemData::undoContextToString(context) + u" alone"_s;
    return keep(what, parent, *command.logData());
}

QSharedPointer<OperationLogItem>
RecordingLogger::logCommandInMacro(const QSharedPointer<OperationLogItem> &macro, const UndoCommand &command,
                                   OperationLogItemUndoContext context)
{
    return keep(OperationLogItemData::undoContextToString(context), macro, *command.logData());
}

QSharedPointer<OperationLogItem>
RecordingLogger::logBeginMacro(const QSharedPointer<OperationLogItem> &parent,
                               const OperationLogItemData &data)
{
    return keep(u"begin"_s, parent, data);
}

QSharedPointer<OperationLogItem> RecordingLogger::keep(const QString &what,
                                                       const QSharedPointer<OperationLogItem> &parent,
                                                       const OperationLogItemData &data)
{
    m_journal->append(u"log %1 %2 in %3"_s.arg(what, data.attributeNamesString(), idOf(parent)));
    if (fails)
        return {};
    items.append(OperationLogItemPrivate::createItem(parent, items.size() + 1, 1, u"jdoe"_s, data));
    return items.constLast();
}

} // namespace ozm::test
