#include "BallMovie.h"
#include "CaptureFolder.h"
#include "FaultTrial.h"
#include "GstStart.h"
#include "MovieWidget.h"
#include "Patience.h"
#include "SpareTime.h"

#include <QElapsedTimer>

/// Movies that a disk or a stick has damaged, played one after the other by the same player.
class TestHostileMovies : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void damageAnywhereInAMovieDoesNoHarm();

private:
    static QByteArray damaged(QByteArray movie, FaultTrial &trial);

    CaptureFolder m_folder;
};

static constexpr qint64 longestStandstill = 2000; // ms

void TestHostileMovies::initTestCase()
{
    // As the program does.
    qputenv("PHONON_GST_VIDEOMODE", "software");
    QVERIFY(startGstreamer());
}

// Sizes and offsets lie at its head and its end, pictures between them: all are hit alike.
QByteArray TestHostileMovies::damaged(QByteArray movie, FaultTrial &trial)
{
    const int begin = trial.upTo(movie.size() - 1);
    if (trial.upTo(4) == 0)
        return movie.left(begin);
    const int end = qMin(movie.size(), begin + 1 + trial.upTo(64));
    for (int at = begin; at < end; ++at)
        movie[at] = char(trial.upTo(1) == 0 ? ~movie[at] : trial.upTo(255));
    return movie;
}

void TestHostileMovies::damageAnywhereInAMovieDoesNoHarm()
{
    const QString good = CaptureFolder::path("movie20240229101500.mov");
    const QString bad = CaptureFolder::path("movie20240229101600.mov");
    QVERIFY(CaptureFolder::saveBytes("movie20240229101500.mov", {})); // and the folder is there
    QVERIFY(makeBallMovie(good, 100));
    QFile file(good);
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QByteArray whole = file.readAll();
    MovieWidget player(nullptr);
    player.resize(320, 240);
    player.show();
    FaultTrial trial("a movie's file is damaged", 12, 600);
    while (trial.next()) {
        QVERIFY(CaptureFolder::saveBytes("movie20240229101600.mov", damaged(whole, trial)));
        if (!trial.evidence().isNull())
            QFile::copy(bad, trial.evidence() + QStringLiteral("/%1.mov").arg(trial.tries()));
        const SpareTime spare;
        qint64 standstill = 0;
        const auto watch = [&standstill](auto &&action) {
            QElapsedTimer time;
            time.start();
            action();
            standstill = qMax(standstill, time.elapsed());
        };
        watch([&] { player.Create(bad); });
        watch([&] { player.Play(); });
        QTest::qWait(trial.upTo(300)); // nothing to wait for: a moment of it
        watch([&] { player.Stop(); });
        trial.addStandstill(standstill);
        QVERIFY2(standstill < longestStandstill + 1000 * spare.lateness(),
                 qPrintable(QString("%1 ms at try %2").arg(standstill).arg(trial.tries())));

        player.Create(good);
        player.Play();
        QTRY_VERIFY2(player.isPlaying() && player.currentTime() > 0,
                     qPrintable(QString("after try %1").arg(trial.tries())));
    }
}

QTEST_MAIN(TestHostileMovies)
#include "tst_hostilemovies.moc"
