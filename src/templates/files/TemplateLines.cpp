#include "templates/files/TemplateLines.h"

#include "templates/document/TemplateChip.h"
#include "templates/instructions/InstructionCaption.h"

#include <ozm_widgets/TemplateDocument.h>

#include <QHash>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextList>
#include <QTextTable>

using namespace Qt::StringLiterals;

namespace ozm::comparison {

namespace {

Token chipToken(const editor::TemplatePart &part)
{
    if (const QString code = editor::codeOf(part); !code.isEmpty())
        return {Subject::Code, part.source, code};
    if (part.kind == editor::PartKind::Script)
        return {Subject::Script, part.source, part.source};
    if (const auto instruction = instructions::readInstruction(part.source))
        return {Subject::Instruction, part.source, instructions::captionOf(*instruction)};
    return {Subject::Markup, part.source, part.source};
}

bool isOfWord(QChar character)
{
    return character.isLetterOrNumber() || character.isMark() || character.isSurrogate();
}

void addWords(QList<Token> &tokens, QStringView text)
{
    for (qsizetype at = 0; at < text.size();) {
        qsizetype end = at + 1;
        if (isOfWord(text[at]))
            while (end < text.size() && isOfWord(text[end]))
                ++end;
        const QString word = text[at].isSpace() ? u" "_s : text.sliced(at, end - at).toString();
        if (word != u" " || tokens.isEmpty() || tokens.constLast().source != word)
            tokens.append({Subject::Text, word, word});
        at = end;
    }
}

/// @p format without what tells only where it stands in its document.
QTextFormat comparable(QTextFormat format)
{
    format.clearProperty(editor::kSourceRun);
    format.clearProperty(editor::kWrittenLine);
    format.clearProperty(QTextFormat::ObjectIndex);
    return format;
}

/// Numbers tables and lists as they come.
class LineReader
{
public:
    explicit LineReader(const QString &content) { m_document.setSource(content); }

    QList<Line> lines()
    {
        QList<Line> lines;
        for (QTextBlock block = m_document.begin(); block.isValid(); block = block.next()) {
            Line line = lineOf(block);
            if (!line.key.trimmed().isEmpty())
                lines.append(std::move(line));
        }
        return lines;
    }

private:
    Line lineOf(const QTextBlock &block)
    {
        Line line;
        line.position = block.position();
        add(line, block.blockFormat(), 0);
        for (auto fragment = block.begin(); !fragment.atEnd(); ++fragment)
            add(line, fragment.fragment());
        for (const Token &token : std::as_const(line.tokens))
            line.key += token.source;
        if (!line.key.trimmed().isEmpty())
            setPlace(line, block);
        return line;
    }

    static void add(Line &line, const QTextFormat &format, int length)
    {
        line.formats.append(comparable(format));
        line.lengths.append(length);
    }

    static void add(Line &line, const QTextFragment &fragment)
    {
        const QTextCharFormat format = fragment.charFormat();
        add(line, format, fragment.length());
        // Things that are alike and stand side by side are one fragment.
        if (editor::isChip(format))
            line.tokens.append(QList<Token>(fragment.length(), chipToken(editor::chipPart(format))));
        else if (format.isImageFormat())
            line.tokens.append(QList<Token>(
                fragment.length(), Token{Subject::Image, format.toImageFormat().name(), Texts::tr("image")}));
        else
            addWords(line.tokens, fragment.text());
    }

    void setPlace(Line &line, const QTextBlock &block)
    {
        const QTextCursor cursor(block);
        if (QTextTable *table = cursor.currentTable()) {
            const QTextTableCell cell = table->cellAt(cursor);
            line.table = numberOf(m_tables, table);
            line.row = cell.row() + 1;
            line.column = cell.column() + 1;
            line.place = Texts::tr("row %1 of table %2").arg(line.row).arg(line.table);
            add(line, table->format(), 0);
            add(line, cell.format(), 0);
        } else if (const QTextList *list = block.textList()) {
            line.place =
                Texts::tr("item %1 of list %2").arg(list->itemNumber(block) + 1).arg(numberOf(m_lists, list));
            add(line, list->format(), 0);
        } else {
            line.place = Texts::tr("paragraph %1").arg(++m_paragraphs);
        }
    }

    template <typename Object>
    static int numberOf(QHash<const Object *, int> &numbers, const Object *object)
    {
        const auto known = numbers.constFind(object);
        return known != numbers.constEnd() ? *known : *numbers.insert(object, int(numbers.size()) + 1);
    }

    TemplateDocument m_document;
    QHash<const QTextTable *, int> m_tables;
    QHash<const QTextList *, int> m_lists;
    int m_paragraphs = 0;
};

} // namespace

QString Line::shown() const
{
    QString text;
    for (const Token &token : tokens)
        text += token.shown;
    return text.trimmed();
}

QList<Line> linesOf(const QString &content)
{
    return LineReader(content).lines();
}

} // namespace ozm::comparison
