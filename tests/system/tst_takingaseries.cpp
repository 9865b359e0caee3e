#include "LabPattern.h"
#include "Patience.h"
#include "Session.h"

#include "SpareTime.h"

#include <QRegularExpression>
#include <QTime>

#include <memory>

namespace {

const QSize cameraSize(640, 480);

/// When a photo was taken, in ms of the day, as its name tells.
int momentOf(const QString &photo)
{
    return QTime::fromString(photo.mid(13, 9), "hhmmsszzz").msecsSinceStartOfDay();
}

} // namespace

// Several photos in a row, from the first press to all of them side by side.
class TestTakingASeries : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void timedPhotosComeOnTimeAndTheNextSeriesFollowsNewSettings();
    void liveDuringASeriesKeepsItsPhotos();
    void closingDuringATimedSeriesKeepsItsPhotos_data();
    void closingDuringATimedSeriesKeepsItsPhotos();

private:
    bool startWith(const QByteArray &settings);
    QStringList photos() const;
    int counterInFile(const QString &photo) const;
    bool showsSideBySide(const QStringList &photos) const;
    QByteArray handOverOf(const QStringList &photos) const;

    std::unique_ptr<Session> m_user;
};

void TestTakingASeries::cleanup()
{
    if (!m_user)
        return; // the program has ended as it should
    QVERIFY2(m_user->program().isRunning(), qPrintable(m_user->program().output()));
    m_user.reset();
}

bool TestTakingASeries::startWith(const QByteArray &settings)
{
    m_user = std::make_unique<Session>(ORVANTA_PROGRAM, "cam1", cameraSize);
    return m_user->program().writeSettings(settings) && m_user->startLive();
}

// A photo that is still being written has a hidden name.
QStringList TestTakingASeries::photos() const
{
    return m_user->program().captured().filter(QRegularExpression("^photo"));
}

int TestTakingASeries::counterInFile(const QString &photo) const
{
    return LabPattern::counterOf(QImage(m_user->program().temporaryArea() + "/" + photo));
}

bool TestTakingASeries::showsSideBySide(const QStringList &photos) const
{
    const auto isShown = [&](int i) {
        return m_user->counterAt(m_user->map().tile(photos.size(), i)) == counterInFile(photos[i]);
    };
    for (int i = 0; i < photos.size(); ++i)
        if (counterInFile(photos[i]) < 0 || !QTest::qWaitFor([&] { return isShown(i); }, 4000))
            return false;
    return true;
}

QByteArray TestTakingASeries::handOverOf(const QStringList &photos) const
{
    const QSize area = m_user->map().videoRect().size();
    return QString("0\n%1x%2\n%3\n")
        .arg(area.width())
        .arg(area.height())
        .arg(photos.join('\n'))
        .toUtf8();
}

void TestTakingASeries::timedPhotosComeOnTimeAndTheNextSeriesFollowsNewSettings()
{
    QVERIFY(startWith("AutoShoot=1\nAutoShootTime=2\nContinuShootCount=4\n"));
    const WindowMap &map = m_user->map();
    const SpareTime time;
    QVERIFY(m_user->pressWhenReady(WindowMap::LiveScreen, "PhotoMulti"));
    QTRY_VERIFY(m_user->isLiveAt(map.seriesLiveRect()));
    QVERIFY(m_user->waitForPressable(WindowMap::LiveScreen, {"Live", "PhotoMulti"}));
    QTRY_COMPARE_WITH_TIMEOUT(photos().size(), 1, patience);
    const QString first = photos().value(0);
    QTRY_COMPARE(m_user->counterAt(map.seriesPhotoRect()), counterInFile(first));

    const QStringList row{"Live", "PutPhoto", "List", "Close"};
    QTRY_VERIFY_WITH_TIMEOUT(photos().size() == 4, patience);
    QVERIFY(m_user->waitForPressable(WindowMap::PhotoScreen, row));
    const QStringList timed = photos();
    // The next seconds are counted when a photo is taken, which takes a busy machine a while.
    const int lateness = time.isPlenty() ? 250 : 5000;
    QVERIFY(showsSideBySide(timed));
    for (int i = 1; i < 4; ++i) {
        const int interval = momentOf(timed[i]) - momentOf(timed[i - 1]);
        QVERIFY2(interval > 2750 && interval < 3000 + lateness,
                 qPrintable(QString::number(interval)));
    }
    QVERIFY(m_user->pressWhenReady(WindowMap::PhotoScreen, "PutPhoto"));
    QTRY_COMPARE(m_user->program().handedOver(), handOverOf(timed));

    QVERIFY(m_user->pressWhenReady(WindowMap::PhotoScreen, "Live"));
    QVERIFY(m_user->pressWhenReady(WindowMap::LiveScreen, "Settings"));
    QVERIFY(m_user->clickInSettings("chbAutoShooting"));
    QVERIFY(m_user->clickInSettings("btnOk"));
    QVERIFY(m_user->waitUntilNoDialog());
    for (int photo = 1; photo <= 4; ++photo) {
        QVERIFY(m_user->pressWhenReady(WindowMap::LiveScreen, "PhotoMulti"));
        QTRY_COMPARE(photos().size(), 4 + photo);
    }
    QVERIFY(m_user->waitForPressable(WindowMap::PhotoScreen, row));
    QVERIFY(showsSideBySide(photos().mid(4)));
}

void TestTakingASeries::liveDuringASeriesKeepsItsPhotos()
{
    QVERIFY(startWith("AutoShoot=0\nContinuShootCount=4\n"));
    for (int photo = 1; photo <= 2; ++photo) {
        QVERIFY(m_user->pressWhenReady(WindowMap::LiveScreen, "PhotoMulti"));
        QTRY_COMPARE(photos().size(), photo);
    }
    const QStringList taken = photos();
    QTRY_COMPARE(m_user->counterAt(m_user->map().seriesPhotoRect()), counterInFile(taken[1]));
    QVERIFY(m_user->isLiveAt(m_user->map().seriesLiveRect()));
    QVERIFY(m_user->pressWhenReady(WindowMap::LiveScreen, "Live"));
    QTRY_VERIFY(m_user->isLiveAt(m_user->map().videoRect()));
    QVERIFY(m_user->waitForPressable(
        WindowMap::LiveScreen,
        {"Live", "Photo", "PhotoMulti", "Movie", "List", "Settings", "Close"}));
    QCOMPARE(photos(), taken);
}

void TestTakingASeries::closingDuringATimedSeriesKeepsItsPhotos_data()
{
    QTest::addColumn<bool>("byTheSession");
    QTest::newRow("by the window system") << false;
    QTest::newRow("by the session") << true;
}

void TestTakingASeries::closingDuringATimedSeriesKeepsItsPhotos()
{
    QFETCH(bool, byTheSession);
    QVERIFY(startWith("AutoShoot=1\nAutoShootTime=1\nContinuShootCount=9\n"));
    QVERIFY(m_user->pressWhenReady(WindowMap::LiveScreen, "PhotoMulti"));
    QTRY_VERIFY_WITH_TIMEOUT(photos().size() >= 2, 15000);
    if (byTheSession)
        m_user->program().terminate();
    else
        m_user->desktop().closeWindow(m_user->mainWindow().id);
    QVERIFY(m_user->program().hasEndedWithin(8000));
    QVERIFY(!m_user->program().hasCrashed());
    QCOMPARE(m_user->program().exitStatus(), 0);
    const QStringList kept = photos();
    QVERIFY(kept.size() >= 2 && kept.size() < 9);
    for (const QString &photo : kept)
        QVERIFY2(counterInFile(photo) >= 0, qPrintable(photo));
    m_user.reset();
}

QTEST_MAIN(TestTakingASeries)
#include "tst_takingaseries.moc"
