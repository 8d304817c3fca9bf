#pragma once

#include "templates/decoding/TemplateDecoder.h"
#include "templates/instructions/InstructionSyntax.h"

#include <QList>
#include <QString>

#include <optional>

namespace ozm::instructions {

/// The text that a code without a format shows.
[[nodiscard]] QString textOf(const TemplateField &field);
/// True for a field whose text is blank.
[[nodiscard]] bool isEmpty(const TemplateField &field);
/// The number that a field is; nothing for texts, and for what is not a number.
[[nodiscard]] std::optional<double> numberOf(const TemplateField &field);

/// True when @p field, which is missing where there is none, answers the test of @p condition.
[[nodiscard]] bool holds(const Condition &condition, const std::optional<TemplateField> &field);

/// @p number as the format shows it, without its unit.
[[nodiscard]] QString formattedNumber(const CodeFormat &format, double number);

/// The value as the format shows it. Where @p inHtml is set, a value that is no HTML itself is escaped.
[[nodiscard]] QString formatted(const CodeFormat &format, const std::optional<TemplateField> &field,
                                bool inHtml);

/// The total of @p fields; nothing, with the reason in @p error, where a value is not a number. No field at all gives
/// an empty one.
[[nodiscard]] std::optional<TemplateField> totalOf(Total total, const QList<TemplateField> &fields,
                                                   QString *error);

} // namespace ozm::instructions
