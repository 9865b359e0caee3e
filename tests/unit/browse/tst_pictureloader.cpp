#include "CaptureFolder.h"
#include "CapturedPicture.h"
#include "Patience.h"
#include "PictureLoader.h"

#include <QElapsedTimer>
#include <QPixmap>

#include <memory>

namespace {

// Every pixel different from its neighbours, so that a scaling that picks others shows.
QImage speckled(QSize size, QImage::Format format)
{
    QImage picture(size, QImage::Format_ARGB32);
    for (int y = 0; y < size.height(); ++y)
        for (int x = 0; x < size.width(); ++x)
            picture.setPixel(x, y, qRgba(x * 7 % 256, y * 5 % 256, (x + y) % 256, 80 + x % 100));
    return picture.convertToFormat(format);
}

QString photo(int number)
{
    return QString("photo%1.png").arg(number);
}

} // namespace

class TestPictureLoader : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void pixelsAreThoseOfAPixmapScaledOneByOne_data();
    void pixelsAreThoseOfAPixmapScaledOneByOne();
    void everyPictureIsDeliveredOnce();
    void aKnownPictureIsDeliveredAtOnce();
    void aPictureWrittenAgainIsReadAgain();
    void aPictureThatMayStillBeWrittenIsNotKept();
    void anotherSizeIsAnotherPicture();
    void whatCannotBeReadIsDeliveredAsNull_data();
    void whatCannotBeReadIsDeliveredAsNull();
    void aPhotoJustShownIsKnownInTheUsualSizes();
    void nothingIsReadToBePrepared();
    void aReceiverThatForgetsGetsNothingMore();
    void aReceiverThatIsGoneGetsNothing();
    void aLoaderCanGoWhileItsWorkersRead();
    void whatIsKeptIsBounded();
    void theWindowIsNotHeldUpWhileFiftyPhotosAreRead();

private:
    CaptureFolder m_folder;
};

void TestPictureLoader::pixelsAreThoseOfAPixmapScaledOneByOne_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<int>("format");
    QTest::addColumn<QSize>("fit");
    const QSize thumbnail(161, 124);
    QTest::newRow("wide") << QSize(1280, 720) << int(QImage::Format_RGB32) << thumbnail;
    QTest::newRow("4:3") << QSize(640, 480) << int(QImage::Format_RGB32) << thumbnail;
    QTest::newRow("upright") << QSize(480, 640) << int(QImage::Format_RGB32) << thumbnail;
    QTest::newRow("enlarged") << QSize(64, 48) << int(QImage::Format_RGB32) << QSize(900, 500);
    QTest::newRow("half transparent") << QSize(640, 480) << int(QImage::Format_ARGB32) << thumbnail;
    QTest::newRow("grey") << QSize(640, 480) << int(QImage::Format_Grayscale8) << thumbnail;
    QTest::newRow("few colours") << QSize(640, 480) << int(QImage::Format_Indexed8) << thumbnail;
    QTest::newRow("black and white") << QSize(640, 480) << int(QImage::Format_Mono) << thumbnail;
    QTest::newRow("deep colours") << QSize(640, 480) << int(QImage::Format_RGBA64) << thumbnail;
    QTest::newRow("a line") << QSize(900, 1) << int(QImage::Format_RGB32) << thumbnail;
}

void TestPictureLoader::pixelsAreThoseOfAPixmapScaledOneByOne()
{
    QFETCH(QSize, size);
    QFETCH(int, format);
    QFETCH(QSize, fit);
    QVERIFY(CaptureFolder::save(photo(1), speckled(size, QImage::Format(format))));
    const QImage expected = QPixmap(CaptureFolder::path(photo(1)))
                                .scaled(fit, Qt::KeepAspectRatio, Qt::FastTransformation)
                                .toImage();
    PictureLoader loader;
    QImage delivered;
    loader.later(photo(1), fit, this, [&](const QImage &picture) { delivered = picture; });
    QTRY_VERIFY(!delivered.isNull() || expected.isNull());
    QCOMPARE(QPixmap::fromImage(delivered).toImage(), expected);
    QCOMPARE(QPixmap::fromImage(loader.now(photo(1), fit)).toImage(), expected);
    QCOMPARE(QPixmap::fromImage(PictureLoader().now(photo(1), fit)).toImage(), expected);
}

void TestPictureLoader::everyPictureIsDeliveredOnce()
{
    for (int i = 0; i < 30; ++i)
        QVERIFY(CaptureFolder::save(photo(i), QSize(100 + i, 50), Qt::red));
    PictureLoader loader;
    QHash<int, int> deliveries;
    for (int i = 0; i < 30; ++i)
        loader.later(photo(i), QSize(200, 200), this, [&deliveries, i](const QImage &picture) {
            if (picture.size() == QSize(100 + i, 50).scaled(200, 200, Qt::KeepAspectRatio))
                ++deliveries[i];
        });
    QTRY_COMPARE(deliveries.size(), 30);
    QTest::qWait(20); // nothing to wait for: a delivery that must not come
    for (int i = 0; i < 30; ++i)
        QCOMPARE(deliveries.value(i), 1);
}

void TestPictureLoader::aKnownPictureIsDeliveredAtOnce()
{
    QVERIFY(CaptureFolder::save(photo(1), QSize(64, 48), Qt::green));
    QTest::qWait(50); // nothing to wait for: the file system's clock has to tick
    PictureLoader loader;
    int deliveries = 0;
    const auto count = [&](const QImage &) { ++deliveries; };
    loader.later(photo(1), QSize(32, 32), this, count);
    QCOMPARE(deliveries, 0);
    QTRY_COMPARE(deliveries, 1);
    loader.later(photo(1), QSize(32, 32), this, count);
    QCOMPARE(deliveries, 2);
}

void TestPictureLoader::aPictureWrittenAgainIsReadAgain()
{
    PictureLoader loader;
    for (const QColor &color : {QColor(Qt::red), QColor(Qt::cyan), QColor(Qt::red)}) {
        QVERIFY(CaptureFolder::save(photo(1), QSize(20, 20), color));
        QCOMPARE(loader.now(photo(1), QSize(10, 10)).pixelColor(5, 5), color);
        QImage delivered;
        loader.later(photo(1), QSize(10, 10), this, [&](const QImage &p) { delivered = p; });
        QTRY_VERIFY(!delivered.isNull());
        QCOMPARE(delivered.pixelColor(5, 5), color);
    }
}

// Two writings within one tick of the file system's clock cannot be told apart by their time. The
// tick is gone on a busy machine before the first picture has come; then it is tried once more.
void TestPictureLoader::aPictureThatMayStillBeWrittenIsNotKept()
{
    const auto write = [](const QColor &color, const QDateTime &moment) {
        QImage picture(20, 20, QImage::Format_RGB32);
        picture.fill(color);
        QFile file(CaptureFolder::path(photo(1)));
        return picture.save(file.fileName(), "BMP") // of one length, whatever the colour
            && file.open(QIODevice::ReadWrite)
            && file.setFileTime(moment, QFileDevice::FileModificationTime);
    };
    PictureLoader loader;
    const auto delivered = [&loader, this] {
        QImage picture;
        loader.later(photo(1), QSize(10, 10), this, [&](const QImage &image) { picture = image; });
        return QTest::qWaitFor([&] { return !picture.isNull(); }) ? picture.pixelColor(5, 5)
                                                                  : QColor();
    };
    int inTime = 0;
    QElapsedTimer time;
    time.start();
    while (inTime == 0 && time.elapsed() < 30000) {
        const QDateTime moment = QDateTime::currentDateTime().addMSecs(15);
        QVERIFY(write(Qt::red, moment));
        QCOMPARE(delivered(), QColor(Qt::red));
        const bool isInTime = QDateTime::currentDateTime() < moment.addMSecs(15);
        QVERIFY(write(Qt::cyan, moment));
        const QColor second = delivered();
        if (isInTime) {
            QCOMPARE(second, QColor(Qt::cyan));
            ++inTime;
        }
    }
    QVERIFY2(inTime > 0, "the machine was never quick enough");
}

void TestPictureLoader::anotherSizeIsAnotherPicture()
{
    QVERIFY(CaptureFolder::save(photo(1), QSize(64, 48), Qt::green));
    PictureLoader loader;
    QCOMPARE(loader.now(photo(1), QSize(32, 32)).size(), QSize(32, 24));
    QCOMPARE(loader.now(photo(1), QSize(16, 16)).size(), QSize(16, 12));
}

void TestPictureLoader::whatCannotBeReadIsDeliveredAsNull_data()
{
    QTest::addColumn<QByteArray>("content");
    QVERIFY(CaptureFolder::save(photo(1), speckled(QSize(200, 200), QImage::Format_RGB32)));
    QFile whole(CaptureFolder::path(photo(1)));
    QVERIFY(whole.open(QIODevice::ReadOnly));
    const QByteArray bytes = whole.readAll();
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("a text") << QByteArray("This is no picture.\n");
    QTest::newRow("cut short") << bytes.left(60);
    // Claims 10000 by 10000 points.
    QByteArray huge = bytes;
    huge.replace(16, 8, QByteArray::fromHex("0000271000002710"));
    QTest::newRow("100 megapixels") << huge;
}

void TestPictureLoader::whatCannotBeReadIsDeliveredAsNull()
{
    QFETCH(QByteArray, content);
    QVERIFY(CaptureFolder::saveBytes("photobad.png", content));
    PictureLoader loader;
    int deliveries = 0;
    QImage delivered(1, 1, QImage::Format_RGB32);
    loader.later("photobad.png", QSize(32, 32), this, [&](const QImage &picture) {
        delivered = picture;
        ++deliveries;
    });
    QTRY_COMPARE(deliveries, 1);
    QVERIFY(delivered.isNull());
    QVERIFY(QFile::exists(CaptureFolder::path("photobad.png")));
}

void TestPictureLoader::aPhotoJustShownIsKnownInTheUsualSizes()
{
    const QImage taken = speckled({640, 480}, QImage::Format_RGB888);
    QVERIFY(CaptureFolder::save(photo(1), taken));
    CapturedPicture::remember(photo(1), taken);
    PictureLoader loader;
    loader.setUsualSizes({{161, 124}, {341, 192}});
    loader.prepare(photo(1));
    for (const QSize fit : {QSize(161, 124), QSize(341, 192)}) {
        QImage delivered;
        loader.later(photo(1), fit, this, [&](const QImage &picture) { delivered = picture; });
        const QPixmap expected = QPixmap(CaptureFolder::path(photo(1)))
                                     .scaled(fit, Qt::KeepAspectRatio, Qt::FastTransformation);
        QCOMPARE(delivered, expected.toImage());
    }
}

void TestPictureLoader::nothingIsReadToBePrepared()
{
    QVERIFY(CaptureFolder::save(photo(1), QSize(64, 48), Qt::green));
    QVERIFY(CaptureFolder::save(photo(2), QSize(64, 48), Qt::red));
    QTest::qWait(50); // nothing to wait for: the file system's clock has to tick
    CapturedPicture::whole(photo(2));
    PictureLoader loader;
    loader.setUsualSizes({{16, 16}});
    loader.prepare(photo(1));
    QImage delivered;
    loader.later(photo(1), {16, 16}, this, [&](const QImage &picture) { delivered = picture; });
    QVERIFY(delivered.isNull());
    QTRY_VERIFY(!delivered.isNull());
}

void TestPictureLoader::aReceiverThatForgetsGetsNothingMore()
{
    for (int i = 0; i < 20; ++i)
        QVERIFY(CaptureFolder::save(photo(i), QSize(300, 200), Qt::blue));
    PictureLoader loader;
    QObject left;
    int toLeft = 0;
    int toThis = 0;
    for (int i = 0; i < 20; ++i) {
        loader.later(
            photo(i), QSize(30, 30), &left, [&](const QImage &) { ++toLeft; });
        loader.later(photo(i), QSize(40, 40), this, [&](const QImage &) { ++toThis; });
    }
    loader.forget(&left);
    QTRY_COMPARE(toThis, 20);
    QTest::qWait(20); // nothing to wait for: a delivery that must not come
    QCOMPARE(toLeft, 0);
}

void TestPictureLoader::aReceiverThatIsGoneGetsNothing()
{
    QVERIFY(CaptureFolder::save(photo(1), QSize(300, 200), Qt::blue));
    PictureLoader loader;
    bool isDelivered = false;
    auto gone = std::make_unique<QObject>();
    loader.later(photo(1), QSize(30, 30), gone.get(), [&](const QImage &) { isDelivered = true; });
    gone.reset();
    bool isThere = false;
    loader.later(photo(1), QSize(40, 40), this, [&](const QImage &) { isThere = true; });
    QTRY_VERIFY(isThere);
    QTest::qWait(20); // nothing to wait for: a delivery that must not come
    QVERIFY(!isDelivered);
}

void TestPictureLoader::aLoaderCanGoWhileItsWorkersRead()
{
    for (int i = 0; i < 8; ++i)
        QVERIFY(CaptureFolder::save(photo(i), QSize(900, 700), Qt::blue));
    auto loader = std::make_unique<PictureLoader>();
    int deliveries = 0;
    for (int i = 0; i < 8; ++i)
        loader->later(photo(i), QSize(30, 30), this, [&](const QImage &) { ++deliveries; });
    loader.reset();
    QTest::qWait(20); // nothing to wait for: a delivery that must not come
    QCOMPARE(deliveries, 0);
}

void TestPictureLoader::whatIsKeptIsBounded()
{
    // 3000 by 1500 points take 18 MB: with the second of them the first has to go.
    QVERIFY(CaptureFolder::save(photo(1), QSize(40, 20), Qt::blue));
    QVERIFY(CaptureFolder::save(photo(2), QSize(40, 20), Qt::red));
    QTest::qWait(50); // nothing to wait for: the file system's clock has to tick
    PictureLoader loader;
    int deliveries = 0;
    const auto count = [&](const QImage &) { ++deliveries; };
    loader.now(photo(1), QSize(3000, 1500));
    loader.later(photo(1), QSize(3000, 1500), this, count);
    QCOMPARE(deliveries, 1);
    loader.now(photo(2), QSize(3000, 1500));
    loader.later(photo(1), QSize(3000, 1500), this, count);
    QCOMPARE(deliveries, 1);
    QTRY_COMPARE(deliveries, 2);
}

void TestPictureLoader::theWindowIsNotHeldUpWhileFiftyPhotosAreRead()
{
    const QImage picture = speckled(QSize(1280, 720), QImage::Format_RGB32);
    QVERIFY(picture.save(CaptureFolder::path("first.png"), "PNG", 100));
    for (int i = 0; i < 50; ++i) {
        QFile::remove(CaptureFolder::path(photo(i)));
        QVERIFY(QFile::copy(CaptureFolder::path("first.png"), CaptureFolder::path(photo(i))));
    }
    PictureLoader loader;
    int deliveries = 0;
    QElapsedTimer time;
    time.start();
    for (int i = 0; i < 50; ++i)
        loader.later(photo(i), QSize(161, 124), this, [&](const QImage &) { ++deliveries; });
    const qint64 asked = time.elapsed();
    QCOMPARE(deliveries, 0);
    QTRY_COMPARE_WITH_TIMEOUT(deliveries, 50, 60000);
    const qint64 done = time.elapsed();
    // A window that read them itself would have been away for all of the time.
    QVERIFY2(asked * 10 < done, qPrintable(QString("%1 of %2 ms").arg(asked).arg(done)));
}

QTEST_MAIN(TestPictureLoader)
#include "tst_pictureloader.moc"
