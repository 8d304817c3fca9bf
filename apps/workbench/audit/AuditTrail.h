#pragma once

#include <ozm_audit/Entry.h>

#include <QList>
#include <QObject>

#include <map>
#include <vector>

namespace ozm::audit {
class Store;
}

namespace workbench {

/// One entry of the trail as people see it.
struct AuditEntry
{
    ozm::audit::Entry record;
    QString text;
    bool known = true; ///< True for a record that this version understands.
    bool committed = false;
    AuditEntry *parent = nullptr;
    bool shown = false; ///< True once it has its place in the tree.
    int row = 0;        ///< That place, among its siblings.
    std::vector<AuditEntry *> children;

    [[nodiscard]] bool isUnfinished() const { return record.kind == ozm::audit::Kind::Macro && !committed; }
    /// The error of a step that did not succeed, or was refused.
    [[nodiscard]] ozm::Error outcome() const
    {
        return ozm::Error(static_cast<ozm::ErrorCode>(record.outcomeCode), record.outcomeText);
    }
};

/**
 * The audit trail in memory: the tree that the entries of a store add up to.
 *
 * refresh() reads what came since the last time, from this program or another. Macros that have neither
 * commands nor a commit mark are left out. Records that this version does not understand are entries like
 * others, with their bytes as they are stored.
 *
 * Entries live as long as the trail and keep their addresses. GUI thread.
 */
class AuditTrail : public QObject
{
    Q_OBJECT

public:
    explicit AuditTrail(const ozm::audit::Store &store, QObject *parent = nullptr);
    ~AuditTrail() override;

    /// The entries without a parent.
    [[nodiscard]] const std::vector<AuditEntry *> &entries() const { return m_top; }

    ozm::Error refresh();

Q_SIGNALS:
    void aboutToAppend(int first, int last);
    void appended();
    /// Entries that were there already change place or look.
    void aboutToReset();
    void wasReset();
    /// An entry was read for the first time; hidden ones are reported, too.
    void recorded(const workbench::AuditEntry &entry);

private:
    void take(const QList<ozm::audit::Entry> &records);
    void ingest(const ozm::audit::Entry &record, std::vector<AuditEntry *> &top);
    void commit(const ozm::audit::Entry &mark, std::vector<AuditEntry *> &top);
    void show(AuditEntry &entry, std::vector<AuditEntry *> &top);
    void hide(AuditEntry &entry, std::vector<AuditEntry *> &top);
    [[nodiscard]] AuditEntry *find(qint64 item);
    [[nodiscard]] bool touchesKnown(const QList<ozm::audit::Entry> &records) const;
    void report(const QList<ozm::audit::Entry> &records);

    const ozm::audit::Store &m_store;
    qint64 m_last = 0;
    std::map<qint64, AuditEntry> m_entries;
    std::vector<AuditEntry *> m_top;
};

} // namespace workbench
