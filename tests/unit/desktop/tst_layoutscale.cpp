#include "LayoutScale.h"

#include <QTest>

class LayoutScaleTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void theFactorFollowsTheLesserDirection_data();
    void theFactorFollowsTheLesserDirection();
    void textsAreAsLargeAsTheDesktopsOnce_data();
    void textsAreAsLargeAsTheDesktopsOnce();
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

void LayoutScaleTest::textsAreAsLargeAsTheDesktopsOnce_data()
{
    QTest::addColumn<QString>("desktopDpi");
    QTest::addColumn<QSize>("screen");
    QTest::addColumn<int>("dpi");
    const QSize classroom(1024, 768);
    const QSize fullHd(1920, 1080);
    const QSize fourK(3840, 2160);
    QTest::newRow("a desktop that says nothing") << "" << fullHd << 96;
    QTest::newRow("ordinary texts") << "96" << fullHd << 96;
    QTest::newRow("nonsense") << "large" << fullHd << 96;
    QTest::newRow("not a number") << "nan" << fullHd << 96;
    QTest::newRow("below nothing") << "-120" << fullHd << 96;
    QTest::newRow("no screen") << "144" << QSize() << 96;
    QTest::newRow("smaller texts stay as designed") << "72" << fullHd << 96;
    QTest::newRow("large texts") << "120" << fullHd << 120;
    QTest::newRow("large texts in a small classroom") << "144" << classroom << 144;
    QTest::newRow("fractions of a dot") << "120.4" << fullHd << 120;
    QTest::newRow("with blanks") << " 120 " << fullHd << 120;
    QTest::newRow("a laptop at twice the scale") << "192" << QSize(2880, 1800) << 192;
    QTest::newRow("never more than twice") << "288" << fullHd << 192;
    QTest::newRow("beyond all bounds") << "inf" << fullHd << 192;
    QTest::newRow("as large as a narrow screen lets boxes be") << "192" << QSize(800, 600) << 112;
    QTest::newRow("a screen with no room to spare") << "192" << QSize(512, 384) << 96;
    QTest::newRow("4K at twice the scale is drawn so anyway") << "192" << fourK << 96;
    QTest::newRow("4K at one and a half") << "144" << fourK << 96;
    QTest::newRow("4K at twice the scale with large texts") << "240" << fourK << 120;
    QTest::newRow("4K at three times the scale") << "288" << fourK << 144;
}

void LayoutScaleTest::textsAreAsLargeAsTheDesktopsOnce()
{
    QFETCH(QString, desktopDpi);
    QFETCH(QSize, screen);
    QFETCH(int, dpi);
    QCOMPARE(LayoutScale::textDpiFor(desktopDpi, screen), dpi);
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
