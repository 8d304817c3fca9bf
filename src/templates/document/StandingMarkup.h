#pragma once

#include "templates/syntax/HtmlScanner.h"

#include <QList>
#include <QString>

namespace ozm::editor {

/**
 * The source of @p tokens from the one at @p first up to the position @p end, so that it is read in the same way whatever
 * stands around it: without end tags that would close what is outside, with those that it lacks, and within the
 * table or list that it is a part of. Markup that is well-formed stays to the letter.
 */
[[nodiscard]] QString standingMarkup(const QString &source, const QList<HtmlToken> &tokens,
                                     const HtmlTree &tree, qsizetype first, qsizetype end);

} // namespace ozm::editor
