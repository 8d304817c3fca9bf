#include "editor/SourceHighlighter.h"

#include "editor/CodeModel.h"
#include "templates/syntax/Codes.h"
#include "templates/syntax/ScriptTags.h"

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
    int state = qMax(0, previousBlockState());
    qsizetype at = 0;
    while (at >= 0 && at < text.size())
        at = state == InText ? beginMarkup(text, at, state) : endMarkup(text, at, state);
    setCurrentBlockState(state);
}

qsizetype SourceHighlighter::beginMarkup(const QString &text, qsizetype from, int &state)
{
    static const QRegularExpression opening(u"<!--|</?[a-zA-Z!][^<>]*>?"_s);
    const QRegularExpressionMatch match = opening.match(text, from);
    if (!match.hasMatch())
        return -1;
    const QStringView markup = match.capturedView();
    if (markup == "<!--"_L1)
        state = InComment;
    else if (syntax::beginsWithScript(markup))
        state = InScript;
    else if (!markup.endsWith(u'>'))
        state = InTag;
    const Piece piece = state == InComment ? Piece::Comment : Piece::Tag;
    setFormat(int(match.capturedStart()), int(match.capturedLength()), colorOf(piece));
    return match.capturedEnd();
}

qsizetype SourceHighlighter::endMarkup(const QString &text, qsizetype from, int &state)
{
    const QLatin1StringView closing = state == InScript    ? syntax::kScriptClose
                                      : state == InComment ? "-->"_L1
                                                           : ">"_L1;
    const qsizetype found = text.indexOf(closing, from, Qt::CaseInsensitive);
    const qsizetype end = found < 0 ? text.size() : found;
    const qsizetype after = found < 0 ? end : end + closing.size();
    const QColor color = colorOf(state == InComment ? Piece::Comment : Piece::Tag);
    if (state == InScript)
        highlightScript(text, from, end);
    else
        setFormat(int(from), int(end - from), color);
    setFormat(int(end), int(after - end), color);
    if (found >= 0)
        state = InText;
    return after;
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
    for (const auto &[start, end] : syntax::codeRanges(text)) {
        const bool isKnown = m_codes->isKnown(text.sliced(start, end - start));
        // Brackets in scripts are more often indices than codes.
        if (m_language == Language::Script && !isKnown)
            continue;
        QTextCharFormat format;
        format.setForeground(colorOf(Piece::Code));
        format.setFontWeight(QFont::DemiBold);
        if (!isKnown && currentBlockState() != InScript) {
            format.setUnderlineStyle(QTextCharFormat::WaveUnderline);
            format.setUnderlineColor(Qt::red);
        }
        setFormat(int(start), int(end - start), format);
    }
}

} // namespace ozm::editor
