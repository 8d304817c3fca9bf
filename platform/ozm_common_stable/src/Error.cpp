#include <ozm_common_stable/Error.h>

#include <QDebug>
#include <QLoggingCategory>
#include <QSharedData>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace {

Q_LOGGING_CATEGORY(lcErrors, "ozm.errors")

struct CodeRow
{
    ozm::ErrorCode code;
    QLatin1StringView text;
};

constexpr std::array kCodes{
    CodeRow{ozm::ErrorCode::NoError, "No error"_L1},
    CodeRow{ozm::ErrorCode::Failed, "Operation failed"_L1},
    CodeRow{ozm::ErrorCode::BadParameter, "Bad parameter"_L1},
    CodeRow{ozm::ErrorCode::NotAllowed, "Operation not allowed"_L1},
    CodeRow{ozm::ErrorCode::FileAccess, "File access failed"_L1},
};

QString codeText(ozm::ErrorCode code)
{
    const auto row = std::ranges::find(kCodes, code, &CodeRow::code);
    return row != kCodes.end() ? QString(row->text) : u"Error %1"_s.arg(static_cast<int>(code));
}

} // namespace

namespace ozm {

class Error::Data : public QSharedData
{
public:
    ErrorCode code = ErrorCode::NoError;
    QString message;
    Warnings warnings;
    QList<ErrorPlace> places;
};

QString ErrorPlace::toString() const
{
    return u"%1:%2 (%3)"_s.arg(path, QString::number(line), function);
}

Error::Error() noexcept = default;
Error::Error(const Error &other) noexcept = default;
Error::Error(Error &&other) noexcept = default;
Error &Error::operator=(const Error &other) noexcept = default;
Error &Error::operator=(Error &&other) noexcept = default;
Error::~Error() = default;

Error::Error(ErrorCode code, const QString &message)
    : d(new Data)
{
    d->code = code;
    d->message = message;
}

bool Error::hasError() const noexcept
{
    return errorCode() != ErrorCode::NoError;
}

ErrorCode Error::errorCode() const noexcept
{
    return d ? d->code : ErrorCode::NoError;
}

QString Error::errorMessage() const
{
    return d ? d->message : QString();
}

QString Error::errorString() const
{
    return codeText(errorCode());
}

Warnings Error::warnings() const
{
    return d ? d->warnings : Warnings();
}

QList<ErrorPlace> Error::places() const
{
    return d ? d->places : QList<ErrorPlace>();
}

Error &Error::addWarning(const QString &warning)
{
    if (!d)
        d = new Data;
    d->warnings.append(warning);
    return *this;
}

Error &Error::ecatch(const ErrorPlace &place)
{
    if (!hasError())
        return *this;
    d->places.append(place);
    qCInfo(lcErrors).noquote() << place.toString() << *this;
    return *this;
}

Error &Error::ecatch(const QString &function, const QString &path, int line)
{
    return ecatch(ErrorPlace{function, path, line});
}

bool operator==(const Error &a, const Error &b)
{
    return a.errorCode() == b.errorCode() && a.errorMessage() == b.errorMessage() &&
           a.warnings() == b.warnings();
}

QDebug operator<<(QDebug debug, const Error &error)
{
    const QDebugStateSaver saver(debug);
    debug.nospace().noquote() << "Error(" << static_cast<int>(error.errorCode()) << ' '
                              << error.errorString();
    if (!error.errorMessage().isEmpty())
        debug << ": " << error.errorMessage();
    return debug << ')';
}

} // namespace ozm
