#pragma once

#include "templates/syntax/Codes.h"

#include <ozm_widgets/TemplateDiagnostics.h>

#include <QMap>
#include <QString>
#include <QVariant>

/**
 * Puts values in the places of keys. The rule is one key after the other, in ascending order, each over the
 * whole text, so that a value may bring in a key that comes later. That costs keys times text; where one
 * pass is certain to give the same text, one pass is made.
 */
namespace ozm::tokens {

/// The text of a value: a string list joined with "; ", anything else as QVariant has it.
[[nodiscard]] QString textOf(const QVariant &value);

/// The rule as it stands.
[[nodiscard]] QString replaceInTurn(const QString &text, const QMap<QString, QVariant> &values);

/// The same by one pass where possible. @p marks are those of @p text.
[[nodiscard]] QString replace(const QString &text, const syntax::MarkedText &marks,
                              const QMap<QString, QVariant> &values);

/// The keys that replace() replaces only because a value holds them, or parts of them.
[[nodiscard]] QList<BroughtInCode> broughtIn(const QString &text, const syntax::MarkedText &marks,
                                             const QMap<QString, QVariant> &values);

} // namespace ozm::tokens
