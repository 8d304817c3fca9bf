#pragma once

#include "templates/paper/PaperLayout.h"

#include <QObject>
#include <QPointer>

#include <deque>
#include <functional>
#include <memory>

class QThread;

namespace ozm::paper {

/// Lays reports out in a thread of its own, one after the other: a long one takes many times as long as a window may be
/// without an answer. Used by the GUI thread, which gets them back and is the only one to draw them.
class LayoutDesk : public QObject
{
public:
    using Receive = std::function<void(std::unique_ptr<PaperLayout> layout)>;

    /// Ends with the application object, before its fonts do. A later application begins anew.
    static LayoutDesk &instance();
    ~LayoutDesk() override;

    /// Calls @p receive with the report on its sheets, unless @p receiver is gone by then. Takes the place of one that still
    /// waits for the same receiver.
    void ask(const QObject &receiver, const QString &decoded, const ReportPaperOptions &options,
             const Receive &receive);

private:
    struct Request
    {
        QPointer<const QObject> receiver;
        QString decoded;
        ReportPaperOptions options;
        Receive receive;
    };

    LayoutDesk();
    void beginNext();
    void handOver(const Request &request);

    std::deque<Request> m_waiting;
    std::unique_ptr<QThread> m_thread;
    std::unique_ptr<PaperLayout> m_layout; ///< The thread's, while it runs.
};

} // namespace ozm::paper
