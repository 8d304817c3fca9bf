#pragma once

#include <ozm_widgets/ozm_widgets_export.h>

#include <QString>

/**
 * The envelope in which templates are stored: one element that carries the version of the format.
 *
 *     const QString stored = TECWrapper::wrapTEC(u"<p>[Name]</p>"_s);
 *     bool ok = false;
 *     const QString content = TECWrapper::unwrapTEC(stored, &ok);
 *
 * The content is put in unescaped, by substitution, so a content with markers such as "%1" does not come
 * back as it was. Any thread.
 */
class OZM_WIDGETS_EXPORT TECWrapper
{
public:
    /// @p content in an envelope of the present version.
    [[nodiscard]] static QString wrapTEC(const QString &content);

    /// The content of the first envelope in @p text, up to the last closing tag; empty, with @p ok false,
    /// when there is none or when it is of another version.
    [[nodiscard]] static QString unwrapTEC(const QString &text, bool *ok = nullptr);
};
