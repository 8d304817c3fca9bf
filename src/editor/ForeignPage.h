#pragma once

#include <QString>

namespace ozm::editor {

/**
 * The template source of @p html from another program's clipboard: its paragraphs, lists and tables with their
 * looks, and codes as codes. Empty when it shows nothing.
 *
 * The toolkit's reader decides what the page says, and only what the document then holds is written: no head,
 * style sheet or script comes in. Links that run something, images from elsewhere, frames and loaded objects
 * are left out, which a comment at the end tells.
 */
[[nodiscard]] QString sourceOfPage(const QString &html);

} // namespace ozm::editor
