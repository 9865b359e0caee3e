#include "LabCommands.h"

#include <QProcess>
#include <QSysInfo>
#include <QTemporaryDir>
#include <QTest>

#include <initializer_list>

// The report for those who look after the program, in the lab: a camera and a microphone that can
// be taken away, the names of somebody on both.
class TestBugReport : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void camerasMicrophonesAndEncodersAreTold();
    void whereTheWindowStandsIsTold();
    void nothingPrivateIsTold();
    void withoutCameraMicrophoneAndDisplayItSaysSo();
    void withoutServersItSaysSo();
    void aServerThatHangsIsNamedAndHoldsNothingUp();
    void itExplainsItself();

private:
    struct Outcome {
        int status = -1;
        QString text; ///< what was written, also among the errors
        bool says(std::initializer_list<const char *> lines) const;
    };
    Outcome report(const QStringList &arguments = {}) const;

    QTemporaryDir m_folder;
    QProcessEnvironment m_environment;
};

void TestBugReport::initTestCase()
{
    QVERIFY2(!qEnvironmentVariableIsEmpty("ORVANTA_LAB"), "this test must be run by tests/lab/lab");
}

void TestBugReport::init()
{
    m_environment = QProcessEnvironment::systemEnvironment();
}

bool TestBugReport::Outcome::says(std::initializer_list<const char *> lines) const
{
    for (const char *line : lines)
        if (!text.contains(line)) {
            qWarning("\"%s\" is not in this:\n%s", line, qPrintable(text));
            return false;
        }
    return true;
}

TestBugReport::Outcome TestBugReport::report(const QStringList &arguments) const
{
    QProcess program;
    program.setProcessEnvironment(m_environment);
    program.setProcessChannelMode(QProcess::MergedChannels);
    program.start(ORVANTA_REPORT, arguments);
    if (!program.waitForFinished(150000) || program.exitStatus() != QProcess::NormalExit)
        return {};
    return {program.exitCode(), QString::fromUtf8(program.readAll())};
}

void TestBugReport::camerasMicrophonesAndEncodersAreTold()
{
    const Outcome outcome = report();
    QVERIFY(outcome.says(
        {"== Versions ==\nprogram: 0.", "\nQt: 5.", "\nGStreamer: 1.", "\nPipeWire: ", "\nkernel: ",
         "\ndistribution: ", "\nmedia server: answers\n", "\ncameras: 1\n",
         "\ncamera 1: cam1\n  reached by: media server\n", "\n  mode chosen: UYVY 1280x720 at 30\n",
         "\nmicrophones: 1\n", "\nmicrophone 1: LabMicrophone\n", "\n  movies listen to it: yes\n",
         "\nfor movies of: 1280x720 at 30\n", "\npicture x264enc: works, ",
         "\nmovies' picture: x264enc ", "\nmovies' sound: avenc_aac ",
         "\n== Not found out ==\nnothing\n"}));
    QCOMPARE(outcome.status, 0);
}

void TestBugReport::whereTheWindowStandsIsTold()
{
    m_environment.insert("XDG_SESSION_TYPE", "x11");
    const Outcome outcome = report();
    QVERIFY(outcome.says({"\nsession: x11\n", "\nwindow manager: Openbox\n", "\nscreens: 1\n",
                          "\n  pixels: 1024x768 at (0, 0)\n", "\nscale of the window: 1\n",
                          "\ncomposited: no\n", "\nguest on a Wayland desktop: no\n"}));
}

// Names of people and machines come with devices, desktops and folders.
void TestBugReport::nothingPrivateIsTold()
{
    const QString home = m_folder.filePath("vermeulen-home");
    m_environment.insert("USER", "vermeulen");
    m_environment.insert("HOME", home);
    m_environment.insert("XDG_CURRENT_DESKTOP", "desk-of-vermeulen");
    m_environment.insert("XDG_SESSION_TYPE", home + "/session");
    const QString name = "Vermeulens phone on " + QSysInfo::machineHostName() + " S4N7";
    QVERIFY(labctl({"plug", "phone", "640x480", "--description", name, "--serial", "S4N7"}));
    const Outcome outcome = report();
    QVERIFY(labctl({"unplug", "phone"}));
    QVERIFY(outcome.says({"[private]s phone on [private] [private]\n", "\ncameras: 2\n",
                          "\ncamera chosen: the program asks which\n", "\ndesktop: desk-of-[pri"}));
    for (const QString &word : {QString("vermeulen"), QString("S4N7"), QSysInfo::machineHostName(),
                                QString("orvanta-lab"), QString("/tmp")})
        QVERIFY2(!outcome.text.contains(word, Qt::CaseInsensitive),
                 qPrintable(word + " is in this:\n" + outcome.text));
}

void TestBugReport::withoutCameraMicrophoneAndDisplayItSaysSo()
{
    QVERIFY(labctl({"unplug", "cam1"}));
    QVERIFY(labctl({"microphone", "off"}));
    m_environment.remove("DISPLAY");
    const Outcome outcome = report();
    QVERIFY(labctl({"microphone", "on"}));
    QVERIFY(labctl({"plug", "cam1", "1280x720"}));
    QVERIFY(outcome.says({"\nX server: none\n", "\ncameras: 0\n",
                          "\ncamera chosen: none, there is none\n", "\nmicrophones: 0\n",
                          "\nmovies' picture: x264enc "}));
    QCOMPARE(outcome.status, 0);
}

void TestBugReport::withoutServersItSaysSo()
{
    const QTemporaryDir nothing;
    m_environment.insert("XDG_RUNTIME_DIR", nothing.path());
    const Outcome outcome = report();
    QVERIFY(outcome.says({"\nmedia server: none\n", "\nsound server: none\n", "\ncameras: 0\n",
                          "\nthe sound card's own source can be opened: no\n"}));
    QCOMPARE(outcome.status, 0);
}

void TestBugReport::aServerThatHangsIsNamedAndHoldsNothingUp()
{
    QVERIFY(labctl({"hang-media-server"}));
    const Outcome outcome = report();
    QVERIFY(labctl({"wake-media-server"}));
    QVERIFY(
        outcome.says({"\nmedia server: not found out\n", "\nmovies' picture: x264enc ",
                      "\n== Not found out ==\nthe cameras: no answer from the media server\n"}));
    QCOMPARE(outcome.status, 1);
}

void TestBugReport::itExplainsItself()
{
    const Outcome asked = report({"--help"});
    QVERIFY(asked.says({"Usage: orvanta-report\n"}));
    QCOMPARE(asked.status, 0);
    const Outcome wrong = report({"--all"});
    QVERIFY(wrong.says({"Usage: orvanta-report\n"}));
    QCOMPARE(wrong.status, 2);
}

QTEST_GUILESS_MAIN(TestBugReport)
#include "tst_bugreport.moc"
