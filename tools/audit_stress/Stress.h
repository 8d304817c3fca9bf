#pragma once

#include <ozm_audit/Logger.h>
#include <ozm_audit/Store.h>

#include <QStringList>

#include <random>

namespace ozm::audit::stress {

/// A trial's arguments: `audit_stress <trial> [--<name> <value>]...`.
class Arguments
{
public:
    explicit Arguments(const QStringList &arguments)
        : m_arguments(arguments)
    {}
    [[nodiscard]] QString text(const QString &name, const QString &otherwise = {}) const
    {
        const qsizetype at = m_arguments.indexOf(QLatin1StringView("--") + name);
        return at < 0 ? otherwise : m_arguments.value(at + 1);
    }
    [[nodiscard]] int number(const QString &name, int otherwise) const
    {
        return text(name, QString::number(otherwise)).toInt();
    }
    [[nodiscard]] bool has(const QString &name) const
    {
        return m_arguments.contains(QLatin1StringView("--") + name);
    }

private:
    QStringList m_arguments;
};

/// An entry like those of an application, with a record that says who wrote it.
[[nodiscard]] Draft draftOf(int writer, int serial, qsizetype padding = 0);

/// Prints a line and counts a failure.
int fail(const QString &text);

// Each returns the number of failures, and prints what it did.
int mutations(const Arguments &arguments);
int kills(const Arguments &arguments);
int powerCuts(const Arguments &arguments);
int processes(const Arguments &arguments);
/// The program that the others start and kill.
int appendUntilKilled(const Arguments &arguments);

} // namespace ozm::audit::stress
