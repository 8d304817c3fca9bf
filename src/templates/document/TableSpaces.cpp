#include "templates/document/TableSpaces.h"

#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextTable>

namespace ozm::editor {

namespace {

// The spaces that the source gives to the table itself.
constexpr int kOwnSpaceAbove = QTextFormat::UserProperty + 6;
constexpr int kOwnSpaceBelow = QTextFormat::UserProperty + 7;

/// The space @p now, or that of the line beside it if that is more; remembers what it was.
double spaceBeside(QTextTableFormat &format, int ownProperty, double now, double line)
{
    const double own = format.hasProperty(ownProperty) ? format.doubleProperty(ownProperty) : now;
    if (qMax(own, line) != now)
        format.setProperty(ownProperty, own);
    return qMax(own, line);
}

void spaceTable(QTextTable &table)
{
    const QTextDocument &document = *table.document();
    const QTextBlockFormat before = document.findBlock(table.firstPosition() - 1).blockFormat();
    const QTextBlockFormat behind = document.findBlock(table.lastPosition() + 1).blockFormat();
    QTextTableFormat format = table.format();
    const double above = spaceBeside(format, kOwnSpaceAbove, format.topMargin(), before.bottomMargin());
    const double below = spaceBeside(format, kOwnSpaceBelow, format.bottomMargin(), behind.topMargin());
    if (above == format.topMargin() && below == format.bottomMargin())
        return;
    format.setTopMargin(above);
    format.setBottomMargin(below);
    table.setFormat(format);
}

void spaceTablesIn(const QTextFrame &frame)
{
    for (QTextFrame *child : frame.childFrames()) {
        if (auto *table = qobject_cast<QTextTable *>(child))
            spaceTable(*table);
        spaceTablesIn(*child);
    }
}

} // namespace

void spaceTables(QTextDocument &document)
{
    QTextCursor edit(&document);
    edit.beginEditBlock();
    spaceTablesIn(*document.rootFrame());
    edit.endEditBlock();
}

} // namespace ozm::editor
