#include <ozm_widgets/db/common/OperationLogItemData.h>

#include "LogValue.h"
#include "OperationLogTables.h"

#include <QDebug>
#include <QJsonArray>
#include <QJsonDocument>

using namespace Qt::StringLiterals;

namespace ozm {

namespace {

constexpr int kVersion = 1;

QList<QString> readAttributes(const QJsonObject &json)
{
    QList<QString> attributes;
    for (const QJsonValue &attribute : json.value("attributes"_L1).toArray()) {
        if (attribute.isString())
            attributes.append(attribute.toString());
    }
    // Early records named a single attribute; where both are given, the list comes first.
    const QString single = json.value("attribute"_L1).toString();
    if (!single.isEmpty() && !attributes.contains(single))
        attributes.append(single);
    return attributes;
}

QString unlessEmpty(QLatin1StringView format, const QString &text)
{
    return text.isEmpty() ? QString() : QString(format).arg(text);
}

QString variantText(const QVariant &value)
{
    return logvalue::toText(logvalue::toJson(value));
}

bool isEmptyVariant(const QVariant &value)
{
    return logvalue::isEmpty(logvalue::toJson(value));
}

} // namespace

OperationLogItemData::OperationLogItemData() = default;

OperationLogItemData::OperationLogItemData(OperationLogItemType type, const OperationLogItemSubject &subject,
                                           const QList<QString> &attributes, const QVariant &value)
    : OperationLogItemData(type, subject, attributes, value, QVariant())
{}

OperationLogItemData::OperationLogItemData(OperationLogItemType type, const OperationLogItemSubject &subject,
                                           const QList<QString> &attributes, const QVariant &value,
                                           const QVariant &oldValue)
    : m_type(type)
    , m_subject(subject)
    , m_attributes(attributes)
    , m_value(value)
    , m_oldValue(oldValue)
{
    logvalue::registerVariantItems();
}

OperationLogItemData::OperationLogItemData(const QByteArray &json, bool *ok)
{
    const QJsonDocument document = QJsonDocument::fromJson(json);
    if (ok)
        *ok = document.isObject();
    if (!document.isObject())
        return;
    const QJsonObject object = document.object();
    m_type = stringToType(object.value("type"_L1).toString());
    m_subject = OperationLogItemSubject(object.value("subject"_L1).toObject());
    if (object.contains("undoContext"_L1))
        m_undoContext = stringToUndoContext(object.value("undoContext"_L1).toString());
    m_attributes = readAttributes(object);
    m_value = logvalue::fromJson(object.value("value"_L1));
    m_oldValue = logvalue::fromJson(object.value("oldValue"_L1));
    m_legacyDescription = object.value("legacyDescription"_L1).toString();
}

bool OperationLogItemData::isValid() const
{
    if (!m_legacyDescription.isEmpty())
        return true;
    return m_type != OperationLogItemType::None && m_subject.isValid() && !m_attributes.isEmpty() &&
           m_undoContext != OperationLogItemUndoContext::Invalid;
}

OperationLogItemType OperationLogItemData::type() const
{
    return m_type;
}

OperationLogItemSubject OperationLogItemData::subject() const
{
    return m_subject;
}

QList<QString> OperationLogItemData::attributes() const
{
    return m_attributes;
}

QVariant OperationLogItemData::value() const
{
    return m_value;
}

QVariant OperationLogItemData::oldValue() const
{
    return m_oldValue;
}

OperationLogItemUndoContext OperationLogItemData::undoContext() const
{
    return m_undoContext;
}

QString OperationLogItemData::legacyDescription() const
{
    return m_legacyDescription;
}

bool OperationLogItemData::collapseTrivialMacro() const
{
    return m_collapseTrivialMacro;
}

bool OperationLogItemData::applicationFlag() const
{
    return m_applicationFlag;
}

void OperationLogItemData::setUndoContext(OperationLogItemUndoContext context)
{
    m_undoContext = context;
}

void OperationLogItemData::setLegacyDescription(const QString &description)
{
    m_legacyDescription = description;
}

void OperationLogItemData::setCollapseTrivialMacro(bool collapse)
{
    m_collapseTrivialMacro = collapse;
}

void OperationLogItemData::setApplicationFlag(bool flag)
{
    m_applicationFlag = flag;
}

QJsonObject OperationLogItemData::toJsonObject() const
{
    if (!isValid())
        return {};
    if (!m_legacyDescription.isEmpty())
        return {{u"legacyDescription"_s, m_legacyDescription}};
    return {
        {u"version"_s, kVersion},
        {u"type"_s, typeToString(m_type)},
        {u"subject"_s, m_subject.toJsonObject()},
        {u"attributes"_s, QJsonArray::fromStringList(m_attributes)},
        {u"value"_s, logvalue::toJson(m_value)},
        {u"oldValue"_s, logvalue::toJson(m_oldValue)},
        {u"undoContext"_s, undoContextToString(m_undoContext)},
    };
}

QByteArray OperationLogItemData::toJson() const
{
    return QJsonDocument(toJsonObject()).toJson(QJsonDocument::Compact);
}

QString OperationLogItemData::toString() const
{
    if (!m_legacyDescription.isEmpty())
        return m_legacyDescription;
    if (!isValid())
        return {};

    const bool isRepeat = m_undoContext == OperationLogItemUndoContext::Undo ||
                          m_undoContext == OperationLogItemUndoContext::Redo;
    QStringList parts{
        isRepeat ? undoContextToString(m_undoContext).toUpper() : QString(),
        typeToString(m_type),
        m_subject.typeToString(),
        unlessEmpty("ID=%1"_L1, m_subject.keyToString()),
        unlessEmpty("[%1]"_L1, m_subject.explicitSecondaryKeyToString()),
        unlessEmpty("'%1'"_L1, attributeNamesString()),
        printsOldValue() ? u"from %1"_s.arg(oldValueToString()) : QString(),
    };
    parts.removeAll(QString());
    return parts.join(u' ').trimmed() + changeToString();
}

bool OperationLogItemData::printsOldValue() const
{
    if (!isEmptyVariant(m_oldValue))
        return true;
    return m_oldValue.isValid() && m_type == OperationLogItemType::Set && !isEmptyVariant(m_value);
}

/// The end of the line, with the new value.
QString OperationLogItemData::changeToString() const
{
    if (!printsOldValue() && isEmptyVariant(m_value))
        return {};
    QString text = valueToString();
    if (text.isEmpty() && printsOldValue())
        text = u"null"_s;
    if (text.isEmpty())
        return {};
    // Readers of the trail know the two forms apart: a colon for what came or went, "to" for what changed.
    const bool comesOrGoes = m_type == OperationLogItemType::Add || m_type == OperationLogItemType::Delete;
    return (comesOrGoes ? u": %1"_s : u" to %1"_s).arg(text);
}

QString OperationLogItemData::valueToString() const
{
    return variantText(m_value);
}

QString OperationLogItemData::oldValueToString() const
{
    return variantText(m_oldValue);
}

QString OperationLogItemData::attributeNamesString() const
{
    return m_attributes.join(", "_L1);
}

QString OperationLogItemData::typeToString(OperationLogItemType type)
{
    return OperationLogTables::instance().itemTypes.text(static_cast<qint32>(type));
}

OperationLogItemType OperationLogItemData::stringToType(const QString &text)
{
    return static_cast<OperationLogItemType>(OperationLogTables::instance().itemTypes.value(text));
}

QString OperationLogItemData::undoContextToString(OperationLogItemUndoContext context)
{
    return OperationLogTables::instance().undoContexts.text(static_cast<qint32>(context));
}

OperationLogItemUndoContext OperationLogItemData::stringToUndoContext(const QString &text)
{
    return static_cast<OperationLogItemUndoContext>(OperationLogTables::instance().undoContexts.value(text));
}

QDebug operator<<(QDebug debug, const OperationLogItemData &data)
{
    const QDebugStateSaver saver(debug);
    debug.nospace().noquote() << "OperationLogItemData{" << data.toString() << '}';
    return debug;
}

} // namespace ozm
