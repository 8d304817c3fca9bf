#pragma once

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
    QString message;
    QString code; ///< The whole piece.
};

/// A decoded template together with what went wrong in it, for editors and batch runs.
struct TemplateReport
{
    QString text;
    QList<UnresolvedCode> unresolved; ///< In order of position; codes in scripts only where they are quoted.
    QList<FailedScript> failed;       ///< In order of position.
};

} // namespace ozm
