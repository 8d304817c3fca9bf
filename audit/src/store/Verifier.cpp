#include "Verifier.h"

#include "../Texts.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace ozm::audit {

namespace {

constexpr qint64 kVerifiedAtOnce = 4096;
// A trail with more is not read further by anybody.
constexpr qsizetype kMostFindings = 1000;

QJsonObject jsonOf(const Finding &finding)
{
    QJsonObject json{{u"damage"_s, damageToString(finding.damage)},
                     {u"first"_s, finding.first},
                     {u"last"_s, finding.last}};
    if (!finding.checkpoint.root.isEmpty()) {
        json.insert(u"size"_s, finding.checkpoint.size);
        json.insert(u"root"_s, QString::fromLatin1(finding.checkpoint.root.toBase64()));
    }
    return json;
}

QByteArray base64(const QJsonValue &value)
{
    return QByteArray::fromBase64(value.toString().toLatin1());
}

} // namespace

QByteArray reAnchorRecord(const Verification &verification, const Frontier &frontier)
{
    QJsonArray findings;
    for (const Finding &finding : verification.findings) {
        if (finding.acknowledgedBy == 0)
            findings.append(jsonOf(finding));
    }
    const QJsonObject json{
        {u"size"_s, frontier.size()},
        {u"root"_s, QString::fromLatin1(toBytes(frontier.root()).toBase64())},
        {u"frontier"_s, QString::fromLatin1(frontier.toBytes().toBase64())},
        {u"findings"_s, findings},
    };
    return QJsonDocument(json).toJson(QJsonDocument::Compact);
}

Verifier::Verifier(StoreBackend &backend, const QList<Checkpoint> &outside, const PublicKey *key)
    : m_backend(backend)
    , m_outside(outside)
    , m_key(key)
    , m_trail(backend.trail().toUtf8())
{
    m_result.trail = backend.trail();
}

Result<Verification> Verifier::run(const Progress &between)
{
    takeAnchors(m_outside, true);
    const auto kept = m_backend.keptCheckpoints();
    if (!kept)
        return kept.error();
    takeAnchors(kept.value(), false);
    std::ranges::stable_sort(m_anchors, {}, [](const Anchor &anchor) { return anchor.checkpoint.size; });

    if (Error error = readHead(); error.hasError())
        return error;
    atSize();
    if (Error error = readRows(between); error.hasError())
        return error;
    if (Error error = readLaterDisposals(); error.hasError())
        return error;
    judgeEnd();
    judgeAnchors();
    judgeHead();
    judgeDisposals();
    acknowledge();
    std::ranges::stable_sort(m_result.findings, {}, &Finding::first);
    m_result.size = m_end;
    m_result.root = m_treeKnown ? toBytes(m_stored.root()) : QByteArray();
    return m_result;
}

void Verifier::takeAnchors(const QList<Checkpoint> &checkpoints, bool outside)
{
    for (const Checkpoint &checkpoint : checkpoints) {
        if (checkpoint.origin != m_result.trail) {
            find(outside ? Damage::NotTheTrail : Damage::IndexDiffers, checkpoint.size, checkpoint.size,
                 Texts::tr("A checkpoint belongs to the trail \"%1\", not to this one.")
                     .arg(checkpoint.origin),
                 checkpoint);
        } else if (outside && m_key && !m_key->verifies(checkpoint.note)) {
            find(Damage::NotTheTrail, checkpoint.size, checkpoint.size,
                 Texts::tr("The checkpoint at entry %1 is not signed by the key \"%2\".")
                     .arg(checkpoint.size)
                     .arg(m_key->name()),
                 checkpoint);
        } else {
            m_anchors.append({checkpoint, outside, {}});
        }
    }
}

Error Verifier::readHead()
{
    // In this order: entries stored in between are then counted by the head, not missed by it.
    const auto last = m_backend.lastRow();
    if (!last)
        return last.error();
    const auto head = m_backend.head();
    if (!head)
        return head.error();
    m_lastRow = last.value();
    m_head = head.value();
    m_end = qMax(m_lastRow, m_head.size);
    return {};
}

Error Verifier::readRows(const Progress &between)
{
    for (qint64 first = 1; first <= m_end; first += kVerifiedAtOnce) {
        const qint64 before = m_next;
        Error error =
            m_backend.rows(first, qMin(m_end, first + kVerifiedAtOnce - 1), [this](const StoredRow &row) {
                checkRow(row);
                return true;
            });
        if (error.hasError())
            return error;
        // A head that is damaged can claim any number.
        if (m_next == before && first > m_lastRow)
            break;
        if (!between(qMin(m_end, first + kVerifiedAtOnce - 1), m_end))
            return Error(ErrorCode::Failed, Texts::tr("The verification was cancelled.")).ecatch(OZM_HERE);
    }
    return {};
}

/// Bytes may have gone while the rows were read; the entries that say so are then later ones.
Error Verifier::readLaterDisposals()
{
    const auto last = m_backend.lastRow();
    if (!last || last.value() <= m_end)
        return last ? Error() : last.error();
    return m_backend.rows(m_end + 1, last.value(), [this](const StoredRow &row) {
        EntryMembers members;
        if (members.read(row.bytes) && members.kind != "re-anchor")
            takeRecord(row, members);
        return true;
    });
}

void Verifier::checkRow(const StoredRow &row)
{
    if (row.number > m_next) {
        find(Damage::Missing, m_next, row.number - 1,
             row.number - 1 == m_next
                 ? Texts::tr("Entry %1 is missing.").arg(m_next)
                 : Texts::tr("The entries %1 to %2 are missing.").arg(m_next).arg(row.number - 1));
        m_treeKnown = false;
    }
    m_next = row.number + 1;
    // A damaged tree of keys can show all entries in passing, and miss the one that is asked for.
    if (!m_backend.isFound(row)) {
        find(Damage::IndexDiffers, row.number, row.number,
             Texts::tr("Entry %1 is there, but is not found by its number.").arg(row.number));
    }
    const auto stored = toHash(row.hash);
    Hash computed = {};
    if (row.bytes.isEmpty()) {
        if (!m_result.disposed.isEmpty() && m_result.disposed.constLast().last == row.number - 1)
            m_result.disposed.last().last = row.number;
        else
            m_result.disposed.append({row.number, row.number});
        computed = stored.value_or(Hash());
    } else {
        EntryMembers members;
        const bool isEntry = members.read(row.bytes);
        computed = leafHash(row.bytes);
        if (!checkBytes(row, members, computed, isEntry)) {
            checkIndex(row, members);
            takeRecord(row, members);
        }
    }
    grow(stored.value_or(Hash()), computed);
    atSize();
}

std::optional<Damage> Verifier::checkBytes(const StoredRow &row, const EntryMembers &members,
                                           const Hash &computed, bool isEntry)
{
    const bool hashFits = toBytes(computed) == row.hash;
    if (hashFits && isEntry && members.number == row.number && members.trail == m_trail)
        return {};
    m_lastDamaged = row.number;
    bool moved = isEntry && members.number != row.number && members.trail == m_trail;
    if (moved && !hashFits) {
        const auto there = m_backend.hashes(0, members.number - 1, 1);
        moved = there && !there.value().empty() && there.value().front() == computed;
    }
    if (moved) {
        find(Damage::Reordered, row.number, row.number,
             Texts::tr("Entry %1 stands in the place of entry %2.").arg(members.number).arg(row.number));
        return Damage::Reordered;
    }
    find(Damage::Changed, row.number, row.number, Texts::tr("Entry %1 was changed.").arg(row.number));
    return Damage::Changed;
}

void Verifier::checkIndex(const StoredRow &row, const EntryMembers &members)
{
    const bool fits = row.index ? *row.index == IndexRow::of(members) : row.number > m_head.indexed;
    if (!fits) {
        find(Damage::IndexDiffers, row.number, row.number,
             Texts::tr("The columns beside entry %1 are not what the entry says.").arg(row.number));
    }
}

void Verifier::takeRecord(const StoredRow &row, const EntryMembers &members)
{
    const bool disposes = members.kind == "disposal" || members.kind == "redaction";
    if (!disposes && members.kind != "re-anchor")
        return;
    const QJsonObject record = QJsonDocument::fromJson(members.record).object();
    if (disposes) {
        m_disposals.append({record.value("first"_L1).toInteger(), record.value("last"_L1).toInteger()});
        return;
    }
    const QJsonArray findings = record.value("findings"_L1).toArray();
    for (const auto &value : findings) {
        const QJsonObject json = value.toObject();
        m_acknowledgements.append({row.number, json.value("first"_L1).toInteger(),
                                   json.value("last"_L1).toInteger(), base64(json.value("root"_L1))});
    }
    const auto frontier = Frontier::fromBytes(row.number - 1, base64(record.value("frontier"_L1)));
    if (frontier && (!m_treeKnown || *frontier != m_stored)) {
        m_stored = *frontier;
        m_fromBytes.reset();
        m_treeKnown = true;
    }
}

void Verifier::grow(const Hash &stored, const Hash &computed)
{
    if (!m_treeKnown)
        return;
    if (!m_fromBytes && stored != computed)
        m_fromBytes = m_stored;
    std::vector<Subtree> completed;
    m_stored.append(stored, &completed);
    if (m_fromBytes)
        m_fromBytes->append(computed);
    for (const Subtree &subtree : completed) {
        const auto kept = m_backend.hashes(subtree.level, subtree.position, 1);
        if (kept && !kept.value().empty() && kept.value().front() == subtree.hash)
            continue;
        const qint64 leaves = qint64(1) << subtree.level;
        // An entry below it explains it.
        if (m_lastDamaged > subtree.position * leaves)
            continue;
        find(Damage::IndexDiffers, subtree.position * leaves + 1, (subtree.position + 1) * leaves,
             Texts::tr("The hash kept for the entries %1 to %2 is not theirs.")
                 .arg(subtree.position * leaves + 1)
                 .arg((subtree.position + 1) * leaves));
    }
}

/// Compares the roots of all that speaks of the number of entries read so far.
void Verifier::atSize()
{
    const qint64 size = m_next - 1;
    const auto matches = [this](const QByteArray &root) {
        return toBytes(m_stored.root()) == root || (m_fromBytes && toBytes(m_fromBytes->root()) == root);
    };
    for (; m_nextAnchor < m_anchors.size() && m_anchors.at(m_nextAnchor).checkpoint.size <= size;
         ++m_nextAnchor) {
        Anchor &anchor = m_anchors[m_nextAnchor];
        if (m_treeKnown && anchor.checkpoint.size == size)
            anchor.matches = matches(anchor.checkpoint.root);
    }
    if (size == m_head.size && m_treeKnown)
        m_headMatches = m_head.frontier == m_stored.toBytes();
}

void Verifier::judgeEnd()
{
    if (m_lastRow > m_head.size) {
        find(Damage::IndexDiffers, m_head.size + 1, m_lastRow,
             Texts::tr("The head counts %1 entries, but there are %2.").arg(m_head.size).arg(m_lastRow));
    }
    if (m_next <= m_end) {
        find(Damage::CutOff, m_next, m_end,
             Texts::tr("The entries from %1 on are cut off; the head counts %2.").arg(m_next).arg(m_end));
        m_treeKnown = false;
    }
}

void Verifier::judgeAnchors()
{
    qint64 good = 0;
    for (const Anchor &anchor : std::as_const(m_anchors)) {
        const Checkpoint &checkpoint = anchor.checkpoint;
        if (checkpoint.size >= m_next) {
            if (anchor.outside || checkpoint.size > m_end) {
                find(Damage::CutOff, m_next, checkpoint.size,
                     Texts::tr("The entries from %1 on are cut off; a checkpoint counts %2.")
                         .arg(m_next)
                         .arg(checkpoint.size),
                     checkpoint);
            }
        } else if (anchor.matches.value_or(false)) {
            good = checkpoint.size;
            if (anchor.outside)
                m_result.anchored = checkpoint.size;
        } else if (anchor.matches && m_lastDamaged <= good) {
            find(Damage::Rebuilt, good + 1, checkpoint.size,
                 Texts::tr("The entries %1 to %2 are not those of the checkpoint at entry %2.")
                     .arg(good + 1)
                     .arg(checkpoint.size),
                 checkpoint);
        }
    }
}

void Verifier::judgeHead()
{
    if (m_headMatches.value_or(true) || m_lastDamaged > m_result.anchored)
        return;
    const bool headIsWrong = m_result.anchored == m_head.size;
    find(headIsWrong ? Damage::IndexDiffers : Damage::Rebuilt,
         headIsWrong ? m_head.size : m_result.anchored + 1, m_head.size,
         Texts::tr("The head's root is not that of the entries up to %1.").arg(m_head.size));
}

void Verifier::judgeDisposals()
{
    for (const Range &range : std::as_const(m_result.disposed)) {
        for (qint64 number = range.first; number <= range.last; ++number) {
            const bool recorded = std::ranges::any_of(m_disposals, [number](const Range &disposal) {
                return disposal.first <= number && number <= disposal.last;
            });
            if (!recorded) {
                find(Damage::Missing, number, number,
                     Texts::tr("The bytes of entry %1 are gone, and no disposal is recorded.").arg(number));
            }
        }
    }
}

void Verifier::acknowledge()
{
    for (Finding &finding : m_result.findings) {
        for (const Acknowledgement &known : std::as_const(m_acknowledgements)) {
            // The root stays the same when a tail that was cut off has become one that differs.
            const bool same = known.first == finding.first && known.last == finding.last;
            if (finding.checkpoint.root.isEmpty() ? same && known.root.isEmpty()
                                                  : known.root == finding.checkpoint.root)
                finding.acknowledgedBy = known.number;
        }
    }
}

void Verifier::find(Damage damage, qint64 first, qint64 last, const QString &text,
                    const Checkpoint &checkpoint)
{
    if (m_result.findings.size() < kMostFindings)
        m_result.findings.append({damage, first, last, text, checkpoint, 0});
}

} // namespace ozm::audit
