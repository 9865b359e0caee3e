#include "DesktopFacts.h"

#include <QRegularExpression>
#include <QTest>

// On a desktop with openbox and nothing that composites.
class TestDesktopFacts : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void theLabsDesktopIsDescribed();
    void withoutAServerThereIsNothing();
    void thePrimaryScreenIsFoundAmongSeveral_data();
    void thePrimaryScreenIsFoundAmongSeveral();
};

void TestDesktopFacts::theLabsDesktopIsDescribed()
{
    const DesktopFacts facts = readDesktop();
    QVERIFY(facts.isThere);
    QVERIFY2(facts.server.contains(QRegularExpression("^\\S.* \\d+\\.\\d+\\.\\d+\\.\\d+$")),
             qPrintable(facts.server));
    QCOMPARE(facts.windowManager, QString("Openbox"));
    QVERIFY(!facts.isOnWayland);
    QVERIFY(!facts.isComposited);
    QCOMPARE(facts.screens.size(), 1);
    QCOMPARE(facts.primary().area, QRect(0, 0, 1280, 800));
}

void TestDesktopFacts::withoutAServerThereIsNothing()
{
    const QByteArray display = qgetenv("DISPLAY");
    qputenv("DISPLAY", ":987654");
    const DesktopFacts facts = readDesktop();
    qputenv("DISPLAY", display);
    QVERIFY(!facts.isThere);
    QVERIFY(facts.primary().area.isNull());
}

void TestDesktopFacts::thePrimaryScreenIsFoundAmongSeveral_data()
{
    QTest::addColumn<int>("primary");
    QTest::addColumn<QString>("found");
    QTest::newRow("the first") << 0 << "A";
    QTest::newRow("the second") << 1 << "B";
    QTest::newRow("none") << -1 << "A";
}

void TestDesktopFacts::thePrimaryScreenIsFoundAmongSeveral()
{
    QFETCH(int, primary);
    DesktopFacts facts;
    facts.screens = {{"A", {0, 0, 800, 600}, {}, primary == 0},
                     {"B", {800, 0, 800, 600}, {}, primary == 1}};
    QTEST(facts.primary().name, "found");
}

QTEST_GUILESS_MAIN(TestDesktopFacts)
#include "tst_desktopfacts.moc"
