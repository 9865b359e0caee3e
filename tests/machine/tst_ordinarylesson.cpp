#include "DeviceSession.h"
#include "Devices.h"
#include "MovieFile.h"
#include "MovieProbe.h"

#include <QTest>

// With its trailing blank.
static const char lostText[] = "The video device is invalid. Please confirm whether the device is "
                               "correctly connected. ";

// Of the tone's time, what is heard of it at least. An emulated machine on a busy computer loses
// pieces on their way to the card and from it; what is misunderstood is silence, or refused.
static const double heardAtLeast = 0.1;

// What is done every day, with a camera and a sound card of the kernel, and between them and the
// program whatever servers the desk has.
class TestOrdinaryLesson : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanup() { m_user->keepTraces(); }
    void thePictureIsLiveAndCanBePhotographed();
    void aMovieHasPictureAndSound();
    void aCableThatIsPulledIsToldAndTheCameraFoundAgain();
    void cleanupTestCase();

private:
    std::unique_ptr<TestCameras> m_cameras;
    std::unique_ptr<LoopCard> m_card;
    std::unique_ptr<DeviceSession> m_user;
};

void TestOrdinaryLesson::initTestCase()
{
    m_cameras = std::make_unique<TestCameras>(QList<TestCameras::Kind>{TestCameras::Kind::Webcam});
    m_card = std::make_unique<LoopCard>();
    QVERIFY(m_cameras->isLoaded() && m_card->isLoaded());
    QVERIFY(m_card->play());
    m_user = std::make_unique<DeviceSession>(ORVANTA_PROGRAM);
}

void TestOrdinaryLesson::cleanupTestCase()
{
    m_user.reset();
    m_card.reset();
    m_cameras.reset();
}

void TestOrdinaryLesson::thePictureIsLiveAndCanBePhotographed()
{
    QVERIFY(m_user->startMoving());
    QVERIFY(m_user->takePhotoForPreview());
    const QStringList photos = m_user->program().captured();
    QCOMPARE(photos.size(), 1);
    const QImage photo(m_user->program().temporaryArea() + '/' + photos.first());
    QCOMPARE(photo.size(), QSize(640, 480));
    QVERIFY(m_user->pressWhenReady(WindowMap::PreviewScreen, "Apply"));
    QVERIFY(m_user->pressWhenReady(WindowMap::PhotoScreen, "Live"));
    QVERIFY(m_user->movesAt(m_user->map().videoRect()));
}

void TestOrdinaryLesson::aMovieHasPictureAndSound()
{
    QVERIFY(m_user->beginMovie());
    QTest::qWait(5000); // nothing to wait for: the movie's length
    QVERIFY(m_user->endMovie());
    QCOMPARE(m_user->movies().size(), 1);
    const MovieProbe movie(m_user->movies().first());
    QCOMPARE(movie.complaints(), QString());
    QCOMPARE(movie.videoCodec(), QStringLiteral("h264"));
    QCOMPARE(movie.pixelFormat(), QStringLiteral("yuv420p"));
    QVERIFY2(movie.videoDuration() > 4, qPrintable(QString::number(movie.videoDuration())));
    QVERIFY2(qAbs(movie.soundDuration() - movie.videoDuration()) < 0.5,
             qPrintable(QStringLiteral("a picture of %1 s, sound of %2 s")
                            .arg(movie.videoDuration())
                            .arg(movie.soundDuration())));
    const double heard = MovieFile(m_user->movies().first()).loudness();
    QVERIFY2(heard > heardAtLeast, qPrintable(QString::number(heard)));
    QVERIFY(m_user->pressWhenReady(WindowMap::MovieScreen, "Live"));
    QVERIFY(m_user->movesAt(m_user->map().videoRect()));
}

void TestOrdinaryLesson::aCableThatIsPulledIsToldAndTheCameraFoundAgain()
{
    const QStringList before = m_user->program().captured();
    QVERIFY(TestCameras::pullOut());
    QVERIFY(m_user->messageSays(lostText));
    QVERIFY(m_user->confirmMessage());
    QVERIFY(m_user->waitForPressable(WindowMap::LiveScreen, {"List", "Close"}));
    QVERIFY(TestCameras::plugIn());
    QVERIFY(m_user->findCameraAgain());
    QCOMPARE(m_user->program().captured(), before);
}

QTEST_MAIN(TestOrdinaryLesson)
#include "tst_ordinarylesson.moc"
