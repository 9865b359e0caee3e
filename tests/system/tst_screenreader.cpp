// Needs the desktop's accessibility bus (at-spi2-core), which is made for each test.

#include "LabCommands.h"
#include "Patience.h"
#include "ScreenReader.h"
#include "Session.h"

#include <QRegularExpression>

#include <algorithm>
#include <memory>

// The program as somebody has it who does not see it: all that a screen shows has a name and says
// what it is and what state it is in, and what happens is said.
class TestScreenReader : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void everyScreenOfPhotosIsTold();
    void everyScreenOfMoviesIsTold();
    void theChooserOfCamerasIsTold();
    void theSettingsAreTold();
    void theQuestionAtTheEndIsTold();
    void namesAreInTheLanguageOfTheUser();
    void aPhotoIsSaidToBeTaken();
    void theSecondsToAPhotoAndItsNumberAreSaid();
    void aRecordingIsSaidToBeginAndToEnd();
    void aLostCameraIsTold();
    void aButtonCanBePressedThroughTheReader();

private:
    using Thing = ScreenReader::Thing;

    bool start();
    QStringList told() const;
    bool isFocused(const QString &name) const;
    bool isRunningTimeTold() const;

    std::unique_ptr<ScreenReader> m_reader;
    std::unique_ptr<Session> m_user;
};

static constexpr int fingerWidth = 44; // px

void TestScreenReader::init()
{
    m_reader = std::make_unique<ScreenReader>();
    QVERIFY(m_reader->isListening());
    m_user = std::make_unique<Session>(ORVANTA_PROGRAM, "cam1", QSize(1280, 720));
}

void TestScreenReader::cleanup()
{
    m_user.reset();
    m_reader.reset();
}

bool TestScreenReader::start()
{
    return m_user->startLive()
        && QTest::qWaitFor([this] { return m_reader->follow(m_user->program().pid()); }, patience);
}

// "push button List", with "-" in front of what cannot be used, in the order of the reader. Texts
// and what only holds others are left out. What a finger could miss says so.
QStringList TestScreenReader::told() const
{
    static const QStringList silent{"frame", "filler", "label", "alert message", "dialog"};
    QStringList told;
    for (const Thing &thing : m_reader->shown()) {
        if (silent.contains(thing.role))
            continue;
        const bool isUsable = thing.is("enabled") && thing.is("sensitive");
        const bool isSmall = qMin(thing.place.width(), thing.place.height()) < fingerWidth;
        told.append((isUsable ? QString() : "-") + thing.role + ' ' + thing.name
                    + (isSmall ? ", too small" : ""));
    }
    return told;
}

bool TestScreenReader::isFocused(const QString &name) const
{
    for (const Thing &thing : m_reader->shown())
        if (thing.is("focused") && thing.name == name)
            return true;
    return false;
}

// Whatever second it is by the time that a busy machine has answered.
bool TestScreenReader::isRunningTimeTold() const
{
    static const QRegularExpression running(QStringLiteral("^(?!00:00)[0-9]{2}:[0-9]{2}$"));
    const QVector<Thing> things = m_reader->shown();
    return std::any_of(things.begin(), things.end(), [](const Thing &thing) {
        return thing.role == "label" && running.match(thing.name).hasMatch();
    });
}

void TestScreenReader::everyScreenOfPhotosIsTold()
{
    QVERIFY(start());
    const QStringList live{
        "push button Live",  "push button Photo",   "push button Continuous Capture",
        "push button Movie", "push button List",    "push button Settings",
        "push button Exit",  "graphic Live picture"};
    QTRY_COMPARE(told(), live);
    QVERIFY(isFocused("Live"));

    QVERIFY(m_user->takePhotoForPreview());
    QTRY_COMPARE(
        told(),
        (QStringList{"-push button Live", "-push button Photo", "-push button Continuous Capture",
                     "-push button Movie", "-push button List", "-push button Settings",
                     "-push button Exit", "push button Accept", "push button Retry",
                     "graphic Live picture", "graphic Photo Still"}));
    QVERIFY(m_user->pressWhenReady(WindowMap::PreviewScreen, "Apply"));
    QTRY_COMPARE(told(),
                 (QStringList{"push button Live", "push button List", "push button Exit",
                              "push button Paste", "graphic Photo Still"}));

    QVERIFY(m_user->pressWhenReady(WindowMap::PhotoScreen, "Live"));
    QVERIFY(m_user->pressWhenReady(WindowMap::LiveScreen, "PhotoMulti"));
    QTRY_COMPARE(
        told(),
        (QStringList{"push button Live", "-push button Photo", "push button Continuous Capture",
                     "-push button Movie", "-push button List", "-push button Exit",
                     "graphic Live picture", "graphic Photo", "list Captured pictures"}));
    for (int taken = 1; taken <= 4; ++taken) {
        QVERIFY(m_user->pressWhenReady(WindowMap::LiveScreen, "PhotoMulti"));
        QTRY_COMPARE(m_user->program().captured().size(), taken + 1);
    }
    const QStringList rowOfTiles{"push button Live", "push button List", "push button Exit",
                                 "push button Paste"};
    QStringList tiles = rowOfTiles;
    for (int i = 1; i <= 4; ++i)
        tiles << "graphic Photo " + QString::number(i) << "push button Enlarge this photo";
    QTRY_COMPARE(told(), tiles);

    m_user->desktop().click(m_user->map().cornerButton(m_user->map().tile(4, 0)));
    QTRY_COMPARE(told(),
                 rowOfTiles + QStringList({"graphic Photo", "push button Back to all photos"}));

    QVERIFY(m_user->pressWhenReady(WindowMap::PhotoScreen, "List"));
    const QStringList files = m_user->program().captured();
    QStringList list{"push button Live", "push button Exit", "-push button View",
                     "push button Photo / Movie", "list Captured pictures"};
    for (const QString &file : files)
        list.append("list item " + file);
    QTRY_COMPARE(told(), list);
    m_user->desktop().click(m_user->map().thumbnail(0).center());
    QTRY_VERIFY(m_reader->find("list item", files[0]).is("selected"));
    QVERIFY(!m_reader->find("list item", files[1]).is("selected"));
    QVERIFY(m_reader->find("push button", "View").is("sensitive"));
    QVERIFY(m_reader->find("graphic", "Photo").isValid());
}

void TestScreenReader::everyScreenOfMoviesIsTold()
{
    QVERIFY(start());
    QVERIFY(m_user->beginMovie());
    QTRY_COMPARE(
        told(),
        (QStringList{"-push button Live", "-push button Photo", "-push button Continuous Capture",
                     "push button Stop", "-push button List", "-push button Settings",
                     "-push button Exit", "graphic Live picture"}));
    QTRY_VERIFY(isRunningTimeTold());
    QVERIFY(m_user->pressWhenReady(WindowMap::RecordingScreen, "MovieStop"));
    const QStringList waiting{"push button Live", "push button List", "push button Exit",
                              "push button Play", "animation Movie"};
    QTRY_COMPARE(told(), waiting);
    QVERIFY(m_user->pressWhenReady(WindowMap::MovieScreen, "MoviePlay"));
    QTRY_VERIFY(m_reader->find("push button", "Pause").isValid()
                || m_user->waitForPressable(WindowMap::MovieScreen,
                                            {"Live", "MoviePlay", "List", "Close"}));
}

void TestScreenReader::theChooserOfCamerasIsTold()
{
    QVERIFY(labctl({"plug", "cam2", "640x480"}));
    m_user->program().start();
    QVERIFY(m_user->waitForChooser());
    QTRY_VERIFY(m_reader->follow(m_user->program().pid()));
    QTRY_VERIFY(told().contains("push button OK"));
    QCOMPARE(told().size(), 2);
    for (const Thing &thing : m_reader->shown()) {
        if (thing.role == "combo box") {
            QVERIFY(thing.name.startsWith("cam"));
            QCOMPARE(thing.description, QString("Please select a device:"));
        }
    }
    QVERIFY(m_reader->find("label", "Please select a device:").isValid());
    m_user->chooseCamera(0);
    QVERIFY(m_user->waitForMainWindow());
    QVERIFY(labctl({"unplug", "cam2"}));
}

void TestScreenReader::theSettingsAreTold()
{
    QVERIFY(start());
    const int before = told().size();
    QVERIFY(m_user->pressWhenReady(WindowMap::LiveScreen, "Settings"));
    QVERIFY(m_user->waitForDialog("Settings"));
    QTRY_COMPARE(
        told().mid(before),
        (QStringList{"check box Self Timer", "combo box 5", "combo box 4",
                     "check box Confirm captured image", "combo box 640x480",
                     "radio button Use default location", "radio button Use other location",
                     "-text Save Directry:", "-push button SaveDirectory", "push button OK",
                     "push button Cancel"}));
    QVERIFY(m_reader->find("check box", "Self Timer").is("checked"));
    QVERIFY(m_reader->find("radio button", "Use default location").is("checked"));
    QVERIFY(!m_reader->find("radio button", "Use other location").is("checked"));
    // The toolkit tells a box's value for its name, so what it is for stands beside it.
    QCOMPARE(m_reader->find("combo box", "5").description, QString("Self Timer"));
    QCOMPARE(m_reader->find("combo box", "4").description, QString("Continuous Capture"));
    QCOMPARE(m_reader->find("combo box", "640x480").description, QString("Resolution"));
    m_user->desktop().pressKey("Escape");
    QVERIFY(m_user->waitUntilNoDialog());
}

void TestScreenReader::theQuestionAtTheEndIsTold()
{
    QVERIFY(start());
    QVERIFY(m_user->takePhotoForPreview());
    QVERIFY(m_user->pressWhenReady(WindowMap::PreviewScreen, "Apply"));
    QVERIFY(m_user->pressWhenReady(WindowMap::PhotoScreen, "Close"));
    QVERIFY(m_user->waitForDialog("Orvanta"));
    QTRY_COMPARE(told().mid(5),
                 (QStringList{"push button Yes", "push button No", "push button Cancel"}));
    QVERIFY(m_reader->find("label", "Do you want to save the Photo / Movie data?").isValid());
    QVERIFY(isFocused("Yes"));
}

void TestScreenReader::namesAreInTheLanguageOfTheUser()
{
    m_user->program().setLanguage("de");
    QVERIFY(start());
    QTRY_COMPARE(
        told(),
        (QStringList{"push button Live", "push button Foto", "push button Serien- aufnahme",
                     "push button Film", "push button Liste", "push button Optionen",
                     "push button Beenden", "graphic Livebild"}));
    QVERIFY(m_user->takePhotoForPreview());
    QTRY_VERIFY(m_reader->said().contains("Foto aufgenommen"));
}

void TestScreenReader::aPhotoIsSaidToBeTaken()
{
    QVERIFY(start());
    m_reader->forget();
    QVERIFY(m_user->takePhotoForPreview());
    QTRY_COMPARE(m_reader->said(), QStringList("Photo taken"));
}

void TestScreenReader::theSecondsToAPhotoAndItsNumberAreSaid()
{
    QVERIFY(m_user->program().writeSettings("AutoShoot=1\nAutoShootTime=1\nContinuShootCount=2\n"));
    QVERIFY(start());
    m_reader->forget();
    QVERIFY(m_user->pressWhenReady(WindowMap::LiveScreen, "PhotoMulti"));
    const QStringList series{"1 second to capture", "Photo taken 1/2", "1 second to capture",
                             "Photo taken 2/2"};
    QTRY_COMPARE(m_reader->said(), series);
}

void TestScreenReader::aRecordingIsSaidToBeginAndToEnd()
{
    QVERIFY(start());
    m_reader->forget();
    QVERIFY(m_user->beginMovie());
    QTRY_VERIFY(m_reader->said().contains("Recording"));
    QTRY_VERIFY(m_reader->renamed().contains("00:01"));
    m_reader->forget();
    QVERIFY(m_user->pressWhenReady(WindowMap::RecordingScreen, "MovieStop"));
    QTRY_COMPARE(m_reader->said(), QStringList("Recording ended"));
}

void TestScreenReader::aLostCameraIsTold()
{
    QVERIFY(start());
    QVERIFY(labctl({"unplug", "cam1"}));
    QVERIFY(m_user->waitForDialog("Orvanta"));
    QTRY_VERIFY(m_reader
                    ->find("label",
                           "The video device is invalid. Please confirm whether the device is "
                           "correctly connected. ")
                    .isValid());
    QVERIFY(isFocused("OK"));
    m_user->desktop().pressKey("Escape");
    QVERIFY(m_user->waitUntilNoDialog());
    QTRY_COMPARE(told(),
                 (QStringList{"-push button Live", "-push button Photo",
                              "-push button Continuous Capture", "-push button Movie",
                              "push button List", "-push button Settings", "push button Exit"}));
    QVERIFY(labctl({"plug", "cam1", "1280x720"}));
}

void TestScreenReader::aButtonCanBePressedThroughTheReader()
{
    QVERIFY(start());
    QVERIFY(m_reader->press(m_reader->find("push button", "Photo")));
    QTRY_COMPARE(m_user->program().captured().size(), 1);
}

QTEST_MAIN(TestScreenReader)
#include "tst_screenreader.moc"
