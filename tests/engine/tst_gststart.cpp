#include "GstHandles.h"
#include "GstStart.h"

#include <QTest>

// What all of the process has of the media framework once it is started.
class TestGstStart : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QVERIFY(startGstreamer()); }
    void messagesThatNobodyReadsDoNotPileUp();
    void messagesThatAreReadStay();
    void noPlayerWaitsForANextMovie();
};

static void post(GstBus *bus, int count)
{
    for (int i = 0; i < count; ++i)
        QVERIFY(gst_bus_post(
            bus, gst_message_new_application(nullptr, gst_structure_new_empty("told"))));
}

static int pendingOf(GstBus *bus)
{
    int count = 0;
    while (const GstMiniHandle<GstMessage> message{gst_bus_pop(bus)})
        ++count;
    return count;
}

static void count(GstBus *, GstMessage *, gpointer told)
{
    ++*static_cast<int *>(told);
}

// As the movie player has it.
void TestGstStart::messagesThatNobodyReadsDoNotPileUp()
{
    const GstObjectHandle<GstBus> bus(gst_bus_new());
    gst_bus_set_sync_handler(bus.get(), gst_bus_sync_signal_handler, nullptr, nullptr);
    int told = 0;
    g_signal_connect(bus.get(), "sync-message", G_CALLBACK(count), &told);
    post(bus.get(), 100);
    QCOMPARE(told, 100);
    QCOMPARE(pendingOf(bus.get()), 1);
}

void TestGstStart::messagesThatAreReadStay()
{
    const GstObjectHandle<GstBus> bus(gst_bus_new());
    post(bus.get(), 100);
    QCOMPARE(pendingOf(bus.get()), 100);
}

static void beAsked(GstElement *, gpointer asked)
{
    ++*static_cast<int *>(asked);
}

// The movie player would let its thread wait in there, and be waited for when it is stopped.
void TestGstStart::noPlayerWaitsForANextMovie()
{
    const GstObjectHandle<GstElement> player(static_cast<GstElement *>(
        gst_object_ref_sink(gst_element_factory_make("playbin", nullptr))));
    QVERIFY(player);
    const GstObjectHandle<GstBus> bus(gst_element_get_bus(player.get()));
    gst_bus_set_sync_handler(bus.get(), gst_bus_sync_signal_handler, nullptr, nullptr);
    int asked = 0;
    g_signal_connect(player.get(), "about-to-finish", G_CALLBACK(beAsked), &asked);
    g_signal_emit_by_name(player.get(), "about-to-finish");
    QCOMPARE(asked, 1);
    QVERIFY(gst_element_set_state(player.get(), GST_STATE_READY) != GST_STATE_CHANGE_FAILURE);
    g_signal_emit_by_name(player.get(), "about-to-finish");
    QCOMPARE(asked, 1);
    gst_element_set_state(player.get(), GST_STATE_NULL);
}

QTEST_MAIN(TestGstStart)
#include "tst_gststart.moc"
