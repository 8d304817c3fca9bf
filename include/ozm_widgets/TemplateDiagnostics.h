#pragma once

#include <ozm_common_stable/Error.h>

#include <QList>
#include <QString>

namespace ozm {

/// A code for which no value was found.
struct UnresolvedCode
{
    QString code;            ///< With its brackets.
    qsizetype position = -1; ///< Of the opening bracket, in the text handed in.
};

/// A piece of script that failed, so that its code stands in the decoded text.
struct FailedScript
{
    qsizetype position = -1; ///< Of the piece, just after its tag, in the text handed in.
    int line = 0;            ///< Within the piece, counted from 1.
    QString message;         ///< The engine's own words.
    QString code;            ///< The whole piece.
};

/// A code that stood in a value and was replaced like those of the template. Values that shall appear as they are
/// go through templateEditorCore.escapeHtml().
struct BroughtInCode
{
    QString code;            ///< Which was brought in, with its brackets.
    QString by;              ///< The code with that value; empty when a script put the value in.
    qsizetype position = -1; ///< Of @c by, or of the piece of script, in the text handed in.
};

/// An instruction that could not be followed, so that it stands in the filled text. See fillTemplate().
struct FaultyInstruction
{
    QString instruction;     ///< As it stands in the template.
    qsizetype position = -1; ///< In the text handed in.
    QString message;         ///< What is wrong with it, for the user.
};

/// A decoded template together with what went wrong in it, for editors and batch runs.
struct TemplateReport
{
    QString text;                     ///< The text, filled as far as could be.
    QList<UnresolvedCode> unresolved; ///< In order of position; codes in scripts only where they are quoted.
    QList<FailedScript> failed;       ///< In order of position.
    QList<BroughtInCode> broughtIn;   ///< In order of position.

    /// Code 2 when nothing was decoded: the text has no envelope where it needs one, or no row.
    Error error = {};
    QList<FaultyInstruction> faulty = {}; ///< In order of position.

    /// Why scripts could not be run, which are then among the failed: code 1 when the script engine or its process is
    /// not there, or the process has ended. See TemplateEditorJSEngine::setScriptPlace().
    Error scriptError = {};

    /// True when the template was decoded, and each code and script in it came out as its author meant.
    [[nodiscard]] bool isComplete() const
    {
        return !error.hasError() && unresolved.isEmpty() && failed.isEmpty() && broughtIn.isEmpty() &&
               faulty.isEmpty();
    }
};

} // namespace ozm
