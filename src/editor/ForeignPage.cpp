#include "editor/ForeignPage.h"

#include "templates/document/LetterSizes.h"
#include "templates/document/TemplateChip.h"
#include "templates/document/TemplateSourceWriter.h"
#include "templates/syntax/Codes.h"
#include "templates/syntax/HtmlScanner.h"

#include <QCoreApplication>
#include <QRegularExpression>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QUrl>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace ozm::editor {

namespace {

struct LeftOutRow
{
    QLatin1StringView elements; ///< By name, with "|" between them.
    const char *name;
};

constexpr std::array kLeftOut{
    LeftOutRow{"script"_L1, QT_TRANSLATE_NOOP("ozm::editor::ForeignPage", "scripts")},
    LeftOutRow{"iframe|frame"_L1, QT_TRANSLATE_NOOP("ozm::editor::ForeignPage", "frames")},
    LeftOutRow{"object|embed|applet|svg"_L1, QT_TRANSLATE_NOOP("ozm::editor::ForeignPage", "loaded objects")},
    LeftOutRow{"video|audio"_L1, QT_TRANSLATE_NOOP("ozm::editor::ForeignPage", "films and sounds")},
    LeftOutRow{"input|select|textarea|button"_L1,
               QT_TRANSLATE_NOOP("ozm::editor::ForeignPage", "form fields")},
};

// These hold no text of the page. The toolkit's reader would show it, and would hide all that follows
// a link to a style sheet.
constexpr std::array kUnread{"link"_L1, "svg"_L1, "select"_L1, "button"_L1, "template"_L1};

constexpr std::array kSchemes{"http"_L1, "https"_L1, "mailto"_L1, "ftp"_L1, "tel"_L1};

QString translated(const char *text)
{
    return QCoreApplication::translate("ozm::editor::ForeignPage", text);
}

/// Loads nothing.
class PageDocument : public QTextDocument
{
protected:
    QVariant loadResource(int, const QUrl &) override { return QByteArray(); }
};

bool mayComeIn(const QTextImageFormat &image)
{
    static const QRegularExpression embedded(
        u"^data:image/(png|jpe?g|gif|bmp|webp);base64,[A-Za-z0-9+/=\\s]+$"_s);
    return image.name().contains(embedded);
}

bool mayComeIn(const QString &href)
{
    if (href.startsWith(u'#'))
        return true;
    const QString scheme = QUrl(href.trimmed()).scheme();
    return std::ranges::any_of(kSchemes, [&scheme](QLatin1StringView each) { return scheme == each; });
}

/// @p html without the elements of which a reader sees nothing, and without the marks of the part that was copied: the
/// toolkit's reader would leave out what stands before them, style sheets and the beginning of a table, too.
QString readablePart(const QString &html)
{
    static const QRegularExpression hidden(
        u"\\bdisplay\\s*:\\s*none\\b|\\shidden(\\s*=|\\s*/?>|\\s+[\\w-]+\\s*=)"_s,
        QRegularExpression::CaseInsensitiveOption);
    static const QRegularExpression marks(u"<!--(Start|End)Fragment-->"_s);
    const QList<HtmlToken> tokens = scanHtml(html);
    QString part;
    qsizetype from = 0;
    for (const HtmlElement &element : treeOf(tokens).elements) {
        if (element.start < from)
            continue; // in one that is left out already
        const bool isUnread = std::ranges::find(kUnread, element.name) != kUnread.end();
        if (!isUnread && !html.sliced(element.start, element.startTagEnd - element.start).contains(hidden))
            continue;
        part += html.sliced(from, element.start - from);
        from = element.end;
    }
    part += html.sliced(from);
    return part.remove(marks);
}

struct Fragment
{
    int position;
    int length;
    QTextCharFormat format;
};

class Cleaning
{
public:
    explicit Cleaning(const QString &html)
    {
        for (const LeftOutRow &row : kLeftOut) {
            const QRegularExpression tag(u"<(%1)[\\s/>]"_s.arg(row.elements),
                                         QRegularExpression::CaseInsensitiveOption);
            if (html.contains(tag))
                leaveOut(row.name);
        }
        m_page.setUndoRedoEnabled(false);
        m_page.setHtml(readablePart(html));
        sizeLettersInPoints(m_page);
    }

    QString run()
    {
        cleanFragments();
        const bool isEmpty = m_page.toPlainText().trimmed().isEmpty() && m_page.blockCount() == 1;
        makeCodes();
        QString source = isEmpty ? QString() : writeSource(m_page).text;
        if (m_leftOut.isEmpty())
            return source;
        return source + "<!-- "_L1 +
               translated(QT_TRANSLATE_NOOP("ozm::editor::ForeignPage", "Left out of what was pasted: %1"))
                   .arg(m_leftOut.join(", "_L1)) +
               " -->"_L1;
    }

private:
    void leaveOut(const char *name)
    {
        if (!m_leftOut.contains(translated(name)))
            m_leftOut.append(translated(name));
    }

    // From the end on, so that places before stay true.
    void cleanFragments()
    {
        for (QTextBlock block = m_page.lastBlock(); block.isValid(); block = block.previous()) {
            // The toolkit reads an empty line as one with a break.
            if (block.text() == QChar::LineSeparator)
                QTextCursor(block).deleteChar();
            // Fragments are not what they were once one of them is changed.
            QList<Fragment> fragments;
            for (auto at = block.begin(); !at.atEnd(); ++at)
                fragments.prepend(
                    {at.fragment().position(), at.fragment().length(), at.fragment().charFormat()});
            for (const Fragment &fragment : std::as_const(fragments))
                clean(fragment);
        }
    }

    void clean(const Fragment &fragment)
    {
        QTextCharFormat format = fragment.format;
        QTextCursor cursor(&m_page);
        cursor.setPosition(fragment.position);
        cursor.setPosition(fragment.position + fragment.length, QTextCursor::KeepAnchor);
        if (format.isImageFormat() && !mayComeIn(format.toImageFormat())) {
            leaveOut(QT_TRANSLATE_NOOP("ozm::editor::ForeignPage", "images"));
            cursor.removeSelectedText();
        } else if (format.isAnchor() && !format.anchorHref().isEmpty() && !mayComeIn(format.anchorHref())) {
            leaveOut(QT_TRANSLATE_NOOP("ozm::editor::ForeignPage", "links"));
            format.setAnchor(false);
            for (const int property :
                 {QTextFormat::AnchorHref, QTextFormat::AnchorName, QTextFormat::IsAnchor})
                format.clearProperty(property);
            cursor.setCharFormat(format);
        } else if (format.foreground() == QBrush(Qt::black)) {
            // As all text on paper is, unless it says otherwise.
            format.clearForeground();
            cursor.setCharFormat(format);
        }
    }

    // One with markup in it stays text: as a code it would stand in the source as it is.
    void makeCodes()
    {
        static const QRegularExpression markup(u"[<>&\\x{FFFC}\\x{2028}]"_s);
        for (QTextBlock block = m_page.lastBlock(); block.isValid(); block = block.previous()) {
            const QString text = block.text();
            const QList<syntax::CodeRange> codes = syntax::codeRanges(text);
            // From the end on, so that places found before stay true.
            std::for_each(codes.crbegin(), codes.crend(), [&](const syntax::CodeRange &range) {
                const QString code = text.sliced(range.start, range.end - range.start);
                if (code.contains(markup))
                    return;
                QTextCursor cursor(block);
                cursor.setPosition(block.position() + int(range.start));
                cursor.setPosition(block.position() + int(range.end), QTextCursor::KeepAnchor);
                const QTextCharFormat format = cursor.charFormat();
                cursor.insertText(QString(QChar::ObjectReplacementCharacter),
                                  chipFormat({PartKind::Code, code}, format));
            });
        }
    }

    PageDocument m_page;
    QStringList m_leftOut;
};

} // namespace

QString sourceOfPage(const QString &html)
{
    return Cleaning(html).run();
}

} // namespace ozm::editor
