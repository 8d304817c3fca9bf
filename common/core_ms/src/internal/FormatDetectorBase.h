#pragma once

#include "MsDataFormat.h"

#include <QSet>
#include <QString>

namespace ozm::msreader::internal {

/**
 * Knows one vendor's way of laying data out on disk.
 *
 * A detector has no state that changes and is asked from any thread. It never fails: what is missing, cannot
 * be read or has a wrong name is the empty set.
 */
class FormatDetectorBase
{
public:
    virtual ~FormatDetectorBase();

    /// The formats this detector may report; no other detector may report any of them.
    [[nodiscard]] virtual QSet<VendorDataFormat> supportedFormats() const = 0;

    /// All supported formats if the text of @p path fits, without a look at the disk.
    [[nodiscard]] virtual QSet<VendorDataFormat> detectFormatByName(const QString &path) const = 0;

    [[nodiscard]] virtual QSet<VendorDataFormat> detectFormat(const QString &path) const = 0;

    /// Without its dot.
    [[nodiscard]] virtual QString fileNameExtension(VendorDataFormat format) const = 0;
    [[nodiscard]] virtual bool isFile(VendorDataFormat format) const = 0;
    [[nodiscard]] virtual bool isFolder(VendorDataFormat format) const = 0;
    [[nodiscard]] virtual QString formatDescription(VendorDataFormat format) const = 0;

protected:
    FormatDetectorBase() = default;
    Q_DISABLE_COPY_MOVE(FormatDetectorBase)
};

} // namespace ozm::msreader::internal
