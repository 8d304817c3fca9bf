#pragma once

#include <ozm_widgets/db/common/OperationLogItemData.h>
#include <ozm_widgets/db/common/OperationLogItemSubject.h>

#include <QHash>
#include <QMap>
#include <QStringList>

namespace ozm {

/// Names of the values 0, 1, 2... of an enumeration, both ways.
class EnumTexts
{
public:
    explicit EnumTexts(const QStringList &texts);

    /// Empty outside the table.
    [[nodiscard]] QString text(qint32 value) const { return m_texts.value(value); }
    /// Value 0 for a text that is not in the table.
    [[nodiscard]] qint32 value(const QString &text) const { return m_values.value(text, 0); }

private:
    QStringList m_texts;
    QHash<QString, qint32> m_values;
};

/// The tables of all operation-log classes: built once, on first use, and never changed.
struct OperationLogTables
{
    EnumTexts itemTypes;
    EnumTexts undoContexts;
    EnumTexts subjectTypes;
    QMap<OperationLogItemSubject::Type, QStringList> keyColumns;

    [[nodiscard]] static const OperationLogTables &instance();
};

} // namespace ozm
