#include "FaultTrial.h"

#include <QDir>
#include <QTemporaryDir>
#include <QTest>

// What the table of the whole suite is made of.
class TestFaultTrial : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void itIsTriedAsOftenAsAskedFor();
    void theSameTryMeetsTheSameChance();
    void theTableGetsALineAboutIt();
    void whatWasLostIsAFailure();
    void timeEndsItWhereMinutesAreGiven();

private:
    QByteArray rowOf(const QString &name) const;

    QTemporaryDir m_folder;
};

void TestFaultTrial::init()
{
    qputenv("ORVANTA_FAULTS_FOLDER", m_folder.path().toLocal8Bit());
    qputenv("ORVANTA_FAULTS_SEED", "7");
    qunsetenv("ORVANTA_FAULTS_MINUTES");
}

void TestFaultTrial::cleanup()
{
    qunsetenv("ORVANTA_FAULTS_FOLDER");
    qunsetenv("ORVANTA_FAULTS_SEED");
}

QByteArray TestFaultTrial::rowOf(const QString &name) const
{
    QFile row(m_folder.filePath(name + ".row"));
    return row.open(QIODevice::ReadOnly) ? row.readAll() : QByteArray();
}

void TestFaultTrial::itIsTriedAsOftenAsAskedFor()
{
    FaultTrial whole("counted", 2, 5);
    while (whole.next()) { }
    QCOMPARE(whole.tries(), 5);
    qunsetenv("ORVANTA_FAULTS_FOLDER");
    FaultTrial usual("counted", 2, 5);
    while (usual.next()) { }
    QCOMPARE(usual.tries(), 2);
}

void TestFaultTrial::theSameTryMeetsTheSameChance()
{
    const auto chances = [](const char *name) {
        FaultTrial trial(name, 3, 3);
        QVector<quint32> drawn;
        while (trial.next())
            drawn << trial.chance().generate();
        return drawn;
    };
    const QVector<quint32> first = chances("one");
    QCOMPARE(first, chances("one"));
    QVERIFY(first[0] != first[1] && first[1] != first[2]);
    QVERIFY(first != chances("another"));
    qputenv("ORVANTA_FAULTS_SEED", "8");
    QVERIFY(first != chances("one"));
}

void TestFaultTrial::theTableGetsALineAboutIt()
{
    {
        FaultTrial trial("pulled / plugged", 1, 2);
        while (trial.next())
            trial.addStandstill(qint64(100) * trial.tries());
        trial.addStandstill(50);
    }
    QCOMPARE(rowOf("pulled-plugged"), QByteArray("pulled / plugged\t2\t0\t200\theld\n"));
}

void TestFaultTrial::whatWasLostIsAFailure()
{
    {
        FaultTrial trial("lost", 1, 1);
        QVERIFY(trial.next());
        trial.addLost(2);
    }
    QCOMPARE(rowOf("lost"), QByteArray("lost\t1\t2\t0\tFAILED\n"));
}

void TestFaultTrial::timeEndsItWhereMinutesAreGiven()
{
    qputenv("ORVANTA_FAULTS_MINUTES", "0.001");
    FaultTrial trial("timed", 1, 1000000000);
    QElapsedTimer since;
    since.start();
    while (trial.next()) { }
    QVERIFY(since.elapsed() >= 60);
    QVERIFY(trial.tries() > 1);
}

QTEST_GUILESS_MAIN(TestFaultTrial)
#include "tst_faulttrial.moc"
