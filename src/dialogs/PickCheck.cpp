#include "dialogs/PickCheck.h"

#include "dialogs/GuardedDialog.h"
#include "dialogs/SeenEntries.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QPushButton>
#include <QThread>
#include <QTimer>

#include <condition_variable>
#include <mutex>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace ozm {

namespace {

// Short enough not to be taken for a hang, and long enough for what was looked at already, or is on a disk.
constexpr auto kShort = 400ms;
// Until then, a message would only flash up.
constexpr auto kWithoutMessage = 2s;
constexpr auto kBetweenQuestions = 50ms;

bool holdsData(const msreader::MsSample &sample)
{
    return sample.kind == EntryKind::File || (sample.kind == EntryKind::Folder && sample.isData());
}

} // namespace

/// Outlives its owners as long as the thread is at work.
struct PickCheck::State
{
    std::mutex mutex;
    std::condition_variable changed;
    bool isDone = false;
    QStringList data;
};

PickCheck::PickCheck(const QStringList &paths, const std::shared_ptr<SeenEntries> &seen)
    : m_state(std::make_shared<State>())
{
    QThread *thread = QThread::create([state = m_state, paths, seen] {
        QStringList data;
        for (const QString &path : paths) {
            const msreader::MsSample sample = seen->sampleAt(path);
            if (holdsData(sample))
                data.append(sample.path);
        }
        const std::lock_guard lock(state->mutex);
        state->data = data;
        state->isDone = true;
        state->changed.notify_all();
    });
    thread->setObjectName("ozm pick check"_L1);
    // Nobody waits for it, as it may hang in a share for as long as the system lets it.
    QObject::connect(thread, &QThread::finished, thread, &QObject::deleteLater);
    thread->start();
}

bool PickCheck::isDone() const
{
    return isDone(0ms);
}

bool PickCheck::waitBriefly() const
{
    return isDone(kShort);
}

bool PickCheck::waitWithMessage(QWidget *parent) const
{
    // The windows are painted, and nothing can be changed.
    QEventLoop loop;
    QTimer poll;
    QObject::connect(&poll, &QTimer::timeout, &loop, [this, &loop] {
        if (isDone())
            loop.quit();
    });
    poll.start(kBetweenQuestions);
    QTimer::singleShot(kWithoutMessage, &loop, &QEventLoop::quit);
    const QPointer<QWidget> owner(parent);
    loop.exec(QEventLoop::ExcludeUserInputEvents);
    return isDone() || showMessage(owner);
}

bool PickCheck::showMessage(QWidget *parent) const
{
    GuardedDialog box(new QMessageBox(
        QMessageBox::NoIcon, QCoreApplication::translate("PickCheck", "Opening data"),
        QCoreApplication::translate("PickCheck", "The disk takes long to answer. Looking for data …"),
        QMessageBox::Cancel, parent));
    QTimer poll;
    QObject::connect(&poll, &QTimer::timeout, box.operator->(), [this, &box] {
        if (isDone())
            box->accept();
    });
    poll.start(kBetweenQuestions);
    (void)box.exec();
    return isDone();
}

QStringList PickCheck::data() const
{
    const std::lock_guard lock(m_state->mutex);
    return m_state->data;
}

bool PickCheck::isDone(std::chrono::milliseconds patience) const
{
    std::unique_lock lock(m_state->mutex);
    return m_state->changed.wait_for(lock, patience, [this] { return m_state->isDone; });
}

} // namespace ozm
