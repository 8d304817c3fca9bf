#pragma once

#include <ozm_audit/Entry.h>
#include <ozm_audit_widgets/NumberSet.h>
#include <ozm_audit_widgets/TrailModel.h>

#include <QHash>
#include <QMap>
#include <QMutex>
#include <QSet>
#include <QStringList>

namespace ozm::audit {

/**
 * The marks that later entries put on earlier ones: undone, finished, signed, reviewed, changed again.
 *
 * Filled on the thread that reads the trail, asked on the GUI thread.
 */
class TrailMarks
{
public:
    /// Entries in order; a signature or review that was taken ahead is passed over when it comes again.
    void take(const Entry &entry);
    /// Signatures and reviews of the whole trail, before all else is read.
    void takeEvidence(const Entry &entry);

    [[nodiscard]] TrailModel::Marks of(const Entry &entry) const;
    /// The number of the last entry that was taken.
    [[nodiscard]] qint64 known() const;
    [[nodiscard]] QList<qint64> signaturesOf(qint64 number) const;
    [[nodiscard]] NumberSet reviewed() const;
    /// The number of the last change of the same value after @p entry, or 0.
    [[nodiscard]] qint64 changedLaterBy(const Entry &entry) const;
    /// Values of entries so far, to choose from: users, sessions, attributes, types of subjects.
    [[nodiscard]] QStringList choices(TrailModel::Choice choice) const;

private:
    void takeStep(const Entry &entry);
    void addChoice(TrailModel::Choice choice, const QString &text);

    struct SignedSet
    {
        qint64 signature = 0;
        NumberSet entries;
    };

    mutable QMutex m_mutex;
    qint64 m_known = 0;
    qint64 m_evidenceKnown = 0;
    /// Steps that an undo may come for, by what they change, the last one last.
    QHash<quint64, QList<qint64>> m_done;
    QHash<quint64, QList<qint64>> m_undoneSteps;
    QSet<qint64> m_undone;
    QSet<qint64> m_open; ///< Macros without an end.
    QList<SignedSet> m_signed;
    NumberSet m_reviewed;
    QHash<quint64, qint64> m_lastChange;        ///< By subject and attributes.
    QHash<quint64, qint64> m_lastSubjectChange; ///< By subject.
    QMap<TrailModel::Choice, QSet<QString>> m_choices;
};

} // namespace ozm::audit
