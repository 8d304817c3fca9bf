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

[[nodiscard]] QJsonValue toJson(const QVariant &value);
[[nodiscard]] QJsonObject toJson(const QMap<QString, QVariant> &values);

[[nodiscard]] QVariant fromJson(const QJsonValue &value);
[[nodiscard]] QMap<QString, QVariant> fromJson(const QJsonObject &values);

[[nodiscard]] QString toText(const QJsonValue &value);

/// Nothing to show: null, or an empty text, list or map.
[[nodiscard]] bool isEmpty(const QJsonValue &value);

} // namespace ozm::logvalue
