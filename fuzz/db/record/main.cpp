#include "Fuzz.h"

#include <ozm_common_stable/Result.h>
#include <ozm_widgets/db/common/OperationLogItemData.h>

using namespace ozm;

// A record that was read and written is the same from then on.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const auto record = OperationLogItemData::fromJson(fuzz::bytesOf(data, size));
    if (!record)
        return 0;
    const QByteArray json = record.value().toJson();
    const auto again = OperationLogItemData::fromJson(json);
    fuzz::require(again && again.value().toJson() == json, "what was written is read and written alike");
    fuzz::require(again.value().toString() == record.value().toString(),
                  "the text is that of the stored record");
    return 0;
}
