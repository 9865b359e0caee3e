// A movie as a person makes and watches it, and what becomes of one whose program is closed.

#include "LabPattern.h"
#include "MovieProbe.h"
#include "Patience.h"
#include "Session.h"
#include "SpareTime.h"
#include "TimerWidget.h"

#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>

#include <csignal>
#include <phonon/mediaobject.h>
#include <phonon/videoplayer.h>

class MoviesTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void aMovieIsRecordedAndPlayedTwice();
    void theFirstPictureStandsBeforePlayAndAfterTheEnd();
    void rubbishInPlaceOfAMovieHangsNothing();
    void aMovieSurvivesTheEndOfTheProgram_data();
    void aMovieSurvivesTheEndOfTheProgram();

private:
    static QStringList movies(Session &user);
    static QImage timeLine(Session &user);
    static bool timeLineSays(Session &user, const QString &text);
    static int secondShown(Session &user, int length);
    static bool beginRecording(Session &user);
};

void MoviesTest::initTestCase()
{
    qputenv("PHONON_GST_VIDEOMODE", "software");
}

QStringList MoviesTest::movies(Session &user)
{
    const QDir area(user.program().temporaryArea());
    QStringList paths;
    for (const QString &name : area.entryList({"movie*.mov"}, QDir::Files))
        paths.append(area.filePath(name));
    return paths;
}

/// What stands in the right corner at the top: the time, as long as it is shown.
QImage MoviesTest::timeLine(Session &user)
{
    const int width = 190; // px; "00:00/00:00" is a little wider
    return user.seenAt({user.desktop().screen().width() - width, 0, width, 36});
}

/// Compared pixel by pixel with a line of the same kind, but for the first digit: the font places
/// that by fractions of a pixel, which depend on what it drew before.
bool MoviesTest::timeLineSays(Session &user, const QString &text)
{
    const int firstDigit = 20; // px
    TimerWidget twin;
    twin.SetMode(TimerPlayTime);
    twin.setText(text);
    const QRect compared = twin.rect().adjusted(firstDigit, 0, 0, 0);
    const QImage expected =
        twin.grab().toImage().copy(compared).convertToFormat(QImage::Format_RGB32);
    const int left = user.desktop().screen().width() - twin.width();
    return user.seenAt(compared.translated(left, 0)) == expected;
}

/// How far the time line says that a movie of @p length (s, below ten) has been played; -1 when it
/// shows no such thing.
int MoviesTest::secondShown(Session &user, int length)
{
    for (int second = 0; second <= length; ++second)
        if (timeLineSays(user, QStringLiteral("00:0%1/00:0%2").arg(second).arg(length)))
            return second;
    return -1;
}

bool MoviesTest::beginRecording(Session &user)
{
    return user.startLive() && user.beginMovie();
}

void MoviesTest::aMovieIsRecordedAndPlayedTwice()
{
    Session user(QStringLiteral(ORVANTA_PROGRAM), "cam1", QSize(1280, 720));
    const QRect picture = user.map().videoRect();
    QVERIFY(beginRecording(user));
    const QImage begin = timeLine(user);
    QVERIFY(user.isLiveAt(picture));
    QTRY_VERIFY_WITH_TIMEOUT(timeLine(user) != begin, 3000);
    QTest::qWait(4000); // nothing to wait for: the movie's length, to see all before its end
    QVERIFY(user.isLiveAt(picture));
    user.press(WindowMap::RecordingScreen, "MovieStop");
    QVERIFY(user.waitForPressable(WindowMap::MovieScreen, {"Live", "MoviePlay", "List", "Close"}));
    QCOMPARE(movies(user).size(), 1);
    const QString still = QString(movies(user).first()).replace(".mov", "tmp.png");
    QVERIFY(LabPattern::counterOf(QImage(still)) >= 0);
    const MovieProbe movie(movies(user).first());
    QCOMPARE(movie.complaints(), QString());
    const int length = int(movie.duration()); // of which whole seconds are shown
    QVERIFY2(length >= 3 && length < 10, qPrintable(QString::number(length)));

    for (int showing = 0; showing < 2; ++showing) {
        const SpareTime spare;
        user.press(WindowMap::MovieScreen, "MoviePlay");
        // The length is there before the first second has passed, if the look takes none itself.
        int second = -1;
        double longestLook = 0; // s
        const auto isTold = [&] {
            QElapsedTimer look;
            look.start();
            second = secondShown(user, length);
            longestLook = qMax(longestLook, double(look.elapsed()) / 1000);
            return second >= 0;
        };
        QVERIFY(QTest::qWaitFor(isTold, patience));
        QVERIFY2(second <= spare.lateness() + longestLook,
                 qPrintable(QString("%1, look %2 s").arg(second).arg(longestLook)));
        QVERIFY(user.waitForPressable(WindowMap::PlayingScreen,
                                      {"Live", "MoviePause", "List", "Close"}));
        QTRY_VERIFY(user.counterAt(picture) > 0);
        if (showing == 0) {
            user.press(WindowMap::PlayingScreen, "MoviePause");
            QVERIFY(user.waitForPressable(WindowMap::MovieScreen,
                                          {"Live", "MoviePlay", "List", "Close"}));
            QTRY_VERIFY(user.isStillAt(picture));
            user.press(WindowMap::MovieScreen, "MoviePlay");
            QVERIFY(user.waitForPressable(WindowMap::PlayingScreen,
                                          {"Live", "MoviePause", "List", "Close"}));
        }
        // Its end brings "Play" back.
        QTRY_VERIFY(
            user.map().look(user.desktop().screenshot(), WindowMap::MovieScreen, "MoviePlay")
            == WindowMap::Up);
    }
    QVERIFY(user.pressWhenReady(WindowMap::MovieScreen, "Live"));
    QTRY_VERIFY(user.isLiveAt(picture));
}

void MoviesTest::theFirstPictureStandsBeforePlayAndAfterTheEnd()
{
    Session user(QStringLiteral(ORVANTA_PROGRAM), "cam1", QSize(1280, 720));
    const QRect picture = user.map().videoRect();
    QVERIFY(beginRecording(user));
    QTest::qWait(2000); // nothing to wait for: the movie's length
    QVERIFY(user.pressWhenReady(WindowMap::RecordingScreen, "MovieStop"));
    QVERIFY(user.waitForPressable(WindowMap::MovieScreen, {"Live", "MoviePlay", "List", "Close"}));
    QCOMPARE(movies(user).size(), 1);
    const QString still = QString(movies(user).first()).replace(".mov", "tmp.png");
    const int first = LabPattern::counterOf(QImage(still));
    QVERIFY(first >= 0);
    QTRY_COMPARE(user.counterAt(picture), first);
    user.press(WindowMap::MovieScreen, "MoviePlay");
    QTRY_VERIFY(user.counterAt(picture) > first + 15);
    QVERIFY(
        user.waitForPressable(WindowMap::PlayingScreen, {"Live", "MoviePause", "List", "Close"}));
    QTRY_COMPARE(user.counterAt(picture), first);
    QVERIFY(user.waitForPressable(WindowMap::MovieScreen, {"Live", "MoviePlay", "List", "Close"}));
}

void MoviesTest::rubbishInPlaceOfAMovieHangsNothing()
{
    Session user(QStringLiteral(ORVANTA_PROGRAM), "cam1", QSize(1280, 720));
    const WindowMap &map = user.map();
    const QString stem = user.program().temporaryArea() + "/movie20240229101500";
    QVERIFY(QDir().mkpath(user.program().temporaryArea()));
    QFile rubbish(stem + ".mov");
    QVERIFY(rubbish.open(QIODevice::WriteOnly) && rubbish.write(QByteArray(50000, 'x')) > 0);
    rubbish.close();
    QVERIFY(LabPattern::frame(1280, 720, 500, user.ground()).save(stem + "tmp.png"));
    QVERIFY(user.startLive());
    const auto showTheMovie = [&](WindowMap::Screen list) {
        user.desktop().click(map.thumbnail(0).center());
        return user.pressWhenReady(list, "Show")
            && user.waitForPressable(WindowMap::MovieScreen,
                                     {"Live", "MoviePlay", "List", "Close"});
    };
    QVERIFY(user.pressWhenReady(WindowMap::LiveScreen, "List"));
    QVERIFY(user.pressWhenReady(WindowMap::ListScreen, "SwitchMovie"));
    QVERIFY(user.waitForPressable(WindowMap::MovieListScreen, {"Live", "SwitchPhoto", "Close"}));
    QVERIFY(showTheMovie(WindowMap::MovieListScreen));
    for (int press = 0; press < 2; ++press) {
        QVERIFY(user.pressWhenReady(WindowMap::MovieScreen, "MoviePlay"));
        QVERIFY(user.pressWhenReady(WindowMap::PlayingScreen, "MoviePause"));
    }
    QVERIFY(user.pressWhenReady(WindowMap::MovieScreen, "MoviePlay"));
    QVERIFY(user.pressWhenReady(WindowMap::PlayingScreen, "List"));
    QVERIFY(user.waitForPressable(WindowMap::MovieListScreen, {"Live", "SwitchPhoto", "Close"}));
    QVERIFY(showTheMovie(WindowMap::MovieListScreen));
    QVERIFY(user.pressWhenReady(WindowMap::MovieScreen, "MoviePlay"));
    QVERIFY(user.pressWhenReady(WindowMap::PlayingScreen, "Live"));
    QTRY_VERIFY(user.isLiveAt(map.videoRect()));
    QVERIFY(user.beginMovie()); // and a real one can be made
}

void MoviesTest::aMovieSurvivesTheEndOfTheProgram_data()
{
    QTest::addColumn<int>("signal"); // 0: by the window system
    QTest::newRow("closed by the window system") << 0;
    QTest::newRow("ended by the session") << SIGTERM;
    QTest::newRow("interrupted from a terminal") << SIGINT;
}

void MoviesTest::aMovieSurvivesTheEndOfTheProgram()
{
    QFETCH(int, signal);
    Session user(QStringLiteral(ORVANTA_PROGRAM), "cam1", QSize(1280, 720));
    QVERIFY(beginRecording(user));
    QTest::qWait(2500); // nothing to wait for: the movie's length
    if (signal)
        kill(pid_t(user.program().pid()), signal);
    else
        user.desktop().closeWindow(user.mainWindow().id);
    QVERIFY(user.program().hasEndedWithin(8000));
    QVERIFY(!user.program().hasCrashed());
    QCOMPARE(user.program().exitStatus(), 0);
    QCOMPARE(movies(user).size(), 1);
    QCOMPARE(MovieProbe(movies(user).first()).complaints(), QString());

    Phonon::VideoPlayer player(Phonon::VideoCategory);
    player.play(Phonon::MediaSource(QUrl::fromLocalFile(movies(user).first())));
    QTRY_VERIFY(player.isPlaying() && player.totalTime() > 0);
    QVERIFY2(player.totalTime() > 2200 && player.totalTime() < 6000,
             qPrintable(QString::number(player.totalTime())));
    player.stop();
}

QTEST_MAIN(MoviesTest)
#include "tst_movies.moc"
