#include "DiskLesson.h"
#include "FaultTrial.h"
#include "OwnDisks.h"
#include "Patience.h"

#include <QDir>

#include <memory>

// The save folder lies on a server that is gone: whoever asks for it waits for ever.
class TestHangingDisk : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QVERIFY2(hasOwnMounts, "no disks of our own can be had here"); }
    void savingIsGivenUpAndTold();

public:
    bool hasOwnMounts = false;
};

void TestHangingDisk::savingIsGivenUpAndTold()
{
    FaultTrial trial("the save folder's server is gone", 1, 20);
    while (trial.next()) {
        DiskLesson lesson;
        TroubledDisk disk(lesson.otherSaveFolder());
        QVERIFY(disk.isThere());
        QVERIFY(lesson.startLive());
        QVERIFY(lesson.takeAndAccept());
        const QStringList before = lesson.photos();
        QVERIFY(lesson.askAtExit());
        // At once, or with some of it done already.
        if (trial.upTo(1) == 0)
            QVERIFY(disk.hang());
        else
            QVERIFY(disk.slowDown("fsync", 1000 * patience));
        QElapsedTimer waited;
        waited.start();
        QVERIFY(lesson.answerExitQuestion("Yes"));
        QVERIFY(lesson.messageSays("Save failed."));
        // A disk that refuses says so at once: it has not hung.
        QVERIFY2(waited.elapsed() > 5000, qPrintable(QString::number(waited.elapsed())));
        QVERIFY(lesson.confirmMessage());
        // The kernel keeps the process until the server answers; the user is rid of it.
        QTRY_COMPARE(lesson.mainWindow().id, quint32(0));
        disk.vanish();
        QVERIFY(lesson.program().hasEndedWithin(patience));
        QCOMPARE(lesson.photos(), before);
        trial.addLost(lesson.lostOf(before));
    }
}

int main(int argc, char **argv)
{
    TestHangingDisk test;
    test.hasOwnMounts = enterOwnMounts();
    const QApplication application(argc, argv);
    return QTest::qExec(&test, argc, argv);
}
#include "tst_hangingdisk.moc"
