#include "UndoTestTools.h"

#include <utility>

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

ScriptedCommand::ScriptedCommand(Edit edit, QStringList *journal, Inside inside, UndoCommand *parent)
    : UndoCommand(parent)
    , m_edit(std::move(edit))
    , m_journal(journal)
    , m_inside(std::move(inside))
{
    setText(m_edit.name);
    setAuditTrailEnabled(m_edit.auditTrail);
    if (m_edit.logged)
        setLogData(recordOf(m_edit.name));
}

ScriptedCommand::~ScriptedCommand()
{
    m_journal->append(u"dies "_s + m_edit.name);
}

bool ScriptedCommand::mergeWith(const QUndoCommand *other)
{
    return m_edit.greedy || canMergeWith(other);
}

Error ScriptedCommand::doUndo()
{
    if (m_inside && !m_edit.stepsBefore)
        m_inside({});
    return note(u"undo "_s, m_edit.failsUndo);
}

Error ScriptedCommand::doRedo()
{
    const auto inner = std::exchange(m_edit.inner, {});
    if (m_inside && (inner || !m_edit.stepsBefore))
        m_inside(inner);
    setObsolete(m_edit.obsoleteAfterRedo);
    return note(u"redo "_s, m_edit.failsRedo);
}

Error ScriptedCommand::beforeBeginFirst()
{
    if (m_inside && m_edit.stepsBefore)
        m_inside({});
    return note(u"before "_s, m_edit.failsBefore);
}

Error ScriptedCommand::afterEndLast(bool committed)
{
    return note(committed ? u"after "_s : u"aborted "_s, false);
}

Error ScriptedCommand::note(const QString &what, bool fails)
{
    m_journal->append(what + m_edit.name);
    return fails ? Error(ErrorCode::Failed, what + m_edit.name) : Error();
}

bool RecordingLogger::commitMacro(Item macro)
{
    QStringList children;
    for (const auto &child : macro->children())
        children.append(idOf(child));
    m_journal->append(u"commit %1 [%2]"_s.arg(idOf(macro), children.join(u' ')));
    return !fails;
}

RecordingLogger::Item RecordingLogger::logCommand(Item parent, const UndoCommand &command,
                                                  OperationLogItemUndoContext context)
{
    const QString what = OperationLogItemData::undoContextToString(context) + u" alone"_s;
    return keep(what, parent, *command.logData());
}

RecordingLogger::Item RecordingLogger::logCommandInMacro(Item macro, const UndoCommand &command,
                                                         OperationLogItemUndoContext context)
{
    return keep(OperationLogItemData::undoContextToString(context), macro, *command.logData());
}

RecordingLogger::Item RecordingLogger::logBeginMacro(Item parent, const OperationLogItemData &data)
{
    return keep(u"begin"_s, parent, data);
}

RecordingLogger::Item RecordingLogger::keep(const QString &what, const Item &parent,
                                            const OperationLogItemData &data)
{
    m_journal->append(u"log %1 %2 in %3"_s.arg(what, data.attributeNamesString(), idOf(parent)));
    if (fails && failsByNullEntry && what != u"begin"_s)
        return OperationLogItem::create({}, 0, 0, u"jdoe"_s, data);
    if (fails)
        return {};
    items.append(OperationLogItem::create(parent, items.size() + 1, 1, u"jdoe"_s, data));
    return items.constLast();
}

} // namespace ozm::test
