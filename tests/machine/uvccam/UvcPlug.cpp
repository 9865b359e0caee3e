#include "UvcPlug.h"

#include <QDir>
#include <QTest>

static const int startLimit = 60000; // ms, of a program in an emulated machine
static const int driverLimit = 60000; // ms, for the kernel's many requests to a camera that is new

UvcPlug::UvcPlug(const QString &serial, const QStringList &modes)
{
    QStringList arguments{"--port", "0", "--serial", serial};
    for (const QString &mode : modes)
        arguments << "--mode" << mode;
    m_process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    QObject::connect(&m_process, &QProcess::readyReadStandardOutput, &m_process, [this] {
        while (m_process.canReadLine())
            m_said += QString::fromUtf8(m_process.readLine()).trimmed();
    });
    m_process.start(UVCCAM_PROGRAM, arguments);
}

UvcPlug::~UvcPlug()
{
    pullOut();
    m_process.closeWriteChannel(); // it ends with its input
    if (!m_process.waitForFinished(startLimit))
        m_process.kill();
}

bool UvcPlug::plugIn(int port)
{
    m_port = port;
    return waitFor("listens ", startLimit) && command(QString("attach %1").arg(port))
        && says("plugged") && QTest::qWaitFor([this] { return nodes().size() == 2; }, driverLimit);
}

bool UvcPlug::pullOut()
{
    return nodes().isEmpty()
        || (command("detach")
            && QTest::qWaitFor([this] { return nodes().isEmpty(); }, driverLimit));
}

bool UvcPlug::command(const QString &line)
{
    // What it said before it was told is not about this; that it listens is said once.
    m_said = m_said.filter("listens ");
    m_process.write(line.toUtf8() + '\n');
    return waitFor("does " + line, startLimit);
}

bool UvcPlug::says(const QString &line)
{
    return waitFor(line, driverLimit);
}

bool UvcPlug::waitFor(const QString &line, int limit)
{
    const auto isSaid = [&] {
        return std::any_of(m_said.cbegin(), m_said.cend(),
                           [&](const QString &said) { return said.startsWith(line); });
    };
    const bool isThere = QTest::qWaitFor(isSaid, limit);
    if (!isThere)
        qWarning("the camera did not say \"%s\" but \"%s\"", qPrintable(line),
                 qPrintable(m_said.join("\", \"")));
    return isThere;
}

QStringList UvcPlug::nodes() const
{
    // The hub that serves cameras at high speed is the first of two; its ports count from one.
    const QString port = QString("-%1").arg(m_port + 1);
    const QDir hubs("/sys/devices/platform/vhci_hcd.0");
    for (const QString &hub : hubs.entryList({"usb*"}, QDir::Dirs)) {
        const QString device = hub.mid(3) + port;
        const QDir nodes(hubs.filePath(QString("%1/%2/%2:1.0/video4linux").arg(hub, device)));
        QStringList found = nodes.entryList({"video*"}, QDir::Dirs, QDir::Name);
        if (!found.isEmpty())
            return found;
    }
    return {};
}
