#pragma once

#include "templates/syntax/HtmlScanner.h"

namespace ozm::editor {

/// A part of a source that is shown as one chip, as rich text has no form for it, or not at all.
struct WholeRange
{
    qsizetype start = 0;
    qsizetype end = 0;
    bool isDropped = false;
};

/// In their order; none is inside another.
[[nodiscard]] QList<WholeRange> wholeRanges(const QString &source, const QList<HtmlToken> &tokens,
                                            const HtmlTree &tree);

} // namespace ozm::editor
