#include "Fuzz.h"

#include <ozm_common_stable/Result.h>
#include <ozm_references/ResourceReferenceUtils.h>
#include <ozm_widgets/IFileAccessor.h>

using namespace ozm;

// One path a line, and the whole as the text of a reference.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QString text = fuzz::textOf(data, size);
    using Location = IFileAccessor::DestinationFileLocation;
    if (const auto references = ResourceReferenceUtils::fromStringList(text.split(u'\n'))) {
        for (const auto &reference : references.value()) {
            const Location location(reference->toString());
            fuzz::require(!location.isNull() && location.reference->toString() == reference->toString(),
                          "a reference is read as it was written");
        }
    }
    (void)Location(text).toString();
    return 0;
}
