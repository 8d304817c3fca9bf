#include "Fuzz.h"
#include "templates/scripts/ScriptContainment.h"

using namespace ozm;

// That no contained script leaves anything behind is shown by a test with an engine; here, that any text is judged
// and judged alike.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QString code = fuzz::textOf(data, size);
    fuzz::require(isContainedScript(code) == isContainedScript(code), "a script is judged by its text alone");
    return 0;
}
