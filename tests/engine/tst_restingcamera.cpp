#include "LabCommands.h"
#include "LabPattern.h"
#include "LiveVideoData.h"
#include "MovieFile.h"
#include "Opening.h"
#include "Patience.h"

#include <QFile>
#include <QFrame>
#include <QLoggingCategory>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

static int framesTaken = 0; // by the engine's worker, which says so at its end

static void listen(QtMsgType /*type*/, const QMessageLogContext & /*context*/, const QString &text)
{
    static const QRegularExpression taken("^(\\d+) frames taken");
    const QRegularExpressionMatch match = taken.match(text);
    if (match.hasMatch())
        framesTaken = match.captured(1).toInt();
    fprintf(stderr, "%s\n", qPrintable(text));
}

// While nobody sees its picture, a camera's frames are not even decoded; when somebody does, or a
// photo or a movie is wanted, they are there at once, and new ones.
class TestRestingCamera : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();
    void framesThatNobodySeesAreNotTaken();
    void itIsBackWithANewPicture();
    void aPhotoOutOfSightIsANewOne();
    void aMovieOutOfSightHasItsFrames();
    void itsLossIsToldWhileItRests();
    void itsSilenceIsToldWhileItRests();

private:
    void plug();
    int sent() const;
    void rest();
    int shown();
    int photographed();

    QFrame m_target;
    std::unique_ptr<LiveVideoData> m_engine;
    QTemporaryDir m_folder;
};

void TestRestingCamera::initTestCase()
{
    QVERIFY2(!qEnvironmentVariableIsEmpty("ORVANTA_LAB"), "this test must be run by tests/lab/lab");
    QLoggingCategory::setFilterRules("orvanta.engine.debug=true");
    qInstallMessageHandler(listen);
    m_target.resize(640, 480);
    plug();
}

void TestRestingCamera::plug()
{
    QVERIFY(labctl(
        {"plug", "desk", "640x480", "--format", "MJPG", "--times", m_folder.filePath("times")}));
}

void TestRestingCamera::init()
{
    m_target.show();
    QVERIFY(QTest::qWaitForWindowExposed(&m_target));
    m_engine = std::make_unique<LiveVideoData>();
    m_engine->SetTarget(&m_target);
    QVERIFY(opens(*m_engine));
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

/// Has the picture out of sight for two seconds of the camera's.
void TestRestingCamera::rest()
{
    m_target.hide();
    const int begin = sent();
    QTRY_VERIFY(sent() >= begin + 60);
}

/// The number of the frame that the target shows; -1 for none.
int TestRestingCamera::shown()
{
    return LabPattern::counterOf(m_target.grab().toImage().convertToFormat(QImage::Format_RGB32));
}

/// The number of the frame that a photo shows.
int TestRestingCamera::photographed()
{
    const QString photo = m_folder.filePath("photo.png");
    QFile::remove(photo);
    return m_engine->SaveBitmap(photo) ? LabPattern::counterOf(QImage(photo)) : -1;
}

void TestRestingCamera::framesThatNobodySeesAreNotTaken()
{
    const int first = shown();
    rest();
    const int last = sent();
    m_engine->Release();
    QVERIFY(framesTaken > 0);
    QVERIFY2(framesTaken < last - first - 15,
             qPrintable(QString("%1 of %2").arg(framesTaken).arg(last - first)));
}

void TestRestingCamera::itIsBackWithANewPicture()
{
    const QSignalSpy losses(m_engine.get(), &LiveVideoData::disconnectDevice);
    rest();
    rest(); // longer than a silence may be
    const int last = sent();
    m_target.show();
    QTRY_VERIFY(shown() > last + 10);
    QCOMPARE(losses.count(), 0);
}

// Some that were sent before it was asked for may still be on their way to a busy program.
void TestRestingCamera::aPhotoOutOfSightIsANewOne()
{
    rest();
    const int last = sent();
    const int first = photographed();
    QVERIFY2(first > last - 15, qPrintable(QString("%1 after %2").arg(first).arg(last)));
    QVERIFY(photographed() >= first);
}

void TestRestingCamera::aMovieOutOfSightHasItsFrames()
{
    rest();
    const QString path = m_folder.filePath("movie.mov");
    QVERIFY(records(*m_engine, path));
    rest();
    m_engine->RecordStop();
    QVERIFY(m_engine->CompleteMovies());
    const int frames = MovieFile(path).frames().size();
    QVERIFY2(frames > 40, qPrintable(QString::number(frames)));
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

void TestRestingCamera::itsSilenceIsToldWhileItRests()
{
    const QSignalSpy losses(m_engine.get(), &LiveVideoData::disconnectDevice);
    rest();
    QVERIFY(labctl({"freeze", "desk"}));
    QTRY_COMPARE(losses.count(), 1);
    QVERIFY(labctl({"thaw", "desk"}));
}

QTEST_MAIN(TestRestingCamera)
#include "tst_restingcamera.moc"
