#include "TrailMarks.h"

#include "../filter/EntryScan.h"

#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>

namespace ozm::audit {

namespace {

// More than anybody chooses from a list; further ones can be typed.
constexpr qsizetype kMostChoices = 500;
// As many steps of one value as can be undone; older ones have left every history.
constexpr qsizetype kMostUndoable = 100;

NumberSet entriesOf(const Entry &entry)
{
    const QJsonObject record = QJsonDocument::fromJson(entry.record).object();
    return NumberSet::fromText(record.value(QLatin1String("entries")).toString()).valueOr({});
}

quint64 subjectKeyOf(const Entry &entry)
{
    return qHashMulti(0, entry.subjectType, entry.subjectKey);
}

bool isEvidence(const Entry &entry)
{
    return entry.kind == Kind::Signature || entry.kind == Kind::Review;
}

} // namespace

void TrailMarks::takeEvidence(const Entry &entry)
{
    const QMutexLocker lock(&m_mutex);
    if (entry.number <= m_evidenceKnown || entry.outcomeCode != 0)
        return;
    m_evidenceKnown = entry.number;
    if (entry.kind == Kind::Signature)
        m_signed.append({entry.number, entriesOf(entry)});
    else
        m_reviewed.add(entriesOf(entry));
}

void TrailMarks::take(const Entry &entry)
{
    if (isEvidence(entry))
        takeEvidence(entry);
    const QMutexLocker lock(&m_mutex);
    m_known = entry.number;
    addChoice(TrailModel::Choice::User, entry.user.id);
    addChoice(TrailModel::Choice::Session, entry.session);
    addChoice(TrailModel::Choice::SubjectType, entry.subjectType);
    for (const QString &attribute : entry.attributes)
        addChoice(TrailModel::Choice::Attribute, attribute);
    if (entry.kind == Kind::Macro)
        m_open.insert(entry.number);
    else if (entry.kind == Kind::Commit)
        m_open.remove(entry.parent);
    else if (entry.kind == Kind::Command && entry.outcomeCode == 0)
        takeStep(entry);
}

void TrailMarks::takeStep(const Entry &entry)
{
    const quint64 key = valueKey(entry);
    if (!entry.subjectKey.isEmpty()) {
        m_lastChange.insert(key, entry.number);
        m_lastSubjectChange.insert(subjectKeyOf(entry), entry.number);
    }
    // Undo and redo repeat the record of the step, in the same session.
    const quint64 step = qHashMulti(0, key, entry.session);
    const bool undo = entry.context == QLatin1String("Undo");
    const bool redo = entry.context == QLatin1String("Redo");
    if (!undo && !redo) {
        QList<qint64> &done = m_done[step];
        done.append(entry.number);
        if (done.size() > kMostUndoable)
            done.removeFirst();
        m_undoneSteps.remove(step);
        return;
    }
    QList<qint64> &from = (undo ? m_done : m_undoneSteps)[step];
    if (from.isEmpty())
        return;
    const qint64 number = from.takeLast();
    (undo ? m_undoneSteps : m_done)[step].append(number);
    if (undo)
        m_undone.insert(number);
    else
        m_undone.remove(number);
}

void TrailMarks::addChoice(TrailModel::Choice choice, const QString &text)
{
    QSet<QString> &texts = m_choices[choice];
    if (!text.isEmpty() && texts.size() < kMostChoices)
        texts.insert(text);
}

TrailModel::Marks TrailMarks::of(const Entry &entry) const
{
    const QMutexLocker lock(&m_mutex);
    TrailModel::Marks marks;
    marks.setFlag(TrailModel::Mark::Refused, entry.outcomeCode != 0);
    marks.setFlag(TrailModel::Mark::Undone, m_undone.contains(entry.number));
    marks.setFlag(TrailModel::Mark::Unfinished, m_open.contains(entry.number));
    marks.setFlag(TrailModel::Mark::Reviewed, m_reviewed.contains(entry.number));
    marks.setFlag(TrailModel::Mark::Disposed, entry.isDisposed());
    qint64 signature = 0;
    for (const SignedSet &set : m_signed) {
        if (set.entries.contains(entry.number))
            signature = set.signature;
    }
    marks.setFlag(TrailModel::Mark::Signed, signature != 0);
    marks.setFlag(TrailModel::Mark::ChangedSinceSigned,
                  signature != 0 && m_lastSubjectChange.value(subjectKeyOf(entry)) > signature);
    return marks;
}

qint64 TrailMarks::known() const
{
    const QMutexLocker lock(&m_mutex);
    return m_known;
}

QList<qint64> TrailMarks::signaturesOf(qint64 number) const
{
    const QMutexLocker lock(&m_mutex);
    QList<qint64> signatures;
    for (const SignedSet &set : m_signed) {
        if (set.entries.contains(number))
            signatures.append(set.signature);
    }
    return signatures;
}

NumberSet TrailMarks::reviewed() const
{
    const QMutexLocker lock(&m_mutex);
    return m_reviewed;
}

qint64 TrailMarks::changedLaterBy(const Entry &entry) const
{
    if (entry.subjectKey.isEmpty() || entry.kind != Kind::Command)
        return 0;
    const QMutexLocker lock(&m_mutex);
    const qint64 last = m_lastChange.value(valueKey(entry));
    return last > entry.number ? last : 0;
}

QStringList TrailMarks::choices(TrailModel::Choice choice) const
{
    const QMutexLocker lock(&m_mutex);
    QStringList texts = m_choices.value(choice).values();
    std::ranges::sort(texts);
    return texts;
}

} // namespace ozm::audit
