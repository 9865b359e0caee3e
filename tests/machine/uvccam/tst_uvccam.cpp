#include "JpegPainter.h"
#include "LabPattern.h"
#include "Patience.h"
#include "UsbIp.h"
#include "UvcCamera.h"
#include "UvcControls.h"
#include "UvcPayloads.h"

#include <QDataStream>
#include <QImage>
#include <QTcpSocket>
#include <QtEndian>

using UsbIp::Reading;
using UsbIp::Request;

static UvcIdentity documentCamera()
{
    UvcIdentity identity;
    identity.serial = "S42";
    for (const char *text : {"MJPG:1920x1080:30", "MJPG:640x480:30", "YUYV:1280x720:10"})
        identity.modes.append(uvcModeFromText(text));
    return identity;
}

static QByteArray operation(quint16 code, const QByteArray &rest = {})
{
    QByteArray bytes;
    QDataStream(&bytes, QIODevice::WriteOnly) << quint16(0x0111) << code << quint32(0);
    return bytes + rest;
}

// A transfer to or from the device; @p packets is not zero for one at a fixed pace.
static QByteArray submit(quint32 number, bool isIn, int endpoint, int length,
                         const QByteArray &setup = QByteArray(8, '\0'), const QByteArray &data = {},
                         quint32 packets = 0)
{
    QByteArray bytes;
    QDataStream(&bytes, QIODevice::WriteOnly)
        << quint32(1) << number << UsbIp::deviceId << quint32(isIn) << quint32(endpoint)
        << quint32(0) << quint32(length) << quint32(0) << packets << quint32(0);
    return bytes + setup + data;
}

static QByteArray unlinkOf(quint32 number, quint32 unlinked)
{
    QByteArray bytes;
    QDataStream(&bytes, QIODevice::WriteOnly)
        << quint32(2) << number << UsbIp::deviceId << quint32(0) << quint32(0) << unlinked;
    return bytes.leftJustified(48, '\0');
}

// What a control request asks: type, request, value, index, length.
static QByteArray setup(int type, int request, int value, int index, int length)
{
    QByteArray bytes;
    QDataStream out(&bytes, QIODevice::WriteOnly);
    out.setByteOrder(QDataStream::LittleEndian);
    out << quint8(type) << quint8(request) << quint16(value) << quint16(index) << quint16(length);
    return bytes;
}

static quint32 number32(const QByteArray &bytes, int at)
{
    return qFromLittleEndian<quint32>(bytes.constData() + at);
}

static quint16 number16(const QByteArray &bytes, int at)
{
    return qFromLittleEndian<quint16>(bytes.constData() + at);
}

static QByteArray wish(int format, int frame)
{
    QByteArray block(34, '\0');
    block[2] = char(format);
    block[3] = char(frame);
    return block;
}

namespace {

// The kernel's side of a connection.
class Kernel {
public:
    struct Reply {
        quint32 command = 0; // 3 for a transfer, 4 for one that was called back; 0: none came
        quint32 number = 0;
        qint32 state = 0;
        QByteArray data;
    };

    explicit Kernel(quint16 port) { m_socket.connectToHost(QHostAddress::LocalHost, port); }

    bool take()
    {
        send(UsbIp::importRequest(UsbIp::busId));
        QByteArray answer;
        const bool answered = QTest::qWaitFor(
            [&] {
                answer += m_socket.readAll();
                return answer.size() >= UsbIp::importBytes || UsbIp::isRefusal(answer);
            },
            20000);
        return answered && !UsbIp::isRefusal(answer);
    }

    void send(const QByteArray &bytes) { m_socket.write(bytes); }
    bool isConnected() const { return m_socket.state() == QAbstractSocket::ConnectedState; }
    bool hears(int limit)
    {
        return QTest::qWaitFor([this] { return m_socket.bytesAvailable() > 0; }, limit);
    }

    // All transfers here are inward.
    Reply reply()
    {
        constexpr int headBytes = 48;
        Reply reply;
        if (!QTest::qWaitFor([this] { return m_socket.bytesAvailable() >= headBytes; }, 20000))
            return reply;
        QDataStream head(m_socket.read(headBytes));
        quint32 unused = 0;
        qint32 length = 0;
        head >> reply.command >> reply.number >> unused >> unused >> unused >> reply.state
            >> length;
        if (!QTest::qWaitFor([&] { return m_socket.bytesAvailable() >= length; }, 20000))
            return {};
        reply.data = m_socket.read(length);
        return reply;
    }

    // Commits to the mode, with an answer that has no data.
    bool beginStream(int format, int frame)
    {
        // An outward transfer's length is what was taken: no data follows.
        send(submit(1, false, 0, 34, setup(0x21, 0x01, 0x0200, 1, 34), wish(format, frame)));
        constexpr int headBytes = 48;
        if (!QTest::qWaitFor([this] { return m_socket.bytesAvailable() >= headBytes; }, 20000))
            return false;
        m_socket.read(headBytes);
        return true;
    }

    // The bytes of the next frame; null when none came.
    QByteArray frame()
    {
        QByteArray whole("");
        while (true) {
            send(submit(++m_number, true, 1, 16384));
            const Reply piece = reply();
            if (piece.data.size() < 2)
                return {};
            whole += piece.data.mid(2);
            if ((piece.data[1] & 2) != 0)
                return whole;
        }
    }

private:
    QTcpSocket m_socket;
    quint32 m_number = 100;
};

} // namespace

// The camera as the kernel meets it, byte for byte.
class TestUvcCam : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void aRequestIsTakenOnceAllOfItHasCome();
    void whatIsNotTheProtocolIsRefused_data();
    void whatIsNotTheProtocolIsRefused();
    void theListNamesTheOneDevice();
    void anAnswerCarriesNoMoreThanWasAskedFor();

    void everyDescriptorHasItsLength();
    void theModesAreDescribedByTheirFormats();
    void theSerialNumberIsAText();
    void aModeIsAgreedOnInTwoSteps();
    void aWishThatCannotBeFulfilledGetsTheNearest();
    void brightnessIsKept();
    void whatTheCameraDoesNotKnowStalls_data();
    void whatTheCameraDoesNotKnowStalls();

    void piecesOfAFrameMakeItWhole();
    void anEmptyFrameIsOnePiece();
    void paintedPicturesShowTheirNumber_data();
    void paintedPicturesShowTheirNumber();

    void framesComeOneAfterTheOther();
    void aTornFrameIsCutOffAndTheNextIsWhole();
    void anEmptyFrameIsAJpegWithoutAPicture();
    void aStalledCameraGoesOnByItself();
    void aMuteCameraAnswersOnceItIsWellAgain();
    void aLooseContactFailsUntilTheStreamIsSetUpAnew();
    void ofWhatWasCalledBackNothingMoreIsHeard();
    void aPulledCableEndsTheConnectionAndCanBePluggedInAgain();

private:
    std::unique_ptr<UvcCamera> m_camera;
    quint16 m_port = 0;
};

void TestUvcCam::init()
{
    m_camera = std::make_unique<UvcCamera>(documentCamera());
    m_camera->setReport([this](const QString &line) {
        if (line.startsWith("listens "))
            m_port = line.mid(8).toUShort();
    });
    QVERIFY(m_camera->listen(0));
    QVERIFY(m_port > 0);
}

void TestUvcCam::cleanup()
{
    m_camera.reset();
}

void TestUvcCam::aRequestIsTakenOnceAllOfItHasCome()
{
    const QByteArray whole = submit(7, false, 0, 3, setup(0x21, 1, 2, 3, 4), "abc");
    Request request;
    for (int length = 0; length < whole.size(); ++length) {
        QByteArray part = whole.left(length);
        QCOMPARE(UsbIp::takeRequest(&part, &request), Reading::Incomplete);
        QCOMPARE(part.size(), length);
    }
    QByteArray more = whole + "next";
    QCOMPARE(UsbIp::takeRequest(&more, &request), Reading::Complete);
    QCOMPARE(more, QByteArray("next"));
    QCOMPARE(request.kind, Request::Kind::Submit);
    QCOMPARE(request.number, 7U);
    QVERIFY(!request.isIn);
    QCOMPARE(request.setup, setup(0x21, 1, 2, 3, 4));
    QCOMPARE(request.data, QByteArray("abc"));
}

void TestUvcCam::whatIsNotTheProtocolIsRefused_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("another program") << QByteArray("GET / HTTP/1.1\r\n\r\n");
    QTest::newRow("an unknown operation") << operation(0x8009);
    QTest::newRow("a transfer at a fixed pace") << submit(1, true, 1, 100, {8, '\0'}, {}, 4);
    QTest::newRow("a transfer without end") << submit(1, true, 1, 0x7fffffff);
    QTest::newRow("an endpoint that cannot be") << submit(1, true, 16, 100);
}

void TestUvcCam::whatIsNotTheProtocolIsRefused()
{
    QFETCH(QByteArray, bytes);
    bytes = bytes.leftJustified(48, '\0');
    Request request;
    QCOMPARE(UsbIp::takeRequest(&bytes, &request), Reading::Broken);
}

void TestUvcCam::theListNamesTheOneDevice()
{
    UsbIp::Device device;
    device.vendor = 0x1209;
    device.product = 0x0001;
    device.interfaces = QByteArray("\x0e\x01\x00\x0e\x02\x00", 6);
    const QByteArray list = UsbIp::listReply(device);
    QCOMPARE(list.size(), 12 + 312 + 2 * 4);
    QCOMPARE(list.mid(0, 12), QByteArray("\x01\x11\x00\x05\0\0\0\0\0\0\0\1", 12));
    QCOMPARE(list.mid(12 + 256, 4), QByteArray("1-1\0", 4));
    QCOMPARE(list.mid(12 + 300, 4), QByteArray("\x12\x09\x00\x01", 4));
    QCOMPARE(list.right(8), QByteArray("\x0e\x01\0\0\x0e\x02\0\0", 8));
    QCOMPARE(UsbIp::importReply(device, "1-1").size(), UsbIp::importBytes);
    QVERIFY(!UsbIp::isRefusal(UsbIp::importReply(device, "1-1")));
    QCOMPARE(UsbIp::importReply(device, "1-2"), QByteArray("\x01\x11\x00\x03\0\0\0\1", 8));
    QVERIFY(UsbIp::isRefusal(UsbIp::importReply(device, "1-2")));
    QByteArray wish = UsbIp::importRequest("1-2");
    QCOMPARE(wish, operation(0x8003, QByteArray("1-2").leftJustified(32, '\0')));
    Request request;
    QCOMPARE(UsbIp::takeRequest(&wish, &request), Reading::Complete);
    QCOMPARE(request.kind, Request::Kind::Import);
    QCOMPARE(request.busId, QByteArray("1-2"));
}

void TestUvcCam::anAnswerCarriesNoMoreThanWasAskedFor()
{
    Request request;
    request.kind = Request::Kind::Submit;
    request.number = 9;
    request.isIn = true;
    request.length = 2;
    const QByteArray reply = UsbIp::submitReply(request, UsbIp::fine, "abcd");
    QCOMPARE(reply.size(), 50);
    QCOMPARE(reply.left(8), QByteArray("\0\0\0\3\0\0\0\x09", 8));
    QCOMPARE(reply.mid(24, 4), QByteArray("\0\0\0\2", 4));
    QCOMPARE(reply.right(2), QByteArray("ab"));
    const QByteArray back = UsbIp::unlinkReply(request, true);
    QCOMPARE(back.size(), 48);
    QCOMPARE(back.mid(20, 4), QByteArray("\xff\xff\xff\x98", 4));
}

void TestUvcCam::everyDescriptorHasItsLength()
{
    const QByteArray all = UvcDescriptors::configuration(documentCamera());
    QCOMPARE(int(number16(all, 2)), all.size());
    int at = 0;
    int streamHead = 0;
    int endpoint = 0;
    while (at < all.size()) {
        QVERIFY(all[at] >= 2);
        if (all[at + 1] == 0x24 && all[at + 2] == 1)
            streamHead = at; // the second one is the stream's
        if (all[at + 1] == 5)
            endpoint = at;
        at += all[at];
    }
    QCOMPARE(at, all.size());
    // All of the class from the head of the stream to its endpoint.
    QCOMPARE(int(number16(all, streamHead + 4)), endpoint - streamHead);
    QCOMPARE(UvcDescriptors::device(documentCamera()).size(), 18);
}

void TestUvcCam::theModesAreDescribedByTheirFormats()
{
    const QVector<UvcMode> modes = documentCamera().modes;
    QCOMPARE(UvcDescriptors::formatCount(modes), 2);
    QCOMPARE(UvcDescriptors::framesOf(modes, 1).size(), 2);
    QCOMPARE(UvcDescriptors::framesOf(modes, 2).size(), 1);
    QCOMPARE(UvcDescriptors::framesOf(modes, 2).first().size, QSize(1280, 720));
    QVERIFY(UvcDescriptors::framesOf(modes, 0).isEmpty());
    QVERIFY(UvcDescriptors::framesOf(modes, 3).isEmpty());
    const QVector<UvcMode> raw{uvcModeFromText("YUYV:640x480:30")};
    QCOMPARE(UvcDescriptors::formatCount(raw), 1);
    QVERIFY(!UvcDescriptors::framesOf(raw, 1).first().isJpeg);
    for (const char *text : {"MJPG:640x480", "H264:640x480:30", "MJPG:0x480:30", "MJPG:640x480:0"})
        QVERIFY2(uvcModeFromText(text).size.isEmpty(), text);
}

void TestUvcCam::theSerialNumberIsAText()
{
    QCOMPARE(UvcDescriptors::text(documentCamera(), 3),
             QByteArray("\x08\x03S\0"
                        "4\0"
                        "2\0",
                        8));
    QCOMPARE(int(UvcDescriptors::device(documentCamera())[16]), 3);
    QVERIFY(UvcDescriptors::text(documentCamera(), 4).isEmpty());
}

void TestUvcCam::aModeIsAgreedOnInTwoSteps()
{
    UvcControls controls(documentCamera());
    const auto probed = controls.answer(setup(0x21, 0x01, 0x0100, 1, 34), wish(1, 2));
    QVERIFY(!probed.isStalled && !probed.commits);
    const QByteArray block = controls.answer(setup(0xa1, 0x81, 0x0100, 1, 34), {}).data;
    QCOMPARE(block.size(), 34);
    QCOMPARE(number32(block, 4), 333333U);
    QCOMPARE(number32(block, 18), 640U * 480 * 2);
    QCOMPARE(number32(block, 22), UvcDescriptors::payloadBytes);
    QCOMPARE(controls.mode().size, QSize(1920, 1080)); // not yet
    QVERIFY(controls.answer(setup(0x21, 0x01, 0x0200, 1, 34), block).commits);
    QCOMPARE(controls.mode().size, QSize(640, 480));
    QVERIFY(controls.answer(setup(0x02, 1, 0, 0x81, 0), {}).halts);
}

void TestUvcCam::aWishThatCannotBeFulfilledGetsTheNearest()
{
    UvcControls controls(documentCamera());
    controls.answer(setup(0x21, 0x01, 0x0200, 1, 34), wish(9, 9));
    QCOMPARE(controls.mode().size, QSize(1280, 720));
    QCOMPARE(controls.mode().rate, 10);
    controls.answer(setup(0x21, 0x01, 0x0200, 1, 34), wish(0, 0));
    QCOMPARE(controls.mode().size, QSize(1920, 1080));
}

void TestUvcCam::brightnessIsKept()
{
    UvcControls controls(documentCamera());
    const int unit = UvcDescriptors::processingUnit << 8;
    QVERIFY(
        !controls.answer(setup(0x21, 0x01, 0x0200, unit, 2), QByteArray("\x05\0", 2)).isStalled);
    QCOMPARE(controls.answer(setup(0xa1, 0x81, 0x0200, unit, 2), {}).data, QByteArray("\x05\0", 2));
    QCOMPARE(controls.answer(setup(0xa1, 0x83, 0x0200, unit, 2), {}).data, QByteArray("\xff\0", 2));
}

void TestUvcCam::whatTheCameraDoesNotKnowStalls_data()
{
    QTest::addColumn<QByteArray>("request");
    QTest::newRow("another kind of descriptor") << setup(0x80, 6, 0x0600, 0, 10);
    QTest::newRow("a text that is not there") << setup(0x80, 6, 0x0304, 0x0409, 255);
    QTest::newRow("the saturation") << setup(0xa1, 0x81, 0x0700, 0x0200, 2);
    QTest::newRow("a control of the lens") << setup(0xa1, 0x81, 0x0200, 0x0100, 2);
    QTest::newRow("another control of the stream") << setup(0xa1, 0x81, 0x0300, 1, 11);
    QTest::newRow("a setting of the stream") << setup(0x01, 11, 1, 1, 0);
    QTest::newRow("a request of the vendor") << setup(0xc0, 1, 0, 0, 8);
    QTest::newRow("half a request") << QByteArray(4, '\0');
}

void TestUvcCam::whatTheCameraDoesNotKnowStalls()
{
    QFETCH(QByteArray, request);
    UvcControls controls(documentCamera());
    QVERIFY(controls.answer(request, {}).isStalled);
}

void TestUvcCam::piecesOfAFrameMakeItWhole()
{
    const QByteArray frame = QByteArray("0123456789").repeated(7);
    UvcPayloads payloads;
    QVERIFY(payloads.isDone());
    for (const int parity : {0, 1, 0}) {
        payloads.begin(frame);
        QByteArray whole;
        while (!payloads.isDone()) {
            const QByteArray piece = payloads.next(16);
            QVERIFY(piece.size() <= 16);
            QCOMPARE(int(piece[0]), 2);
            QCOMPARE(piece[1] & 1, parity);
            whole += piece.mid(2);
            QCOMPARE((piece[1] & 2) != 0, payloads.isDone());
        }
        QCOMPARE(whole, frame);
    }
}

void TestUvcCam::anEmptyFrameIsOnePiece()
{
    UvcPayloads payloads;
    payloads.begin({});
    QVERIFY(!payloads.isDone());
    QCOMPARE(payloads.next(16), QByteArray("\x02\x82", 2));
    QVERIFY(payloads.isDone());
}

void TestUvcCam::paintedPicturesShowTheirNumber_data()
{
    QTest::addColumn<QSize>("size");
    QTest::newRow("full HD, with a stripe that is cut off") << QSize(1920, 1080);
    QTest::newRow("small") << QSize(640, 480);
    QTest::newRow("half") << QSize(1280, 720);
}

void TestUvcCam::paintedPicturesShowTheirNumber()
{
    QFETCH(QSize, size);
    const QRgb ground = LabPattern::groundOf("S42");
    const JpegPainter painter(size, ground);
    for (const quint32 counter : {0U, 1U, 60U, 0xfffffU, 12345U}) {
        const QImage picture = QImage::fromData(painter.paint(counter), "JPG");
        QCOMPARE(picture.size(), size);
        QCOMPARE(LabPattern::counterOf(picture), int(counter));
        QCOMPARE(LabPattern::isMarked(picture), counter % 60 == 0);
        QVERIFY(LabPattern::worstDifference(picture, ground) < 12);
    }
}

void TestUvcCam::framesComeOneAfterTheOther()
{
    Kernel kernel(m_port);
    QVERIFY(kernel.take());
    QVERIFY(kernel.beginStream(1, 2));
    int last = -1;
    for (int i = 0; i < 5; ++i) {
        const QImage picture = QImage::fromData(kernel.frame(), "JPG");
        QCOMPARE(picture.size(), QSize(640, 480));
        QVERIFY(LabPattern::counterOf(picture) > last);
        last = LabPattern::counterOf(picture);
    }
    QVERIFY(kernel.beginStream(2, 1));
    QCOMPARE(kernel.frame().size(), 1280 * 720 * 2);
}

void TestUvcCam::aTornFrameIsCutOffAndTheNextIsWhole()
{
    Kernel kernel(m_port);
    QVERIFY(kernel.take());
    QVERIFY(m_camera->command("torn 1"));
    QVERIFY(kernel.beginStream(1, 2));
    QVERIFY(!kernel.frame().endsWith("\xff\xd9"));
    QVERIFY(kernel.frame().endsWith("\xff\xd9"));
}

void TestUvcCam::anEmptyFrameIsAJpegWithoutAPicture()
{
    Kernel kernel(m_port);
    QVERIFY(kernel.take());
    QVERIFY(m_camera->command("empty 1"));
    QVERIFY(kernel.beginStream(1, 2));
    QCOMPARE(kernel.frame(), QByteArray("\xff\xd8\xff\xd9"));
    QVERIFY(!QImage::fromData(kernel.frame(), "JPG").isNull());
}

void TestUvcCam::aStalledCameraGoesOnByItself()
{
    Kernel kernel(m_port);
    QVERIFY(kernel.take());
    QVERIFY(kernel.beginStream(1, 2));
    const int before = LabPattern::counterOf(QImage::fromData(kernel.frame(), "JPG"));
    QVERIFY(m_camera->command("stall 700"));
    const int after = LabPattern::counterOf(QImage::fromData(kernel.frame(), "JPG"));
    QVERIFY2(after - before >= 15, qPrintable(QString::number(after - before)));
    QVERIFY(m_camera->command("stall"));
    kernel.send(submit(9, true, 1, 16384));
    QVERIFY(!kernel.hears(700));
    QVERIFY(m_camera->command("go"));
    QCOMPARE(kernel.reply().number, 9U);
}

void TestUvcCam::aMuteCameraAnswersOnceItIsWellAgain()
{
    Kernel kernel(m_port);
    QVERIFY(kernel.take());
    QVERIFY(m_camera->command("mute"));
    kernel.send(submit(4, true, 0, 18, setup(0x80, 6, 0x0100, 0, 18)));
    QVERIFY(!kernel.hears(300));
    QVERIFY(m_camera->command("go"));
    QCOMPARE(kernel.reply().data, UvcDescriptors::device(documentCamera()));
    QVERIFY(!m_camera->command("sing"));
}

void TestUvcCam::aLooseContactFailsUntilTheStreamIsSetUpAnew()
{
    Kernel kernel(m_port);
    QVERIFY(kernel.take());
    QVERIFY(kernel.beginStream(1, 2));
    QVERIFY(m_camera->command("halt"));
    for (const quint32 number : {7U, 8U}) {
        kernel.send(submit(number, true, 1, 16384));
        const Kernel::Reply reply = kernel.reply();
        QCOMPARE(reply.number, number);
        QCOMPARE(int(reply.state), UsbIp::stalled);
        QVERIFY(reply.data.isEmpty());
    }
    QVERIFY(kernel.beginStream(1, 2));
    QVERIFY(kernel.frame().endsWith("\xff\xd9"));
}

void TestUvcCam::ofWhatWasCalledBackNothingMoreIsHeard()
{
    Kernel kernel(m_port);
    QVERIFY(kernel.take());
    kernel.send(submit(5, true, 1, 16384)); // nothing streams yet
    kernel.send(unlinkOf(6, 5));
    const Kernel::Reply reply = kernel.reply();
    QCOMPARE(reply.command, 4U);
    QCOMPARE(reply.number, 6U);
    QCOMPARE(int(reply.state), UsbIp::calledBack);
    kernel.send(unlinkOf(7, 5));
    QCOMPARE(int(kernel.reply().state), UsbIp::fine); // was answered already
    QVERIFY(kernel.beginStream(1, 2));
    QVERIFY(!kernel.hears(300));
}

void TestUvcCam::aPulledCableEndsTheConnectionAndCanBePluggedInAgain()
{
    Kernel kernel(m_port);
    QVERIFY(kernel.take());
    Kernel other(m_port);
    QVERIFY(!other.take()); // it has been taken
    QVERIFY(m_camera->command("detach"));
    QTRY_VERIFY(!kernel.isConnected());
    Kernel again(m_port);
    QVERIFY(again.take());
}

QTEST_MAIN(TestUvcCam)
#include "tst_uvccam.moc"
