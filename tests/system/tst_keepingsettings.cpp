#include "Patience.h"
#include "Session.h"

#include <QDate>
#include <QDir>
#include <QSettings>

#include <memory>

// The settings from the mouse to the file, over a restart of the program.
class TestKeepingSettings : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void aChangedSettingActsAtOnceAndAfterARestart();
    void aCancelledChangeIsForgotten();
    void photosGoToTheChosenFolder();
    void aFolderThatDoesNotExistIsRefused();

private:
    QVariant stored(const char *key) const;
    // Opens the settings with "Use other location" chosen and the path typed.
    void chooseFolder(const QString &path);

    std::unique_ptr<Session> m_user;
};

void TestKeepingSettings::init()
{
    m_user = std::make_unique<Session>(ORVANTA_PROGRAM, "cam1", QSize(1280, 720));
    QVERIFY(m_user->startLive());
}

void TestKeepingSettings::cleanup()
{
    m_user.reset();
}

QVariant TestKeepingSettings::stored(const char *key) const
{
    return QSettings(m_user->program().settingsFile(), QSettings::IniFormat).value(key);
}

void TestKeepingSettings::aChangedSettingActsAtOnceAndAfterARestart()
{
    m_user->press(WindowMap::LiveScreen, "Settings");
    QVERIFY(m_user->clickInSettings("chbPhotoPreview"));
    QVERIFY(m_user->clickInSettings("btnOk"));
    QVERIFY(m_user->waitUntilNoDialog());
    // Written once the box is gone.
    QTRY_COMPARE(stored("PhotoPreview").toString(), QStringLiteral("0"));
    QCOMPARE(stored("AutoShoot").toInt(), 1);
    QCOMPARE(stored("AutoShootTime").toInt(), 5);
    QCOMPARE(stored("ContinuShootCount").toInt(), 4);

    m_user->press(WindowMap::LiveScreen, "Close");
    QVERIFY(m_user->program().hasEndedWithin(4000));
    QVERIFY(m_user->startLive());
    // Without the preview the photo comes in full at once.
    QVERIFY(m_user->pressWhenReady(WindowMap::LiveScreen, "Photo"));
    QVERIFY(
        m_user->waitForPressable(WindowMap::PhotoScreen, {"Live", "PutPhoto", "List", "Close"}));
    QTRY_VERIFY(m_user->isStillAt(m_user->map().videoRect()));
}

void TestKeepingSettings::aCancelledChangeIsForgotten()
{
    m_user->press(WindowMap::LiveScreen, "Settings");
    QVERIFY(m_user->clickInSettings("chbPhotoPreview"));
    QVERIFY(m_user->clickInSettings("btnCancel"));
    QVERIFY(m_user->waitUntilNoDialog());
    QVERIFY(!QFile::exists(m_user->program().settingsFile()));
    QVERIFY(m_user->takePhotoForPreview());
}

void TestKeepingSettings::chooseFolder(const QString &path)
{
    m_user->press(WindowMap::LiveScreen, "Settings");
    QVERIFY(m_user->clickInSettings("rbtnCustom"));
    QVERIFY(m_user->clickInSettings("txbSaveDirectory"));
    m_user->desktop().type(path);
}

void TestKeepingSettings::photosGoToTheChosenFolder()
{
    const QString folder = m_user->program().home() + "/lesson";
    QVERIFY(QDir().mkpath(folder));
    chooseFolder(folder);
    QVERIFY(m_user->clickInSettings("btnOk"));
    QVERIFY(m_user->waitUntilNoDialog());
    // The file is written after the box has gone.
    QTRY_COMPARE(stored("SaveDirectory").toString(), folder);
    QVERIFY(m_user->takePhotoForPreview());
    QVERIFY(m_user->pressWhenReady(WindowMap::PreviewScreen, "Apply"));
    QVERIFY(m_user->pressWhenReady(WindowMap::PhotoScreen, "Close"));
    QVERIFY(m_user->answerExitQuestion("Yes"));
    QVERIFY(m_user->program().hasEndedWithin(4000));
    const QString dated = "/TavelinCamera/" + QDate::currentDate().toString("yyyyMMdd");
    QCOMPARE(QDir(folder + dated).entryList(QDir::Files).size(), 1);
}

void TestKeepingSettings::aFolderThatDoesNotExistIsRefused()
{
    chooseFolder("/no/such/folder");
    QVERIFY(m_user->clickInSettings("btnOk"));
    QVERIFY(m_user->messageSays("Invalid PATH is specified."));
    m_user->desktop().pressKey("Return");
    QVERIFY(m_user->clickInSettings("btnCancel"));
    QVERIFY(m_user->waitUntilNoDialog());
    QVERIFY(!QFile::exists(m_user->program().settingsFile()));
}

QTEST_MAIN(TestKeepingSettings)
#include "tst_keepingsettings.moc"
