#include "templates/files/TemplateFileText.h"

#include "templates/syntax/Envelope.h"
#include "templates/syntax/HtmlScanner.h"

#include "support/Platform.h"
#include <ozm_widgets/TemplateFile.h>
#include <platform/Errors.h>

#include <QRegularExpression>
#include <QTextCodec>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace ozm {

namespace {

// Browsers look for a declaration in the first 1024 bytes, and later where there is none.
constexpr qsizetype kDeclarationWithin = 16384;

struct CharsetAlias
{
    QByteArrayView declared;
    QByteArrayView meant;
};

// As browsers have it: pages that declare the left ones are written in the right ones. UTF-16 could not
// have been read this far without its byte-order mark.
constexpr std::array kAliases{
    CharsetAlias{"ascii", "windows-1252"},
    CharsetAlias{"us-ascii", "windows-1252"},
    CharsetAlias{"iso-8859-1", "windows-1252"},
    CharsetAlias{"latin1", "windows-1252"},
    CharsetAlias{"iso-8859-9", "windows-1254"},
    CharsetAlias{"gb2312", "GB18030"},
    CharsetAlias{"gbk", "GB18030"},
    CharsetAlias{"utf-16", "UTF-8"},
    CharsetAlias{"utf-16le", "UTF-8"},
    CharsetAlias{"utf-16be", "UTF-8"},
    CharsetAlias{"unicode", "UTF-8"},
};

bool isPageLike(const QByteArray &bytes)
{
    const QByteArray start = bytes.left(kDeclarationWithin).toLower();
    return start.contains("<html") || start.contains("<!doctype html") || start.contains("<body") ||
           start.contains("<meta");
}

QByteArray declaredCharset(const QByteArray &bytes)
{
    static const QRegularExpression comments(u"<!--.*?-->"_s, QRegularExpression::DotMatchesEverythingOption);
    static const QRegularExpression declaration(
        uR"((?:<meta\s[^>]*?charset\s*=|<\?xml\s[^>]*?encoding\s*=)\s*["']?\s*([^\s"'/>;]+))"_s,
        QRegularExpression::CaseInsensitiveOption);
    const QString start = QString::fromLatin1(bytes.left(kDeclarationWithin)).remove(comments);
    return declaration.match(start).captured(1).toLatin1();
}

QTextCodec *codecFor(const QByteArray &charset)
{
    const QByteArray name = charset.toLower();
    const auto alias = std::ranges::find(kAliases, QByteArrayView(name), &CharsetAlias::declared);
    QTextCodec *meant =
        alias != kAliases.end() ? QTextCodec::codecForName(alias->meant.toByteArray()) : nullptr;
    return meant ? meant : QTextCodec::codecForName(charset);
}

/// Nothing when some bytes mean nothing in the codec's character set.
std::optional<DecodedText> decoded(QTextCodec *codec, const QByteArray &bytes)
{
    QTextCodec::ConverterState state;
    const QString text = codec->toUnicode(bytes.constData(), int(bytes.size()), &state);
    // Not every codec counts what it replaces.
    const bool counts = codec->name().startsWith("UTF-");
    if (state.invalidChars > 0 || state.remainingChars > 0 ||
        (!counts && text.contains(QChar::ReplacementCharacter)))
        return std::nullopt;
    return DecodedText{text, codec->name()};
}

Result<DecodedText> decodedOr(const QString &detail, QTextCodec *codec, const QByteArray &bytes)
{
    if (const std::optional<DecodedText> text = decoded(codec, bytes))
        return *text;
    return wrongTemplateFormat(detail);
}

Result<DecodedText> decodePage(const QByteArray &bytes)
{
    const QByteArray charset = declaredCharset(bytes);
    if (charset.isEmpty()) {
        if (const std::optional<DecodedText> text = decoded(QTextCodec::codecForName("UTF-8"), bytes))
            return *text;
        return decodedOr({}, QTextCodec::codecForName("windows-1252"), bytes);
    }
    QTextCodec *codec = codecFor(charset);
    if (!codec) {
        return Error(
            ozm::codes::BadParameter,
            TemplateFile::tr("The page says that it is written in the character set \"%1\", which is not "
                             "known here.")
                .arg(QString::fromLatin1(charset)));
    }
    if (const std::optional<DecodedText> text = decoded(codec, bytes))
        return *text;
    return Error(
        ozm::codes::BadParameter,
        TemplateFile::tr("The page says that it is written in the character set \"%1\", but it holds "
                         "bytes that mean nothing in it.")
            .arg(QString::fromLatin1(charset)));
}

} // namespace

Error wrongTemplateFormat(const QString &detail)
{
    const Error error(ozm::codes::BadParameter, TemplateFile::tr("Wrong template editor content format."));
    return detail.isEmpty() ? error : platform::withWarning(error, detail);
}

Result<DecodedText> decodeTemplateFile(const QByteArray &bytes)
{
    const QString binary =
        TemplateFile::tr("The file holds zero bytes, as programs and pictures do, and no text.");
    if (QTextCodec *marked = QTextCodec::codecForUtfText(bytes, nullptr)) {
        const Result<DecodedText> text = decodedOr(
            TemplateFile::tr("The file is not written in the character set of its byte-order mark."), marked,
            bytes);
        return text && text.value().text.contains(QChar::Null) ? wrongTemplateFormat(binary) : text;
    }
    if (bytes.contains('\0'))
        return wrongTemplateFormat(binary);
    if (!syntax::mentionsEnvelope(bytes) && isPageLike(bytes))
        return decodePage(bytes);
    return decodedOr(TemplateFile::tr("The file holds bytes that are not UTF-8 text."),
                     QTextCodec::codecForName("UTF-8"), bytes);
}

bool isHtmlPage(const QString &text)
{
    const auto has = [&text](QLatin1StringView tag) { return text.contains(tag, Qt::CaseInsensitive); };
    if (!has("<html"_L1) && !has("<body"_L1) && !has("<!doctype html"_L1))
        return false;
    // One of them may still stand in a script or a comment.
    return std::ranges::any_of(editor::scanHtml(text), [&text](const editor::HtmlToken &token) {
        const QStringView tag = QStringView(text).sliced(token.start, token.end - token.start);
        if (token.kind == editor::HtmlTokenKind::Opaque)
            return tag.startsWith("<!doctype html"_L1, Qt::CaseInsensitive);
        return token.kind == editor::HtmlTokenKind::StartTag &&
               (token.name == "html"_L1 || token.name == "body"_L1);
    });
}

} // namespace ozm
