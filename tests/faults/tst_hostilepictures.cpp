#include "CaptureFolder.h"
#include "CapturedPicture.h"
#include "FaultTrial.h"
#include "PastedPhotos.h"
#include "Patience.h"
#include "PictureListView.h"
#include "PictureWidget.h"

#include <QBuffer>
#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>
#include <QTest>
#include <QtEndian>

#include <sys/resource.h>
#include <sys/stat.h>
#include <zlib.h>

// Files among the captures that are no photos, or none any more.

static constexpr int longestStandstill = 2000; // ms

static QByteArray chunk(const QByteArray &name, const QByteArray &content)
{
    QByteArray bytes(4, '\0');
    qToBigEndian(quint32(content.size()), bytes.data());
    bytes += name + content;
    QByteArray check(4, '\0');
    const QByteArray checked = name + content;
    qToBigEndian(quint32(crc32(0, reinterpret_cast<const Bytef *>(checked.constData()),
                               uInt(checked.size()))),
                 check.data());
    return bytes + check;
}

static QByteArray head(quint32 width, quint32 height, char depth = 8, char colours = 2)
{
    QByteArray content(8, '\0');
    qToBigEndian(width, content.data());
    qToBigEndian(height, content.data() + 4);
    return "\x89PNG\r\n\x1a\n" + chunk("IHDR", content + depth + colours + QByteArray(3, '\0'));
}

static QByteArray packed(const QByteArray &bytes)
{
    return qCompress(bytes, 9).mid(4); // without the length that the toolkit puts before it
}

// All of one colour.
static QByteArray pixels(int bytesOfALine, int lines)
{
    return chunk("IDAT", packed(QByteArray((bytesOfALine + 1) * lines, '\0')));
}

static QByteArray end()
{
    return chunk("IEND", {});
}

// Texts of 8 MB each, which a decoder unpacks although nobody reads them.
static QByteArray bomb(int texts)
{
    const QByteArray text =
        chunk("zTXt", QByteArray("Comment\0\0", 9) + packed(QByteArray(7900000, 'a')));
    return head(64, 64) + text.repeated(texts) + pixels(64 * 3, 64) + end();
}

static QByteArray photo()
{
    QImage picture(120, 90, QImage::Format_RGB32);
    for (int y = 0; y < picture.height(); ++y)
        for (int x = 0; x < picture.width(); ++x)
            picture.setPixel(x, y, qRgb(x * 2, y * 2, x ^ y));
    QByteArray bytes;
    QBuffer buffer(&bytes);
    picture.save(&buffer, "PNG");
    return bytes;
}

static qint64 mostMemory() // bytes that the process ever had
{
    rusage usage = {};
    getrusage(RUSAGE_SELF, &usage);
    return qint64(usage.ru_maxrss) * 1024;
}

class TestHostilePictures : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void aFileThatIsNoPhotoIsBlackAndKeepsNobodyWaiting_data();
    void aFileThatIsNoPhotoIsBlackAndKeepsNobodyWaiting();
    void whatLiesBesideAPictureIsNotUnpacked();
    void aLargePictureDoesNotHoldTheWindow();
    void damageAnywhereInAPhotoDoesNoHarm();
    void noNameOfAPhotoIsTooStrangeForTheStrip();
    void whatIsTooLargeForTheClipboardIsPastedAsAFileAlone();

private:
    CaptureFolder m_folder;
};

void TestHostilePictures::aFileThatIsNoPhotoIsBlackAndKeepsNobodyWaiting_data()
{
    QTest::addColumn<QByteArray>("contents");
    const auto row = [](const char *name, const QByteArray &contents) {
        QTest::newRow(name) << contents;
    };
    row("empty", {});
    row("cut in its head", photo().left(20));
    row("says 30000 by 30000 pixels", head(30000, 30000) + pixels(30, 10) + end());
    row("says more pixels than there are numbers",
        head(0x7fffffff, 0x7fffffff) + pixels(30, 10) + end());
    row("says less than no pixels", head(0xffffffff, 0xffffffff) + pixels(30, 10) + end());
    row("a drawing that shows another file",
        "<svg xmlns='http://www.w3.org/2000/svg' xmlns:x='http://www.w3.org/1999/xlink' "
        "width='99' height='99'><image x:href='"
            + QFile::encodeName(CaptureFolder::path("pipe")) + "' width='9' height='9'/></svg>");
    row("a photo of another kind", "GIF89a" + QByteArray(40, '\1'));
    row("a photo with a megabyte behind each pixel",
        head(4, 4) + chunk("tEXt", QByteArray(20 << 20, 'x')) + pixels(12, 4) + end());
}

void TestHostilePictures::aFileThatIsNoPhotoIsBlackAndKeepsNobodyWaiting()
{
    QFETCH(QByteArray, contents);
    mkfifo(QFile::encodeName(CaptureFolder::path("pipe")).constData(), 0600);
    QVERIFY(CaptureFolder::saveBytes("photo1.png", contents));
    QElapsedTimer time;
    time.start();
    PictureWidget shown(nullptr);
    shown.Loadbmp("photo1.png");
    QVERIFY(!shown.hasPicture());
    shown.Loadbmp("pipe");
    QVERIFY(!shown.hasPicture());
    QVERIFY2(time.elapsed() < longestStandstill, qPrintable(QString::number(time.elapsed())));
}

// Two hundred megabytes of text in a small file; a file of a megabyte can hold a thousand.
void TestHostilePictures::whatLiesBesideAPictureIsNotUnpacked()
{
    const QByteArray contents = bomb(30);
    QVERIFY(contents.size() < 1 << 20);
    QVERIFY(CaptureFolder::saveBytes("photo1.png", contents));
    const qint64 before = mostMemory();
    QCOMPARE(CapturedPicture::load("photo1.png").size(), QSize(64, 64));
    const qint64 taken = mostMemory() - before;
    QVERIFY2(taken < 100 << 20, qPrintable(QString::number(taken)));
}

void TestHostilePictures::aLargePictureDoesNotHoldTheWindow()
{
    // Half a megabyte; to decode it takes some seconds.
    QVERIFY(CaptureFolder::saveBytes("photo1.png",
                                     head(7000, 7000, 8, 6) + pixels(7000 * 4, 7000) + end()));
    QVERIFY(CapturedPicture::isLarge("photo1.png"));
    PictureWidget shown(nullptr);
    shown.resize(400, 300);
    shown.Loadbmp("photo1.png");
    QVERIFY(!shown.hasPicture()); // it comes
    QTRY_VERIFY_WITH_TIMEOUT(shown.hasPicture(), 60000);
    QVERIFY(CaptureFolder::saveBytes("photo2.png", photo()));
    shown.Loadbmp("photo2.png");
    QVERIFY(shown.hasPicture());
    shown.Loadbmp("photo1.png");
    shown.reload();
    QTRY_VERIFY_WITH_TIMEOUT(shown.hasPicture(), 60000);
}

void TestHostilePictures::damageAnywhereInAPhotoDoesNoHarm()
{
    const QByteArray whole = photo();
    FaultTrial trial("a photo's file is damaged", 400, 20000);
    while (trial.next()) {
        QByteArray bytes = whole;
        const int region = trial.upTo(bytes.size() - 1);
        if (trial.upTo(3) == 0)
            bytes.truncate(region);
        else
            for (int at = region; at < qMin(bytes.size(), region + 1 + trial.upTo(32)); ++at)
                bytes[at] = char(trial.upTo(255));
        QVERIFY(CaptureFolder::saveBytes("photo1.png", bytes));
        QElapsedTimer time;
        time.start();
        const QSize size = CapturedPicture::load("photo1.png").size();
        trial.addStandstill(time.elapsed());
        QVERIFY(qint64(size.width()) * size.height() <= 50'000'000);
    }
}

void TestHostilePictures::noNameOfAPhotoIsTooStrangeForTheStrip()
{
    const QStringList names = {"photo 1.png",
                               "photo'\"`$(x).png",
                               "photo%1%n%s.png",
                               "photo#a?b.png",
                               "photo\nline.png",
                               "photo<b>&amp;.png",
                               QString::fromUtf8("photo\u202e\u05e9.png"),
                               "photo" + QString(246, 'x') + ".png",
                               "photo\\..png"};
    for (const QString &name : names)
        QVERIFY2(CaptureFolder::save(name, QSize(40, 30), Qt::red), qPrintable(name));
    PictureListView strip(nullptr);
    strip.resize(600, 120);
    strip.AddPicture(names);
    strip.show();
    QCOMPARE(strip.count(), names.size());
    for (int i = 0; i < strip.count(); ++i) {
        QTRY_VERIFY2(!strip.item(i)->icon().isNull(), qPrintable(names[i]));
        strip.clearSelection();
        strip.item(i)->setSelected(true);
        QCOMPARE(strip.selectedNames(), QStringList{names[i]});
    }
}

void TestHostilePictures::whatIsTooLargeForTheClipboardIsPastedAsAFileAlone()
{
    QVERIFY(CaptureFolder::saveBytes("photo1.png", photo()));
    QVERIFY(QFile::resize(CaptureFolder::path("photo1.png"), 300 << 20));
    PastedPhotos pasted;
    QElapsedTimer time;
    time.start();
    pasted.offer({CaptureFolder::path("photo1.png")});
    QVERIFY2(time.elapsed() < longestStandstill, qPrintable(QString::number(time.elapsed())));
    const QMimeData *offered = QGuiApplication::clipboard()->mimeData();
    QVERIFY(offered && offered->hasUrls());
    QVERIFY(!offered->hasFormat("image/png"));
}

QTEST_MAIN(TestHostilePictures)
#include "tst_hostilepictures.moc"
