#include "editor/EditorInstructions.h"

#include "editor/CodeModel.h"
#include "editor/EditorViews.h"
#include "editor/FormatDialog.h"

#include "templates/instructions/InstructionTree.h"

#include "support/Platform.h"

#include <QTextBlock>

using namespace Qt::StringLiterals;

namespace ozm::editor {

namespace {

using instructions::CodeFormat;
using instructions::Condition;
using instructions::Contents;
using instructions::Else;
using instructions::End;
using instructions::Extent;
using instructions::Instruction;
using instructions::Page;
using instructions::Repeat;

QString withoutBrackets(const QString &code)
{
    return code.sliced(1).chopped(1);
}

} // namespace

EditorInstructions::EditorInstructions(EditorViews &views, const CodeModel &codes, const Data &data,
                                       QWidget *window)
    : QObject(window)
    , m_views(views)
    , m_codes(codes)
    , m_data(data)
    , m_window(window)
{}

void EditorInstructions::askRepeat()
{
    const auto present = atCursor();
    if (const auto *repeat = present ? std::get_if<Repeat>(&*present) : nullptr)
        ask(*repeat, false);
    else
        ask(Repeat{m_views.current().isInRow() ? Extent::Row : Extent::Section}, true);
}

void EditorInstructions::askCondition()
{
    const auto present = atCursor();
    if (const auto *condition = present ? std::get_if<Condition>(&*present) : nullptr)
        ask(*condition, false);
    else
        ask(Condition{}, true);
}

void EditorInstructions::askFormat()
{
    const QTextCursor place = m_views.current().codeAtCursor();
    const QString source = place.isNull() ? QString() : m_views.current().partSource(place);
    const auto present = instructions::readInstruction(source);
    if (const auto *format = present ? std::get_if<CodeFormat>(&*present) : nullptr)
        ask(*format, false);
    else if (source.startsWith(u'['))
        ask(CodeFormat{withoutBrackets(source)}, false);
    else
        ask(CodeFormat{}, true);
}

void EditorInstructions::askPage()
{
    // A template has one, wherever that stands.
    const QString source = m_data.source();
    const auto page = instructions::pageOf(source);
    if (!page) {
        ask(Page{}, true);
        return;
    }
    const QString written = sourceOf(*page);
    const qsizetype place = source.indexOf(written);
    if (place >= 0)
        m_views.current().select(place, written.size());
    const auto present = atCursor();
    ask(*page, !present || !std::holds_alternative<Page>(*present));
}

void EditorInstructions::askContents()
{
    const auto present = atCursor();
    if (const auto *contents = present ? std::get_if<Contents>(&*present) : nullptr)
        ask(*contents, false);
    else
        ask(Contents{Contents().levels, tr("Contents")}, true);
}

bool EditorInstructions::editAtCursor()
{
    auto present = atCursor();
    if (!present || m_views.isReadOnly())
        return false;
    if (std::holds_alternative<Else>(*present) || std::holds_alternative<End>(*present)) {
        // They say nothing themselves: the section does.
        const auto whole = section();
        if (!whole)
            return true;
        m_views.current().setCursor(cursorAt(whole->begin.start));
        present = whole->begin.instruction;
    }
    if (const auto *repeat = std::get_if<Repeat>(&*present))
        ask(*repeat, false);
    else if (const auto *condition = std::get_if<Condition>(&*present))
        ask(*condition, false);
    else if (const auto *format = std::get_if<CodeFormat>(&*present))
        ask(*format, false);
    else if (const auto *page = std::get_if<Page>(&*present))
        ask(*page, false);
    else if (const auto *contents = std::get_if<Contents>(&*present))
        ask(*contents, false);
    return true;
}

std::optional<SectionPlaces> EditorInstructions::section() const
{
    const EditorView &view = m_views.current();
    return sectionAround(view.instructionMarks(), view.cursor().selectionStart());
}

/// On the line below, where @p mark has one of its own.
QTextCursor EditorInstructions::behind(const InstructionMark &mark) const
{
    QTextCursor cursor = cursorAt(mark.end);
    const QString rest = cursor.block().text().sliced(cursor.positionInBlock()).trimmed();
    if (rest.isEmpty() || rest.startsWith("</"_L1))
        cursor.movePosition(QTextCursor::NextBlock);
    return cursor;
}

QTextCursor EditorInstructions::cursorAt(int position) const
{
    QTextCursor cursor = m_views.current().cursor();
    cursor.setPosition(position);
    return cursor;
}

void EditorInstructions::addOtherPart()
{
    EditorView &view = m_views.current();
    const auto whole = section();
    const auto *repeat = whole ? std::get_if<Repeat>(&whole->begin.instruction) : nullptr;
    if (!whole)
        Q_EMIT told(tr("The cursor is not in a section. Select lines, and give them a condition first."));
    else if (repeat && !repeat->empty.isEmpty())
        Q_EMIT told(tr("The section has a text for no rows already."));
    else if (whole->otherwise)
        view.setCursor(behind(*whole->otherwise));
    else
        view.insertOtherPart(whole->end, sourceOf(Else()));
    view.widget()->setFocus();
}

InstructionChoices EditorInstructions::choices(bool isNew) const
{
    InstructionChoices choices;
    choices.isNew = isNew;
    choices.isInRow = m_views.current().isInRow();
    for (int row = 0; row < m_codes.rowCount(); ++row)
        choices.codes.append(withoutBrackets(m_codes.codeAt(row)));
    const auto lists = m_data.lists();
    choices.lists = lists.keys();
    for (const QList<RowNode *> &rows : lists)
        if (!rows.isEmpty())
            choices.codes += platform::columnsOf(*rows.constFirst());
    choices.codes += {u"RowNumber"_s, u"RowCount"_s};
    choices.codes.removeDuplicates();
    choices.codes.sort(Qt::CaseInsensitive);
    choices.filled = [this](const QString &content) {
        const TemplateReport report = m_data.filled(content);
        return report.isComplete() ? std::optional(report.text) : std::nullopt;
    };
    return choices;
}

std::optional<Instruction> EditorInstructions::atCursor() const
{
    const QTextCursor place = m_views.current().codeAtCursor();
    return place.isNull() ? std::nullopt : instructions::readInstruction(m_views.current().partSource(place));
}

void EditorInstructions::ask(const Repeat &repeat, bool isNew)
{
    RepeatDialog dialog(repeat, choices(isNew), m_window);
    if (dialog.exec() == QDialog::Accepted)
        write(dialog.repeat(), dialog.repeat().extent, isNew);
}

void EditorInstructions::ask(const Condition &condition, bool isNew)
{
    const auto whole = isNew ? std::nullopt : section();
    ConditionDialog dialog(condition, choices(isNew), whole && whole->otherwise, m_window);
    if (dialog.exec() != QDialog::Accepted)
        return;
    QTextCursor step = m_views.current().cursor();
    step.beginEditBlock();
    write(dialog.condition(), dialog.condition().extent, isNew);
    if (dialog.addsOtherPart())
        addOtherPart();
    step.endEditBlock();
}

void EditorInstructions::ask(const CodeFormat &format, bool isNew)
{
    FormatDialog dialog(format, choices(isNew), m_window);
    if (dialog.exec() == QDialog::Accepted)
        write(dialog.format(), Extent::Row, isNew);
}

void EditorInstructions::ask(const Page &page, bool isNew)
{
    PageDialog dialog(page, choices(isNew), m_window);
    if (dialog.exec() != QDialog::Accepted)
        return;
    if (isNew)
        m_views.current().insertFirstLine(sourceOf(dialog.page()));
    else
        write(dialog.page(), Extent::Row, isNew);
}

void EditorInstructions::ask(const Contents &contents, bool isNew)
{
    ContentsDialog dialog(contents, choices(isNew), m_window);
    if (dialog.exec() != QDialog::Accepted)
        return;
    if (isNew)
        m_views.current().insertLine(sourceOf(dialog.contents()));
    else
        write(dialog.contents(), Extent::Row, isNew);
}

void EditorInstructions::write(const Instruction &instruction, Extent extent, bool isNew)
{
    EditorView &view = m_views.current();
    const QString source = sourceOf(instruction);
    if (!isNew) {
        view.setPartSource(view.codeAtCursor(), source);
    } else if (extent == Extent::Section) {
        view.enclose(source, sourceOf(End()));
    } else {
        // Within a code, there would be no code any more.
        const QTextCursor code = view.codeAtCursor();
        QTextCursor cursor = view.cursor();
        cursor.setPosition(code.isNull() ? cursor.selectionStart() : code.selectionStart());
        view.setCursor(cursor);
        view.insertSource(source);
    }
    view.widget()->setFocus();
}

} // namespace ozm::editor
