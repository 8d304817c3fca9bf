#pragma once

#include "templates/document/TemplateParts.h"

class QTextDocument;

namespace ozm::editor {

/// Reads @p source into @p document and gives what it was taken apart into. Where @p remember is set, lines
/// know their runs of the source.
SplitTemplate readSource(QTextDocument &document, const QString &source, bool remember);

} // namespace ozm::editor
