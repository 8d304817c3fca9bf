#include "audit/AuditTrail.h"

#include <ozm_audit/Store.h>
#include <ozm_widgets/db/common/OperationLogItemData.h>

#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>

using namespace Qt::StringLiterals;
using ozm::Error;
using ozm::OperationLogItemData;
using ozm::audit::Entry;
using ozm::audit::Kind;

namespace workbench {

namespace {

// The form of records that this version reads. Later ones may mean something else by the same words.
constexpr int kKnownRecordVersion = 1;

// Enough of unknown bytes to recognise them by; all of them are in the export.
constexpr int kShownBytes = 120;

// Read at once.
constexpr int kPage = 1000;

bool isStep(const Entry &record)
{
    return record.kind == Kind::Command || record.kind == Kind::Macro || record.kind == Kind::Event;
}

bool isKnownStep(const Entry &record, const OperationLogItemData &data, bool parsed)
{
    if (!parsed || !data.isValid())
        return false;
    const QJsonObject json = QJsonDocument::fromJson(record.record).object();
    return json.value("version"_L1).toInt(kKnownRecordVersion) <= kKnownRecordVersion;
}

/// An entry that the store or the logger made of its own accord, such as the beginning of a session.
QString ownText(const Entry &record)
{
    const QString event = QJsonDocument::fromJson(record.record).object().value("event"_L1).toString();
    if (isStep(record) && event.isEmpty())
        return {};
    const QString kind = ozm::audit::kindToString(record.kind);
    return event.isEmpty() ? kind : kind + u": "_s + event;
}

AuditEntry entryOf(const Entry &record)
{
    bool parsed = false;
    const OperationLogItemData data(record.record, &parsed);
    AuditEntry entry;
    entry.record = record;
    entry.text = isKnownStep(record, data, parsed) ? data.toString() : ownText(record);
    entry.known = !entry.text.isEmpty();
    if (!entry.known) {
        entry.text = AuditTrail::tr("Unknown record, kept as stored: %1")
                         .arg(QString::fromUtf8(record.record.left(kShownBytes)).simplified());
    }
    return entry;
}

/// Where the entry that @p mark completes finally belongs.
qint64 placeOf(const Entry &mark)
{
    return QJsonDocument::fromJson(mark.record).object().value("parent"_L1).toInteger();
}

void renumber(const std::vector<AuditEntry *> &siblings, int from)
{
    for (int row = from; row < static_cast<int>(siblings.size()); ++row)
        siblings.at(static_cast<std::size_t>(row))->row = row;
}

} // namespace

AuditTrail::AuditTrail(const ozm::audit::Store &store, QObject *parent)
    : QObject(parent)
    , m_store(store)
{}

AuditTrail::~AuditTrail() = default;

Error AuditTrail::refresh()
{
    ozm::audit::Query query;
    query.pageSize = kPage;
    query.after = m_last;
    while (true) {
        const auto page = m_store.find(query);
        if (!page)
            return page.error();
        if (page.value().isEmpty())
            return {};
        take(page.value());
        if (page.value().size() < kPage)
            return {};
        query.after = m_last;
    }
}

void AuditTrail::take(const QList<Entry> &records)
{
    if (touchesKnown(records)) {
        Q_EMIT aboutToReset();
        for (const Entry &record : records)
            ingest(record, m_top);
        Q_EMIT wasReset();
    } else {
        std::vector<AuditEntry *> fresh;
        for (const Entry &record : records)
            ingest(record, fresh);
        if (!fresh.empty()) {
            const int first = static_cast<int>(m_top.size());
            Q_EMIT aboutToAppend(first, first + static_cast<int>(fresh.size()) - 1);
            m_top.insert(m_top.end(), fresh.cbegin(), fresh.cend());
            renumber(m_top, first);
            Q_EMIT appended();
        }
    }
    m_last = records.constLast().number;
    report(records);
}

bool AuditTrail::touchesKnown(const QList<Entry> &records) const
{
    return std::ranges::any_of(
        records, [this](const Entry &record) { return record.parent > 0 && record.parent <= m_last; });
}

void AuditTrail::ingest(const Entry &record, std::vector<AuditEntry *> &top)
{
    if (record.kind == Kind::Commit) {
        commit(record, top);
        return;
    }
    AuditEntry &entry = m_entries.insert_or_assign(record.number, entryOf(record)).first->second;
    entry.parent = find(record.parent);
    // A macro has its place once there is something in it.
    if (record.kind != Kind::Macro)
        show(entry, top);
}

void AuditTrail::commit(const Entry &mark, std::vector<AuditEntry *> &top)
{
    AuditEntry *entry = find(mark.parent);
    if (!entry)
        return;
    entry->committed = true;
    AuditEntry *parent = find(placeOf(mark));
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

void AuditTrail::report(const QList<Entry> &records)
{
    for (const Entry &record : records) {
        const AuditEntry *entry = record.kind == Kind::Commit ? nullptr : find(record.number);
        if (entry)
            Q_EMIT recorded(*entry);
    }
}

} // namespace workbench
