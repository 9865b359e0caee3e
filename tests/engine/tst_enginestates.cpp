#include "LabCommands.h"
#include "LiveVideoData.h"
#include "Opening.h"
#include "Patience.h"

#include <QFile>
#include <QFrame>
#include <QSignalSpy>
#include <QTemporaryDir>

#include <functional>

namespace {

enum class State { Idle, Open, Showing, Lost };

using Operation = std::function<void(LiveVideoData &)>;

struct Named {
    const char *name;
    Operation call;
};

} // namespace

Q_DECLARE_METATYPE(State)
Q_DECLARE_METATYPE(Operation)

// Every operation in every state, as the table in LiveVideoData.h has it.
class TestEngineStates : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();
    void anOperationLeadsToItsState_data();
    void anOperationLeadsToItsState();
    void whatIsAskedIsAnsweredByState_data();
    void whatIsAskedIsAnsweredByState();
    void movingTheTargetMovesThePicture();
    void aResolutionTheCameraDoesNotHaveChangesNothing();
    void aListIsNoCameraBeyondItsEnd_data();
    void aListIsNoCameraBeyondItsEnd();
    void theSlotsMayBeCalledAtAnyTime();

private:
    void enter(State state);
    State state() const;
    bool targetIsBlack() const;

    std::unique_ptr<QFrame> m_target;
    std::unique_ptr<LiveVideoData> m_engine;
    QTemporaryDir m_folder;
    bool m_unplugged = false;
};

void TestEngineStates::initTestCase()
{
    QVERIFY2(!qEnvironmentVariableIsEmpty("ORVANTA_LAB"), "this test must be run by tests/lab/lab");
}

void TestEngineStates::init()
{
    m_target = std::make_unique<QFrame>();
    m_target->resize(320, 240);
    m_target->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_target.get()));
    m_engine = std::make_unique<LiveVideoData>();
    m_engine->SetTarget(m_target.get());
}

void TestEngineStates::cleanup()
{
    m_engine.reset();
    m_target.reset();
    if (m_unplugged)
        QVERIFY(labctl({"plug", "first", "640x480"}));
    m_unplugged = false;
}

void TestEngineStates::enter(State state)
{
    if (state == State::Idle)
        return;
    QTRY_VERIFY((m_engine->Create(), m_engine->created));
    if (state == State::Open)
        return;
    m_engine->Start();
    QTRY_VERIFY(!targetIsBlack());
    if (state == State::Showing)
        return;
    QSignalSpy losses(m_engine.get(), &LiveVideoData::disconnectDevice);
    m_unplugged = true;
    QVERIFY(labctl({"unplug", "first"}));
    QTRY_COMPARE(losses.count(), 1);
}

// As it can be seen from outside.
State TestEngineStates::state() const
{
    if (!m_engine->created)
        return State::Idle;
    if (!m_engine->SaveBitmap(m_folder.filePath("state.png")))
        return State::Lost;
    return targetIsBlack() ? State::Open : State::Showing;
}

bool TestEngineStates::targetIsBlack() const
{
    const QImage seen = m_target->grab().toImage();
    QImage black(seen.size(), seen.format());
    black.fill(Qt::black);
    return seen == black;
}

void TestEngineStates::anOperationLeadsToItsState_data()
{
    QTest::addColumn<State>("before");
    QTest::addColumn<Operation>("operation");
    QTest::addColumn<State>("after");

    const Operation create = [](LiveVideoData &engine) {
        engine.Create();
        opens(engine);
    };
    const Operation start = [](LiveVideoData &engine) { engine.Start(); };
    const Operation stop = [](LiveVideoData &engine) { engine.Stop(); };
    const Operation release = [](LiveVideoData &engine) { engine.Release(); };
    QTest::newRow("Create when idle") << State::Idle << create << State::Open;
    QTest::newRow("Create when open") << State::Open << create << State::Open;
    QTest::newRow("Create when showing") << State::Showing << create << State::Showing;
    QTest::newRow("Create when lost and still gone") << State::Lost << create << State::Idle;
    QTest::newRow("Start when idle") << State::Idle << start << State::Idle;
    QTest::newRow("Start when open") << State::Open << start << State::Showing;
    QTest::newRow("Start when showing") << State::Showing << start << State::Showing;
    QTest::newRow("Start when lost") << State::Lost << start << State::Lost;
    QTest::newRow("Stop when idle") << State::Idle << stop << State::Idle;
    QTest::newRow("Stop when open") << State::Open << stop << State::Open;
    QTest::newRow("Stop when showing") << State::Showing << stop << State::Open;
    QTest::newRow("Stop when lost") << State::Lost << stop << State::Lost;
    QTest::newRow("Release when idle") << State::Idle << release << State::Idle;
    QTest::newRow("Release when open") << State::Open << release << State::Idle;
    QTest::newRow("Release when showing") << State::Showing << release << State::Idle;
    QTest::newRow("Release when lost") << State::Lost << release << State::Idle;

    const Named stateKeepers[] = {
        {"SetTarget", [](LiveVideoData &engine) { engine.SetTarget(nullptr); }},
        {"GetVideoDeviceList", [](LiveVideoData &engine) { engine.GetVideoDeviceList(); }},
        {"SetVideoDevice", [](LiveVideoData &engine) { engine.SetVideoDevice(5); }},
        {"Reset", [](LiveVideoData &engine) { engine.Reset(); }},
        {"SaveBitmap", [](LiveVideoData &engine) { engine.SaveBitmap("/nowhere/photo.png"); }},
        {"startSaving", [](LiveVideoData &engine) { engine.startSaving("/nowhere/photo.png"); }},
        {"finishSaving", [](LiveVideoData &engine) { engine.finishSaving(); }},
        {"Record", [](LiveVideoData &engine) { engine.Record("/nowhere/movie.mov"); }},
        {"RecordStop", [](LiveVideoData &engine) { engine.RecordStop(); }},
        {"IsValidVideoDevice", [](LiveVideoData &engine) { engine.IsValidVideoDevice(); }},
        {"IsValidAudioDevice", [](LiveVideoData &engine) { engine.IsValidAudioDevice(); }},
        {"GetResoList", [](LiveVideoData &engine) { engine.GetResoList(); }},
        {"SetResolution", [](LiveVideoData &engine) { engine.SetResolution(640, 480); }},
    };
    const QPair<const char *, State> states[] = {{"idle", State::Idle},
                                                 {"open", State::Open},
                                                 {"showing", State::Showing},
                                                 {"lost", State::Lost}};
    for (const Named &operation : stateKeepers) {
        for (const auto &named : states)
            QTest::addRow("%s when %s", operation.name, named.first)
                << named.second << operation.call << named.second;
    }
}

void TestEngineStates::anOperationLeadsToItsState()
{
    QFETCH(State, before);
    QFETCH(Operation, operation);
    QFETCH(State, after);
    enter(before);
    if (QTest::currentTestFailed())
        return;
    operation(*m_engine);
    m_engine->SetTarget(m_target.get());
    QTRY_COMPARE(state(), after);
    m_engine->Release();
    QCOMPARE(state(), State::Idle);
}

void TestEngineStates::whatIsAskedIsAnsweredByState_data()
{
    QTest::addColumn<State>("state");
    QTest::addColumn<bool>("hasCamera");
    QTest::newRow("idle") << State::Idle << false;
    QTest::newRow("open") << State::Open << true;
    QTest::newRow("showing") << State::Showing << true;
    QTest::newRow("lost") << State::Lost << false;
}

void TestEngineStates::whatIsAskedIsAnsweredByState()
{
    QFETCH(State, state);
    QFETCH(bool, hasCamera);
    enter(state);
    if (QTest::currentTestFailed())
        return;
    const QString still = m_folder.filePath("still.png");
    QFile::remove(still);
    QCOMPARE(m_engine->SaveBitmap(still), hasCamera);
    QCOMPARE(QFile::exists(still), hasCamera);
    QFile::remove(still);
    QCOMPARE(!m_engine->startSaving(still).isNull(), hasCamera);
    m_engine->finishSaving();
    QCOMPARE(QFile::exists(still), hasCamera);
    QCOMPARE(m_engine->GetResoList(), hasCamera ? QStringList{"640x480"} : QStringList());
    QTRY_COMPARE(m_engine->GetVideoDeviceList(),
                 state == State::Lost ? QStringList() : QStringList{"first"});
    QVERIFY(m_engine->IsValidAudioDevice());
    const QString movie = m_folder.filePath("movie.mov");
    QFile::remove(movie);
    QCOMPARE(records(*m_engine, movie), hasCamera);
    QCOMPARE(m_engine->IsValidVideoDevice(), hasCamera);
    m_engine->RecordStop();
    QCOMPARE(QFile::exists(movie), hasCamera);
}

void TestEngineStates::movingTheTargetMovesThePicture()
{
    enter(State::Showing);
    std::unique_ptr<QFrame> first = std::move(m_target);
    m_target = std::make_unique<QFrame>();
    m_target->resize(200, 200);
    m_target->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_target.get()));
    m_engine->SetTarget(m_target.get());
    QTRY_VERIFY(!targetIsBlack());
}

void TestEngineStates::aResolutionTheCameraDoesNotHaveChangesNothing()
{
    enter(State::Showing);
    QSignalSpy losses(m_engine.get(), &LiveVideoData::disconnectDevice);
    for (const QSize &size : {QSize(800, 600), QSize(0, 0), QSize(-1, 480)})
        m_engine->SetResolution(size.width(), size.height());
    QCOMPARE(state(), State::Showing);
    QCOMPARE(m_engine->nativeWidth, 640);
    QCOMPARE(losses.count(), 0);
}

void TestEngineStates::aListIsNoCameraBeyondItsEnd_data()
{
    QTest::addColumn<int>("index");
    QTest::newRow("below") << -1;
    QTest::newRow("beyond") << 1;
}

void TestEngineStates::aListIsNoCameraBeyondItsEnd()
{
    QFETCH(int, index);
    QTRY_COMPARE(m_engine->GetVideoDeviceList().size(), 1);
    m_engine->SetVideoDevice(index);
    m_engine->Create();
    QVERIFY(!m_engine->created);
    QVERIFY(!m_engine->videoPresent);
    QVERIFY(m_engine->supported);
    m_engine->SetVideoDevice(0);
    QVERIFY(opens(*m_engine));
}

void TestEngineStates::theSlotsMayBeCalledAtAnyTime()
{
    for (const State wanted : {State::Idle, State::Open, State::Showing}) {
        enter(wanted);
        m_engine->grab();
        m_engine->device();
        m_engine->RecordMovie();
        QCOMPARE(state(), wanted);
        m_engine->Release();
    }
}

QTEST_MAIN(TestEngineStates)
#include "tst_enginestates.moc"
