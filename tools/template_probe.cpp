// Run by tests to observe the library from outside; prints its observations on standard output.

#include <ozm_widgets/OZMStyle.h>
#include <ozm_widgets/TemplateAutosave.h>
#include <ozm_widgets/TemplateFile.h>

#include <QApplication>
#include <QFile>
#include <QMainWindow>
#include <QTextStream>

using namespace Qt::StringLiterals;
using namespace ozm;

namespace {

/// The libraries of the web engine that this process holds; "?" where the system does not say.
QString webLibraries()
{
    QFile maps(u"/proc/self/maps"_s);
    if (!maps.open(QIODevice::ReadOnly))
        return u"?"_s;
    const QByteArray all = maps.readAll();
    return all.contains("WebEngine") || all.contains("ozm_webreader") ? u"loaded"_s : u"none"_s;
}

int start(const QString &page)
{
    QTextStream out(stdout);
    QMainWindow window;
    window.show();
    QCoreApplication::processEvents();
    out << "start " << webLibraries() << '\n';
    const Result<TemplateFile::Loaded> loaded = TemplateFile::read(page);
    out << (loaded ? "read "_L1 + loaded.value().content : "error "_L1 + loaded.error().errorMessage())
        << '\n';
    out << "then " << webLibraries() << '\n';
    return 0;
}

int keepUnsaved(const QString &folder)
{
    TemplateAutosave autosave(u"probe"_s, folder);
    autosave.store(u"/data/report.ozt"_s, u"unsaved [Name]"_s);
    QTextStream(stdout) << "stored" << Qt::endl;
    return QCoreApplication::exec(); // Until it is killed.
}

} // namespace

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() != 3)
        return 2;
    return arguments.at(1) == "start"_L1 ? start(arguments.at(2)) : keepUnsaved(arguments.at(2));
}
