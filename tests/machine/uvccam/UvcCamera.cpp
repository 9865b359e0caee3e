#include "UvcCamera.h"

#include "FramePainter.h"
#include "LabPattern.h"
#include "UsbPort.h"

#include <QStringList>
#include <QTcpSocket>

#include <algorithm>
#include <utility>

using UsbIp::Reading;
using UsbIp::Request;

static UsbIp::Device announced(const UvcIdentity &identity)
{
    UsbIp::Device device;
    device.vendor = identity.vendor;
    device.product = identity.product;
    device.deviceClass = 0xef; // two interfaces belong together
    device.deviceSubclass = 2;
    device.deviceProtocol = 1;
    device.interfaces = QByteArray("\x0e\x01\x00\x0e\x02\x00", 6);
    return device;
}

UvcCamera::UvcCamera(const UvcIdentity &identity)
    : m_identity(identity)
    , m_ground(LabPattern::groundOf(identity.serial))
    , m_controls(identity)
{
    m_due.setSingleShot(true);
    m_due.setTimerType(Qt::PreciseTimer);
    connect(
        &m_due, &QTimer::timeout, this,
        [this] {
            m_stalls = false;
            sendFrames();
        });
    connect(&m_server, &QTcpServer::newConnection, this, [this] { greet(); });
}

UvcCamera::~UvcCamera()
{
    m_server.disconnect(this);
    detach();
}

bool UvcCamera::listen(quint16 port)
{
    if (!m_server.listen(QHostAddress::LocalHost, port))
        return false;
    say(QStringLiteral("listens %1").arg(m_server.serverPort()));
    return true;
}

void UvcCamera::say(const QString &what) const
{
    if (m_report)
        m_report(what);
}

void UvcCamera::greet()
{
    while (QTcpSocket *socket = m_server.nextPendingConnection()) {
        socket->setSocketOption(QAbstractSocket::LowDelayOption, 1);
        connect(socket, &QTcpSocket::readyRead, this, [this, socket] { read(socket); });
        connect(socket, &QTcpSocket::disconnected, this, [this, socket] {
            if (socket == m_kernel)
                detach();
            socket->deleteLater();
        });
        read(socket);
    }
}

void UvcCamera::read(QTcpSocket *socket)
{
    // What is left of the last request stays with the socket.
    QByteArray bytes = socket->property("bytes").toByteArray() + socket->readAll();
    Request request;
    Reading reading = Reading::Incomplete;
    while ((reading = UsbIp::takeRequest(&bytes, &request)) == Reading::Complete)
        handle(socket, request);
    socket->setProperty("bytes", bytes);
    if (reading == Reading::Broken)
        socket->abort();
}

void UvcCamera::handle(QTcpSocket *socket, const Request &request)
{
    if (request.kind == Request::Kind::List)
        socket->write(UsbIp::listReply(announced(m_identity)));
    else if (request.kind == Request::Kind::Import)
        import(socket, request.busId);
    else if (socket != m_kernel)
        socket->abort(); // it has not taken the camera
    else if (request.kind == Request::Kind::Submit)
        submit(request);
    else
        unlink(request);
}

void UvcCamera::import(QTcpSocket *socket, const QByteArray &busId)
{
    const QByteArray wanted = m_kernel ? QByteArray() : busId;
    socket->write(UsbIp::importReply(announced(m_identity), wanted));
    if (wanted != UsbIp::busId)
        return;
    m_kernel = socket;
    say(QStringLiteral("taken"));
}

void UvcCamera::submit(const Request &request)
{
    if (request.endpoint == 0 && m_isMute)
        m_unheard.append(request);
    else if (request.endpoint == 0)
        control(request);
    else if (request.endpoint == UvcDescriptors::streamEndpoint && request.isIn && !m_isHalted)
        m_video.append(request);
    else
        m_kernel->write(UsbIp::submitReply(request, UsbIp::stalled));
    if (request.endpoint != 0)
        sendFrames();
}

// Nothing may be sent for a number that was called back.
void UvcCamera::unlink(const Request &request)
{
    const auto removeFrom = [&request](QVector<Request> &waiting) {
        const auto calledBack =
            std::find_if(waiting.begin(), waiting.end(),
                         [&request](const Request &one) { return one.number == request.unlinked; });
        if (calledBack == waiting.end())
            return false;
        waiting.erase(calledBack);
        return true;
    };
    const bool found = removeFrom(m_video) || removeFrom(m_unheard);
    m_kernel->write(UsbIp::unlinkReply(request, found));
}

void UvcCamera::control(const Request &request)
{
    const UvcControls::Answer answer = m_controls.answer(request.setup, request.data);
    const int state = answer.isStalled ? UsbIp::stalled : UsbIp::fine;
    m_kernel->write(UsbIp::submitReply(request, state, answer.data));
    if (answer.commits || answer.halts)
        m_isHalted = false;
    if (answer.commits)
        beginStream();
    if (answer.halts)
        endStream();
}

void UvcCamera::beginStream()
{
    const UvcMode mode = m_controls.mode();
    m_jpeg = mode.isJpeg ? std::make_unique<JpegPainter>(mode.size, m_ground) : nullptr;
    m_payloads = UvcPayloads();
    m_clock.start();
    m_frame = -1;
    m_streams = true;
    say(QStringLiteral("streams %1 %2x%3 %4")
            .arg(mode.isJpeg ? "MJPG" : "YUYV")
            .arg(mode.size.width())
            .arg(mode.size.height())
            .arg(mode.rate));
    sendFrames();
}

void UvcCamera::endStream()
{
    if (!m_streams)
        return;
    m_streams = false;
    say(QStringLiteral("rests"));
}

void UvcCamera::sendFrames()
{
    while (m_streams && !m_stalls && !m_video.isEmpty()) {
        if (m_payloads.isDone() && !nextFrame())
            return;
        const Request request = m_video.takeFirst();
        const int bytes = std::min(request.length, int(UvcDescriptors::payloadBytes));
        m_kernel->write(UsbIp::submitReply(request, UsbIp::fine, m_payloads.next(bytes)));
    }
}

// False when it is not its time yet.
bool UvcCamera::nextFrame()
{
    const int rate = m_controls.mode().rate;
    const qint64 now = m_clock.elapsed() * rate / 1000;
    if (now == m_frame) {
        const qint64 due = ((m_frame + 1) * 1000 + rate - 1) / rate;
        m_due.start(int(std::max<qint64>(0, due - m_clock.elapsed())));
        return false;
    }
    m_frame = now;
    m_payloads.begin(painted(quint32(m_frame)));
    return true;
}

QByteArray UvcCamera::painted(quint32 counter)
{
    const UvcMode mode = m_controls.mode();
    if (m_empty > 0) {
        --m_empty;
        return QByteArray("\xff\xd8\xff\xd9");
    }
    QByteArray frame;
    if (m_jpeg) {
        frame = m_jpeg->paint(counter);
    } else {
        const FramePainter painter(FramePainter::YUY2, mode.size, m_ground);
        frame.resize(painter.frameBytes());
        painter.paint(reinterpret_cast<uchar *>(frame.data()), counter);
    }
    if (m_torn > 0) {
        --m_torn;
        frame.truncate(frame.size() / 2);
    }
    return frame;
}

bool UvcCamera::command(const QString &line)
{
    const QStringList words = line.split(' ', Qt::SkipEmptyParts);
    const QString what = words.value(0);
    const int amount = words.value(1).toInt();
    if (what == "torn") {
        m_torn = amount;
    } else if (what == "empty") {
        m_empty = amount;
    } else if (what == "stall") {
        m_due.stop();
        m_stalls = true;
        if (amount > 0)
            m_due.start(amount);
    } else if (what == "mute") {
        m_isMute = true;
    } else if (what == "halt") {
        m_isHalted = true;
        for (const Request &request : std::exchange(m_video, {}))
            m_kernel->write(UsbIp::submitReply(request, UsbIp::stalled));
    } else if (what == "go") {
        goOn();
    } else if (what == "attach") {
        attach(amount);
    } else if (what == "detach") {
        detach();
    } else {
        return false;
    }
    say(QStringLiteral("does ") + line);
    return true;
}

void UvcCamera::goOn()
{
    m_isMute = false;
    m_isHalted = false;
    m_torn = 0;
    m_empty = 0;
    m_stalls = false;
    for (const Request &request : std::exchange(m_unheard, {}))
        control(request);
    sendFrames();
}

void UvcCamera::attach(int port)
{
    auto *end = new UsbPort(port, m_server.serverPort());
    end->setParent(this);
    connect(end, &UsbPort::done, this, [this, end](const QString &problem) {
        say(problem.isEmpty() ? QStringLiteral("plugged") : problem);
        end->deleteLater();
    });
}

void UvcCamera::detach()
{
    QTcpSocket *kernel = std::exchange(m_kernel, nullptr);
    m_video.clear();
    m_unheard.clear();
    m_due.stop();
    m_stalls = false;
    m_streams = false;
    if (!kernel)
        return;
    kernel->disconnect(this);
    kernel->abort();
    kernel->deleteLater();
    say(QStringLiteral("free"));
}
