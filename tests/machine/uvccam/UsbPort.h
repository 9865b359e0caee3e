#ifndef USBPORT_H
#define USBPORT_H

#include <QByteArray>
#include <QObject>

class QTcpSocket;

/**
 * The other end of the cable: takes a camera from the server that has it, as any kernel would, and
 * hands the connection to the kernel of this machine, as if it was plugged into one of its ports.
 * That takes the driver vhci-hcd and the rights to use it. One thread, whose event loop must run.
 */
class UsbPort : public QObject {
    Q_OBJECT

public:
    /// @p number of the kernel's port, from 0 to 7.
    UsbPort(int number, quint16 cameraPort);
    ~UsbPort() override;

Q_SIGNALS:
    /// Once; @p problem is empty when the kernel has the camera.
    void done(const QString &problem);

private:
    void read();
    QString handOver();

    const int m_number;
    QTcpSocket *m_socket;
    QByteArray m_answer;
};

#endif
