#include "Session.h"

#include <QProcess>
#include <QTest>

#include <algorithm>

// What comes out of the speaker when photos are taken.
class TestShutterSound : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void aPhotoIsHeard();
    void eachPhotoOfASeriesIsHeard();
};

namespace {

// Listens to the lab's speaker.
class Listener {
public:
    Listener()
    {
        m_recorder.start("parec",
                         {"--device=labspeaker.monitor", "--format=s16le", "--rate=16000",
                          "--channels=1", "--latency-msec=20"});
    }
    ~Listener()
    {
        m_recorder.terminate();
        m_recorder.waitForFinished(5000);
    }

    // True once the speaker has been heard to be silent for a while.
    bool hearsSilence()
    {
        return hears([](int loudest) { return loudest < quiet; });
    }
    bool hearsSomething()
    {
        return hears([](int loudest) { return loudest >= quiet; });
    }

private:
    static constexpr int quiet = 300; // of 32767
    static constexpr int pieceBytes = 16000 * 2 / 5; // 0.2 s

    template <typename Judge> bool hears(Judge judge)
    {
        m_recorder.readAll();
        return QTest::qWaitFor(
            [&] {
                if (m_recorder.bytesAvailable() < pieceBytes)
                    return false;
                const QByteArray piece = m_recorder.read(pieceBytes);
                const auto *samples = reinterpret_cast<const qint16 *>(piece.constData());
                int loudest = 0;
                for (int i = 0; i < piece.size() / 2; ++i)
                    loudest = std::max(loudest, std::abs(int(samples[i])));
                return judge(loudest);
            },
            8000);
    }

    QProcess m_recorder;
};

} // namespace

void TestShutterSound::aPhotoIsHeard()
{
    Session user(ORVANTA_PROGRAM, "cam1", QSize(640, 480));
    QVERIFY(user.startLive());
    Listener listener;
    QVERIFY(listener.hearsSilence());
    QVERIFY(user.pressWhenReady(WindowMap::LiveScreen, "Photo"));
    QVERIFY(listener.hearsSomething());
}

void TestShutterSound::eachPhotoOfASeriesIsHeard()
{
    Session user(ORVANTA_PROGRAM, "cam1", QSize(640, 480));
    QVERIFY(user.program().writeSettings("AutoShoot=0\nContinuShootCount=3\n"));
    QVERIFY(user.startLive());
    Listener listener;
    for (int photo = 1; photo <= 2; ++photo) {
        QVERIFY(listener.hearsSilence());
        QVERIFY(user.pressWhenReady(WindowMap::LiveScreen, "PhotoMulti"));
        QVERIFY(listener.hearsSomething());
    }
}

QTEST_MAIN(TestShutterSound)
#include "tst_shuttersound.moc"
