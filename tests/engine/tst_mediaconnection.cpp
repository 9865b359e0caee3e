#include "MediaConnection.h"
#include "Patience.h"

#include <QLocalServer>
#include <QLocalSocket>
#include <QSignalSpy>
#include <QSocketNotifier>
#include <QTemporaryDir>

#include <memory>

// The connection to a media server of which nothing but its socket is needed.
class TestMediaConnection : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void withoutAServerThereIsNone();
    void theServerIsFoundWhereItsLibraryLooks_data();
    void theServerIsFoundWhereItsLibraryLooks();
    void aServerThatSaysNothingIsNotLost();
    void theEndOfTheServerIsSeenAtOnce();
    void whatTheServerSaysIsNotItsEnd();
    void theDescriptorIsReservedUntilTheLastHolderLetsGo();
    void theProviderIsTakenDownWithTheConnection();

private:
    static std::unique_ptr<QLocalServer> listenAt(const QString &path);

    std::unique_ptr<QTemporaryDir> m_folder;
};

void TestMediaConnection::init()
{
    // Not among the test's own: socket names may only be 107 characters long.
    m_folder = std::make_unique<QTemporaryDir>("/tmp/orvanta-XXXXXX");
    qunsetenv("PIPEWIRE_REMOTE");
    qunsetenv("PIPEWIRE_RUNTIME_DIR");
    qputenv("XDG_RUNTIME_DIR", QFile::encodeName(m_folder->path()));
}

std::unique_ptr<QLocalServer> TestMediaConnection::listenAt(const QString &path)
{
    auto server = std::make_unique<QLocalServer>();
    if (!server->listen(path))
        qFatal("cannot listen at %s", qPrintable(path));
    return server;
}

void TestMediaConnection::withoutAServerThereIsNone()
{
    qputenv("PIPEWIRE_REMOTE", QFile::encodeName(m_folder->filePath("nobody")));
    QVERIFY(!MediaConnection::open());
    qputenv("PIPEWIRE_REMOTE", QByteArray(200, 'x').prepend('/')); // longer than a socket's name
    QVERIFY(!MediaConnection::open());
}

void TestMediaConnection::theServerIsFoundWhereItsLibraryLooks_data()
{
    QTest::addColumn<QString>("remote"); // the folder stands for %1
    QTest::addColumn<QString>("folder");
    QTest::addColumn<QString>("socket");
    QTest::newRow("by default") << ""
                                << ""
                                << "pipewire-0";
    QTest::newRow("by another name") << "pipewire-7"
                                     << ""
                                     << "pipewire-7";
    QTest::newRow("by its path") << "%1/somewhere"
                                 << ""
                                 << "somewhere";
    QTest::newRow("in a folder of its own") << ""
                                            << "%1"
                                            << "pipewire-0";
}

void TestMediaConnection::theServerIsFoundWhereItsLibraryLooks()
{
    QFETCH(QString, remote);
    QFETCH(QString, folder);
    QFETCH(QString, socket);
    if (!remote.isEmpty())
        qputenv("PIPEWIRE_REMOTE", QFile::encodeName(remote.replace("%1", m_folder->path())));
    if (!folder.isEmpty()) {
        qputenv("PIPEWIRE_RUNTIME_DIR", QFile::encodeName(folder.replace("%1", m_folder->path())));
        qputenv("XDG_RUNTIME_DIR", "/nowhere");
    }
    const auto server = listenAt(m_folder->filePath(socket));
    QVERIFY(MediaConnection::open());
    QVERIFY(server->waitForNewConnection(5000));
}

void TestMediaConnection::aServerThatSaysNothingIsNotLost()
{
    const auto server = listenAt(m_folder->filePath("pipewire-0"));
    const std::shared_ptr<MediaConnection> connection = MediaConnection::open();
    QVERIFY(connection);
    QVERIFY(!connection->isLost()); // nor accepted yet, as by one that hangs
    QVERIFY(server->waitForNewConnection(5000));
    QVERIFY(!connection->isLost());
}

void TestMediaConnection::theEndOfTheServerIsSeenAtOnce()
{
    const auto server = listenAt(m_folder->filePath("pipewire-0"));
    const std::shared_ptr<MediaConnection> connection = MediaConnection::open();
    QVERIFY(connection);
    QVERIFY(server->waitForNewConnection(5000));
    const QSocketNotifier notifier(connection->watch(), QSocketNotifier::Read);
    int told = 0;
    connect(&notifier, &QSocketNotifier::activated, this, [&told] { ++told; });
    QTest::qWait(50); // nothing to wait for: what must not be told
    QCOMPARE(told, 0);
    delete server->nextPendingConnection();
    QTRY_VERIFY(told > 0);
    QVERIFY(connection->isLost());
}

void TestMediaConnection::whatTheServerSaysIsNotItsEnd()
{
    const auto server = listenAt(m_folder->filePath("pipewire-0"));
    const std::shared_ptr<MediaConnection> connection = MediaConnection::open();
    QVERIFY(connection);
    QVERIFY(server->waitForNewConnection(5000));
    QLocalSocket *client = server->nextPendingConnection();
    client->write("hello");
    QVERIFY(client->flush());
    QTest::qWait(50); // nothing to wait for: what must not be told
    QVERIFY(!connection->isLost());
}

void TestMediaConnection::theDescriptorIsReservedUntilTheLastHolderLetsGo()
{
    const auto server = listenAt(m_folder->filePath("pipewire-0"));
    std::shared_ptr<MediaConnection> first = MediaConnection::open();
    QVERIFY(server->waitForNewConnection(5000));
    const QLocalSocket *client = server->nextPendingConnection();
    const std::shared_ptr<MediaConnection> holder = first;
    first.reset();
    const std::shared_ptr<MediaConnection> second = MediaConnection::open();
    QVERIFY(second && second->descriptor() != holder->descriptor());
    QCOMPARE(client->state(), QLocalSocket::ConnectedState);
}

void TestMediaConnection::theProviderIsTakenDownWithTheConnection()
{
    const auto server = listenAt(m_folder->filePath("pipewire-0"));
    std::shared_ptr<MediaConnection> connection = MediaConnection::open();
    QVERIFY(server->waitForNewConnection(5000));
    const QLocalSocket *client = server->nextPendingConnection();
    auto provider = std::make_shared<int>(0);
    const std::weak_ptr<int> life = provider;
    connection->keep(std::move(provider));
    QVERIFY(!life.expired());
    connection.reset();
    QTRY_VERIFY(life.expired());
    QTRY_COMPARE(client->state(), QLocalSocket::UnconnectedState);
}

QTEST_GUILESS_MAIN(TestMediaConnection)
#include "tst_mediaconnection.moc"
