#include "Fuzz.h"
#include "templates/syntax/Envelope.h"
#include "templates/syntax/ScriptTags.h"

#include <ozm_widgets/TECWrapper.h>

using namespace ozm;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QString text = fuzz::textOf(data, size);
    const auto content = syntax::unwrapped(syntax::wrapped(text));
    fuzz::require(content && content->text == text, "what was put into an envelope comes out of it");

    bool ok = false;
    const QString unwrapped = TECWrapper::unwrapTEC(text, &ok);
    fuzz::require(ok || unwrapped.isEmpty(), "content without an envelope");

    for (const syntax::ScriptRange &piece : syntax::scriptPieces(text))
        fuzz::require(piece.start >= 0 && piece.start <= piece.end && piece.end <= text.size(),
                      "a piece of script is within the text");
    return 0;
}
