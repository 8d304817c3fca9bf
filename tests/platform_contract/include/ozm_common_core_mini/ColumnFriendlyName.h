#pragma once

#include <QMap>
#include <QString>
#include <QVariant>

class ColumnFriendlyName
{
public:
    struct FriendlyNameStruct
    {
        [[nodiscard]] QString valueToString(const QVariant &value) const;
    };

    [[nodiscard]] static const QMap<QString, FriendlyNameStruct> &getColumnFriendlyNames();
    [[nodiscard]] static QString toolTip(const QString &column);
};
