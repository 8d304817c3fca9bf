#include "audit/AuditTrail.h"

#include "audit/AuditDatabase.h"

#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>

using namespace Qt::StringLiterals;
using ozm::Error;
using ozm::OperationLogItemData;

namespace workbench {

namespace {

// The form of records that this version reads. Later ones may mean something else by the same words.
constexpr int kKnownRecordVersion = 1;

// Enough of unknown bytes to recognise them by; all of them are in the export.
constexpr int kShownBytes = 120;

bool isKnown(const AuditRecord &record, const OperationLogItemData &data, bool parsed)
{
    if (!parsed || !data.isValid())
        return false;
    const QJsonObject json = QJsonDocument::fromJson(record.json).object();
    return json.value("version"_L1).toInt(kKnownRecordVersion) <= kKnownRecordVersion;
}

AuditEntry entryOf(const AuditRecord &record)
{
    bool parsed = false;
    const OperationLogItemData data(record.json, &parsed);
    AuditEntry entry;
    entry.record = record;
    entry.known = isKnown(record, data, parsed);
    entry.text = entry.known ? data.toString()
                             : AuditTrail::tr("Unknown record, kept as stored: %1")
                                   .arg(QString::fromUtf8(record.json.left(kShownBytes)).simplified());
    return entry;
}

void renumber(const std::vector<AuditEntry *> &siblings, int from)
{
    for (int row = from; row < static_cast<int>(siblings.size()); ++row)
        siblings.at(static_cast<std::size_t>(row))->row = row;
}

} // namespace

AuditTrail::AuditTrail(AuditDatabase &database, QObject *parent)
    : QObject(parent)
    , m_database(database)
{}

AuditTrail::~AuditTrail() = default;

Error AuditTrail::refresh()
{
    const auto records = m_database.recordsAfter(m_last);
    if (!records)
        return records.error();
    if (records.value().isEmpty())
        return {};

    if (touchesKnown(records.value())) {
        Q_EMIT aboutToReset();
        for (const AuditRecord &record : records.value())
            ingest(record, m_top);
        Q_EMIT wasReset();
    } else {
        std::vector<AuditEntry *> fresh;
        for (const AuditRecord &record : records.value())
            ingest(record, fresh);
        if (!fresh.empty()) {
            const int first = static_cast<int>(m_top.size());
            Q_EMIT aboutToAppend(first, first + static_cast<int>(fresh.size()) - 1);
            m_top.insert(m_top.end(), fresh.cbegin(), fresh.cend());
            renumber(m_top, first);
            Q_EMIT appended();
        }
    }
    m_last = records.value().constLast().sequence;
    report(records.value());
    return {};
}

bool AuditTrail::touchesKnown(const QList<AuditRecord> &records) const
{
    // Items are numbered as their rows are, so everything up to the last row read is known.
    return std::ranges::any_of(records, [this](const AuditRecord &record) {
        return (record.parent > 0 && record.parent <= m_last) || record.item <= m_last;
    });
}

void AuditTrail::ingest(const AuditRecord &record, std::vector<AuditEntry *> &top)
{
    if (record.kind == AuditKind::Commit) {
        commit(record, top);
        return;
    }
    // A number given twice is not a work of this program; both rows are shown all the same.
    const qint64 number = m_entries.contains(record.item) ? record.sequence : record.item;
    AuditEntry &entry = m_entries.insert_or_assign(number, entryOf(record)).first->second;
    entry.parent = find(record.parent);
    // A macro has its place once there is something in it.
    if (record.kind != AuditKind::Macro)
        show(entry, top);
}

void AuditTrail::commit(const AuditRecord &mark, std::vector<AuditEntry *> &top)
{
    AuditEntry *entry = find(mark.item);
    if (!entry)
        return;
    entry->committed = true;
    AuditEntry *parent = find(mark.parent);
    if (entry->parent != parent) {
        hide(*entry, top);
        entry->parent = parent;
    }
    show(*entry, top);
}

void AuditTrail::show(AuditEntry &entry, std::vector<AuditEntry *> &top)
{
    if (entry.shown)
        return;
    entry.shown = true;
    if (entry.parent)
        show(*entry.parent, top);
    auto &siblings = entry.parent ? entry.parent->children : top;
    entry.row = static_cast<int>(siblings.size());
    siblings.push_back(&entry);
}

void AuditTrail::hide(AuditEntry &entry, std::vector<AuditEntry *> &top)
{
    if (!entry.shown)
        return;
    entry.shown = false;
    auto &siblings = entry.parent ? entry.parent->children : top;
    std::erase(siblings, &entry);
    renumber(siblings, entry.row);
    if (entry.parent && entry.parent->children.empty() && entry.parent->isUnfinished())
        hide(*entry.parent, top);
}

AuditEntry *AuditTrail::find(qint64 item)
{
    const auto found = m_entries.find(item);
    return found != m_entries.end() ? &found->second : nullptr;
}

void AuditTrail::report(const QList<AuditRecord> &records)
{
    for (const AuditRecord &record : records) {
        const AuditEntry *entry = record.kind == AuditKind::Commit ? nullptr : find(record.item);
        if (entry)
            Q_EMIT recorded(*entry);
    }
}

} // namespace workbench
