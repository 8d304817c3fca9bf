#pragma once

#include "templates/instructions/InstructionSyntax.h"

#include <QDialog>
#include <QStringList>

#include <functional>
#include <optional>

class QCheckBox;
class QComboBox;
class QFormLayout;
class QLabel;
class QLineEdit;
class QRadioButton;
class QSpinBox;

namespace ozm::editor {

/// The names that a user can choose from, and the way to try an instruction.
struct InstructionChoices
{
    QStringList codes; ///< Without brackets.
    QStringList lists;
    bool isInRow = false; ///< The cursor stands where a row can be meant.
    bool isNew = false;   ///< The instruction is not in the template yet.
    /// @p content filled with the data of the preview; nothing where that cannot be done.
    std::function<std::optional<QString>(const QString &content)> filled;
};

/// A dialog with rows of fields above its buttons.
class InstructionDialog : public QDialog
{
    Q_OBJECT

protected:
    InstructionDialog(const char *name, const QString &title, const InstructionChoices &choices,
                      QWidget *parent);

    [[nodiscard]] const InstructionChoices &choices() const { return m_choices; }
    [[nodiscard]] QFormLayout *form() const { return m_form; }
    /// Adds a choice between the row around the cursor and the selected lines.
    void addExtent(const QString &label, instructions::Extent extent);
    [[nodiscard]] instructions::Extent extent() const;
    [[nodiscard]] QRadioButton *rowChoice() const { return m_row; }
    /// Adds a field for the name of a code. Without one, the dialog cannot be accepted; @p none is shown then.
    [[nodiscard]] QComboBox *addCode(const char *name, const QString &label, const QString &code);
    [[nodiscard]] QComboBox *addList(const char *name, const QString &label, const QString &list);
    [[nodiscard]] QLineEdit *addLine(const char *name, const QString &label, const QString &text,
                                     const QString &placeholder = {});
    [[nodiscard]] QLabel *addSample(const char *name, const QString &label);
    /// Shows the beginning of a long text.
    static void setSample(QLabel *sample, const QString &text);
    void addButtons();
    void setAcceptable(bool isAcceptable);

    template <typename Field>
    Field *named(Field *field, const char *name)
    {
        field->setObjectName(QString::fromLatin1(name));
        return field;
    }

private:
    const InstructionChoices m_choices;
    QFormLayout *m_form;
    QRadioButton *m_row = nullptr;
    class QPushButton *m_accept = nullptr;
};

/// Asks for the way in which a part repeats.
class RepeatDialog : public InstructionDialog
{
    Q_OBJECT

public:
    RepeatDialog(const instructions::Repeat &repeat, const InstructionChoices &choices, QWidget *parent);

    [[nodiscard]] instructions::Repeat repeat() const;

private:
    QComboBox *m_of;
    const QList<instructions::SortKey> m_former;
    QList<QComboBox *> m_sort;
    QList<QCheckBox *> m_descending;
    QLineEdit *m_empty;
};

/// Asks for the condition under which a part is shown.
class ConditionDialog : public InstructionDialog
{
    Q_OBJECT

public:
    /// With @p hasOtherPart, the section has the part already that is shown where the condition does not hold.
    ConditionDialog(const instructions::Condition &condition, const InstructionChoices &choices,
                    bool hasOtherPart, QWidget *parent);

    [[nodiscard]] instructions::Condition condition() const;
    /// True when the section shall get its other part.
    [[nodiscard]] bool addsOtherPart() const;

private:
    void update();

    QComboBox *m_code;
    QComboBox *m_test;
    QLineEdit *m_value;
    QCheckBox *m_other;
    const bool m_hasOtherPart;
    QLabel *m_sample;
};

/// Asks how the pages of the report are set up.
class PageDialog : public InstructionDialog
{
    Q_OBJECT

public:
    PageDialog(const instructions::Page &page, const InstructionChoices &choices, QWidget *parent);

    [[nodiscard]] instructions::Page page() const;

private:
    QComboBox *m_size;
    QComboBox *m_orientation;
    QList<QSpinBox *> m_margins; ///< Top, right, bottom and left.
    QLineEdit *m_header;
    QLineEdit *m_footer;
    QLineEdit *m_name;
    QLineEdit *m_version;
};

/// Asks which headings a table of contents has.
class ContentsDialog : public InstructionDialog
{
    Q_OBJECT

public:
    ContentsDialog(const instructions::Contents &contents, const InstructionChoices &choices,
                   QWidget *parent);

    [[nodiscard]] instructions::Contents contents() const;

private:
    QLineEdit *m_title;
    QSpinBox *m_levels;
};

} // namespace ozm::editor
