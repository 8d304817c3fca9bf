#pragma once

#include <QList>
#include <QString>
#include <QTextCharFormat>

/// Styles of paragraphs that have a name: classes of a style sheet. The rules of the library's own are in
/// paragraphStyleSheet() of ReportPaper.h.
namespace ozm::editor {

struct ParagraphStyle
{
    QString className;
    QString name; ///< On screen.

    bool operator==(const ParagraphStyle &) const = default;
};

/// Text that is typed behind a paragraph of this class is plain text, as it is behind a heading.
inline constexpr QLatin1StringView kTitleClass("report-title");

/// The styles of the library, and the classes that @p styleSheet has rules for.
[[nodiscard]] QList<ParagraphStyle> paragraphStyles(const QString &styleSheet);

/// The look of letters that a paragraph of the class @p className has by the library's rules and @p styleSheet.
[[nodiscard]] QTextCharFormat lookOfClass(const QString &className, const QString &styleSheet);

} // namespace ozm::editor
