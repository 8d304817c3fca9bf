// The program in which an application has the scripts of its templates run. Nobody else starts it.

#include "ProcessLimits.h"
#include "ScriptServer.h"

#include <QCoreApplication>
#include <QThread>

#include <cstdio>

#ifdef Q_OS_WIN
#include <fcntl.h>
#include <io.h>
#endif

namespace {

void passBytesUnchanged()
{
#ifdef Q_OS_WIN
    _setmode(_fileno(stdin), _O_BINARY);
    _setmode(_fileno(stdout), _O_BINARY);
#endif
}

/// Reads beside the scripts, so that the process ends with its application even if a script does not.
[[noreturn]] void readRequests(ozm::ScriptServer *server)
{
    while (true) {
        QMetaObject::invokeMethod(
            server, [server, payload = ozm::readFrame()] { server->serve(payload); }, Qt::QueuedConnection);
    }
}

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() != 3 || arguments.at(1) != ozm::scriptprotocol::kMemoryOption) {
        std::fputs("This program runs the scripts of report templates for an application, which starts it.\n",
                   stderr);
        return 2;
    }
    passBytesUnchanged();
    qRegisterMetaType<ozm::WithheldValue>();
    ozm::ScriptServer server;
    QThread *reader = QThread::create(&readRequests, &server);
    reader->start();
    ozm::limitProcess(arguments.at(2).toULongLong());
    ozm::writeFrame(ozm::scriptprotocol::greeting());
    return QCoreApplication::exec();
}
