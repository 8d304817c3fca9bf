#pragma once

#include <ozm_audit/InspectionCopy.h>
#include <ozm_audit/Store.h>

#include <QCommandLineParser>

#include <optional>

namespace ozm::audit::tool {

/// Exit codes, so that scripts need not read texts.
enum Exit
{
    Good = 0,
    Damaged = 1, ///< verify: the trail is damaged.
    Failed = 2,  ///< Something could not be done; the reason is on the standard error.
    Misused = 64,
};

/// The arguments behind the command's name, with the options that all commands share.
class Options
{
public:
    Options();

    [[nodiscard]] bool parse(const QStringList &arguments);
    [[nodiscard]] QString help() const { return m_parser.helpText(); }
    [[nodiscard]] QString argument(int index) const { return m_parser.positionalArguments().value(index); }
    [[nodiscard]] QString value(const QString &name) const { return m_parser.value(name); }
    [[nodiscard]] bool has(const QString &name) const { return m_parser.isSet(name); }

    /// The trail named by the first argument.
    [[nodiscard]] Result<std::unique_ptr<Store>> open(Store::Mode mode) const;
    /// Who acts, from --user and --reason; the name of the account when there is no --user.
    [[nodiscard]] Draft draft() const;
    [[nodiscard]] Query query() const;
    /// The key of --key; nothing without that option.
    [[nodiscard]] Result<std::optional<SigningKey>> key() const;
    [[nodiscard]] Range range() const;

private:
    QCommandLineParser m_parser;
};

int print(const QString &text);
int complain(const Error &error);

} // namespace ozm::audit::tool
