#include "GstHandles.h"
#include "Report.h"
#include "Sections.h"

#include <QSysInfo>
#include <QThread>

#include <sys/sysinfo.h>

static constexpr quint64 megabyte = 1048576; // bytes

static int memory() // MB
{
    struct sysinfo machine = {};
    return sysinfo(&machine) == 0 ? int(quint64(machine.totalram) * machine.mem_unit / megabyte)
                                  : 0;
}

static QString gstreamerVersion()
{
    guint major = 0;
    guint minor = 0;
    guint micro = 0;
    guint nano = 0;
    gst_version(&major, &minor, &micro, &nano);
    return QStringLiteral("%1.%2.%3").arg(major).arg(minor).arg(micro);
}

// The plug-in comes from the same sources as the media server, and has its version.
static QString pipewireVersion()
{
    const GstObjectHandle<GstPlugin> plugin(
        gst_registry_find_plugin(gst_registry_get(), "pipewire"));
    return plugin ? QString::fromUtf8(gst_plugin_get_version(plugin.get()))
                  : QStringLiteral("no plug-in for it");
}

void Sections::writeVersions(Report &report, bool gstreamerRuns)
{
    report.beginSection("Versions");
    report.publicFact("program", ORVANTA_VERSION);
    report.publicFact("Qt", QStringLiteral("%1, built with %2").arg(qVersion(), QT_VERSION_STR));
    report.publicFact("GStreamer", gstreamerVersion());
    if (gstreamerRuns)
        report.publicFact("PipeWire", pipewireVersion());
    else
        report.unknown("PipeWire", "GStreamer does not start or lacks its core elements");
    report.publicFact("distribution", QSysInfo::prettyProductName());
    report.fact("kernel", QSysInfo::kernelType() + QLatin1Char(' ') + QSysInfo::kernelVersion());
    report.publicFact("architecture", QSysInfo::currentCpuArchitecture());
    report.number("processors", QThread::idealThreadCount());
    report.number("memory (MB)", memory());
}
