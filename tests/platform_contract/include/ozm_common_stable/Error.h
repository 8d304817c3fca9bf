#pragma once

#include <QMetaType>
#include <QString>
#include <QStringList>

namespace ozm {

using Warnings = QStringList;

enum class ErrorCode : int;

class Error
{
public:
    Error() noexcept;
    explicit Error(ErrorCode code, const QString &message = {});

    [[nodiscard]] bool hasError() const noexcept;
    [[nodiscard]] ErrorCode errorCode() const noexcept;
    [[nodiscard]] QString errorMessage() const;
    [[nodiscard]] Warnings warnings() const;

    Error &ecatch(const QString &function, const QString &path, int line);
};

} // namespace ozm

Q_DECLARE_METATYPE(ozm::Error)
