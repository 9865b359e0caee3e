#include "LabCommands.h"

#include <QDir>
#include <QEventLoop>
#include <QFile>
#include <QProcess>

#include <csignal>

static QByteArray contentsOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

bool labctl(const QStringList &arguments)
{
    QProcess process;
    process.setProcessChannelMode(QProcess::ForwardedChannels);
    QEventLoop loop;
    QObject::connect(&process, QOverload<int, QProcess::ExitStatus>::of(&QProcess::finished), &loop,
                     &QEventLoop::quit);
    process.start(QStringLiteral("labctl"), arguments);
    if (!process.waitForStarted(2000))
        return false;
    if (process.state() == QProcess::Running)
        loop.exec();
    return process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0;
}

// It was started with the lab's environment.
qint64 labServer(const QByteArray &name)
{
    const QByteArray mark = "ORVANTA_LAB=" + qgetenv("ORVANTA_LAB") + '\0';
    const QStringList processes = QDir(QStringLiteral("/proc")).entryList(QDir::Dirs);
    for (const QString &process : processes) {
        const QString folder = QStringLiteral("/proc/%1/").arg(process);
        if (process.toLongLong() > 0 && contentsOf(folder + "comm").trimmed() == name
            && contentsOf(folder + "environ").contains(mark))
            return process.toLongLong();
    }
    return 0;
}

StoppedServer::StoppedServer(const QByteArray &name)
    : m_process(labServer(name))
    , m_isStopped(m_process > 0 && ::kill(pid_t(m_process), SIGSTOP) == 0)
{
}

StoppedServer::~StoppedServer()
{
    if (m_isStopped)
        ::kill(pid_t(m_process), SIGCONT);
}
