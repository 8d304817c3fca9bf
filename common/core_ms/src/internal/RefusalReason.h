#pragma once

class QString;

namespace ozm::msreader::internal {

/// Why no format was found in the data at @p path, as a sentence for the user.
[[nodiscard]] QString refusalReason(const QString &path);

} // namespace ozm::msreader::internal
