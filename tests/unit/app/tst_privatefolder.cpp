#include "PrivateFolder.h"

#include <QDir>
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

private slots:
    void init();
    void theSessionsFolderIsTakenWhenItIsFit();
    void anUnfitSessionFolderIsPassedOver_data();
    void anUnfitSessionFolderIsPassedOver();
    void theOwnFolderIsMadeForThisUserOnly();
    void theOwnFolderIsFoundAgain();
    void anOwnFolderThatOthersCanEnterIsRefused();
    void aLinkInThePlaceOfTheOwnFolderIsRefused();
    void aFolderOfSomebodyElseIsRefused();

private:
    QString own() const { return m_dir->path() + "/orvanta-" + QString::number(geteuid()); }

    QScopedPointer<QTemporaryDir> m_dir;
    QString m_session;
};

void tst_PrivateFolder::init()
{
    m_dir.reset(new QTemporaryDir);
    QVERIFY(m_dir->isValid());
    m_session = m_dir->filePath("session");
    QVERIFY(QDir().mkdir(m_session));
    QVERIFY(setMode(m_session, 0700));
}

void tst_PrivateFolder::theSessionsFolderIsTakenWhenItIsFit()
{
    QCOMPARE(PrivateFolder::find(m_session, m_dir->path()), m_session);
    QVERIFY(!QFile::exists(own()));
}

void tst_PrivateFolder::anUnfitSessionFolderIsPassedOver_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("mode");
    QTest::newRow("not set") << QString() << 0;
    QTest::newRow("missing") << "missing" << 0;
    QTest::newRow("readable by others") << "session" << 0755;
    QTest::newRow("open to the group") << "session" << 0710;
    QTest::newRow("open to all, as /tmp is") << "session" << 01777;
}

void tst_PrivateFolder::anUnfitSessionFolderIsPassedOver()
{
    QFETCH(QString, name);
    QFETCH(int, mode);
    if (mode != 0)
        QVERIFY(setMode(m_session, mode_t(mode)));
    const QString session = name.isEmpty() ? QString() : m_dir->filePath(name);
    QCOMPARE(PrivateFolder::find(session, m_dir->path()), own());
}

void tst_PrivateFolder::theOwnFolderIsMadeForThisUserOnly()
{
    QCOMPARE(PrivateFolder::find(QString(), m_dir->path()), own());
    QVERIFY(QFileInfo(own()).isDir());
    QCOMPARE(modeOf(own()), mode_t(0700));
}

void tst_PrivateFolder::theOwnFolderIsFoundAgain()
{
    QCOMPARE(PrivateFolder::find(QString(), m_dir->path()), own());
    QCOMPARE(PrivateFolder::find(QString(), m_dir->path()), own());
}

void tst_PrivateFolder::anOwnFolderThatOthersCanEnterIsRefused()
{
    QVERIFY(QDir().mkdir(own()));
    QVERIFY(setMode(own(), 0777));
    QCOMPARE(PrivateFolder::find(QString(), m_dir->path()), QString());
}

void tst_PrivateFolder::aLinkInThePlaceOfTheOwnFolderIsRefused()
{
    QVERIFY(QFile::link(m_session, own()));
    QCOMPARE(PrivateFolder::find(QString(), m_dir->path()), QString());
}

void tst_PrivateFolder::aFolderOfSomebodyElseIsRefused()
{
    // Root can give a folder away; anybody else finds root's home, which is closed to others.
    QString foreign = QStringLiteral("/root");
    if (geteuid() == 0) {
        foreign = m_session;
        QCOMPARE(chown(QFile::encodeName(foreign).constData(), nobody, nobody), 0);
    }
    QCOMPARE(modeOf(foreign), mode_t(0700));
    QCOMPARE(PrivateFolder::find(foreign, m_dir->path()), own());
}

QTEST_GUILESS_MAIN(tst_PrivateFolder)
#include "tst_privatefolder.moc"
