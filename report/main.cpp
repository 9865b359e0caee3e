#include "BoundedTask.h"
#include "GstStart.h"
#include "MicrophoneFinder.h"
#include "Report.h"
#include "Sections.h"

#include <QCoreApplication>

#include <cstdio>
#include <cstring>
#include <unistd.h>

using std::chrono::seconds;
using std::chrono::steady_clock;

// Longer than the program itself waits: what comes late is worth to be known.
static constexpr seconds startLimit(60); // for GStreamer, which may have to index its plug-ins
static constexpr seconds serverLimit(6); // for each of the servers
static constexpr seconds encoderLimit(60); // for the trials, of which each may take long

static constexpr int wrongUse = 2; // exit status

static void writeDevices(Report &report)
{
    const auto deadline = steady_clock::now() + serverLimit;
    MicrophoneFinder::begin(); // so that all servers think at the same time
    const QVector<CameraHandle> cameras = Sections::findCameras(report, deadline);
    Sections::writeCameras(report, cameras);
    Sections::writeMicrophones(report, deadline);
    Sections::writeEncoders(report, cameras, steady_clock::now() + encoderLimit);
}

static bool writeReport()
{
    Report report(Redaction::ofThisUser());
    const BoundedTask starting(startGstreamer);
    const bool runs = starting.waitUntil(steady_clock::now() + startLimit).value_or(false);
    Sections::writeVersions(report, runs);
    Sections::writeDisplay(report, steady_clock::now() + serverLimit);
    if (runs)
        writeDevices(report);
    std::fputs(report.text().toUtf8().constData(), stdout);
    return report.isComplete();
}

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    if (argc > 1) {
        const bool asksHow = argc == 2 && std::strcmp(argv[1], "--help") == 0;
        std::fputs("Usage: orvanta-report\n"
                   "Writes what the camera program finds on this machine, for a bug report.\n",
                   asksHow ? stdout : stderr);
        return asksHow ? 0 : wrongUse;
    }
    const bool isComplete = writeReport();
    // Not by the way out of main: who hangs in a server or a driver would hold it up.
    std::fflush(stdout);
    _exit(isComplete ? 0 : 1);
}
