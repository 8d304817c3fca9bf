#pragma once

#include <QList>
#include <QRectF>
#include <QString>
#include <QTextBlock>
#include <QTextCursor>

#include <functional>

class QTextDocument;

namespace ozm::paper {

struct Heading
{
    QString text;
    int level = 0;
    QTextBlock block;
};

/// Those with a text, in their order.
[[nodiscard]] QList<Heading> headingsOf(const QTextDocument &document);

/// True when @p decoded has an instruction in the place of which its headings shall stand.
[[nodiscard]] bool asksForContents(const QString &decoded);

/**
 * The lists of headings in a report, with the numbers of their pages.
 *
 * They are read with the report, as tables; which page a heading is on is only known once all is laid out.
 */
class ContentsList
{
public:
    /// Reads @p decoded into @p document, which holds it without its lists.
    ContentsList(const QString &decoded, QTextDocument &document);

    /// The place of a heading in a list.
    struct Entry
    {
        int heading; ///< Index in headingsOf() of the document.
        QRectF area; ///< In the document.
    };
    [[nodiscard]] QList<Entry> entries() const;

    /// Writes the numbers that @p pageOf gives for headings. True when one of them changed.
    bool setNumbers(const std::function<int(const Heading &heading)> &pageOf);

private:
    struct Number
    {
        int heading;
        QTextCursor place;
    };

    QTextDocument &m_document;
    QList<Number> m_numbers;
};

} // namespace ozm::paper
