#pragma once

#include <ozm_audit/Store.h>
#include <ozm_audit_widgets/ozm_audit_widgets_export.h>

#include <QDialog>
#include <QVariantMap>

#include <memory>

namespace ozm::audit {

/// The values of a subject after one entry, as far as the trail says.
struct SubjectState
{
    Entry entry;         ///< The entry that led to this state.
    QVariantMap values;  ///< By attribute.
    QStringList changed; ///< Attributes that this entry changed.
};

/// All states of a subject, the oldest first. Steps that were refused change nothing and are left out; an undo is
/// a change back.
[[nodiscard]] OZM_AUDIT_WIDGETS_EXPORT Result<QList<SubjectState>>
subjectStates(const Store &store, const QString &subjectType, const QString &subjectKey);

/**
 * The history of one subject: a row for each change, a column for each attribute, and any two states compared.
 *
 * GUI thread; reads the store once, when it is made.
 */
class OZM_AUDIT_WIDGETS_EXPORT SubjectHistory : public QDialog
{
    Q_OBJECT

public:
    SubjectHistory(const Store &store, const QString &subjectType, const QString &subjectKey,
                   QWidget *parent = nullptr);
    ~SubjectHistory() override;

    /// Compares the states at two rows.
    void compare(int firstRow, int secondRow);

Q_SIGNALS:
    /// The user wants to see the entry of a row.
    void entryRequested(qint64 number);

private:
    class Private;
    const std::unique_ptr<Private> d;
};

} // namespace ozm::audit
