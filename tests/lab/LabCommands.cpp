#include "LabCommands.h"

#include <QEventLoop>
#include <QFile>
#include <QProcess>

#include <csignal>

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

bool wantTexts(int dpi)
{
    QProcess resources;
    resources.start(QStringLiteral("xrdb"), {QStringLiteral("-merge")});
    resources.write("Xft.dpi: " + QByteArray::number(dpi) + '\n');
    resources.closeWriteChannel();
    return resources.waitForFinished() && resources.exitStatus() == QProcess::NormalExit
        && resources.exitCode() == 0;
}

qint64 labServer(const QByteArray &name)
{
    QFile file(QFile::decodeName(qgetenv("ORVANTA_LAB") + "/run/servers/" + name + ".pid"));
    return file.open(QIODevice::ReadOnly) ? file.readAll().trimmed().toLongLong() : 0;
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
