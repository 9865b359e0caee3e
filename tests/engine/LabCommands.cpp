#include "LabCommands.h"

#include <QEventLoop>
#include <QProcess>

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
