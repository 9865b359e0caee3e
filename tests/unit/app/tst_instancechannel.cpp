#include "InstanceChannel.h"
#include "Patience.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QLocalSocket>
#include <QScopedPointer>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QtEndian>

#include <chrono>
#include <future>
#include <memory>
#include <sys/stat.h>
#include <unistd.h>
#include <vector>

namespace {

QByteArray framed(const QByteArray &text)
{
    QByteArray header(4, '\0');
    qToBigEndian(quint32(text.size()), header.data());
    return header + text;
}

// A second copy: it sends from a thread of its own, since the first answers from the event loop.
class Sender {
public:
    Sender(const QString &folder, const QString &message, int timeoutMs)
        : m_delivered(std::async(std::launch::async, [=] {
            return InstanceChannel("Orvanta", folder).send(message, timeoutMs);
        }))
    {
    }

    bool isFinished() const
    {
        return m_delivered.wait_for(std::chrono::seconds(0)) == std::future_status::ready;
    }
    bool delivered() const { return m_delivered.get(); }

private:
    std::shared_future<bool> m_delivered; // as for every such future, its end waits for the thread
};

} // namespace

class tst_InstanceChannel : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();

    void theFirstToAskIsTheFirst();
    void theNextOneTakesOverWhenTheFirstIsGone();
    void withoutAFolderNobodyIsMet();
    void whereNothingCanBeLockedNobodyIsMet();
    void whatACrashedFirstLeftIsNoLock_data();
    void whatACrashedFirstLeftIsNoLock();
    void theSocketIsForThisUserOnly();
    void aFolderWithALongPathIsNoHindrance_data();
    void aFolderWithALongPathIsNoHindrance();

    void theFirstHasNobodyToSendTo();
    void aMessageArrivesAsItWasSent_data();
    void aMessageArrivesAsItWasSent();
    void aMessageThatIsTooLongIsNotSent();
    void aFirstThatDoesNotListenYetIsWaitedFor();
    void aFirstThatDoesNotAnswerIsGivenUpAfterTheTime();
    void aFirstThatAnswersSomethingElseHasNotAcknowledged();
    void aSenderBecomesFirstWhenTheFirstEndsMeanwhile();
    void aFirstWithoutTimeForItsEventsAnswersWhenToldTo();

    void garbageFromAClientIsDropped_data();
    void garbageFromAClientIsDropped();
    void aMessageInPiecesIsPutTogether();
    void onlyOneMessageIsTakenFromAClient();
    void silentClientsMakeRoom();
    void aSilentClientIsSentAwayInTheEnd();

private:
    QString folder() const { return m_dir->path(); }
    QString socketPath() const { return m_dir->filePath("Orvanta.socket"); }
    QScopedPointer<QTemporaryDir> m_dir;
};

void tst_InstanceChannel::init()
{
    // Not in the test's own temporary folder, whose path is long: the tests' own sockets have it.
    m_dir.reset(new QTemporaryDir("/tmp/orvanta-XXXXXX"));
    QVERIFY(m_dir->isValid());
}

void tst_InstanceChannel::theFirstToAskIsTheFirst()
{
    InstanceChannel first("Orvanta", folder());
    InstanceChannel second("Orvanta", folder());
    InstanceChannel other("Another", folder());
    QVERIFY(first.becomeFirst());
    QVERIFY(!second.becomeFirst());
    QVERIFY(second.isTaken());
    QVERIFY(first.becomeFirst());
    QVERIFY(!first.isTaken());
    QVERIFY(!other.isTaken());
}

void tst_InstanceChannel::theNextOneTakesOverWhenTheFirstIsGone()
{
    QScopedPointer<InstanceChannel> first(new InstanceChannel("Orvanta", folder()));
    QVERIFY(first->becomeFirst());
    InstanceChannel second("Orvanta", folder());
    QVERIFY(second.isTaken());
    first.reset();
    QVERIFY(!QFile::exists(socketPath()));
    QVERIFY(!second.isTaken());
    QVERIFY(QFile::exists(socketPath()));
}

void tst_InstanceChannel::withoutAFolderNobodyIsMet()
{
    InstanceChannel channel("Orvanta", QString());
    QVERIFY(!channel.becomeFirst());
    QVERIFY(!channel.isTaken());
    QVERIFY(!channel.send("Wake up!", 60000));
}

void tst_InstanceChannel::whereNothingCanBeLockedNobodyIsMet()
{
    QVERIFY(QDir(folder()).mkdir("Orvanta.lock")); // a folder, which cannot be made a file
    InstanceChannel channel("Orvanta", folder());
    QVERIFY(!channel.becomeFirst());
    QVERIFY(!channel.isTaken());
    QVERIFY(!channel.send("Wake up!", 60000));
}

void tst_InstanceChannel::whatACrashedFirstLeftIsNoLock_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("nothing, since the disk was full") << QByteArray();
    QTest::newRow("half a line") << QByteArray("12");
    // Of a process that lives, but is something else now.
    const QByteArray process = QByteArray::number(getpid());
    const QByteArray program = QCoreApplication::applicationName().toUtf8();
    QTest::newRow("what it wrote before the computer was given another name")
        << process + '\n' + program + "\nanother-name\n\n\n";
    QTest::newRow("a number that somebody else's process has now")
        << process + '\n' + program + '\n' + QSysInfo::machineHostName().toUtf8() + "\n\n\n";
}

void tst_InstanceChannel::whatACrashedFirstLeftIsNoLock()
{
    QFETCH(QByteArray, content);
    QFile left(m_dir->filePath("Orvanta.lock"));
    QVERIFY(left.open(QIODevice::WriteOnly));
    QCOMPARE(left.write(content), qint64(content.size()));
    left.close();
    InstanceChannel channel("Orvanta", folder());
    QVERIFY(!channel.isTaken());
    QVERIFY(channel.becomeFirst());
    QVERIFY(QFile::exists(socketPath()));
}

void tst_InstanceChannel::theSocketIsForThisUserOnly()
{
    InstanceChannel first("Orvanta", folder());
    QVERIFY(first.becomeFirst());
    struct stat entry = {};
    QCOMPARE(stat(QFile::encodeName(socketPath()).constData(), &entry), 0);
    QVERIFY(S_ISSOCK(entry.st_mode));
    QCOMPARE(entry.st_mode & 077U, 0U);
}

void tst_InstanceChannel::aFolderWithALongPathIsNoHindrance_data()
{
    QTest::addColumn<int>("length"); // of the path, in bytes
    // "/Orvanta.socket" makes it 15 longer; with 108 it no longer fits.
    for (int length = 90; length <= 95; ++length)
        QTest::addRow("%d bytes", length) << length;
    QTest::newRow("240 bytes") << 240;
}

void tst_InstanceChannel::aFolderWithALongPathIsNoHindrance()
{
    QFETCH(int, length);
    const QString path = folder() + '/' + QString(length - folder().size() - 1, 'x');
    QCOMPARE(path.size(), length);
    QVERIFY(QDir().mkpath(path));
    QScopedPointer<InstanceChannel> first(new InstanceChannel("Orvanta", path));
    QVERIFY(first->becomeFirst());
    QVERIFY(QFile::exists(path + "/Orvanta.socket"));
    QSignalSpy received(first.data(), &InstanceChannel::messageReceived);
    Sender second(path, "Wake up!", 5000);
    QTRY_VERIFY(second.isFinished());
    QVERIFY(second.delivered());
    QTRY_COMPARE(received.size(), 1);
    first.reset();
    QVERIFY(!QFile::exists(path + "/Orvanta.socket"));
}

void tst_InstanceChannel::theFirstHasNobodyToSendTo()
{
    InstanceChannel first("Orvanta", folder());
    QVERIFY(first.becomeFirst());
    QVERIFY(!first.send("Wake up!", 60000));
}

void tst_InstanceChannel::aMessageArrivesAsItWasSent_data()
{
    QTest::addColumn<QString>("message");
    QTest::newRow("the usual one") << "Wake up!";
    QTest::newRow("empty") << "";
    QTest::newRow("not only Latin letters")
        << QString::fromUtf8("Größe \xd7\xa9\xd7\x9c\xd7\x95\xd7\x9d");
    QTest::newRow("the longest") << QString(InstanceChannel::maxMessageBytes, 'x');
}

void tst_InstanceChannel::aMessageArrivesAsItWasSent()
{
    QFETCH(QString, message);
    InstanceChannel first("Orvanta", folder());
    QVERIFY(first.becomeFirst());
    QSignalSpy received(&first, &InstanceChannel::messageReceived);
    Sender second(folder(), message, 5000);
    QTRY_VERIFY(second.isFinished());
    QVERIFY(second.delivered());
    QTRY_COMPARE(received.size(), 1);
    QCOMPARE(received.first().first().toString(), message);
}

void tst_InstanceChannel::aMessageThatIsTooLongIsNotSent()
{
    InstanceChannel first("Orvanta", folder());
    QVERIFY(first.becomeFirst());
    QSignalSpy received(&first, &InstanceChannel::messageReceived);
    Sender second(folder(), QString(InstanceChannel::maxMessageBytes + 1, 'x'), 60000);
    QTRY_VERIFY(second.isFinished());
    QVERIFY(!second.delivered());
    QCOMPARE(received.size(), 0);
}

void tst_InstanceChannel::aFirstThatDoesNotListenYetIsWaitedFor()
{
    InstanceLock lock(m_dir->filePath("Orvanta.lock"));
    QCOMPARE(lock.tryLock(), InstanceLock::Locked);
    Sender second(folder(), "Wake up!", 20000);
    QTest::qWait(200); // nothing to wait for: an end that must not come
    QVERIFY(!second.isFinished());

    QLocalServer late;
    QVERIFY(late.listen(socketPath()));
    QTRY_VERIFY(late.hasPendingConnections());
    QLocalSocket *client = late.nextPendingConnection();
    const QByteArray expected = framed("Wake up!");
    QTRY_COMPARE(client->bytesAvailable(), qint64(expected.size()));
    QCOMPARE(client->readAll(), expected);
    client->write("ok");
    QTRY_VERIFY(second.isFinished());
    QVERIFY(second.delivered());
}

void tst_InstanceChannel::aFirstThatDoesNotAnswerIsGivenUpAfterTheTime()
{
    InstanceLock lock(m_dir->filePath("Orvanta.lock"));
    QCOMPARE(lock.tryLock(), InstanceLock::Locked);
    QLocalServer mute; // its clients are connected by the kernel, nobody ever reads them
    QVERIFY(mute.listen(socketPath()));

    InstanceChannel second("Orvanta", folder());
    QElapsedTimer time;
    time.start();
    QVERIFY(!second.send("Wake up!", 400));
    QVERIFY2(time.elapsed() >= 390, qPrintable(QString::number(time.elapsed())));
    QVERIFY2(time.elapsed() < 5000, qPrintable(QString::number(time.elapsed())));
    QVERIFY(second.isTaken());
}

void tst_InstanceChannel::aFirstThatAnswersSomethingElseHasNotAcknowledged()
{
    InstanceLock lock(m_dir->filePath("Orvanta.lock"));
    QCOMPARE(lock.tryLock(), InstanceLock::Locked);
    QLocalServer stranger;
    QVERIFY(stranger.listen(socketPath()));
    int answered = 0;
    connect(&stranger, &QLocalServer::newConnection, this, [&] {
        stranger.nextPendingConnection()->write("no");
        ++answered;
    });
    Sender second(folder(), "Wake up!", 400);
    QTRY_VERIFY(second.isFinished());
    QVERIFY(!second.delivered());
    QVERIFY(answered > 0);
}

void tst_InstanceChannel::aSenderBecomesFirstWhenTheFirstEndsMeanwhile()
{
    QScopedPointer<InstanceLock> lock(new InstanceLock(m_dir->filePath("Orvanta.lock")));
    QCOMPARE(lock->tryLock(), InstanceLock::Locked);
    Sender second(folder(), "Wake up!", 60000);
    QTest::qWait(100); // nothing to wait for: an end that must not come
    QVERIFY(!second.isFinished());
    lock.reset();
    QTRY_VERIFY(second.isFinished());
    QVERIFY(!second.delivered());
}

void tst_InstanceChannel::aFirstWithoutTimeForItsEventsAnswersWhenToldTo()
{
    InstanceChannel first("Orvanta", folder());
    QVERIFY(first.becomeFirst());
    QSignalSpy received(&first, &InstanceChannel::messageReceived);
    for (int i = 0; i < 3; ++i) {
        Sender second(folder(), "Wake up!", patience);
        while (!second.isFinished())
            first.answerWaiting();
        QVERIFY(second.delivered());
        QCOMPARE(received.size(), 0); // it is busy with something else
    }
    QTRY_COMPARE(received.size(), 3);
}

void tst_InstanceChannel::garbageFromAClientIsDropped_data()
{
    QTest::addColumn<QByteArray>("garbage");
    QTest::newRow("an absurd length") << QByteArray("\xff\xff\xff\xff and more", 13);
    QTest::newRow("one byte too long") << QByteArray("\x00\x01\x00\x01", 4);
    QTest::newRow("a text protocol") << QByteArray("GET / HTTP/1.1\r\n\r\n");
}

void tst_InstanceChannel::garbageFromAClientIsDropped()
{
    QFETCH(QByteArray, garbage);
    InstanceChannel first("Orvanta", folder());
    QVERIFY(first.becomeFirst());
    QSignalSpy received(&first, &InstanceChannel::messageReceived);

    QLocalSocket client;
    client.connectToServer(socketPath());
    QVERIFY(client.waitForConnected());
    client.write(garbage);
    // At once, not when its time is up.
    QTRY_COMPARE_WITH_TIMEOUT(client.state(), QLocalSocket::UnconnectedState,
                              InstanceChannel::clientTimeMs / 2);

    Sender second(folder(), "Wake up!", 5000);
    QTRY_VERIFY(second.isFinished());
    QVERIFY(second.delivered());
    QTRY_COMPARE(received.size(), 1);
}

void tst_InstanceChannel::aMessageInPiecesIsPutTogether()
{
    InstanceChannel first("Orvanta", folder());
    QVERIFY(first.becomeFirst());
    QSignalSpy received(&first, &InstanceChannel::messageReceived);
    QLocalSocket client;
    client.connectToServer(socketPath());
    QVERIFY(client.waitForConnected());
    const QByteArray message = framed("Wake up!");
    for (const char byte : message) {
        QCOMPARE(received.size(), 0);
        client.write(&byte, 1);
        client.flush();
        QTest::qWait(5); // nothing to wait for: a message that must not be complete yet
    }
    QTRY_COMPARE(received.size(), 1);
    QCOMPARE(received.first().first().toString(), QString("Wake up!"));
}

void tst_InstanceChannel::onlyOneMessageIsTakenFromAClient()
{
    InstanceChannel first("Orvanta", folder());
    QVERIFY(first.becomeFirst());
    QSignalSpy received(&first, &InstanceChannel::messageReceived);
    QLocalSocket client;
    client.connectToServer(socketPath());
    QVERIFY(client.waitForConnected());
    client.write(framed("one") + framed("two") + framed("three"));
    QTRY_COMPARE(client.state(), QLocalSocket::UnconnectedState);
    QTRY_COMPARE(received.size(), 1);
    QCOMPARE(received.first().first().toString(), QString("one"));
}

void tst_InstanceChannel::silentClientsMakeRoom()
{
    InstanceChannel first("Orvanta", folder());
    QVERIFY(first.becomeFirst());
    std::vector<std::unique_ptr<QLocalSocket>> silent;
    for (int i = 0; i < 2 * InstanceChannel::maxClients; ++i) {
        silent.push_back(std::make_unique<QLocalSocket>());
        silent.back()->connectToServer(socketPath());
        QVERIFY(silent.back()->waitForConnected());
        QTest::qWait(1); // nothing to wait for: the first may see them one by one
    }
    Sender second(folder(), "Wake up!", 3000);
    QTRY_VERIFY(second.isFinished());
    QVERIFY(second.delivered());
    QTRY_COMPARE(silent.front()->state(), QLocalSocket::UnconnectedState);
    QVERIFY(first.findChildren<QLocalSocket *>().size() <= InstanceChannel::maxClients);
}

void tst_InstanceChannel::aSilentClientIsSentAwayInTheEnd()
{
    InstanceChannel first("Orvanta", folder());
    QVERIFY(first.becomeFirst());
    QLocalSocket client;
    client.connectToServer(socketPath());
    QVERIFY(client.waitForConnected());
    client.write("\0\0", 2);
    QTRY_COMPARE_WITH_TIMEOUT(client.state(), QLocalSocket::UnconnectedState,
                              2 * InstanceChannel::clientTimeMs);
}

QTEST_GUILESS_MAIN(tst_InstanceChannel)
#include "tst_instancechannel.moc"
