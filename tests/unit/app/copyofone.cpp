// Starts as the camera program does and says what came of it: ends with 0 when another copy took
// the message, otherwise prints "runs" and one line for each message that it gets, until its input
// ends. Argument: the time-out in ms.

#include "QtSingleApplication.h"

#include <QSocketNotifier>
#include <cstdio>

#include <unistd.h>

namespace {

void say(const QString &line)
{
    puts(qPrintable(line));
    fflush(stdout);
}

} // namespace

int main(int argc, char **argv)
{
    QtSingleApplication application("OrvantaTest", argc, argv);
    QObject::connect(&application, &QtSingleApplication::messageReceived,
                     [](const QString &message) { say("got " + message); });
    if (application.sendMessage("Wake up!", QString(argv[1]).toInt()))
        return 0;
    say(application.isRunning() ? "runs beside another" : "runs");

    QSocketNotifier input(STDIN_FILENO, QSocketNotifier::Read);
    QObject::connect(&input, &QSocketNotifier::activated, &application, &QApplication::quit);
    return QApplication::exec() + 1;
}
