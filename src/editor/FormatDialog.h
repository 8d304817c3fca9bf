#pragma once

#include "editor/InstructionDialogs.h"

class QSpinBox;

namespace ozm::editor {

/// Asks for the format of a code, and shows its value in that format.
class FormatDialog : public InstructionDialog
{
    Q_OBJECT

public:
    FormatDialog(const instructions::CodeFormat &format, const InstructionChoices &choices, QWidget *parent);

    [[nodiscard]] instructions::CodeFormat format() const;

private:
    struct Choice
    {
        QString text;
        QVariant value;
    };

    void addTextFields(const instructions::CodeFormat &format);
    void addNumberFields(const instructions::CodeFormat &format);
    void addOtherFields(const instructions::CodeFormat &format);
    [[nodiscard]] QComboBox *addChoice(const char *name, const QString &label, const QList<Choice> &choices,
                                       const QVariant &chosen);
    [[nodiscard]] QSpinBox *addCount(const char *name, const QString &label, int value, int most, int none,
                                     const QString &noneText);
    void showFields();
    void showSample(const instructions::CodeFormat &format);
    void update();

    int m_shownKind = -1;
    QComboBox *m_code = nullptr;
    QComboBox *m_kind = nullptr;
    QComboBox *m_case = nullptr;
    QSpinBox *m_digits = nullptr;
    QComboBox *m_thousands = nullptr;
    QComboBox *m_decimal = nullptr;
    QLineEdit *m_factor = nullptr;
    QLineEdit *m_unit = nullptr;
    QComboBox *m_total = nullptr;
    QComboBox *m_of = nullptr;
    QComboBox *m_pattern = nullptr;
    QSpinBox *m_width = nullptr;
    QLineEdit *m_alternative = nullptr;
    QLineEdit *m_empty = nullptr;
    QComboBox *m_as = nullptr;
    QLabel *m_sample = nullptr;
};

} // namespace ozm::editor
