#pragma once

#include <ozm_widgets/ozm_widgets_export.h>

#include <QList>
#include <QString>

namespace ozm {

/// One difference between two states of a template, in the terms of the person who writes it.
struct TemplateDifference
{
    /// The way in which the two differ.
    enum class Change
    {
        Added,
        Removed,
        Changed,
    };

    /// The thing that differs.
    enum class Subject
    {
        Text,        ///< Words in a line that both have.
        Line,        ///< A whole paragraph, list item or table row, with all that is in it.
        Code,        ///< With or without a format.
        Script,      ///< With its tags.
        Instruction, ///< A part that repeats, a condition, the set-up of the pages.
        Image,       ///< Its file or its bytes.
        Markup,      ///< What formatted text has no form for.
        Formatting,  ///< Of a line that reads the same.
        Source,      ///< Markup that shows nowhere; told only where nothing else differs.
    };

    Change change = Change::Changed; ///< Added things are in the later state only.
    Subject subject = Subject::Text; ///< The kind of thing.
    QString before = {};             ///< As it was; empty for what was added.
    QString after = {};              ///< As it is; empty for what was removed.
    QString text = {};               ///< All of it in words, such as "Code [Mass] added in row 2 of table 1".
    int positionBefore = -1; ///< Of its line in a TemplateDocument of that state; -1 where it is not there.
    int positionAfter = -1;  ///< The same for the other state.

    /// True when all that they tell is the same.
    friend bool operator==(const TemplateDifference &, const TemplateDifference &) = default;
};

/**
 * The differences between two templates without their envelopes, in the order of the text:
 *
 *     const auto saved = ozm::TemplateFile::read(path);
 *     for (const ozm::TemplateDifference &difference : ozm::compareTemplates(saved.value().content, text))
 *         qInfo() << difference.text;
 *
 * Compared is what a TemplateDocument shows of them, line by line and word by word, rather than their bytes. Lines
 * that were moved count as removed and added. Empty only for templates that are the same to the letter. GUI thread.
 */
[[nodiscard]] OZM_WIDGETS_EXPORT QList<TemplateDifference> compareTemplates(const QString &before,
                                                                            const QString &after);

} // namespace ozm
