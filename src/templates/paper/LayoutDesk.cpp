#include "templates/paper/LayoutDesk.h"

#include <QCoreApplication>
#include <QThread>

#include <utility>

namespace ozm::paper {

namespace {

std::unique_ptr<LayoutDesk> &keptDesk()
{
    static std::unique_ptr<LayoutDesk> desk;
    return desk;
}

} // namespace

LayoutDesk &LayoutDesk::instance()
{
    if (!keptDesk()) {
        keptDesk().reset(new LayoutDesk);
        qAddPostRoutine([] { keptDesk().reset(); });
    }
    return *keptDesk();
}

LayoutDesk::LayoutDesk() = default;

LayoutDesk::~LayoutDesk()
{
    if (m_thread)
        m_thread->wait();
}

void LayoutDesk::ask(const QObject &receiver, const QString &decoded, const ReportPaperOptions &options,
                     const Receive &receive)
{
    std::erase_if(m_waiting, [&receiver](const Request &each) { return each.receiver == &receiver; });
    m_waiting.push_back({&receiver, decoded, options, receive});
    beginNext();
}

void LayoutDesk::beginNext()
{
    if (m_thread || m_waiting.empty())
        return;
    const Request request = std::move(m_waiting.front());
    m_waiting.pop_front();
    m_thread.reset(QThread::create([this, decoded = request.decoded, options = request.options] {
        m_layout = std::make_unique<PaperLayout>(decoded, options);
        m_layout->layOutOnOwnSheets();
        m_layout->moveTo(*thread());
    }));
    connect(m_thread.get(), &QThread::finished, this, [this, request] { handOver(request); });
    m_thread->start(QThread::LowPriority);
}

void LayoutDesk::handOver(const Request &request)
{
    // By now it has said that it is finished, but may still be about to end.
    m_thread->wait();
    m_thread.release()->deleteLater();
    std::unique_ptr<PaperLayout> layout = std::move(m_layout);
    beginNext();
    if (request.receiver)
        request.receive(std::move(layout));
}

} // namespace ozm::paper
