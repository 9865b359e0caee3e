#include "ModeChooser.h"

#include <QTest>

namespace {

CameraMode raw(int width, int height, int rate, const QByteArray &format = "YUY2")
{
    return {CameraMode::Encoding::Raw, format, width, height, rate, 1};
}

CameraMode jpeg(int width, int height, int rate)
{
    return {CameraMode::Encoding::Jpeg, {}, width, height, rate, 1};
}

} // namespace

Q_DECLARE_METATYPE(CameraMode)

class TestModeChooser : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void theBestModeIsChosen_data();
    void theBestModeIsChosen();
    void aCameraWithoutModesHasNoBestOne();
    void onlyModesOfTheWantedSizeCount();
    void eachSizeIsNamedOnceAndTheLargestFirst();
    void theFirstDifferenceThatCountsIsNamed_data();
    void theFirstDifferenceThatCountsIsNamed();
};

void TestModeChooser::theBestModeIsChosen_data()
{
    QTest::addColumn<QVector<CameraMode>>("modes");
    QTest::addColumn<CameraMode>("best");
    using Modes = QVector<CameraMode>;

    QTest::newRow("smooth JPEG before large raw at 5 frames per second")
        << Modes{raw(1920, 1080, 5), raw(640, 480, 30), jpeg(1920, 1080, 30)}
        << jpeg(1920, 1080, 30);
    QTest::newRow("smooth and small before slow and large")
        << Modes{raw(1920, 1080, 10), raw(640, 480, 30)} << raw(640, 480, 30);
    QTest::newRow("24 frames per second are smooth")
        << Modes{raw(640, 480, 30), raw(1280, 720, 24)} << raw(1280, 720, 24);
    QTest::newRow("23 are not") << Modes{raw(1280, 720, 23), raw(640, 480, 30)}
                                << raw(640, 480, 30);
    QTest::newRow("the largest up to 1920x1080")
        << Modes{jpeg(3840, 2160, 30), jpeg(1280, 720, 30), jpeg(1920, 1080, 30)}
        << jpeg(1920, 1080, 30);
    QTest::newRow("a picture higher than 1080 lines is too large")
        << Modes{jpeg(1600, 1200, 30), jpeg(1280, 960, 30)} << jpeg(1280, 960, 30);
    QTest::newRow("when all are too large the smallest of them")
        << Modes{raw(3840, 2160, 30), raw(2560, 1440, 30)} << raw(2560, 1440, 30);
    QTest::newRow("raw before JPEG at equal size and rate")
        << Modes{jpeg(1280, 720, 30), raw(1280, 720, 30)} << raw(1280, 720, 30);
    QTest::newRow("JPEG at 30 before raw at 25 of the same size")
        << Modes{raw(1280, 720, 25), jpeg(1280, 720, 30)} << jpeg(1280, 720, 30);
    QTest::newRow("30 before 60: nobody sees the difference, the processor does")
        << Modes{raw(1280, 720, 60), raw(1280, 720, 30)} << raw(1280, 720, 30);
    QTest::newRow("without a smooth one the fastest")
        << Modes{raw(1920, 1080, 5), raw(1280, 720, 10), raw(640, 480, 15), raw(800, 600, 15)}
        << raw(800, 600, 15);
    QTest::newRow("colour before grey")
        << Modes{raw(1920, 1080, 30, "GRAY8"), raw(640, 480, 15)} << raw(640, 480, 15);
    QTest::newRow("the format that converts fastest")
        << Modes{raw(640, 480, 30, "RGB"), raw(640, 480, 30, "NV12"), raw(640, 480, 30, "YUY2")}
        << raw(640, 480, 30, "YUY2");
    QTest::newRow("a rate that varies is better than nothing")
        << Modes{raw(640, 480, 0)} << raw(640, 480, 0);
}

void TestModeChooser::theBestModeIsChosen()
{
    QFETCH(QVector<CameraMode>, modes);
    QFETCH(CameraMode, best);
    QVERIFY(modes.at(bestMode(modes)) == best);
    std::reverse(modes.begin(), modes.end());
    QVERIFY2(modes.at(bestMode(modes)) == best, "the order of the modes must not matter");
}

void TestModeChooser::aCameraWithoutModesHasNoBestOne()
{
    QCOMPARE(bestMode({}), -1);
}

void TestModeChooser::onlyModesOfTheWantedSizeCount()
{
    const QVector<CameraMode> modes{raw(1920, 1080, 30), raw(640, 480, 15), jpeg(640, 480, 30)};
    QCOMPARE(bestMode(modes, QSize(640, 480)), 2);
    QCOMPARE(bestMode(modes, QSize(800, 600)), -1);
}

void TestModeChooser::eachSizeIsNamedOnceAndTheLargestFirst()
{
    const QVector<CameraMode> modes{raw(640, 480, 30), jpeg(1920, 1080, 30), jpeg(640, 480, 15),
                                    raw(1280, 720, 5)};
    QCOMPARE(resolutionNames(modes), (QStringList{"1920x1080", "1280x720", "640x480"}));
    QCOMPARE(resolutionNames({}), QStringList());
}

void TestModeChooser::theFirstDifferenceThatCountsIsNamed_data()
{
    QTest::addColumn<CameraMode>("chosen");
    QTest::addColumn<CameraMode>("other");
    QTest::addColumn<QByteArray>("name");
    QTest::newRow("colours") << raw(640, 480, 15) << raw(1920, 1080, 30, "GRAY8")
                             << QByteArray("colours");
    QTest::newRow("smooth") << jpeg(640, 480, 30) << raw(1920, 1080, 5)
                            << QByteArray("at least 24 frames a second");
    QTest::newRow("less slow") << raw(640, 480, 15) << raw(1920, 1080, 5)
                               << QByteArray("more frames a second");
    QTest::newRow("not too large")
        << raw(640, 480, 30) << jpeg(3840, 2160, 30) << QByteArray("a size of at most 1920x1080");
    QTest::newRow("larger") << jpeg(1280, 720, 60) << raw(640, 480, 30)
                            << QByteArray("the better size");
    QTest::newRow("not faster than needed") << jpeg(640, 480, 30) << raw(640, 480, 60)
                                            << QByteArray("a rate nearer to 30 frames a second");
    QTest::newRow("raw") << raw(640, 480, 30, "BGR") << jpeg(640, 480, 30)
                         << QByteArray("no JPEG to decode");
    QTest::newRow("quick") << raw(640, 480, 30, "YUY2") << raw(640, 480, 30, "NV12")
                           << QByteArray("a format that is quick to convert");
}

void TestModeChooser::theFirstDifferenceThatCountsIsNamed()
{
    QFETCH(CameraMode, chosen);
    QFETCH(CameraMode, other);
    QTEST(advantageOf(chosen, other), "name");
    QCOMPARE(advantageOf(other, chosen), QByteArray());
    QCOMPARE(advantageOf(chosen, chosen), QByteArray());
    QCOMPARE(bestMode({other, chosen}), 1);
}

QTEST_GUILESS_MAIN(TestModeChooser)
#include "tst_modechooser.moc"
