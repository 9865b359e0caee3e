#include "GstStart.h"
#include "LabPattern.h"
#include "MovieFile.h"
#include "MovieRecorder.h"
#include "Patience.h"
#include "StandInCamera.h"

#include <QSemaphore>
#include <QSet>
#include <QTemporaryDir>
#include <QTest>
#include <QThread>

#include <deque>
#include <functional>
#include <limits>
#include <memory>

using std::chrono::seconds;

namespace {

/// Hands over late what came in time, as a thread does that gets no time of the processor.
template <typename What> class Late {
public:
    /// How late (ns) what comes at a time (ns, since the first) is handed over; it never overtakes
    /// what came before.
    using Lateness = std::function<qint64(qint64 time)>;

    explicit Late(Lateness lateness)
        : m_lateness(std::move(lateness))
    {
    }

    void add(What what, qint64 time)
    {
        m_first = m_first < 0 ? time : m_first;
        m_waiting.push_back({std::move(what), time + m_lateness(time - m_first)});
    }

    /// What is due at @p now.
    template <typename Take> void handOver(qint64 now, const Take &take)
    {
        while (!m_waiting.empty() && m_waiting.front().due <= now) {
            take(m_waiting.front().what);
            m_waiting.pop_front();
        }
    }

private:
    struct Waiting {
        What what;
        qint64 due; // ns
    };

    const Lateness m_lateness;
    std::deque<Waiting> m_waiting;
    qint64 m_first = -1;
};

struct Sound {
    QByteArray samples;
    GstClockTime captured;
};

struct Frame {
    GstMiniHandle<GstBuffer> buffer;
    GstClockTime captured;
};

} // namespace

using Lateness = std::function<qint64(qint64 time)>;

Q_DECLARE_METATYPE(Lateness)

/** Movies whose picture or sound comes late, on a machine that has no time. */
class TestLateSound : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void allSoundIsInItsPlaceHoweverLateItCame_data();
    void allSoundIsInItsPlaceHoweverLateItCame();
    void soundOnItsWayAtTheEndIsAwaited();

private:
    std::shared_ptr<MovieRecorder> start(const StandInCamera &camera);
    void verifyTones(int count, double late) const;

    QTemporaryDir m_folder;
    QString m_path;
};

static const int rate = 60; // frames a second; a tone begins with each second
static const qint64 second = 1000000000; // ns
static const double longestSoundWait = 0.5; // s; later sound may be taken for lost
static const qint64 never = std::numeric_limits<qint64>::max() / 2; // ns, later than all

void TestLateSound::initTestCase()
{
    QCOMPARE(LabPattern::beatFrames, rate);
    QVERIFY(startGstreamer());
}

std::shared_ptr<MovieRecorder> TestLateSound::start(const StandInCamera &camera)
{
    m_path = m_folder.filePath(QString::fromLatin1(QTest::currentTestFunction())
                               + QString::fromLatin1(QTest::currentDataTag()) + ".mov");
    return MovieRecorder::start(m_path, camera.format(),
                                {"x264enc tune=zerolatency speed-preset=ultrafast ! h264parse",
                                 soundEncoders().first().description});
}

// One tone each second from the begin, each once and whole. Nobody could know its place better than
// by so many seconds that all sound was handed over late, and a tone that is corrected by that may
// be heard as two.
void TestLateSound::verifyTones(int count, double late) const
{
    const MovieFile movie(m_path);
    QStringList times;
    QSet<int> heard;
    bool inPlace = true;
    for (const double tone : movie.tones()) {
        times.append(QString::number(tone, 'f', 3));
        inPlace = inPlace && qAbs(tone - qRound(tone)) < 0.05 + late;
        heard.insert(qRound(tone));
    }
    qInfo("tones at %s, sound was %.0f ms late by itself", qPrintable(times.join(' ')),
          late * 1000);
    if (late > longestSoundWait)
        return;
    QVERIFY2(inPlace, qPrintable(times.join(' ')));
    QVERIFY2(heard.size() == count, qPrintable(times.join(' ')));
    if (late > 0.04)
        return;
    QVERIFY2(movie.tones().size() == count, qPrintable(times.join(' ')));
    const double whole = count * 0.1 / movie.soundDuration();
    QVERIFY2(movie.loudness() > 0.9 * whole,
             qPrintable(QStringLiteral("%1 of %2").arg(movie.loudness()).arg(whole)));
}

void TestLateSound::allSoundIsInItsPlaceHoweverLateItCame_data()
{
    QTest::addColumn<Lateness>("frames");
    QTest::addColumn<Lateness>("sound");
    const Lateness none = [](qint64) { return 0; };
    const Lateness first = [](qint64 time) { return qMax(qint64(0), 3 * second / 2 - time); };
    QTest::newRow("the first frames come late") << first << none;
    const Lateness bursts = [](qint64 time) { return 7 * second / 5 - time % (7 * second / 5); };
    QTest::newRow("sound comes in bursts") << none << bursts;
}

void TestLateSound::allSoundIsInItsPlaceHoweverLateItCame()
{
    QFETCH(Lateness, frames);
    QFETCH(Lateness, sound);
    StandInCamera camera({320, 240}, rate);
    const std::shared_ptr<MovieRecorder> recorder = start(camera);
    QVERIFY(recorder);
    Late<Frame> lateFrames(frames);
    Late<Sound> lateSound(sound);
    const auto handOver = [&](qint64 now) {
        lateFrames.handOver(now, [&](const Frame &frame) {
            recorder->addFrame(frame.buffer.get(), frame.captured);
        });
        lateSound.handOver(now, [&](const Sound &piece) {
            recorder->addSound(piece.samples.constData(),
                               piece.samples.size() / SoundTrack::bytesPerSampleFrame,
                               piece.captured);
        });
    };
    camera.send(
        5,
        [&](GstBuffer *buffer, GstClockTime captured) {
            lateFrames.add({GstMiniHandle<GstBuffer>(gst_buffer_ref(buffer)), captured},
                           qint64(captured));
            handOver(qint64(captured));
        },
        [&](const char *samples, qint64 count, GstClockTime captured) {
            lateSound.add(
                {QByteArray(samples, int(count * SoundTrack::bytesPerSampleFrame)), captured},
                qint64(captured));
            handOver(qint64(captured));
        });
    camera.wait();
    handOver(never);
    recorder->finish(seconds(10));
    verifyTones(5, camera.soundLate());
}

// It ends in the midst of a tone, whose sound comes after "Stop".
void TestLateSound::soundOnItsWayAtTheEndIsAwaited()
{
    StandInCamera camera({320, 240}, rate);
    const std::shared_ptr<MovieRecorder> recorder = start(camera);
    QVERIFY(recorder);
    const qint64 stalls = 19 * second / 10; // ns
    const qint64 goesOn = 25 * second / 10; // ns
    Late<Sound> lateSound(
        [&](qint64 time) { return time < stalls ? 0 : qMax(qint64(0), goesOn - time); });
    QSemaphore end;
    int frames = 0;
    camera.send(
        4,
        [&](GstBuffer *buffer, GstClockTime captured) {
            recorder->addFrame(buffer, captured);
            end.release(++frames == 21 * rate / 10 ? 1 : 0);
        },
        [&](const char *samples, qint64 count, GstClockTime captured) {
            lateSound.add(
                {QByteArray(samples, int(count * SoundTrack::bytesPerSampleFrame)), captured},
                qint64(captured));
            lateSound.handOver(qint64(captured), [&](const Sound &piece) {
                recorder->addSound(piece.samples.constData(),
                                   piece.samples.size() / SoundTrack::bytesPerSampleFrame,
                                   piece.captured);
            });
        });
    QVERIFY(end.tryAcquire(1, patience));
    recorder->finish(seconds(10));
    camera.wait();
    verifyTones(3, camera.soundLate());
}

QTEST_GUILESS_MAIN(TestLateSound)
#include "tst_latesound.moc"
