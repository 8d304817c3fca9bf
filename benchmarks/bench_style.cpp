// Message boxes asked for from a worker beside bare blocking calls, icons cold and warm beside the toolkit's
// own icons, and the style applied to a window of many widgets, the first time and again.

#include <ozm_common_core_mini/AsyncUtils.h>
#include <ozm_widgets/OZMStyle.h>
#include <ozm_widgets/OzmCoreApplication.h>
#include <ozm_widgets/OzmMessageBox.h>

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QEventLoop>
#include <QLabel>
#include <QLineEdit>
#include <QPixmapCache>
#include <QPushButton>
#include <QThread>
#include <QVBoxLayout>

#include <memory>

using namespace Qt::StringLiterals;
using ozm::OzmCoreApplication;
using ozm::OzmMessageBox;

namespace {

constexpr int kWidgets = 2000;

/// Calls @p work again and again on a worker, while this thread runs its events.
template <typename Work>
void onWorker(benchmark::State &state, Work work)
{
    for (auto _ : state) {
        QEventLoop loop;
        const std::unique_ptr<QThread> worker(QThread::create([&work] {
            for (int i = 0; i < 20; ++i)
                work();
        }));
        QObject::connect(worker.get(), &QThread::finished, &loop, &QEventLoop::quit);
        worker->start();
        loop.exec();
        worker->wait();
    }
    state.SetItemsProcessed(20 * state.iterations());
}

void call_blocking_queued(benchmark::State &state)
{
    onWorker(state, [] {
        int value = 0;
        QMetaObject::invokeMethod(
            qApp, [&value] { value = 7; }, Qt::BlockingQueuedConnection);
        benchmark::DoNotOptimize(value);
    });
}

void call_execute_in_thread(benchmark::State &state)
{
    onWorker(state, [] {
        benchmark::DoNotOptimize(ozm::AsyncUtils::executeInThread<int>(qApp, [] { return 7; }).value());
    });
}

/// Presses the default button of what is shown, as automation does.
struct Presser : QObject
{
    Presser()
    {
        connect(OzmCoreApplication::instance(), &OzmCoreApplication::ozmMessageBoxShown, this,
                [](OzmMessageBox *box) { box->button(QMessageBox::Ok)->click(); });
    }
};

void box_from_worker(benchmark::State &state)
{
    const Presser presser;
    QWidget parent;
    onWorker(state, [&parent] { OZMStyle::warning(&parent, {}, u"Title"_s, "Text"); });
}

/// Written by hand: the toolkit's box in a blocking call.
void box_by_hand(benchmark::State &state)
{
    QWidget parent;
    const auto show = [&parent] {
        QMessageBox box(QMessageBox::Warning, u"Title"_s, u"Text"_s, QMessageBox::Ok, &parent);
        QMetaObject::invokeMethod(
            &box, [&box] { box.button(QMessageBox::Ok)->click(); }, Qt::QueuedConnection);
        return box.exec();
    };
    onWorker(state, [&show] {
        int answer = 0;
        QMetaObject::invokeMethod(
            qApp, [&] { answer = show(); }, Qt::BlockingQueuedConnection);
    });
}

void drawIcons(benchmark::State &state, const QList<QIcon> &icons, bool cold)
{
    for (auto _ : state) {
        if (cold)
            QPixmapCache::clear();
        for (const QIcon &icon : icons)
            benchmark::DoNotOptimize(icon.pixmap(QSize(24, 24), 2.0));
    }
    state.SetItemsProcessed(state.iterations() * icons.size());
}

QList<QIcon> icons(bool ours)
{
    QList<QIcon> icons;
    for (const QString &name : OZMStyle::iconNames())
        icons.append(ours ? OZMStyle::icon(name) : QIcon(u":/style/icons/%1.svg"_s.arg(name)));
    return icons;
}

void icon_cold(benchmark::State &state)
{
    drawIcons(state, icons(true), true);
}
void icon_warm(benchmark::State &state)
{
    drawIcons(state, icons(true), false);
}
void icon_svg_of_toolkit_cold(benchmark::State &state)
{
    for (auto _ : state) {
        QPixmapCache::clear();
        // Its own icons keep what they drew, so that only new ones are cold.
        for (const QIcon &icon : icons(false))
            benchmark::DoNotOptimize(icon.pixmap(QSize(24, 24), 2.0));
    }
}
void icon_svg_of_toolkit_warm(benchmark::State &state)
{
    drawIcons(state, icons(false), false);
}
void icon_by_name(benchmark::State &state)
{
    for (auto _ : state)
        benchmark::DoNotOptimize(OZMStyle::icon(u"document-save"_s));
}

std::unique_ptr<QWidget> largeWindow()
{
    auto window = std::make_unique<QWidget>();
    auto *column = new QVBoxLayout(window.get());
    for (int i = 0; i < kWidgets / 4; ++i) {
        column->addWidget(new QLabel(QString::number(i)));
        column->addWidget(new QPushButton(QString::number(i)));
        column->addWidget(new QLineEdit(QString::number(i)));
        column->addWidget(new QWidget);
    }
    window->show();
    QApplication::processEvents();
    return window;
}

void takeStyleAway()
{
    qApp->setStyleSheet({});
    QApplication::setStyle(u"fusion"_s);
}

void style_apply_first(benchmark::State &state)
{
    const auto window = largeWindow();
    for (auto _ : state) {
        state.PauseTiming();
        takeStyleAway();
        state.ResumeTiming();
        OZMStyle::apply();
    }
}

void style_apply_again(benchmark::State &state)
{
    const auto window = largeWindow();
    OZMStyle::apply();
    for (auto _ : state)
        OZMStyle::apply();
    takeStyleAway();
}

void style_set_by_toolkit(benchmark::State &state)
{
    const auto window = largeWindow();
    for (auto _ : state) {
        state.PauseTiming();
        takeStyleAway();
        state.ResumeTiming();
        QApplication::setStyle(u"fusion"_s);
        qApp->setStyleSheet(u"QToolBar { border: none; }"_s);
    }
    takeStyleAway();
}

} // namespace

BENCHMARK(call_blocking_queued)->UseRealTime();
BENCHMARK(call_execute_in_thread)->UseRealTime();
BENCHMARK(box_by_hand)->UseRealTime();
BENCHMARK(box_from_worker)->UseRealTime();
BENCHMARK(icon_svg_of_toolkit_cold);
BENCHMARK(icon_svg_of_toolkit_warm);
BENCHMARK(icon_cold);
BENCHMARK(icon_warm);
BENCHMARK(icon_by_name);
BENCHMARK(style_set_by_toolkit);
BENCHMARK(style_apply_first);
BENCHMARK(style_apply_again);

int main(int argc, char **argv)
{
    const QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
