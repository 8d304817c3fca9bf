#include "ScriptServer.h"

#include <QCoreApplication>
#include <QLocale>
#include <QtEndian>

#include <array>
#include <cstdio>
#include <cstdlib>

using namespace Qt::StringLiterals;

namespace ozm {

namespace {

using namespace scriptprotocol;

ScriptRules s_rules = {};

ScriptRules requestedRules()
{
    return s_rules;
}

/// At once, since a script may be running that never ends.
[[noreturn]] void endProcess(int code)
{
    std::_Exit(code);
}

constexpr int kNobodyListens = 0;
constexpr int kNotARequest = 3;

void answer(const Answer &message)
{
    writeFrame(framed(message));
}

void answerOutcome(const ScriptOutcome &outcome)
{
    const QByteArray frame = framed(Answer(outcome));
    writeFrame(frame.isEmpty() ? framed(Answer(ScriptOutcome{{}, true, 1, u"The result is too long."_s}))
                               : frame);
}

} // namespace

void ScriptServer::serve(const QByteArray &payload)
{
    const auto request = unframed<Request>(payload);
    if (!request)
        endProcess(kNotARequest);
    std::visit([this](const auto &each) { serve(each); }, *request);
}

void ScriptServer::serve(const CreateRealm &request)
{
    s_rules.deadline = std::chrono::milliseconds(request.deadline);
    QString trouble;
    m_realms[request.realm] = std::make_unique<EngineScriptRealm>(request.library, &requestedRules, &trouble);
    answer(Created{trouble});
}

void ScriptServer::serve(const RunScripts &request)
{
    const auto realm = m_realms.find(request.realm);
    if (realm == m_realms.end())
        endProcess(kNotARequest);
    s_rules.deadline = std::chrono::milliseconds(request.deadline);
    QLocale::setDefault(request.locale.isEmpty() ? QLocale::system() : QLocale(request.locale));
    answer(Started{});
    realm->second->run(request.tasks, request.parameters, &answerOutcome);
    // Promises have as long as the scripts that made them.
    QCoreApplication::processEvents();
    answer(Ended{});
}

void ScriptServer::serve(const DropRealm &request)
{
    m_realms.erase(request.realm);
}

void writeFrame(const QByteArray &frame)
{
    const auto size = static_cast<std::size_t>(frame.size());
    if (std::fwrite(frame.constData(), 1, size, stdout) != size || std::fflush(stdout) != 0)
        endProcess(kNobodyListens);
}

QByteArray readFrame()
{
    std::array<char, sizeof(quint32)> head = {};
    if (std::fread(head.data(), 1, head.size(), stdin) != head.size())
        endProcess(kNobodyListens);
    const auto length = qFromBigEndian<quint32>(head.data());
    if (length > kLongestFrame)
        endProcess(kNotARequest);
    QByteArray payload(length, Qt::Uninitialized);
    if (std::fread(payload.data(), 1, length, stdin) != length)
        endProcess(kNobodyListens);
    return payload;
}

} // namespace ozm
