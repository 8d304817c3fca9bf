#pragma once

#include <QObject>
#include <QString>

namespace ozm {

/**
 * The plug-in of this library that implements the interface @p iid, from the first file whose name holds
 * @p name; null when there is none. Belongs to Qt, and stays loaded.
 *
 * The number at the end of an identifier goes up with every change of the interface. The identifier is read
 * without loading the file; a plug-in of another version is passed over with a line in the log.
 */
[[nodiscard]] QObject *loadPlugin(const QString &name, const QString &iid);

template <typename Interface>
[[nodiscard]] Interface *loadPlugin(const QString &name)
{
    return qobject_cast<Interface *>(
        loadPlugin(name, QString::fromLatin1(qobject_interface_iid<Interface *>())));
}

} // namespace ozm
