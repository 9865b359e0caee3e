#include "DemoDesk.h"
#include "DemoScene.h"
#include "DemoSource.h"

#include <QTest>

#include <algorithm>
#include <array>

static const qint64 begin = 85000000000 * qint64(DemoDrawing::cycle); // ms since 1970, of a page
static const QRect clockFace(DemoPlaces::clockX - 100, DemoPlaces::clockY - 100, 200, 200);
static const QRect notebook(1000, 240, 400, 600); // the middle of its page

/// What the demonstration camera shows and its microphone hears, moment by moment.
class TestDemoScene : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void aPictureInUsedMemoryIsThatInNewMemory();
    void aPictureThatIsHeldDoesNotChange();
    void theHandJumpsWithEachSecond();
    void thePencilDrawsAndBeginsAnew();
    void itsTextIsSharp();
    void itsColoursAreTheDesks();
    void theMicrophoneTicksAsEachSecondBegins();

private:
    using Picture = std::shared_ptr<DemoScene::Picture>;

    static QByteArray bytesOf(const Picture &picture);
    static QByteArray partOf(const Picture &picture, QRect place);
    static int darkPixels(const Picture &picture);
    Picture at(qint64 milliseconds);

    DemoScene m_scene;
};

QByteArray TestDemoScene::bytesOf(const Picture &picture)
{
    return QByteArray(reinterpret_cast<const char *>(picture->canvas.pixels()),
                      int(picture->canvas.size()));
}

// Its luma.
QByteArray TestDemoScene::partOf(const Picture &picture, QRect place)
{
    const auto *pixels = reinterpret_cast<const char *>(picture->canvas.pixels());
    QByteArray part;
    for (int y = place.top(); y <= place.bottom(); ++y)
        part.append(pixels + qint64(y) * DemoPlaces::width + place.left(), place.width());
    return part;
}

int TestDemoScene::darkPixels(const Picture &picture)
{
    const QByteArray page = partOf(picture, notebook);
    return int(std::count_if(page.begin(), page.end(), [](char luma) { return uchar(luma) < 90; }));
}

// Seen, and given back at once.
TestDemoScene::Picture TestDemoScene::at(qint64 milliseconds)
{
    Picture picture = m_scene.at(begin + milliseconds);
    picture->isFree = true;
    return picture;
}

void TestDemoScene::aPictureInUsedMemoryIsThatInNewMemory()
{
    for (const qint64 second : {4, 12, 19, 21}) { // strokes, strokes, fading, a new page
        const Picture former = m_scene.at(begin + second * 1000); // two take turns
        for (int i = 1; i <= 40; ++i) {
            if (i == 20)
                former->isFree = true;
            at(second * 1000 + i * qint64(33));
        }
        const qint64 moment = begin + second * 1000 + 1400;
        const Picture used = m_scene.at(moment);
        const std::array<Picture, 3> held{m_scene.at(moment), m_scene.at(moment),
                                          m_scene.at(moment)};
        QVERIFY2(bytesOf(held.back()) == bytesOf(used), qPrintable(QString::number(second)));
        used->isFree = true;
        for (const Picture &picture : held)
            picture->isFree = true;
    }
}

void TestDemoScene::aPictureThatIsHeldDoesNotChange()
{
    const Picture held = m_scene.at(begin + 3000);
    const QByteArray before = bytesOf(held);
    for (int i = 1; i < 60; ++i)
        QVERIFY(at(3000 + i * 33) != held);
    QVERIFY(bytesOf(held) == before);
    held->isFree = true;
}

void TestDemoScene::theHandJumpsWithEachSecond()
{
    const QByteArray first = partOf(at(5000), clockFace);
    QVERIFY(partOf(at(5999), clockFace) == first);
    QVERIFY(partOf(at(6000), clockFace) != first);
}

void TestDemoScene::thePencilDrawsAndBeginsAnew()
{
    const int empty = darkPixels(at(100));
    const int some = darkPixels(at(6000));
    const int all = darkPixels(at(18500));
    QVERIFY2(some > empty + 1000 && all > some + 1000,
             qPrintable(QString("%1, %2, %3").arg(empty).arg(some).arg(all)));
    QCOMPARE(darkPixels(at(20100)), empty);
}

// Between two neighbours it goes from ink to paper: nothing was enlarged or smoothed.
void TestDemoScene::itsTextIsSharp()
{
    const QByteArray text = partOf(at(1000), QRect(160, 200, 600, 140));
    int steps = 0;
    for (int i = 1; i < text.size(); ++i)
        steps += qAbs(int(uchar(text[i])) - int(uchar(text[i - 1]))) > 120;
    QVERIFY2(steps > 1500, qPrintable(QString::number(steps)));
}

void TestDemoScene::itsColoursAreTheDesks()
{
    const QImage desk = demoDesk();
    const Picture picture = at(1000);
    const uchar *pixels = picture->canvas.pixels();
    for (const QPoint point : {QPoint(1600, 600), QPoint(1700, 744), QPoint(300, 740)}) {
        const QColor colour = desk.pixelColor(point);
        const int size = DemoPlaces::width * DemoPlaces::height;
        const int redPlane = size + size / 4;
        const int chroma = point.y() / 2 * DemoPlaces::width / 2 + point.x() / 2;
        const double luma = (pixels[point.y() * DemoPlaces::width + point.x()] - 16) / 219.0;
        const double blue = luma + 1.8556 * (pixels[size + chroma] - 128) / 224.0;
        const double red = luma + 1.5748 * (pixels[redPlane + chroma] - 128) / 224.0;
        QVERIFY2(qAbs(red - colour.redF()) < 0.03 && qAbs(blue - colour.blueF()) < 0.03,
                 qPrintable(QString("%1: %2 %3").arg(colour.name()).arg(red).arg(blue)));
    }
}

void TestDemoScene::theMicrophoneTicksAsEachSecondBegins()
{
    static constexpr int rate = 48000; // samples a second
    QVector<qint16> samples(3 * rate);
    DemoSource::tick(samples.data(), samples.size(), begin * 1000 + 300000);
    const auto loudest = [&samples](double from, double to) { // s
        int most = 0;
        for (int i = int(from * rate); i < int(to * rate); ++i)
            most = qMax(most, qAbs(int(samples[i])));
        return most;
    };
    for (const double second : {0.7, 1.7, 2.7}) {
        QCOMPARE(loudest(second - 0.5, second - 0.001), 0);
        QVERIFY(loudest(second, second + 0.005) > 3000);
    }
}

QTEST_MAIN(TestDemoScene)
#include "tst_demoscene.moc"
