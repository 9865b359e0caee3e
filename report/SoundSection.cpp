#include "MicrophoneFinder.h"
#include "Report.h"
#include "Sections.h"
#include "SoundServer.h"

static void writeSources(Report &report, const SoundServer &server)
{
    QVector<ListedSource> microphones;
    for (const ListedSource &source : server.sources()) {
        report.redaction().add(source.serial);
        if (source.isMicrophone)
            microphones.append(source);
    }
    report.publicFact("sound server", server.serverName());
    report.number("microphones", microphones.size());
    int number = 0;
    for (const ListedSource &source : microphones) {
        report.fact(QStringLiteral("microphone %1").arg(++number), source.description);
        report.publicFact(
            "sound", QStringLiteral("%1 Hz, %2 channels").arg(source.rate).arg(source.channels), 1);
        report.answer("movies listen to it", source.name == server.microphone(), 1);
    }
}

void Sections::writeMicrophones(Report &report, std::chrono::steady_clock::time_point deadline)
{
    report.beginSection("Microphones");
    MicrophoneFinder::begin();
    MicrophoneFinder::waitUntil(deadline);
    const SoundServer &server = MicrophoneFinder::server();
    if (server.hasAnswered()) {
        writeSources(report, server);
        return;
    }
    if (server.isThere()) {
        report.unknown("sound server", "the microphones: no answer from the sound server");
        return;
    }
    report.publicFact("sound server", "none");
    report.answer("the sound card's own source can be opened", MicrophoneFinder([] {}).canBeUsed());
}
