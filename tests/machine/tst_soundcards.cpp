#include "Devices.h"
#include "LiveVideoData.h"
#include "MovieFile.h"
#include "MovieProbe.h"
#include "Patience.h"

#include <QTemporaryDir>
#include <QTest>

static const int openingLimit = 120000; // ms, with several attempts, on a slow machine
static const int reactionLimit = 60000; // ms
static const int movieLength = 4000; // ms
// Of the tone's time, what is heard of it at least. An emulated machine on a busy computer loses
// pieces on their way to the card and from it; what is misunderstood is silence, or refused.
static const double heardAtLeast = 0.1;

/** Movies whose microphone is a sound card that the program opens by itself. */
class TestSoundCards : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanupTestCase();
    void aToneOfAnyFormatIsHeard_data();
    void aToneOfAnyFormatIsHeard();
    void aCardThatAnotherProgramHoldsIsUsedWhenItLetsGo();
    void aCardThatIsTakenAwayLeavesSilence();
    void aCardThatIsBackIsHeardAgain();

private:
    bool record(const QString &path);
    bool endMovie()
    {
        return m_engine->RecordStop(), m_engine->CompleteMovies() || m_engine->CompleteMovies();
    }

    QTemporaryDir m_folder;
    std::unique_ptr<TestCameras> m_cameras;
    std::unique_ptr<LoopCard> m_card;
    std::unique_ptr<LiveVideoData> m_engine;
};

void TestSoundCards::initTestCase()
{
    m_cameras = std::make_unique<TestCameras>(QList<TestCameras::Kind>{TestCameras::Kind::Webcam});
    m_card = std::make_unique<LoopCard>();
    QVERIFY(m_cameras->isLoaded() && m_card->isLoaded());
    m_engine = std::make_unique<LiveVideoData>();
    QVERIFY(
        QTest::qWaitFor([this] { return m_engine->Create(), m_engine->created; }, openingLimit));
}

void TestSoundCards::cleanupTestCase()
{
    m_engine.reset();
    m_card.reset();
    m_cameras.reset();
}

// A machine that was too slow to begin may have been busy with the one before.
bool TestSoundCards::record(const QString &path)
{
    return QTest::qWaitFor([&] { return m_engine->Record(path), m_engine->IsRecording(); },
                           reactionLimit);
}

void TestSoundCards::aToneOfAnyFormatIsHeard_data()
{
    QTest::addColumn<QString>("format");
    QTest::addColumn<int>("rate");
    QTest::addColumn<int>("channels");
    QTest::newRow("16 bits, 48 kHz, stereo") << "S16_LE" << 48000 << 2;
    QTest::newRow("16 bits, 44.1 kHz, mono") << "S16_LE" << 44100 << 1;
    QTest::newRow("24 bits, 48 kHz, mono") << "S24_3LE" << 48000 << 1;
    QTest::newRow("24 bits, 44.1 kHz, stereo") << "S24_3LE" << 44100 << 2;
}

void TestSoundCards::aToneOfAnyFormatIsHeard()
{
    QFETCH(QString, format);
    QFETCH(int, rate);
    QFETCH(int, channels);
    QVERIFY(m_card->play(format, rate, channels));
    QTRY_VERIFY_WITH_TIMEOUT(m_engine->IsValidAudioDevice(), reactionLimit);
    const QString path = m_folder.filePath(QString(QTest::currentDataTag()) + ".mov");
    QVERIFY(record(path));
    QTest::qWait(movieLength); // nothing to wait for: the movie's length
    QVERIFY(endMovie());
    QCOMPARE(MovieProbe(path).complaints(), QString());
    const MovieFile movie(path);
    QVERIFY2(movie.duration() > movieLength * 0.0007,
             qPrintable(QString::number(movie.duration())));
    QVERIFY2(qAbs(movie.soundDuration() - movie.duration()) < 0.5,
             qPrintable(QString::number(movie.soundDuration())));
    QVERIFY2(movie.loudness() > heardAtLeast, qPrintable(QString::number(movie.loudness())));
}

void TestSoundCards::aCardThatAnotherProgramHoldsIsUsedWhenItLetsGo()
{
    m_card->fallSilent();
    std::unique_ptr<OtherProgram> other = OtherProgram::listening();
    QVERIFY(other);
    const QString path = m_folder.filePath("held.mov");
    QTRY_VERIFY_WITH_TIMEOUT(!m_engine->IsValidAudioDevice(), reactionLimit);
    m_engine->Record(path);
    QVERIFY(!m_engine->IsRecording());
    QVERIFY(!m_engine->IsValidAudioDevice());
    QVERIFY(!QFile::exists(path));
    other.reset();
    QVERIFY(m_card->play());
    QTRY_VERIFY_WITH_TIMEOUT(m_engine->IsValidAudioDevice(), reactionLimit);
    QVERIFY(record(path));
    m_engine->RecordStop();
}

void TestSoundCards::aCardThatIsTakenAwayLeavesSilence()
{
    QVERIFY(m_card->play());
    QTRY_VERIFY_WITH_TIMEOUT(m_engine->IsValidAudioDevice(), reactionLimit);
    const QString path = m_folder.filePath("taken.mov");
    QVERIFY(record(path));
    QTest::qWait(movieLength / 2); // nothing to wait for: the part with sound
    QVERIFY(m_card->pullOut());
    QVERIFY(m_engine->IsRecording());
    QTest::qWait(movieLength / 2); // nothing to wait for: the part without
    QVERIFY(m_engine->IsRecording());
    QVERIFY(endMovie());
    QCOMPARE(MovieProbe(path).complaints(), QString());
    const MovieFile movie(path);
    QVERIFY2(movie.duration() > movieLength * 0.0007,
             qPrintable(QString::number(movie.duration())));
    QVERIFY2(qAbs(movie.soundDuration() - movie.duration()) < 0.5,
             qPrintable(QString::number(movie.soundDuration())));
    QVERIFY2(movie.loudness() > heardAtLeast / 2 && movie.loudness() < 0.9,
             qPrintable(QString::number(movie.loudness())));
    QTRY_VERIFY_WITH_TIMEOUT(!m_engine->IsValidAudioDevice(), reactionLimit);
}

void TestSoundCards::aCardThatIsBackIsHeardAgain()
{
    QVERIFY(m_card->plugIn());
    QVERIFY(m_card->play());
    QTRY_VERIFY_WITH_TIMEOUT(m_engine->IsValidAudioDevice(), reactionLimit);
    const QString path = m_folder.filePath("back.mov");
    QVERIFY(record(path));
    QTest::qWait(movieLength); // nothing to wait for: the movie's length
    QVERIFY(endMovie());
    const MovieFile movie(path);
    QVERIFY2(movie.loudness() > heardAtLeast, qPrintable(QString::number(movie.loudness())));
}

QTEST_MAIN(TestSoundCards)
#include "tst_soundcards.moc"
