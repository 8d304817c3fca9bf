#pragma once

#include <QMap>
#include <QString>
#include <QVariant>

namespace ozm {

/**
 * @p parameters as they can be handed to another process: texts, numbers, dates and all that is Qt's own, lists
 * and maps of such, and enumerators as numbers. In the place of others, objects and values of an application's
 * types, stands a WithheldValue.
 */
[[nodiscard]] QMap<QString, QVariant> crossing(const QMap<QString, QVariant> &parameters);

} // namespace ozm
