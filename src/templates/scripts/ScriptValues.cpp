#include "templates/scripts/ScriptValues.h"

#include "templates/scripts/ScriptRealm.h"

#include <QCoreApplication>

namespace ozm {

namespace {

struct CrossingTexts
{
    Q_DECLARE_TR_FUNCTIONS(ozm::WithheldValue)
};

QVariant crossed(const QVariant &value);

template <typename Map>
Map crossedMembers(Map map)
{
    for (QVariant &member : map)
        member = crossed(member);
    return map;
}

QVariantList crossedItems(const QVariant &list)
{
    QVariantList items = list.toList();
    for (QVariant &item : items)
        item = crossed(item);
    return items;
}

/// True for types that each program with Qt's core knows, and that are neither pointers nor made of others.
bool isCore(QMetaType type)
{
    return type.id() <= QMetaType::LastCoreType && !(type.flags() & QMetaType::IsPointer) &&
           type.hasRegisteredDataStreamOperators();
}

QVariant withheld(QMetaType type)
{
    return QVariant::fromValue(WithheldValue{
        CrossingTexts::tr("A value of the type \"%1\" cannot be used by scripts in a process of their own.")
            .arg(QString::fromLatin1(type.name()))});
}

QVariant crossed(const QVariant &value)
{
    const QMetaType type = value.metaType();
    switch (type.id()) {
    case QMetaType::UnknownType:
        return value;
    case QMetaType::QVariantMap:
        return crossedMembers(value.toMap());
    case QMetaType::QVariantHash:
        return crossedMembers(value.toHash());
    case QMetaType::QVariantList:
        return crossedItems(value);
    default:
        break;
    }
    if (type.flags() & QMetaType::IsEnumeration)
        return value.toLongLong();
    if (isCore(type))
        return value;
    if (QMetaType::canConvert(type, QMetaType::fromType<QVariantList>()))
        return crossedItems(value);
    return withheld(type);
}

} // namespace

QMap<QString, QVariant> crossing(const QMap<QString, QVariant> &parameters)
{
    return crossedMembers(parameters);
}

} // namespace ozm
