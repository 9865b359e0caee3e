// Records one movie with the engine, for tests that end a program in the middle of it.
//
//   moviemaker CAMERA PATH   records until its input ends, then says what the stop took in ms
//
// Says "recording" as soon as it does, and "ended" when the movie cannot go on.

#include "LiveVideoData.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QSocketNotifier>

#include <cstdio>
#include <unistd.h>

static const int patience = 30000; // ms

static void say(const char *word)
{
    std::printf("%s\n", word);
    std::fflush(stdout);
}

int main(int argc, char *argv[])
{
    const QApplication application(argc, argv);
    const QStringList arguments = QApplication::arguments();
    LiveVideoData engine;
    QElapsedTimer sinceFirstTry;
    sinceFirstTry.start();
    // As a person does on a slow machine: servers may not answer and the encoder may not be known
    // at the first press.
    while (!engine.created && sinceFirstTry.elapsed() < patience) {
        engine.SetVideoDevice(engine.GetVideoDeviceList().indexOf(arguments.value(1)));
        engine.Create();
    }
    QObject::connect(&engine, &LiveVideoData::recordend, &application, [] { say("ended"); });
    do
        engine.Record(arguments.value(2));
    while (!engine.IsRecording() && sinceFirstTry.elapsed() < patience);
    if (!engine.IsRecording()) {
        std::fprintf(stderr, "moviemaker: cannot record\n");
        return 1;
    }
    say("recording");
    QSocketNotifier input(STDIN_FILENO, QSocketNotifier::Read);
    QObject::connect(&input, &QSocketNotifier::activated, &application, &QApplication::quit);
    QApplication::exec();
    QElapsedTimer timer;
    timer.start();
    engine.RecordStop();
    std::printf("%lld\n", static_cast<long long>(timer.elapsed()));
    return 0;
}
