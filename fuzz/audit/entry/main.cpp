#include "Fuzz.h"

#include <ozm_audit/Entry.h>
#include <ozm_common_stable/Result.h>

using namespace ozm;

// The bytes of an entry are the entry, whatever else can be read from them.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QByteArray bytes = fuzz::bytesOf(data, size);
    const auto entry = audit::Entry::fromBytes(bytes);
    if (!entry)
        return 0;
    fuzz::require(entry.value().bytes == bytes, "the bytes stay");
    (void)entry.value().text();
    (void)entry.value().dateTime();
    return 0;
}
