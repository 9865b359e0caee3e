#include "Program.h"

#include <QDate>
#include <QDir>
#include <QFile>
#include <QSettings>

#include <unistd.h>

Program::Program(const QString &executable)
    : m_executable(executable)
    , m_environment(QProcessEnvironment::systemEnvironment())
{
    QDir(m_folder.path()).mkdir("home");
    QDir(m_folder.path()).mkdir("tmp");
    m_environment.insert("HOME", home());
    m_environment.insert("TMPDIR", temporaryFolder());
    m_process.setProcessChannelMode(QProcess::MergedChannels);
}

Program::~Program()
{
    // One that is killed cannot say which of its lines it has reached.
    if (isRunning() && qEnvironmentVariableIsSet("ORVANTA_LAB_COUNTS")) {
        m_process.terminate();
        m_process.waitForFinished(5000);
    }
    if (isRunning())
        kill();
}

void Program::setEnvironment(const QString &name, const QString &value)
{
    m_environment.insert(name, value);
}

void Program::setLanguage(const QString &code)
{
    const QString folder = home() + "/.config";
    m_environment.insert("XDG_CONFIG_HOME", folder);
    QSettings whiteboard(folder + "/MerovexSolutions/Tavelin Software.conf",
                         QSettings::NativeFormat);
    whiteboard.setValue("locale", code);
}

void Program::start()
{
    m_process.setProcessEnvironment(m_environment);
    m_process.setWorkingDirectory(home());
    m_process.start(m_executable, QStringList());
    m_process.waitForStarted(5000);
}

void Program::kill()
{
    m_process.kill();
    m_process.waitForFinished(5000);
}

bool Program::isRunning() const
{
    return m_process.state() != QProcess::NotRunning;
}

bool Program::hasEndedWithin(int milliseconds)
{
    return !isRunning() || m_process.waitForFinished(milliseconds);
}

QString Program::temporaryArea() const
{
    return temporaryFolder() + "/TavelinCamera_" + QString::number(geteuid());
}

QStringList Program::captured() const
{
    return QDir(temporaryArea()).entryList(QDir::Files | QDir::Hidden, QDir::Time | QDir::Reversed);
}

QByteArray Program::handedOver() const
{
    const QDir folder(temporaryArea() + "/tmp");
    QFile file(folder.filePath(
        folder.entryList({"PUTTVS*"}, QDir::Files, QDir::Name | QDir::Reversed).value(0)));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

bool Program::writeSettings(const QByteArray &lines) const
{
    QFile file(settingsFile());
    return file.open(QIODevice::WriteOnly) && file.write("[General]\n" + lines) > 0;
}

QString Program::saveFolder() const
{
    return home() + "/TavelinCamera/" + QDate::currentDate().toString("yyyyMMdd");
}
