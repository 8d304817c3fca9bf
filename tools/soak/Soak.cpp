#include "Soak.h"

#include "Files.h"
#include "Toolkit.h"

#include <ozm_common_widgets/WidgetCreatorBase.h>

#include <QApplication>

#include <cstdio>
#include <cstdlib>

using namespace Qt::StringLiterals;

namespace soak {

namespace {

constexpr int kActionsOfSession = 1000;
constexpr qint64 kReadingMs = 10000;
// Far longer than any action, on a busy machine too.
constexpr int kStuckMs = 300000;
// Deferred deletions, and deletions that these defer.
constexpr int kTurnsBetween = 20;
constexpr int kStuck = 3;

void say(const QString &text)
{
    std::printf("%s\n", qUtf8Printable(text));
    std::fflush(stdout);
}

} // namespace

Soak::Soak(const Options &options)
    : m_options(options)
    , m_meter(options.csv)
    , m_number(options.firstSession - 1)
{
    ozm::WidgetCreatorBase::setCustomCreator(std::make_unique<WidgetCreator>(m_file));
    m_next.setSingleShot(true);
    connect(&m_next, &QTimer::timeout, this, &Soak::step);
    connect(&m_watch, &QTimer::timeout, this, &Soak::look);
}

Soak::~Soak()
{
    ozm::WidgetCreatorBase::setCustomCreator({});
}

void Soak::start()
{
    say(u"seed %1, %2 minutes, from session %3"_s.arg(m_options.seed)
            .arg(m_options.minutes)
            .arg(m_number + 1));
    useCache(m_options.pixmaps);
    // There is none between sessions.
    QApplication::setQuitOnLastWindowClosed(false);
    m_clock.start();
    m_watch.start(kStuckMs);
    m_next.start(0);
}

Reading Soak::reading(bool isIdle) const
{
    return {static_cast<double>(m_clock.elapsed()) / 1000, m_actions, m_number, isIdle,
            m_session ? m_session->entries() : 0,          measure()};
}

void Soak::step()
{
    ++m_progress;
    const bool isOver = static_cast<double>(m_clock.elapsed()) > m_options.minutes * 60000;
    if (!m_session && ++m_turnsIdle < kTurnsBetween) {
        m_next.start(1);
        return;
    }
    if (!m_session) {
        if (m_actions > 0) {
            emptyToolkitCaches();
            m_meter.take(reading(true));
        }
        if (isOver || !m_wrong.isEmpty())
            return finish();
        begin();
    } else if (isOver || m_inSession >= kActionsOfSession) {
        end();
    } else {
        // Not right after an action, whose windows go at the event loop's next turn.
        if (m_clock.elapsed() - m_lastReading >= kReadingMs) {
            m_lastReading = m_clock.elapsed();
            m_meter.take(reading(false));
        }
        m_doing = m_session->choose(m_options.only);
        if (m_options.isVerbose)
            say(u"session %1, action %2: %3"_s.arg(m_number).arg(m_inSession + 1).arg(m_doing));
        m_session->act();
        ++m_actions;
        ++m_inSession;
    }
    m_next.start(0);
}

void Soak::begin()
{
    ++m_number;
    m_inSession = 0;
    m_doing = u"begin"_s;
    // Each session can be repeated without those before it.
    m_session = std::make_unique<Session>(m_options.seed * 1000003U + static_cast<unsigned>(m_number),
                                          m_dialogs, m_file);
    if (m_session->error().hasError()) {
        m_wrong.append(
            u"session %1 does not begin: %2"_s.arg(m_number).arg(m_session->error().errorMessage()));
        m_session.reset();
    }
}

void Soak::end()
{
    m_doing = u"end"_s;
    if (const QString wrong = m_session->check(); !wrong.isEmpty())
        m_wrong.append(u"session %1: %2"_s.arg(m_number).arg(wrong));
    say(u"session %1: %2 actions, %3 entries, %4 s"_s.arg(m_number)
            .arg(m_inSession)
            .arg(m_session->entries())
            .arg(m_clock.elapsed() / 1000));
    m_session.reset();
    m_turnsIdle = 0;
}

void Soak::finish()
{
    const Meter::Verdict verdict = m_meter.verdict();
    for (const QString &line : verdict.lines)
        say(line);
    say(u"%1 actions, %2 dialogs"_s.arg(m_actions).arg(m_dialogs.opened()));
    for (const QString &wrong : std::as_const(m_wrong))
        say(wrong);
    say(verdict.grown.isEmpty() ? u"flat"_s : u"grew: "_s + verdict.grown.join(u", "_s));
    QApplication::exit(verdict.grown.isEmpty() && m_wrong.isEmpty() ? EXIT_SUCCESS : EXIT_FAILURE);
}

void Soak::look()
{
    if (m_progress == std::exchange(m_actionsSeen, m_progress)) {
        say(u"stuck in session %1, action %2: %3"_s.arg(m_number).arg(m_inSession + 1).arg(m_doing));
        std::_Exit(kStuck);
    }
}

} // namespace soak
