#include <ozm_widgets/db/common/OperationLogItemData.h>

#include "LogValue.h"
#include "OperationLogTables.h"

#include <QDebug>
#include <QJsonArray>
#include <QJsonDocument>
#include <platform/Errors.h>

#include <memory>

using namespace Qt::StringLiterals;

namespace ozm {

namespace {

constexpr int kVersion = 1;

QList<QString> readAttributes(const QJsonObject &json)
{
    QList<QString> attributes;
    const QJsonArray listed = json.value("attributes"_L1).toArray();
    for (const auto &attribute : listed) {
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

class OperationLogItemData::Content : public QSharedData
{
public:
    OperationLogItemType type = OperationLogItemType::None;
    OperationLogItemSubject subject;
    QList<QString> attributes;
    QVariant value;
    QVariant oldValue;
    // Each edit of the history has one of these: what is rarely there takes a pointer only. Never empty.
    std::shared_ptr<const QString> legacyDescription;

    void setLegacyDescription(const QString &description)
    {
        legacyDescription = description.isEmpty() ? nullptr : std::make_shared<const QString>(description);
    }
};

OperationLogItemData::OperationLogItemData() = default;
OperationLogItemData::OperationLogItemData(const OperationLogItemData &other) = default;
OperationLogItemData::OperationLogItemData(OperationLogItemData &&other) noexcept = default;
OperationLogItemData &OperationLogItemData::operator=(const OperationLogItemData &other) = default;
OperationLogItemData &OperationLogItemData::operator=(OperationLogItemData &&other) noexcept = default;
OperationLogItemData::~OperationLogItemData() = default;

OperationLogItemData::OperationLogItemData(OperationLogItemType type, const OperationLogItemSubject &subject,
                                           const QList<QString> &attributes, const QVariant &value)
    : OperationLogItemData(type, subject, attributes, value, QVariant())
{}

OperationLogItemData::OperationLogItemData(OperationLogItemType type, const OperationLogItemSubject &subject,
                                           const QList<QString> &attributes, const QVariant &value,
                                           const QVariant &oldValue)
    : d(new Content{{}, type, subject, attributes, value, oldValue, {}})
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
    read(document.object());
}

Result<OperationLogItemData> OperationLogItemData::fromJson(const QByteArray &json)
{
    QJsonParseError problem;
    const QJsonDocument document = QJsonDocument::fromJson(json, &problem);
    if (problem.error != QJsonParseError::NoError) {
        return Error(ozm::codes::BadParameter,
                     tr("The record cannot be read from byte %1 on: %2.")
                         .arg(QString::number(problem.offset), problem.errorString()))
            .ecatch(OZM_PLACE);
    }
    OperationLogItemData data;
    data.read(document.object());
    if (!data.isValid()) {
        return Error(ozm::codes::BadParameter,
                     tr("The record has no known operation, subject, attributes or undo context."))
            .ecatch(OZM_PLACE);
    }
    return data;
}

void OperationLogItemData::read(const QJsonObject &json)
{
    d = new Content;
    d->type = stringToType(json.value("type"_L1).toString());
    d->subject = OperationLogItemSubject(json.value("subject"_L1).toObject());
    if (json.contains("undoContext"_L1))
        m_undoContext = stringToUndoContext(json.value("undoContext"_L1).toString());
    d->attributes = readAttributes(json);
    d->value = logvalue::fromJson(json.value("value"_L1));
    d->oldValue = logvalue::fromJson(json.value("oldValue"_L1));
    d->setLegacyDescription(json.value("legacyDescription"_L1).toString());
}

const OperationLogItemData::Content &OperationLogItemData::content() const
{
    static const Content empty;
    return d ? *d : empty;
}

bool OperationLogItemData::isValid() const
{
    if (!d)
        return false;
    return d->legacyDescription ||
           (d->type != OperationLogItemType::None && d->subject.isValid() && !d->attributes.isEmpty() &&
            m_undoContext != OperationLogItemUndoContext::Invalid);
}

OperationLogItemType OperationLogItemData::type() const
{
    return content().type;
}

OperationLogItemSubject OperationLogItemData::subject() const
{
    return content().subject;
}

QList<QString> OperationLogItemData::attributes() const
{
    return content().attributes;
}

QVariant OperationLogItemData::value() const
{
    return content().value;
}

QVariant OperationLogItemData::oldValue() const
{
    return content().oldValue;
}

OperationLogItemUndoContext OperationLogItemData::undoContext() const
{
    return m_undoContext;
}

QString OperationLogItemData::legacyDescription() const
{
    const auto &description = content().legacyDescription;
    return description ? *description : QString();
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
    if (!d)
        d = new Content;
    d->setLegacyDescription(description);
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
    return toJsonObject(logvalue::kDeepestJson - 1);
}

QJsonObject OperationLogItemData::toJsonObject(int room) const
{
    if (!isValid())
        return {};
    if (content().legacyDescription)
        return {{u"legacyDescription"_s, *content().legacyDescription}};
    return {
        {u"version"_s, kVersion},
        {u"type"_s, typeToString(content().type)},
        {u"subject"_s, content().subject.toJsonObject(room - 1)},
        {u"attributes"_s, QJsonArray::fromStringList(content().attributes)},
        {u"value"_s, logvalue::toJson(content().value, room)},
        {u"oldValue"_s, logvalue::toJson(content().oldValue, room)},
        {u"undoContext"_s, undoContextToString(m_undoContext)},
    };
}

QByteArray OperationLogItemData::toJson() const
{
    return QJsonDocument(toJsonObject()).toJson(QJsonDocument::Compact);
}

QString OperationLogItemData::toString() const
{
    if (content().legacyDescription)
        return logvalue::onOneLine(*content().legacyDescription);
    if (!isValid())
        return {};

    const bool isRepeat = m_undoContext == OperationLogItemUndoContext::Undo ||
                          m_undoContext == OperationLogItemUndoContext::Redo;
    QStringList parts{
        isRepeat ? undoContextToString(m_undoContext).toUpper() : QString(),
        typeToString(content().type),
        content().subject.typeToString(),
        unlessEmpty("ID=%1"_L1, content().subject.keyToString()),
        unlessEmpty("[%1]"_L1, content().subject.explicitSecondaryKeyToString()),
        unlessEmpty("'%1'"_L1, attributeNamesString()),
        printsOldValue() ? u"from %1"_s.arg(oldValueToString()) : QString(),
    };
    parts.removeAll(QString());
    return logvalue::onOneLine(parts.join(u' ').trimmed() + changeToString());
}

bool OperationLogItemData::printsOldValue() const
{
    if (!isEmptyVariant(content().oldValue))
        return true;
    return content().oldValue.isValid() && content().type == OperationLogItemType::Set &&
           !isEmptyVariant(content().value);
}

/// The end of the line, with the new value.
QString OperationLogItemData::changeToString() const
{
    if (!printsOldValue() && isEmptyVariant(content().value))
        return {};
    QString text = valueToString();
    if (text.isEmpty() && printsOldValue())
        text = u"null"_s;
    if (text.isEmpty())
        return {};
    // Readers of the trail know the two forms apart: a colon for what came or went, "to" for what changed.
    const bool comesOrGoes =
        content().type == OperationLogItemType::Add || content().type == OperationLogItemType::Delete;
    return (comesOrGoes ? u": %1"_s : u" to %1"_s).arg(text);
}

QString OperationLogItemData::valueToString() const
{
    return variantText(content().value);
}

QString OperationLogItemData::oldValueToString() const
{
    return variantText(content().oldValue);
}

QString OperationLogItemData::attributeNamesString() const
{
    return content().attributes.join(", "_L1);
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

bool operator==(const OperationLogItemData &a, const OperationLogItemData &b)
{
    const auto &left = a.content();
    const auto &right = b.content();
    return a.m_undoContext == b.m_undoContext && a.m_collapseTrivialMacro == b.m_collapseTrivialMacro &&
           a.m_applicationFlag == b.m_applicationFlag &&
           (&left == &right ||
            (left.type == right.type && left.subject == right.subject &&
             left.attributes == right.attributes && left.value == right.value &&
             left.oldValue == right.oldValue && a.legacyDescription() == b.legacyDescription()));
}

QDebug operator<<(QDebug debug, const OperationLogItemData &data)
{
    const QDebugStateSaver saver(debug);
    debug.nospace().noquote() << "OperationLogItemData{" << data.toString() << '}';
    return debug;
}

} // namespace ozm
