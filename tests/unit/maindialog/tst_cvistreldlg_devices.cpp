#include "DialogFixture.h"
#include "FakeEngine.h"
#include "LiveVideoWidget.h"
#include "MessageReader.h"
#include "MovieWidget.h"
#include "Patience.h"
#include "PictureListView.h"
#include "PictureWidget.h"
#include "SaveConfirmDlg.h"
#include "SelectDeviceDlg.h"
#include "Setting.h"
#include "SleepWatch.h"
#include "TimerWidget.h"

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QDate>
#include <QDir>
#include <QFile>
#include <QMessageBox>
#include <QPointer>
#include <QProcess>
#include <QTimer>

namespace {

constexpr int glanceMs = 10;

// The blank at the end belongs to the text.
const QString lossText = QStringLiteral("The video device is invalid. Please confirm whether the "
                                        "device is correctly connected. ");
const QStringList lostButtons{"List", "Close"};
const QStringList liveButtons{"Live", "Photo", "PhotoMulti", "Movie", "List", "Settings", "Close"};

// The user in front of modal boxes: waits for them one after the other and does something with
// each. When a box does not come, or another one comes, all boxes are closed after a while.
class BoxUser : public QObject {
public:
    using Deed = std::function<void(QWidget &box)>;
    struct Step {
        const char *boxClass;
        Deed deed;
    };

    explicit BoxUser(QVector<Step> steps)
        : m_steps(std::move(steps))
    {
        auto *glance = new QTimer(this);
        connect(glance, &QTimer::timeout, this, &BoxUser::look);
        glance->start(glanceMs);
        auto *end = new QTimer(this);
        end->setSingleShot(true);
        connect(end, &QTimer::timeout, this, [this] { m_givenUp = true; });
        end->start(patience);
    }

    bool hasDoneAll() const { return m_done == m_steps.size() && !m_givenUp; }

private:
    void look()
    {
        QWidget *box = QApplication::activeModalWidget();
        if (box != m_lastBox)
            m_lastBox = nullptr; // a box that comes back is met anew
        if (!box || !box->isVisible())
            return;
        if (m_givenUp) {
            box->close();
        } else if (box != m_lastBox && m_done < m_steps.size()
                   && box->inherits(m_steps[m_done].boxClass)) {
            const Deed deed = m_steps[m_done++].deed;
            m_lastBox = box;
            // From the event loop, so that the glances go on in whatever the deed opens.
            QTimer::singleShot(0, box, [deed, box] { deed(*box); });
        }
    }

    QVector<Step> m_steps;
    int m_done = 0;
    QPointer<QWidget> m_lastBox;
    bool m_givenUp = false;
};

void pressIn(QWidget &box, const QString &caption)
{
    const auto buttons = box.findChildren<QAbstractButton *>();
    for (QAbstractButton *button : buttons) {
        if (QString(button->text()).remove(QLatin1Char('&')) == caption) {
            button->click();
            return;
        }
    }
    QFAIL(qPrintable(QStringLiteral("no button ") + caption));
}

// What a user does with a box: a button of it, by its caption.
BoxUser::Deed press(const QString &caption)
{
    return [caption](QWidget &box) { pressIn(box, caption); };
}

void loseCamera(QWidget &)
{
    FakeEngine::loseCamera();
}

void selectInStrip(const DialogFixture &fixture, int count)
{
    auto &strip = fixture.child<PictureListView>();
    for (int row = 0; row < count; ++row)
        strip.item(row)->setSelected(true);
    QTRY_VERIFY(fixture.usableButtons().contains(QStringLiteral("Show")));
}

} // namespace

/** Cameras that are many, missing or lost. */
class DevicesTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();

    void oneCameraIsUsedWithoutAsking();
    void noCameraAsksNothing();
    void theChosenCameraIsUsed_data();
    void theChosenCameraIsUsed();
    void aCameraThatIsHeardOfLateIsAskedForToo();
    void aServerThatNeverAnswersDoesNotKeepTheWindowAway();
    void theChooserStandsInTheMiddleOfTheDesktop();
    void aClosedChooserLeavesNoCameraAndNoWindow();

    void whatIsMissingAtStartIsReportedOnce_data();
    void whatIsMissingAtStartIsReportedOnce();
    void aMissingMicrophoneLeavesEveryButtonUsable();
    void aMicrophoneIsLookedForAgainWhenTheCameraIs();

    void aCameraThatIsLostInTheComputersSleepComesBack();
    void aCameraThatDoesNotComeBackAfterTheSleepIsReported();
    void whoLooksAtTheListMeanwhileIsNotDisturbed();
    void aRecordingThatEndedInTheSleepIsReported();
    void aLossLeavesTheLiveScreenWithListAndExit_data();
    void aLossLeavesTheLiveScreenWithListAndExit();
    void aCountdownStandsStillWhileTheMessageStands();
    void aLossPausesPlaybackAndListAndViewPlayItAgain();
    void deadButtonsDoNothingAfterALoss();
    void aCameraThatStaysAwayLeavesTheErrorScreen();
    void anInterruptedRecordingLeavesItsMovieInTheList();
    void aFullDiskIsNotReportedBesidesALoss();

    void aLossInTheSettingsIsToldAboveThem_data();
    void aLossInTheSettingsIsToldAboveThem();
    void aLossAtTheSaveQuestionIsToldAboveIt_data();
    void aLossAtTheSaveQuestionIsToldAboveIt();
    void aLossAtTheDiskWarningIsToldAboveIt();
    void aLossAtTheDiskWarningOfTheStartIsToldToo();
    void aLossAtTheMicrophoneWarningIsToldAboveIt();
    void aWindowClosedUnderTheMessageStaysClosed();

    void fiftyLossesLeaveNothingBehind();

private:
    using Story = void (*)(DialogFixture &);
    static void addScreens();
    static Story storyOf(const QString &screen);
    void makeMovie(const QString &path) const;

    QTemporaryDir m_folder;
    QString m_movie;
};

void DevicesTest::initTestCase()
{
    // As the program does it, before the first player is made.
    qputenv("PHONON_GST_VIDEOMODE", "software");
    m_movie = m_folder.filePath("movie.mov");
    QProcess recorder;
    recorder.start("gst-launch-1.0",
                   {"-q", "videotestsrc", "num-buffers=100", "!",
                    "video/x-raw,format=I420,width=160,height=120,framerate=20/1", "!", "x264enc",
                    "tune=zerolatency", "key-int-max=10", "!", "qtmux", "!", "filesink",
                    "location=" + m_movie});
    QVERIFY(recorder.waitForFinished(30000));
    QVERIFY2(recorder.exitCode() == 0, recorder.readAllStandardError().constData());
}

// --- At start ------------------------------------------------------------------------------

void DevicesTest::oneCameraIsUsedWithoutAsking()
{
    DialogFixture fixture;
    QCOMPARE(DialogFixture::boxDuring([&] { fixture.build(); }), QString());
    QCOMPARE(FakeEngine::script().videoDevice, 0);
    QVERIFY(fixture.child<LiveVideoWidget>().isVisible());
}

void DevicesTest::noCameraAsksNothing()
{
    DialogFixture fixture;
    FakeEngine::script().deviceNames.clear();
    FakeEngine::script().videoPresent = false;
    QCOMPARE(DialogFixture::boxDuring([&] { fixture.build(); }), QString());
    QVERIFY(fixture.dialog().isDeviceSelected());
    QCOMPARE(FakeEngine::callCount("SetVideoDevice"), 0);
    QVERIFY(fixture.dialog().hasError());
    QVERIFY(!fixture.child<LiveVideoWidget>().isVisible());
    QCOMPARE(fixture.usableButtons(), lostButtons);
}

void DevicesTest::theChosenCameraIsUsed_data()
{
    QTest::addColumn<int>("entry");
    QTest::addColumn<int>("device");
    QTest::newRow("the own camera on top") << 0 << 1;
    QTest::newRow("the second entry") << 1 << 0;
    QTest::newRow("the last entry") << 2 << 2;
}

void DevicesTest::theChosenCameraIsUsed()
{
    QFETCH(int, entry);
    QFETCH(int, device);
    DialogFixture fixture;
    FakeEngine::script().deviceNames = QStringList{"A", "Tavelin VX-2K", "C"};
    const BoxUser user({{"SelectDeviceDlg", [entry](QWidget &box) {
                             box.findChild<QComboBox *>()->setCurrentIndex(entry);
                             pressIn(box, QStringLiteral("OK"));
                         }}});
    fixture.build();
    QVERIFY(user.hasDoneAll());
    QVERIFY(fixture.dialog().isDeviceSelected());
    QCOMPARE(FakeEngine::script().videoDevice, device);
    const QStringList calls = FakeEngine::script().calls;
    QVERIFY(calls.indexOf(QStringLiteral("SetVideoDevice(%1)").arg(device))
            < calls.indexOf(QStringLiteral("Create()")));
    QCOMPARE(fixture.usableButtons(), liveButtons);
}

void DevicesTest::aCameraThatIsHeardOfLateIsAskedForToo()
{
    DialogFixture fixture;
    FakeEngine::script().deviceNames = QStringList{"A", "B"};
    FakeEngine::script().hastyLists = 3;
    const BoxUser user({{"SelectDeviceDlg", [](QWidget &box) {
                             box.findChild<QComboBox *>()->setCurrentIndex(1);
                             pressIn(box, QStringLiteral("OK"));
                         }}});
    fixture.build();
    QVERIFY(user.hasDoneAll());
    QCOMPARE(FakeEngine::script().videoDevice, 1);
}

void DevicesTest::aServerThatNeverAnswersDoesNotKeepTheWindowAway()
{
    DialogFixture fixture;
    FakeEngine::script().hastyLists = 1000;
    fixture.build();
    QCOMPARE(fixture.usableButtons(), liveButtons);
    QCOMPARE(FakeEngine::callCount("GetVideoDeviceList"), 4);
}

void DevicesTest::theChooserStandsInTheMiddleOfTheDesktop()
{
    DialogFixture fixture;
    FakeEngine::script().deviceNames = QStringList{"A", "B"};
    QRect place;
    const BoxUser user({{"SelectDeviceDlg", [&place](QWidget &box) {
                             place = QRect(box.pos(), box.size());
                             pressIn(box, QStringLiteral("OK"));
                         }}});
    fixture.build();
    QVERIFY(user.hasDoneAll());
    QCOMPARE(place.topLeft(), QPoint((800 - place.width()) / 2, (600 - place.height()) / 2));
}

void DevicesTest::aClosedChooserLeavesNoCameraAndNoWindow()
{
    DialogFixture fixture;
    FakeEngine::script().deviceNames = QStringList{"A", "B"};
    const MessageReader reader;
    const BoxUser user({{"SelectDeviceDlg", [](QWidget &box) { box.close(); }}});
    fixture.build();
    QVERIFY(user.hasDoneAll());
    QVERIFY(!fixture.dialog().isDeviceSelected());
    QVERIFY(!fixture.dialog().isVisible());
    QCOMPARE(FakeEngine::callCount("SetVideoDevice"), 0);
    QCOMPARE(FakeEngine::callCount("Create"), 0);
    QCOMPARE(reader.texts(), QStringList());
}

void DevicesTest::whatIsMissingAtStartIsReportedOnce_data()
{
    QTest::addColumn<bool>("camera");
    QTest::addColumn<bool>("microphone");
    QTest::addColumn<QStringList>("texts");
    QTest::newRow("nothing") << true << true << QStringList();
    QTest::newRow("the microphone") << true << false << QStringList{"Cannot find Audio Devices."};
    QTest::newRow("the camera") << false << true << QStringList{"Cannot find Video Devices."};
    QTest::newRow("both") << false << false << QStringList{"Cannot find Video / Audio Devices."};
}

void DevicesTest::whatIsMissingAtStartIsReportedOnce()
{
    QFETCH(bool, camera);
    QFETCH(bool, microphone);
    QFETCH(QStringList, texts);
    DialogFixture fixture;
    FakeEngine::script().videoPresent = camera;
    FakeEngine::script().audioDeviceValid = microphone;
    const MessageReader reader;
    fixture.build().chkdevice();
    QCOMPARE(reader.texts(), texts);
    for (const MessageReader::Message &message : reader.messages())
        QCOMPARE(message.icon, QMessageBox::Warning);
    QCOMPARE(fixture.usableButtons(), camera ? liveButtons : lostButtons);
}

void DevicesTest::aMissingMicrophoneLeavesEveryButtonUsable()
{
    DialogFixture fixture;
    FakeEngine::script().audioDeviceValid = false;
    const MessageReader reader;
    fixture.build().chkdevice();
    QVERIFY(!fixture.dialog().hasError());
    fixture.click("Photo");
    fixture.click("Retry");
    QCOMPARE(fixture.usableButtons(), liveButtons);
    QCOMPARE(reader.texts().size(), 1);
}

void DevicesTest::aMicrophoneIsLookedForAgainWhenTheCameraIs()
{
    DialogFixture fixture;
    FakeEngine::script().videoPresent = false;
    FakeEngine::script().audioDeviceValid = false;
    const MessageReader reader;
    CVistrelDlg &dialog = fixture.build();
    fixture.click("List");
    FakeEngine::script().videoPresent = true;
    FakeEngine::script().audioDeviceValid = true;
    fixture.click("Live");
    dialog.chkdevice(); // has nothing to report any more
    QCOMPARE(reader.texts(), QStringList());
}

// --- Lost while running --------------------------------------------------------------------

// From the live screen to the one of a row's name.
DevicesTest::Story DevicesTest::storyOf(const QString &screen)
{
    static const QHash<QString, Story> stories{
        {"live", [](DialogFixture &) {}},
        {"preview", [](DialogFixture &fixture) { fixture.click("Photo"); }},
        {"accepted photo",
         [](DialogFixture &fixture) {
             fixture.click("Photo");
             fixture.click("Apply");
         }},
        {"series with the countdown running",
         [](DialogFixture &fixture) {
             fixture.child<TimerWidget>().setTickInterval(20);
             fixture.click("PhotoMulti");
             QTRY_COMPARE(fixture.captures().size(), 1);
         }},
        {"series just taken",
         [](DialogFixture &fixture) {
             fixture.child<TimerWidget>().setTickInterval(20);
             fixture.click("PhotoMulti");
             QTRY_COMPARE(fixture.captures().size(), 2);
             QTRY_VERIFY(!fixture.child<PictureListView>().isVisible());
         }},
        {"recording", [](DialogFixture &fixture) { fixture.click("Movie"); }},
        {"movie just recorded",
         [](DialogFixture &fixture) {
             fixture.click("Movie");
             fixture.click("MovieStop");
         }},
        {"list",
         [](DialogFixture &fixture) {
             fixture.click("Photo");
             fixture.click("Apply");
             fixture.click("List");
             selectInStrip(fixture, 1);
         }},
        {"tiles",
         [](DialogFixture &fixture) {
             storyOf("series just taken")(fixture);
             fixture.click("List");
             selectInStrip(fixture, 2);
             fixture.click("Show");
         }},
        {"zoom",
         [](DialogFixture &fixture) {
             storyOf("tiles")(fixture);
             const auto views = fixture.dialog().findChildren<PictureWidget *>(
                 QString(), Qt::FindDirectChildrenOnly);
             fixture.dialog().OnZoom(views.last());
             QVERIFY(views.last()->isVisible());
         }},
    };
    return stories.value(screen);
}

void DevicesTest::addScreens()
{
    QTest::addColumn<QString>("screen");
    for (const char *screen :
         {"live", "preview", "accepted photo", "series with the countdown running",
          "series just taken", "recording", "movie just recorded", "list", "tiles", "zoom"})
        QTest::newRow(screen) << QString(screen);
}

// The computer was asleep when the camera went.
static void loseCameraInSleep(DialogFixture &fixture)
{
    fixture.child<SleepWatch>().setClock([asleep = 0]() mutable { return asleep += 60000; });
    FakeEngine::script().videoPresent = false;
    FakeEngine::loseCamera();
}

void DevicesTest::aCameraThatIsLostInTheComputersSleepComesBack()
{
    DialogFixture fixture;
    fixture.build();
    const QStringList usable = fixture.usableButtons();
    const MessageReader reader;
    loseCameraInSleep(fixture);
    QCOMPARE(fixture.usableButtons(), lostButtons);
    FakeEngine::script().videoPresent = true;
    QTRY_VERIFY(fixture.child<LiveVideoWidget>().isVisible());
    QVERIFY(FakeEngine::script().started);
    QCOMPARE(fixture.usableButtons(), usable);
    QCOMPARE(reader.texts(), QStringList());
}

void DevicesTest::aCameraThatDoesNotComeBackAfterTheSleepIsReported()
{
    DialogFixture fixture;
    CVistrelDlg &dialog = fixture.build();
    const MessageReader reader;
    loseCameraInSleep(fixture);
    QTRY_COMPARE(reader.texts(), QStringList{lossText});
    QCOMPARE(dialog.displayMode(), LiveMode);
    QCOMPARE(fixture.usableButtons(), lostButtons);
}

void DevicesTest::whoLooksAtTheListMeanwhileIsNotDisturbed()
{
    DialogFixture fixture;
    CVistrelDlg &dialog = fixture.build();
    const MessageReader reader;
    loseCameraInSleep(fixture);
    fixture.click("List");
    FakeEngine::script().videoPresent = true;
    QVERIFY(!QTest::qWaitFor([&] { return dialog.displayMode() != ListMode; }, 1500));
    QVERIFY(!fixture.child<LiveVideoWidget>().isVisible());
    fixture.click("Live");
    QVERIFY(fixture.child<LiveVideoWidget>().isVisible());
    QCOMPARE(reader.texts(), QStringList());
}

void DevicesTest::aRecordingThatEndedInTheSleepIsReported()
{
    DialogFixture fixture;
    fixture.build();
    fixture.click("Movie");
    const MessageReader reader;
    loseCameraInSleep(fixture);
    QCOMPARE(reader.texts(), QStringList{lossText});
}

void DevicesTest::aLossLeavesTheLiveScreenWithListAndExit_data()
{
    addScreens();
}

void DevicesTest::aLossLeavesTheLiveScreenWithListAndExit()
{
    QFETCH(QString, screen);
    DialogFixture fixture;
    fixture.setSettings("AutoShoot=1\nAutoShootTime=1\nContinuShootCount=2\n");
    CVistrelDlg &dialog = fixture.build();
    storyOf(screen)(fixture);
    QVERIFY(!QTest::currentTestFailed());

    const QStringList kept = fixture.captures();
    const MessageReader reader;
    FakeEngine::loseCamera();
    QCOMPARE(reader.texts(), QStringList{lossText});
    QCOMPARE(reader.messages().first().icon, QMessageBox::Warning);
    QCOMPARE(FakeEngine::callCount("Release"), 1);
    QCOMPARE(dialog.displayMode(), LiveMode);
    QCOMPARE(fixture.usableButtons(), lostButtons);
    const auto views = dialog.findChildren<PictureWidget *>(QString(), Qt::FindDirectChildrenOnly);
    for (const PictureWidget *view : views)
        QVERIFY(!view->isVisible());
    QVERIFY(!fixture.child<LiveVideoWidget>().isVisible());
    QVERIFY(!fixture.child<MovieWidget>().isVisible());
    QVERIFY(!fixture.child<PictureListView>().isVisible());
    QVERIFY(!fixture.child<TimerWidget>().isVisible());
    QTest::qWait(60); // nothing to wait for: a photo that must not be taken
    QCOMPARE(fixture.captures(), kept);

    fixture.click("List");
    QVERIFY(fixture.child<PictureListView>().isVisible());
    fixture.click("Live");
    QCOMPARE(fixture.usableButtons(), liveButtons);
    QVERIFY(fixture.child<LiveVideoWidget>().isVisible());
    QCOMPARE(fixture.child<LiveVideoWidget>().geometry(), dialog.videoRect());
    QVERIFY(FakeEngine::script().started);
    QCOMPARE(fixture.captures(), kept);
    QCOMPARE(reader.texts().size(), 1);
}

void DevicesTest::aCountdownStandsStillWhileTheMessageStands()
{
    DialogFixture fixture;
    fixture.setSettings("AutoShoot=1\nAutoShootTime=30\n");
    fixture.build();
    auto &countdown = fixture.child<TimerWidget>();
    countdown.setTickInterval(20);
    fixture.click("PhotoMulti");
    QTRY_VERIFY(!countdown.text().isEmpty());
    QStringList shown;
    const BoxUser user({{"QMessageBox", [&](QWidget &box) {
                             shown.append(countdown.text());
                             QTest::qWait(100); // nothing to wait for: a tick that must not come
                             shown.append(countdown.text());
                             pressIn(box, QStringLiteral("OK"));
                         }}});
    FakeEngine::loseCamera();
    QVERIFY(user.hasDoneAll());
    QCOMPARE(shown.value(1), shown.value(0));
}

void DevicesTest::aLossPausesPlaybackAndListAndViewPlayItAgain()
{
    DialogFixture fixture;
    CVistrelDlg &dialog = fixture.build();
    const QString stem = fixture.temporaryArea() + QStringLiteral("/movie20240229101500");
    QVERIFY(QFile::copy(m_movie, stem + QStringLiteral(".mov")));
    QVERIFY(QImage(16, 12, QImage::Format_RGB32).save(stem + QStringLiteral("tmp.png")));
    const auto showTheMovie = [&fixture] {
        fixture.click("List");
        fixture.click("SwitchMovie");
        selectInStrip(fixture, 1);
        fixture.click("Show");
    };
    showTheMovie();
    auto &player = fixture.child<MovieWidget>();
    fixture.click("MoviePlay");
    QTRY_VERIFY(player.isPlaying() && player.currentTime() > 0);

    QString told;
    const BoxUser user({{"QMessageBox", [&](QWidget &box) {
                             told = static_cast<QMessageBox &>(box).text();
                             QTRY_VERIFY(!player.isPlaying());
                             pressIn(box, QStringLiteral("OK"));
                         }}});
    FakeEngine::loseCamera();
    QVERIFY(user.hasDoneAll());
    QCOMPARE(told, lossText);
    QVERIFY(!player.isPlaying());
    QVERIFY(player.currentTime() > 0); // paused, not stopped
    QCOMPARE(dialog.displayMode(), LiveMode);
    QCOMPARE(fixture.usableButtons(), lostButtons);

    showTheMovie();
    QCOMPARE(fixture.usableButtons(), (QStringList{"Live", "List", "Close", "MoviePlay"}));
    fixture.click("MoviePlay");
    QTRY_VERIFY(player.isPlaying() && player.currentTime() > 0);
}

void DevicesTest::deadButtonsDoNothingAfterALoss()
{
    DialogFixture fixture;
    CVistrelDlg &dialog = fixture.build();
    const MessageReader reader;
    FakeEngine::loseCamera();
    const QStringList calls = FakeEngine::script().calls;
    for (const char *name : {"Live", "Photo", "PhotoMulti", "Movie", "Settings"})
        fixture.click(name);
    QCOMPARE(FakeEngine::script().calls, calls);
    QCOMPARE(dialog.displayMode(), LiveMode);
    QCOMPARE(fixture.captures(), QStringList());
    QCOMPARE(reader.texts().size(), 1);
    fixture.click("Close");
    QVERIFY(!dialog.isVisible());
}

void DevicesTest::aCameraThatStaysAwayLeavesTheErrorScreen()
{
    DialogFixture fixture;
    CVistrelDlg &dialog = fixture.build();
    const MessageReader reader;
    FakeEngine::loseCamera();
    FakeEngine::script().videoPresent = false;
    fixture.click("List");
    fixture.click("Live");
    QVERIFY(dialog.hasError());
    QVERIFY(!fixture.child<LiveVideoWidget>().isVisible());
    QCOMPARE(fixture.usableButtons(), lostButtons);
    QCOMPARE(reader.texts().size(), 1);
}

void DevicesTest::anInterruptedRecordingLeavesItsMovieInTheList()
{
    DialogFixture fixture;
    fixture.build();
    const MessageReader reader;
    fixture.click("Movie");
    const QString movie = QFileInfo(FakeEngine::script().recording).fileName();
    QVERIFY(fixture.captures().contains(movie));
    FakeEngine::loseCamera();
    fixture.click("List");
    auto &strip = fixture.child<PictureListView>();
    QVERIFY(strip.movieMode());
    QCOMPARE(strip.count(), 1);
    QCOMPARE(strip.item(0)->text(), movie);
    fixture.click("Live");
    fixture.click("Movie"); // the interrupted recording does not block the next one
    QCOMPARE(FakeEngine::callCount("Record"), 2);
    QVERIFY(fixture.button("MovieStop").isVisible());
}

void DevicesTest::aFullDiskIsNotReportedBesidesALoss()
{
    DialogFixture fixture;
    fixture.build();
    DialogFixture::fillTheDisk();
    const MessageReader reader;
    FakeEngine::loseCamera();
    QCOMPARE(reader.texts(), QStringList{lossText});
    QCOMPARE(fixture.usableButtons(), lostButtons);
}

// --- Lost under a modal box ----------------------------------------------------------------

void DevicesTest::aLossInTheSettingsIsToldAboveThem_data()
{
    QTest::addColumn<QString>("answer");
    QTest::newRow("cancelled") << "Cancel";
    QTest::newRow("accepted") << "OK";
}

void DevicesTest::aLossInTheSettingsIsToldAboveThem()
{
    QFETCH(QString, answer);
    DialogFixture fixture;
    CVistrelDlg &dialog = fixture.build();
    QString told;
    const BoxUser user({{"Setting", loseCamera},
                        {"QMessageBox",
                         [&](QWidget &box) {
                             told = static_cast<QMessageBox &>(box).text();
                             QVERIFY(fixture.child<Setting>().isVisible());
                             pressIn(box, QStringLiteral("OK"));
                         }},
                        {"Setting", press(answer)}});
    fixture.click("Settings");
    QVERIFY(user.hasDoneAll());
    QCOMPARE(told, lossText);
    QVERIFY(!QApplication::activeModalWidget());
    QVERIFY(dialog.isVisible());
    QCOMPARE(dialog.displayMode(), LiveMode);
    QCOMPARE(fixture.usableButtons(), lostButtons);
    fixture.click("List");
    fixture.click("Live");
    QCOMPARE(fixture.usableButtons(), liveButtons);
}

void DevicesTest::aLossAtTheSaveQuestionIsToldAboveIt_data()
{
    QTest::addColumn<QString>("answer");
    QTest::addColumn<bool>("stays");
    QTest::newRow("saved") << "Yes" << false;
    QTest::newRow("discarded") << "No" << false;
    QTest::newRow("cancelled") << "Cancel" << true;
}

void DevicesTest::aLossAtTheSaveQuestionIsToldAboveIt()
{
    QFETCH(QString, answer);
    QFETCH(bool, stays);
    DialogFixture fixture;
    CVistrelDlg &dialog = fixture.build();
    fixture.click("Photo");
    fixture.click("Apply");
    const QStringList photos = fixture.captures();
    QString told;
    const BoxUser user({{"SaveConfirmDlg", loseCamera},
                        {"QMessageBox",
                         [&told](QWidget &box) {
                             told = static_cast<QMessageBox &>(box).text();
                             pressIn(box, QStringLiteral("OK"));
                         }},
                        {"SaveConfirmDlg", press(answer)}});
    fixture.click("Close");
    QVERIFY(user.hasDoneAll());
    QCOMPARE(told, lossText);
    QCOMPARE(dialog.isVisible(), stays);
    QVERIFY(!QApplication::activeModalWidget());
    QCOMPARE(FakeEngine::callCount("Release"), 1); // by the loss; closing finds nothing open
    const QDir saved(fixture.home() + QStringLiteral("/TavelinCamera/")
                     + QDate::currentDate().toString(QStringLiteral("yyyyMMdd")));
    QCOMPARE(saved.entryList(QDir::Files), answer == QLatin1String("Yes") ? photos : QStringList());
    QCOMPARE(fixture.captures(), stays ? photos : QStringList());
    if (stays)
        QCOMPARE(fixture.usableButtons(), lostButtons);
}

void DevicesTest::aLossAtTheDiskWarningIsToldAboveIt()
{
    DialogFixture fixture;
    CVistrelDlg &dialog = fixture.build();
    DialogFixture::fillTheDisk();
    QStringList told;
    const auto confirm = [&told](QWidget &box) {
        told.append(static_cast<QMessageBox &>(box).text());
        pressIn(box, QStringLiteral("OK"));
    };
    const BoxUser user(
        {{"QMessageBox", loseCamera}, {"QMessageBox", confirm}, {"QMessageBox", confirm}});
    fixture.click("Photo");
    QVERIFY(user.hasDoneAll());
    QCOMPARE(told.value(0), lossText);
    QVERIFY(told.value(1).startsWith(QStringLiteral("The disk free space is insufficient.\n")));
    QCOMPARE(dialog.displayMode(), LiveMode);
    QCOMPARE(FakeEngine::callCount("SaveBitmap"), 0);
    QCOMPARE(fixture.usableButtons(), lostButtons);
}

void DevicesTest::aLossAtTheDiskWarningOfTheStartIsToldToo()
{
    DialogFixture fixture;
    DialogFixture::fillTheDisk();
    QString told;
    const BoxUser user({{"QMessageBox", loseCamera},
                        {"QMessageBox",
                         [&told](QWidget &box) {
                             told = static_cast<QMessageBox &>(box).text();
                             pressIn(box, QStringLiteral("OK"));
                         }},
                        {"QMessageBox", press(QStringLiteral("OK"))}});
    fixture.build();
    QVERIFY(user.hasDoneAll());
    QCOMPARE(told, lossText);
    QVERIFY(!fixture.child<LiveVideoWidget>().isVisible());
    QCOMPARE(fixture.usableButtons(), lostButtons);

    const MessageReader reader; // the disk is still full
    fixture.click("List");
    fixture.click("Live");
    QCOMPARE(FakeEngine::callCount("Create"), 2);
    QVERIFY(fixture.child<LiveVideoWidget>().isVisible());
}

void DevicesTest::aLossAtTheMicrophoneWarningIsToldAboveIt()
{
    DialogFixture fixture;
    fixture.build();
    FakeEngine::script().audioDeviceValid = false;
    const BoxUser user({{"QMessageBox", loseCamera},
                        {"QMessageBox", press(QStringLiteral("OK"))},
                        {"QMessageBox", press(QStringLiteral("OK"))}});
    fixture.click("Movie");
    QVERIFY(user.hasDoneAll());
    QVERIFY(!fixture.button("MovieStop").isVisible());
    QCOMPARE(fixture.usableButtons(), lostButtons);
}

void DevicesTest::aWindowClosedUnderTheMessageStaysClosed()
{
    DialogFixture fixture;
    CVistrelDlg &dialog = fixture.build();
    fixture.click("Photo");
    const QStringList photos = fixture.captures();
    const BoxUser user({{"QMessageBox", [&dialog](QWidget &box) {
                             dialog.close();
                             pressIn(box, QStringLiteral("OK"));
                         }}});
    FakeEngine::loseCamera();
    QVERIFY(user.hasDoneAll());
    QVERIFY(!dialog.isVisible());
    QVERIFY(!dialog.findChild<LiveVideoWidget *>());
    QCOMPARE(fixture.captures(), photos);
}

void DevicesTest::fiftyLossesLeaveNothingBehind()
{
    DialogFixture fixture;
    CVistrelDlg &dialog = fixture.build();
    const MessageReader reader;
    int children = 0;
    for (int round = 1; round <= 50; ++round) {
        FakeEngine::loseCamera();
        QCOMPARE(reader.texts().size(), round);
        fixture.click("List");
        fixture.click("Live");
        QCOMPARE(fixture.usableButtons(), liveButtons);
        if (round == 1) // the first makes what is made on first use
            children = dialog.findChildren<QObject *>().size();
    }
    QCOMPARE(dialog.findChildren<QObject *>().size(), children);
}

QTEST_MAIN(DevicesTest)
#include "tst_cvistreldlg_devices.moc"
