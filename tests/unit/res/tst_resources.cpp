// The compiled-in artwork as the program finds it: by name, in the sizes the layout counts on, and
// with states that can be told apart from the back of a classroom.

#include "Contrast.h"

#include <QHash>
#include <QIcon>
#include <QImageReader>
#include <QtTest>

namespace {

const QStringList states{"up", "dw", "ds"};

enum class Kind { Main, HalfHigh, Tile };

struct Button {
    const char *name;
    Kind kind;
};

constexpr Button buttons[] = {
    {"Live", Kind::Main},         {"Photo", Kind::Main},       {"PhotoMulti", Kind::Main},
    {"Movie", Kind::Main},        {"MovieStop", Kind::Main},   {"List", Kind::Main},
    {"Settings", Kind::HalfHigh}, {"Close", Kind::HalfHigh},   {"Apply", Kind::Main},
    {"Retry", Kind::Main},        {"MoviePlay", Kind::Main},   {"MoviePause", Kind::Main},
    {"Show", Kind::Main},         {"SwitchPhoto", Kind::Main}, {"SwitchMovie", Kind::Main},
    {"PutPhoto", Kind::Main},     {"PutMovie", Kind::Main},    {"Zoom", Kind::Tile},
    {"Back", Kind::Tile},
};

QSize decidedSize(Kind kind)
{
    switch (kind) {
    case Kind::Main:
        return {640, 332};
    case Kind::HalfHigh:
        return {640, 166};
    case Kind::Tile:
        return {96, 72};
    }
    return {};
}

QImage bitmap(const QString &name, const QString &state)
{
    return QImage(":res/" + name + '_' + state + ".bmp").convertToFormat(QImage::Format_RGB32);
}

// Mean difference of all channels of all pixels, 0 to 255.
double meanDifference(const QImage &a, const QImage &b)
{
    qint64 sum = 0;
    for (int y = 0; y < a.height(); ++y) {
        for (int x = 0; x < a.width(); ++x) {
            const QRgb p = a.pixel(x, y);
            const QRgb q = b.pixel(x, y);
            sum +=
                qAbs(qRed(p) - qRed(q)) + qAbs(qGreen(p) - qGreen(q)) + qAbs(qBlue(p) - qBlue(q));
        }
    }
    return double(sum) / (3.0 * a.width() * a.height());
}

// The face half way down, between the button's rim and its icon.
QRgb faceColour(const QImage &image)
{
    return image.pixel(image.width() > 96 ? 28 : 12, image.height() / 2);
}

} // namespace

class TestResources : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void everyBitmapLoadsInItsDecidedSize_data();
    void everyBitmapLoadsInItsDecidedSize();
    void theThreeStatesOfAButtonDifferVisibly_data() { buttonRows(); }
    void theThreeStatesOfAButtonDifferVisibly();
    void theIconLeavesTheRightThreeFifthsToTheCaption_data();
    void theIconLeavesTheRightThreeFifthsToTheCaption();
    void everyIconCanBeMadeOutInEveryState_data() { buttonRows(); }
    void everyIconCanBeMadeOutInEveryState();
    void aWhiteCaptionCanBeReadOnEveryEnabledFace_data() { buttonRows(); }
    void aWhiteCaptionCanBeReadOnEveryEnabledFace();
    void everyColourOfAnIconStandsOutFromItsFace_data() { buttonRows(); }
    void everyColourOfAnIconStandsOutFromItsFace();
    void edgesStaySmoothWhenShrunkToTheNearestPixel_data();
    void edgesStaySmoothWhenShrunkToTheNearestPixel();
    void noTwoButtonsLookTheSame();
    void theWindowIconHoldsTheSizesThatDesktopsAskFor();
    void theDialogIconLoads();

private:
    static void buttonRows();
};

void TestResources::buttonRows()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QSize>("size");
    for (const Button &button : buttons)
        QTest::newRow(button.name) << QString(button.name) << decidedSize(button.kind);
}

void TestResources::everyBitmapLoadsInItsDecidedSize_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QSize>("size");
    for (const Button &button : buttons) {
        for (const QString &state : states) {
            const QString file = QString(":res/%1_%2.bmp").arg(button.name, state);
            QTest::newRow(qPrintable(file)) << file << decidedSize(button.kind);
        }
    }
}

void TestResources::everyBitmapLoadsInItsDecidedSize()
{
    QFETCH(QString, file);
    QFETCH(QSize, size);
    QCOMPARE(QImage(file).size(), size);
}

void TestResources::theThreeStatesOfAButtonDifferVisibly()
{
    QFETCH(QString, name);
    const QImage up = bitmap(name, "up");
    const QImage down = bitmap(name, "dw");
    const QImage disabled = bitmap(name, "ds");
    QVERIFY(meanDifference(up, down) > 20);
    QVERIFY(meanDifference(up, disabled) > 20);
    QVERIFY(meanDifference(down, disabled) > 40);
}

void TestResources::theIconLeavesTheRightThreeFifthsToTheCaption_data()
{
    QTest::addColumn<QString>("name");
    for (const Button &button : buttons)
        if (button.kind != Kind::Tile)
            QTest::newRow(button.name) << QString(button.name);
}

void TestResources::theIconLeavesTheRightThreeFifthsToTheCaption()
{
    QFETCH(QString, name);
    // Inside the rim and left of the rounded corners there is nothing but face.
    const int rim = 24;
    const int corner = 48;
    for (const QString &state : states) {
        const QImage image = bitmap(name, state);
        const QRgb face = faceColour(image);
        for (int y = rim; y < image.height() - rim; ++y) {
            for (int x = image.width() * 2 / 5; x < image.width() - corner; ++x)
                if (image.pixel(x, y) != face)
                    QFAIL(qPrintable(QString("%1 at %2,%3").arg(state).arg(x).arg(y)));
        }
    }
}

void TestResources::everyIconCanBeMadeOutInEveryState()
{
    QFETCH(QString, name);
    QFETCH(QSize, size);
    const QRect iconArea = size.width() > 96
        ? QRect(20, 20, size.width() * 2 / 5 - 20, size.height() - 40)
        : QRect(8, 8, 80, 56);
    for (const QString &state : states) {
        const QImage image = bitmap(name, state);
        const QRgb face = faceColour(image);
        const double wanted = state == "ds" ? 1.7 : 2.5;
        int drawn = 0;
        for (int y = iconArea.top(); y <= iconArea.bottom(); ++y)
            for (int x = iconArea.left(); x <= iconArea.right(); ++x)
                drawn += contrast(image.pixel(x, y), face) >= wanted ? 1 : 0;
        const double share = double(drawn) / (iconArea.width() * iconArea.height());
        QVERIFY2(share > 0.10 && share < 0.60, qPrintable(state + ": " + QString::number(share)));
    }
}

void TestResources::aWhiteCaptionCanBeReadOnEveryEnabledFace()
{
    QFETCH(QString, name);
    // 7 is what guidelines for readable text ask of the best class, 4.5 of the ordinary one.
    QVERIFY(contrast(faceColour(bitmap(name, "up")), qRgb(255, 255, 255)) >= 7.0);
    QVERIFY(contrast(faceColour(bitmap(name, "dw")), qRgb(255, 255, 255)) >= 7.0);
}

// A colour of the drawing lies within a shape. The mixtures at the edges of shapes do not.
static bool isWithinAShape(const QImage &image, int x, int y)
{
    for (int dy = -1; dy <= 1; ++dy)
        for (int dx = -1; dx <= 1; ++dx)
            if (image.pixel(x + dx, y + dy) != image.pixel(x, y))
                return false;
    return true;
}

void TestResources::everyColourOfAnIconStandsOutFromItsFace()
{
    QFETCH(QString, name);
    const double haze = 1.3; // of the blur, next to the face
    for (const QString &state : {QStringLiteral("up"), QStringLiteral("dw")}) {
        const QImage image = bitmap(name, state);
        const bool isTile = image.width() == decidedSize(Kind::Tile).width();
        const int rim = isTile ? 8 : 24;
        const int right = isTile ? image.width() - rim : image.width() * 2 / 5;
        const QRgb face = faceColour(image);
        QHash<QRgb, int> drawn; // colours, and how many points of each
        for (int y = rim; y < image.height() - rim; ++y)
            for (int x = rim; x < right; ++x)
                if (isWithinAShape(image, x, y) && contrast(image.pixel(x, y), face) > haze)
                    ++drawn[image.pixel(x, y)];
        const int fewest = isTile ? 5 : 20;
        int largest = 0;
        for (auto colour = drawn.cbegin(); colour != drawn.cend(); ++colour) {
            largest = qMax(largest, colour.value());
            if (colour.value() >= fewest)
                QVERIFY2(contrast(colour.key(), face) >= 4.5,
                         qPrintable(state + ' ' + QColor(colour.key()).name()));
        }
        QVERIFY2(largest >= fewest, qPrintable(state));
    }
}

void TestResources::edgesStaySmoothWhenShrunkToTheNearestPixel_data()
{
    QTest::addColumn<int>("width");
    QTest::newRow("a sixth of 1024") << 170;
    QTest::newRow("a sixth of 1366") << 227;
    QTest::newRow("a sixth of 1920") << 320;
}

// Of all steps to the right that cross half of the way from face to icon, few may jump it whole.
void TestResources::edgesStaySmoothWhenShrunkToTheNearestPixel()
{
    QFETCH(int, width);
    const QImage image = bitmap("Live", "up").scaledToWidth(width, Qt::FastTransformation);
    const int face = qGreen(faceColour(bitmap("Live", "up")));
    const int middle = (face + 255) / 2;
    const int wholeStep = (255 - face) * 9 / 10;
    int crossings = 0;
    int jumps = 0;
    for (int y = image.height() / 8; y < image.height() * 7 / 8; ++y) {
        for (int x = width / 20; x < width * 2 / 5; ++x) {
            const int left = qGreen(image.pixel(x, y));
            const int right = qGreen(image.pixel(x + 1, y));
            crossings += (left < middle) != (right < middle) ? 1 : 0;
            jumps += qAbs(left - right) > wholeStep ? 1 : 0;
        }
    }
    QVERIFY2(crossings > 50, qPrintable(QString::number(crossings)));
    QVERIFY2(jumps * 3 < crossings, qPrintable(QString("%1 of %2").arg(jumps).arg(crossings)));
}

void TestResources::noTwoButtonsLookTheSame()
{
    for (const Button &one : buttons) {
        for (const Button &other : buttons) {
            if (&one < &other && one.kind == other.kind) {
                QVERIFY2(meanDifference(bitmap(one.name, "up"), bitmap(other.name, "up")) > 1.0,
                         qPrintable(QString(one.name) + " and " + other.name));
            }
        }
    }
}

void TestResources::theWindowIconHoldsTheSizesThatDesktopsAskFor()
{
    QImageReader reader(":/res/Vistrel.ico");
    QCOMPARE(reader.imageCount(), 4);
    QList<int> sizes;
    for (int i = 0; i < reader.imageCount(); ++i) {
        QVERIFY(reader.jumpToImage(i));
        const QImage image = reader.read();
        QVERIFY2(!image.isNull(), qPrintable(reader.errorString()));
        QCOMPARE(image.width(), image.height());
        sizes << image.width();
    }
    QCOMPARE(sizes, (QList<int>{16, 32, 48, 256}));
    QVERIFY(!QIcon(":/res/Vistrel.ico").isNull());
}

void TestResources::theDialogIconLoads()
{
    QCOMPARE(QImage(":/res/appicon.png").size(), QSize(128, 128));
}

QTEST_MAIN(TestResources)
#include "tst_resources.moc"
