#include "ProcessorShare.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QTimer>

#include <sys/resource.h>
#include <unistd.h>

static double programSeconds()
{
    rusage usage = {};
    getrusage(RUSAGE_SELF, &usage);
    return double(usage.ru_utime.tv_sec + usage.ru_stime.tv_sec)
        + double(usage.ru_utime.tv_usec + usage.ru_stime.tv_usec) / 1e6;
}

// Counted by the system in hundredths of a second.
static double serverSeconds()
{
    QFile number(qEnvironmentVariable("ORVANTA_LAB") + "/run/servers/Xvfb.pid");
    if (!number.open(QFile::ReadOnly))
        return 0;
    QFile state(QStringLiteral("/proc/%1/stat").arg(number.readAll().trimmed().toInt()));
    if (!state.open(QFile::ReadOnly))
        return 0;
    // Behind the name, which may have blanks.
    const QList<QByteArray> fields = state.readAll().split(')').last().split(' ');
    return (fields.value(12).toDouble() + fields.value(13).toDouble())
        / double(sysconf(_SC_CLK_TCK));
}

ProcessorShare shareOver(int seconds, const std::function<int()> &frames)
{
    const auto used = [&frames] {
        return ProcessorShare{programSeconds(), serverSeconds(), double(frames ? frames() : 0)};
    };
    ProcessorShare before = {};
    QElapsedTimer timer;
    QTimer::singleShot(settleTime, qApp, [&] {
        before = used();
        timer.start();
    });
    QTimer::singleShot(settleTime + seconds * 1000, qApp, &QCoreApplication::quit);
    QCoreApplication::exec();
    const ProcessorShare after = used();
    const double passed = double(timer.nsecsElapsed()) / 1e9;
    return {(after.program - before.program) / passed, (after.server - before.server) / passed,
            (after.rate - before.rate) / passed};
}
