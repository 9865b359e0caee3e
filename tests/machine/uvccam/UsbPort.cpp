#include "UsbPort.h"

#include "UsbIp.h"

#include <QFile>
#include <QHostAddress>
#include <QTcpSocket>

static const char kernelFile[] = "/sys/devices/platform/vhci_hcd.0/attach";

UsbPort::UsbPort(int number, quint16 cameraPort)
    : m_number(number)
    , m_socket(new QTcpSocket(this))
{
    connect(m_socket, &QTcpSocket::readyRead, this, &UsbPort::read);
    m_socket->connectToHost(QHostAddress::LocalHost, cameraPort);
    m_socket->write(UsbIp::importRequest(UsbIp::busId));
}

UsbPort::~UsbPort() = default;

void UsbPort::read()
{
    m_answer += m_socket->readAll();
    if (UsbIp::isRefusal(m_answer))
        Q_EMIT done(QStringLiteral("the camera has been taken"));
    else if (m_answer.size() == UsbIp::importBytes)
        Q_EMIT done(handOver());
}

// The camera says nothing until the kernel asks, so all that was to be read was read here. The
// kernel keeps the connection when this end of it is closed.
QString UsbPort::handOver()
{
    QFile file(kernelFile);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Unbuffered))
        return QStringLiteral("no kernel takes it: ") + file.errorString();
    const QByteArray order = QByteArray::number(m_number) + ' '
        + QByteArray::number(m_socket->socketDescriptor()) + ' '
        + QByteArray::number(UsbIp::deviceId) + ' ' + QByteArray::number(UsbIp::highSpeed);
    if (file.write(order) != order.size())
        return QStringLiteral("the port is taken: ") + file.errorString();
    return {};
}
