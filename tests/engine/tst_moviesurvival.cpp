#include "LabCommands.h"
#include "MovieFile.h"
#include "MovieProbe.h"

#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QStorageInfo>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <QVector>

#include <phonon/mediaobject.h>
#include <phonon/videoplayer.h>

#include <memory>
#include <sys/mount.h>
#include <vector>

namespace {

constexpr int patience = 10000; // ms

/// Another program, which records a movie until it is ended in some way.
class Recording {
public:
    explicit Recording(const QString &path, const QString &launcher = QString())
        : m_path(path)
    {
        QObject::connect(&m_process, &QProcess::readyReadStandardOutput, &m_process, [this] {
            if (m_process.readAllStandardOutput().startsWith("recording"))
                begin();
        });
        const QStringList command{QStringLiteral(MOVIEMAKER), QStringLiteral("beeper"), path};
        if (launcher.isEmpty())
            m_process.start(command.first(), command.mid(1));
        else
            m_process.start(QStringLiteral("sh"),
                            QStringList{QStringLiteral("-c"), launcher, QStringLiteral("sh")}
                                + command);
    }

    /// Kills it as soon as the movie is @p moment ms old.
    void killAt(int moment) { m_moment = moment; }

    QString path() const { return m_path; }
    bool hasBegun() const { return m_begun; }
    bool isRunning() const { return m_process.state() == QProcess::Running; }
    bool hasEnded() const { return m_begun && m_process.state() == QProcess::NotRunning; }
    /// In seconds, how old the movie was when it was killed.
    double length() const { return m_length; }

    bool stop()
    {
        m_process.closeWriteChannel();
        return m_process.waitForFinished(patience) && m_process.exitCode() == 0;
    }

private:
    void begin()
    {
        m_begun = true;
        if (m_moment <= 0)
            return;
        m_timer.start();
        QTimer::singleShot(m_moment, Qt::PreciseTimer, &m_process, [this] {
            m_length = double(m_timer.elapsed()) / 1000;
            m_process.kill();
        });
    }

    const QString m_path;
    QProcess m_process;
    bool m_begun = false;
    int m_moment = 0; ///< ms
    QElapsedTimer m_timer;
    double m_length = 0;
};

} // namespace

// Movies whose program or disk does not live to see their end, as the program's player plays them.
class TestMovieSurvival : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanupTestCase();
    void aKilledProgramLeavesAMovie_data();
    void aKilledProgramLeavesAMovie();
    void aFullDiskEndsTheMovieAndLeavesItPlayable();
    void aFileThatMayNotGrowIsPlayable();

private:
    QString newPath();
    void playAndSeek(const QString &path, double from, double to);
    void verifyEveryPlayerTakes(const QString &path, double from, double to) const;
    static bool hasStoppedGrowing(const QString &path);

    QTemporaryDir m_folder;
    int m_movies = 0;
};

void TestMovieSurvival::initTestCase()
{
    qputenv("PHONON_GST_VIDEOMODE", "software");
    QVERIFY2(!qEnvironmentVariableIsEmpty("ORVANTA_LAB"), "this test must be run by tests/lab/lab");
    QVERIFY(labctl({"plug", "beeper", "1280x720", "--beep", "micfeed"}));
}

void TestMovieSurvival::cleanupTestCase()
{
    umount2(QFile::encodeName(m_folder.filePath("small")).constData(), MNT_DETACH);
}

QString TestMovieSurvival::newPath()
{
    return m_folder.filePath(QStringLiteral("movie%1.mov").arg(++m_movies));
}

void TestMovieSurvival::playAndSeek(const QString &path, double from, double to)
{
    Phonon::VideoPlayer player(Phonon::VideoCategory);
    player.resize(320, 180);
    player.show();
    player.play(Phonon::MediaSource(QUrl::fromLocalFile(path)));
    QTRY_VERIFY_WITH_TIMEOUT(player.isPlaying() && player.totalTime() > 0, patience);
    const double length = double(player.totalTime()) / 1000;
    QVERIFY2(length >= from && length <= to, qPrintable(QString::number(length)));
    QVERIFY(player.mediaObject()->isSeekable());
    const qint64 middle = player.totalTime() / 2;
    player.seek(middle);
    QTRY_VERIFY_WITH_TIMEOUT(player.currentTime() >= middle - 1000 && player.currentTime() > 0,
                             patience);
    QVERIFY(player.isPlaying());
    player.stop();
}

void TestMovieSurvival::verifyEveryPlayerTakes(const QString &path, double from, double to) const
{
    const MovieProbe probe(path);
    QCOMPARE(probe.complaints(), QString());
    QCOMPARE(probe.videoCodec(), QString("h264"));
    QCOMPARE(probe.soundCodec(), QString("aac"));
    QVERIFY2(probe.duration() >= from && probe.duration() <= to,
             qPrintable(QString::number(probe.duration())));
    QVERIFY2(qAbs(probe.frames() - probe.videoDuration() * 30) <= 2,
             qPrintable(QString::number(probe.frames())));
}

void TestMovieSurvival::aKilledProgramLeavesAMovie_data()
{
    // Of programs that record at the same time.
    QTest::addColumn<QVector<int>>("moments"); // ms
    QTest::newRow("at once") << QVector<int>{900, 1300, 1900};
    QTest::newRow("soon") << QVector<int>{2710, 3040, 3370};
    QTest::newRow("later") << QVector<int>{3700, 4030, 4360};
    QTest::newRow("late") << QVector<int>{5100, 6200, 7500};
}

void TestMovieSurvival::aKilledProgramLeavesAMovie()
{
    QFETCH(QVector<int>, moments);
    std::vector<std::unique_ptr<Recording>> recordings;
    for (const int moment : qAsConst(moments)) {
        recordings.push_back(std::make_unique<Recording>(newPath()));
        recordings.back()->killAt(moment);
    }
    for (const auto &recording : recordings) {
        QTRY_VERIFY_WITH_TIMEOUT(recording->hasEnded(), 2 * patience);
        const double length = recording->length();
        QVERIFY(length > 0);
        playAndSeek(recording->path(), length - 2, length + 0.3);
        verifyEveryPlayerTakes(recording->path(), length - 2, length + 0.3);
        QFile::remove(recording->path());
    }
}

// A movie grows with every frame.
bool TestMovieSurvival::hasStoppedGrowing(const QString &path)
{
    QElapsedTimer still;
    still.start();
    qint64 size = 0;
    return QTest::qWaitFor(
        [&] {
            const qint64 now = QFileInfo(path).size();
            if (now != size)
                still.start();
            size = now;
            return still.hasExpired(1000);
        },
        patience);
}

void TestMovieSurvival::aFullDiskEndsTheMovieAndLeavesItPlayable()
{
    // Only the administrator can make a small disk; for others the next test alone must do.
    const QString disk = m_folder.filePath("small");
    QVERIFY(QDir().mkpath(disk));
    if (mount("none", QFile::encodeName(disk).constData(), "tmpfs", 0, "size=64k") != 0)
        QSKIP("a small disk can be made by root only");
    const QString path = disk + "/movie.mov";
    Recording recording(path);
    QTRY_VERIFY_WITH_TIMEOUT(recording.hasBegun(), patience);
    QVERIFY(hasStoppedGrowing(path));
    QCOMPARE(QStorageInfo(disk).bytesAvailable(), qint64(0));
    QVERIFY2(recording.isRunning(), "the camera must go on when the disk is full");
    QVERIFY(recording.stop());
    playAndSeek(path, 1, 8);
    verifyEveryPlayerTakes(path, 1, 8);
    QVERIFY(MovieFile(path).frames().size() > 25);
}

void TestMovieSurvival::aFileThatMayNotGrowIsPlayable()
{
    const QString path = newPath();
    // A write beyond the limit fails; the signal that comes with it would end the program. In
    // blocks of 512 bytes; the index takes 3100 of them.
    Recording recording(path, "trap '' XFSZ; ulimit -f 3200; exec \"$@\"");
    QTRY_VERIFY_WITH_TIMEOUT(recording.hasBegun(), patience);
    QVERIFY(hasStoppedGrowing(path));
    QCOMPARE(QFileInfo(path).size(), qint64(3200 * 512));
    QVERIFY2(recording.isRunning(), "the camera must go on when the file is full");
    QVERIFY(recording.stop());
    playAndSeek(path, 1, 8);
    verifyEveryPlayerTakes(path, 1, 8);
}

QTEST_MAIN(TestMovieSurvival)
#include "tst_moviesurvival.moc"
