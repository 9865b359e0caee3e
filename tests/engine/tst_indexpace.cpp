#include "IndexPace.h"

#include <QTest>

// How often a movie's index is written on disks of different kinds.
class TestIndexPace : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void aSlowDiskIsAskedMoreRarely_data();
    void aSlowDiskIsAskedMoreRarely();
};

void TestIndexPace::aSlowDiskIsAskedMoreRarely_data()
{
    QTest::addColumn<int>("last"); // ms
    QTest::addColumn<int>("before"); // ms
    QTest::addColumn<int>("period"); // ms
    QTest::newRow("quick") << 5 << 5 << 500;
    QTest::newRow("as slow as it may be") << 125 << 125 << 500;
    QTest::newRow("slow") << 300 << 250 << 1000;
    QTest::newRow("busy once") << 2000 << 5 << 500;
    QTest::newRow("quick again") << 5 << 2000 << 500;
    QTest::newRow("hardly moving") << 60000 << 60000 << 15000;
}

void TestIndexPace::aSlowDiskIsAskedMoreRarely()
{
    QFETCH(int, last);
    QFETCH(int, before);
    QFETCH(int, period);
    QCOMPARE(
        IndexPace::periodFor(GstClockTime(last) * GST_MSECOND, GstClockTime(before) * GST_MSECOND),
        GstClockTime(period) * GST_MSECOND);
}

QTEST_GUILESS_MAIN(TestIndexPace)
#include "tst_indexpace.moc"
