#pragma once

#include <QJsonObject>
#include <QJsonValue>
#include <QMap>
#include <QString>
#include <QVariant>

/**
 * The one way in which values enter and leave audit records. Text is made from the JSON form, so that a
 * record reads the same before it is stored and after. What is kept how: see OperationLogItemData.
 */
namespace ozm::logvalue {

/// Makes VariantItems known to QVariant under its name, convertible to QVariantList and back.
void registerVariantItems();

// Readers of JSON stop at some depth: Qt's takes 1,024 arrays and objects one inside the other.
constexpr int kDeepestJson = 1024;

/// @p room says how many arrays and objects may stand one inside the other in the result. A part that has
/// no room is replaced by a text that says so, with a warning.
[[nodiscard]] QJsonValue toJson(const QVariant &value, int room = kDeepestJson - 1);
/// As an object, which takes one level of @p room.
[[nodiscard]] QJsonObject toJson(const QMap<QString, QVariant> &values, int room = kDeepestJson - 2);

[[nodiscard]] QVariant fromJson(const QJsonValue &value);
[[nodiscard]] QMap<QString, QVariant> readEntries(const QJsonObject &values);

[[nodiscard]] QString toText(const QJsonValue &value);
/// @p text with line breaks and other control characters written as "\n", "\u0085" and so on.
[[nodiscard]] QString onOneLine(const QString &text);

/// Nothing to show: null, or an empty text, list or map.
[[nodiscard]] bool isEmpty(const QJsonValue &value);

} // namespace ozm::logvalue
