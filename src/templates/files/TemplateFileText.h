#pragma once

#include <ozm_common_stable/Result.h>

#include <QByteArray>
#include <QString>

namespace ozm {

struct DecodedText
{
    QString text;
    QByteArray charset;
};

/// "Wrong template editor content format.", with @p detail as a warning.
[[nodiscard]] Error wrongTemplateFormat(const QString &detail);

/**
 * The text in @p bytes: in the character set of their byte-order mark, for HTML pages in the declared one,
 * and otherwise in UTF-8. A page that declares none and is not UTF-8 is taken as windows-1252, as browsers
 * do. Code 2 for what is not text, and for what does not fit its declaration.
 */
[[nodiscard]] Result<DecodedText> decodeTemplateFile(const QByteArray &bytes);

/// True when @p text is a whole HTML page, with a document type, an html or a body element, and not a part of
/// one.
[[nodiscard]] bool isHtmlPage(const QString &text);

} // namespace ozm
