#include <ozm_widgets/DisplayString.h>

#include <QTextDocumentFragment>

DisplayString::DisplayString(const char *utf8)
    : m_text(QString::fromUtf8(utf8))
{}

DisplayString::DisplayString(const QString &text)
    : m_text(text)
{}

DisplayString::DisplayString(const QString &text, Flags flags)
    : m_flags(flags)
    , m_text(text)
{}

Qt::TextFormat DisplayString::format() const
{
    return m_flags.testFlag(RichText) ? Qt::RichText : Qt::AutoText;
}

QString DisplayString::toPlainText() const
{
    return m_flags.testFlag(RichText) ? QTextDocumentFragment::fromHtml(m_text).toPlainText() : m_text;
}

DisplayRichString::DisplayRichString(const QString &html)
    : DisplayString(html, RichText)
{}
