#pragma once

#include <QList>
#include <QRegularExpression>
#include <QString>

namespace ozm::editor {

enum class HtmlTokenKind
{
    Text,
    StartTag,
    EndTag,
    /// A whole element whose content is not markup: a script with attributes, a style sheet, a title.
    RawElement,
    /// A script that decoding runs, with its tags and the scripts nested in it.
    Script,
    /// Comments, declarations, and script tags without a partner.
    Opaque,
};

struct HtmlToken
{
    HtmlTokenKind kind = HtmlTokenKind::Text;
    qsizetype start = 0;
    qsizetype end = 0;
    /// Lower case; of tags and raw elements only.
    QString name;
    bool isOpen = false; ///< The source ended in it.
};

/**
 * Splits @p source into tokens that cover it without a gap. Nothing is an error: what is not a tag is text,
 * a "<" before a digit or a blank among it, and what is not closed ends with the source.
 */
[[nodiscard]] QList<HtmlToken> scanHtml(const QString &source);
/// The first @p count of them, and some more.
[[nodiscard]] QList<HtmlToken> scanHtmlStart(const QString &source, qsizetype count);

/// The end that @p token lacks when the source ended in it; without, it would swallow the text behind it.
[[nodiscard]] QString missingEnd(const QString &source, const HtmlToken &token);

/// A "<" in a text that begins a tag once the end of a tag comes to stand behind it.
[[nodiscard]] const QRegularExpression &halfTag();

/// An element by its range; an element that is never closed ends where its parent does.
struct HtmlElement
{
    QString name;
    qsizetype start = 0;
    qsizetype startTagEnd = 0;
    qsizetype end = 0;
    int parent = -1;
};

struct HtmlTree
{
    /// In the order of their start tags.
    QList<HtmlElement> elements;
    /// For each token the innermost element that is open after it; -1 where none is.
    QList<int> innermost;
};

[[nodiscard]] HtmlTree treeOf(const QList<HtmlToken> &tokens);

[[nodiscard]] bool isVoidElement(const QString &name);

} // namespace ozm::editor
