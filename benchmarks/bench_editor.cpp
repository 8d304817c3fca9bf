// The template editor's window beside a bare QTextEdit that shows the same document: loading, memory, a key until it is
// painted, the longest time without an answer after a key, and the first showing. Times are those of the process's CPU, as
// other programs run on the machine, too; that without an answer is of the GUI thread's, as others do not keep it from one.

#include <ozm_widgets/AbstractTemplateEditor.h>

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QElapsedTimer>
#include <QKeyEvent>
#include <QTextEdit>
#include <QThread>

#include <algorithm>
#include <cstdlib>
#include <ctime>
#include <memory>

#if defined(__GLIBC__)
#include <malloc.h>
#endif

using namespace Qt::StringLiterals;

namespace {

constexpr int kPages = 200;
constexpr int kParagraphsOnPage = 11;
constexpr int kNestedTables = 13;
// The preview is made anew in that time, and shown.
constexpr int kUntilIdleMs = 1500;
// After a key, a preview that takes long waits for four times as long as it took before.
constexpr int kUntilPreviewMs = 5000;
const QSize kWindow(1320, 860);

QString manyPages()
{
    QString html;
    for (int page = 0; page < kPages; ++page) {
        html += u"<h2>Page %1</h2>"_s.arg(page);
        for (int paragraph = 0; paragraph < kParagraphsOnPage; ++paragraph)
            html += u"<p>Paragraph %1: the <b>peptide</b> [Name] was measured with a charge of [Charge] and "
                    u"a mass of "
                    "<i>[Mass]</i>, and nothing else was to be seen in its spectrum.</p>"_s.arg(paragraph);
        html += u"<table border=\"1\" width=\"100%\"><tr><td>Name</td><td>[Name]</td></tr></table>"_s;
    }
    return html;
}

QString nestedTables()
{
    QString html = u"inside"_s;
    for (int depth = 0; depth < kNestedTables; ++depth)
        html = u"<table border=\"1\"><tr><td>%1</td><td>%2</td></tr></table>"_s.arg(depth).arg(html);
    return html;
}

class Editor : public AbstractTemplateEditor
{
public:
    QList<ShortCode> shortCodes() const override
    {
        return {ShortCode(u"[Name]"_s, u"Name"_s, {}, {}), ShortCode(u"[Charge]"_s, u"Charge"_s, {}, {}),
                ShortCode(u"[Mass]"_s, u"Mass"_s, {}, {})};
    }
};

/// Of this thread, where the system tells it.
double threadSeconds()
{
#if defined(CLOCK_THREAD_CPUTIME_ID)
    timespec now{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
    return double(now.tv_sec) + double(now.tv_nsec) / 1e9;
#else
    return double(std::clock()) / CLOCKS_PER_SEC;
#endif
}

/// Measures how long the event loop was busy with one event.
class Watched : public QApplication
{
public:
    using QApplication::QApplication;

    bool notify(QObject *receiver, QEvent *event) override
    {
        // Other threads send events, too.
        if (QThread::currentThread() != thread())
            return QApplication::notify(receiver, event);
        const double start = threadSeconds();
        ++m_depth;
        const bool handled = QApplication::notify(receiver, event);
        if (--m_depth == 0)
            longest = std::max(longest, threadSeconds() - start);
        return handled;
    }

    double longest = 0;

private:
    int m_depth = 0;
};

double seconds(std::clock_t clocks)
{
    return double(clocks) / CLOCKS_PER_SEC;
}

void runFor(int milliseconds)
{
    QElapsedTimer clock;
    clock.start();
    while (clock.elapsed() < milliseconds)
        QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
}

struct Ours
{
    explicit Ours(const QString &html)
    {
        editor.resize(kWindow);
        load(html);
    }
    /// Of the text in the window, once it is shown.
    static QSize textSize()
    {
        Ours shown({});
        shown.window().show();
        runFor(kUntilIdleMs);
        return shown.text().size();
    }
    void load(const QString &html)
    {
        if (!editor.setSourceText(u"<ozm_template version=\"1.0\">"_s + html + u"</ozm_template>"_s))
            std::abort();
    }
    QWidget &window() { return editor; }
    QTextEdit &text() { return *editor.findChild<QTextEdit *>(u"richView"_s); }

    Editor editor;
};

/// As large as the text in the editor's window, so that both lay out and paint as many lines.
struct Bare
{
    explicit Bare(const QString &html)
        : Bare(html, size)
    {}
    Bare(const QString &html, const QSize &ownSize)
    {
        edit.resize(ownSize);
        load(html);
    }
    void load(const QString &html) { edit.setHtml(html); }
    QWidget &window() { return edit; }
    QTextEdit &text() { return edit; }

    QTextEdit edit;
    static QSize size;
};

QSize Bare::size;

/// As large as the whole window, as both fill it.
struct BareWindow : Bare
{
    explicit BareWindow(const QString &html)
        : Bare(html, kWindow)
    {}
};

template <typename Window>
void load(benchmark::State &state, const QString &html)
{
    Window shown(u"<p>x</p>"_s);
    shown.window().show();
    runFor(kUntilIdleMs);
    for (auto _ : state) {
        const std::clock_t start = std::clock();
        shown.load(html);
        (void)shown.text().document()->size();
        shown.text().viewport()->repaint();
        state.SetIterationTime(seconds(std::clock() - start));
        runFor(kUntilIdleMs);
    }
}

template <typename Window>
void memory(benchmark::State &state, const QString &html)
{
    for (auto _ : state) {
#if defined(__GLIBC__)
        Window shown(u"<p>x</p>"_s);
        shown.window().show();
        runFor(kUntilIdleMs);
        const size_t before = mallinfo2().uordblks + mallinfo2().hblkhd;
        shown.load(html);
        (void)shown.text().document()->size();
        // Bytes are reported as nanoseconds: only their ratio is read.
        state.SetIterationTime(double(mallinfo2().uordblks + mallinfo2().hblkhd - before) / 1e9);
#else
        state.SkipWithError("no memory known");
        break;
#endif
    }
}

void pressKey(QTextEdit &text)
{
    QKeyEvent press(QEvent::KeyPress, Qt::Key_X, Qt::NoModifier, u"x"_s);
    QCoreApplication::sendEvent(&text, &press);
    text.viewport()->repaint();
}

/// At a place of the text in percent.
template <typename Window>
void key(benchmark::State &state, const QString &html)
{
    Window shown(html);
    shown.window().show();
    runFor(kUntilIdleMs);
    QTextEdit &text = shown.text();
    QTextCursor cursor = text.textCursor();
    cursor.setPosition(int(text.document()->characterCount() * state.range(0) / 100));
    cursor.movePosition(QTextCursor::EndOfBlock);
    text.setTextCursor(cursor);
    runFor(kUntilIdleMs);
    for (auto _ : state) {
        const std::clock_t start = std::clock();
        pressKey(text);
        state.SetIterationTime(seconds(std::clock() - start));
    }
}

template <typename Window>
void stall(benchmark::State &state, const QString &html)
{
    Window shown(html);
    shown.window().show();
    runFor(kUntilIdleMs);
    auto &watched = *static_cast<Watched *>(QCoreApplication::instance());
    for (auto _ : state) {
        watched.longest = 0;
        pressKey(shown.text());
        runFor(kUntilPreviewMs);
        state.SetIterationTime(watched.longest);
    }
}

template <typename Window>
void firstShowing(benchmark::State &state, const QString &html)
{
    for (auto _ : state) {
        const std::clock_t start = std::clock();
        const auto shown = std::make_unique<Window>(html);
        shown->window().show();
        QCoreApplication::processEvents();
        state.SetIterationTime(seconds(std::clock() - start));
    }
}

} // namespace

int main(int argc, char **argv)
{
    Watched application(argc, argv);
    const QString pages = manyPages();
    const QString tables = nestedTables();
    Bare::size = Ours::textSize();
    const auto add = [](const char *name, auto run, const QString &html) {
        return benchmark::RegisterBenchmark(name, run, html)->UseManualTime()->Unit(benchmark::kMillisecond);
    };
    add("editor_load", load<Ours>, pages)->Iterations(1);
    add("editor_load_bare", load<Bare>, pages)->Iterations(1);
    add("editor_tables", load<Ours>, tables)->Iterations(1);
    add("editor_tables_bare", load<Bare>, tables)->Iterations(1);
    add("editor_memory", memory<Ours>, pages)->Iterations(1);
    add("editor_memory_bare", memory<Bare>, pages)->Iterations(1);
    add("editor_key", key<Ours>, pages)->Iterations(20)->Arg(0)->Arg(50)->Arg(99);
    add("editor_key_bare", key<Bare>, pages)->Iterations(20)->Arg(0)->Arg(50)->Arg(99);
    add("editor_stall", stall<Ours>, pages)->Iterations(1);
    add("editor_stall_bare", stall<Bare>, pages)->Iterations(1);
    add("editor_first_showing", firstShowing<Ours>, pages)->Iterations(1);
    add("editor_first_showing_bare", firstShowing<BareWindow>, pages)->Iterations(1);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
