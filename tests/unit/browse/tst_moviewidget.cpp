#include "CaptureFolder.h"
#include "MovieWidget.h"
#include "Patience.h"

#include <QLabel>
#include <QProcess>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QThread>
#include <phonon/mediaobject.h>

namespace {

constexpr int movieMs = 2500;

// Where the player is, for a readable failure.
QByteArray position(const MovieWidget &player)
{
    return QByteArray::number(player.currentTime()) + " of "
        + QByteArray::number(player.totalTime());
}

} // namespace

// Plays a short movie for real. It is silent: no sound device is needed.
class TestMovieWidget : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();

    void aFreshWidgetIsComplete();
    void creatingSucceedsForAMissingFileToo();
    void theCaptionIsThinGreenInTheCorner();
    void theCaptionStaysAboveThePicture();
    void theStillPictureStandsWheneverThePlayerIsBlack();
    void aMovieWaitsForPlay();
    void playingRunsToItsEndAndIsThenComplete();
    void theLengthIsToldOnceForEachMovieThatBeginsToPlay();
    void playWhilePlayingLeavesPlaybackWhereItIs();
    void playResumesWherePauseStopped();
    void resetPlaysFromTheBeginning();
    void stopEndsPlayback();
    void anUnplayableFileCountsAsComplete();
    void oneWidgetPlaysOneMovieAfterTheOther();
    void whatIsToldLateOfAMovieThatWasLeftStopsNoOther_data();
    void whatIsToldLateOfAMovieThatWasLeftStopsNoOther();

private:
    const CaptureFolder m_captures;
    QTemporaryDir m_folder;
    QString m_movie;
};

void TestMovieWidget::initTestCase()
{
    // The only picture output that fills the widget on every desktop; the program sets it too.
    qputenv("PHONON_GST_VIDEOMODE", "software");
    m_movie = m_folder.filePath("movie 100%#1.mov");
    const QString frames = QString::number(movieMs * 20 / 1000);
    QProcess recorder;
    recorder.start("gst-launch-1.0",
                   {"-q", "videotestsrc", "num-buffers=" + frames, "!",
                    "video/x-raw,format=I420,width=160,height=120,framerate=20/1", "!", "x264enc",
                    "tune=zerolatency", "key-int-max=10", "!", "qtmux", "!", "filesink",
                    "location=" + m_movie});
    QVERIFY(recorder.waitForFinished(30000));
    QVERIFY2(recorder.exitCode() == 0, recorder.readAllStandardError().constData());
}

void TestMovieWidget::aFreshWidgetIsComplete()
{
    MovieWidget player(nullptr);
    QVERIFY(player.isComplete());
    QVERIFY(!player.isCreated());
}

void TestMovieWidget::creatingSucceedsForAMissingFileToo()
{
    MovieWidget player(nullptr);
    QVERIFY(player.Create("/no/such/movie.mov"));
    QVERIFY(player.isCreated());
}

void TestMovieWidget::theCaptionIsThinGreenInTheCorner()
{
    const MovieWidget player(nullptr);
    const auto *label = player.findChild<QLabel *>();
    QCOMPARE(label->text(), QString("Movie"));
    QCOMPARE(label->pos(), QPoint(0, 0));
    QCOMPARE(label->size(), label->sizeHint());
    QCOMPARE(label->font().family(), QString("Arial"));
    QCOMPARE(label->font().pointSize(), 24);
    QCOMPARE(label->font().weight(), 5);
    QVERIFY(!label->autoFillBackground());
    for (const QPalette &colors : {player.palette(), label->palette()}) {
        for (auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
            QCOMPARE(colors.color(group, QPalette::Window), QColor(Qt::black));
            QCOMPARE(colors.color(group, QPalette::WindowText), QColor(Qt::green));
        }
    }
}

void TestMovieWidget::theCaptionStaysAboveThePicture()
{
    MovieWidget player(nullptr);
    player.resize(320, 240);
    player.Create(m_movie);
    player.show();
    player.Play();
    QTRY_VERIFY(player.currentTime() > 0);
    const auto *label = player.findChild<QLabel *>();
    QCOMPARE(player.childAt(label->geometry().center()), label);
}

void TestMovieWidget::theStillPictureStandsWheneverThePlayerIsBlack()
{
    const QString movie = CaptureFolder::path("movie20240229101500.mov");
    QVERIFY(QFile::copy(m_movie, movie));
    QVERIFY(CaptureFolder::save("movie20240229101500tmp.png", QSize(320, 240), Qt::magenta));
    MovieWidget player(nullptr);
    player.resize(640, 240); // wider than the picture, which stays in the middle
    const auto colourAt = [&player](int x) { return player.grab().toImage().pixelColor(x, 200); };
    player.show();
    player.Create(movie);
    QTRY_COMPARE(colourAt(320), QColor(Qt::magenta));
    QCOMPARE(colourAt(161), QColor(Qt::magenta));
    QCOMPARE(colourAt(158), QColor(Qt::black));
    player.Play();
    QTRY_VERIFY(colourAt(320) != QColor(Qt::magenta));
    QVERIFY(player.isPlaying());
    player.Stop();
    QTRY_COMPARE(colourAt(320), QColor(Qt::magenta));

    player.Create(m_movie); // has no still picture
    QTRY_COMPARE(colourAt(320), QColor(Qt::black));
}

void TestMovieWidget::aMovieWaitsForPlay()
{
    MovieWidget player(nullptr);
    player.Create(m_movie);
    QTRY_VERIFY(player.mediaObject()->state() == Phonon::StoppedState);
    QVERIFY(!player.isPlaying());
}

void TestMovieWidget::playingRunsToItsEndAndIsThenComplete()
{
    MovieWidget player(nullptr);
    QSignalSpy finished(&player, &MovieWidget::finished);
    player.Create(m_movie);
    player.Play();
    QTRY_VERIFY(player.isPlaying() && player.totalTime() > 0);
    QVERIFY2(!player.isComplete(), position(player).constData());
    QVERIFY2(qAbs(player.totalTime() - movieMs) < 200, position(player).constData());
    QVERIFY(finished.wait(patience));
    QVERIFY2(player.isComplete(), position(player).constData());
}

void TestMovieWidget::theLengthIsToldOnceForEachMovieThatBeginsToPlay()
{
    MovieWidget player(nullptr);
    int timesKnown = 0;
    connect(&player, &MovieWidget::lengthKnown, this, [&timesKnown](qint64 length) {
        if (length > 0 && qAbs(length - movieMs) < 200)
            ++timesKnown;
    });
    for (int movie = 1; movie <= 2; ++movie) {
        player.Create(m_movie);
        player.Play();
        QTRY_VERIFY(player.currentTime() > 500);
        QCOMPARE(timesKnown, movie);
        player.Stop();
    }
}

void TestMovieWidget::playWhilePlayingLeavesPlaybackWhereItIs()
{
    MovieWidget player(nullptr);
    player.Create(m_movie);
    player.Play();
    QTRY_VERIFY(player.currentTime() > 1000);
    const QSignalSpy changed(player.mediaObject(), &Phonon::MediaObject::stateChanged);
    const qint64 before = player.currentTime();
    player.Play();
    QVERIFY(player.isPlaying());
    QTRY_VERIFY(player.currentTime() > before + 300);
    QCOMPARE(changed.count(), 0);
}

void TestMovieWidget::playResumesWherePauseStopped()
{
    MovieWidget player(nullptr);
    player.Create(m_movie);
    player.Play();
    QTRY_VERIFY(player.currentTime() > 1000);
    player.pause();
    QTRY_VERIFY(player.isPaused());
    QVERIFY2(!player.isComplete(), position(player).constData());
    const qint64 paused = player.currentTime();
    player.Play();
    QTRY_VERIFY(player.isPlaying());
    QVERIFY2(player.currentTime() >= paused, position(player).constData());
}

void TestMovieWidget::resetPlaysFromTheBeginning()
{
    MovieWidget player(nullptr);
    player.Create(m_movie);
    player.Play();
    QTRY_VERIFY(player.currentTime() > 1500);
    player.Reset();
    QTRY_VERIFY(player.isPlaying() && player.currentTime() < 1000);
    QTRY_VERIFY(player.currentTime() > 1000);
}

void TestMovieWidget::stopEndsPlayback()
{
    MovieWidget player(nullptr);
    player.Create(m_movie);
    player.Play();
    QTRY_VERIFY(player.currentTime() > 300);
    player.Release();
    QVERIFY(player.isPlaying());
    player.Stop();
    QTRY_VERIFY(!player.isPlaying() && !player.isPaused());
}

void TestMovieWidget::anUnplayableFileCountsAsComplete()
{
    const QString path = m_folder.filePath("movie2.mov");
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write("no movie at all") > 0);
    file.close();
    MovieWidget player(nullptr);
    player.Create(path);
    player.Play();
    // Whether the player calls this an error or just stops is its own affair.
    QTRY_VERIFY(player.mediaObject()->state() != Phonon::LoadingState);
    QVERIFY(!player.isPlaying());
    QVERIFY2(player.isComplete(), position(player).constData());
}

void TestMovieWidget::oneWidgetPlaysOneMovieAfterTheOther()
{
    const QString second = m_folder.filePath("movie3.mov");
    QVERIFY(QFile::copy(m_movie, second));
    MovieWidget player(nullptr);
    for (const QString &path : {m_movie, second}) {
        player.Create(path);
        player.Play();
        QTRY_VERIFY(player.isPlaying() && player.currentTime() > 100);
        player.Stop();
    }
}

void TestMovieWidget::whatIsToldLateOfAMovieThatWasLeftStopsNoOther_data()
{
    QTest::addColumn<QString>("left");
    QTest::addColumn<int>("late"); // ms
    const QString empty = m_folder.filePath("empty.mov");
    QVERIFY(QFile(empty).open(QIODevice::WriteOnly));
    QTest::newRow("an error") << empty << 1000;
    QTest::newRow("its end") << m_movie << movieMs + 1000;
}

void TestMovieWidget::whatIsToldLateOfAMovieThatWasLeftStopsNoOther()
{
    QFETCH(QString, left);
    QFETCH(int, late);
    MovieWidget player(nullptr);
    player.show();
    player.Create(left);
    player.Play();
    QThread::msleep(late); // nothing to wait for: who sleeps is told nothing
    player.Stop();
    player.Create(m_movie);
    player.Play();
    QTRY_VERIFY2(player.isPlaying() && player.currentTime() > 0, position(player).constData());
}

QTEST_MAIN(TestMovieWidget)
#include "tst_moviewidget.moc"
