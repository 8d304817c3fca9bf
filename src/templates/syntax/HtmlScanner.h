#pragma once

#include <QList>
#include <QRegularExpression>
#include <QString>
#include <QStringView>

#include <algorithm>

namespace ozm::editor {

/// As many tags are compared with many names, and most differ in their first letter.
inline bool isName(QStringView name, QLatin1StringView row)
{
    return name.size() == row.size() && !row.isEmpty() && name.front() == row.front() && name == row;
}

template <typename Table>
bool isAmong(const Table &table, QStringView name)
{
    return std::ranges::any_of(table, [name](QLatin1StringView row) { return isName(name, row); });
}

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

Q_DECLARE_TYPEINFO(ozm::editor::HtmlToken, Q_RELOCATABLE_TYPE);
Q_DECLARE_TYPEINFO(ozm::editor::HtmlElement, Q_RELOCATABLE_TYPE);
