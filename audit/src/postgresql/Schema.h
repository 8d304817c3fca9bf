#pragma once

#include <QByteArray>
#include <QString>

namespace ozm::audit {

inline constexpr int kPostgresqlForm = 1;

/// The statements that make a trail in the schema @p schema.
[[nodiscard]] QByteArray postgresqlSchema(const QByteArray &schema, const QByteArray &trail);

} // namespace ozm::audit
