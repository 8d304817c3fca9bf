#pragma once

#include <QList>

class QTextDocument;

namespace ozm::paper {

/// A part of a document from one height to another, in the units of its layout.
struct Slice
{
    double top = 0;
    double bottom = 0;

    [[nodiscard]] double height() const { return bottom - top; }
};

/// A page: the heading rows of the table that goes on at its top, if any, and then a part of the document.
struct PageSlices
{
    Slice heading;
    Slice body;
    bool beginsInTable = false;
    bool endsInTable = false;
};

/**
 * Cuts @p document into pages of @p height. It must be laid out without pages of its own.
 *
 * Lines and images are cut only where one is higher than a page. Rows of tables that fit on a page stay whole, and so do
 * the first two and the last two lines of a paragraph; a heading stays with what follows it, and the heading rows of a
 * table with its first row. Page breaks of paragraphs and tables hold; inside a table, before the row.
 */
[[nodiscard]] QList<PageSlices> cutIntoPages(const QTextDocument &document, double height);

} // namespace ozm::paper
