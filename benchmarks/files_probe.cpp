// For dialog_syscalls.sh: opens a dialog on a folder as often as it is told to.

#include "files_opening.h"

#include <QApplication>

#include <cstdio>

int main(int argc, char **argv)
{
    const QApplication application(argc, argv);
    const QStringList arguments = QApplication::arguments();
    if (arguments.value(1) == QLatin1String("make")) {
        makeAcquisitions(arguments.value(2), arguments.value(3).toInt());
        return 0;
    }
    if (arguments.size() != 4) {
        std::fputs("files_probe make <folder> <count> | spectrum|plain <folder> <times>\n", stderr);
        return 2;
    }
    for (int i = 0; i < arguments.at(3).toInt(); ++i)
        if (arguments.at(1) == QLatin1String("spectrum"))
            openedOn<SpectrumFileDialog>(arguments.at(2));
        else
            openedOn<PlainFileDialog>(arguments.at(2));
    return 0;
}
