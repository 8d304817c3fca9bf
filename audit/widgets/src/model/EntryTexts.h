#pragma once

#include <ozm_audit/Entry.h>
#include <ozm_audit_widgets/TrailModel.h>

#include <QString>

namespace ozm::audit {

/// The kind for people: "Change", "Signature", ...
[[nodiscard]] QString kindTitle(Kind kind);

/// "Label Name: T12" of a type and the JSON of a key; the key as it stands when it is not such JSON.
[[nodiscard]] QString subjectText(const QString &type, const QString &key);

/// An entry as the columns of a view show it.
struct EntryTexts
{
    QString what; ///< A sentence.
    QString subject;
    QString oldValue;
    QString newValue;
    QString outcome;

    [[nodiscard]] static EntryTexts of(const Entry &entry);
};

/// Name, and the id where it differs.
[[nodiscard]] QString personText(const Person &person);

/// With milliseconds, read off a clock of @p zone.
[[nodiscard]] QString timeText(const Entry &entry, TrailModel::Zone zone);
[[nodiscard]] QString timeTitle(TrailModel::Zone zone);

} // namespace ozm::audit
