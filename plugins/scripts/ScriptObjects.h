#pragma once

#include <QHash>
#include <QJSEngine>
#include <QJSValue>
#include <QMap>
#include <QObject>
#include <QPointer>
#include <QVariant>

namespace ozm {

/**
 * Hands parameters to an engine so that the objects among them, and those that their methods give, stay the
 * application's. Scripts get stand-ins for objects: what a method returns has to be seen before the engine's
 * collector, which takes every object without a parent for its own.
 */
class ScriptObjects : public QObject
{
    Q_OBJECT

public:
    ScriptObjects();
    ~ScriptObjects() override;

    [[nodiscard]] QJSValue handOut(QJSEngine &engine, const QMap<QString, QVariant> &parameters,
                                   bool readOnly);

    /// For the stand-ins: true when @p value is an object, which from then on the engine does not delete.
    Q_INVOKABLE bool keep(const QJSValue &value);

private:
    struct Kept
    {
        QPointer<QObject> object;
        QJSEngine::ObjectOwnership before;
    };

    [[nodiscard]] QJSValue handOut(QJSEngine &engine, const QVariant &value);

    QHash<QObject *, Kept> m_kept;
    QJSValue m_makeShown;
    QJSValue m_shown;
};

} // namespace ozm
