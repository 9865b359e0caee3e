#include "LabCommands.h"
#include "MovieFile.h"

#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

#include <phonon/mediaobject.h>
#include <phonon/videoplayer.h>

#include <memory>
#include <sys/mount.h>
#include <unistd.h>

namespace {

constexpr int patience = 10000; // ms

/// Another program, which records a movie until it is ended in some way.
class Recording {
public:
    Recording(const QString &path, const QString &launcher = QString())
    {
        m_process.setProcessChannelMode(QProcess::SeparateChannels);
        const QStringList command{QStringLiteral(MOVIEMAKER), QStringLiteral("beeper"), path};
        if (launcher.isEmpty())
            m_process.start(command.first(), command.mid(1));
        else
            m_process.start(QStringLiteral("sh"),
                            QStringList{QStringLiteral("-c"), launcher, QStringLiteral("sh")}
                                + command);
    }

    bool hasBegun()
    {
        const bool begun = m_process.waitForReadyRead(patience)
            && m_process.readAllStandardOutput().startsWith("recording");
        m_timer.start();
        return begun;
    }

    double seconds() const { return double(m_timer.elapsed()) / 1000; }
    bool isRunning() const { return m_process.state() == QProcess::Running; }

    void kill()
    {
        m_process.kill();
        m_process.waitForFinished(patience);
    }

    bool stop()
    {
        m_process.closeWriteChannel();
        return m_process.waitForFinished(patience) && m_process.exitCode() == 0;
    }

private:
    QProcess m_process;
    QElapsedTimer m_timer;
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
    void playAndSeek(const QString &path, double from, double to);

    QTemporaryDir m_folder;
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

void TestMovieSurvival::aKilledProgramLeavesAMovie_data()
{
    QTest::addColumn<int>("moment"); // ms
    for (const int moment : {900, 1300, 1900, 2710, 3040, 3370, 3700, 4030, 4360, 5100, 6200, 7500})
        QTest::addRow("after %d ms", moment) << moment;
}

void TestMovieSurvival::aKilledProgramLeavesAMovie()
{
    QFETCH(int, moment);
    const QString path = m_folder.filePath(QStringLiteral("movie%1.mov").arg(moment));
    Recording recording(path);
    QVERIFY(recording.hasBegun());
    QTest::qWait(moment);
    const double length = recording.seconds();
    recording.kill();
    playAndSeek(path, length - 2, length + 0.3);
    QFile::remove(path);
}

void TestMovieSurvival::aFullDiskEndsTheMovieAndLeavesItPlayable()
{
    // Only the administrator can make a small disk; for others the next test alone must do.
    const QString disk = m_folder.filePath("small");
    QVERIFY(QDir().mkpath(disk));
    if (mount("none", QFile::encodeName(disk).constData(), "tmpfs", 0, "size=128k") != 0)
        QSKIP("a small disk can be made by root only");
    const QString path = disk + "/movie.mov";
    Recording recording(path);
    QVERIFY(recording.hasBegun());
    // The camera's picture is easy to code: this is full after a few seconds.
    QTest::qWait(9000);
    QVERIFY2(recording.isRunning(), "the camera must go on when the disk is full");
    QVERIFY(recording.stop());
    playAndSeek(path, 1, 8);
    QVERIFY(MovieFile(path).frames().size() > 25);
}

void TestMovieSurvival::aFileThatMayNotGrowIsPlayable()
{
    const QString path = m_folder.filePath("limited.mov");
    // A write beyond the limit fails; the signal that comes with it would end the program. In
    // blocks of 512 bytes; the index takes 3100 of them.
    Recording recording(path, "trap '' XFSZ; ulimit -f 3250; exec \"$@\"");
    QVERIFY(recording.hasBegun());
    QTest::qWait(9000);
    QVERIFY2(recording.isRunning(), "the camera must go on when the file is full");
    QVERIFY(recording.stop());
    playAndSeek(path, 1, 8);
}

QTEST_MAIN(TestMovieSurvival)
#include "tst_moviesurvival.moc"
