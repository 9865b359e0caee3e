#include "CaptureFolder.h"
#include "CapturedPicture.h"

#include <QTest>

class TestCapturedPicture : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void aPhotoIsLoadedPixelForPixel();
    void aPhotoWrittenAgainIsNotRemembered();
    void aPhotoJustTakenIsShownWithoutBeingRead();
    void whatIsNoPictureIsNull_data();
    void whatIsNoPictureIsNull();
    void aPictureLargerThanAnyCamerasIsRefused();

private:
    CaptureFolder m_folder;
};

void TestCapturedPicture::aPhotoIsLoadedPixelForPixel()
{
    QImage picture(333, 222, QImage::Format_RGB32);
    for (int y = 0; y < picture.height(); ++y)
        for (int x = 0; x < picture.width(); ++x)
            picture.setPixel(x, y, qRgb(x % 256, y, (x * y) % 256));
    QVERIFY(CaptureFolder::save("photo1.png", picture));
    const QImage loaded = CapturedPicture::load("photo1.png").toImage();
    QCOMPARE(loaded.convertToFormat(QImage::Format_RGB32), picture);
}

void TestCapturedPicture::aPhotoWrittenAgainIsNotRemembered()
{
    QVERIFY(CaptureFolder::save("photo1.png", QSize(20, 10), Qt::red));
    QCOMPARE(CapturedPicture::load("photo1.png").toImage().pixelColor(5, 5), QColor(Qt::red));
    QVERIFY(CaptureFolder::save("photo1.png", QSize(20, 10), Qt::cyan));
    QCOMPARE(CapturedPicture::load("photo1.png").toImage().pixelColor(5, 5), QColor(Qt::cyan));
}

// The file has another colour than what is remembered of it, so that a reading shows.
void TestCapturedPicture::aPhotoJustTakenIsShownWithoutBeingRead()
{
    const auto shown = [] {
        return CapturedPicture::load("photo1.png").toImage().pixelColor(5, 5);
    };
    QImage taken(20, 10, QImage::Format_RGB888);
    taken.fill(Qt::cyan);
    QVERIFY(CaptureFolder::save("photo1.png", QSize(20, 10), Qt::red));
    CapturedPicture::remember("photo1.png", taken);
    QCOMPARE(shown(), QColor(Qt::cyan));
    CapturedPicture::remember("photo1.png", QImage()); // nothing to remember
    QCOMPARE(shown(), QColor(Qt::cyan));
    QTest::qWait(50); // nothing to wait for: the file system's clock has to tick
    QVERIFY(CaptureFolder::save("photo1.png", QSize(20, 10), Qt::green));
    QCOMPARE(shown(), QColor(Qt::green));
    QVERIFY(CaptureFolder::save("photo2.png", QSize(20, 10), Qt::red));
    QCOMPARE(CapturedPicture::load("photo2.png").toImage().pixelColor(5, 5), QColor(Qt::red));
}

void TestCapturedPicture::whatIsNoPictureIsNull_data()
{
    QTest::addColumn<QString>("name");
    QVERIFY(CaptureFolder::save("whole.png", QSize(200, 200), Qt::red));
    QFile whole(CaptureFolder::path("whole.png"));
    QVERIFY(whole.open(QIODevice::ReadOnly));
    const QByteArray bytes = whole.readAll();
    QVERIFY(CaptureFolder::saveBytes("cut.png", bytes.left(60)));
    QVERIFY(CaptureFolder::saveBytes("empty.png", {}));
    QVERIFY(CaptureFolder::saveBytes("text.png", "This is no picture.\n"));

    QTest::newRow("no such file") << "missing.png";
    QTest::newRow("no name at all") << "";
    QTest::newRow("the folder itself") << ".";
    QTest::newRow("an empty file") << "empty.png";
    QTest::newRow("a text") << "text.png";
    QTest::newRow("cut short") << "cut.png";
}

void TestCapturedPicture::whatIsNoPictureIsNull()
{
    QFETCH(QString, name);
    QVERIFY(CapturedPicture::load(name).isNull());
}

void TestCapturedPicture::aPictureLargerThanAnyCamerasIsRefused()
{
    QImage huge(10001, 5000, QImage::Format_Mono);
    huge.fill(1);
    QVERIFY(CaptureFolder::save("huge.png", huge));
    QVERIFY(CapturedPicture::load("huge.png").isNull());
}

QTEST_MAIN(TestCapturedPicture)
#include "tst_capturedpicture.moc"
