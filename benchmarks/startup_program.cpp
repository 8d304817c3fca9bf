// A program that shows its window, says how much memory it holds, in KB, and ends: bare, or with the library.

#ifdef WITH_LIBRARY
#include <ozm_widgets/TemplateFile.h>
#endif

#include <QApplication>
#include <QFile>
#include <QMainWindow>
#include <QTextStream>

namespace {

/// The pages that this process alone holds, and its part of those that it shares.
QByteArray memory()
{
    QFile sums(QStringLiteral("/proc/self/smaps_rollup"));
    if (!sums.open(QIODevice::ReadOnly))
        return "0";
    for (const QByteArray &line : sums.readAll().split('\n'))
        if (line.startsWith("Rss:"))
            return line.simplified().split(' ').value(1);
    return "0";
}

} // namespace

int main(int argc, char *argv[])
{
    const QApplication application(argc, argv);
    QMainWindow window;
    window.show();
    QCoreApplication::processEvents();
#ifdef WITH_LIBRARY
    // So that the linker does not leave the library out.
    const ozm::TemplateFile file;
    if (file.changedOnDisk())
        return 1;
#endif
    QTextStream(stdout) << memory();
    return 0;
}
