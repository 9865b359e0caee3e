#include "LabCommands.h"
#include "MicrophoneFinder.h"
#include "Patience.h"

#include <QScopeGuard>

#include <atomic>

using std::chrono::seconds;
using std::chrono::steady_clock;

// The lab's sound server has one microphone, "labmic", which can be plugged in and pulled out.
class TestMicrophoneFinder : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();
    void theServersMicrophoneIsTheSource();
    void withoutAMicrophoneThereIsNothingToOpen();
    void everyListenerIsToldOfAChangeUntilItGoes();
    void oneThatWasRefusedCountsAsNoneUntilThatIsForgotten();
    void oneThatIsListenedToStaysUsable();
    void theDemonstrationsMicrophoneIsForItsOwnCamera();
    void withoutASoundServerTheSourceIsTheSystemsOwn();

private:
    static void start();
    static bool isPluggedIn() { return MicrophoneFinder::source().has_value(); }
};

void TestMicrophoneFinder::initTestCase()
{
    QVERIFY2(!qEnvironmentVariableIsEmpty("ORVANTA_LAB"), "this test must be run by tests/lab/lab");
    gst_init(nullptr, nullptr);
}

void TestMicrophoneFinder::start()
{
    MicrophoneFinder::begin();
    MicrophoneFinder::waitUntil(steady_clock::now() + seconds(5));
}

void TestMicrophoneFinder::init()
{
    QTRY_VERIFY((start(), isPluggedIn()));
}

void TestMicrophoneFinder::cleanup()
{
    QVERIFY(labctl({"microphone", "on"}));
}

void TestMicrophoneFinder::theServersMicrophoneIsTheSource()
{
    QVERIFY(MicrophoneFinder::source()->kind == SoundSource::Kind::Server);
    QCOMPARE(MicrophoneFinder::source()->name, QByteArray("labmic"));
    QVERIFY(MicrophoneFinder([] {}).canBeUsed());
}

void TestMicrophoneFinder::withoutAMicrophoneThereIsNothingToOpen()
{
    MicrophoneFinder finder([] {});
    QVERIFY(labctl({"microphone", "off"}));
    QTRY_VERIFY(!isPluggedIn());
    QVERIFY(!finder.canBeUsed());
    QVERIFY(!finder.open(seconds(2)));
}

void TestMicrophoneFinder::everyListenerIsToldOfAChangeUntilItGoes()
{
    std::atomic<int> first{0};
    std::atomic<int> second{0};
    const MicrophoneFinder stays([&first] { ++first; });
    {
        const MicrophoneFinder goes([&second] { ++second; });
        QVERIFY(labctl({"microphone", "off"}));
        QTRY_VERIFY(first > 0 && second > 0);
        QTRY_VERIFY(!isPluggedIn());
    }
    const int before = first;
    const int atItsEnd = second;
    QVERIFY(labctl({"microphone", "on"}));
    QTRY_VERIFY(first > before);
    QTRY_VERIFY(isPluggedIn());
    QCOMPARE(int(second), atItsEnd);
}

void TestMicrophoneFinder::oneThatWasRefusedCountsAsNoneUntilThatIsForgotten()
{
    MicrophoneFinder finder([] {});
    finder.refuse();
    QVERIFY(!finder.canBeUsed());
    QVERIFY2(MicrophoneFinder([] {}).canBeUsed(), "it is this engine's own matter");
    finder.forgetRefusal();
    QVERIFY(finder.canBeUsed());
}

void TestMicrophoneFinder::oneThatIsListenedToStaysUsable()
{
    MicrophoneFinder finder([] {});
    const std::shared_ptr<Microphone> microphone = finder.open(seconds(5));
    QVERIFY(microphone);
    QVERIFY(finder.canBeUsed());
}

void TestMicrophoneFinder::theDemonstrationsMicrophoneIsForItsOwnCamera()
{
    using Kind = SoundSource::Kind;
    qputenv("ORVANTA_DEMO_CAMERA", "1");
    const auto restored = qScopeGuard([] { qunsetenv("ORVANTA_DEMO_CAMERA"); });
    MicrophoneFinder finder([] {});
    QVERIFY(finder.chosen()->kind == Kind::Server);
    finder.setDemonstration(true);
    QVERIFY(finder.chosen()->kind == Kind::Demonstration);
    QVERIFY(labctl({"microphone", "off"}));
    QTRY_VERIFY(!isPluggedIn());
    finder.setDemonstration(false);
    QVERIFY2(!finder.chosen() && !finder.canBeUsed(), "another camera is not heard by it");
    finder.setDemonstration(std::nullopt);
    QVERIFY(finder.chosen()->kind == Kind::Demonstration && finder.canBeUsed());
}

void TestMicrophoneFinder::withoutASoundServerTheSourceIsTheSystemsOwn()
{
    MicrophoneFinder finder([] {});
    QVERIFY(labctl({"stop-media-server"}));
    QTRY_VERIFY((start(), isPluggedIn())
                && MicrophoneFinder::source()->kind == SoundSource::Kind::Card);
    QCOMPARE(MicrophoneFinder::source()->name, QByteArray());
    QVERIFY2(!finder.canBeUsed(), "the lab has no sound card");
    QVERIFY(labctl({"start-media-server"}));
    QTRY_VERIFY((start(), isPluggedIn())
                && MicrophoneFinder::source()->kind == SoundSource::Kind::Server);
}

QTEST_GUILESS_MAIN(TestMicrophoneFinder)
#include "tst_microphonefinder.moc"
