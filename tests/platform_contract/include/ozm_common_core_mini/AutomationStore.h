#pragma once

#include <QString>
#include <QVariant>

extern const QString kFileExplorerAllowed;

namespace as {

[[nodiscard]] bool contains(const QString &key);
[[nodiscard]] QVariant value(const QString &key, const QVariant &fallback);

} // namespace as
