#include "editor/FindBar.h"

#include "editor/EditorViews.h"

#include <ozm_widgets/OZMStyle.h>
#include <ozm_widgets/TemplateDocument.h>

#include <QCheckBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QTextBlock>
#include <QTextCursor>
#include <QToolButton>

using namespace Qt::StringLiterals;

namespace ozm::editor {

namespace {

/// The chip after @p position, as far as it holds @p text.
bool chipHolds(const TemplateDocument &document, int position, const QString &text, Qt::CaseSensitivity cs)
{
    return document.chipAt(position).source.contains(text, cs);
}

QTextCursor selected(QTextDocument *document, int position)
{
    QTextCursor cursor(document);
    cursor.setPosition(position);
    cursor.setPosition(position + 1, QTextCursor::KeepAnchor);
    return cursor;
}

QTextCursor findChip(QTextDocument *document, int from, bool backward, const QString &text,
                     Qt::CaseSensitivity cs)
{
    const auto *chips = qobject_cast<TemplateDocument *>(document);
    if (!chips)
        return {};
    const int step = backward ? -1 : 1;
    for (int at = backward ? from - 1 : from; at >= 0 && at < document->characterCount(); at += step)
        if (chipHolds(*chips, at, text, cs))
            return selected(document, at);
    return {};
}

bool isChip(const QTextCursor &cursor)
{
    const auto *document = qobject_cast<TemplateDocument *>(cursor.document());
    return document && cursor.selectionEnd() - cursor.selectionStart() == 1 &&
           document->chipAt(cursor.selectionStart()).kind != TemplateDocument::ChipKind::None;
}

} // namespace

FindBar::FindBar(EditorViews &views, QWidget *parent)
    : QWidget(parent)
    , m_views(views)
    , m_text(makeField("findText", tr("Find")))
    , m_replacement(makeField("replaceText", tr("Replace by")))
    , m_case(new QCheckBox(tr("&Match case"), this))
    , m_words(new QCheckBox(tr("&Whole words"), this))
    , m_outcome(new QLabel(this))
    , m_replaceRow(new QWidget(this))
{
    m_case->setObjectName(u"findCase"_s);
    m_words->setObjectName(u"findWords"_s);
    m_outcome->setObjectName(u"findOutcome"_s);
    arrange();
    connect(m_text, &QLineEdit::returnPressed, this, &FindBar::findNext);
    connect(m_replacement, &QLineEdit::returnPressed, this, &FindBar::replace);
    hide();
}

QLineEdit *FindBar::makeField(const char *name, const QString &text)
{
    auto *field = new QLineEdit(this);
    field->setObjectName(QString::fromLatin1(name));
    field->setAccessibleName(text);
    field->setPlaceholderText(text);
    field->setClearButtonEnabled(true);
    return field;
}

QToolButton *FindBar::makeButton(const char *name, const char *icon, const QString &text,
                                 void (FindBar::*slot)())
{
    auto *button = new QToolButton(this);
    button->setObjectName(QString::fromLatin1(name));
    button->setText(text);
    button->setToolTip(text);
    button->setAccessibleName(text);
    button->setAutoRaise(true);
    if (*icon)
        button->setIcon(OZMStyle::icon(QString::fromLatin1(icon)));
    connect(button, &QToolButton::clicked, this, slot);
    return button;
}

void FindBar::arrange()
{
    auto *replaceLayout = new QHBoxLayout(m_replaceRow);
    replaceLayout->setContentsMargins(0, 0, 0, 0);
    replaceLayout->addWidget(m_replacement, 1);
    replaceLayout->addWidget(makeButton("replaceOne", "", tr("Replace"), &FindBar::replace));
    replaceLayout->addWidget(makeButton("replaceAll", "", tr("Replace all"), &FindBar::replaceAll));

    auto *findLayout = new QHBoxLayout;
    findLayout->addWidget(m_text, 1);
    findLayout->addWidget(makeButton("findPrevious", "go-up", tr("Find previous"), &FindBar::findPrevious));
    findLayout->addWidget(makeButton("findNext", "go-down", tr("Find next"), &FindBar::findNext));
    findLayout->addWidget(m_case);
    findLayout->addWidget(m_words);
    findLayout->addWidget(m_outcome);
    findLayout->addWidget(makeButton("findClose", "window-close", tr("Close"), &FindBar::closed));

    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(6, 4, 6, 4);
    layout->setSpacing(4);
    layout->addLayout(findLayout);
    layout->addWidget(m_replaceRow);
}

void FindBar::open(bool replacing)
{
    const QTextCursor cursor = m_views.current().cursor();
    const QString text = cursor.selectedText();
    if (!text.isEmpty() && !text.contains(QChar::ParagraphSeparator) &&
        !text.contains(QChar::ObjectReplacementCharacter))
        m_text->setText(text);
    m_replaceRow->setVisible(replacing && !m_views.isReadOnly());
    m_outcome->clear();
    show();
    m_text->setFocus(Qt::ShortcutFocusReason);
    m_text->selectAll();
}

QTextDocument::FindFlags FindBar::flags() const
{
    QTextDocument::FindFlags flags;
    flags.setFlag(QTextDocument::FindCaseSensitively, m_case->isChecked());
    flags.setFlag(QTextDocument::FindWholeWords, m_words->isChecked());
    return flags;
}

QTextCursor FindBar::found(const QTextCursor &from, bool backward) const
{
    QTextDocument *document = from.document();
    QTextDocument::FindFlags how = flags();
    how.setFlag(QTextDocument::FindBackward, backward);
    const QTextCursor text = document->find(m_text->text(), from, how);
    const int start = backward ? from.selectionStart() : from.selectionEnd();
    const QTextCursor chip = findChip(document, start, backward, m_text->text(),
                                      m_case->isChecked() ? Qt::CaseSensitive : Qt::CaseInsensitive);
    if (text.isNull() || chip.isNull())
        return text.isNull() ? chip : text;
    return (text.selectionStart() < chip.selectionStart()) != backward ? text : chip;
}

void FindBar::find(bool backward)
{
    if (m_text->text().isEmpty())
        return;
    const QTextCursor from = m_views.current().cursor();
    QTextCursor match = found(from, backward);
    m_outcome->clear();
    if (match.isNull()) {
        QTextCursor edge(from.document());
        edge.movePosition(backward ? QTextCursor::End : QTextCursor::Start);
        match = found(edge, backward);
        m_outcome->setText(match.isNull() ? tr("Not found") : tr("Went on from the other end"));
    }
    if (!match.isNull())
        m_views.current().setCursor(match);
}

void FindBar::findNext()
{
    find(false);
}

void FindBar::findPrevious()
{
    find(true);
}

void FindBar::replaceAt(QTextCursor &cursor) const
{
    if (!isChip(cursor)) {
        cursor.insertText(m_replacement->text());
        return;
    }
    auto *document = qobject_cast<TemplateDocument *>(cursor.document());
    const int position = cursor.selectionStart();
    QString source = document->chipAt(position).source;
    source.replace(m_text->text(), m_replacement->text(),
                   m_case->isChecked() ? Qt::CaseSensitive : Qt::CaseInsensitive);
    // A code may turn into plain text, or into nothing, when its brackets are replaced.
    document->insertSource(cursor, source);
}

void FindBar::replace()
{
    QTextCursor cursor = m_views.current().cursor();
    const bool isMatch =
        cursor.hasSelection() &&
        (isChip(cursor) ? chipHolds(*qobject_cast<TemplateDocument *>(cursor.document()),
                                    cursor.selectionStart(), m_text->text(), Qt::CaseInsensitive)
                        : cursor.selectedText().compare(m_text->text(), Qt::CaseInsensitive) == 0);
    if (isMatch && !m_views.isReadOnly() && m_views.current().mayRemove(cursor)) {
        replaceAt(cursor);
        m_views.current().setCursor(cursor);
    }
    findNext();
}

void FindBar::replaceAll()
{
    if (m_views.isReadOnly() || m_text->text().isEmpty())
        return;
    int count = 0;
    QTextCursor edit(m_views.current().cursor().document());
    edit.beginEditBlock();
    for (QTextCursor match = found(edit, false); !match.isNull(); match = found(match, false)) {
        if (!m_views.current().mayRemove(match))
            continue;
        replaceAt(match);
        match.clearSelection();
        ++count;
    }
    edit.endEditBlock();
    m_outcome->setText(count == 1 ? tr("1 replaced") : tr("%1 replaced").arg(count));
}

void FindBar::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Escape)
        Q_EMIT closed();
    else
        QWidget::keyPressEvent(event);
}

} // namespace ozm::editor
