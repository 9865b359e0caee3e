#include "FakeEngine.h"
#include "LiveVideoWidget.h"
#include "MessageReader.h"
#include "Patience.h"
#include "WebcamUtil.h"

#include <QApplication>
#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QFrame>
#include <QLabel>
#include <QRegularExpression>
#include <QSet>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QThread>
#include <QTimer>

namespace {

QStringList seenWarnings; // what Qt complains about while complaints are collected

void collectWarning(QtMsgType type, const QMessageLogContext &, const QString &text)
{
    if (type != QtDebugMsg && type != QtInfoMsg)
        seenWarnings.append(text);
}

// The frame that the engine was given, null when it is not the widget's own.
QFrame *videoFrameOf(const LiveVideoWidget &widget)
{
    auto *frame = qobject_cast<QFrame *>(FakeEngine::script().target.data());
    return frame && frame->parent() == &widget ? frame : nullptr;
}

QLabel *liveLabelOf(const LiveVideoWidget &widget)
{
    return widget.findChild<QLabel *>();
}

QTimer *shotTimerOf(const LiveVideoWidget &widget)
{
    return widget.findChild<QTimer *>(QString(), Qt::FindDirectChildrenOnly);
}

// What happens when the time to the next photo of a burst is over, without waiting for it.
void letBurstTimePass(const LiveVideoWidget &widget)
{
    QVERIFY(shotTimerOf(widget)->isActive());
    QVERIFY(QMetaObject::invokeMethod(shotTimerOf(widget), "timeout"));
}

// The calls of one operation with their arguments, oldest first.
QStringList callsOf(const QString &operation)
{
    return FakeEngine::script().calls.filter(QRegularExpression('^' + operation + "\\("));
}

} // namespace

class LiveVideoWidgetTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();

    void givesTheEngineAFrameThatFillsTheWidget();
    void isBlackBeforeTheFirstPictureAndPaintsNothingItself();
    void hasAGreenLiveLabelAboveTheFrame();
    void beginsWithDevicesTakenForValid();
    void tellsAScreenReaderWhatItShows();

    void createOpensTheCamera();
    void createTwiceOpensItOnceWithoutAMessage();
    void createOnAnUnsupportedSystemSaysSo();
    void createWithoutACameraSaysNothing();
    void createAfterACameraCameBackTakesItForValid();

    void startShowsTheLiveLabel();
    void startWithoutACameraChangesNothing();
    void everyShowResetsTheRendering();
    void releaseClosesTheCameraAndEndsABurst();
    void releaseOfAClosedCameraDoesNotReachTheEngine();
    void stopEndsABurst();
    void destructionLeavesClosingToTheEngine();

    void forwardsTheChoiceOfACamera();
    void setsAResolutionFromItsText_data();
    void setsAResolutionFromItsText();
    void aResolutionNeedsAnOpenCamera();

    void aPhotoBeforeCreateDoesNotTouchTheEngine();
    void aPhotoIsWrittenToTheTemporaryAreaUnderTheNameReturned();
    void noCaptureTakesTheNameOfAnother();
    void aPhotoIsWrittenThoughTheAreaHasVanished();
    void aPhotoThatCannotBeWrittenIsANullString();
    void aPhotoIsAtHandWhileItsFileIsWritten();
    void withoutACameraOrAFrameThereIsNoPhoto();

    void aRecordingLeavesAMovieAndItsStillPicture();
    void aRecordingNeedsNoStillPicture();
    void aRecordingWithAMissingDeviceSaysWhich_data();
    void aRecordingWithAMissingDeviceSaysWhich();
    void aRecordingThatDoesNotBeginIsRefusedAndLeavesNothing();
    void recordStopFinishesTheMovie();
    void theMicrophoneIsPresentWhenNothingSpeaksAgainstIt_data();
    void theMicrophoneIsPresentWhenNothingSpeaksAgainstIt();

    void aBurstTakesAPhotoEveryFiveSecondsThenEnds();
    void aNewBurstCountsFromTheStart();
    void aFailedPhotoCountsInABurst();

    void aLostCameraIsPassedOn();
    void aCameraLostOnAnotherThreadIsPassedOnHere();
};

void LiveVideoWidgetTest::init()
{
    FakeEngine::reset();
}

void LiveVideoWidgetTest::givesTheEngineAFrameThatFillsTheWidget()
{
    LiveVideoWidget widget;
    QVERIFY(videoFrameOf(widget));
    widget.resize(320, 180);
    widget.show();
    QCOMPARE(videoFrameOf(widget)->geometry(), QRect(0, 0, 320, 180));
    QCOMPARE(callsOf("SetTarget").size(), 1);
}

void LiveVideoWidgetTest::isBlackBeforeTheFirstPictureAndPaintsNothingItself()
{
    QWidget window;
    QPalette red;
    red.setColor(QPalette::Window, Qt::red);
    window.setPalette(red);
    window.resize(200, 100);
    LiveVideoWidget widget(&window);
    widget.setGeometry(50, 0, 100, 100);
    QCOMPARE(widget.paintEngine(), nullptr);
    for (const Qt::WidgetAttribute attribute :
         {Qt::WA_OpaquePaintEvent, Qt::WA_NoSystemBackground, Qt::WA_PaintOnScreen})
        QVERIFY(!widget.testAttribute(attribute));

    seenWarnings.clear();
    const QtMessageHandler usual = qInstallMessageHandler(collectWarning);
    window.show();
    const bool exposed = QTest::qWaitForWindowExposed(&window);
    const QImage picture = window.grab().toImage();
    qInstallMessageHandler(usual);
    QVERIFY(exposed);
    QCOMPARE(picture.pixelColor(20, 50), QColor(Qt::red));
    QCOMPARE(picture.pixelColor(100, 50), QColor(Qt::black));
    QCOMPARE(seenWarnings, QStringList());
}

void LiveVideoWidgetTest::hasAGreenLiveLabelAboveTheFrame()
{
    LiveVideoWidget widget;
    const QLabel *label = liveLabelOf(widget);
    QCOMPARE(label->text(), QStringLiteral("LIVE"));
    QVERIFY(label->isHidden());
    QVERIFY(label->autoFillBackground());
    QCOMPARE(label->palette().color(QPalette::Window), QColor(Qt::black));
    QCOMPARE(label->palette().color(QPalette::WindowText), QColor(Qt::green));
    QCOMPARE(label->font().family(), QStringLiteral("Arial"));
    QCOMPARE(label->font().pointSize(), 24);
    QCOMPARE(label->font().weight(), 5);
    QCOMPARE(label->size(), label->sizeHint());
    QCOMPARE(label->pos(), QPoint(0, 0));
    widget.resize(320, 180);
    widget.show();
    widget.Create();
    widget.Start();
    QCOMPARE(widget.childAt(5, 5), label);
}

void LiveVideoWidgetTest::beginsWithDevicesTakenForValid()
{
    const LiveVideoWidget widget;
    QVERIFY(!widget.isCreate());
    QVERIFY(widget.isVideoValid());
    QVERIFY(widget.isAudioValid());
    QCOMPARE(widget.movieFileName(), QString());
    QVERIFY(!shotTimerOf(widget)->isActive());
}

void LiveVideoWidgetTest::tellsAScreenReaderWhatItShows()
{
    const LiveVideoWidget widget;
    QVERIFY(!widget.accessibleName().isEmpty());
    QVERIFY(!widget.accessibleDescription().isEmpty());
}

void LiveVideoWidgetTest::createOpensTheCamera()
{
    FakeEngine::script().nativeSize = QSize(1600, 1200);
    LiveVideoWidget widget;
    widget.Create();
    QVERIFY(widget.isCreate());
    QCOMPARE(widget.getNativeSize(), QSize(1600, 1200));
    QVERIFY(widget.isVideoValid());
    QVERIFY(widget.isAudioValid());
}

void LiveVideoWidgetTest::createTwiceOpensItOnceWithoutAMessage()
{
    MessageReader reader;
    LiveVideoWidget widget;
    widget.Create();
    FakeEngine::script().supported = false; // would be said, were the engine asked again
    widget.Create();
    QCOMPARE(FakeEngine::callCount("Create"), 1);
    QCOMPARE(reader.texts(), QStringList());
}

void LiveVideoWidgetTest::createOnAnUnsupportedSystemSaysSo()
{
    FakeEngine::script().supported = false;
    MessageReader reader;
    LiveVideoWidget widget;
    widget.Create();
    QCOMPARE(reader.texts(), QStringList{"Not Suport"});
    QCOMPARE(reader.messages().constFirst().icon, QMessageBox::Critical);
    QVERIFY(!widget.isCreate());
    QVERIFY(widget.isVideoValid());
    QVERIFY(widget.isAudioValid());

    widget.Release();
    widget.Create();
    QVERIFY(!widget.isVideoValid()); // left as Release() set it
}

void LiveVideoWidgetTest::createWithoutACameraSaysNothing()
{
    FakeEngine::script().videoPresent = false;
    MessageReader reader;
    LiveVideoWidget widget;
    widget.Create();
    QCOMPARE(reader.texts(), QStringList());
    QVERIFY(!widget.isCreate());
    QVERIFY(!widget.isVideoValid());
    QVERIFY(widget.isAudioValid());
}

void LiveVideoWidgetTest::createAfterACameraCameBackTakesItForValid()
{
    LiveVideoWidget widget;
    widget.Create();
    widget.Release();
    QVERIFY(!widget.isVideoValid());
    widget.Create();
    QVERIFY(widget.isCreate());
    QVERIFY(widget.isVideoValid());
}

void LiveVideoWidgetTest::startShowsTheLiveLabel()
{
    LiveVideoWidget widget;
    widget.Create();
    widget.Start();
    QVERIFY(FakeEngine::script().started);
    QVERIFY(!liveLabelOf(widget)->isHidden());
    widget.Start();
    QCOMPARE(FakeEngine::callCount("Start"), 2);
    QVERIFY(!liveLabelOf(widget)->isHidden());
}

void LiveVideoWidgetTest::startWithoutACameraChangesNothing()
{
    LiveVideoWidget widget;
    widget.Start();
    QCOMPARE(FakeEngine::callCount("Start"), 0);
    QVERIFY(liveLabelOf(widget)->isHidden());
}

void LiveVideoWidgetTest::everyShowResetsTheRendering()
{
    LiveVideoWidget widget;
    QCOMPARE(FakeEngine::callCount("Reset"), 0);
    widget.show();
    QCOMPARE(FakeEngine::callCount("Reset"), 1);
    widget.hide();
    widget.show();
    QCOMPARE(FakeEngine::callCount("Reset"), 2);
    widget.Reset();
    QCOMPARE(FakeEngine::callCount("Reset"), 3);
}

void LiveVideoWidgetTest::releaseClosesTheCameraAndEndsABurst()
{
    LiveVideoWidget widget;
    widget.Create();
    widget.ContinuesShot(3);
    widget.Release();
    QVERIFY(!widget.isCreate());
    QVERIFY(!widget.isVideoValid());
    QVERIFY(widget.isAudioValid());
    QVERIFY(!shotTimerOf(widget)->isActive());
}

void LiveVideoWidgetTest::releaseOfAClosedCameraDoesNotReachTheEngine()
{
    LiveVideoWidget widget;
    widget.Release();
    QCOMPARE(FakeEngine::callCount("Release"), 0);
    QVERIFY(!widget.isVideoValid());
}

void LiveVideoWidgetTest::stopEndsABurst()
{
    LiveVideoWidget widget;
    widget.Create();
    widget.Start();
    widget.ContinuesShot(3);
    widget.Stop();
    QVERIFY(!FakeEngine::script().started);
    QVERIFY(widget.isCreate());
    QVERIFY(widget.isVideoValid());
    QVERIFY(!shotTimerOf(widget)->isActive());
}

void LiveVideoWidgetTest::destructionLeavesClosingToTheEngine()
{
    {
        LiveVideoWidget widget;
        widget.Create();
        QVERIFY(FakeEngine::script().target);
    }
    QCOMPARE(FakeEngine::callCount("Release"), 0);
    QCOMPARE(FakeEngine::script().calls.constLast(), QStringLiteral("~LiveVideoData()"));
}

void LiveVideoWidgetTest::forwardsTheChoiceOfACamera()
{
    FakeEngine::script().deviceNames = QStringList{"A", "B"};
    LiveVideoWidget widget;
    QCOMPARE(widget.getVideoDeviceList(), (QStringList{"A", "B"}));
    widget.setVideoDevice(1);
    QCOMPARE(FakeEngine::script().videoDevice, 1);
    QCOMPARE(widget.GetResoList(), FakeEngine::script().resolutions);
}

void LiveVideoWidgetTest::setsAResolutionFromItsText_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QStringList>("calls");
    QTest::newRow("usual") << "640x480" << QStringList{"SetResolution(640, 480)"};
    QTest::newRow("no numbers read as 0") << "axb" << QStringList{"SetResolution(0, 0)"};
    QTest::newRow("an empty part is kept") << "x480" << QStringList{"SetResolution(0, 480)"};
    QTest::newRow("more parts are ignored") << "1x2x3" << QStringList{"SetResolution(1, 2)"};
    QTest::newRow("a capital X does not split") << "640X480" << QStringList{};
    QTest::newRow("no text") << QString() << QStringList{};
}

void LiveVideoWidgetTest::setsAResolutionFromItsText()
{
    QFETCH(QString, text);
    LiveVideoWidget widget;
    widget.Create();
    widget.setResolution(text);
    QTEST(callsOf("SetResolution"), "calls");
}

void LiveVideoWidgetTest::aResolutionNeedsAnOpenCamera()
{
    LiveVideoWidget widget;
    widget.setResolution("640x480");
    QCOMPARE(FakeEngine::callCount("SetResolution"), 0);
}

void LiveVideoWidgetTest::aPhotoBeforeCreateDoesNotTouchTheEngine()
{
    LiveVideoWidget widget;
    FakeEngine::script().calls.clear();
    QVERIFY(widget.SaveBmp().isNull());
    QCOMPARE(FakeEngine::script().calls, QStringList());
}

void LiveVideoWidgetTest::aPhotoIsWrittenToTheTemporaryAreaUnderTheNameReturned()
{
    QImage picture(64, 48, QImage::Format_RGB32);
    picture.fill(Qt::magenta);
    FakeEngine::script().picture = picture;
    LiveVideoWidget widget;
    widget.Create();
    const QString name = widget.SaveBmp();
    QVERIFY2(QRegularExpression("^photo\\d{17}\\.png$").match(name).hasMatch(), qPrintable(name));
    const QString path = WebcamUtil::getTemporaryPath() + '/' + name;
    QCOMPARE(callsOf("SaveBitmap"), QStringList{"SaveBitmap(" + path + ')'});
    QCOMPARE(QImage(path).convertToFormat(QImage::Format_RGB32), picture);
}

// As after a clock was set back: the area has the names of all the moments to come.
void LiveVideoWidgetTest::noCaptureTakesTheNameOfAnother()
{
    LiveVideoWidget widget;
    widget.Create();
    const QString area = WebcamUtil::getTemporaryPath() + '/';
    const QDateTime now = QDateTime::currentDateTime();
    QSet<QString> taken;
    for (int i = 0; i < 800; ++i) {
        taken.insert(area + WebcamUtil::CreatePhotofilename(now.addMSecs(i)));
        taken.insert(WebcamUtil::CreateMoviefilename(now.addSecs(i)));
    }
    for (const QString &path : qAsConst(taken))
        QVERIFY(QFile(path).open(QIODevice::WriteOnly));
    const QString photo = widget.SaveBmp();
    QVERIFY2(!photo.isEmpty() && !taken.contains(area + photo), qPrintable(photo));
    const QString next = widget.takePhoto().name;
    QVERIFY2(!next.isEmpty() && !taken.contains(area + next), qPrintable(next));
    QVERIFY(widget.Record());
    QVERIFY2(!taken.contains(widget.movieFileName()), qPrintable(widget.movieFileName()));
    for (const QString &path : qAsConst(taken)) {
        QCOMPARE(QFileInfo(path).size(), 0);
        QVERIFY(QFile::remove(path));
    }
}

// As those of a series are, before which nobody looks at the disk.
void LiveVideoWidgetTest::aPhotoIsWrittenThoughTheAreaHasVanished()
{
    LiveVideoWidget widget;
    widget.Create();
    const QString area = WebcamUtil::getTemporaryPath();
    QVERIFY(QDir(area).removeRecursively());
    const QString name = widget.SaveBmp();
    QVERIFY(QFile::exists(area + '/' + name));
}

void LiveVideoWidgetTest::aPhotoThatCannotBeWrittenIsANullString()
{
    FakeEngine::script().saveBitmapSucceeds = false;
    MessageReader reader;
    LiveVideoWidget widget;
    widget.Create();
    QVERIFY(widget.SaveBmp().isNull());
    QCOMPARE(FakeEngine::callCount("SaveBitmap"), 1);
    QCOMPARE(reader.texts(), QStringList());
}

void LiveVideoWidgetTest::aPhotoIsAtHandWhileItsFileIsWritten()
{
    FakeEngine::script().writesSlowly = true;
    LiveVideoWidget widget;
    widget.Create();
    const QSignalSpy written(&widget, &LiveVideoWidget::photoWritten);
    const LiveVideoWidget::Photo photo = widget.takePhoto();
    QVERIFY2(QRegularExpression("^photo\\d{17}\\.png$").match(photo.name).hasMatch(),
             qPrintable(photo.name));
    const QString path = WebcamUtil::getTemporaryPath() + '/' + photo.name;
    QCOMPARE(photo.picture.size(), FakeEngine::script().nativeSize);
    QCOMPARE(callsOf("startSaving"), QStringList{"startSaving(" + path + ')'});
    QVERIFY(!QFile::exists(path));
    QVERIFY(widget.takePhoto().name.isNull()); // one at a time
    widget.finishPhoto();
    QVERIFY(QFile::exists(path));
    QCOMPARE(written, (QList<QVariantList>{{true}}));
}

void LiveVideoWidgetTest::withoutACameraOrAFrameThereIsNoPhoto()
{
    LiveVideoWidget widget;
    FakeEngine::script().calls.clear();
    QVERIFY(widget.takePhoto().name.isNull());
    QCOMPARE(FakeEngine::script().calls, QStringList());
    widget.Create();
    FakeEngine::script().saveBitmapSucceeds = false;
    const LiveVideoWidget::Photo photo = widget.takePhoto();
    QVERIFY(photo.name.isNull());
    QVERIFY(photo.picture.isNull());
}

void LiveVideoWidgetTest::aRecordingLeavesAMovieAndItsStillPicture()
{
    LiveVideoWidget widget;
    widget.Create();
    FakeEngine::script().calls.clear();
    QVERIFY(widget.Record());
    const QString movie = widget.movieFileName();
    const QString still = movie.left(movie.size() - 4) + "tmp.png";
    QVERIFY2(QRegularExpression("/movie\\d{14}\\.mov$").match(movie).hasMatch(), qPrintable(movie));
    QCOMPARE(QFileInfo(movie).path(), WebcamUtil::getTemporaryPath());
    QVERIFY(QFileInfo::exists(movie));
    QVERIFY(!QImage(still).isNull());
    QCOMPARE(FakeEngine::script().calls,
             (QStringList{"Record(" + movie + ')', "IsValidVideoDevice()", "IsValidAudioDevice()",
                          "IsRecording()", "SaveBitmap(" + still + ')'}));
}

void LiveVideoWidgetTest::aRecordingNeedsNoStillPicture()
{
    FakeEngine::script().saveBitmapSucceeds = false;
    LiveVideoWidget widget;
    widget.Create();
    QVERIFY(widget.Record());
    QCOMPARE(FakeEngine::script().recording, widget.movieFileName());
}

void LiveVideoWidgetTest::aRecordingWithAMissingDeviceSaysWhich_data()
{
    QTest::addColumn<bool>("videoWorks");
    QTest::addColumn<bool>("audioWorks");
    QTest::addColumn<QString>("message");
    QTest::addColumn<bool>("videoValid");
    QTest::addColumn<bool>("audioValid");
    QTest::newRow("no microphone")
        << true << false
        << "The audio device is invalid. Please confirm whether the device is correctly connected."
        << true << false;
    QTest::newRow("no camera, yet a microphone")
        << false << true
        << "The video device and the audio device are invalid. "
           "Please confirm whether the device is correctly connected. "
        << false << false;
    QTest::newRow("neither")
        << false << false
        << "The video device is invalid. Please confirm whether the device is correctly connected. "
        << false << true;
}

void LiveVideoWidgetTest::aRecordingWithAMissingDeviceSaysWhich()
{
    QFETCH(bool, videoWorks);
    QFETCH(bool, audioWorks);
    QFETCH(QString, message);
    FakeEngine::script().videoDeviceValid = videoWorks;
    FakeEngine::script().audioDeviceValid = audioWorks;
    MessageReader reader;
    LiveVideoWidget widget;
    widget.Create();
    QVERIFY(!widget.Record());
    QCOMPARE(reader.texts(), QStringList{message});
    QCOMPARE(reader.messages().constFirst().icon, QMessageBox::Warning);
    QTEST(widget.isVideoValid(), "videoValid");
    QTEST(widget.isAudioValid(), "audioValid");
    QCOMPARE(callsOf("Record"), QStringList{"Record(" + widget.movieFileName() + ')'});
    QCOMPARE(FakeEngine::callCount("RecordStop"), 0);
    QCOMPARE(FakeEngine::callCount("SaveBitmap"), 0);
}

void LiveVideoWidgetTest::aRecordingThatDoesNotBeginIsRefusedAndLeavesNothing()
{
    FakeEngine::script().movieBegins = false;
    MessageReader reader;
    LiveVideoWidget widget;
    widget.Create();
    QVERIFY(!widget.Record());
    QCOMPARE(reader.texts(),
             QStringList{"The video device is invalid. "
                         "Please confirm whether the device is correctly connected. "});
    QCOMPARE(reader.messages().constFirst().icon, QMessageBox::Warning);
    QVERIFY(widget.isVideoValid());
    QVERIFY(widget.isAudioValid());
    QCOMPARE(FakeEngine::callCount("SaveBitmap"), 0);
    QCOMPARE(FakeEngine::callCount("RecordStop"), 0);

    FakeEngine::script().movieBegins = true;
    QVERIFY(widget.Record());
    QCOMPARE(reader.texts().size(), 1);
}

void LiveVideoWidgetTest::recordStopFinishesTheMovie()
{
    LiveVideoWidget widget;
    widget.Create();
    QVERIFY(widget.Record());
    const QString movie = widget.movieFileName();
    widget.RecordStop();
    QCOMPARE(FakeEngine::callCount("RecordStop"), 1);
    QCOMPARE(FakeEngine::script().recording, QString());
    QCOMPARE(widget.movieFileName(), movie);
}

void LiveVideoWidgetTest::theMicrophoneIsPresentWhenNothingSpeaksAgainstIt_data()
{
    QTest::addColumn<bool>("refusedBefore");
    QTest::addColumn<bool>("engineFindsIt");
    QTest::addColumn<bool>("present");
    QTest::newRow("found") << false << true << true;
    QTest::newRow("not found") << false << false << false;
    QTest::newRow("found after a recording was refused") << true << true << false;
    QTest::newRow("never found") << true << false << false;
}

void LiveVideoWidgetTest::theMicrophoneIsPresentWhenNothingSpeaksAgainstIt()
{
    QFETCH(bool, refusedBefore);
    QFETCH(bool, engineFindsIt);
    MessageReader reader;
    LiveVideoWidget widget;
    widget.Create();
    if (refusedBefore) {
        FakeEngine::script().audioDeviceValid = false;
        QVERIFY(!widget.Record());
    }
    FakeEngine::script().audioDeviceValid = engineFindsIt;
    QCOMPARE(widget.isAudioDeviceValid(), engineFindsIt);
    QTEST(widget.isAudioPresent(), "present");
}

void LiveVideoWidgetTest::aBurstTakesAPhotoEveryFiveSecondsThenEnds()
{
    QTemporaryDir folder;
    QVERIFY(QDir::setCurrent(folder.path()));
    LiveVideoWidget widget;
    QSignalSpy shotMax(&widget, &LiveVideoWidget::ShotMax);
    widget.Create();
    QVERIFY(QMetaObject::invokeMethod(&widget, "ContinuesShot", Q_ARG(int, 3)));
    QCOMPARE(shotTimerOf(widget)->interval(), 5000);
    QVERIFY(!shotTimerOf(widget)->isSingleShot());
    QCOMPARE(FakeEngine::callCount("SaveBitmap"), 0);
    for (int taken = 1; taken <= 3; ++taken) {
        QCOMPARE(shotMax.count(), 0);
        letBurstTimePass(widget);
        QCOMPARE(FakeEngine::callCount("SaveBitmap"), taken);
    }
    QVERIFY(!shotTimerOf(widget)->isActive());
    QCOMPARE(shotMax.count(), 1);
    const QRegularExpression bareName("^SaveBitmap\\(photo\\d{17}\\.png\\)$");
    QCOMPARE(callsOf("SaveBitmap").filter(bareName).size(), 3);
    QDir::setCurrent(QDir::rootPath());
}

void LiveVideoWidgetTest::aNewBurstCountsFromTheStart()
{
    FakeEngine::script().saveBitmapSucceeds = false; // nothing into the current folder
    LiveVideoWidget widget;
    QSignalSpy shotMax(&widget, &LiveVideoWidget::ShotMax);
    widget.ContinuesShot(3);
    letBurstTimePass(widget);
    widget.ContinuesShot(2);
    letBurstTimePass(widget);
    QCOMPARE(shotMax.count(), 0);
    letBurstTimePass(widget);
    QCOMPARE(shotMax.count(), 1);
}

void LiveVideoWidgetTest::aFailedPhotoCountsInABurst()
{
    FakeEngine::script().saveBitmapSucceeds = false;
    LiveVideoWidget widget;
    QSignalSpy shotMax(&widget, &LiveVideoWidget::ShotMax);
    widget.ContinuesShot(1);
    letBurstTimePass(widget);
    QCOMPARE(shotMax.count(), 1);
}

void LiveVideoWidgetTest::aLostCameraIsPassedOn()
{
    MessageReader reader;
    LiveVideoWidget widget;
    QSignalSpy lost(&widget, &LiveVideoWidget::disconnectDevice);
    widget.Create();
    FakeEngine::loseCamera();
    QCOMPARE(lost.count(), 1);
    QVERIFY(widget.isCreate()); // releasing it is the window's affair
    QCOMPARE(reader.texts(), QStringList());
}

void LiveVideoWidgetTest::aCameraLostOnAnotherThreadIsPassedOnHere()
{
    LiveVideoWidget widget;
    widget.Create();
    QThread *leftFrom = nullptr;
    connect(
        &widget, &LiveVideoWidget::disconnectDevice, &widget,
        [&] { leftFrom = QThread::currentThread(); }, Qt::DirectConnection);
    const std::unique_ptr<QThread> grabber(QThread::create(&FakeEngine::loseCamera));
    grabber->start();
    QVERIFY(grabber->wait(5000));
    QTRY_COMPARE(leftFrom, QThread::currentThread());
}

QTEST_MAIN(LiveVideoWidgetTest)
#include "tst_livevideowidget.moc"
