#include "PrivateFolder.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <sys/stat.h>
#include <unistd.h>

namespace {

constexpr uint nobody = 65534;

bool setMode(const QString &path, mode_t mode)
{
    return chmod(QFile::encodeName(path).constData(), mode) == 0;
}

mode_t modeOf(const QString &path)
{
    struct stat entry = {};
    return lstat(QFile::encodeName(path).constData(), &entry) == 0 ? entry.st_mode & 07777 : 0;
}

} // namespace

class tst_PrivateFolder : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void aMissingFolderIsMadeForThisUserOnly();
    void missingParentsAreMade();
    void aFolderOfAnEarlierRunIsFoundAgain();
    void anOwnFolderThatOthersCanEnterIsClosed_data();
    void anOwnFolderThatOthersCanEnterIsClosed();
    void aLinkInItsPlaceIsRefused();
    void aFileInItsPlaceIsRefused();
    void aFolderOfSomebodyElseIsRefused();
    void aPlaceWhereNothingCanBeMadeIsRefused();

private:
    QString own() const { return m_dir->filePath("own"); }
    QScopedPointer<QTemporaryDir> m_dir;
};

void tst_PrivateFolder::init()
{
    m_dir.reset(new QTemporaryDir);
    QVERIFY(m_dir->isValid());
}

void tst_PrivateFolder::aMissingFolderIsMadeForThisUserOnly()
{
    QVERIFY(!PrivateFolder::isOwn(own()));
    QCOMPARE(PrivateFolder::ensure(own()), own());
    QCOMPARE(modeOf(own()), mode_t(0700));
    QVERIFY(PrivateFolder::isOwn(own()));
}

void tst_PrivateFolder::missingParentsAreMade()
{
    const QString deep = m_dir->filePath("not/yet/there");
    QCOMPARE(PrivateFolder::ensure(deep), deep);
    QCOMPARE(modeOf(deep), mode_t(0700));
}

void tst_PrivateFolder::aFolderOfAnEarlierRunIsFoundAgain()
{
    QCOMPARE(PrivateFolder::ensure(own()), own());
    QFile file(own() + "/photo1.png");
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(PrivateFolder::ensure(own()), own());
    QVERIFY(file.exists());
}

void tst_PrivateFolder::anOwnFolderThatOthersCanEnterIsClosed_data()
{
    QTest::addColumn<int>("mode");
    QTest::newRow("as folders are made by default") << 0755;
    QTest::newRow("open to the group") << 0710;
    QTest::newRow("open to all") << 0777;
    QTest::newRow("as /tmp is") << 01777;
}

void tst_PrivateFolder::anOwnFolderThatOthersCanEnterIsClosed()
{
    QFETCH(int, mode);
    QVERIFY(QDir().mkdir(own()));
    QVERIFY(setMode(own(), mode_t(mode)));
    QCOMPARE(PrivateFolder::ensure(own()), own());
    QCOMPARE(modeOf(own()), mode_t(0700));
}

void tst_PrivateFolder::aLinkInItsPlaceIsRefused()
{
    const QString elsewhere = m_dir->filePath("elsewhere");
    QCOMPARE(PrivateFolder::ensure(elsewhere), elsewhere);
    QVERIFY(QFile::link(elsewhere, own()));
    QCOMPARE(PrivateFolder::ensure(own()), QString());
    QVERIFY(!PrivateFolder::isOwn(own()));
}

void tst_PrivateFolder::aFileInItsPlaceIsRefused()
{
    QVERIFY(QFile(own()).open(QIODevice::WriteOnly));
    QCOMPARE(PrivateFolder::ensure(own()), QString());
    QVERIFY(!PrivateFolder::isOwn(own()));
}

void tst_PrivateFolder::aFolderOfSomebodyElseIsRefused()
{
    // Root can give a folder away; anybody else finds one of root's.
    QString foreign = QStringLiteral("/usr");
    if (geteuid() == 0) {
        foreign = own();
        QVERIFY(QDir().mkdir(foreign));
        QVERIFY(setMode(foreign, 0755));
        QCOMPARE(chown(QFile::encodeName(foreign).constData(), nobody, nobody), 0);
    }
    QCOMPARE(PrivateFolder::ensure(foreign), QString());
    QVERIFY(!PrivateFolder::isOwn(foreign));
    QCOMPARE(modeOf(foreign), mode_t(0755));
}

void tst_PrivateFolder::aPlaceWhereNothingCanBeMadeIsRefused()
{
    QVERIFY(QFile(own()).open(QIODevice::WriteOnly));
    QCOMPARE(PrivateFolder::ensure(own() + "/inside"), QString());
}

QTEST_GUILESS_MAIN(tst_PrivateFolder)
#include "tst_privatefolder.moc"
