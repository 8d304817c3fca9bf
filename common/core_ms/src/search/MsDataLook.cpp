#include <ozm_widgets/MsDataLook.h>

#include "search/SampleRecognition.h"

#include <QMutex>
#include <QPointer>
#include <QQueue>
#include <QThread>

#include <atomic>

using namespace Qt::StringLiterals;

namespace ozm::msreader {

namespace {

// Each of them may hang in an entry that was canceled. More that hang are no help.
constexpr int kMostThreads = 8;

} // namespace

/// The entries to look at. It outlives its owner as long as a thread looks at one of them.
class MsDataLook::Desk : public std::enable_shared_from_this<Desk>
{
public:
    explicit Desk(MsDataLook *owner)
        : m_owner(owner)
    {}

    void add(const QStringList &paths, int round, bool measuresFolders, const Recognition &recognition)
    {
        const QMutexLocker lock(&m_mutex);
        for (const QString &path : paths)
            m_entries.enqueue({path, measuresFolders, recognition});
        if (m_isServed || m_threads == kMostThreads)
            return;
        m_isServed = true;
        ++m_threads;
        QThread *thread = QThread::create([desk = shared_from_this(), round] { desk->serve(round); });
        thread->setObjectName("ozm data look"_L1);
        // Nobody waits for it, as it may hang in a share for as long as the system lets it.
        QObject::connect(thread, &QThread::finished, thread, &QObject::deleteLater);
        thread->start(QThread::LowPriority);
    }

    void cancel(int nextRound)
    {
        const QMutexLocker lock(&m_mutex);
        m_entries.clear();
        m_round = nextRound;
        // The thread that served is busy with an entry of the past, perhaps for long.
        m_isServed = false;
    }

    void end()
    {
        cancel(-1);
        const QMutexLocker lock(&m_mutex);
        m_owner = nullptr;
    }

private:
    struct Entry
    {
        QString path;
        bool measuresFolders;
        Recognition recognition;
    };

    void serve(int round)
    {
        while (const auto entry = next(round)) {
            MsSample sample = entry->recognition(entry->path);
            if (entry->measuresFolders && sample.kind == EntryKind::Folder && sample.isData())
                sample.size = sizeOnDisk(sample.path, [this, round] { return m_round != round; });
            tell(round, sample);
        }
    }

    /// The entry to look at next; none when the thread is to end. @p round moves on with the desk.
    std::optional<Entry> next(int &round)
    {
        const QMutexLocker lock(&m_mutex);
        const bool isReplaced = round != m_round && m_isServed;
        if (!isReplaced && !m_entries.isEmpty()) {
            round = m_round;
            m_isServed = true;
            return m_entries.dequeue();
        }
        m_isServed = isReplaced;
        --m_threads;
        return {};
    }

    void tell(int round, const MsSample &sample)
    {
        const QMutexLocker lock(&m_mutex);
        if (m_owner && round == m_round)
            QMetaObject::invokeMethod(
                m_owner, [desk = shared_from_this(), round, sample] { desk->deliver(round, sample); },
                Qt::QueuedConnection);
    }

    /// In the thread of the owner.
    void deliver(int round, const MsSample &sample)
    {
        QMutexLocker lock(&m_mutex);
        MsDataLook *const owner = m_owner;
        lock.unlock();
        if (owner)
            owner->take(round, sample);
    }

    QMutex m_mutex;
    QQueue<Entry> m_entries;
    MsDataLook *m_owner;
    std::atomic<int> m_round =
        0; ///< Counts the cancellations; read without the lock while a folder is measured.
    int m_threads = 0;
    bool m_isServed = false; ///< A thread is there for what is asked for now.
};

MsDataLook::MsDataLook(QObject *parent)
    : QObject(parent)
    , m_desk(std::make_shared<Desk>(this))
    , m_recognition(&sampleAt)
{}

MsDataLook::~MsDataLook()
{
    m_desk->end();
}

void MsDataLook::setRecognition(const Recognition &recognition)
{
    m_recognition = recognition;
}

void MsDataLook::setMeasuresFolders(bool measures)
{
    m_measuresFolders = measures;
}

void MsDataLook::look(const QStringList &paths)
{
    if (paths.isEmpty())
        return;
    m_waiting += paths.size();
    m_desk->add(paths, m_round, m_measuresFolders, m_recognition);
}

void MsDataLook::cancel()
{
    m_waiting = 0;
    m_desk->cancel(++m_round);
}

bool MsDataLook::isRunning() const
{
    return m_waiting > 0;
}

void MsDataLook::take(int round, const MsSample &sample)
{
    // Told already when it was canceled.
    if (round != m_round)
        return;
    --m_waiting;
    const QPointer<MsDataLook> self(this);
    Q_EMIT seen(sample);
    if (self && round == m_round && m_waiting == 0)
        Q_EMIT finished();
}

} // namespace ozm::msreader
