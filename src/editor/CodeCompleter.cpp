#include "editor/CodeCompleter.h"

#include "editor/CodeModel.h"

#include <QAbstractItemView>
#include <QAbstractScrollArea>
#include <QCompleter>
#include <QKeyEvent>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextCursor>

using namespace Qt::StringLiterals;

namespace ozm::editor {

namespace {

constexpr int kShownRows = 10;
constexpr int kLeastWidth = 200;

/// The opening bracket before the cursor and what stands between; without selection when there is none.
QTextCursor openCode(QTextCursor cursor)
{
    const QString before = cursor.block().text().first(cursor.positionInBlock());
    const qsizetype bracket = before.lastIndexOf(u'[');
    if (bracket < 0 || before.indexOf(u']', bracket) >= 0 ||
        before.indexOf(QChar::ObjectReplacementCharacter, bracket) >= 0)
        return {};
    cursor.setPosition(cursor.block().position() + int(bracket), QTextCursor::KeepAnchor);
    return cursor;
}

bool isChoosing(int key)
{
    return key == Qt::Key_Return || key == Qt::Key_Enter || key == Qt::Key_Tab || key == Qt::Key_Escape ||
           key == Qt::Key_Backtab;
}

} // namespace

CodeCompleter::CodeCompleter(CodeModel *codes, const Field &field)
    : QObject(field.widget)
    , m_field(field)
    , m_completer(new QCompleter(codes, this))
{
    m_completer->setObjectName(u"codeCompleter"_s);
    m_completer->setWidget(field.widget);
    m_completer->setCompletionRole(CodeModel::NameRole);
    m_completer->setCompletionMode(QCompleter::PopupCompletion);
    m_completer->setFilterMode(Qt::MatchContains);
    m_completer->setCaseSensitivity(Qt::CaseInsensitive);
    m_completer->setMaxVisibleItems(kShownRows);
    m_completer->popup()->setObjectName(u"codeCompletions"_s);
    connect(m_completer, qOverload<const QModelIndex &>(&QCompleter::activated), this,
            [this](const QModelIndex &index) { accept(index.data(CodeModel::CodeRole).toString()); });
}

void CodeCompleter::offer()
{
    const QTextCursor open = openCode(m_field.cursor());
    if (!open.hasSelection()) {
        m_completer->popup()->hide();
        return;
    }
    m_completer->setCompletionPrefix(open.selectedText().mid(1));
    if (m_completer->completionCount() == 0) {
        m_completer->popup()->hide();
        return;
    }
    m_completer->popup()->setCurrentIndex(m_completer->completionModel()->index(0, 0));
    QRect place = m_field.cursorRect();
    place.setWidth(qMax(kLeastWidth, m_completer->popup()->sizeHintForColumn(0) +
                                         m_completer->popup()->verticalScrollBar()->sizeHint().width()));
    m_completer->complete(place);
}

void CodeCompleter::accept(const QString &code)
{
    const QTextCursor open = openCode(m_field.cursor());
    if (open.hasSelection() && !code.isEmpty())
        m_field.insert(open, code);
}

bool CodeCompleter::takes(const QKeyEvent &event) const
{
    return m_completer->popup()->isVisible() && isChoosing(event.key());
}

} // namespace ozm::editor
