#pragma once

#include <QFile>
#include <QString>

namespace ozm::test {

/// Keeps an open audit trail from being written, from its making to its end: the file is not in its place.
class AuditFault
{
public:
    explicit AuditFault(const QString &path)
        : m_path(path)
        , m_made(QFile::rename(path, aside()))
    {}
    ~AuditFault() { lift(); }
    Q_DISABLE_COPY_MOVE(AuditFault)

    /// Text that the message of a refused step must hold.
    [[nodiscard]] static QString message()
    {
        return QStringLiteral("was deleted or replaced while it was in use");
    }
    [[nodiscard]] bool isMade() const { return m_made; }
    void lift() { QFile::rename(aside(), m_path); }

private:
    [[nodiscard]] QString aside() const { return m_path + QStringLiteral(".aside"); }

    const QString m_path;
    const bool m_made;
};

} // namespace ozm::test
