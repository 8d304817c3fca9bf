#pragma once

#include <ozm_common_stable/ErrorCode.h>
#include <ozm_common_stable/ErrorPlace.h>
#include <ozm_common_stable/ozm_common_stable_export.h>

#include <QList>
#include <QMetaType>
#include <QSharedDataPointer>
#include <QString>
#include <QStringList>

class QDebug;

namespace ozm {

using Warnings = QStringList; ///< Texts about what went on all the same.

/**
 * The outcome of an operation that can fail: a code, a text for the user, warnings, and the places in the
 * sources at which it was caught on its way up.
 *
 * Code 0 is success. An Error is a value: copying is cheap, success allocates nothing, and nothing is thrown.
 *
 *     ozm::Error error = document.save(path);
 *     if (error.hasError())
 *         return error.ecatch(OZM_HERE);
 *
 * Two errors are equal when code, message and warnings are; the places say where, not what.
 * Safe to pass between threads; one object is not for several threads at once.
 */
class OZM_COMMON_STABLE_EXPORT Error
{
public:
    Error() noexcept;
    explicit Error(ErrorCode code, const QString &message = {});
    Error(const Error &other) noexcept;
    Error(Error &&other) noexcept;
    Error &operator=(const Error &other) noexcept;
    Error &operator=(Error &&other) noexcept;
    ~Error();

    /// False for the error of a call that went well.
    [[nodiscard]] bool hasError() const noexcept;
    /// ErrorCode::NoError when there is none.
    [[nodiscard]] ErrorCode errorCode() const noexcept;

    /// The text for the user; may be empty.
    [[nodiscard]] QString errorMessage() const;

    /// The code as text, for errors that carry no message.
    [[nodiscard]] QString errorString() const;

    /// Troubles that stopped nothing; an error of code 0 may have them, too.
    [[nodiscard]] Warnings warnings() const;
    /// Where it arose and was passed on, the first one first.
    [[nodiscard]] QList<ErrorPlace> places() const;

    /// Adds what the user should know although the operation went on; success may carry warnings, too.
    Error &addWarning(const QString &warning);

    /// Adds a place to the list, and writes the error with it to the log (category "ozm.errors", info).
    /// Success is not caught: it stays as it is.
    Error &ecatch(const ErrorPlace &place);
    Error &ecatch(const QString &function, const QString &path, int line);

    OZM_COMMON_STABLE_EXPORT friend bool operator==(const Error &a, const Error &b);

private:
    class Data;
    QSharedDataPointer<Data> d;
};

OZM_COMMON_STABLE_EXPORT QDebug operator<<(QDebug debug, const Error &error);

} // namespace ozm

Q_DECLARE_METATYPE(ozm::Error)
