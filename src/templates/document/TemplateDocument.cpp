#include <ozm_widgets/TemplateDocument.h>

#include "templates/document/InlineHtml.h"
#include "templates/document/InsertedLines.h"
#include "templates/document/KeptSource.h"
#include "templates/document/SelectedSource.h"
#include "templates/document/TableSpaces.h"
#include "templates/document/TemplateChip.h"
#include "templates/document/TemplateParts.h"
#include "templates/document/TemplateReading.h"
#include "templates/document/TemplateSourceWriter.h"
#include "templates/document/VectorImages.h"
#include "templates/instructions/InstructionTree.h"
#include "templates/syntax/HtmlScanner.h"

#include <QAbstractTextDocumentLayout>
#include <QDeadlineTimer>
#include <QImage>
#include <QRegularExpression>
#include <QTextBlock>
#include <QTextCursor>
#include <QUrl>

#include <algorithm>
#include <optional>
#include <utility>

using namespace Qt::StringLiterals;

namespace ozm {

using editor::PartKind;
using editor::TemplatePart;

class TemplateDocument::Private
{
public:
    /// The source of @p document, which is @p written.
    QString sourceOf(const TemplateDocument &document, const editor::WrittenSource &written)
    {
        if (!kept.isLearned() && kept.hasSource())
            learnAgain(document);
        // A page that lost its last tag would be read as plain text.
        if (const auto source = kept.write(document, written); source && isHtml(*source) == isReadAsHtml)
            return *source;
        return written.text;
    }

    [[nodiscard]] bool isAsRead(const TemplateDocument &document) const
    {
        return readRevision == document.revision() && kept.hasSource();
    }

    void forget()
    {
        writing.reset();
        ready.reset();
        readRevision = -1;
    }

    editor::ChipPainter painter;
    editor::KeptSource kept;
    bool isReadAsHtml = false; ///< Of the source that was read.
    int readRevision = -1;     ///< Of the document as it was read, while it is the same.
    std::unique_ptr<editor::SourceWriting> writing;
    bool isWritten = false; ///< To the end, by writing.
    int revision = -1;      ///< That is being written, or ready.
    std::optional<QString> ready;

private:
    /// For a document that was edited too soon.
    void learnAgain(const TemplateDocument &document);
};

namespace {

constexpr int kPrepareMs = 3;

// Scripts and comments may have lines of their own, which are none of the text's.
QStringList linesOf(const QString &text)
{
    // Codes are cut out before the rest is read as HTML, so only the rest may be escaped.
    static const QRegularExpression ampersand(u"&(?![^\\[\\]\\n]*\\])"_s);
    static const QRegularExpression less(u"<(?![^\\[\\]\\n]*\\])"_s);
    QStringList lines{QString()};
    for (const editor::HtmlToken &token : editor::scanHtml(text)) {
        QString part = text.sliced(token.start, token.end - token.start);
        // A "<!" that nothing ends is text: as a comment it would swallow the rest.
        if (token.kind == editor::HtmlTokenKind::Script ||
            (token.kind != editor::HtmlTokenKind::Text && editor::missingEnd(text, token).isEmpty())) {
            lines.last() += part;
            continue;
        }
        const QStringList parts = part.replace(ampersand, u"&amp;"_s)
                                      .replace(less, u"&lt;"_s)
                                      .replace(editor::halfTag(), u"&lt;"_s)
                                      .split(u'\n');
        lines.last() += parts.first();
        lines += parts.sliced(1);
    }
    return lines;
}

QString linesAsParagraphs(const QString &text)
{
    if (text.trimmed().isEmpty())
        return {};
    QString html;
    for (const QString &line : linesOf(text)) {
        html += line.trimmed().isEmpty() ? u"<div><br/></div>"_s
                                         : u"<div style=\"white-space:pre-wrap\">"_s + line + "</div>"_L1;
    }
    return html;
}

void read(QTextDocument &document, const QString &source)
{
    const QString html = TemplateDocument::isHtml(source) ? source : linesAsParagraphs(source);
    editor::readSource(document, html, false);
}

/// The chips of @p document at their places in its source.
QList<editor::ChipPlace> chipPlaces(const TemplateDocument &document)
{
    const editor::WrittenSource written = editor::writeSource(document);
    const QString source = document.source();
    if (source == written.text)
        return written.chips;
    QList<editor::PartPlace> places;
    const editor::SplitTemplate split = editor::splitTemplate(source);
    for (qsizetype index = 0; index < split.parts.size(); ++index)
        if (split.parts.at(index).kind != PartKind::None && !split.parts.at(index).source.isEmpty())
            places.append(split.places.at(index));
    QList<editor::ChipPlace> chips = written.chips;
    for (qsizetype index = 0; index < qMin(chips.size(), places.size()); ++index) {
        chips[index].start = places.at(index).start;
        chips[index].end = places.at(index).end;
    }
    return chips;
}

QImage missingImage()
{
    static const QImage image(u":/qt-project.org/styles/commonstyle/images/file-16.png"_s);
    if (!image.isNull())
        return image;
    QImage empty(16, 16, QImage::Format_ARGB32_Premultiplied);
    empty.fill(Qt::transparent);
    return empty;
}

} // namespace

void TemplateDocument::Private::learnAgain(const TemplateDocument &document)
{
    QTextDocument asRead;
    asRead.setDefaultStyleSheet(document.defaultStyleSheet());
    if (isReadAsHtml)
        (void)editor::readSource(asRead, kept.source(), true);
    else
        read(asRead, kept.source());
    kept.learn(asRead, editor::writeSource(asRead));
}

TemplateDocument::TemplateDocument(QObject *parent)
    : QTextDocument(parent)
    , d(std::make_unique<Private>())
{
    connect(this, &QTextDocument::contentsChange, this, [this] { d->forget(); });
    documentLayout()->registerHandler(editor::kChipObject, &d->painter);
    new editor::VectorImages(*this);
}

TemplateDocument::~TemplateDocument() = default;

bool TemplateDocument::isHtml(const QString &source)
{
    return instructions::isHtml(source);
}

void TemplateDocument::setSource(const QString &source)
{
    editor::SplitTemplate split;
    d->isReadAsHtml = isHtml(source);
    if (d->isReadAsHtml)
        split = editor::readSource(*this, source, true);
    else
        read(*this, source);
    d->kept = editor::KeptSource(source, split);
    if (editor::KeptSource::hasOtherLines(*this))
        d->kept.learn(*this, editor::writeSource(*this));
    d->forget();
    d->readRevision = revision();
    setModified(false);
}

QString TemplateDocument::source() const
{
    if (d->isAsRead(*this))
        return d->kept.source();
    if (d->ready && d->revision == revision())
        return *d->ready;
    return d->sourceOf(*this, editor::writeSource(*this));
}

QString TemplateDocument::originalSource() const
{
    return d->kept.source();
}

bool TemplateDocument::isSourceReady() const
{
    return d->isAsRead(*this) ? d->kept.isLearned() : d->ready && d->revision == revision();
}

void TemplateDocument::prepareSource()
{
    if (isSourceReady())
        return;
    if (!d->writing || d->revision != revision()) {
        d->writing = std::make_unique<editor::SourceWriting>(*this);
        d->isWritten = false;
        d->revision = revision();
    }
    if (!d->isWritten) {
        d->isWritten = d->writing->goOn(QDeadlineTimer(kPrepareMs));
        return;
    }
    const auto writing = std::exchange(d->writing, nullptr);
    if (d->isAsRead(*this))
        d->kept.learn(*this, writing->take());
    else
        d->ready = d->sourceOf(*this, writing->take());
}

QString TemplateDocument::source(const QTextCursor &selection) const
{
    return editor::selectedSource(selection);
}

void TemplateDocument::insertSource(QTextCursor &cursor, const QString &source)
{
    const TemplatePart part = editor::partOf(source);
    const QTextCharFormat around = editor::withoutChip(cursor.charFormat());
    cursor.beginEditBlock();
    const bool isChip = part.kind != PartKind::Markup || instructions::readInstruction(source);
    if (!isChip) {
        QTextDocument parsed;
        read(parsed, source);
        cursor.removeSelectedText();
        editor::insertLines(cursor, parsed);
        editor::spaceTables(*this);
    } else {
        cursor.insertText(QString(QChar::ObjectReplacementCharacter), editor::chipFormat(part, around));
    }
    cursor.setCharFormat(around);
    cursor.endEditBlock();
}

TemplateDocument::Chip TemplateDocument::chipAt(int position) const
{
    if (position < 0 || characterAt(position) != QChar::ObjectReplacementCharacter)
        return {};
    QTextCursor cursor(const_cast<TemplateDocument *>(this));
    cursor.setPosition(position + 1);
    const QTextCharFormat format = cursor.charFormat();
    if (!editor::isChip(format))
        return {};
    return editor::chipPart(format);
}

bool TemplateDocument::setChipSource(int position, const QString &source)
{
    if (chipAt(position).kind == ChipKind::None)
        return false;
    QTextCursor cursor(this);
    cursor.setPosition(position);
    cursor.setPosition(position + 1, QTextCursor::KeepAnchor);
    const QTextCharFormat base = editor::withoutChip(cursor.charFormat());
    cursor.insertText(QString(QChar::ObjectReplacementCharacter),
                      editor::chipFormat(editor::partOf(source), base));
    return true;
}

int TemplateDocument::positionOf(qsizetype offset) const
{
    int position = -1;
    for (const editor::ChipPlace &chip : chipPlaces(*this)) {
        if (chip.start > offset)
            break;
        position = chip.position;
    }
    return position;
}

qsizetype TemplateDocument::offsetOf(int position) const
{
    for (const editor::ChipPlace &chip : chipPlaces(*this))
        if (chip.position == position)
            return chip.start;
    return -1;
}

void TemplateDocument::setDisplayNames(const QHash<QString, QString> &names)
{
    if (d->painter.setDisplayNames(names, *this))
        markContentsDirty(0, characterCount());
}

bool TemplateDocument::isKnownCode(const QString &code) const
{
    return d->painter.isKnown(code);
}

QVariant TemplateDocument::loadResource(int type, const QUrl &name)
{
    // A template may come from anywhere: only the data that it carries itself is shown.
    QVariant data;
    const QString text = name.toString(QUrl::FullyEncoded);
    const bool isRefused = editor::isSvgName(text) && editor::svgIn(text).isEmpty();
    if (name.scheme() == "data"_L1 && !isRefused)
        data = QTextDocument::loadResource(type, name);
    // Without an image, the toolkit would look for a file of that name.
    return data.isNull() && type == ImageResource ? QVariant(missingImage()) : data;
}

} // namespace ozm
