#include "ProcessorShare.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QTimer>

#include <sys/resource.h>

static double processorSeconds()
{
    rusage usage = {};
    getrusage(RUSAGE_SELF, &usage);
    return double(usage.ru_utime.tv_sec + usage.ru_stime.tv_sec)
        + double(usage.ru_utime.tv_usec + usage.ru_stime.tv_usec) / 1e6;
}

double shareOver(int seconds)
{
    double before = 0;
    QElapsedTimer timer;
    QTimer::singleShot(settleTime, qApp, [&] {
        before = processorSeconds();
        timer.start();
    });
    QTimer::singleShot(settleTime + seconds * 1000, qApp, &QCoreApplication::quit);
    QCoreApplication::exec();
    return (processorSeconds() - before) / (double(timer.nsecsElapsed()) / 1e9);
}
