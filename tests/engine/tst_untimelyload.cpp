#include "CameraFrame.h"
#include "CameraPipeline.h"
#include "CapsModes.h"
#include "GstStart.h"

#include <QTest>

#include <dlfcn.h>

// The source that is being opened on this thread, and whether the thread is still to be late.
static thread_local GstElement *opened = nullptr;
static thread_local bool toBeLate = false;

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

// Takes the place of the media server's function of this name, which the source calls before it
// looks for what came.
extern "C" Q_DECL_EXPORT void pw_thread_loop_lock(void *loop)
{
    using Function = void (*)(void *);
    static const auto genuine = reinterpret_cast<Function>(
        dlsym(dlopen("libpipewire-0.3.so.0", RTLD_NOW), "pw_thread_loop_lock"));
    if (opened && toBeLate)
        beLate();
    genuine(loop);
}

// A camera of the media server on a computer that is busy while it is opened.
class TestLateStart : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanup() { opened = nullptr; }
    void aCameraThatBeganBeforeItWasAskedIsOpened_data();
    void aCameraThatBeganBeforeItWasAskedIsOpened();
};

void TestLateStart::initTestCase()
{
    QVERIFY2(!qEnvironmentVariableIsEmpty("ORVANTA_LAB"), "this test must be run by tests/lab/lab");
    QVERIFY(startGstreamer());
}

void TestLateStart::aCameraThatBeganBeforeItWasAskedIsOpened_data()
{
    QTest::addColumn<bool>("late");
    QTest::newRow("in time") << false;
    QTest::newRow("late") << true;
}

void TestLateStart::aCameraThatBeganBeforeItWasAskedIsOpened()
{
    QFETCH(bool, late);
    const CameraMode mode{CameraMode::Encoding::Raw, "UYVY", 1280, 720, 30, 1};
    const GstMiniHandle<GstCaps> offered(gst_caps_new_empty_simple("video/x-raw"));
    GstObjectHandle<GstElement> source =
        ownFloating(gst_element_factory_make("pipewiresrc", nullptr));
    QVERIFY(source);
    g_object_set(source.get(), "target-object", "first", nullptr);
    opened = source.get();
    toBeLate = late;
    const auto camera =
        CameraPipeline::build(std::move(source), fixedCaps(offered.get(), mode), mode);
    QVERIFY(camera);
    QVERIFY(camera->play());
    QVERIFY2(!toBeLate, "nobody was late");
    QVERIFY(CameraFrame::fromSample(camera->nextSample(10000)));
    QCOMPARE(camera->failure(), QString());
}

QTEST_GUILESS_MAIN(TestLateStart)
#include "tst_latestart.moc"
