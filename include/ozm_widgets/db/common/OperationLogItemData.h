#pragma once

#include <ozm_widgets/db/common/OperationLogItemSubject.h>
#include <ozm_widgets/ozm_widgets_export.h>

#include <QByteArray>
#include <QJsonObject>
#include <QList>
#include <QSharedDataPointer>
#include <QString>
#include <QVariant>

class QDebug;

namespace ozm {

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
 * Values in JSON, and in text, which is always that of the JSON form:
 *
 *   - kept exactly: truth values, texts, finite floating-point numbers, integers up to 2^53 either way,
 *     QJsonValue and its like; lists of any of these (VariantItems, typed lists and pairs too, read back as
 *     QVariantList) and maps with text keys (read back as QVariantMap);
 *   - kept as text that converts back with QVariant: integers beyond 2^53, which other readers of JSON would
 *     round; "nan", "inf" and "-inf"; date and time (ISO 8601 with milliseconds), URLs, UUIDs, enumerators
 *     (by name) and other types that Qt converts to text; bytes that are UTF-8 text, other bytes as
 *     "base64:" and their Base64 form; map keys that are not text;
 *   - kept as a description only: types that Qt cannot convert but can print, points and rectangles among
 *     them;
 *   - refused, with a warning and the text "(value of type T not recorded)" in their place: pointers, types
 *     that can neither be converted nor printed, and lists nested deeper than 64 levels.
 *
 * An invalid value is null in JSON, and a null in JSON reads as an invalid value.
 *
 * Copies share their content, so that a record is cheap to hand on.
 */
class OZM_WIDGETS_EXPORT OperationLogItemData
{
public:
    OperationLogItemData();
    OperationLogItemData(OperationLogItemType type, const OperationLogItemSubject &subject,
                         const QList<QString> &attributes, const QVariant &value);
    OperationLogItemData(OperationLogItemType type, const OperationLogItemSubject &subject,
                         const QList<QString> &attributes, const QVariant &value, const QVariant &oldValue);

    /// Reads what toJson() wrote. @p ok, which may be null, is false when @p json holds no JSON object; the
    /// record is then the default one. Members that are missing keep their defaults.
    explicit OperationLogItemData(const QByteArray &json, bool *ok = nullptr);

    OperationLogItemData(const OperationLogItemData &other);
    OperationLogItemData(OperationLogItemData &&other) noexcept;
    OperationLogItemData &operator=(const OperationLogItemData &other);
    OperationLogItemData &operator=(OperationLogItemData &&other) noexcept;
    ~OperationLogItemData();

    [[nodiscard]] bool isValid() const;
    [[nodiscard]] OperationLogItemType type() const;
    [[nodiscard]] OperationLogItemSubject subject() const;
    [[nodiscard]] QList<QString> attributes() const;
    [[nodiscard]] QVariant value() const;
    [[nodiscard]] QVariant oldValue() const;
    [[nodiscard]] OperationLogItemUndoContext undoContext() const;
    [[nodiscard]] QString legacyDescription() const;

    /// For a macro's data: whether the macro is left out when it ends empty, and stands for its one child
    /// when it has just one.
    [[nodiscard]] bool collapseTrivialMacro() const;

    /// A mark for the application's own use, kept with the record and not looked at here.
    [[nodiscard]] bool applicationFlag() const;

    void setUndoContext(OperationLogItemUndoContext context);
    void setLegacyDescription(const QString &description);
    void setCollapseTrivialMacro(bool collapse);
    void setApplicationFlag(bool flag);

    /// Empty for an invalid record; a legacy record gives its description alone, as "legacyDescription".
    [[nodiscard]] QJsonObject toJsonObject() const;
    /// toJsonObject() as a compact document.
    [[nodiscard]] QByteArray toJson() const;

    /// One line for people; empty for an invalid record.
    [[nodiscard]] QString toString() const;
    [[nodiscard]] QString valueToString() const;
    [[nodiscard]] QString oldValueToString() const;
    /// The attributes, joined with ", ".
    [[nodiscard]] QString attributeNamesString() const;

    // Texts are the enumerators' names. A value outside gives an empty text, an unknown text value 0.
    [[nodiscard]] static QString typeToString(OperationLogItemType type);
    [[nodiscard]] static OperationLogItemType stringToType(const QString &text);
    [[nodiscard]] static QString undoContextToString(OperationLogItemUndoContext context);
    [[nodiscard]] static OperationLogItemUndoContext stringToUndoContext(const QString &text);

private:
    class Content;

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
