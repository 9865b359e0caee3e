#ifndef USBIP_H
#define USBIP_H

#include <QByteArray>

/**
 * USB/IP, the protocol in which a kernel speaks with USB devices that are elsewhere, as plain
 * functions from bytes to bytes. First one side asks for the list of devices or takes one; from
 * then on the same connection carries its transfers.
 */
namespace UsbIp {

/// What the kernel's side has sent.
struct Request {
    enum class Kind { List, Import, Submit, Unlink };

    Kind kind = Kind::List;
    QByteArray busId; ///< Import: which device
    quint32 number = 0; ///< Submit, Unlink: by which the answer refers to it
    quint32 unlinked = 0; ///< Unlink: the number of the transfer that is called back
    bool isIn = false; ///< Submit: bytes go to the kernel
    int endpoint = 0; ///< Submit: without the direction
    int length = 0; ///< Submit: bytes that an answer may have
    QByteArray setup; ///< Submit to endpoint 0: the eight bytes of a control request
    QByteArray data; ///< Submit, not in: what the kernel sends
};

enum class Reading {
    Complete, ///< a request was taken off the stream
    Incomplete, ///< more bytes have to come first
    Broken ///< not the protocol, or a transfer that no device of ours has
};

/// The device as it is announced, on the bus "1-1" at high speed.
struct Device {
    quint16 vendor = 0;
    quint16 product = 0;
    quint8 deviceClass = 0;
    quint8 deviceSubclass = 0;
    quint8 deviceProtocol = 0;
    QByteArray interfaces; ///< class, subclass and protocol of each
};

static constexpr char busId[] = "1-1";
static constexpr quint32 deviceId = 1 << 16 | 1; ///< number of the bus, and of the device on it
static constexpr int highSpeed = 3; ///< as the kernel counts speeds

/// A transfer's state, as the kernel's negative error numbers.
static constexpr int fine = 0;
static constexpr int stalled = -32; ///< EPIPE
static constexpr int calledBack = -104; ///< ECONNRESET

/// Takes the first request off @p stream, which stays as it is unless one is complete.
Reading takeRequest(QByteArray *stream, Request *request);

QByteArray listReply(const Device &device);
/// The refusal when @p wanted is not our bus.
QByteArray importReply(const Device &device, const QByteArray &wanted);
/// The request that importReply() answers, its length when it is granted, and whether it was not.
QByteArray importRequest(const QByteArray &wanted);
static constexpr int importBytes = 320;
bool isRefusal(const QByteArray &answer);
/// @p data is what goes to the kernel, no longer than it asked for. A transfer to the device has
/// taken all that was sent, unless it is @p state that is wrong.
QByteArray submitReply(const Request &request, int state, const QByteArray &data = {});
/// @p found: the transfer had no answer yet, and will get none.
QByteArray unlinkReply(const Request &request, bool found);

} // namespace UsbIp

#endif
