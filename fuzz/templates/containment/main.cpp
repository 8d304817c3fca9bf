#include "Fuzz.h"
#include "templates/scripts/ScriptContainment.h"

using namespace ozm;

// That no contained script leaves anything behind is shown by a test with an engine; here, that any text is judged
// and judged alike.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QString code = fuzz::textOf(data, size);
    const ScriptReading read = readScript(code);
    fuzz::require(read.function == readScript(code).function, "a script is judged by its text alone");
    fuzz::require(!read.isContained || read.variables.isEmpty() || !read.function.isEmpty(),
                  "variables are kept in a function");
    return 0;
}
