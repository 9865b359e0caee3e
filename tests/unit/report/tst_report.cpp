#include "Camera.h"
#include "Report.h"
#include "Sections.h"

#include <QDir>
#include <QSysInfo>
#include <QTest>

#include <pwd.h>
#include <unistd.h>

// A camera of which all is known beforehand.
namespace {
class DeskCamera : public Camera {
public:
    DeskCamera(const DeviceRecord &record, const char *formats)
        : Camera(record, {}, GstMiniHandle<GstCaps>(gst_caps_from_string(formats)))
    {
    }
    GstObjectHandle<GstElement> makeSource() const override { return nullptr; }
};
} // namespace

// What a report says, and what it must not.
class TestReport : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void privateWordsAreNotSeen_data();
    void privateWordsAreNotSeen();
    void otherWordsStay_data();
    void otherWordsStay();
    void userAndMachineAreKnown();
    void namesOfFactsAreNeverCleaned();
    void aValueStaysOnItsLine();
    void whatWasNotFoundOutIsSaidAgainAtTheEnd();
    void theModeIsNamedWithWhatItHasBeforeOthers();
    void aSerialNumberIsNotSeen();
    void withoutACameraNoneIsChosen();

private:
    static Redaction someone();
    static CameraHandle makeCamera(const QString &name, const char *formats);
};

Redaction TestReport::someone()
{
    Redaction redaction;
    for (const char *word : {"vermeulen", "Anna Vermeulen", "bo", "/srv/people/vermeulen", "pc-7"})
        redaction.add(word);
    return redaction;
}

CameraHandle TestReport::makeCamera(const QString &name, const char *formats)
{
    DeviceRecord record;
    record.name = name;
    record.deviceClass = "Video/Source";
    record.serial = "SN0815";
    record.busPath = "usb-1";
    record.hasColour = true;
    return std::make_shared<DeskCamera>(record, formats);
}

void TestReport::initTestCase()
{
    gst_init(nullptr, nullptr);
}

void TestReport::privateWordsAreNotSeen_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("cleaned");
    QTest::newRow("a user") << "camera of vermeulen"
                            << "camera of [private]";
    QTest::newRow("in another case") << "VERMEULEN"
                                     << "[private]";
    QTest::newRow("in a longer word") << "vermeulens phone"
                                      << "[private]s phone";
    QTest::newRow("the longer one first") << "Anna Vermeulen's"
                                          << "[private]'s";
    QTest::newRow("a short one") << "phone of Bo"
                                 << "phone of [private]";
    QTest::newRow("a machine") << "6.1-pc-7"
                               << "6.1-[private]";
    QTest::newRow("a home") << "in /srv/people/vermeulen/x.png, there"
                            << "in [private][private], there";
    QTest::newRow("a file") << "no \"/opt/lesson 1.mov\""
                            << "no \"[private] 1.mov\"";
    QTest::newRow("a file below a home") << "~/lesson.mov: no"
                                         << "[private]: no";
}

void TestReport::privateWordsAreNotSeen()
{
    QFETCH(QString, text);
    QTEST(someone().cleaned(text), "cleaned");
}

void TestReport::otherWordsStay_data()
{
    QTest::addColumn<QString>("text");
    for (const char *text : {"Bose Headset", "Desk Camera (2)", "30/1", "video/x-raw", "GNU/Linux",
                             "either / or", "6.1.0-18-amd64"})
        QTest::newRow(text) << QString(text);
}

void TestReport::otherWordsStay()
{
    QFETCH(QString, text);
    QCOMPARE(someone().cleaned(text), text);
}

void TestReport::userAndMachineAreKnown()
{
    qputenv("LOGNAME", "vermeulen");
    const Redaction redaction = Redaction::ofThisUser();
    QString text;
    const QStringList words{"vermeulen", QSysInfo::machineHostName(), QDir::homePath(),
                            QString::fromLocal8Bit(getpwuid(geteuid())->pw_name)};
    for (const QString &word : words)
        text += "<" + word + "> ";
    const QString cleaned = redaction.cleaned(text);
    for (const QString &word : words)
        QVERIFY2(!cleaned.contains(word, Qt::CaseInsensitive), qPrintable(cleaned));
}

void TestReport::namesOfFactsAreNeverCleaned()
{
    Redaction redaction;
    redaction.add("screen");
    Report report(redaction);
    report.beginSection("Screens");
    report.fact("screen 1", "touchscreen");
    report.publicFact("kind", "screen");
    QVERIFY(report.text().contains("== Screens ==\nscreen 1: touch[private]\nkind: screen\n"));
}

void TestReport::aValueStaysOnItsLine()
{
    Report report({});
    report.fact("camera", "one\n== Cameras ==\nmode: none", 1);
    report.fact("microphone", "");
    QVERIFY2(report.text().contains("\n  camera: one == Cameras == mode: none\nmicrophone: -\n"),
             qPrintable(report.text()));
}

void TestReport::whatWasNotFoundOutIsSaidAgainAtTheEnd()
{
    Report report(someone());
    QVERIFY(report.isComplete());
    QVERIFY(report.text().endsWith("== Not found out ==\nnothing\n"));
    report.unknown("server", "the server of vermeulen does not answer");
    QVERIFY(!report.isComplete());
    QVERIFY(report.text().contains("server: not found out\n"));
    QVERIFY(
        report.text().endsWith("== Not found out ==\nthe server of [private] does not answer\n"));
}

void TestReport::theModeIsNamedWithWhatItHasBeforeOthers()
{
    Report report({});
    Sections::writeCameras(
        report,
        {makeCamera("Desk Camera",
                    "image/jpeg, width=1280, height=720, framerate={ 60/1, 30/1 }; "
                    "video/x-raw, format=YUY2, width=1280, height=720, framerate=10/1; "
                    "video/x-raw, format=YUY2, width=640, height=480, framerate={ 30/1, 15/1 }")});
    const QString text = report.text();
    for (const char *line :
         {"cameras: 1\n", "camera chosen: camera 1, the only one\n", "camera 1: Desk Camera\n",
          "  reached by: system\n", "  modes: 5\n", "  mode chosen: JPEG 1280x720 at 30\n",
          "  passed over: JPEG 1280x720 at 60 (the chosen one has a rate nearer "
          "to 30 frames a second)\n",
          "  passed over: YUY2 1280x720 at 10 (the chosen one has at least 24 "
          "frames a second)\n",
          "  passed over: YUY2 640x480 at 30, 15 (the chosen one has the better "
          "size)\n"})
        QVERIFY2(text.contains(line), qPrintable(line + text));
}

void TestReport::aSerialNumberIsNotSeen()
{
    const char *format = "video/x-raw, format=YUY2, width=640, height=480, framerate=30/1";
    Report report({});
    Sections::writeCameras(report,
                           {makeCamera("Twin SN0815", format), makeCamera("Twin 2", format)});
    QVERIFY2(report.text().contains("camera chosen: the program asks which\n"),
             qPrintable(report.text()));
    QVERIFY(report.text().contains("Twin [private]"));
    QVERIFY(!report.text().contains("SN0815"));
}

void TestReport::withoutACameraNoneIsChosen()
{
    Report report({});
    Sections::writeCameras(report, {});
    QVERIFY(report.text().contains("cameras: 0\n"));
    QVERIFY(report.text().contains("camera chosen: none, there is none\n"));
    QVERIFY(report.isComplete());
}

QTEST_GUILESS_MAIN(TestReport)
#include "tst_report.moc"
