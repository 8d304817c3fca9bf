#pragma once

#include <ozm_widgets/ozm_widgets_export.h>

#include <QJsonObject>
#include <QMap>
#include <QString>
#include <QVariant>

class RowNode;

namespace ozm {

/**
 * The thing that an audited operation acted on: a kind of object, and the values that tell one object of that kind
 * from the others in the application's tables.
 *
 *     ozm::OperationLogItemSubject subject(ozm::OperationLogItemSubject::Type::Label, *row);
 *     subject.toString(); // "Label Name: T12"
 *
 * Which columns identify a kind is fixed; a row's other columns are not kept. Values go into JSON as
 * OperationLogItemData describes. A small value, copied freely.
 */
class OZM_WIDGETS_EXPORT OperationLogItemSubject
{
public:
    /// The kind of object, by its stored number.
    enum class Type : qint32
    {
        None,
        Project,
        Trace,
        ElutionPeak,
        Peptide,
        PepmapCandidate,
        PepmapSample,
        Plot,
        Protein,
        ColumnFiltersPreset,
        ProteinAnnotation,
        SampleRun,
        File,
        IntactMass,
        XIC,
        PrimaryPeptide,
        PrimaryPeptideXIC,
        Scan,
        SearchResult,
        ProteinDataBank,
        Label,
        BottomUp,
        ProteinTarget,
        PeptidesAttributes,
    };

    // Implicit: wherever a subject is asked for, its bare kind will do.
    OperationLogItemSubject(Type type = Type::None);
    OperationLogItemSubject(Type type, const QMap<QString, QVariant> &key,
                            const QMap<QString, QVariant> &explicitSecondaryKey);

    /// Takes the values of the kind's key columns from @p row; columns that the row lacks are left out.
    OperationLogItemSubject(Type type, const RowNode &row);

    /// As from each row in turn; later rows overwrite values of the same column. Null rows are passed over.
    OperationLogItemSubject(Type type, const QMap<QString, RowNode *> &rows);

    /// Reads what toJsonObject() wrote; a kind this version does not know gives an invalid, empty subject.
    explicit OperationLogItemSubject(const QJsonObject &json);

    /// True when the kind is one other than None.
    [[nodiscard]] bool isValid() const;
    /// Type::None for no subject.
    [[nodiscard]] Type type() const;
    /// The columns that tell the object from others of its type.
    [[nodiscard]] QMap<QString, QVariant> key() const;
    /// Values that the caller gave beyond the key; never taken from a row.
    [[nodiscard]] QMap<QString, QVariant> explicitSecondaryKey() const;

    /// The enumerator's name; empty for a value outside the enumeration.
    [[nodiscard]] static QString typeToString(Type type);
    [[nodiscard]] QString typeToString() const;
    /// None unless @p text is exactly the name of an enumerator.
    [[nodiscard]] static Type stringToType(const QString &text);

    /// "Charge: 2, Sequence: PEPTIDE": display names of the columns with their values, by column name.
    [[nodiscard]] QString keyToString() const;
    /// The secondary key that was given, as toString() shows it.
    [[nodiscard]] QString explicitSecondaryKeyToString() const;
    /// Type and keys in one line for people.
    [[nodiscard]] QString toString() const;

    /// Type and keys, as a record stores them.
    [[nodiscard]] QJsonObject toJsonObject() const;

    OZM_WIDGETS_EXPORT friend bool operator==(const OperationLogItemSubject &a,
                                              const OperationLogItemSubject &b);

private:
    friend class OperationLogItemData;

    [[nodiscard]] QJsonObject toJsonObject(int room) const;

    Type m_type = Type::None;
    QMap<QString, QVariant> m_key;
    QMap<QString, QVariant> m_explicitSecondaryKey;
};

} // namespace ozm
