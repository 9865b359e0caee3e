#include "LoginSession.h"
#include "MovieFile.h"
#include "Patience.h"
#include "Session.h"

#include <QDir>

#include <gst/gst.h>
#include <memory>

// The user logs out while the program runs: nothing that was captured is lost by it.
class TestLoggingOut : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();
    void withoutCapturesNothingIsAsked();
    void yesSavesThePhotosAndLeaves();
    void cancelStaysAndTheNextTimeNoDeletes();
    void whereNobodyMayBeAskedThePhotosAreKept();
    void theQuestionAtExitIsAskedOnceMore();
    void aRecordingIsSavedWhole();
    void theProgramOutlivesItsSessionManager();

private:
    qint64 windowsWork() const;

    bool endsWithItsSession();

    std::unique_ptr<LoginSession> m_login;
    std::unique_ptr<Session> m_user;
};

void TestLoggingOut::initTestCase()
{
    gst_init(nullptr, nullptr);
    m_login = std::make_unique<LoginSession>();
    QVERIFY(!m_login->address().isEmpty());
}

void TestLoggingOut::init()
{
    m_user = std::make_unique<Session>(ORVANTA_PROGRAM, "cam1", QSize(640, 480));
    m_user->program().setEnvironment("SESSION_MANAGER", m_login->address());
    QVERIFY(m_user->startLive());
    QTRY_VERIFY(m_login->hasProgram());
}

void TestLoggingOut::cleanup()
{
    m_user.reset();
}

bool TestLoggingOut::endsWithItsSession()
{
    m_login->end();
    return m_user->program().hasEndedWithin(patience) && !m_user->program().hasCrashed();
}

void TestLoggingOut::withoutCapturesNothingIsAsked()
{
    m_login->logOut(LoginSession::MayAsk);
    QTRY_VERIFY(m_login->isReadyToEnd());
    QVERIFY(!m_login->hasAsked());
    QVERIFY(m_user->isLiveAt(m_user->map().videoRect())); // others may still cancel it
    QVERIFY(endsWithItsSession());
}

void TestLoggingOut::yesSavesThePhotosAndLeaves()
{
    QVERIFY(m_user->takePhotoForPreview());
    const QStringList photos = m_user->program().captured();
    m_login->logOut(LoginSession::MayAsk);
    QVERIFY(m_user->answerExitQuestion("Yes"));
    QTRY_VERIFY(m_login->isReadyToEnd());
    QVERIFY(endsWithItsSession());
    QCOMPARE(QDir(m_user->program().saveFolder()).entryList(QDir::Files), photos);
    QCOMPARE(m_user->program().captured(), QStringList());
}

void TestLoggingOut::cancelStaysAndTheNextTimeNoDeletes()
{
    QVERIFY(m_user->takePhotoForPreview());
    const QStringList photos = m_user->program().captured();
    m_login->logOut(LoginSession::MayAsk);
    QVERIFY(m_user->answerExitQuestion("Cancel"));
    QTRY_VERIFY(m_login->isCancelled());
    QVERIFY(m_user->waitUntilNoDialog());
    QTRY_VERIFY(m_user->isLiveAt(m_user->map().previewLiveRect()));
    QCOMPARE(m_user->program().captured(), photos);
    // Its answer to the first time, late, would be taken for that to the next.
    QTRY_VERIFY(m_login->isReadyToEnd());
    m_login->logOut(LoginSession::MayAsk);
    QVERIFY(m_user->answerExitQuestion("No"));
    QTRY_VERIFY(m_login->isReadyToEnd());
    QVERIFY(endsWithItsSession());
    QCOMPARE(m_user->program().captured(), QStringList());
}

void TestLoggingOut::whereNobodyMayBeAskedThePhotosAreKept()
{
    QVERIFY(m_user->takePhotoForPreview());
    const QStringList photos = m_user->program().captured();
    m_login->logOut(LoginSession::MayNotAsk);
    QTRY_VERIFY(m_login->isReadyToEnd());
    QCOMPARE(m_user->dialog().id, 0U);
    QVERIFY(endsWithItsSession());
    QCOMPARE(m_user->program().captured(), photos);
}

void TestLoggingOut::theQuestionAtExitIsAskedOnceMore()
{
    QVERIFY(m_user->takePhotoForPreview());
    QVERIFY(m_user->pressWhenReady(WindowMap::PreviewScreen, "Apply"));
    const QStringList photos = m_user->program().captured();
    QVERIFY(m_user->pressWhenReady(WindowMap::PhotoScreen, "Close"));
    QVERIFY(m_user->waitForDialog("Orvanta"));
    const quint32 first = m_user->dialog().id;
    m_login->logOut(LoginSession::MayAsk);
    // One look at a time: between two the first box may go.
    const auto isAskedAnew = [&] {
        const quint32 id = m_user->dialog().id;
        return id != 0 && id != first;
    };
    QTRY_VERIFY(isAskedAnew());
    QVERIFY(m_user->answerExitQuestion("Yes"));
    QTRY_VERIFY(m_login->isReadyToEnd());
    QVERIFY(endsWithItsSession());
    QCOMPARE(QDir(m_user->program().saveFolder()).entryList(QDir::Files), photos);
}

void TestLoggingOut::aRecordingIsSavedWhole()
{
    QVERIFY(m_user->pressWhenReady(WindowMap::LiveScreen, "Movie"));
    QVERIFY(m_user->waitForPressable(WindowMap::RecordingScreen, {"MovieStop"}));
    QTRY_VERIFY(m_user->isLiveAt(m_user->map().videoRect()));
    m_login->logOut(LoginSession::MayAsk);
    QVERIFY(m_user->waitForDialog("Orvanta"));
    QTest::qWait(1500); // nothing to wait for: the rest of the movie's length
    QVERIFY(m_user->answerExitQuestion("Yes"));
    QTRY_VERIFY(m_login->isReadyToEnd());
    QVERIFY(endsWithItsSession());
    const QDir folder(m_user->program().saveFolder());
    const QStringList movies = folder.entryList({"movie*.mov"}, QDir::Files);
    QCOMPARE(movies.size(), 1);
    const MovieFile movie(folder.filePath(movies.first()));
    QCOMPARE(movie.complaints(), QStringList());
    QVERIFY2(movie.duration() > 1.4, qPrintable(QString::number(movie.duration())));
    QVERIFY(movie.frames().size() > 10);
}

// Ticks of the processor that the window's thread takes in a while.
qint64 TestLoggingOut::windowsWork() const
{
    static constexpr int whileMs = 1500;
    const auto ticks = [this]() -> qint64 {
        const qint64 pid = m_user->program().pid();
        QFile file(QStringLiteral("/proc/%1/task/%1/stat").arg(pid));
        if (!file.open(QIODevice::ReadOnly))
            return 0;
        const QByteArrayList fields = file.readAll().split(')').last().split(' ');
        return fields.value(12).toLongLong() + fields.value(13).toLongLong();
    };
    const qint64 before = ticks();
    QTest::qWait(whileMs); // nothing to wait for: work that must not be done
    return ticks() - before;
}

void TestLoggingOut::theProgramOutlivesItsSessionManager()
{
    QVERIFY(m_user->pressWhenReady(WindowMap::LiveScreen, "Movie"));
    QVERIFY(m_user->waitForPressable(WindowMap::RecordingScreen, {"MovieStop"}));
    const qint64 usualWork = windowsWork();
    m_login->crash();
    const qint64 work = windowsWork();
    QVERIFY2(work < 2 * usualWork + 20, qPrintable(QString("%1, not %2").arg(work).arg(usualWork)));
    QVERIFY(m_user->program().isRunning());
    QVERIFY(m_user->isRecording());
    QVERIFY(m_user->isLiveAt(m_user->map().videoRect()));
    m_user->program().terminate();
    QVERIFY(m_user->program().hasEndedWithin(patience));
    QVERIFY(!m_user->program().hasCrashed());
}

QTEST_MAIN(TestLoggingOut)
#include "tst_loggingout.moc"
