#include "Fuzz.h"

#include <ozm_common_core/FileExtensionsNameFilter.h>
#include <ozm_widgets/FileDialog.h>

using namespace ozm;

// The first line is a file's name, the rest a filter.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QString input = fuzz::textOf(data, size);
    const qsizetype end = input.indexOf(u'\n');
    const QString name = input.left(qMax<qsizetype>(0, end));
    const QString filter = input.sliced(end + 1);

    const QString text = FileExtensionsNameFilter(filter).toFilterString();
    fuzz::require(FileExtensionsNameFilter(text).toFilterString() == text, "a filter stays as it is written");
    const QString full = FileDialog::fileNameWithExtension(name, filter);
    fuzz::require(full.startsWith(name), "a name is added to, and never cut");
    // Of an extension of several parts, only the last is looked for in the name.
    const QString added = full.mid(name.size() + 1);
    const bool isOnePart = !added.contains(u'.') && !added.contains(u'/');
    fuzz::require(!isOnePart || FileDialog::fileNameWithExtension(full, filter) == full,
                  "an extension is added once");
    return 0;
}
