#include "editor/SourceHighlighter.h"

#include "editor/CodeModel.h"
#include "templates/document/TemplateParts.h"

#include <ozm_widgets/OZMStyle.h>

#include <QApplication>
#include <QPalette>
#include <QRegularExpression>

#include <array>

using namespace Qt::StringLiterals;

namespace ozm::editor {

namespace {

enum State
{
    InText = 0,
    InTag,
    InComment,
    InScript
};

enum class Piece
{
    Tag,
    String,
    Comment,
    Keyword,
    Number,
    Code
};

struct PieceColor
{
    Piece piece;
    QRgb onLight;
    QRgb onDark;
};

constexpr std::array kColors{
    PieceColor{Piece::Tag, 0xff1f5fa8, 0xff7db4f0},     PieceColor{Piece::String, 0xff8a4b08, 0xffe0b070},
    PieceColor{Piece::Comment, 0xff6b7680, 0xff93a0ab}, PieceColor{Piece::Keyword, 0xff7a2f94, 0xffd69cec},
    PieceColor{Piece::Number, 0xff0b6e5f, 0xff6fd0c0},  PieceColor{Piece::Code, 0xff1a3fc4, 0xff9db8ff}};

QColor colorOf(Piece piece)
{
    const PieceColor &row = kColors.at(size_t(piece));
    const bool dark = OZMStyle::scheme(QApplication::palette()) == OZMStyle::Scheme::Dark;
    return QColor::fromRgb(dark ? row.onDark : row.onLight);
}

const QRegularExpression &scriptPattern()
{
    static const QRegularExpression pattern(
        u"(?<comment>//.*|/\\*.*?(?:\\*/|$))"
        "|(?<string>\"(?:[^\"\\\\]|\\\\.)*\"?|'(?:[^'\\\\]|\\\\.)*'?|`(?:[^`\\\\]|\\\\.)*`?)"
        "|(?<keyword>\\b(?:const|let|var|function|return|if|else|for|while|of|in|new|true|false|null|"
        "undefined|typeof|throw|try|catch|switch|case|break|continue|default)\\b)"
        "|(?<number>\\b\\d[\\d.eE]*\\b)"_s);
    return pattern;
}

} // namespace

SourceHighlighter::SourceHighlighter(QTextDocument *document, const CodeModel *codes, Language language)
    : QSyntaxHighlighter(document)
    , m_codes(codes)
    , m_language(language)
{}

void SourceHighlighter::highlightBlock(const QString &text)
{
    if (m_language == Language::Script)
        highlightScript(text, 0, text.size());
    else
        highlightTags(text);
    highlightCodes(text);
}

void SourceHighlighter::highlightTags(const QString &text)
{
    static const QRegularExpression opening(u"<!--|<script>|</?[a-zA-Z!][^<>]*>?"_s,
                                            QRegularExpression::CaseInsensitiveOption);
    static const QRegularExpression endOfScript(u"</script>"_s, QRegularExpression::CaseInsensitiveOption);
    int state = qMax(0, previousBlockState());
    qsizetype at = 0;
    while (at < text.size()) {
        if (state == InText) {
            const QRegularExpressionMatch match = opening.match(text, at);
            if (!match.hasMatch())
                break;
            const bool comment = match.captured() == "<!--"_L1;
            at = match.capturedEnd();
            state = comment                                                             ? InComment
                    : match.captured().compare("<script>"_L1, Qt::CaseInsensitive) == 0 ? InScript
                    : match.captured().endsWith(u'>')                                   ? InText
                                                                                        : InTag;
            setFormat(int(match.capturedStart()), int(match.capturedLength()),
                      colorOf(comment ? Piece::Comment : Piece::Tag));
            continue;
        }
        const QRegularExpressionMatch scriptEnd = endOfScript.match(text, at);
        const qsizetype found = state == InScript    ? scriptEnd.capturedStart()
                                : state == InComment ? text.indexOf("-->"_L1, at)
                                                     : text.indexOf(u'>', at);
        const qsizetype end = found < 0 ? text.size() : found;
        const qsizetype length = found < 0 ? 0 : state == InScript ? 9 : state == InComment ? 3 : 1;
        if (state == InScript)
            highlightScript(text, at, end);
        else
            setFormat(int(at), int(end - at), colorOf(state == InComment ? Piece::Comment : Piece::Tag));
        setFormat(int(end), int(length), colorOf(state == InComment ? Piece::Comment : Piece::Tag));
        at = end + length;
        if (found >= 0)
            state = InText;
    }
    setCurrentBlockState(state);
}

void SourceHighlighter::highlightScript(const QString &text, qsizetype from, qsizetype to)
{
    static constexpr std::array kGroups{Piece::Comment, Piece::String, Piece::Keyword, Piece::Number};
    auto matches = scriptPattern().globalMatch(text.first(to), from);
    while (matches.hasNext()) {
        const QRegularExpressionMatch match = matches.next();
        const Piece piece = kGroups.at(size_t(match.lastCapturedIndex() - 1));
        setFormat(int(match.capturedStart()), int(match.capturedLength()), colorOf(piece));
    }
}

void SourceHighlighter::highlightCodes(const QString &text)
{
    auto matches = codePattern().globalMatch(text);
    while (matches.hasNext()) {
        const QRegularExpressionMatch match = matches.next();
        // Brackets in scripts are more often indices than codes.
        if (m_language == Language::Script && !m_codes->isKnown(match.captured()))
            continue;
        QTextCharFormat format;
        format.setForeground(colorOf(Piece::Code));
        format.setFontWeight(QFont::DemiBold);
        if (!m_codes->isKnown(match.captured()) && currentBlockState() != InScript) {
            format.setUnderlineStyle(QTextCharFormat::WaveUnderline);
            format.setUnderlineColor(Qt::red);
        }
        setFormat(int(match.capturedStart()), int(match.capturedLength()), format);
    }
}

} // namespace ozm::editor
