#pragma once

#include <QList>
#include <QString>

#include <optional>

class QTextBlock;

namespace ozm::editor {

/// A part of a line's source that is one character of the line.
struct LineObject
{
    qsizetype start;
    qsizetype end;
    QChar character;
};

/// How the blanks in the source of a line are read.
enum class Blanks
{
    Fold,         ///< Several are one.
    Count,        ///< Each is one.
    CountFromNow, ///< Several were one, each is one in the line as it is.
};

/**
 * The source @p run of the line @p before, changed to that of the line @p now: only the characters that were
 * taken out or put in, so that the tags between the others stay as they are. Nothing when that cannot be told.
 */
[[nodiscard]] std::optional<QString> patchedLine(const QString &run, const QList<LineObject> &objects,
                                                 const QTextBlock &before, const QTextBlock &now,
                                                 Blanks blanks);

/// @p tag, the start tag of a line's element, changed as the tag that the line is written with changed from
/// @p before to @p now. Nothing when the elements do not match.
[[nodiscard]] QString patchedTag(const QString &tag, const QString &before, const QString &now);

/// @p tag, the start tag of a cell, with the width that the tag @p now says; without one where that says none.
[[nodiscard]] QString withWidthOf(QString tag, const QString &now);

/// @p tag without its width.
[[nodiscard]] QString withoutWidth(QString tag);

/// The name of the element that @p tag opens, in lower case.
[[nodiscard]] QString tagName(QStringView tag);

} // namespace ozm::editor
