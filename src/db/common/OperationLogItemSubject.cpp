#include <ozm_widgets/db/common/OperationLogItemSubject.h>

#include "LogValue.h"
#include "OperationLogTables.h"

#include "support/Platform.h"
#include <ozm_common_core_mini/ColumnFriendlyName.h>
#include <ozm_common_core_mini/RowNode.h>

using namespace Qt::StringLiterals;

namespace ozm {

namespace {

void insertKey(QMap<QString, QVariant> &key, OperationLogItemSubject::Type type, const RowNode &row)
{
    const auto columns = OperationLogTables::instance().keyColumns.constFind(type);
    if (columns == OperationLogTables::instance().keyColumns.constEnd())
        return;
    for (const QString &column : *columns) {
        bool found = false;
        const QVariant value = row.getDataAt(column, &found, false);
        if (found)
            key.insert(column, value);
    }
}

QString valuesToString(const QMap<QString, QVariant> &values)
{
    QStringList texts;
    for (auto value = values.constBegin(); value != values.constEnd(); ++value)
        texts.append(platform::displayName(value.key()) + ": "_L1 +
                     logvalue::toText(logvalue::toJson(value.value())));
    return logvalue::onOneLine(texts.join(", "_L1));
}

} // namespace

OperationLogItemSubject::OperationLogItemSubject(Type type)
    : m_type(type)
{}

OperationLogItemSubject::OperationLogItemSubject(Type type, const QMap<QString, QVariant> &key,
                                                 const QMap<QString, QVariant> &explicitSecondaryKey)
    : m_type(type)
    , m_key(key)
    , m_explicitSecondaryKey(explicitSecondaryKey)
{}

OperationLogItemSubject::OperationLogItemSubject(Type type, const RowNode &row)
    : m_type(type)
{
    insertKey(m_key, type, row);
}

OperationLogItemSubject::OperationLogItemSubject(Type type, const QMap<QString, RowNode *> &rows)
    : m_type(type)
{
    for (const RowNode *row : rows) {
        if (row)
            insertKey(m_key, type, *row);
    }
}

OperationLogItemSubject::OperationLogItemSubject(const QJsonObject &json)
    : m_type(stringToType(json.value("type"_L1).toString()))
{
    if (!isValid())
        return;
    m_key = logvalue::readEntries(json.value("key"_L1).toObject());
    m_explicitSecondaryKey = logvalue::readEntries(json.value("secondaryKey"_L1).toObject());
}

bool OperationLogItemSubject::isValid() const
{
    return m_type != Type::None;
}

OperationLogItemSubject::Type OperationLogItemSubject::type() const
{
    return m_type;
}

QMap<QString, QVariant> OperationLogItemSubject::key() const
{
    return m_key;
}

QMap<QString, QVariant> OperationLogItemSubject::explicitSecondaryKey() const
{
    return m_explicitSecondaryKey;
}

QString OperationLogItemSubject::typeToString(Type type)
{
    return OperationLogTables::instance().subjectTypes.text(static_cast<qint32>(type));
}

QString OperationLogItemSubject::typeToString() const
{
    return typeToString(m_type);
}

OperationLogItemSubject::Type OperationLogItemSubject::stringToType(const QString &text)
{
    return static_cast<Type>(OperationLogTables::instance().subjectTypes.value(text));
}

QString OperationLogItemSubject::keyToString() const
{
    return valuesToString(m_key);
}

QString OperationLogItemSubject::explicitSecondaryKeyToString() const
{
    return valuesToString(m_explicitSecondaryKey);
}

QString OperationLogItemSubject::toString() const
{
    return typeToString() + u' ' + keyToString();
}

QJsonObject OperationLogItemSubject::toJsonObject() const
{
    return toJsonObject(logvalue::kDeepestJson - 1);
}

QJsonObject OperationLogItemSubject::toJsonObject(int room) const
{
    return {
        {u"type"_s, typeToString()},
        {u"key"_s, logvalue::toJson(m_key, room)},
        {u"secondaryKey"_s, logvalue::toJson(m_explicitSecondaryKey, room)},
    };
}

bool operator==(const OperationLogItemSubject &a, const OperationLogItemSubject &b)
{
    return a.m_type == b.m_type && a.m_key == b.m_key && a.m_explicitSecondaryKey == b.m_explicitSecondaryKey;
}

} // namespace ozm
