#include <ozm_widgets/MsDataSearch.h>

#include "search/FolderSearch.h"
#include "search/SampleRecognition.h"

#include <QElapsedTimer>
#include <QThread>

#include <atomic>
#include <mutex>

using namespace Qt::StringLiterals;

namespace ozm::msreader {

namespace {

// Ten updates a second look like a steady flow, and leave the GUI thread time for everything else.
constexpr qint64 kBatchMilliseconds = 100;

} // namespace

class MsDataSearch::Private
{
public:
    explicit Private(MsDataSearch *owner)
        : qptr(owner)
    {}

    /// In the search's thread: gathers what is found and hands it to the owner's thread.
    class Courier
    {
    public:
        explicit Courier(Private &search)
            : m_search(search)
        {
            m_sinceHandover.start();
        }

        void run(const QString &folder, const MsDataSearchOptions &options);

    private:
        [[nodiscard]] MsDataSearchCallbacks callbacks();
        void handOverIfDue();
        void handOver();

        template <typename Call>
        void inOwnersThread(Call call)
        {
            const std::lock_guard lock(m_search.handover);
            QMetaObject::invokeMethod(
                m_search.qptr,
                [search = &m_search, call = std::move(call)] {
                    std::unique_lock(search->handover).unlock();
                    call();
                },
                Qt::QueuedConnection);
        }

        Private &m_search;
        QElapsedTimer m_sinceHandover;
        QList<MsSample> m_samples;
        int m_foldersSearched = 0;
        int m_samplesFound = 0;
        QString m_folder;
    };

    MsDataSearch *const qptr;
    std::unique_ptr<QThread> thread;
    std::atomic<bool> isCanceled = false;
    // Qt hands over in order by itself, which the thread sanitizer does not see.
    std::mutex handover;
};

void MsDataSearch::Private::Courier::run(const QString &folder, const MsDataSearchOptions &options)
{
    const Error error = MsDataSearch::run(folder, options, callbacks());
    handOver();
    inOwnersThread([search = &m_search, error] {
        // A thread that has handed this over has nothing left to do: the wait is short.
        search->thread->wait();
        search->thread.reset();
        Q_EMIT search->qptr->finished(error, search->isCanceled);
    });
}

MsDataSearchCallbacks MsDataSearch::Private::Courier::callbacks()
{
    MsDataSearchCallbacks calls;
    calls.found = [this](const MsSample &sample) {
        m_samples.append(sample);
        ++m_samplesFound;
        handOverIfDue();
    };
    calls.passedOver = [this](const QString &folder, const QString &reason) {
        inOwnersThread([owner = m_search.qptr, folder, reason] { Q_EMIT owner->passedOver(folder, reason); });
    };
    calls.progressed = [this](int foldersSearched, int, const QString &folder) {
        m_foldersSearched = foldersSearched;
        m_folder = folder;
        handOverIfDue();
    };
    calls.isCanceled = [this] { return m_search.isCanceled.load(std::memory_order_relaxed); };
    return calls;
}

void MsDataSearch::Private::Courier::handOverIfDue()
{
    if (m_sinceHandover.elapsed() >= kBatchMilliseconds)
        handOver();
}

void MsDataSearch::Private::Courier::handOver()
{
    m_sinceHandover.restart();
    // A call for each signal: whoever receives one may delete the search.
    if (!m_samples.isEmpty()) {
        inOwnersThread([owner = m_search.qptr, samples = std::exchange(m_samples, {})] {
            Q_EMIT owner->found(samples);
        });
    }
    inOwnersThread([owner = m_search.qptr, folders = m_foldersSearched, count = m_samplesFound,
                    folder = m_folder] { Q_EMIT owner->progressed(folders, count, folder); });
}

MsDataSearch::MsDataSearch(QObject *parent)
    : QObject(parent)
    , d(std::make_unique<Private>(this))
{}

MsDataSearch::~MsDataSearch()
{
    cancel();
    if (d->thread)
        d->thread->wait();
}

Error MsDataSearch::run(const QString &folder, const MsDataSearchOptions &options,
                        const MsDataSearchCallbacks &callbacks)
{
    return FolderSearch(options, callbacks).search(folder);
}

MsSample MsDataSearch::sampleAt(const QString &path)
{
    return msreader::sampleAt(path);
}

qint64 MsDataSearch::sizeOnDisk(const QString &path, const std::function<bool()> &isCanceled)
{
    return msreader::sizeOnDisk(path, isCanceled);
}

bool MsDataSearch::isRunning() const
{
    return d->thread != nullptr;
}

bool MsDataSearch::start(const QString &folder, const MsDataSearchOptions &options)
{
    if (isRunning())
        return false;
    d->isCanceled = false;
    d->thread.reset(QThread::create(
        [search = d.get(), folder, options] { Private::Courier(*search).run(folder, options); }));
    d->thread->setObjectName("ozm data search"_L1);
    d->thread->start(QThread::LowPriority);
    return true;
}

void MsDataSearch::cancel()
{
    d->isCanceled = true;
}

} // namespace ozm::msreader
