#pragma once

#include <MsDataFormat.h>

#include <QSet>
#include <QString>

namespace ozm::test {

/**
 * The rules of detection as they are written down, with no thought for what they cost: every entry of every
 * folder is asked for everything. What the library answers is held against this.
 */
[[nodiscard]] QSet<msreader::VendorDataFormat> literalFormats(const QString &path);

/// The answer of the first detector that has one.
[[nodiscard]] QSet<msreader::VendorDataFormat> firstLiteralFormats(const QString &path);

[[nodiscard]] QSet<msreader::VendorDataFormat> literalFormatsByName(const QString &path);

} // namespace ozm::test
