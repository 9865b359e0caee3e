#include "LayoutScale.h"

#include <QTest>

class LayoutScaleTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void theFactorFollowsTheLesserDirection_data();
    void theFactorFollowsTheLesserDirection();
    void withoutAServerTheSizeIsEmpty();
    void applyingTellsTheToolkitBothValues();
    void theDesktopsOwnScalingNoLongerCounts_data();
    void theDesktopsOwnScalingNoLongerCounts();
};

void LayoutScaleTest::theFactorFollowsTheLesserDirection_data()
{
    QTest::addColumn<QSize>("screen");
    QTest::addColumn<int>("factor");
    QTest::newRow("no screen") << QSize() << 1;
    QTest::newRow("1024x768") << QSize(1024, 768) << 1;
    QTest::newRow("1366x768") << QSize(1366, 768) << 1;
    QTest::newRow("1920x1080") << QSize(1920, 1080) << 1;
    QTest::newRow("2560x1440") << QSize(2560, 1440) << 1;
    QTest::newRow("just below 4K") << QSize(3839, 2160) << 1;
    QTest::newRow("4K") << QSize(3840, 2160) << 2;
    QTest::newRow("4K upright") << QSize(2160, 3840) << 1;
    QTest::newRow("wide, but low") << QSize(5120, 1440) << 1;
    QTest::newRow("5K") << QSize(5120, 2880) << 2;
    QTest::newRow("8K") << QSize(7680, 4320) << 4;
}

void LayoutScaleTest::theFactorFollowsTheLesserDirection()
{
    QFETCH(QSize, screen);
    QFETCH(int, factor);
    QCOMPARE(LayoutScale::factorFor(screen), factor);
}

void LayoutScaleTest::withoutAServerTheSizeIsEmpty()
{
    qputenv("DISPLAY", ":987654");
    QVERIFY(LayoutScale::primaryScreenSize().isEmpty());
}

void LayoutScaleTest::applyingTellsTheToolkitBothValues()
{
    qputenv("DISPLAY", ":987654");
    qputenv("QT_SCALE_FACTOR", "7");
    qputenv("QT_FONT_DPI", "192");
    LayoutScale::apply();
    QCOMPARE(qgetenv("QT_SCALE_FACTOR"), QByteArray("1"));
    QCOMPARE(qgetenv("QT_FONT_DPI"), QByteArray("96"));
}

void LayoutScaleTest::theDesktopsOwnScalingNoLongerCounts_data()
{
    QTest::addColumn<QByteArray>("variable");
    for (const char *variable : {"QT_SCREEN_SCALE_FACTORS", "QT_AUTO_SCREEN_SCALE_FACTOR",
                                 "QT_ENABLE_HIGHDPI_SCALING", "QT_DEVICE_PIXEL_RATIO"})
        QTest::newRow(variable) << QByteArray(variable);
}

void LayoutScaleTest::theDesktopsOwnScalingNoLongerCounts()
{
    QFETCH(QByteArray, variable);
    qputenv("DISPLAY", ":987654");
    qputenv(variable.constData(), "2");
    LayoutScale::apply();
    QVERIFY(!qEnvironmentVariableIsSet(variable.constData()));
    QCOMPARE(qgetenv("QT_SCALE_FACTOR"), QByteArray("1"));
}

QTEST_APPLESS_MAIN(LayoutScaleTest)
#include "tst_layoutscale.moc"
