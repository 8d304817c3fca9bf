#pragma once

#include <ozm_widgets/ozm_widgets_export.h>

#include <QHash>
#include <QString>
#include <QTextDocument>

#include <memory>

class QTextCursor;

namespace ozm {

/**
 * A report template as formatted text.
 *
 * Short codes, scripts, and markup that formatted text has no form for stand in it as chips: single
 * characters that are selected, copied, deleted and undone whole, and that hold their text to the letter.
 *
 *     ozm::TemplateDocument document;
 *     document.setSource(u"<p>Dear <b>[Name]</b></p>"_s);
 *     QTextCursor cursor(&document);
 *     document.insertSource(cursor, u"[Charge]"_s);
 *     const QString source = document.source();
 *
 * Edits are written into the source that was read. Lines that nobody touched stay as they are to the letter,
 * with all that formatted text has no form for; so do the tags around those that were edited. Where that is not
 * possible, as for a table that got a row, it is written anew in a short form of HTML. What is written reads
 * as the document, and is written again without a change.
 *
 * Text that is set to a document on screen should come in by insertSource(): setSource() ends the undo
 * history. GUI thread only; nothing is ever loaded from a network or from disk.
 */
class OZM_WIDGETS_EXPORT TemplateDocument : public QTextDocument
{
    Q_OBJECT

public:
    /// The objects that stand in formatted text.
    enum class ChipKind
    {
        None,
        Code,
        Script,
        Markup
    };

    /// A place of the document that is not text.
    struct Chip
    {
        ChipKind kind = ChipKind::None; ///< ChipKind::None for text.
        QString source;                 ///< The very source that the chip stands for.
    };

    explicit TemplateDocument(QObject *parent = nullptr);
    ~TemplateDocument() override;

    /// HTML, or plain text, whose lines become paragraphs.
    void setSource(const QString &source);
    [[nodiscard]] QString source() const;
    /// To the letter as setSource() got it, whatever was edited since.
    [[nodiscard]] QString originalSource() const;
    /// True while source() is known already: after prepareSource(), until the next edit.
    [[nodiscard]] bool isSourceReady() const;
    /// Does a part of the work of source(), for some milliseconds. For a window that asks for the source of a long template:
    /// called by a timer until isSourceReady(), source() keeps nobody waiting.
    void prepareSource();
    /// The source of what @p selection holds; of one line without the line's own tag.
    [[nodiscard]] QString source(const QTextCursor &selection) const;

    /// Puts @p source in the place of the selection of @p cursor, in one step of the history.
    void insertSource(QTextCursor &cursor, const QString &source);

    /// The chip after @p position.
    [[nodiscard]] Chip chipAt(int position) const;
    /// Replaces the text of the chip after @p position; false when there is none.
    bool setChipSource(int position, const QString &source);

    /// The position of the chip that holds @p offset in source(), or of the one before; -1 before the first.
    [[nodiscard]] int positionOf(qsizetype offset) const;
    /// Where the chip after @p position begins in source(); -1 when there is none.
    [[nodiscard]] qsizetype offsetOf(int position) const;

    /// Sets the names that chips show for codes, by code with brackets. Others are marked as unknown, unless the
    /// table is empty. Captions of instructions are those of the application's present language from then on.
    void setDisplayNames(const QHash<QString, QString> &names);
    /// True when @p code is one of those offered, or when none are.
    [[nodiscard]] bool isKnownCode(const QString &code) const;

    /// True for a text with tags; anything else is plain text, in which lines count.
    [[nodiscard]] static bool isHtml(const QString &source);

protected:
    QVariant loadResource(int type, const QUrl &name) override;

private:
    class Private;
    const std::unique_ptr<Private> d;
};

} // namespace ozm

Q_DECLARE_TYPEINFO(ozm::TemplateDocument::Chip, Q_RELOCATABLE_TYPE);
