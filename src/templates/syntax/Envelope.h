#pragma once

#include <QByteArray>
#include <QString>
#include <QStringView>

#include <optional>

/// The element that a stored template is kept in, and that carries the version of the format.
namespace ozm::syntax {

/// The content of an envelope, and its place in the text around it.
struct EnvelopeContent
{
    QString text;
    qsizetype position = 0;
};

/// The content of the first envelope in @p text, up to the last closing tag; nothing when there is none, or
/// one of another version.
[[nodiscard]] std::optional<EnvelopeContent> unwrapped(const QString &text);

/// @p content in an envelope, to the letter.
[[nodiscard]] QString wrapped(const QString &content);

/// @p content in an envelope, by substitution: markers in it such as "%1" take part.
[[nodiscard]] QString wrappedBySubstitution(const QString &content);

/// True when an envelope seems to begin in @p text, whole or not.
[[nodiscard]] bool mentionsEnvelope(QStringView text);
[[nodiscard]] bool mentionsEnvelope(const QByteArray &text);

} // namespace ozm::syntax
