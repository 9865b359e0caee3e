#include "GstHandles.h"
#include "GstStart.h"
#include "Patience.h"

#include <QTemporaryFile>
#include <QTest>
#include <QUrl>

#include <atomic>

// What all of the process has of the media framework once it is started.
class TestGstStart : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QVERIFY(startGstreamer()); }
    void messagesThatNobodyReadsDoNotPileUp();
    void messagesThatAreReadStay();
    void noPlayerWaitsForANextMovie();
    void aMovieThatNeverBeganIsGoneBeforeTheNext();
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

// As the movie player is.
static GstObjectHandle<GstElement> makePlayer()
{
    GstObjectHandle<GstElement> player = ownFloating(gst_element_factory_make("playbin", nullptr));
    const GstObjectHandle<GstBus> bus(player ? gst_element_get_bus(player.get()) : nullptr);
    if (bus)
        gst_bus_set_sync_handler(bus.get(), gst_bus_sync_signal_handler, nullptr, nullptr);
    return player;
}

// The movie player would let its thread wait in there, and be waited for when it is stopped.
void TestGstStart::noPlayerWaitsForANextMovie()
{
    const GstObjectHandle<GstElement> player = makePlayer();
    QVERIFY(player);
    int asked = 0;
    g_signal_connect(player.get(), "about-to-finish", G_CALLBACK(beAsked), &asked);
    g_signal_emit_by_name(player.get(), "about-to-finish");
    QCOMPARE(asked, 1);
    QVERIFY(gst_element_set_state(player.get(), GST_STATE_READY) != GST_STATE_CHANGE_FAILURE);
    g_signal_emit_by_name(player.get(), "about-to-finish");
    QCOMPARE(asked, 1);
    gst_element_set_state(player.get(), GST_STATE_NULL);
}

static void countParts(const GValue *reader, gpointer parts)
{
    *static_cast<int *>(parts) += GST_BIN_NUMCHILDREN(g_value_get_object(reader));
}

// What is there to read movies with: sources, demultiplexers and decoders.
static int partsOfReaders(GstElement *player)
{
    int parts = 0;
    GstIterator *readers =
        gst_bin_iterate_all_by_element_factory_name(GST_BIN(player), "uridecodebin");
    gst_iterator_foreach(readers, countParts, &parts);
    gst_iterator_free(readers);
    return parts;
}

static void countError(GstBus *, GstMessage *, gpointer errors)
{
    ++*static_cast<std::atomic<int> *>(errors);
}

// It would be started again with the next one, which does not begin where it fails in that moment.
void TestGstStart::aMovieThatNeverBeganIsGoneBeforeTheNext()
{
    QTemporaryFile damaged;
    QVERIFY(damaged.open() && damaged.write("no movie at all") > 0 && damaged.flush());
    const QByteArray uri = QUrl::fromLocalFile(damaged.fileName()).toEncoded();
    const GstObjectHandle<GstElement> player = makePlayer();
    QVERIFY(player);
    std::atomic<int> errors{0};
    const GstObjectHandle<GstBus> bus(gst_element_get_bus(player.get()));
    g_signal_connect(bus.get(), "sync-message::error", G_CALLBACK(countError), &errors);
    gst_element_set_state(player.get(), GST_STATE_READY);
    for (int movie = 0; movie < 4; ++movie) { // the player has two readers in turn
        const int before = errors;
        g_object_set(player.get(), "uri", uri.constData(), nullptr);
        QCOMPARE(partsOfReaders(player.get()), 0);
        gst_element_set_state(player.get(), GST_STATE_PLAYING);
        QTRY_VERIFY(errors > before);
        QVERIFY(partsOfReaders(player.get()) > 0);
        gst_element_set_state(player.get(), GST_STATE_READY);
    }
    gst_element_set_state(player.get(), GST_STATE_NULL);
}

QTEST_MAIN(TestGstStart)
#include "tst_gststart.moc"
