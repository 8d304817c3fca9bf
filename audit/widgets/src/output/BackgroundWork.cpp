#include "BackgroundWork.h"

#include "../Texts.h"

#include <QEventLoop>
#include <QProgressDialog>
#include <QThread>
#include <QTimer>

#include <atomic>
#include <memory>

namespace ozm::audit {

namespace {

constexpr int kShowEveryMs = 100;
constexpr int kSteps = 1000;

} // namespace

void runWithProgress(QWidget *parent, const QString &title, const std::function<void(const Progress &)> &work)
{
    std::atomic<int> step = 0;
    std::atomic<bool> cancelled = false;
    const std::unique_ptr<QThread> thread(QThread::create([&] {
        work([&](qint64 done, qint64 total) {
            step = int(total <= 0 ? 0 : done * kSteps / total);
            return !cancelled;
        });
    }));
    QProgressDialog dialog(title, WidgetTexts::tr("Cancel"), 0, kSteps, parent);
    dialog.setObjectName(QStringLiteral("trailProgress"));
    dialog.setWindowModality(Qt::ApplicationModal);
    dialog.setAutoClose(false);
    dialog.setAutoReset(false);
    QEventLoop loop;
    QTimer timer;
    // By a timer: progress comes more often than it can be drawn.
    QObject::connect(&timer, &QTimer::timeout, &dialog, [&] {
        if (!cancelled)
            dialog.setValue(step);
    });
    QObject::connect(&dialog, &QProgressDialog::canceled, &dialog, [&cancelled] { cancelled = true; });
    QObject::connect(thread.get(), &QThread::finished, &loop, &QEventLoop::quit);
    timer.start(kShowEveryMs);
    thread->start();
    loop.exec();
    thread->wait();
}

} // namespace ozm::audit
