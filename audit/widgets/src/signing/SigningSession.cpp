#include "../Texts.h"

#include <ozm_audit/Logger.h>
#include <ozm_audit_widgets/SigningSession.h>

#include <QCoreApplication>
#include <QEvent>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTimer>

using namespace Qt::StringLiterals;

namespace ozm::audit {

namespace {

// A slip of the finger is forgiven twice.
constexpr int kMostFailures = 3;

Draft sessionDraft(const QString &event, const Person &person)
{
    Draft draft;
    draft.kind = Kind::Session;
    draft.user = person;
    draft.record = QJsonDocument(QJsonObject{{u"event"_s, event}, {u"text"_s, person.id}})
                       .toJson(QJsonDocument::Compact);
    return draft;
}

} // namespace

Authenticator::~Authenticator() = default;

class SigningSession::Private
{
public:
    Private(Logger &usedLogger, Authenticator &usedAuthenticator)
        : logger(usedLogger)
        , authenticator(usedAuthenticator)
    {}

    [[nodiscard]] Error authenticate(SigningSession &session, const QString &id, const QString &secret);

    Logger &logger;
    Authenticator &authenticator;
    QTimer idle;
    Person signer;
    int failures = 0;
};

Error SigningSession::Private::authenticate(SigningSession &session, const QString &id, const QString &secret)
{
    auto person = authenticator.authenticate(id, secret);
    if (person && person.value().id == id) {
        failures = 0;
        signer = person.value();
        idle.start();
        return {};
    }
    Error error = person ? Error(ErrorCode::NotAllowed, tr("This is another person.")).ecatch(OZM_HERE)
                         : person.error();
    // The name is what somebody typed, not a person who is known.
    Draft failed = sessionDraft(u"sign-in failed"_s, {});
    failed.record = QJsonDocument(QJsonObject{{u"event"_s, u"sign-in failed"_s}, {u"text"_s, id}})
                        .toJson(QJsonDocument::Compact);
    failed.outcomeCode = int(error.errorCode());
    failed.outcomeText = error.errorMessage();
    if (Error notRecorded = logger.record(failed); notRecorded.hasError())
        error.addWarning(notRecorded.errorMessage());
    if (++failures >= kMostFailures)
        session.lock();
    return error;
}

SigningSession::SigningSession(Logger &logger, Authenticator &authenticator, std::chrono::milliseconds idle,
                               QObject *parent)
    : QObject(parent)
    , d(std::make_unique<Private>(logger, authenticator))
{
    d->idle.setSingleShot(true);
    d->idle.setInterval(idle);
    connect(&d->idle, &QTimer::timeout, this, &SigningSession::lock);
    QCoreApplication::instance()->installEventFilter(this);
}

SigningSession::~SigningSession() = default;

bool SigningSession::needsBoth() const
{
    return d->signer.id.isEmpty();
}

Person SigningSession::signer() const
{
    return d->signer;
}

Logger &SigningSession::logger() const
{
    return d->logger;
}

Error SigningSession::signIn(const QString &id, const QString &secret)
{
    if (id.isEmpty())
        return Error(ErrorCode::NotAllowed, tr("Say who signs.")).ecatch(OZM_HERE);
    lock();
    if (Error error = d->authenticate(*this, id, secret); error.hasError())
        return error;
    if (Error error = d->logger.record(sessionDraft(u"sign-in"_s, d->signer)); error.hasError()) {
        d->signer = {};
        d->idle.stop();
        return error;
    }
    return {};
}

Error SigningSession::confirm(const QString &secret)
{
    if (needsBoth())
        return Error(ErrorCode::NotAllowed, tr("The session has ended: id and password are both needed."))
            .ecatch(OZM_HERE);
    return d->authenticate(*this, d->signer.id, secret);
}

void SigningSession::lock()
{
    if (needsBoth())
        return;
    const Person before = d->signer;
    d->signer = {};
    d->failures = 0;
    d->idle.stop();
    // The session has ended whether or not that can be recorded; the logger says when it cannot.
    (void)d->logger.record(sessionDraft(u"locked"_s, before));
    Q_EMIT locked();
}

bool SigningSession::eventFilter(QObject *watched, QEvent *event)
{
    const auto type = event->type();
    const bool isUser = type == QEvent::KeyPress || type == QEvent::MouseButtonPress ||
                        type == QEvent::Wheel || type == QEvent::TouchBegin;
    if (isUser && d->idle.isActive())
        d->idle.start();
    return QObject::eventFilter(watched, event);
}

} // namespace ozm::audit
