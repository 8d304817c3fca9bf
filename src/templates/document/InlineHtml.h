#pragma once

#include <QString>
#include <QStringList>
#include <QTextCharFormat>

namespace ozm::editor {

/// Text as it stands in HTML; line separators become breaks, no-break spaces stay what they are.
[[nodiscard]] QString escaped(const QString &text);

/// The space that is @p written as itself, or by its name or number.
[[nodiscard]] QString spaceOf(const QString &written);

/// One for private use that @p text does not have.
[[nodiscard]] QChar characterNotIn(const QString &text);

/// The tags that lead from the look of @p base to that of @p format, and back.
struct InlineTags
{
    QString open;
    QString close;
    bool operator==(const InlineTags &other) const { return open == other.open; }
};
[[nodiscard]] InlineTags inlineTags(const QTextCharFormat &format, const QTextCharFormat &base);

[[nodiscard]] QString imageTag(const QTextImageFormat &image);

[[nodiscard]] QString cssColor(const QColor &color);

/// ' style="a:1;b:2"', or nothing.
[[nodiscard]] QString styleAttribute(const QStringList &declarations);

} // namespace ozm::editor
