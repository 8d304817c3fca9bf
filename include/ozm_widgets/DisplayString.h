#pragma once

#include <ozm_widgets/ozm_widgets_export.h>

#include <QFlags>
#include <QString>

/**
 * A text for the user, together with whether it is HTML.
 *
 * It is said once, where the text is made, how the text is to be shown; whoever shows it asks:
 *
 *     OZMStyle::warning(this, signal, tr("Not saved"));                            // plain
 *     OZMStyle::warning(this, signal, DisplayRichString(tr("<b>Not</b> saved")));  // HTML
 *
 *     label->setTextFormat(text.format());
 *     label->setText(text.data());
 *
 * A value; safe to pass between threads.
 */
class OZM_WIDGETS_EXPORT DisplayString
{
public:
    /// How the text is meant to be shown.
    enum Flag : quint32
    {
        RichText = 0x1 ///< The text is HTML.
    };
    Q_DECLARE_FLAGS(Flags, Flag)

    // Implicit, so that a plain text can be passed as it is.
    DisplayString(const char *utf8);
    DisplayString(const QString &text);

    /// Qt::RichText for HTML. Otherwise Qt::AutoText, not Qt::PlainText: whoever shows the text may still
    /// take it for HTML when it looks like it.
    [[nodiscard]] Qt::TextFormat format() const;
    /// The text as it was given; HTML stays HTML.
    [[nodiscard]] QString data() const { return m_text; }
    /// The text without markup; one that is not HTML is left as it is, tags included.
    [[nodiscard]] QString toPlainText() const;

protected:
    DisplayString(const QString &text, Flags flags);

private:
    Flags m_flags;
    QString m_text;
};

Q_DECLARE_OPERATORS_FOR_FLAGS(DisplayString::Flags)

/// A DisplayString that is HTML.
class OZM_WIDGETS_EXPORT DisplayRichString : public DisplayString
{
public:
    // Implicit for the same reason as in the base class.
    DisplayRichString(const QString &html);
};
