#include "style/boxes/BoxDesk.h"

#include <ozm_common_core_mini/AsyncUtils.h>

#include "support/Platform.h"
#include <QAbstractEventDispatcher>
#include <QCoreApplication>
#include <QThread>

namespace ozm {

namespace {

void openDeskOfApplication()
{
    BoxDesk::instance().open();
    QObject::connect(QAbstractEventDispatcher::instance(), &QAbstractEventDispatcher::awake,
                     [] { BoxDesk::instance().awaitLoopEnd(); });
    const auto close = [] { BoxDesk::instance().close(); };
    // Not qApp, which may stand for a kind of application that this one is not.
    QCoreApplication *application = QCoreApplication::instance();
    QObject::connect(application, &QCoreApplication::aboutToQuit, application, close);
    // An application may end without ever having run its loop.
    QObject::connect(application, &QObject::destroyed, close);
}

Q_COREAPP_STARTUP_FUNCTION(openDeskOfApplication)

} // namespace

BoxDesk &BoxDesk::instance()
{
    // Never destroyed: a thread may ask after main() has returned.
    static auto *const desk = new BoxDesk;
    return *desk;
}

BoxDesk::Answer BoxDesk::ask(const std::function<Answer()> &work)
{
    {
        const std::lock_guard lock(m_mutex);
        if (!m_open)
            return {};
        ++m_waiting;
    }
    bool begun = false;
    const auto answer = AsyncUtils::executeInThread<Answer>(m_receiver.get(), [&] {
        begun = true;
        --m_waiting;
        return work();
    });
    if (!begun)
        --m_waiting;
    return platform::valueOr(answer, Answer());
}

void BoxDesk::post(const std::function<void()> &work)
{
    // Under the lock, so that close() finds all that was posted.
    const std::lock_guard lock(m_mutex);
    if (m_open)
        QMetaObject::invokeMethod(m_receiver.get(), work, Qt::QueuedConnection);
}

bool BoxDesk::isOpen()
{
    const std::lock_guard lock(m_mutex);
    return m_open;
}

void BoxDesk::open()
{
    const std::lock_guard lock(m_mutex);
    if (!m_receiver || m_receiver->thread() != QThread::currentThread())
        m_receiver = std::make_unique<QObject>();
    m_open = true;
}

void BoxDesk::close()
{
    {
        const std::lock_guard lock(m_mutex);
        m_open = false;
    }
    // A posted call that is deleted lets its caller go. Who has passed the door, but not posted yet, is about to.
    do {
        QCoreApplication::removePostedEvents(m_receiver.get());
        QThread::yieldCurrentThread();
    } while (m_waiting > 0);
    // Others that are called as the application ends may run loops of their own, which end without a word.
    if (!m_loopEnd)
        reopenWithTheLoop();
}

void BoxDesk::awaitLoopEnd()
{
    if (m_loopEnd || QThread::currentThread()->loopLevel() == 0)
        return;
    m_loopEnd = new QObject;
    QObject::connect(m_loopEnd, &QObject::destroyed, [this] {
        if (!isOpen())
            reopenWithTheLoop();
    });
    m_loopEnd->deleteLater();
}

void BoxDesk::reopenWithTheLoop()
{
    const auto reopen = [this] {
        // Taken by processEvents() alone, the call says nothing about a loop: it waits for the next occasion.
        if (QThread::currentThread()->loopLevel() > 0)
            open();
        else
            reopenWithTheLoop();
    };
    QMetaObject::invokeMethod(m_receiver.get(), reopen, Qt::QueuedConnection);
}

} // namespace ozm
