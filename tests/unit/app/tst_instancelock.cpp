#include "InstanceLock.h"

#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

#include <sys/stat.h>

class tst_InstanceLock : public QObject {
    Q_OBJECT

private slots:
    void oneHolderAtATime();
    void theLockIsFreeWhenItsHolderIsGone();
    void aFileThatWasLeftBehindIsNoLock();
    void aProgramStartedMeanwhileDoesNotKeepTheLock();
    void aFolderThatIsMissingGivesNoLock();
    void theFileIsForThisUserOnly();

private:
    QTemporaryDir m_dir;
};

void tst_InstanceLock::oneHolderAtATime()
{
    InstanceLock first(m_dir.filePath("one"));
    InstanceLock second(m_dir.filePath("one"));
    InstanceLock other(m_dir.filePath("other"));
    QVERIFY(first.tryLock());
    QVERIFY(first.tryLock());
    QVERIFY(!second.tryLock());
    QVERIFY(other.tryLock());
}

void tst_InstanceLock::theLockIsFreeWhenItsHolderIsGone()
{
    InstanceLock second(m_dir.filePath("gone"));
    {
        InstanceLock first(m_dir.filePath("gone"));
        QVERIFY(first.tryLock());
        QVERIFY(!second.tryLock());
    }
    QVERIFY(second.tryLock());
}

void tst_InstanceLock::aFileThatWasLeftBehindIsNoLock()
{
    QFile file(m_dir.filePath("left"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("1\nsome text of a copy that crashed\n");
    file.close();
    QVERIFY(InstanceLock(m_dir.filePath("left")).tryLock());
}

void tst_InstanceLock::aProgramStartedMeanwhileDoesNotKeepTheLock()
{
    QProcess child;
    {
        InstanceLock first(m_dir.filePath("child"));
        QVERIFY(first.tryLock());
        child.start("sleep", {"60"});
        QVERIFY(child.waitForStarted());
    }
    QVERIFY(InstanceLock(m_dir.filePath("child")).tryLock());
    child.kill();
    QVERIFY(child.waitForFinished());
}

void tst_InstanceLock::aFolderThatIsMissingGivesNoLock()
{
    QVERIFY(!InstanceLock(m_dir.filePath("missing/lock")).tryLock());
}

void tst_InstanceLock::theFileIsForThisUserOnly()
{
    InstanceLock lock(m_dir.filePath("mode"));
    QVERIFY(lock.tryLock());
    struct stat entry = {};
    QCOMPARE(stat(QFile::encodeName(m_dir.filePath("mode")).constData(), &entry), 0);
    QCOMPARE(entry.st_mode & 077U, 0U);
}

QTEST_GUILESS_MAIN(tst_InstanceLock)
#include "tst_instancelock.moc"
