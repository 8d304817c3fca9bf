#pragma once

#include "editor/InstructionDialogs.h"
#include "editor/SectionPlaces.h"

#include <ozm_widgets/TemplateDiagnostics.h>

#include <QMap>
#include <QObject>
#include <QTextCursor>

class RowNode;

namespace ozm::editor {

class CodeModel;
class EditorViews;

/// Asks for instructions - parts that repeat, conditions, formats - and writes them into the template.
class EditorInstructions : public QObject
{
    Q_OBJECT

public:
    struct Data
    {
        std::function<TemplateReport(const QString &content)> filled;
        std::function<QString()> source; ///< Of the view that is shown.
        std::function<QMap<QString, QList<RowNode *>>()> lists;
    };

    EditorInstructions(EditorViews &views, const CodeModel &codes, const Data &data, QWidget *window);

    void askRepeat();
    void askCondition();
    void askFormat();
    void askPage();
    void askContents();
    /// Gives the section around the cursor its other part, or goes to that.
    void addOtherPart();
    /// False when there is no instruction at the cursor.
    bool editAtCursor();

Q_SIGNALS:
    void told(const QString &text);

private:
    [[nodiscard]] InstructionChoices choices(bool isNew) const;
    [[nodiscard]] std::optional<instructions::Instruction> atCursor() const;
    void ask(const instructions::Repeat &repeat, bool isNew);
    void ask(const instructions::Condition &condition, bool isNew);
    void ask(const instructions::CodeFormat &format, bool isNew);
    void ask(const instructions::Page &page, bool isNew);
    void ask(const instructions::Contents &contents, bool isNew);
    void write(const instructions::Instruction &instruction, instructions::Extent extent, bool isNew);
    [[nodiscard]] std::optional<SectionPlaces> section() const;
    [[nodiscard]] QTextCursor cursorAt(int position) const;
    [[nodiscard]] QTextCursor behind(const InstructionMark &mark) const;

    EditorViews &m_views;
    const CodeModel &m_codes;
    const Data m_data;
    QWidget *m_window;
};

} // namespace ozm::editor
