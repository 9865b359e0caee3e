#include "UsbIp.h"

#include <QDataStream>

namespace UsbIp {

// Of the two kinds of message: operations begin with the protocol's version, transfers with zero.
static constexpr quint16 version = 0x0111;
static constexpr quint16 listCode = 0x8005;
static constexpr quint16 importCode = 0x8003;
static constexpr quint16 listAnswer = 0x0005;
static constexpr quint16 importAnswer = 0x0003;
static constexpr quint32 submitCommand = 1;
static constexpr quint32 unlinkCommand = 2;
static constexpr quint32 submitAnswer = 3;
static constexpr quint32 unlinkAnswer = 4;

static constexpr int operationBytes = 8;
static constexpr int commandBytes = 48;
static constexpr int busIdBytes = 32;
static constexpr int pathBytes = 256;
static constexpr int setupBytes = 8;
static constexpr quint32 largestTransfer = 1 << 24; // bytes; none of a camera's comes near
static constexpr quint32 noPackets = 0xffffffff; // what newer kernels say where others say 0

static Reading takeOperation(QByteArray *stream, Request *request)
{
    QDataStream bytes(*stream);
    quint16 spoken = 0;
    quint16 code = 0;
    bytes >> spoken >> code;
    if (code == listCode) {
        request->kind = Request::Kind::List;
        stream->remove(0, operationBytes);
        return Reading::Complete;
    }
    if (code != importCode)
        return Reading::Broken;
    if (stream->size() < operationBytes + busIdBytes)
        return Reading::Incomplete;
    request->kind = Request::Kind::Import;
    request->busId = stream->mid(operationBytes, busIdBytes);
    request->busId.truncate(int(qstrnlen(request->busId.constData(), busIdBytes)));
    stream->remove(0, operationBytes + busIdBytes);
    return Reading::Complete;
}

static Reading takeSubmit(QDataStream &bytes, QByteArray *stream, Request *request)
{
    quint32 direction = 0;
    quint32 endpoint = 0;
    quint32 flags = 0;
    quint32 length = 0;
    quint32 startFrame = 0;
    quint32 packets = 0;
    bytes >> direction >> endpoint >> flags >> length >> startFrame >> packets;
    if (direction > 1 || endpoint > 15 || length > largestTransfer
        || (packets != 0 && packets != noPackets))
        return Reading::Broken;
    request->kind = Request::Kind::Submit;
    request->isIn = direction == 1;
    request->endpoint = int(endpoint);
    request->length = int(length);
    const int sent = request->isIn ? 0 : request->length;
    if (stream->size() < commandBytes + sent)
        return Reading::Incomplete;
    request->setup = stream->mid(commandBytes - setupBytes, setupBytes);
    request->data = stream->mid(commandBytes, sent);
    stream->remove(0, commandBytes + sent);
    return Reading::Complete;
}

static Reading takeCommand(QByteArray *stream, Request *request)
{
    if (stream->size() < commandBytes)
        return Reading::Incomplete;
    QDataStream bytes(*stream);
    quint32 command = 0;
    quint32 device = 0;
    bytes >> command >> request->number >> device;
    if (command == submitCommand)
        return takeSubmit(bytes, stream, request);
    if (command != unlinkCommand)
        return Reading::Broken;
    quint32 direction = 0;
    quint32 endpoint = 0;
    bytes >> direction >> endpoint >> request->unlinked;
    request->kind = Request::Kind::Unlink;
    stream->remove(0, commandBytes);
    return Reading::Complete;
}

Reading takeRequest(QByteArray *stream, Request *request)
{
    if (stream->size() < operationBytes)
        return Reading::Incomplete;
    *request = {};
    quint16 first = 0;
    QDataStream(*stream) >> first;
    if (first == version)
        return takeOperation(stream, request);
    return first == 0 ? takeCommand(stream, request) : Reading::Broken;
}

static QByteArray padded(const QByteArray &text, int size)
{
    return text.leftJustified(size, '\0', true);
}

static void describe(QDataStream &out, const Device &device)
{
    const QByteArray path = padded(QByteArray("/sys/devices/classroom/") + busId, pathBytes)
        + padded(busId, busIdBytes);
    out.writeRawData(path.constData(), path.size());
    out << (deviceId >> 16) << (deviceId & 0xffff) << quint32(highSpeed);
    out << device.vendor << device.product << quint16(0x0100);
    out << device.deviceClass << device.deviceSubclass << device.deviceProtocol;
    // The configuration that is set, how many there are, and its interfaces.
    out << quint8(1) << quint8(1) << quint8(device.interfaces.size() / 3);
}

QByteArray listReply(const Device &device)
{
    QByteArray reply;
    QDataStream out(&reply, QIODevice::WriteOnly);
    out << version << listAnswer << quint32(0) << quint32(1);
    describe(out, device);
    for (int i = 0; i + 2 < device.interfaces.size(); i += 3) {
        out.writeRawData(device.interfaces.constData() + i, 3);
        out << quint8(0);
    }
    return reply;
}

QByteArray importReply(const Device &device, const QByteArray &wanted)
{
    QByteArray reply;
    QDataStream out(&reply, QIODevice::WriteOnly);
    const bool isOurs = wanted == busId;
    out << version << importAnswer << quint32(isOurs ? 0 : 1);
    if (isOurs)
        describe(out, device);
    return reply;
}

QByteArray importRequest(const QByteArray &wanted)
{
    QByteArray request;
    QDataStream(&request, QIODevice::WriteOnly) << version << importCode << quint32(0);
    return request + padded(wanted, busIdBytes);
}

bool isRefusal(const QByteArray &answer)
{
    return answer.size() == operationBytes && answer.mid(4) != QByteArray(4, '\0');
}

// Device, direction and endpoint are the kernel's to remember.
static QByteArray answer(quint32 command, quint32 number, int state, int length)
{
    QByteArray reply;
    QDataStream out(&reply, QIODevice::WriteOnly);
    out << command << number << quint32(0) << quint32(0) << quint32(0) << qint32(state) << length;
    return padded(reply, commandBytes);
}

QByteArray submitReply(const Request &request, int state, const QByteArray &data)
{
    const QByteArray sent = request.isIn ? data.left(request.length) : QByteArray();
    const int taken = state == fine ? request.data.size() : 0;
    const int length = request.isIn ? sent.size() : taken;
    return answer(submitAnswer, request.number, state, length) + sent;
}

QByteArray unlinkReply(const Request &request, bool found)
{
    return answer(unlinkAnswer, request.number, found ? calledBack : fine, 0);
}

} // namespace UsbIp
