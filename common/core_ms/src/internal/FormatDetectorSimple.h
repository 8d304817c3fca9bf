#pragma once

#include "internal/FormatDetectorBase.h"

namespace ozm::msreader::internal {

struct FormatRow;

/**
 * One format that its extension and its kind, file or folder, tell from all others; and the base of the
 * detectors that look further.
 */
class FormatDetectorSimple : public FormatDetectorBase
{
public:
    /// @p extension begins with its dot, or is empty when the name tells nothing.
    FormatDetectorSimple(VendorDataFormat format, bool isFolder, const QString &extension,
                         const QString &description);

    /// The four values of the format's row.
    explicit FormatDetectorSimple(const FormatRow &row);

    [[nodiscard]] QSet<VendorDataFormat> supportedFormats() const override;
    [[nodiscard]] QSet<VendorDataFormat> detectFormatByName(const QString &path) const override;
    [[nodiscard]] QSet<VendorDataFormat> detectFormat(const QString &path) const override;
    [[nodiscard]] QString fileNameExtension(VendorDataFormat format) const override;
    [[nodiscard]] bool isFile(VendorDataFormat format) const override;
    [[nodiscard]] bool isFolder(VendorDataFormat format) const override;
    [[nodiscard]] QString formatDescription(VendorDataFormat format) const override;

protected:
    [[nodiscard]] bool isNameRight(const QString &path) const;

    /// True when there is a file or a folder, whichever this format is; with the name, all that plain formats
    /// need.
    [[nodiscard]] bool isKindRight(const QString &path) const;

    /// The supported formats if @p holds, noting @p rule for the line to support either way.
    [[nodiscard]] QSet<VendorDataFormat> formatsIf(bool holds, QLatin1StringView rule,
                                                   QLatin1StringView otherwise) const;

private:
    const VendorDataFormat m_format;
    const bool m_isFolder;
    const QString m_extension;
    const QString m_description;
};

} // namespace ozm::msreader::internal
