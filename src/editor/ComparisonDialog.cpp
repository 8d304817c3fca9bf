#include "editor/ComparisonDialog.h"

#include "editor/RichTextView.h"
#include "templates/instructions/InstructionTree.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QListWidget>
#include <QSplitter>
#include <QTextBlock>
#include <QTextEdit>
#include <QTextTable>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace ozm::editor {

namespace {

using Change = TemplateDifference::Change;

constexpr QSize kComparisonSize{900, 620};

// Pale, on paper that is white everywhere.
constexpr QColor kRemovedColor(255, 222, 220);
constexpr QColor kAddedColor(214, 242, 214);
constexpr QColor kChangedColor(255, 243, 196);

QColor differenceColor(Change change)
{
    switch (change) {
    case Change::Added:
        return kAddedColor;
    case Change::Removed:
        return kRemovedColor;
    case Change::Changed:
        break;
    }
    return kChangedColor;
}

/// The letters of @p line, and the line to its full width: codes and scripts paint over what is behind them.
QList<QTextEdit::ExtraSelection> marksOf(const QTextBlock &line, const QColor &color)
{
    QTextEdit::ExtraSelection whole{QTextCursor(line), {}};
    whole.format.setBackground(color);
    QTextEdit::ExtraSelection letters = whole;
    whole.format.setProperty(QTextFormat::FullWidthSelection, true);
    letters.cursor.movePosition(QTextCursor::EndOfBlock, QTextCursor::KeepAnchor);
    return {whole, letters};
}

/// Colours the cell of a table that holds @p line, or all of its row.
void markCells(const QTextBlock &line, const QTextTable &table, bool isRow, const QColor &color)
{
    const QTextTableCell own = table.cellAt(line.position());
    const int first = isRow ? 0 : own.column();
    const int behind = isRow ? table.columns() : first + 1;
    for (int column = first; column < behind; ++column) {
        QTextTableCell cell = table.cellAt(own.row(), column);
        QTextCharFormat format = cell.format();
        format.setBackground(color);
        cell.setFormat(format);
    }
}

QString captionWithVersion(const QString &caption, const QString &content)
{
    const auto page = instructions::pageOf(content);
    return page && !page->version.isEmpty()
               ? ComparisonDialog::tr("%1, version %2").arg(caption, page->version)
               : caption;
}

} // namespace

ComparisonDialog::ComparisonDialog(const ComparedTemplate &before, const ComparedTemplate &after,
                                   QWidget *parent)
    : QDialog(parent)
    , m_differences(compareTemplates(before.content, after.content))
    , m_list(new QListWidget)
{
    setObjectName(u"comparisonDialog"_s);
    setWindowTitle(tr("Differences between templates"));
    auto *count =
        new QLabel(m_differences.isEmpty() ? tr("The templates are the same.")
                                           : tr("%n difference(s)", nullptr, int(m_differences.size())));
    count->setObjectName(u"comparisonCount"_s);
    m_list->setObjectName(u"comparisonList"_s);
    m_list->setAccessibleName(tr("Differences"));
    auto *sides = new QSplitter;
    sides->addWidget(makeSide(0, tr("Before: %1").arg(before.name), before));
    sides->addWidget(makeSide(1, tr("Now: %1").arg(after.name), after));
    auto *parts = new QSplitter(Qt::Vertical);
    parts->addWidget(m_list);
    parts->addWidget(sides);
    parts->setStretchFactor(1, 1);
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Close);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(count);
    layout->addWidget(parts, 1);
    layout->addWidget(buttons);
    resize(kComparisonSize);
    fillList();
    mark();
}

QWidget *ComparisonDialog::makeSide(std::size_t side, const QString &caption, const ComparedTemplate &shown)
{
    auto *box = new QWidget;
    auto *layout = new QVBoxLayout(box);
    layout->setContentsMargins({});
    auto *label = new QLabel(captionWithVersion(caption, shown.content));
    label->setTextFormat(Qt::PlainText);
    auto *view = new QTextEdit;
    view->setObjectName(side == 0 ? u"comparisonBefore"_s : u"comparisonAfter"_s);
    view->setAccessibleName(label->text());
    view->setReadOnly(true);
    setPaperColors(view);
    m_documents[side].setSource(shown.content);
    view->setDocument(&m_documents[side]);
    label->setBuddy(view);
    layout->addWidget(label);
    layout->addWidget(view, 1);
    m_views[side] = view;
    return box;
}

void ComparisonDialog::fillList()
{
    for (const TemplateDifference &difference : m_differences) {
        auto *item = new QListWidgetItem(difference.text, m_list);
        item->setToolTip(Qt::convertFromPlainText(difference.before + u"\n→ "_s + difference.after));
    }
    connect(m_list, &QListWidget::currentRowChanged, this, &ComparisonDialog::goTo);
    m_list->setCurrentRow(0);
}

int ComparisonDialog::positionOf(const TemplateDifference &difference, std::size_t side)
{
    return side == 0 ? difference.positionBefore : difference.positionAfter;
}

void ComparisonDialog::mark()
{
    for (std::size_t side = 0; side < m_views.size(); ++side) {
        QList<QTextEdit::ExtraSelection> selections;
        for (const TemplateDifference &difference : m_differences) {
            const int position = positionOf(difference, side);
            if (position < 0)
                continue;
            const QTextBlock line = m_documents[side].findBlock(position);
            const bool isInBoth = difference.positionBefore >= 0 && difference.positionAfter >= 0;
            const QColor color = differenceColor(isInBoth ? Change::Changed : difference.change);
            if (const QTextTable *table = QTextCursor(line).currentTable())
                markCells(line, *table, difference.subject == TemplateDifference::Subject::Line, color);
            else
                selections.append(marksOf(line, color));
        }
        m_views[side]->setExtraSelections(selections);
    }
}

void ComparisonDialog::goTo(int difference)
{
    if (difference < 0)
        return;
    for (std::size_t side = 0; side < m_views.size(); ++side) {
        const int position = positionOf(m_differences.at(difference), side);
        if (position < 0)
            continue;
        QTextCursor cursor(&m_documents[side]);
        cursor.setPosition(position);
        m_views[side]->setTextCursor(cursor);
        m_views[side]->ensureCursorVisible();
    }
}

} // namespace ozm::editor
