#include "ScriptObjects.h"

#include "templates/scripts/ScriptRealm.h"

#include <QDateTime>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace ozm {

namespace {

const QString kStandIns =
    u"(function (keeper, apply, descriptor) {"
    "  'use strict';"
    "  const standIns = new WeakMap();"
    "  const objects = new WeakMap();"
    "  const isObject = value => value !== null && typeof value === 'object';"
    "  const bare = value => isObject(value) && objects.has(value) ? objects.get(value) : value;"
    "  const refuse = () => { throw new TypeError('This object can only be read.') };"
    "  const call = (method, self, values) => shown(apply(method, self, values.map(bare)), false);"
    "  const method = (object, member) => new Proxy(member, {"
    "    apply: (target, self, values) => call(target, object, values),"
    "    get: (target, name) => typeof target[name] === 'function'"
    "      ? (...values) => call(target[name], target, values) : target[name] });"
    "  const full = {"
    "    get: (target, name) => typeof target[name] === 'function'"
    "      ? method(target, target[name]) : shown(target[name], false),"
    "    set: (target, name, value) => { target[name] = bare(value); return true },"
    "    getOwnPropertyDescriptor: (target, name) => described(full, target, name) };"
    "  const readOnly = {"
    "    get: (target, name) => typeof target[name] !== 'function' ? shown(target[name], true)"
    "      : name === 'toString' ? () => target.toString() : refuse,"
    "    set: refuse, defineProperty: refuse, deleteProperty: refuse, setPrototypeOf: refuse,"
    "    getPrototypeOf: () => null,"
    "    getOwnPropertyDescriptor: (target, name) => described(readOnly, target, name) };"
    "  function described(handler, target, name) {"
    "    const found = descriptor(target, name);"
    "    if (found) found.value = handler.get(target, name);"
    "    return found;"
    "  }"
    "  function shown(value, onlyRead) {"
    "    if (!isObject(value) || !keeper.keep(value)) return value;"
    "    const key = onlyRead ? 'read' : 'full';"
    "    const known = standIns.get(value) || {};"
    "    if (!known[key]) {"
    "      known[key] = new Proxy(value, onlyRead ? readOnly : full);"
    "      standIns.set(value, known);"
    "      objects.set(known[key], value);"
    "    }"
    "    return known[key];"
    "  }"
    "  return onlyRead => value => shown(value, onlyRead);"
    "})"_s;

// The handler is asked for the way in which the value is used, and never gives one.
const QString kWithheld = u"(function (message) {"
                          "  const refuse = () => { throw new TypeError(message) };"
                          "  return new Proxy({}, new Proxy({}, { get: refuse }));"
                          "})"_s;

bool isWithheld(const QVariant &value)
{
    return value.metaType() == QMetaType::fromType<WithheldValue>();
}

bool isObject(const QVariant &value)
{
    return value.metaType().flags() & QMetaType::PointerToQObject;
}

bool isList(const QVariant &value)
{
    return value.typeId() == QMetaType::QVariantList ||
           value.metaType() == QMetaType::fromType<QObjectList>();
}

/// True for values that the engine itself would hand out otherwise.
bool hasOwnWay(const QVariant &value)
{
    if (value.typeId() == QMetaType::QVariantMap)
        return std::ranges::any_of(value.toMap(), hasOwnWay);
    if (isList(value))
        return std::ranges::any_of(value.toList(), hasOwnWay);
    return isObject(value) || value.typeId() == QMetaType::QDate || isWithheld(value);
}

} // namespace

ScriptObjects::ScriptObjects()
{
    QJSEngine::setObjectOwnership(this, QJSEngine::CppOwnership);
}

ScriptObjects::~ScriptObjects()
{
    for (const Kept &kept : std::as_const(m_kept))
        if (kept.object)
            QJSEngine::setObjectOwnership(kept.object, kept.before);
}

bool ScriptObjects::keep(const QJSValue &value)
{
    QObject *object = value.toQObject();
    if (!object)
        return false;
    Kept &kept = m_kept[object];
    if (!kept.object)
        kept = {object, QJSEngine::objectOwnership(object)};
    QJSEngine::setObjectOwnership(object, QJSEngine::CppOwnership);
    return true;
}

QJSValue ScriptObjects::handOut(QJSEngine &engine, const QMap<QString, QVariant> &parameters, bool readOnly)
{
    if (std::ranges::none_of(parameters, hasOwnWay))
        return engine.toScriptValue(parameters);
    if (m_makeShown.isUndefined()) {
        const QJSValue reflect = engine.globalObject().property(u"Reflect"_s);
        m_makeShown = engine.evaluate(kStandIns).call({engine.newQObject(this), reflect.property(u"apply"_s),
                                                       reflect.property(u"getOwnPropertyDescriptor"_s)});
    }
    m_shown = m_makeShown.call({readOnly});
    return handOut(engine, QVariant(parameters));
}

QJSValue ScriptObjects::handOut(QJSEngine &engine, const QVariant &value)
{
    if (isObject(value))
        return m_shown.call({engine.toScriptValue(value)});
    if (isWithheld(value))
        return engine.evaluate(kWithheld).call({value.value<WithheldValue>().message});
    // The engine takes a day for its midnight at Greenwich: west of it, a script would see the day before.
    if (value.typeId() == QMetaType::QDate && value.toDate().isValid())
        return engine.toScriptValue(value.toDate().startOfDay());
    if (value.typeId() == QMetaType::QVariantMap) {
        QJSValue object = engine.newObject();
        const QVariantMap map = value.toMap();
        for (auto member = map.cbegin(); member != map.cend(); ++member)
            object.setProperty(member.key(), handOut(engine, *member));
        return object;
    }
    if (isList(value)) {
        const QVariantList list = value.toList();
        QJSValue array = engine.newArray(uint(list.size()));
        for (qsizetype index = 0; index < list.size(); ++index)
            array.setProperty(quint32(index), handOut(engine, list.at(index)));
        return array;
    }
    return engine.toScriptValue(value);
}

} // namespace ozm
