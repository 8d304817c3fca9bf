#include "editor/FindBar.h"

#include "editor/EditorViews.h"
#include "editor/RichTextView.h"
#include "templates/document/TemplateChip.h"

#include <ozm_widgets/OZMStyle.h>
#include <ozm_widgets/TemplateDocument.h>

#include <QCheckBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QRegularExpression>
#include <QTextBlock>
#include <QTextCursor>
#include <QToolButton>

using namespace Qt::StringLiterals;

namespace ozm::editor {

/// A text to look for in chips, whose insides the toolkit does not search.
struct FindBar::ChipSearch
{
    QString text;
    Qt::CaseSensitivity cs;
    bool wholeWords;

    [[nodiscard]] bool isIn(const QString &source) const
    {
        if (!wholeWords)
            return source.contains(text, cs);
        const QRegularExpression words(u"(?<!\\w)%1(?!\\w)"_s.arg(QRegularExpression::escape(text)),
                                       cs == Qt::CaseSensitive ? QRegularExpression::NoPatternOption
                                                               : QRegularExpression::CaseInsensitiveOption);
        return source.contains(words);
    }
    [[nodiscard]] bool isAllOf(const QString &source) const { return source.compare(text, cs) == 0; }
};

namespace {

QTextCursor selected(QTextDocument *document, int position)
{
    QTextCursor cursor(document);
    cursor.setPosition(position);
    cursor.setPosition(position + 1, QTextCursor::KeepAnchor);
    return cursor;
}

/// The document of @p cursor when that has just one chip selected; else null.
const TemplateDocument *chipDocument(const QTextCursor &cursor)
{
    const auto *document = qobject_cast<TemplateDocument *>(cursor.document());
    const bool isChip = document && cursor.selectionEnd() - cursor.selectionStart() == 1 &&
                        document->chipAt(cursor.selectionStart()).kind != TemplateDocument::ChipKind::None;
    return isChip ? document : nullptr;
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

FindBar::ChipSearch FindBar::chipSearch() const
{
    return {m_text->text(), m_case->isChecked() ? Qt::CaseSensitive : Qt::CaseInsensitive,
            m_words->isChecked()};
}

QTextCursor FindBar::findChip(QTextDocument *document, int from, bool backward, const ChipSearch &search)
{
    const auto *chips = qobject_cast<TemplateDocument *>(document);
    if (!chips)
        return {};
    const int step = backward ? -1 : 1;
    for (int at = backward ? from - 1 : from; at >= 0 && at < document->characterCount(); at += step)
        if (search.isIn(chips->chipAt(at).source))
            return selected(document, at);
    return {};
}

QTextCursor FindBar::found(const QTextCursor &from, bool backward) const
{
    QTextDocument *document = from.document();
    QTextDocument::FindFlags how = flags();
    how.setFlag(QTextDocument::FindBackward, backward);
    const QTextCursor text = document->find(m_text->text(), from, how);
    const int start = backward ? from.selectionStart() : from.selectionEnd();
    const QTextCursor chip = findChip(document, start, backward, chipSearch());
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

bool FindBar::isReplaceable(const QTextCursor &match) const
{
    if (!match.hasSelection() || !m_views.current().mayRemove(match))
        return false;
    // The inside of a code or script is changed in its own place, where it is seen as a whole.
    if (const auto *document = chipDocument(match))
        return chipSearch().isAllOf(document->chipAt(match.selectionStart()).source);
    return match.selectedText().compare(m_text->text(), chipSearch().cs) == 0;
}

void FindBar::replaceAt(QTextCursor &cursor) const
{
    auto *document = qobject_cast<TemplateDocument *>(cursor.document());
    if (!document) {
        cursor.insertText(m_replacement->text());
        return;
    }
    const QTextCharFormat around = cursor.charFormat();
    cursor.removeSelectedText();
    cursor.setCharFormat(withoutChip(around));
    insertWithCodes(*document, cursor, m_replacement->text());
}

void FindBar::replace()
{
    QTextCursor cursor = m_views.current().cursor();
    if (!m_views.isReadOnly() && isReplaceable(cursor)) {
        cursor.beginEditBlock();
        replaceAt(cursor);
        cursor.endEditBlock();
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
        if (!isReplaceable(match))
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
