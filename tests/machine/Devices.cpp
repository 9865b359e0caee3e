#include "Devices.h"

#include <QFile>
#include <QTest>

static const int toolLimit = 60000; // ms, of a slow machine
static const int leavingLimit = 60000; // ms, for programs to close a device

bool run(const QString &tool, const QStringList &arguments)
{
    QProcess process;
    process.setProcessChannelMode(QProcess::ForwardedChannels);
    process.start(tool, arguments);
    return process.waitForFinished(toolLimit) && process.exitStatus() == QProcess::NormalExit
        && process.exitCode() == 0;
}

// Until the manager of devices has told everybody.
static bool settle()
{
    return run(QStringLiteral("udevadm"), {"settle", "--timeout=60"});
}

Driver::Driver(QString name, const QStringList &parameters)
    : m_name(std::move(name))
    , m_loaded(run(QStringLiteral("modprobe"), QStringList{m_name} + parameters) && settle())
{
}

Driver::~Driver()
{
    if (m_loaded
        && !QTest::qWaitFor(
            [this] {
                return run(QStringLiteral("modprobe"), {"-r", m_name});
            },
            leavingLimit))
        qWarning("the driver %s is still used", qPrintable(m_name));
    settle();
}

bool Driver::write(const QString &path, const QByteArray &text)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Unbuffered) || file.write(text) != text.size())
        return false;
    return settle();
}

static QStringList parametersOf(const QList<TestCameras::Kind> &kinds)
{
    QStringList nodes;
    QStringList inputs;
    QStringList types;
    for (const TestCameras::Kind kind : kinds) {
        nodes.append(QStringLiteral("0x1"));
        inputs.append(QStringLiteral("1"));
        types.append(QString::number(int(kind)));
    }
    return {QStringLiteral("n_devs=%1").arg(kinds.size()), "node_types=" + nodes.join(','),
            "num_inputs=" + inputs.join(','), "input_types=" + types.join(',')};
}

TestCameras::TestCameras(const QList<Kind> &kinds)
    : Driver(QStringLiteral("vivid"), parametersOf(kinds))
{
}

TestCameras::TestCameras(uint nodes)
    : Driver(QStringLiteral("vivid"),
             {QStringLiteral("node_types=0x%1").arg(nodes, 0, 16), "num_inputs=1", "input_types=0"})
{
}

bool TestCameras::set(const QString &control, int value, int camera)
{
    return run(QStringLiteral("v4l2-ctl"),
               {"-d", node(camera), "-c", QStringLiteral("%1=%2").arg(control).arg(value)});
}

bool TestCameras::pullOut()
{
    return write(QStringLiteral("/sys/bus/platform/drivers/vivid/unbind"), "vivid.0");
}

bool TestCameras::plugIn()
{
    return write(QStringLiteral("/sys/bus/platform/drivers/vivid/bind"), "vivid.0");
}

static bool isHeld(const QString &sub)
{
    QFile status(QStringLiteral("/proc/asound/card0/%1/sub0/status").arg(sub));
    return status.open(QIODevice::ReadOnly) && !status.readAll().startsWith("closed");
}

LoopCard::LoopCard()
    : Driver(QStringLiteral("snd-aloop"), {"pcm_substreams=1"})
{
}

// A sound server holds it as long as it is there.
LoopCard::~LoopCard()
{
    if (isLoaded() && pullOut())
        m_puller.waitForFinished(leavingLimit);
    fallSilent();
}

bool LoopCard::play(const QString &format, int rate, int channels)
{
    fallSilent();
    m_player.setStandardOutputFile(QProcess::nullDevice());
    // The tone of its own that the tool for trying loudspeakers has comes in any format. With a
    // buffer that takes more than its turn of a loudspeaker it would wait for silence after each.
    m_player.start(QStringLiteral("speaker-test"),
                   {"-D", "hw:0,1", "-t", "sine", "-f", "1000", "-l", "0", "-b", "1000000", "-p",
                    "100000", "-F", format, "-r", QString::number(rate), "-c",
                    QString::number(channels)});
    return m_player.waitForStarted(toolLimit)
        && QTest::qWaitFor([] { return isHeld(QStringLiteral("pcm1p")); }, toolLimit);
}

void LoopCard::fallSilent()
{
    m_player.kill();
    m_player.waitForFinished(toolLimit);
}

// The driver lets the card go only when nobody has it open any more, and who waits for that cannot
// be interrupted.
bool LoopCard::pullOut()
{
    fallSilent();
    m_puller.start(QStringLiteral("sh"),
                   {"-c", "echo snd_aloop.0 >/sys/bus/platform/drivers/snd_aloop/unbind"});
    return QTest::qWaitFor([] { return !QFile::exists("/proc/asound/card0"); }, toolLimit)
        && settle();
}

bool LoopCard::plugIn()
{
    return QTest::qWaitFor([this] { return m_puller.state() == QProcess::NotRunning; },
                           leavingLimit)
        && write(QStringLiteral("/sys/bus/platform/drivers/snd_aloop/bind"), "snd_aloop.0");
}

std::unique_ptr<OtherProgram> OtherProgram::streaming(const QString &node)
{
    std::unique_ptr<OtherProgram> other(new OtherProgram);
    other->m_process.setProcessChannelMode(QProcess::MergedChannels);
    other->m_process.start(QStringLiteral("v4l2-ctl"),
                           {"-d", node, "--stream-mmap", "--stream-to=/dev/null"});
    // It writes a letter for each frame.
    const bool streams =
        QTest::qWaitFor([&] { return other->m_process.bytesAvailable() > 3; }, toolLimit);
    return streams && other->m_process.state() == QProcess::Running ? std::move(other) : nullptr;
}

std::unique_ptr<OtherProgram> OtherProgram::listening()
{
    std::unique_ptr<OtherProgram> other(new OtherProgram);
    other->m_process.start(
        QStringLiteral("arecord"),
        {"-q", "-D", "hw:0,0", "-f", "S16_LE", "-c", "2", "-r", "48000", "-t", "raw", "/dev/null"});
    const bool holds = QTest::qWaitFor([] { return isHeld(QStringLiteral("pcm0c")); }, toolLimit);
    return holds ? std::move(other) : nullptr;
}

OtherProgram::~OtherProgram()
{
    m_process.kill();
    m_process.waitForFinished(toolLimit);
}
