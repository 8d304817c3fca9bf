// Asks once more what syscalls.sh counts: the same question a number of times, so that what the program costs
// by itself can be taken off.
//
//     formats_probe names                            one layout per line, with its number
//     formats_probe make <number> <folder>           makes it there, and prints the sample's path
//     formats_probe large <fid|agilent|tdf> <files> <folder>
//     formats_probe ask <how> <times> <path>         how: literal, all, any, nearest, name

#include "formats_layouts.h"

#include "core_ms/LiteralRules.h"

#include <FormatDetection.h>

#include <QTextStream>

#include <cstdio>

using namespace Qt::StringLiterals;
using namespace ozm::msreader;

namespace {

void print(const QString &line)
{
    QTextStream(stdout) << line << Qt::endl;
}

bool ask(const QString &how, const QString &path)
{
    const auto location = DataSourceLocation::fromLocalPath(path);
    if (how == u"literal")
        return !ozm::test::literalFormats(path).isEmpty();
    if (how == u"nearest")
        return nearestFormat(path) != VendorDataFormat::Unknown;
    if (how == u"any")
        return hasDetectableFormat(location, false);
    return !detectFormats(location, how == u"name", false).isEmpty();
}

int makeLarge(const QString &which, int files, const QString &folder)
{
    const QString name = u"Run.d"_s;
    ozm::bench::make(folder, which == u"fid"   ? ozm::bench::largeFidFolder(name, files)
                             : which == u"tdf" ? ozm::bench::largeTdfFolder(name, files)
                                               : ozm::bench::largeAgilentFolder(name, files));
    print(folder + u'/' + name);
    return 0;
}

int run(const QStringList &arguments)
{
    const QString command = arguments.value(1);
    const auto layouts = ozm::bench::layouts();
    if (command == u"names") {
        for (std::size_t i = 0; i < layouts.size(); ++i)
            print(u"%1 %2"_s.arg(i).arg(QLatin1StringView(layouts[i].name)));
        return 0;
    }
    if (command == u"make") {
        const auto &layout = layouts.at(arguments.value(2).toUInt());
        ozm::bench::make(arguments.value(3), layout.entries);
        print(arguments.value(3) + u'/' + layout.path);
        return 0;
    }
    if (command == u"large")
        return makeLarge(arguments.value(2), arguments.value(3).toInt(), arguments.value(4));
    if (command != u"ask" || arguments.size() != 5)
        return 2;
    for (int i = arguments.at(3).toInt(); i > 0; --i)
        std::ignore = ask(arguments.at(2), arguments.at(4));
    return 0;
}

} // namespace

int main(int argc, char *argv[])
{
    QStringList arguments;
    for (int i = 0; i < argc; ++i)
        arguments.append(QString::fromLocal8Bit(argv[i]));
    return run(arguments);
}
