#pragma once

#include <QByteArray>
#include <QLatin1StringView>
#include <QSet>
#include <QString>

#include <span>

namespace ozm::faults {

/// How a file looks to who comes after the fault.
enum class State
{
    Old,
    New,
    Neither
};

/// One way in which the library writes. All of it happens below one folder.
struct Operation
{
    QLatin1StringView name;
    /// Makes what is there before.
    void (*prepare)(const QString &folder);
    /// Replaces or adds to it; the error's text, or nothing when all is well. Runs in a program of its own.
    QString (*run)(const QString &folder);
    State (*look)(const QString &folder);
    /// Part of the names that may be there afterwards.
    QLatin1StringView expected;
    /// Says of success only that the file could be opened, as applications rely on.
    bool writesBlindly = false;
};

[[nodiscard]] std::span<const Operation> operations();

} // namespace ozm::faults
