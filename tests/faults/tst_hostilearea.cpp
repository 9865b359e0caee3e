#include "FaultTrial.h"
#include "LabPattern.h"
#include "Patience.h"
#include "Session.h"

#include <QDir>
#include <QFile>
#include <QProcess>

#include <fcntl.h>
#include <memory>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

static const QSize cameraSize(640, 480);
static constexpr int photoCounter = 77;
static constexpr int shownFiles = 7; // side by side
static constexpr int usualFiles = 1000;
static constexpr int wholeFiles = 50000;

// The program with settings that are damaged, over an area that is full of whatever is no capture:
// it starts, shows what can be shown, and saves what is there.
class TestHostileArea : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void aLessonGoesOnOverAnything();

private:
    QByteArray inArea(const QByteArray &name) const
    {
        return QFile::encodeName(m_user->program().temporaryArea()) + "/photo" + name;
    }
    bool write(const QByteArray &path, const QByteArray &content);
    void fillWithNoFiles() const;
    void fillWithFiles();
    void damageSettings() const;
    void putTheSameNameIntoTheSaveFolder();
    int filesIn(const QString &folder) const;
    bool isWholePhotoShown();

    std::unique_ptr<Session> m_user;
    int m_captures = 0;
};

void TestHostileArea::init()
{
    m_user = std::make_unique<Session>(ORVANTA_PROGRAM, "cam1", cameraSize);
    QVERIFY(QDir().mkpath(m_user->program().temporaryArea()));
    m_captures = 0;
}

void TestHostileArea::cleanup()
{
    // The toolkit removes no file whose name has no letters.
    if (m_user)
        QProcess::execute("rm",
                          {"-rf", m_user->program().temporaryFolder(), m_user->program().home()});
    m_user.reset();
}

bool TestHostileArea::write(const QByteArray &path, const QByteArray &content)
{
    const int file = open(path.constData(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0600);
    const bool isWritten =
        file >= 0 && ::write(file, content.constData(), size_t(content.size())) == content.size();
    if (file >= 0)
        close(file);
    m_captures += isWritten;
    return isWritten;
}

// What has a capture's name and is none: neither listed nor saved.
void TestHostileArea::fillWithNoFiles() const
{
    QCOMPARE(mkfifo(inArea("-pipe.png").constData(), 0600), 0);
    QCOMPARE(mkdir(inArea("-folder.png").constData(), 0700), 0);
    QCOMPARE(symlink(inArea("-loop.png").constData(), inArea("-loop.png").constData()), 0);
    QCOMPARE(symlink("/dev/zero", inArea("-device.png").constData()), 0);
    QCOMPARE(symlink("/etc", inArea("-way.png").constData()), 0);
    QCOMPARE(symlink("-pipe.png", inArea("-waytopipe.png").constData()), 0);
    sockaddr_un address = {};
    address.sun_family = AF_UNIX;
    const QByteArray socketPath = inArea(".socket");
    QVERIFY(size_t(socketPath.size()) < sizeof address.sun_path);
    qstrncpy(address.sun_path, socketPath.constData(), sizeof address.sun_path);
    const int made = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    QCOMPARE(bind(made, reinterpret_cast<sockaddr *>(&address), sizeof address), 0);
    close(made);
}

// The last ones are the newest, and the strip's end.
void TestHostileArea::fillWithFiles()
{
    const int count = FaultTrial::isWholeSuite() ? wholeFiles : usualFiles;
    for (int i = 0; i < count; ++i)
        QVERIFY(write(inArea("-old" + QByteArray::number(i) + ".png"), "no picture"));
    const QByteArrayList names = {"%1%n.png",
                                  "new\nline.png",
                                  "#?.png",
                                  "'\"`$(x).png",
                                  "\xd7\xa9\xe2\x80\xae.png",
                                  "no letters\xff\xfe.png",
                                  QByteArray(240, 'x') + ".png"};
    for (const QByteArray &name : names)
        QVERIFY(write(inArea(name), "\x89PNG\r\n\x1a\n"));
    // The head of a picture of 30000 by 30000 points.
    QVERIFY(write(inArea("-huge.png"),
                  QByteArray::fromHex("89504e470d0a1a0a0000000d49484452000075"
                                      "30000075300802000000")));
    QVERIFY(write(inArea("-drawing.png"),
                  "<svg xmlns='http://www.w3.org/2000/svg' "
                  "xmlns:x='http://www.w3.org/1999/xlink' width='9' height='9'><image x:href='"
                      + inArea("-pipe.png") + "' width='9' height='9'/></svg>"));
    const QImage photo = LabPattern::frame(cameraSize.width(), cameraSize.height(), photoCounter,
                                           LabPattern::groundOf("cam1"));
    QVERIFY(photo.save(QFile::decodeName(inArea("-whole.png"))));
    ++m_captures;
}

void TestHostileArea::damageSettings() const
{
    // A number that stands for an object of two thousand million points.
    QVERIFY(m_user->program().writeSettings(
        "AutoShootTime=@Variant(\\0\\0\\0\\x47\\x7f\\xff\\xff\\xff)\n"));
    const QString config = m_user->program().home() + "/.config";
    QVERIFY(QDir().mkpath(config + "/MerovexSolutions"));
    QCOMPARE(
        mkfifo(QFile::encodeName(config + "/MerovexSolutions/Tavelin Software.conf").constData(),
               0600),
        0);
    m_user->program().setEnvironment("XDG_CONFIG_HOME", config);
}

void TestHostileArea::putTheSameNameIntoTheSaveFolder()
{
    const QString folder = m_user->program().saveFolder();
    QVERIFY(QDir().mkpath(folder));
    QVERIFY(write(QFile::encodeName(folder) + "/photo-old7.png", "of another day"));
}

int TestHostileArea::filesIn(const QString &folder) const
{
    return QDir(folder).entryList(QDir::Files | QDir::Hidden | QDir::NoSymLinks).size();
}

bool TestHostileArea::isWholePhotoShown()
{
    for (int i = 0; i < shownFiles; ++i)
        if (m_user->counterAt(m_user->map().tile(shownFiles, i)) == photoCounter)
            return true;
    return false;
}

void TestHostileArea::aLessonGoesOnOverAnything()
{
    FaultTrial trial("captures, settings and links are anything", 1, 1);
    QVERIFY(trial.next());
    fillWithNoFiles();
    fillWithFiles();
    damageSettings();
    putTheSameNameIntoTheSaveFolder();
    QVERIFY(!QTest::currentTestFailed());
    const int captured = filesIn(m_user->program().temporaryArea());
    QVERIFY(m_user->startLive());
    QVERIFY(m_user->takePhotoForPreview());
    QVERIFY(m_user->pressWhenReady(WindowMap::PreviewScreen, "Apply"));

    // The strip from its end backwards.
    QVERIFY(m_user->pressWhenReady(WindowMap::PhotoScreen, "List"));
    QVERIFY(m_user->waitForPressable(WindowMap::ListScreen, {"Live", "SwitchMovie", "Close"}));
    m_user->desktop().click(m_user->map().thumbnail(0).center());
    m_user->desktop().pressKey("End");
    for (int i = 1; i < shownFiles; ++i) {
        m_user->desktop().pressKey("space");
        m_user->desktop().pressKey("Left");
    }
    QVERIFY(m_user->pressWhenReady(WindowMap::ListScreen, "Show"));
    QTRY_VERIFY(isWholePhotoShown());
    QVERIFY(m_user->pressWhenReady(WindowMap::PhotoScreen, "PutPhoto"));
    QTRY_VERIFY(m_user->program().handedOver().contains("photo-whole.png\n"));
    m_user->press(WindowMap::PhotoScreen, "Close");
    QVERIFY(m_user->answerExitQuestion("Yes"));
    constexpr int longSave = 120000; // ms, of fifty thousand files
    QVERIFY(m_user->program().hasEndedWithin(longSave));
    QVERIFY(!m_user->program().hasCrashed());
    QCOMPARE(m_user->program().exitStatus(), 0);

    QCOMPARE(filesIn(m_user->program().temporaryArea()), 0);
    const int saved = filesIn(m_user->program().saveFolder());
    trial.addLost(captured + 2 - saved); // the photo just taken, and the one of another day
    QCOMPARE(saved, captured + 2);
}

QTEST_MAIN(TestHostileArea)
#include "tst_hostilearea.moc"
