#include "ScaleWeights.h"

#include <QTest>

#include <cmath>

class TestScaleWeights : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void weightsAddUpAndStayInside_data();
    void weightsAddUpAndStayInside();
    void theMiddleStaysWhereItIs();
    void noSampleIsFavouredWhereManyBecomeOne();
    void theSameLengthIsLeftAlone();
    void aShiftedLineIsNotLeftAlone();
};

void TestScaleWeights::weightsAddUpAndStayInside_data()
{
    QTest::addColumn<int>("samples");
    QTest::addColumn<int>("count");
    QTest::addColumn<double>("shift");
    for (const double shift : {0.0, 0.25, -3.0, 500.0})
        for (const int samples : {1, 2, 3, 959, 1920, 3840})
            for (const int count : {1, 2, 5, 896, 1680, 3328})
                QTest::addRow("%d to %d, shifted %g", samples, count, shift)
                    << samples << count << shift;
}

void TestScaleWeights::weightsAddUpAndStayInside()
{
    QFETCH(int, samples);
    QFETCH(int, count);
    QFETCH(double, shift);
    const ScaleWeights weights(samples, count, double(samples) / count, shift);
    QCOMPARE(weights.samples(), samples);
    QCOMPARE(weights.count(), count);
    for (int i = 0; i < count; ++i) {
        const ScaleWeights::Window &window = weights.at(i);
        QVERIFY(window.count > 0 && window.first >= 0 && window.first + window.count <= samples);
        int sum = 0;
        for (int k = 0; k < window.count; ++k)
            sum += weights.of(window)[k];
        QCOMPARE(sum, ScaleWeights::one);
        QVERIFY(weights.of(window)[0] > 0);
    }
}

void TestScaleWeights::theMiddleStaysWhereItIs()
{
    for (const int count : {7, 896, 1680, 3328}) {
        const ScaleWeights weights(1920, count, 1920.0 / count, 0);
        for (int i = count / 4; i < count / 2; ++i) {
            const ScaleWeights::Window &window = weights.at(i);
            double middle = 0;
            for (int k = 0; k < window.count; ++k)
                middle += (window.first + k + 0.5) * weights.of(window)[k] / ScaleWeights::one;
            // A sample that is covered in part still counts with its middle.
            QVERIFY(std::abs(middle - (i + 0.5) * 1920 / count) < (count > 1920 ? 0.01 : 0.2));
        }
    }
}

void TestScaleWeights::noSampleIsFavouredWhereManyBecomeOne()
{
    const ScaleWeights weights(1920, 10, 192, 0);
    for (int k = 0; k < 192; ++k)
        QVERIFY(weights.of(weights.at(3))[k] <= 2);
}

void TestScaleWeights::theSameLengthIsLeftAlone()
{
    QVERIFY(ScaleWeights(1920, 1920, 1, 0).isIdentity());
    QVERIFY(!ScaleWeights(1920, 1919, 1920.0 / 1919, 0).isIdentity());
}

void TestScaleWeights::aShiftedLineIsNotLeftAlone()
{
    QVERIFY(!ScaleWeights(960, 960, 1, 0.25).isIdentity());
}

QTEST_APPLESS_MAIN(TestScaleWeights)
#include "tst_scaleweights.moc"
