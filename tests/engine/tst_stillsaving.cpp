#include "CameraFrame.h"
#include "GstStart.h"
#include "Patience.h"
#include "StillSaving.h"

#include <QDir>
#include <QFile>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

static const QSize size(1280, 720); // px; large enough to take a moment to write
static const int tolerance = 8; // between the converters of the screen and of files

// One colour in many brightnesses, so that it is not packed in no time.
static std::shared_ptr<CameraFrame> frame()
{
    GstVideoInfo info;
    gst_video_info_set_format(&info, GST_VIDEO_FORMAT_UYVY, guint(size.width()),
                              guint(size.height()));
    const GstMiniHandle<GstCaps> caps(gst_video_info_to_caps(&info));
    const GstMiniHandle<GstBuffer> buffer(
        gst_buffer_new_allocate(nullptr, GST_VIDEO_INFO_SIZE(&info), nullptr));
    GstMapInfo bytes;
    gst_buffer_map(buffer.get(), &bytes, GST_MAP_WRITE);
    quint32 noise = 1;
    for (gsize i = 0; i < bytes.size; ++i) {
        noise = noise * 1664525 + 1013904223;
        bytes.data[i] = i % 2 == 0 ? 90 : guint8(40 + (noise >> 25)); // chroma, luma
    }
    gst_buffer_unmap(buffer.get(), &bytes);
    return CameraFrame::fromSample(
        GstMiniHandle<GstSample>(gst_sample_new(buffer.get(), caps.get(), nullptr, nullptr)));
}

static bool isNear(QRgb left, QRgb right)
{
    return qAbs(qRed(left) - qRed(right)) <= tolerance
        && qAbs(qGreen(left) - qGreen(right)) <= tolerance
        && qAbs(qBlue(left) - qBlue(right)) <= tolerance;
}

static bool isWritten(const QSignalSpy &ended)
{
    return !ended.value(0).value(0).value<QImage>().isNull();
}

// A photo that is shown while its file is being written.
class TestStillSaving : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QVERIFY(startGstreamer()); }
    void init() { m_folder = std::make_unique<QTemporaryDir>(); }
    void theFileHoldsThePictureThatWasGiven();
    void theEndIsToldFromTheEventLoopOnce();
    void waitingForTheFileTellsItsEnd();
    void waitingForNothingTellsNothing();
    void oneFileIsWrittenAtATime();
    void theEndOfOneFileIsNotTakenForThatOfTheNext();
    void aFileThatCannotBeWrittenIsTold();
    void whatIsWrittenOutlivesWhoBeganIt();

private:
    QString path() const { return m_folder->filePath(QStringLiteral("photo.png")); }
    QStringList files() const
    {
        return QDir(m_folder->path()).entryList(QDir::Files | QDir::Hidden);
    }

    std::unique_ptr<QTemporaryDir> m_folder;
};

void TestStillSaving::theFileHoldsThePictureThatWasGiven()
{
    StillSaving saving;
    const QImage picture = saving.begin(frame(), path());
    QCOMPARE(picture.size(), size);
    QCOMPARE(picture.format(), QImage::Format_RGB32);
    const QSignalSpy ended(&saving, &StillSaving::ended);
    saving.finish();
    const QImage still(path());
    QCOMPARE(ended.value(0).value(0).value<QImage>(), still.convertToFormat(QImage::Format_RGB32));
    const QPoint middle = still.rect().center();
    QVERIFY(isNear(picture.pixel(middle), still.pixel(middle)));
    QCOMPARE(files(), QStringList{"photo.png"});
}

void TestStillSaving::theEndIsToldFromTheEventLoopOnce()
{
    StillSaving saving;
    QSignalSpy ended(&saving, &StillSaving::ended);
    QVERIFY(!saving.begin(frame(), path()).isNull());
    QVERIFY(saving.isRunning());
    QCOMPARE(ended.size(), 0);
    QVERIFY(ended.wait(20000));
    QVERIFY(!saving.isRunning());
    saving.finish();
    QCOMPARE(ended.size(), 1);
    QVERIFY(isWritten(ended));
    QVERIFY(QFile::exists(path()));
}

void TestStillSaving::waitingForTheFileTellsItsEnd()
{
    StillSaving saving;
    const QSignalSpy ended(&saving, &StillSaving::ended);
    saving.begin(frame(), path());
    saving.finish();
    QVERIFY(isWritten(ended));
    QVERIFY(QFile::exists(path()));
    QCoreApplication::sendPostedEvents(); // the thread's own word comes after that
    QCOMPARE(ended.size(), 1);
}

void TestStillSaving::waitingForNothingTellsNothing()
{
    StillSaving saving;
    const QSignalSpy ended(&saving, &StillSaving::ended);
    saving.finish();
    QCOMPARE(ended.size(), 0);
}

void TestStillSaving::oneFileIsWrittenAtATime()
{
    StillSaving saving;
    saving.begin(frame(), path());
    QVERIFY(saving.begin(frame(), m_folder->filePath(QStringLiteral("second.png"))).isNull());
    saving.finish();
    QCOMPARE(files(), QStringList{"photo.png"});
    QVERIFY(!saving.begin(frame(), m_folder->filePath(QStringLiteral("third.png"))).isNull());
    saving.finish();
    QCOMPARE(files(), (QStringList{"photo.png", "third.png"}));
}

void TestStillSaving::theEndOfOneFileIsNotTakenForThatOfTheNext()
{
    StillSaving saving;
    saving.begin(frame(), path());
    saving.finish(); // its thread's word is still to come
    QVERIFY(!saving.begin(frame(), m_folder->filePath(QStringLiteral("second.png"))).isNull());
    bool wasComplete = false;
    connect(&saving, &StillSaving::ended, this,
            [&] { wasComplete = files().contains(QStringLiteral("second.png")); });
    QTRY_VERIFY_WITH_TIMEOUT(!saving.isRunning(), 20000);
    QVERIFY(wasComplete);
}

void TestStillSaving::aFileThatCannotBeWrittenIsTold()
{
    StillSaving saving;
    QSignalSpy ended(&saving, &StillSaving::ended);
    QVERIFY(QDir(m_folder->path()).removeRecursively());
    QVERIFY(!saving.begin(frame(), path()).isNull());
    QVERIFY(ended.wait(20000));
    QCOMPARE(ended.size(), 1);
    QVERIFY(!isWritten(ended));
}

void TestStillSaving::whatIsWrittenOutlivesWhoBeganIt()
{
    auto saving = std::make_unique<StillSaving>();
    QVERIFY(!saving->begin(frame(), path()).isNull());
    saving.reset();
    QTRY_VERIFY_WITH_TIMEOUT(QFile::exists(path()), 20000);
    QCOMPARE(QImage(path()).size(), size);
}

QTEST_GUILESS_MAIN(TestStillSaving)
#include "tst_stillsaving.moc"
