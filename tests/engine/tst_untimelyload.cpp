#include "CameraFrame.h"
#include "CameraPipeline.h"
#include "CapsModes.h"
#include "GstStart.h"

#include <QTest>

#include <array>
#include <atomic>
#include <dlfcn.h>
#include <sched.h>
#include <thread>

// The source that is being opened on this thread, and whether the thread is still to be late.
static thread_local GstElement *opened = nullptr;
static thread_local bool toBeLate = false;

static const CameraMode usual{CameraMode::Encoding::Raw, "UYVY", 1280, 720, 30, 1};
static const CameraMode quick{CameraMode::Encoding::Raw, "UYVY", 320, 240, 120, 1};

static std::unique_ptr<CameraPipeline> buildCamera(const char *name, const CameraMode &mode)
{
    const GstMiniHandle<GstCaps> offered(gst_caps_new_empty_simple("video/x-raw"));
    GstObjectHandle<GstElement> source =
        ownFloating(gst_element_factory_make("pipewiresrc", nullptr));
    if (!source)
        return nullptr;
    g_object_set(source.get(), "target-object", name, nullptr);
    opened = source.get();
    return CameraPipeline::build(std::move(source), fixedCaps(offered.get(), mode), mode);
}

static bool hasFormat(GstElement *source)
{
    const GstObjectHandle<GstPad> pad(gst_element_get_static_pad(source, "src"));
    return gst_pad_has_current_caps(pad.get());
}

// As when the processor is busy with others just now: the camera has begun meanwhile.
static void beLate()
{
    for (int i = 0; i < 30 && !hasFormat(opened); ++i)
        g_usleep(10000); // nothing to wait for: looked at again, on a thread without a loop
    if (!hasFormat(opened))
        return; // what is asked before the camera can begin
    toBeLate = false;
    g_usleep(200000); // nothing to wait for: the lateness itself
}

static void callGenuine(const char *name, void *argument)
{
    using Function = void (*)(void *);
    static void *const library = dlopen("libpipewire-0.3.so.0", RTLD_NOW);
    reinterpret_cast<Function>(dlsym(library, name))(argument);
}

// Takes the place of the media server's function of this name, which the source calls before it
// looks for what came.
extern "C" Q_DECL_EXPORT void pw_thread_loop_lock(void *loop)
{
    if (opened && toBeLate)
        beLate();
    callGenuine("pw_thread_loop_lock", loop);
}

// A computer with one processor, which two others want all the time. For this thread and those that
// it starts, as long as this exists.
class BusyProcessor {
public:
    BusyProcessor()
    {
        sched_getaffinity(0, sizeof m_usual, &m_usual);
        cpu_set_t one;
        CPU_ZERO(&one);
        int first = 0;
        while (first < CPU_SETSIZE - 1 && !CPU_ISSET(first, &m_usual))
            ++first;
        CPU_SET(first, &one);
        sched_setaffinity(0, sizeof one, &one);
        for (std::thread &other : m_others)
            other = std::thread([this] {
                while (!m_end) { }
            });
    }

    ~BusyProcessor()
    {
        m_end = true;
        for (std::thread &other : m_others)
            other.join();
        sched_setaffinity(0, sizeof m_usual, &m_usual);
    }

    BusyProcessor(const BusyProcessor &) = delete;
    BusyProcessor &operator=(const BusyProcessor &) = delete;

private:
    cpu_set_t m_usual{};
    std::atomic<bool> m_end{false};
    std::array<std::thread, 2> m_others;
};

// A camera of the media server on a computer that is busy just while it is opened or closed.
class TestUntimelyLoad : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanup() { opened = nullptr; }
    void aCameraThatBeganBeforeItWasAskedIsOpened_data();
    void aCameraThatBeganBeforeItWasAskedIsOpened();
    void noFrameIsToldOfAfterTheCameraWasClosed();
};

void TestUntimelyLoad::initTestCase()
{
    QVERIFY2(!qEnvironmentVariableIsEmpty("ORVANTA_LAB"), "this test must be run by tests/lab/lab");
    QVERIFY(startGstreamer());
}

void TestUntimelyLoad::aCameraThatBeganBeforeItWasAskedIsOpened_data()
{
    QTest::addColumn<bool>("late");
    QTest::newRow("in time") << false;
    QTest::newRow("late") << true;
}

void TestUntimelyLoad::aCameraThatBeganBeforeItWasAskedIsOpened()
{
    QFETCH(bool, late);
    const auto camera = buildCamera("usual", usual);
    toBeLate = late;
    QVERIFY(camera);
    QVERIFY(camera->play());
    QVERIFY2(!toBeLate, "nobody was late");
    QVERIFY(CameraFrame::fromSample(camera->nextSample(10000)));
    QCOMPARE(camera->failure(), QString());
}

// Of this many frames one is always just being told of. Memory that was given back is overwritten
// here, so that who still reads it does not get away.
void TestUntimelyLoad::noFrameIsToldOfAfterTheCameraWasClosed()
{
    QVERIFY(!qEnvironmentVariableIsEmpty("MALLOC_PERTURB_"));
    const BusyProcessor busy;
    for (int i = 0; i < 60; ++i) {
        const auto camera = buildCamera("quick", quick);
        QVERIFY(camera);
        QVERIFY(camera->play());
        QVERIFY(CameraFrame::fromSample(camera->nextSample(10000)));
    }
}

QTEST_GUILESS_MAIN(TestUntimelyLoad)
#include "tst_untimelyload.moc"
