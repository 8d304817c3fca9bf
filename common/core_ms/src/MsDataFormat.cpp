#include "MsDataFormat.h"
#include <platform/Errors.h>

#include "internal/FormatTable.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace ozm::msreader {

QString MsDataFormat::toString(VendorDataFormat format)
{
    const internal::FormatRow *row = internal::formatRow(format);
    return row ? QString(row->name) : QString::number(static_cast<qint32>(format));
}

Result<VendorDataFormat> MsDataFormat::fromString(const QString &text)
{
    const auto row = std::ranges::find_if(internal::kFormats, [&text](const internal::FormatRow &candidate) {
        return text.compare(candidate.name, Qt::CaseInsensitive) == 0;
    });
    if (row != internal::kFormats.end())
        return row->format;
    // "to string" although it is from: the text is in the tests and manuals of the applications.
    return Error(ozm::codes::BadParameter,
                 u"Could not find match for converting vendor data format to string: %1"_s.arg(text))
        .ecatch(OZM_PLACE);
}

} // namespace ozm::msreader
