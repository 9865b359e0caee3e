#include "LabPattern.h"
#include "Receiver.h"
#include "SpareTime.h"

#include <QElapsedTimer>
#include <QProcess>
#include <QTest>

namespace {

int labctl(const QStringList &arguments)
{
    return QProcess::execute(QStringLiteral("labctl"), arguments);
}

int gapsIn(const QVector<int> &counters)
{
    int gaps = 0;
    for (int i = 1; i < counters.size(); ++i)
        gaps += counters[i] == counters[i - 1] + 1 ? 0 : 1;
    return gaps;
}

} // namespace

// What the lab's cameras and its microphone send and when, so that a failing picture test can be
// believed.
class TestLab : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void theCounterCanBeReadBackFromEveryFrame();
    void everySixtiethFrameIsMarked();
    void aForeignPictureHasNoCounter();
    void aCameraKeepsItsPaceAndLosesNoFrame_data();
    void aCameraKeepsItsPaceAndLosesNoFrame();
    void receiversThatComeAndGoDoNotDisturbTheOthers();
    void theToneIsHeardWhenItsFrameIsSeen();
};

void TestLab::initTestCase()
{
    QVERIFY2(!qEnvironmentVariableIsEmpty("ORVANTA_LAB"), "this test must be run by tests/lab/lab");
    gst_init(nullptr, nullptr);
}

void TestLab::theCounterCanBeReadBackFromEveryFrame()
{
    for (const quint32 counter : {0U, 1U, 2U, 12345U, 0xAAAAAU, 0xFFFFFU}) {
        const QImage picture = LabPattern::frame(320, 180, counter, LabPattern::groundOf("cam1"));
        QCOMPARE(LabPattern::counterOf(picture), int(counter));
        QCOMPARE(LabPattern::worstDifference(picture, LabPattern::groundOf("cam1")), 0);
        QCOMPARE(LabPattern::counterOf(picture.scaled(96, 54)), int(counter));
    }
}

void TestLab::everySixtiethFrameIsMarked()
{
    for (const QString camera : {"cam1", "cam2", "beeper"}) {
        int marked = 0;
        for (quint32 counter = 0; counter < 180; ++counter) {
            const QImage picture = LabPattern::frame(96, 54, counter, LabPattern::groundOf(camera));
            QCOMPARE(LabPattern::isMarked(picture), counter % LabPattern::beatFrames == 0);
            marked += LabPattern::isMarked(picture);
        }
        QCOMPARE(marked, 3);
    }
    QVERIFY(!LabPattern::isMarked(QImage()));
}

void TestLab::aForeignPictureHasNoCounter()
{
    QImage picture(320, 180, QImage::Format_RGB32);
    for (const QRgb colour : {0xff000000U, 0xffffffffU, 0xff808080U}) {
        picture.fill(colour);
        QCOMPARE(LabPattern::counterOf(picture), -1);
        QVERIFY(LabPattern::worstDifference(picture, LabPattern::groundOf("cam1")) > 100);
    }
    QCOMPARE(LabPattern::counterOf(QImage()), -1);
}

void TestLab::aCameraKeepsItsPaceAndLosesNoFrame_data()
{
    QTest::addColumn<QString>("camera");
    QTest::addColumn<QSize>("size");
    QTest::addColumn<int>("rate");
    QTest::newRow("high definition at 30") << "cam1" << QSize(1280, 720) << 30;
    QTest::newRow("small at 15") << "cam2" << QSize(640, 480) << 15;
}

void TestLab::aCameraKeepsItsPaceAndLosesNoFrame()
{
    QFETCH(QString, camera);
    QFETCH(QSize, size);
    QFETCH(int, rate);
    Receiver receiver(camera);
    QCOMPARE(receiver.next(5000).size(), size);
    const SpareTime time;
    QElapsedTimer timer;
    timer.start();
    const QVector<int> seen = receiver.counters(3 * rate);
    const double measured = 3.0 * rate * 1000 / double(timer.elapsed());
    QVERIFY(gapsIn(seen) <= rate * time.lateness());
    QVERIFY2(qAbs(measured - rate) < (0.1 + time.lateness() / 3) * rate,
             qPrintable(QString::number(measured)));
}

void TestLab::receiversThatComeAndGoDoNotDisturbTheOthers()
{
    Receiver steady("cam1");
    QVERIFY(!steady.next(5000).isNull());
    QVector<int> seen;
    for (int visit = 0; visit < 3; ++visit) {
        Receiver guest("cam1");
        QVERIFY(!guest.next(5000).isNull());
        seen += steady.counters(15);
    }
    seen += steady.counters(15);
    // Joining and leaving may each hold the graph up for a frame, but never change its pace.
    QVERIFY2(seen.last() - seen.first() <= seen.size() + 8,
             qPrintable(QString::number(seen.last() - seen.first())));
    QVERIFY(!seen.contains(-1));
}

void TestLab::theToneIsHeardWhenItsFrameIsSeen()
{
    const SpareTime time;
    QCOMPARE(labctl({"plug", "beeper", "640x480", "--beep", "micfeed"}), 0);
    Receiver receiver(
        "beeper", "video/x-raw",
        "pulsesrc provide-clock=false ! audio/x-raw,format=S16LE,rate=48000,channels=1"
        " ! appsink name=sound sync=false");
    QVector<double> seen;
    QVector<double> heard;
    bool silent = true;
    while (seen.size() < 2) {
        const QImage picture = receiver.next(5000);
        QVERIFY(!picture.isNull());
        if (LabPattern::isMarked(picture)) {
            QCOMPARE(LabPattern::counterOf(picture) % int(LabPattern::beatFrames), 0);
            seen.append(receiver.lastTime());
        }
    }
    while (heard.isEmpty() || heard.last() < seen.last() - 0.5)
        QVERIFY(receiver.nextToneBegin(&silent, &heard));
    QCOMPARE(labctl({"unplug", "beeper"}), 0);
    const double offset = heard.last() - seen.last();
    QVERIFY2(qAbs(offset) < 0.05 + time.lateness(), qPrintable(QString::number(offset)));
}

QTEST_GUILESS_MAIN(TestLab)
#include "tst_lab.moc"
