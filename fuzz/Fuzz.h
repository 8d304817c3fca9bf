#pragma once

#include <QByteArray>
#include <QString>

#include <cstdint>
#include <cstdio>
#include <cstdlib>

/// Takes the bytes of one run of the fuzzer. Each main.cpp defines it.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size);

namespace ozm::fuzz {

/// Most inputs are refused, and to log each takes as long as half of reading it. QT_LOGGING_RULES brings the log back
/// for one that is a finding.
inline const bool kIsQuiet =
    qEnvironmentVariableIsSet("QT_LOGGING_RULES") || qputenv("QT_LOGGING_RULES", "*=false");

inline QByteArray bytesOf(const std::uint8_t *data, std::size_t size)
{
    return QByteArray(reinterpret_cast<const char *>(data), qsizetype(size));
}

inline QString textOf(const std::uint8_t *data, std::size_t size)
{
    return QString::fromUtf8(bytesOf(data, size));
}

/// Ends the run as a finding: the fuzzer keeps the input.
inline void require(bool holds, const char *what)
{
    if (holds)
        return;
    std::fprintf(stderr, "does not hold: %s\n", what);
    std::abort();
}

} // namespace ozm::fuzz
