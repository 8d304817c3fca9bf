#pragma once

#include "UndoTestTools.h"

namespace ozm::test {

/**
 * The duties of an undo stack with an audit trail, written down a second time and as plainly as possible:
 * values in lists, no toolkit, no signals. Each operation writes into `journal` what is to happen, in the
 * words of ScriptedCommand and RecordingLogger.
 */
class UndoModel
{
public:
    /// Returns whether the push fails.
    bool push(const std::shared_ptr<Edit> &edit);
    /// Through the base class.
    void pushUnseen(const std::shared_ptr<Edit> &edit);
    void undo();
    void redo();
    void beginMacro(const QString &name, bool collapse);
    bool endMacro();
    bool abortMacro();
    void clear();

    /// One line for the whole history: "a (b c) | d", with the bar at the index.
    [[nodiscard]] QString history() const;

    int undoLimit = 0;
    bool loggerAttached = true;
    bool loggerFails = false;
    QStringList journal;
    /// Of the last push, 0 for none.
    qsizetype recentItem = 0;

private:
    /// An edit, or a macro when there is none.
    struct Entry
    {
        std::shared_ptr<Edit> edit = {};
        QString macroName = {};
        QList<std::shared_ptr<Entry>> children = {};
    };
    struct Item
    {
        qsizetype parent = 0;
        bool collapse = true;
        QList<qsizetype> children = {};
    };
    using EntryPtr = std::shared_ptr<Entry>;

    qsizetype run(Edit &edit, bool inPush);
    bool mayRun(Edit &edit);
    void undoEdit(Edit &edit);
    void undoEntry(Entry &entry);
    void redoEntry(Entry &entry);
    void refuse(const Entry &entry, const QString &what);
    void innerStep(const Edit &edit);
    void before(Edit &edit);
    void checkLimit();
    void adopt();
    qsizetype record(const Edit &edit, const QString &context);
    qsizetype newItem(const QString &what, const QString &name, qsizetype parent, bool collapse);
    void setParent(qsizetype item, qsizetype parent);
    bool commit(qsizetype item);

    bool place(const EntryPtr &entry, bool seen);
    void kill(Entry &entry);
    void dropRedoTail();
    void finishMacro(const QString &call);
    void closeMacro();
    void dropCounters();
    [[nodiscard]] static QString entryText(const Entry &entry);

    QList<EntryPtr> m_entries;
    qsizetype m_index = 0;
    QList<EntryPtr> m_openMacros;

    QList<Item> m_items{Item()}; // Item 0 stands for none.
    QList<qsizetype> m_openItems;
    QList<int> m_done;
    QList<int> m_undone;
    std::shared_ptr<Edit> m_last;
    QList<EntryPtr> m_unseen;
    bool m_inStep = false; ///< Of the history.
};

} // namespace ozm::test
