#pragma once

#include <ozm_widgets/TemplateComparison.h>

#include <QCoreApplication>
#include <QList>
#include <QString>
#include <QTextFormat>

namespace ozm::comparison {

/// The context of all texts about differences.
struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(ozm::TemplateDifference)
};

using Subject = TemplateDifference::Subject;

/// A word, a sign between words, or one thing that is not text.
struct Token
{
    Subject subject = Subject::Text;
    QString source;
    QString shown; ///< For people.

    friend bool operator==(const Token &a, const Token &b)
    {
        return a.subject == b.subject && a.source == b.source;
    }
};

/// A line of a template that has something in it.
struct Line
{
    int position = 0; ///< In the document.
    int table = -1;   ///< Counted from 1, as rows are; -1 outside of tables.
    int row = -1;
    int column = -1;
    QString place;
    QString key; ///< The same for lines that read the same.
    QList<Token> tokens;
    QList<QTextFormat> formats; ///< Of the line, its letters and all around it.
    QList<int> lengths;         ///< For how many letters each of the formats holds.

    [[nodiscard]] bool isInRowOf(const Line &other) const
    {
        return table > 0 && table == other.table && row == other.row;
    }
    [[nodiscard]] QString shown() const;
};

[[nodiscard]] QList<Line> linesOf(const QString &content);

} // namespace ozm::comparison
