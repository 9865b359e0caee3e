#include "LabCommands.h"
#include "LabPattern.h"
#include "MovieFile.h"
#include "MovieProbe.h"
#include "Patience.h"
#include "Recording.h"
#include "SpareTime.h"

#include <QDir>
#include <QElapsedTimer>
#include <QTemporaryDir>

#include <algorithm>
#include <memory>
#include <vector>

Q_DECLARE_METATYPE(std::vector<int>)

// Movies of a program that the machine lets run for a part of the time only.
class TestMovieThrottle : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanup();
    void theMovieSpansTheWholeTime_data();
    void theMovieSpansTheWholeTime();

private:
    void judge(const QString &path, int rate, double age, double lateness) const;
    void verifySound(const MovieFile &movie, int rate, bool hadTime) const;
    void verifyFrames(const MovieFile &movie, int rate, double lateness) const;

    QTemporaryDir m_folder;
};

static const int length = 6000; // ms

void TestMovieThrottle::initTestCase()
{
    QVERIFY2(!qEnvironmentVariableIsEmpty("ORVANTA_LAB"), "this test must be run by tests/lab/lab");
}

void TestMovieThrottle::cleanup()
{
    QVERIFY(labctl({"unplug", "beeper"}));
    QVERIFY(m_folder.remove()
            && QDir().mkpath(m_folder.path())); // no movie is written over another
}

void TestMovieThrottle::theMovieSpansTheWholeTime_data()
{
    QTest::addColumn<QString>("size");
    QTest::addColumn<int>("rate");
    QTest::addColumn<std::vector<int>>("percents"); // of the time, for a program each
    QTest::newRow("small") << "640x480" << 30 << std::vector<int>{10, 25, 50};
    QTest::newRow("Full HD, slow") << "1920x1080" << 30 << std::vector<int>{10, 25};
    QTest::newRow("Full HD, halved") << "1920x1080" << 30 << std::vector<int>{50};
    QTest::newRow("60 frames a second") << "640x480" << 60 << std::vector<int>{25};
}

// Every tone is there and none is elsewhere; the last may be cut. A microphone that the sound
// server could not serve in time may crackle, which makes several tones of one, or lose tones
// whole.
void TestMovieThrottle::verifySound(const MovieFile &movie, int rate, bool hadTime) const
{
    QVERIFY2(qAbs(movie.soundDuration() - movie.duration()) < 0.1,
             qPrintable(QString::number(movie.soundDuration())));
    const double beat = double(LabPattern::beatFrames) / rate;
    QVector<double> tones;
    for (const double tone : movie.tones())
        if (tones.isEmpty() || tone - tones.last() > 0.3)
            tones.append(tone);
    const int whole = int(movie.duration() / beat);
    for (int i = 1; i < tones.size(); ++i) {
        const double gap = tones[i] - tones[i - 1];
        QVERIFY2(qAbs(gap - qRound(gap / beat) * beat) < 0.4, qPrintable(QString::number(gap)));
    }
    if (!hadTime)
        return;
    QVERIFY2(tones.size() <= whole + 1, qPrintable(QString::number(tones.size())));
    QVERIFY2(tones.size() >= whole - 1, qPrintable(QString::number(tones.size())));
    QVERIFY2(movie.loudness() > 0.5 * 0.1 / beat, qPrintable(QString::number(movie.loudness())));
}

void TestMovieThrottle::verifyFrames(const MovieFile &movie, int rate, double lateness) const
{
    const QVector<MovieFile::Frame> &frames = movie.frames();
    QVERIFY(!movie.counters().contains(-1));
    QVERIFY(frames.size() >= 5);
    double longest = movie.duration() - frames.last().time;
    double latest = -1;
    double earliest = 1000;
    for (int i = 0; i < frames.size(); ++i) {
        const double delay = frames[i].time - double(frames[i].counter) / rate;
        latest = qMax(latest, delay);
        earliest = qMin(earliest, delay);
        if (i > 0)
            longest = qMax(longest, frames[i].time - frames[i - 1].time);
    }
    const double usual = movie.duration() / frames.size();
    qInfo("%d frames in %.2f s, one every %.0f ms, %.0f ms at most; delays differ by %.0f ms",
          int(frames.size()), movie.duration(), usual * 1000, longest * 1000,
          (latest - earliest) * 1000);
    QVERIFY2(longest < 6 * usual + 0.5 + lateness, qPrintable(QString::number(longest)));
}

// The lateness, in s, is what the machine may be to blame for.
void TestMovieThrottle::judge(const QString &path, int rate, double age, double lateness) const
{
    const MovieProbe probe(path);
    QCOMPARE(probe.complaints(), QString());
    QVERIFY2(probe.duration() > age - 0.4 && probe.duration() < age + 0.4,
             qPrintable(QStringLiteral("%1 of %2").arg(probe.duration()).arg(age)));
    const MovieFile movie(path);
    verifySound(movie, rate, lateness <= 0);
    verifyFrames(movie, rate, lateness);
}

// Programs beside each other, as they stand still most of the time.
void TestMovieThrottle::theMovieSpansTheWholeTime()
{
    QFETCH(QString, size);
    QFETCH(int, rate);
    QFETCH(std::vector<int>, percents);
    QVERIFY(labctl({"plug", "beeper", size, "--rate", QString::number(rate), "--beep", "micfeed"}));
    const SpareTime time;
    std::vector<std::unique_ptr<Recording>> recordings;
    recordings.reserve(percents.size());
    for (const int percent : percents)
        recordings.push_back(std::make_unique<Recording>(
            "beeper", m_folder.filePath(QStringLiteral("movie%1.mov").arg(percent))));
    for (const auto &recording : recordings)
        QTRY_VERIFY(recording->hasBegun());
    // A program with sanitizers needs that many times the processor.
    const int need = qMax(1, qEnvironmentVariableIntValue("ORVANTA_NEED"));
    for (std::size_t i = 0; i < percents.size(); ++i)
        recordings[i]->throttle(qMin(95, percents[i] * need));
    QTest::qWait(length); // nothing to wait for: the movies' length
    std::vector<double> ages;
    ages.reserve(percents.size());
    QElapsedTimer timer;
    timer.start();
    for (const auto &recording : recordings) {
        ages.push_back(recording->age());
        recording->end();
    }
    for (const auto &recording : recordings)
        QVERIFY(recording->stop());
    const double lateness = time.lateness();
    qInfo("the end of the programs took %lld ms", timer.elapsed());
    for (std::size_t i = 0; i < percents.size() && !QTest::currentTestFailed(); ++i) {
        qInfo("recorded for %.2f s in %d %% of the time:", ages[i], percents[i]);
        judge(recordings[i]->path(), rate, ages[i], lateness);
    }
}

QTEST_MAIN(TestMovieThrottle)
#include "tst_moviethrottle.moc"
