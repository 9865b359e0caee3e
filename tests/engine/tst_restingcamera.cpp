#include "LabCommands.h"
#include "LabPattern.h"
#include "LiveVideoData.h"
#include "Patience.h"

#include <QElapsedTimer>
#include <QFile>
#include <QFrame>
#include <QSignalSpy>
#include <QTemporaryDir>

// A camera sends nothing while nobody sees its picture, and is back at once when somebody does.
class TestRestingCamera : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();
    void itRestsOutOfSightAndIsBackWithANewPicture();
    void aPhotoWakesItAndIsANewOne();
    void aMovieWakesItAndKeepsItAwake();
    void itsLossIsToldWhileItRests();
    void oneThatDoesNotWakeIsLost();

private:
    void plug();
    int sent() const;
    bool isAtRest() const;
    void rest();
    int shown();
    bool isBlack();
    int photographed();

    QFrame m_target;
    std::unique_ptr<LiveVideoData> m_engine;
    QTemporaryDir m_folder;
};

void TestRestingCamera::initTestCase()
{
    QVERIFY2(!qEnvironmentVariableIsEmpty("ORVANTA_LAB"), "this test must be run by tests/lab/lab");
    m_target.resize(640, 480);
    plug();
}

void TestRestingCamera::plug()
{
    QVERIFY(labctl({"plug", "desk", "640x480", "--times", m_folder.filePath("times")}));
}

void TestRestingCamera::init()
{
    m_target.show();
    QVERIFY(QTest::qWaitForWindowExposed(&m_target));
    m_engine = std::make_unique<LiveVideoData>();
    m_engine->SetTarget(&m_target);
    QTRY_VERIFY((m_engine->Create(), m_engine->created));
    m_engine->Start();
    QTRY_VERIFY(shown() >= 0);
}

void TestRestingCamera::cleanup()
{
    m_engine.reset();
}

/// The number of the frame that the camera sent last.
int TestRestingCamera::sent() const
{
    QFile times(m_folder.filePath("times"));
    if (!times.open(QIODevice::ReadOnly))
        return -1;
    const QList<QByteArray> lines = times.readAll().split('\n');
    return lines.size() < 2 ? -1 : lines.at(lines.size() - 2).split(' ').first().toInt();
}

/// It has not sent for ten times as long as a frame takes.
bool TestRestingCamera::isAtRest() const
{
    const int before = sent();
    return !QTest::qWaitFor([&] { return sent() != before; }, 330);
}

void TestRestingCamera::rest()
{
    m_target.hide();
    QTRY_VERIFY_WITH_TIMEOUT(isAtRest(), 30000);
}

/// The number of the frame that the target shows; -1 for none.
int TestRestingCamera::shown()
{
    return LabPattern::counterOf(m_target.grab().toImage().convertToFormat(QImage::Format_RGB32));
}

bool TestRestingCamera::isBlack()
{
    const QImage seen = m_target.grab().toImage();
    QImage black(seen.size(), seen.format());
    black.fill(Qt::black);
    return seen == black;
}

/// The number of the frame that a photo shows.
int TestRestingCamera::photographed()
{
    const QString photo = m_folder.filePath("photo.png");
    QFile::remove(photo);
    return m_engine->SaveBitmap(photo) ? LabPattern::counterOf(QImage(photo)) : -1;
}

void TestRestingCamera::itRestsOutOfSightAndIsBackWithANewPicture()
{
    const QSignalSpy losses(m_engine.get(), &LiveVideoData::disconnectDevice);
    rest();
    // Longer than a silence may be, and after 5 s the session manager closes what nobody looks at.
    QTest::qWait(5500); // nothing to wait for: it tells nobody
    QCOMPARE(losses.count(), 0);
    const int last = sent();
    QElapsedTimer timer;
    timer.start();
    m_target.show();
    m_engine->Reset();
    int first = -1;
    QTRY_VERIFY((first = shown()) >= 0);
    qInfo("back after %lld ms", timer.elapsed());
    QVERIFY2(first > last, qPrintable(QString("%1 after %2").arg(first).arg(last)));
    QTRY_VERIFY(shown() > first + 10);
}

void TestRestingCamera::aPhotoWakesItAndIsANewOne()
{
    rest();
    int last = sent();
    int first = photographed();
    QVERIFY2(first > last, qPrintable(QString("%1 after %2").arg(first).arg(last)));
    QVERIFY(photographed() >= first);
    QTRY_VERIFY_WITH_TIMEOUT(isAtRest(), 30000);
    last = sent();
    m_target.show();
    first = photographed(); // before a new picture can have been seen
    QVERIFY2(first > last, qPrintable(QString("%1 after %2").arg(first).arg(last)));
}

void TestRestingCamera::aMovieWakesItAndKeepsItAwake()
{
    rest();
    const int last = sent();
    const QString movie = m_folder.filePath("movie.mov");
    QTRY_VERIFY((m_engine->Record(movie), m_engine->IsRecording()));
    QTest::qWait(1500); // nothing to wait for: a rest that must not come
    QVERIFY(!isAtRest());
    QVERIFY(sent() > last + 20);
    m_engine->RecordStop();
    QVERIFY(QFile::exists(movie));
    QTRY_VERIFY_WITH_TIMEOUT(isAtRest(), 30000);
    m_engine->Release(); // closed while it rests, it can be opened all the same
    m_engine->Create();
    QVERIFY(m_engine->created);
}

void TestRestingCamera::itsLossIsToldWhileItRests()
{
    const QSignalSpy losses(m_engine.get(), &LiveVideoData::disconnectDevice);
    rest();
    QVERIFY(labctl({"unplug", "desk"}));
    QTRY_COMPARE(losses.count(), 1);
    QCOMPARE(photographed(), -1);
    plug();
}

void TestRestingCamera::oneThatDoesNotWakeIsLost()
{
    const QSignalSpy losses(m_engine.get(), &LiveVideoData::disconnectDevice);
    rest();
    QVERIFY(labctl({"freeze", "desk"}));
    m_target.show();
    QVERIFY(isBlack());
    QTRY_COMPARE_WITH_TIMEOUT(losses.count(), 1, 10000);
    QVERIFY(isBlack());
    QVERIFY(labctl({"thaw", "desk"}));
}

QTEST_MAIN(TestRestingCamera)
#include "tst_restingcamera.moc"
