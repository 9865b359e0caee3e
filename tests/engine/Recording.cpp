#include "Recording.h"

#include <QEventLoop>
#include <QFile>
#include <QtEndian>

#include <csignal>

namespace {

constexpr int patience = 30000; // ms
// ms; the engine may wait for 15 s when it ends, and a program that gets one fiftieth of a
// processor takes long for all else that an end is.
constexpr int endPatience = 120000;
constexpr int cycle = 100; // ms
constexpr int retry = 50; // ms

} // namespace

Recording::Recording(const QString &camera, const QString &path, const QStringList &launcher)
    : m_path(path)
{
    QObject::connect(&m_process, &QProcess::readyReadStandardOutput, &m_process,
                     [this] { read(); });
    m_process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    const QStringList command = launcher + QStringList{QStringLiteral(MOVIEMAKER), camera, path};
    m_process.start(command.first(), command.mid(1));
    m_cycle.setTimerType(Qt::PreciseTimer);
    m_pause.setTimerType(Qt::PreciseTimer);
    m_pause.setSingleShot(true);
    QObject::connect(
        &m_cycle, &QTimer::timeout, &m_process,
        [this] {
            goOn();
            m_pause.start(cycle * m_percent / 100);
        });
    QObject::connect(&m_pause, &QTimer::timeout, &m_process, [this] { halt(); });
}

Recording::~Recording()
{
    m_process.kill();
    m_process.waitForFinished();
}

void Recording::read()
{
    m_said += m_process.readAllStandardOutput();
    if (!m_begun && m_said.startsWith("recording"))
        begin();
}

void Recording::begin()
{
    m_begun = true;
    m_timer.start();
    if (m_moment <= 0)
        return;
    QTimer::singleShot(m_moment, Qt::PreciseTimer, &m_process, [this] { killWhenIndexed(); });
}

// The index stands at the beginning of the file. Before there is anything in it, its first table of
// sizes (of a version, one size for all, and a count) is empty.
bool Recording::hasIndex() const
{
    QFile file(m_path);
    if (!file.open(QIODevice::ReadOnly))
        return false;
    const QByteArray begin = file.read(1 << 16);
    const int table = begin.indexOf("stsz");
    return table >= 0 && table + 16 <= begin.size()
        && qFromBigEndian<quint32>(begin.constData() + table + 12) > 0;
}

void Recording::killWhenIndexed()
{
    if (!hasIndex() && age() * 1000 < patience) {
        QTimer::singleShot(retry, Qt::PreciseTimer, &m_process, [this] { killWhenIndexed(); });
        return;
    }
    m_length = age();
    m_process.kill();
}

void Recording::throttle(int percent)
{
    m_percent = percent;
    m_cycle.start(cycle);
}

void Recording::halt()
{
    if (isRunning())
        ::kill(pid_t(m_process.processId()), SIGSTOP);
}

void Recording::goOn()
{
    if (isRunning())
        ::kill(pid_t(m_process.processId()), SIGCONT);
}

void Recording::end()
{
    m_process.closeWriteChannel();
}

bool Recording::stop()
{
    end();
    QEventLoop loop; // the throttle goes on
    QObject::connect(&m_process, QOverload<int, QProcess::ExitStatus>::of(&QProcess::finished),
                     &loop, &QEventLoop::quit);
    QTimer::singleShot(endPatience, &loop, &QEventLoop::quit);
    if (isRunning())
        loop.exec();
    return m_process.state() == QProcess::NotRunning
        && m_process.exitStatus() == QProcess::NormalExit && m_process.exitCode() == 0;
}
