#ifndef UVCCAMERA_H
#define UVCCAMERA_H

#include "JpegPainter.h"
#include "UsbIp.h"
#include "UvcControls.h"
#include "UvcPayloads.h"

#include <QElapsedTimer>
#include <QObject>
#include <QTcpServer>
#include <QTimer>
#include <QVector>

#include <functional>
#include <memory>
#include <optional>

/**
 * A USB camera that is a program: a server that waits for a kernel to take it, answers its requests
 * and sends it the lab's test picture, a new frame at each turn of its mode's rate. Of a kernel
 * that is too slow it leaves frames out, so the frames' numbers tell the time.
 *
 * What cameras do when they are ill is brought about by command(). One thread.
 */
class UvcCamera : public QObject {
    Q_OBJECT

public:
    explicit UvcCamera(const UvcIdentity &identity);
    ~UvcCamera() override;

    /// Waits on this port of the machine's own address, 0 for any that is free; false when it is
    /// taken.
    bool listen(quint16 port);

    /// One of these; false when it is none:
    ///
    ///   torn N     the next N frames break off in the middle
    ///   empty N    the next N frames are a JPEG without a picture
    ///   stall MS   no frame for so long; without a time, until "go"
    ///   mute       no answer to control requests, until "go"
    ///   halt       the stream's endpoint fails, as by a loose contact, until it is set up anew
    ///   go         all is well again
    ///   attach N   plugged into port N of this machine's kernel, from 0 to 7
    ///   detach     as if the cable was pulled; it can be taken again
    bool command(const QString &line);

    /// Where it says what happens to it, a line each.
    void setReport(const std::function<void(const QString &)> &report) { m_report = report; }

private:
    void greet();
    void read(QTcpSocket *socket);
    void handle(QTcpSocket *socket, const UsbIp::Request &request);
    void import(QTcpSocket *socket, const QByteArray &busId);
    void submit(const UsbIp::Request &request);
    void unlink(const UsbIp::Request &request);
    void control(const UsbIp::Request &request);
    void beginStream();
    void endStream();
    void sendFrames();
    bool nextFrame();
    QByteArray painted(quint32 counter);
    void goOn();
    void attach(int port);
    void detach();
    void say(const QString &what) const;

    const UvcIdentity m_identity;
    const QRgb m_ground;
    UvcControls m_controls;
    QTcpServer m_server;
    QTcpSocket *m_kernel = nullptr; ///< the connection of whoever has taken the camera
    std::function<void(const QString &)> m_report;

    QVector<UsbIp::Request> m_video; ///< transfers that wait for a piece of a frame
    QVector<UsbIp::Request> m_unheard; ///< control requests while the camera is mute
    UvcPayloads m_payloads;
    std::unique_ptr<JpegPainter> m_jpeg; ///< of the mode that is streamed
    QElapsedTimer m_clock; ///< of the stream
    qint64 m_frame = -1; ///< number of the last frame that was begun
    QTimer m_due; ///< the next frame, or the end of a stall

    bool m_streams = false;
    bool m_stalls = false;
    bool m_isMute = false;
    bool m_isHalted = false;
    int m_torn = 0;
    int m_empty = 0;
};

#endif
