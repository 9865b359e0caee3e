#include "LabCommands.h"
#include "LabPattern.h"
#include "LiveVideoData.h"
#include "Opening.h"
#include "Patience.h"
#include "SpareTime.h"

#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFrame>
#include <QLoggingCategory>
#include <QRegularExpression>
#include <QScreen>
#include <QSignalSpy>
#include <QTemporaryDir>

#include <gst/gst.h>

// Colours go through luma and chroma, and those of the compressed camera through JPEG too.
static const int tolerance = 14;

static QStringList engineLog;

static void keepEngineLog(QtMsgType, const QMessageLogContext &context, const QString &text)
{
    if (qstrcmp(context.category, "orvanta.engine") == 0)
        engineLog.append(text);
}

// The live picture as it is seen on the screen, and stills, with the lab's cameras in front.
class TestEnginePicture : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();
    void everyCameraIsListedOnceInOrder();
    void theFirstCameraIsOpenedWithoutAChoice();
    void thePictureOnTheScreenIsTheCameras_data();
    void thePictureOnTheScreenIsTheCameras();
    void theStillIsTheCamerasFullPicture_data();
    void theStillIsTheCamerasFullPicture();
    void theStillIsAtHandBeforeItsFile_data();
    void theStillIsAtHandBeforeItsFile();
    void thePictureMovesOn();
    void thePictureFollowsItsTarget();
    void stoppingBlackensTheTargetAndStartingShowsTheNewestPicture();
    void nothingIsPaintedForAHiddenTarget();
    void aBusyProgramIsGivenTheNewestFrameOnceItHasTime();
    void theTargetMayBeDestroyedFirst();
    void twinsAreNumbered();
    void theDemonstrationCameraComesLastAndMoves();
    void thereIsAMicrophoneWhileOneIsPluggedIn();

private:
    QImage onScreen() const;
    QImage pictureOnScreen() const;
    bool showsCamera(const QString &camera) const;
    bool isBlack() const;
    void open(const QString &camera);

    std::unique_ptr<QFrame> m_target;
    std::unique_ptr<LiveVideoData> m_engine;
    QTemporaryDir m_folder;
};

void TestEnginePicture::initTestCase()
{
    QVERIFY2(!qEnvironmentVariableIsEmpty("ORVANTA_LAB"), "this test must be run by tests/lab/lab");
    gst_init(nullptr, nullptr); // indexes its plug-ins, which is not to be measured
}

void TestEnginePicture::init()
{
    m_target = std::make_unique<QFrame>(nullptr, Qt::FramelessWindowHint);
    m_target->setGeometry(40, 30, 896, 504);
    m_engine = std::make_unique<LiveVideoData>();
    m_engine->SetTarget(m_target.get());
    m_target->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_target.get()));
}

void TestEnginePicture::cleanup()
{
    m_engine.reset();
    m_target.reset();
}

QImage TestEnginePicture::onScreen() const
{
    const QRect place(m_target->mapToGlobal(QPoint()), m_target->size());
    return QApplication::primaryScreen()
        ->grabWindow(0, place.x(), place.y(), place.width(), place.height())
        .toImage()
        .convertToFormat(QImage::Format_RGB32);
}

// Without the black bars beside it.
QImage TestEnginePicture::pictureOnScreen() const
{
    const QSize native(m_engine->nativeWidth, m_engine->nativeHeight);
    QRect place(QPoint(), native.scaled(m_target->size(), Qt::KeepAspectRatio));
    place.moveCenter(m_target->rect().center());
    return onScreen().copy(place);
}

bool TestEnginePicture::showsCamera(const QString &camera) const
{
    return LabPattern::worstDifference(pictureOnScreen(), LabPattern::groundOf(camera)) < tolerance;
}

bool TestEnginePicture::isBlack() const
{
    QImage black(m_target->size(), QImage::Format_RGB32);
    black.fill(Qt::black);
    return onScreen() == black;
}

void TestEnginePicture::open(const QString &camera)
{
    const int index = m_engine->GetVideoDeviceList().indexOf(camera);
    QVERIFY2(index >= 0, qPrintable(camera));
    m_engine->SetVideoDevice(index);
    QVERIFY(opens(*m_engine));
    m_engine->Start();
}

void TestEnginePicture::everyCameraIsListedOnceInOrder()
{
    const SpareTime spare;
    QElapsedTimer timer;
    timer.start();
    QCOMPARE(m_engine->GetVideoDeviceList(), (QStringList{"big", "packed", "small"}));
    QVERIFY2(double(timer.elapsed()) < 2000 + 1000 * spare.lateness(), "it must come within 2 s");
}

void TestEnginePicture::theFirstCameraIsOpenedWithoutAChoice()
{
    QVERIFY(opens(*m_engine));
    QVERIFY(m_engine->supported);
    QVERIFY(m_engine->videoPresent);
    m_engine->Start();
    QTRY_VERIFY(showsCamera("big"));
}

void TestEnginePicture::thePictureOnTheScreenIsTheCameras_data()
{
    QTest::addColumn<QString>("camera");
    QTest::addColumn<QSize>("size");
    QTest::newRow("full HD, smaller on the screen") << "big" << QSize(1920, 1080);
    QTest::newRow("4 to 3, between black bars") << "small" << QSize(640, 480);
    QTest::newRow("JPEG") << "packed" << QSize(1280, 720);
}

void TestEnginePicture::thePictureOnTheScreenIsTheCameras()
{
    QFETCH(QString, camera);
    QFETCH(QSize, size);
    open(camera);
    QCOMPARE(QSize(m_engine->nativeWidth, m_engine->nativeHeight), size);
    QTRY_VERIFY(showsCamera(camera));
    QCOMPARE(m_engine->GetResoList(),
             QStringList{QString("%1x%2").arg(size.width()).arg(size.height())});
    if (camera == QLatin1String("small")) {
        QCOMPARE(onScreen().pixel(40, 250), qRgb(0, 0, 0));
        QCOMPARE(onScreen().pixel(855, 250), qRgb(0, 0, 0));
    }
}

void TestEnginePicture::theStillIsTheCamerasFullPicture_data()
{
    thePictureOnTheScreenIsTheCameras_data();
}

void TestEnginePicture::theStillIsTheCamerasFullPicture()
{
    QFETCH(QString, camera);
    QFETCH(QSize, size);
    open(camera);
    const QString path = m_folder.filePath("photo.png");
    QVERIFY(m_engine->SaveBitmap(path));
    const QImage still(path);
    QCOMPARE(still.size(), size);
    QVERIFY(LabPattern::counterOf(still) >= 0);
    const QImage exact =
        LabPattern::frame(size.width(), size.height(), quint32(LabPattern::counterOf(still)),
                          LabPattern::groundOf(camera));
    QVERIFY(LabPattern::worstDifference(exact, LabPattern::groundOf(camera)) == 0);
    QVERIFY(LabPattern::worstDifference(still, LabPattern::groundOf(camera)) < tolerance);
    QCOMPARE(m_engine->takeSavedPicture().convertToFormat(still.format()), still);
    QVERIFY(m_engine->takeSavedPicture().isNull());
    QCOMPARE(QDir(m_folder.path()).entryList(QDir::Files | QDir::Hidden), QStringList{"photo.png"});
}

void TestEnginePicture::theStillIsAtHandBeforeItsFile_data()
{
    thePictureOnTheScreenIsTheCameras_data();
}

// The camera is closed in the middle of it, which is no reason to lose a photo.
void TestEnginePicture::theStillIsAtHandBeforeItsFile()
{
    QFETCH(QString, camera);
    open(camera);
    const QString path = m_folder.filePath("photo.png");
    QFile::remove(path);
    const QSignalSpy told(m_engine.get(), &LiveVideoData::bitmapSaved);
    const QImage picture = m_engine->startSaving(path);
    QVERIFY(!picture.isNull());
    QCOMPARE(told.size(), 0);
    m_engine->Release();
    m_engine->finishSaving();
    QCOMPARE(told, (QList<QVariantList>{{true}}));
    const QImage still(path);
    QCOMPARE(LabPattern::counterOf(picture), LabPattern::counterOf(still));
    QVERIFY(LabPattern::worstDifference(picture, LabPattern::groundOf(camera)) < tolerance);
    QCOMPARE(m_engine->takeSavedPicture().convertToFormat(still.format()), still);
    QVERIFY(LabPattern::counterOf(still) >= 0);
    QVERIFY(LabPattern::worstDifference(still, LabPattern::groundOf(camera)) < tolerance);
    QCOMPARE(QDir(m_folder.path()).entryList(QDir::Files | QDir::Hidden), QStringList{"photo.png"});
    QVERIFY(m_engine->startSaving(path).isNull()); // there is no camera any more
}

void TestEnginePicture::thePictureMovesOn()
{
    open("big");
    QTRY_VERIFY(LabPattern::counterOf(pictureOnScreen()) >= 0);
    const int first = LabPattern::counterOf(pictureOnScreen());
    QElapsedTimer timer;
    timer.start();
    QTRY_VERIFY(LabPattern::counterOf(pictureOnScreen()) >= first + 30);
    QVERIFY2(timer.elapsed() < 4000, "30 frames take a second");
}

void TestEnginePicture::thePictureFollowsItsTarget()
{
    open("big");
    QTRY_VERIFY(showsCamera("big"));
    m_target->resize(500, 400);
    QTRY_VERIFY(showsCamera("big"));
    m_target->hide();
    QTRY_VERIFY(!showsCamera("big"));
    m_target->show();
    m_engine->Reset();
    QTRY_VERIFY(showsCamera("big"));
    QWidget parent(nullptr, Qt::FramelessWindowHint);
    parent.setGeometry(100, 100, 700, 500);
    m_target->setParent(&parent);
    m_target->setGeometry(30, 40, 600, 400);
    m_target->show();
    parent.show();
    QVERIFY(QTest::qWaitForWindowExposed(&parent));
    QTRY_VERIFY(showsCamera("big"));
    m_target->setParent(nullptr);
}

void TestEnginePicture::stoppingBlackensTheTargetAndStartingShowsTheNewestPicture()
{
    QTRY_VERIFY(isBlack());
    open("big");
    QTRY_VERIFY(showsCamera("big"));
    const int last = LabPattern::counterOf(pictureOnScreen());
    m_engine->Stop();
    QTRY_VERIFY(isBlack());
    QTest::qWait(300); // nothing to wait for: a picture that must not come
    QVERIFY2(isBlack(), "nothing may be shown while it is stopped");
    m_engine->Start();
    QTRY_VERIFY(showsCamera("big"));
    QVERIFY2(LabPattern::counterOf(pictureOnScreen()) >= last + 9, "an old picture was shown");
    m_engine->Release();
    QTRY_VERIFY(isBlack());
}

// Counts "N frames taken, M painted", which the worker says at its end.
static QPair<int, int> framesTakenAndPainted()
{
    const QRegularExpression counts("^(\\d+) frames taken, (\\d+) painted$");
    for (const QString &line : qAsConst(engineLog)) {
        const QRegularExpressionMatch match = counts.match(line);
        if (match.hasMatch())
            return {match.captured(1).toInt(), match.captured(2).toInt()};
    }
    return {-1, -1};
}

namespace {
// Listens to what the engine logs as long as it lives.
class EngineLogReader {
public:
    EngineLogReader()
    {
        engineLog.clear();
        QLoggingCategory::setFilterRules("orvanta.engine.debug=true");
        m_previous = qInstallMessageHandler(keepEngineLog);
    }
    ~EngineLogReader()
    {
        qInstallMessageHandler(m_previous);
        QLoggingCategory::setFilterRules(QString());
    }
    Q_DISABLE_COPY(EngineLogReader)

private:
    QtMessageHandler m_previous;
};
} // namespace

void TestEnginePicture::nothingIsPaintedForAHiddenTarget()
{
    const EngineLogReader reader;
    m_target->hide();
    open("small");
    const SpareTime spare;
    QTest::qWait(500); // nothing to wait for: the frames are counted at the end only
    m_engine->Release();
    const QPair<int, int> counts = framesTakenAndPainted();
    QVERIFY2(counts.first >= (spare.isPlenty() ? 10 : 1),
             qPrintable(QString::number(counts.first)));
    QCOMPARE(counts.second, 0);
}

void TestEnginePicture::aBusyProgramIsGivenTheNewestFrameOnceItHasTime()
{
    const EngineLogReader reader;
    open("small");
    QTRY_VERIFY(showsCamera("small"));
    const int before = LabPattern::counterOf(pictureOnScreen());
    QElapsedTimer busy;
    busy.start();
    int turns = 0;
    while (busy.elapsed() < 700)
        ++turns;
    QVERIFY(turns > 0);
    QTRY_VERIFY(LabPattern::counterOf(pictureOnScreen()) >= before + 15);
    m_engine->Release();
    const QPair<int, int> counts = framesTakenAndPainted();
    QVERIFY2(counts.second >= 1 && counts.second <= counts.first - 10,
             qPrintable(QString("%1 of %2").arg(counts.second).arg(counts.first)));
}

void TestEnginePicture::theTargetMayBeDestroyedFirst()
{
    open("big");
    QTRY_VERIFY(showsCamera("big"));
    m_target.reset();
    QTest::qWait(200); // nothing to wait for: a target that is gone says nothing
    m_engine->Reset();
    m_engine->Stop();
    m_engine->Start();
    QVERIFY(m_engine->SaveBitmap(m_folder.filePath("still.png")));
    m_target = std::make_unique<QFrame>(nullptr, Qt::FramelessWindowHint);
    m_target->setGeometry(40, 30, 896, 504);
    m_target->show();
    m_engine->SetTarget(m_target.get());
    QTRY_VERIFY(showsCamera("big"));
}

void TestEnginePicture::twinsAreNumbered()
{
    QVERIFY(labctl({"plug", "twin1", "640x480", "--description", "Twin"}));
    QVERIFY(labctl({"plug", "twin2", "640x480", "--description", "Twin"}));
    QTRY_COMPARE(m_engine->GetVideoDeviceList(),
                 (QStringList{"big", "packed", "small", "Twin (1)", "Twin (2)"}));
    open("Twin (2)");
    QTRY_VERIFY(showsCamera("twin2"));
    m_engine->Release();
    QVERIFY(labctl({"unplug", "twin1"}));
    QVERIFY(labctl({"unplug", "twin2"}));
    QTRY_COMPARE(m_engine->GetVideoDeviceList(), (QStringList{"big", "packed", "small"}));
}

void TestEnginePicture::theDemonstrationCameraComesLastAndMoves()
{
    qputenv("ORVANTA_DEMO_CAMERA", "1");
    QCOMPARE(m_engine->GetVideoDeviceList(),
             (QStringList{"big", "packed", "small", "Demonstration Camera"}));
    open("Demonstration Camera");
    qunsetenv("ORVANTA_DEMO_CAMERA");
    QCOMPARE(QSize(m_engine->nativeWidth, m_engine->nativeHeight), QSize(1920, 1080));
    QTRY_VERIFY(!isBlack());
    const QImage first = pictureOnScreen();
    QTRY_VERIFY(pictureOnScreen() != first);
}

void TestEnginePicture::thereIsAMicrophoneWhileOneIsPluggedIn()
{
    QVERIFY(m_engine->IsValidAudioDevice());
    QVERIFY(labctl({"microphone", "off"}));
    QTRY_VERIFY(!m_engine->IsValidAudioDevice());
    QVERIFY(labctl({"microphone", "on"}));
    QTRY_VERIFY(m_engine->IsValidAudioDevice());
}

QTEST_MAIN(TestEnginePicture)
#include "tst_enginepicture.moc"
