#include <ozm_common_core_mini/AutomationStore.h>

#include <QFile>
#include <QHash>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLoggingCategory>
#include <QMutex>

using namespace Qt::StringLiterals;

const QString kFileExplorerAllowed = u"FileExplorerAllowed"_s;

namespace {

Q_LOGGING_CATEGORY(lcAutomation, "ozm.automation")

using ozm::Error;
using ozm::ErrorCode;

Error parse(const QByteArray &json, const QString &source, QVariantHash *answers)
{
    QJsonParseError fault;
    const QJsonDocument document = QJsonDocument::fromJson(json, &fault);
    if (!document.isObject()) {
        const QString reason =
            fault.error == QJsonParseError::NoError ? u"it is not a JSON object"_s : fault.errorString();
        return Error(ErrorCode::BadParameter,
                     u"The automation answers in %1 cannot be used: %2."_s.arg(source, reason));
    }
    answers->insert(document.object().toVariantHash());
    return {};
}

Error parseFile(const QString &path, QVariantHash *answers)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        return Error(ErrorCode::FileAccess,
                     u"The automation answers in \"%1\" cannot be read: %2."_s.arg(path, file.errorString()));
    }
    return parse(file.readAll(), u"\"%1\""_s.arg(path), answers);
}

class Store
{
public:
    Store()
    {
        const QString given = qEnvironmentVariable("OZM_AUTOMATION").trimmed();
        if (given.isEmpty())
            return;
        const Error error = given.startsWith(u'{') ? parse(given.toUtf8(), u"OZM_AUTOMATION"_s, &answers)
                                                   : parseFile(given, &answers);
        if (error.hasError())
            qCWarning(lcAutomation).noquote() << error.errorMessage();
    }

    QMutex mutex;
    QVariantHash answers;
};

Store &store()
{
    static Store only;
    return only;
}

} // namespace

namespace as {

bool contains(const QString &key)
{
    const QMutexLocker lock(&store().mutex);
    return store().answers.contains(key);
}

QVariant value(const QString &key, const QVariant &fallback)
{
    const QMutexLocker lock(&store().mutex);
    return store().answers.value(key, fallback);
}

void setValue(const QString &key, const QVariant &value)
{
    const QMutexLocker lock(&store().mutex);
    store().answers.insert(key, value);
}

void remove(const QString &key)
{
    const QMutexLocker lock(&store().mutex);
    store().answers.remove(key);
}

void clear()
{
    const QMutexLocker lock(&store().mutex);
    store().answers.clear();
}

Error load(const QString &path)
{
    QVariantHash read;
    if (Error error = parseFile(path, &read); error.hasError())
        return error.ecatch(OZM_HERE);
    const QMutexLocker lock(&store().mutex);
    store().answers.insert(read);
    return {};
}

} // namespace as
