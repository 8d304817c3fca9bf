#pragma once

#include <ozm_common_stable/Result.h>
#include <ozm_widgets/db/common/OperationLogItemSubject.h>
#include <ozm_widgets/ozm_widgets_export.h>

#include <QByteArray>
#include <QCoreApplication>
#include <QJsonObject>
#include <QList>
#include <QSharedDataPointer>
#include <QString>
#include <QVariant>

class QDebug;

namespace ozm {

/// The sort of change that a record tells of.
enum class OperationLogItemType : qint32
{
    None,
    Add,
    Set,
    Delete,
    Event
};

/// How an operation was run; New is the first execution, at the push.
enum class OperationLogItemUndoContext : qint32
{
    Invalid,
    None,
    New,
    Undo,
    Redo
};

/**
 * The content of one audit-trail record: which operation, on what, on which attributes, from which value to
 * which, and in which undo context.
 *
 *     using namespace ozm;
 *     OperationLogItemData data(OperationLogItemType::Set, {OperationLogItemSubject::Type::Label, *row},
 *                               {u"Charge"_s}, 3, 2);
 *     data.toString(); // "Set Label ID=Name: T12 'Charge' from 2 to 3"
 *     data.toJson();   // {"attributes":["Charge"],"oldValue":2,...}
 *
 * A record without attributes, kind or subject is not valid: commands that carry one are not logged.
 * Records of versions that wrote free text are kept as their legacy description.
 *
 * Values take the form in JSON that QJsonValue::fromVariant() gives them as long as that keeps them: texts,
 * truth values, finite numbers, integers of up to 64 bits with sign, lists and maps with text keys, dates and
 * times (ISO 8601 with milliseconds; local times with their distance from UTC), URLs, UUIDs, enumerators by
 * name, and every other type that Qt converts to text. The rest is kept as follows:
 *
 *   - as a list, read back as QVariantList: VariantItems, typed lists and pairs;
 *   - as an object, read back as QVariantMap: maps of any type, with the text of their keys;
 *   - marked with its type, as in {"ozm:type": "double", "ozm:value": "nan"}, and read back as it was: values
 *     that are not a number, infinities, unsigned integers from 2^63 on, and bytes that are not UTF-8 text
 *     (in Base64). So none of them can be mistaken for a text;
 *   - marked with its type as a description only: types that Qt cannot convert but can print, points and
 *     rectangles among them;
 *   - not at all, with a warning and a marked "(value of type T not recorded)" in their place: pointers,
 *     types that can neither be converted nor printed, and parts nested more deeply than the 1,024 arrays
 *     and objects that Qt's reader takes, those around the value included.
 *
 * An invalid value and a null number are null in JSON, and a null in JSON reads as an invalid value. Text is
 * made from the JSON form, so that a record reads the same before it is stored and after.
 *
 * Copies share their content, so that a record is cheap to hand on.
 */
class OZM_WIDGETS_EXPORT OperationLogItemData
{
    Q_DECLARE_TR_FUNCTIONS(ozm::OperationLogItemData)

public:
    OperationLogItemData();
    OperationLogItemData(OperationLogItemType type, const OperationLogItemSubject &subject,
                         const QList<QString> &attributes, const QVariant &value);
    OperationLogItemData(OperationLogItemType type, const OperationLogItemSubject &subject,
                         const QList<QString> &attributes, const QVariant &value, const QVariant &oldValue);

    /// Reads what toJson() wrote. @p ok, which may be null, is false when @p json holds no JSON object; the
    /// record is then the default one. Members that are missing keep their defaults.
    explicit OperationLogItemData(const QByteArray &json, bool *ok = nullptr);

    /// The same for those who want to know why not: code BadParameter when @p json cannot be read, or holds
    /// no valid record.
    [[nodiscard]] static Result<OperationLogItemData> fromJson(const QByteArray &json);

    OperationLogItemData(const OperationLogItemData &other);
    OperationLogItemData(OperationLogItemData &&other) noexcept;
    OperationLogItemData &operator=(const OperationLogItemData &other);
    OperationLogItemData &operator=(OperationLogItemData &&other) noexcept;
    ~OperationLogItemData();

    /// False for a record without type that is no legacy description.
    [[nodiscard]] bool isValid() const;
    /// The sort of change.
    [[nodiscard]] OperationLogItemType type() const;
    /// The object that was changed.
    [[nodiscard]] OperationLogItemSubject subject() const;
    /// The names of what was changed.
    [[nodiscard]] QList<QString> attributes() const;
    /// The value after.
    [[nodiscard]] QVariant value() const;
    /// The value before; invalid when it is not known.
    [[nodiscard]] QVariant oldValue() const;
    /// Made anew, undone or redone.
    [[nodiscard]] OperationLogItemUndoContext undoContext() const;
    /// The text of a record that older programs wrote.
    [[nodiscard]] QString legacyDescription() const;

    /// For a macro's data: a macro that ends empty is not committed, and one with a single child is
    /// committed as that child.
    [[nodiscard]] bool collapseTrivialMacro() const;

    /// A mark for the application's own use, kept with the record and not looked at here.
    [[nodiscard]] bool applicationFlag() const;

    /// Loggers set it for each run of a command.
    void setUndoContext(OperationLogItemUndoContext context);
    /// Makes the record one that is told by @p description alone.
    void setLegacyDescription(const QString &description);
    /// See collapseTrivialMacro().
    void setCollapseTrivialMacro(bool collapse);
    /// See applicationFlag().
    void setApplicationFlag(bool flag);

    /// Empty for an invalid record; a legacy record gives its description alone, as "legacyDescription".
    [[nodiscard]] QJsonObject toJsonObject() const;
    /// toJsonObject() as a compact document.
    [[nodiscard]] QByteArray toJson() const;

    /// One line for people, in which line breaks are written as "\n"; empty for an invalid record.
    [[nodiscard]] QString toString() const;
    /// The values as they are, with their line breaks.
    [[nodiscard]] QString valueToString() const;
    /// See valueToString().
    [[nodiscard]] QString oldValueToString() const;
    /// The attributes, joined with ", ".
    [[nodiscard]] QString attributeNamesString() const;

    // Texts are the enumerators' names. A value outside gives an empty text, an unknown text value 0.
    /// The name of @p type.
    [[nodiscard]] static QString typeToString(OperationLogItemType type);
    /// The type of this name.
    [[nodiscard]] static OperationLogItemType stringToType(const QString &text);
    /// The name of @p context.
    [[nodiscard]] static QString undoContextToString(OperationLogItemUndoContext context);
    /// The context of this name.
    [[nodiscard]] static OperationLogItemUndoContext stringToUndoContext(const QString &text);

    /// Equal in content, undo context and both flags.
    OZM_WIDGETS_EXPORT friend bool operator==(const OperationLogItemData &a, const OperationLogItemData &b);

private:
    friend class OperationLogItem;
    class Content;

    void read(const QJsonObject &json);
    [[nodiscard]] QJsonObject toJsonObject(int room) const;
    [[nodiscard]] const Content &content() const;
    [[nodiscard]] QString changeToString() const;
    [[nodiscard]] bool printsOldValue() const;

    // Shared by copies. The context is not in it: a command and the entries of all its runs differ in that.
    QSharedDataPointer<Content> d;
    OperationLogItemUndoContext m_undoContext = OperationLogItemUndoContext::None;
    bool m_collapseTrivialMacro = true;
    bool m_applicationFlag = true;
};

OZM_WIDGETS_EXPORT QDebug operator<<(QDebug debug, const OperationLogItemData &data);

} // namespace ozm
