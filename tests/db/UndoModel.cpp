#include "UndoModel.h"

using namespace Qt::StringLiterals;

namespace ozm::test {

bool UndoModel::push(const std::shared_ptr<Edit> &edit)
{
    adopt();
    recentItem = run(*edit, true);
    const bool fails = edit->failed;
    const auto entry = std::make_shared<Entry>(Entry{edit});
    if ((fails && m_openMacros.isEmpty()) || !place(entry, true))
        kill(*entry);
    if (fails)
        edit->obsolete = true;
    else if (edit->alive && !m_done.isEmpty())
        m_last = edit;
    return fails;
}

void UndoModel::pushUnseen(const std::shared_ptr<Edit> &edit)
{
    journal.append(u"redo "_s + edit->name);
    edit->firstRun = false;
    edit->failed = edit->failsRedo;
    edit->obsolete = edit->obsoleteAfterRedo;
    const auto entry = std::make_shared<Entry>(Entry{edit});
    if (!place(entry, false))
        kill(*entry);
    if (edit->alive)
        m_unseen.append(entry);
    if (m_openMacros.isEmpty())
        adopt();
}

/// Records what came unseen.
void UndoModel::adopt()
{
    const QList<EntryPtr> unseen = std::exchange(m_unseen, {});
    for (const EntryPtr &entry : unseen) {
        Edit &edit = *entry->edit;
        if (!edit.failed && !m_done.isEmpty()) {
            ++m_done.last();
            m_undone.last() = 0;
            m_last = entry->edit;
        }
        record(edit, u"New"_s);
        if (edit.failed && m_openMacros.isEmpty()) {
            m_entries.removeAt(--m_index);
            kill(*entry);
        }
    }
}

/// Puts a new edit into the history unless it is merged or obsolete.
bool UndoModel::place(const EntryPtr &entry, bool seen)
{
    const bool inMacro = !m_openMacros.isEmpty();
    if (!inMacro)
        dropRedoTail();
    QList<EntryPtr> &siblings = inMacro ? m_openMacros.last()->children : m_entries;
    const Edit &edit = *entry->edit;
    if (const auto before = siblings.isEmpty() ? nullptr : siblings.last()->edit) {
        const bool sameKind = before->mergeId != -1 && before->mergeId == edit.mergeId;
        if (sameKind && (before->greedy || (seen && !before->failed && !edit.failed))) {
            kill(*entry);
            if (before->obsolete) {
                kill(*siblings.takeLast());
                m_index = inMacro ? m_index : m_index - 1;
            }
            return true;
        }
    }
    if (edit.obsolete)
        return false;
    siblings.append(entry);
    if (!inMacro) {
        ++m_index;
        checkLimit();
    }
    return true;
}

void UndoModel::checkLimit()
{
    for (; undoLimit > 0 && m_entries.size() > undoLimit; --m_index)
        kill(*m_entries.takeFirst());
}

void UndoModel::before(Edit &edit)
{
    if (edit.stepsBefore)
        innerStep(edit);
    journal.append(u"before "_s + edit.name);
    edit.failed = edit.failsBefore;
}

/// Counts a run of the edit in.
bool UndoModel::mayRun(Edit &edit)
{
    edit.failed = false;
    if (!m_done.isEmpty() && m_done.last() == 0)
        before(edit);
    if (!edit.failed && !m_done.isEmpty()) {
        ++m_done.last();
        m_undone.last() = 0;
    }
    return !edit.failed;
}

qsizetype UndoModel::run(Edit &edit, bool inPush)
{
    const bool wasInStep = std::exchange(m_inStep, !inPush);
    qsizetype item = 0;
    if (mayRun(edit)) {
        if (edit.inner && !m_inStep)
            push(edit.inner);
        else if (edit.inner)
            journal << u"! Push refused while an undo or redo runs"_s << u"dies "_s + edit.inner->name;
        if (edit.inner || !edit.stepsBefore)
            innerStep(edit);
        edit.inner.reset();
        edit.obsolete = edit.obsoleteAfterRedo;
        journal.append(u"redo "_s + edit.name);
        edit.failed = edit.failsRedo;
        const QString context = edit.firstRun ? u"New"_s : u"Redo"_s;
        edit.firstRun = false;
        const bool canRedo = m_openMacros.isEmpty() && m_index < m_entries.size();
        item = inPush || canRedo ? record(edit, context) : 0;
    }
    m_inStep = wasInStep;
    return item;
}

void UndoModel::undoEdit(Edit &edit)
{
    m_inStep = true;
    edit.failed = false;
    if (!m_undone.isEmpty()) {
        if (m_undone.last() == 0)
            before(edit);
        if (!m_undone.isEmpty()) {
            ++m_undone.last();
            --m_done.last();
        }
    }
    if (!edit.failed) {
        if (!edit.stepsBefore)
            innerStep(edit);
        journal.append(u"undo "_s + edit.name);
        edit.failed = edit.failsUndo;
        record(edit, u"Undo"_s);
        if (!m_done.isEmpty() && m_done.last() == 0) {
            journal.append(u"after "_s + edit.name);
            edit.failed = false;
        }
    }
    m_inStep = false;
}

qsizetype UndoModel::record(const Edit &edit, const QString &context)
{
    if (!edit.logged)
        return 0;
    qsizetype item = 0;
    if (loggerAttached && edit.auditTrail) {
        const qsizetype macro = context != u"Undo"_s && !m_openItems.isEmpty() ? m_openItems.last() : 0;
        item = newItem(macro ? context : context + u" alone"_s, edit.name, macro, true);
        if (!item)
            journal.append(u"! Error in logging"_s);
    }
    if (edit.failed)
        journal.append(u"! Error in"_s);
    return item;
}

qsizetype UndoModel::newItem(const QString &what, const QString &name, qsizetype parent, bool collapse)
{
    journal.append(u"log %1 %2 in %3"_s.arg(what, name, parent ? QString::number(parent) : u"-"_s));
    if (loggerFails)
        return 0;
    m_items.append(Item{0, collapse});
    setParent(m_items.size() - 1, parent);
    return m_items.size() - 1;
}

void UndoModel::setParent(qsizetype item, qsizetype parent)
{
    if (const qsizetype old = m_items.at(item).parent)
        m_items[old].children.removeAll(item);
    m_items[item].parent = parent;
    if (parent)
        m_items[parent].children.append(item);
}

bool UndoModel::commit(qsizetype item)
{
    if (m_items.at(item).collapse && m_items.at(item).children.size() < 2) {
        const QList<qsizetype> children = m_items.at(item).children;
        if (children.isEmpty())
            return true;
        item = children.first();
        setParent(item, 0);
    }
    QStringList children;
    for (const qsizetype child : m_items.at(item).children)
        children.append(QString::number(child));
    journal.append(u"commit %1 [%2]"_s.arg(QString::number(item), children.join(u' ')));
    return !loggerFails;
}

void UndoModel::undoEntry(Entry &entry)
{
    if (entry.edit)
        undoEdit(*entry.edit);
    for (qsizetype i = entry.children.size(); i-- > 0;)
        undoEntry(*entry.children.at(i));
}

void UndoModel::redoEntry(Entry &entry)
{
    if (entry.edit)
        run(*entry.edit, false);
    for (const EntryPtr &child : entry.children)
        redoEntry(*child);
}

void UndoModel::innerStep(const Edit &edit)
{
    const bool refused = m_inStep && (edit.step == Edit::Begin || edit.step == Edit::Clear);
    if (refused)
        journal.append(u"! %1 refused while an undo or redo runs"_s.arg(
            edit.step == Edit::Begin ? u"Macro"_s : u"Clear"_s));
    else if (edit.step == Edit::Undo)
        undo();
    else if (edit.step == Edit::Redo)
        redo();
    else if (edit.step == Edit::Begin)
        beginMacro(u"in "_s + edit.name, true);
    else if (edit.step == Edit::End)
        endMacro();
    else if (edit.step == Edit::Abort)
        abortMacro();
    else if (edit.step == Edit::Clear)
        clear();
}

/// Steps that come while a step of the history runs: the base class asks each edit.
void UndoModel::refuse(const Entry &entry, const QString &what)
{
    if (entry.edit)
        journal.append(u"! %1 refused while an undo or redo runs"_s.arg(what));
    for (qsizetype i = 0; i < entry.children.size(); ++i)
        refuse(*entry.children.at(i), what);
}

void UndoModel::undo()
{
    if (m_index == 0)
        return;
    if (!m_openMacros.isEmpty()) {
        journal.append(u"! in the middle of a macro"_s);
        return;
    }
    const EntryPtr entry = m_entries.at(m_index - 1);
    if (m_inStep) {
        refuse(*entry, u"Undo"_s);
        return;
    }
    if (!entry->edit || !entry->edit->obsolete)
        undoEntry(*entry);
    --m_index;
    if (entry->edit && entry->edit->obsolete) {
        m_entries.removeAt(m_index);
        kill(*entry);
    }
}

void UndoModel::redo()
{
    if (m_index == m_entries.size())
        return;
    if (!m_openMacros.isEmpty()) {
        journal.append(u"! in the middle of a macro"_s);
        return;
    }
    const EntryPtr entry = m_entries.at(m_index);
    if (m_inStep) {
        refuse(*entry, u"Redo"_s);
        return;
    }
    if (!entry->edit || !entry->edit->obsolete)
        redoEntry(*entry);
    if (entry->edit && entry->edit->obsolete) {
        m_entries.removeAt(m_index);
        kill(*entry);
    } else {
        ++m_index;
    }
}

void UndoModel::beginMacro(const QString &name, bool collapse)
{
    adopt();
    m_done.append(0);
    m_undone.append(0);
    if (loggerAttached) {
        m_openItems.append(
            newItem(u"begin"_s, name, m_openItems.isEmpty() ? 0 : m_openItems.last(), collapse));
        if (!m_openItems.last())
            journal.append(u"! Error in logging begin of macro command"_s);
    }
    if (m_openMacros.isEmpty())
        dropRedoTail();
    const auto macro = std::make_shared<Entry>(Entry{{}, name});
    (m_openMacros.isEmpty() ? m_entries : m_openMacros.last()->children).append(macro);
    m_openMacros.append(macro);
}

bool UndoModel::endMacro()
{
    adopt();
    bool ok = true;
    if (loggerAttached) {
        const qsizetype item = m_openItems.isEmpty() ? 0 : m_openItems.takeLast();
        ok = item && commit(item);
        if (!item)
            journal.append(u"! No macro command to end"_s);
    }
    closeMacro();
    finishMacro(u"after "_s);
    return ok;
}

bool UndoModel::abortMacro()
{
    adopt();
    bool ok = true;
    if (loggerAttached) {
        ok = !m_openItems.isEmpty() && m_openItems.takeLast();
        if (!ok)
            journal.append(u"! No macro command to abort"_s);
    }
    closeMacro();
    finishMacro(u"aborted "_s);
    dropCounters();
    return ok;
}

void UndoModel::closeMacro()
{
    if (m_openMacros.isEmpty()) {
        journal.append(u"! no matching beginMacro()"_s);
        return;
    }
    m_openMacros.removeLast();
    if (m_openMacros.isEmpty()) {
        ++m_index;
        checkLimit();
    }
}

void UndoModel::finishMacro(const QString &call)
{
    if (m_last) {
        journal.append(call + m_last->name);
        m_last->failed = false;
    }
    m_last.reset();
}

void UndoModel::clear()
{
    for (const EntryPtr &entry : std::as_const(m_entries))
        kill(*entry);
    m_entries.clear();
    m_unseen.clear();
    m_index = 0;
    if (m_openMacros.isEmpty())
        return;
    for (; !m_openMacros.isEmpty(); m_openMacros.removeLast())
        dropCounters();
    m_openItems.clear();
}

void UndoModel::kill(Entry &entry)
{
    if (entry.edit) {
        journal.append(u"dies "_s + entry.edit->name);
        entry.edit->alive = false;
        if (m_last == entry.edit)
            m_last.reset();
    }
    for (const EntryPtr &child : std::as_const(entry.children))
        kill(*child);
}

void UndoModel::dropRedoTail()
{
    while (m_entries.size() > m_index)
        kill(*m_entries.takeLast());
}

void UndoModel::dropCounters()
{
    if (m_done.isEmpty())
        return;
    m_done.removeLast();
    m_undone.removeLast();
}

QString UndoModel::entryText(const Entry &entry)
{
    if (entry.edit)
        return entry.edit->name;
    QStringList texts;
    for (const EntryPtr &child : entry.children)
        texts.append(entryText(*child));
    return u'(' + texts.join(u' ') + u')';
}

QString UndoModel::history() const
{
    QStringList texts;
    for (qsizetype i = 0; i <= m_entries.size(); ++i) {
        if (i == m_index)
            texts.append(u"|"_s);
        if (i < m_entries.size())
            texts.append(entryText(*m_entries.at(i)));
    }
    return texts.join(u' ');
}

} // namespace ozm::test
