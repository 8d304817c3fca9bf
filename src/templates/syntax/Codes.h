#pragma once

#include <QList>
#include <QString>
#include <QStringView>

/// Codes: names in square brackets that stand for values.
namespace ozm::syntax {

struct CodeRange
{
    qsizetype start;
    qsizetype end;
};

/// The codes of @p text with their brackets, in their order: each the innermost pair on one line, with something in it.
[[nodiscard]] QList<CodeRange> codeRanges(QStringView text);
/// True when codeRanges() has any.
[[nodiscard]] bool hasCode(QStringView text);

/// True when all of @p text is one code.
[[nodiscard]] bool isCode(QStringView text);

/// The codes of @p text as getCodes() gives them, but under the names that they are written by.
[[nodiscard]] QList<QString> codesIn(const QString &text, bool withBrackets);

/// A pair of brackets without a bracket in between, or a bracket that is not a part of such a pair.
struct Mark
{
    enum : int
    {
        Opening = -1,
        Closing = -2
    };

    qsizetype position;
    int name; ///< Index among the names of the text; Opening or Closing for a bracket by itself.
};

/// Where in a text keys in brackets can stand.
struct MarkedText
{
    QList<Mark> marks;
    QList<QString> names; ///< The different pairs, with their brackets.
};

[[nodiscard]] MarkedText marked(QStringView text);

} // namespace ozm::syntax
