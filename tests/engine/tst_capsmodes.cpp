#include "CapsModes.h"
#include "GstStart.h"

#include <QStringList>
#include <QTest>

class TestCapsModes : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void modesAreReadFromCaps_data();
    void modesAreReadFromCaps();
    void aModeBecomesOneFixedFormat_data();
    void aModeBecomesOneFixedFormat();
    void wholeFramesArePreferredToInterlacedOnes_data();
    void wholeFramesArePreferredToInterlacedOnes();
    void aModeThatIsNotOfferedHasNoFormat();
    void aListMayHoldNoTextAtAll();
    void aFormatThatStaysOpenIsNone();
};

static GstMiniHandle<GstCaps> parse(const QString &text)
{
    return GstMiniHandle<GstCaps>(gst_caps_from_string(text.toUtf8().constData()));
}

static QString describe(const CameraMode &mode)
{
    return QStringLiteral("%1 %2x%3 %4/%5")
        .arg(mode.encoding == CameraMode::Encoding::Jpeg ? "JPEG" : QString(mode.format))
        .arg(mode.width)
        .arg(mode.height)
        .arg(mode.rateNumerator)
        .arg(mode.rateDenominator);
}

void TestCapsModes::initTestCase()
{
    QVERIFY(startGstreamer());
}

void TestCapsModes::modesAreReadFromCaps_data()
{
    QTest::addColumn<QString>("caps");
    QTest::addColumn<QStringList>("modes");

    QTest::newRow("plain") << "video/x-raw,format=YUY2,width=640,height=480,framerate=30/1"
                           << QStringList{"YUY2 640x480 30/1"};
    QTest::newRow("JPEG") << "image/jpeg,width=640,height=480,framerate=15/2"
                          << QStringList{"JPEG 640x480 15/2"};
    QTest::newRow("lists of formats and rates")
        << "video/x-raw,format={YUY2,NV12},width=640,height=480,framerate={30/1,15/1}"
        << QStringList{"YUY2 640x480 30/1", "YUY2 640x480 15/1", "NV12 640x480 30/1",
                       "NV12 640x480 15/1"};
    QTest::newRow("a range of sizes becomes the usual ones in it")
        << "video/x-raw,format=YUY2,width=[300,1000],height=[200,700],framerate=30/1"
        << QStringList{"YUY2 800x600 30/1", "YUY2 640x480 30/1", "YUY2 320x240 30/1"};
    QTest::newRow("the step of a range is kept")
        << "video/x-raw,format=YUY2,width=[320,1280,320],height=[120,960,120],framerate=30/1"
        << QStringList{"YUY2 1280x720 30/1", "YUY2 640x480 30/1", "YUY2 320x240 30/1"};
    QTest::newRow("a range without a usual size gives its largest")
        << "video/x-raw,format=YUY2,width=[10,200],height=[10,100],framerate=30/1"
        << QStringList{"YUY2 200x100 30/1"};
    QTest::newRow("a list of ranges gives its largest")
        << "video/x-raw,format=YUY2,width={[10,200],[250,300]},height={100,50},framerate=30/1"
        << QStringList{"YUY2 300x100 30/1"};
    QTest::newRow("a range of rates around 30")
        << "video/x-raw,format=YUY2,width=640,height=480,framerate=[0/1,2147483647/1]"
        << QStringList{"YUY2 640x480 30/1"};
    QTest::newRow("a range of rates below 30")
        << "video/x-raw,format=YUY2,width=640,height=480,framerate=[1/1,15/1]"
        << QStringList{"YUY2 640x480 15/1"};
    QTest::newRow("a range of rates above 30")
        << "video/x-raw,format=YUY2,width=640,height=480,framerate=[50/1,60/1]"
        << QStringList{"YUY2 640x480 50/1"};
    QTest::newRow("no rate at all")
        << "video/x-raw,format=YUY2,width=640,height=480" << QStringList{"YUY2 640x480 30/1"};
    QTest::newRow("what cannot be shown is left out")
        << "video/x-h264,width=640,height=480,framerate=30/1;"
           "video/x-bayer,format=bggr,width=640,height=480,framerate=30/1;"
           "video/x-raw(memory:DMABuf),format=YUY2,width=640,height=480,framerate=30/1;"
           "video/x-raw,format=NONSENSE,width=640,height=480,framerate=30/1"
        << QStringList();
    QTest::newRow("woven fields can be shown")
        << "video/x-raw,format=YUY2,width=720,height=576,framerate=25/1,"
           "interlace-mode={alternate,interleaved}"
        << QStringList{"YUY2 720x576 25/1"};
    QTest::newRow("fields one after the other cannot")
        << "video/x-raw(format:Interlaced),format=YUY2,width=720,height=576,framerate=25/1,"
           "interlace-mode=alternate;"
           "video/x-raw,format=YUY2,width=640,height=480,framerate=25/1,"
           "interlace-mode={alternate,fields}"
        << QStringList();
    QTest::newRow("sizes that no picture has are left out")
        << "video/x-raw,format=YUY2,width={-5,0,640,2147483647},height=[480,2147483647],"
           "framerate=30/1;image/jpeg,width=-640,height=-480,framerate=30/1;"
           "image/jpeg,width=20000,height=20000,framerate=30/1;"
           "image/jpeg,width=640,height=480,framerate=30/1"
        << QStringList{"YUY2 640x480 30/1", "JPEG 640x480 30/1"};
    QTest::newRow("a list of sizes among them usual ones")
        << "video/x-raw,format=YUY2,width={[320,640],1000},height={240,480},framerate=30/1"
        << QStringList{"YUY2 640x480 30/1", "YUY2 320x240 30/1"};
    QTest::newRow("a whole picture on one side only")
        << "image/jpeg,width=20000,height=480,framerate=30/1;"
           "image/jpeg,width=640,height=20000,framerate=30/1"
        << QStringList();
    QTest::newRow("a size that is not said or is no number")
        << "video/x-raw,format=YUY2,framerate=30/1;"
           "video/x-raw,format=YUY2,width=640,framerate=30/1;"
           "video/x-raw,format=YUY2,width=640,height=(string)high,framerate=30/1;"
           "video/x-raw,format=YUY2,width=(string)wide,height=480,framerate=30/1"
        << QStringList();
    QTest::newRow("a format that is not said or is no text")
        << "video/x-raw,width=640,height=480,framerate=30/1;"
           "video/x-raw,format=(int)5,width=640,height=480,framerate=30/1"
        << QStringList();
    QTest::newRow("a rate that is no number")
        << "image/jpeg,width=640,height=480,framerate=(string)fast" << QStringList();
    QTest::newRow("nothing") << "EMPTY" << QStringList();
    QTest::newRow("anything") << "ANY" << QStringList();
}

void TestCapsModes::modesAreReadFromCaps()
{
    QFETCH(QString, caps);
    const GstMiniHandle<GstCaps> parsed = parse(caps);
    QVERIFY(parsed);
    QStringList modes;
    const QVector<CameraMode> found = modesOf(parsed.get());
    for (const CameraMode &mode : found)
        modes.append(describe(mode));
    QTEST(modes, "modes");
}

void TestCapsModes::aModeBecomesOneFixedFormat_data()
{
    QTest::addColumn<QString>("offered");
    QTest::newRow("from ranges")
        << "video/x-raw,format={RGB,UYVY},width=[1,2147483647],height=[1,2147483647],"
           "framerate=[0/1,2147483647/1]";
    QTest::newRow("with fields that stay open")
        << "video/x-raw,format={RGB,UYVY},width=1280,height=720,framerate={30/1,15/1},"
           "interlace-mode={progressive,interleaved},colorimetry={bt709,bt601}";
}

void TestCapsModes::aModeBecomesOneFixedFormat()
{
    QFETCH(QString, offered);
    const CameraMode mode{CameraMode::Encoding::Raw, "UYVY", 1280, 720, 30, 1};
    const GstMiniHandle<GstCaps> caps = fixedCaps(parse(offered).get(), mode);
    QVERIFY(caps);
    QVERIFY(gst_caps_is_fixed(caps.get()));
    QCOMPARE(modesOf(caps.get()).size(), 1);
    QVERIFY(modesOf(caps.get()).first() == mode);
}

void TestCapsModes::wholeFramesArePreferredToInterlacedOnes_data()
{
    QTest::addColumn<QStringList>("offered");
    QTest::addColumn<QByteArray>("chosen");
    QTest::newRow("said last in a list")
        << QStringList{",interlace-mode={mixed,interleaved,progressive}"}
        << QByteArray("progressive");
    QTest::newRow("as the second format")
        << QStringList{",interlace-mode=interleaved", ",interlace-mode=progressive"}
        << QByteArray("progressive");
    QTest::newRow("not said at all") << QStringList{",interlace-mode=mixed", ""} << QByteArray();
    QTest::newRow("not offered") << QStringList{",interlace-mode={mixed,alternate,interleaved}"}
                                 << QByteArray("interleaved");
    QTest::newRow("mixed with interlaced ones only")
        << QStringList{",interlace-mode={alternate,mixed}"} << QByteArray("mixed");
}

void TestCapsModes::wholeFramesArePreferredToInterlacedOnes()
{
    QFETCH(QStringList, offered);
    const QString common = "video/x-raw,format=YUY2,width=720,height=576,framerate={50/1,25/1}";
    for (QString &format : offered)
        format.prepend(common);
    const CameraMode mode{CameraMode::Encoding::Raw, "YUY2", 720, 576, 25, 1};
    const GstMiniHandle<GstCaps> caps =
        fixedCaps(parse(offered.join(QLatin1Char(';'))).get(), mode);
    QVERIFY(caps);
    QVERIFY(gst_caps_is_fixed(caps.get()));
    const GstStructure *structure = gst_caps_get_structure(caps.get(), 0);
    QTEST(QByteArray(gst_structure_get_string(structure, "interlace-mode")), "chosen");
}

void TestCapsModes::aModeThatIsNotOfferedHasNoFormat()
{
    const CameraMode mode{CameraMode::Encoding::Jpeg, {}, 1280, 720, 30, 1};
    const GstMiniHandle<GstCaps> offered =
        parse("video/x-raw,format=YUY2,width=1280,height=720,framerate=30/1");
    QVERIFY(!fixedCaps(offered.get(), mode));
}

// The media framework's own way to choose from a list compares with each text there.
void TestCapsModes::aListMayHoldNoTextAtAll()
{
    const CameraMode mode{CameraMode::Encoding::Jpeg, {}, 1280, 720, 30, 1};
    const GstMiniHandle<GstCaps> offered =
        parse("image/jpeg,width=1280,height=720,framerate=30/1,"
              "interlace-mode=(string){alternate,NULL,interleaved}");
    const GstMiniHandle<GstCaps> fixed = fixedCaps(offered.get(), mode);
    QVERIFY(fixed);
    QCOMPARE(QByteArray(gst_structure_get_string(gst_caps_get_structure(fixed.get(), 0),
                                                 "interlace-mode")),
             QByteArray("interleaved"));
}

void TestCapsModes::aFormatThatStaysOpenIsNone()
{
    const CameraMode mode{CameraMode::Encoding::Jpeg, {}, 1280, 720, 30, 1};
    const GstMiniHandle<GstCaps> offered =
        parse("image/jpeg,width=1280,height=720,framerate=30/1,colorimetry=(string){}");
    QVERIFY(!modesOf(offered.get()).isEmpty());
    QVERIFY(!fixedCaps(offered.get(), mode));
}

QTEST_GUILESS_MAIN(TestCapsModes)
#include "tst_capsmodes.moc"
