#include "Toolkit.h"

#include "Meter.h"

#include <QApplication>
#include <QFileDialog>
#include <QPixmapCache>
#include <QTableWidget>

#include <functional>

using namespace Qt::StringLiterals;

namespace soak {

namespace {

// Icons, fonts and descriptions of files are read once.
constexpr int kWarmUps = 10;
constexpr int kTimes = 40;
constexpr int kTurns = 20;

qint64 heapInKb()
{
    return measure().at(static_cast<std::size_t>(Quantity::Heap));
}

void dropPixmaps()
{
    // Not clear(), which keeps the names of all pixmaps for ever.
    const int limit = QPixmapCache::cacheLimit();
    QPixmapCache::setCacheLimit(0);
    QPixmapCache::setCacheLimit(limit);
}

void settle()
{
    for (int i = 0; i < kTurns; ++i) {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QCoreApplication::processEvents();
    }
    dropPixmaps();
}

qint64 bytesLostBy(const std::function<void()> &action)
{
    for (int i = 0; i < kWarmUps; ++i)
        action();
    settle();
    const qint64 before = heapInKb();
    for (int i = 0; i < kTimes; ++i)
        action();
    settle();
    return (heapInKb() - before) * 1024 / kTimes;
}

void openFileDialog()
{
    QFileDialog dialog;
    dialog.setOption(QFileDialog::DontUseNativeDialog);
    dialog.show();
    QCoreApplication::processEvents();
    (void)dialog.grab();
}

void changePalette(QWidget &window)
{
    QPalette palette = QApplication::palette();
    const QColor base = palette.color(QPalette::Window);
    palette.setColor(QPalette::Window, base.lightness() > 128 ? base.darker() : base.lighter());
    QApplication::setPalette(palette);
    QCoreApplication::processEvents();
    (void)window.grab();
}

} // namespace

QStringList toolkitLosses()
{
    if (heapInKb() < 0)
        return {};
    const QPalette palette = QApplication::palette();
    QTableWidget table(5, 5);
    table.show();
    const std::pair<QString, std::function<void()>> things[]{
        {u"file dialog"_s, openFileDialog}, {u"palette"_s, [&table] { changePalette(table); }}};
    QStringList lines;
    for (const auto &[name, action] : things) {
        const qint64 with = bytesLostBy(action);
        useCache(PixmapCache::Off);
        const qint64 without = bytesLostBy(action);
        useCache(PixmapCache::On);
        lines.append(
            u"bare %1: %2 bytes lost each time, %3 without the toolkit's cache of pixmaps"_s.arg(name)
                .arg(with)
                .arg(without));
    }
    QApplication::setPalette(palette);
    return lines;
}

void useCache(PixmapCache cache)
{
    static const int usual = QPixmapCache::cacheLimit();
    QPixmapCache::setCacheLimit(cache == PixmapCache::On ? usual : 0);
}

void emptyToolkitCaches()
{
    dropPixmaps();
    // As long as there is one style sheet, there is an empty rule for the list and the line of each combo box and
    // for the line of each spin box. A sheet that differs, be it by a blank, has all rules looked up again.
    const QString sheet = qApp->styleSheet();
    qApp->setStyleSheet(sheet.endsWith(u' ') ? sheet.chopped(1) : sheet + u' ');
}

} // namespace soak
