#include "Recording.h"

#include <QEventLoop>

#include <csignal>

namespace {

constexpr int patience = 30000; // ms; longer than any stop may take
constexpr int cycle = 100; // ms

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
    QTimer::singleShot(m_moment, Qt::PreciseTimer, &m_process, [this] {
        m_length = age();
        m_process.kill();
    });
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

bool Recording::stop()
{
    m_process.closeWriteChannel();
    QEventLoop loop; // the throttle goes on
    QObject::connect(&m_process, QOverload<int, QProcess::ExitStatus>::of(&QProcess::finished),
                     &loop, &QEventLoop::quit);
    QTimer::singleShot(patience, &loop, &QEventLoop::quit);
    if (isRunning())
        loop.exec();
    return m_process.state() == QProcess::NotRunning
        && m_process.exitStatus() == QProcess::NormalExit && m_process.exitCode() == 0;
}
