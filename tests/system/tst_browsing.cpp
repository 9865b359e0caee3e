#include "LabPattern.h"
#include "Patience.h"
#include "Session.h"

#include <QDir>
#include <QFile>

#include <memory>

namespace {

const QSize cameraSize(640, 480);
constexpr int photos = 9;
constexpr int movieCounter = 500;
constexpr int fullyVisible = 6; // thumbnails that need no scrolling

QString photoName(int number)
{
    return QString("photo2009030409050700%1.png").arg(number);
}

QString black(const QImage &picture)
{
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x)
            if (picture.pixelColor(x, y) != QColor(Qt::black))
                return QString("not black at %1, %2").arg(x).arg(y);
    }
    return "black";
}

} // namespace

// Looking at captures of an earlier lesson: the strip, the preview, tiles, zoom and pasting.
class TestBrowsing : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void photosAndMoviesAreListedApart();
    void viewShowsUpToNinePhotosSideBySide_data();
    void viewShowsUpToNinePhotosSideBySide();
    void zoomFillsThePictureAreaAndBackReturns();
    void whatIsShownIsPasted();
    void aFolderOfStrangeFilesDoesNoHarm();

private:
    bool write(const QString &name, const QByteArray &content) const;
    void select(int count);
    int counterAt(QRect place) const { return m_user->counterAt(place); }
    QByteArray handOverOf(const QStringList &names) const;

    std::unique_ptr<Session> m_user;
};

void TestBrowsing::init()
{
    m_user = std::make_unique<Session>(ORVANTA_PROGRAM, "cam1", cameraSize);
    const QString area = m_user->program().temporaryArea();
    QVERIFY(QDir().mkpath(area));
    const auto frame = [](int counter) {
        return LabPattern::frame(cameraSize.width(), cameraSize.height(), quint32(counter),
                                 LabPattern::groundOf("cam1"));
    };
    for (int i = 1; i <= photos; ++i)
        QVERIFY(frame(i).save(area + "/" + photoName(i)));
    QVERIFY(frame(movieCounter).save(area + "/movie20090304090507tmp.png"));
    QVERIFY(write("movie20090304090507.mov", "no movie that could be played"));
}

void TestBrowsing::cleanup()
{
    QVERIFY2(m_user->program().isRunning(), qPrintable(m_user->program().output()));
    m_user.reset();
}

bool TestBrowsing::write(const QString &name, const QByteArray &content) const
{
    QFile file(m_user->program().temporaryArea() + "/" + name);
    return file.open(QIODevice::WriteOnly) && file.write(content) == content.size();
}

/// The first ones of the strip: as far as they are in sight with the mouse, then by the keyboard.
void TestBrowsing::select(int count)
{
    for (int i = 0; i < count; ++i) {
        if (i < fullyVisible) {
            m_user->desktop().click(m_user->map().thumbnail(i).center());
        } else {
            m_user->desktop().pressKey("Right");
            m_user->desktop().pressKey("space");
        }
    }
    QTRY_COMPARE(counterAt(m_user->map().selectionRect()), count);
}

QByteArray TestBrowsing::handOverOf(const QStringList &names) const
{
    const QSize area = m_user->map().videoRect().size();
    return QString("0\n%1x%2\n%3\n")
        .arg(area.width())
        .arg(area.height())
        .arg(names.join('\n'))
        .toUtf8();
}

void TestBrowsing::photosAndMoviesAreListedApart()
{
    QVERIFY(m_user->startLive());
    QVERIFY(m_user->pressWhenReady(WindowMap::LiveScreen, "List"));
    QVERIFY(m_user->waitForPressable(WindowMap::ListScreen, {"Live", "SwitchMovie", "Close"}));
    select(2);
    QVERIFY(
        m_user->waitForPressable(WindowMap::ListScreen, {"Live", "Show", "SwitchMovie", "Close"}));
    QVERIFY(m_user->pressWhenReady(WindowMap::ListScreen, "SwitchMovie"));
    QVERIFY(m_user->waitForPressable(WindowMap::MovieListScreen, {"Live", "SwitchPhoto", "Close"}));
    QCOMPARE(black(m_user->seenAt(m_user->map().selectionRect())), QString("black"));
    m_user->desktop().click(m_user->map().thumbnail(0).center());
    QTRY_COMPARE(counterAt(m_user->map().selectionRect()), movieCounter);
    QVERIFY(m_user->pressWhenReady(WindowMap::MovieListScreen, "SwitchPhoto"));
    QVERIFY(m_user->waitForPressable(WindowMap::ListScreen, {"Live", "SwitchMovie", "Close"}));
    select(1);
}

void TestBrowsing::viewShowsUpToNinePhotosSideBySide_data()
{
    QTest::addColumn<int>("count");
    for (const int count : {1, 2, 4, 5, 9})
        QTest::addRow("%d", count) << count;
}

void TestBrowsing::viewShowsUpToNinePhotosSideBySide()
{
    QFETCH(int, count);
    QVERIFY(m_user->startLive());
    QVERIFY(m_user->pressWhenReady(WindowMap::LiveScreen, "List"));
    QVERIFY(m_user->waitForPressable(WindowMap::ListScreen, {"Live", "SwitchMovie", "Close"}));
    select(count);
    QVERIFY(m_user->pressWhenReady(WindowMap::ListScreen, "Show"));
    for (int i = 0; i < count; ++i)
        QTRY_COMPARE(counterAt(m_user->map().tile(count, i)), i + 1);
    QVERIFY(
        m_user->waitForPressable(WindowMap::PhotoScreen, {"Live", "PutPhoto", "List", "Close"}));
}

void TestBrowsing::zoomFillsThePictureAreaAndBackReturns()
{
    QVERIFY(m_user->startLive());
    QVERIFY(m_user->pressWhenReady(WindowMap::LiveScreen, "List"));
    QVERIFY(m_user->waitForPressable(WindowMap::ListScreen, {"Live", "SwitchMovie", "Close"}));
    select(4);
    QVERIFY(m_user->pressWhenReady(WindowMap::ListScreen, "Show"));
    const WindowMap &map = m_user->map();
    QTRY_COMPARE(counterAt(map.tile(4, 2)), 3);
    m_user->desktop().click(map.cornerButton(map.tile(4, 2)));
    QTRY_COMPARE(counterAt(map.videoRect()), 3);
    m_user->desktop().click(map.cornerButton(map.videoRect()));
    for (int i = 0; i < 4; ++i)
        QTRY_COMPARE(counterAt(map.tile(4, i)), i + 1);
}

void TestBrowsing::whatIsShownIsPasted()
{
    QVERIFY(m_user->startLive());
    QVERIFY(m_user->takePhotoForPreview());
    QVERIFY(m_user->pressWhenReady(WindowMap::PreviewScreen, "Apply"));
    QVERIFY(m_user->pressWhenReady(WindowMap::PhotoScreen, "PutPhoto"));
    const QString photo = m_user->program().captured().constLast();
    QTRY_COMPARE(m_user->program().handedOver(), handOverOf({photo}));

    QVERIFY(m_user->pressWhenReady(WindowMap::PhotoScreen, "List"));
    QVERIFY(m_user->waitForPressable(WindowMap::ListScreen, {"Live", "SwitchMovie", "Close"}));
    select(2);
    QVERIFY(m_user->pressWhenReady(WindowMap::ListScreen, "Show"));
    QTRY_COMPARE(counterAt(m_user->map().tile(2, 1)), 2);
    QVERIFY(m_user->pressWhenReady(WindowMap::PhotoScreen, "PutPhoto"));
    QTRY_COMPARE(m_user->program().handedOver(), handOverOf({photoName(1), photoName(2)}));
}

void TestBrowsing::aFolderOfStrangeFilesDoesNoHarm()
{
    QVERIFY(write("photo-1-empty.png", {}));
    QVERIFY(write("photo-2-text.png", "no picture"));
    QVERIFY(write("photo-3-cut.png",
                  QByteArray::fromHex("89504e470d0a1a0a0000000d494844520000028000")));
    // The head of a picture of 10000 by 10000 points.
    QVERIFY(
        write("photo-4-huge.png",
              QByteArray::fromHex("89504e470d0a1a0a0000000d4948445200002710000027100802000000")));
    const QStringList before = m_user->program().captured();
    QVERIFY(m_user->startLive());
    QVERIFY(m_user->pressWhenReady(WindowMap::LiveScreen, "List"));
    QVERIFY(m_user->waitForPressable(WindowMap::ListScreen, {"Live", "SwitchMovie", "Close"}));
    select(1);
    // The strange ones are the newest: from the end of the strip backwards.
    m_user->desktop().pressKey("End");
    for (int i = 0; i < 4; ++i) {
        m_user->desktop().pressKey("space");
        m_user->desktop().pressKey("Left");
    }
    QTRY_COMPARE(black(m_user->seenAt(m_user->map().selectionRect().adjusted(0, 0, 0, -2))),
                 QString("black"));
    QVERIFY(m_user->pressWhenReady(WindowMap::ListScreen, "Show"));
    QTRY_COMPARE(counterAt(m_user->map().tile(5, 0)), 1);
    QVERIFY(m_user->pressWhenReady(WindowMap::PhotoScreen, "Live"));
    QTRY_VERIFY(m_user->isLiveAt(m_user->map().videoRect()));
    QCOMPARE(m_user->program().captured(), before);
}

QTEST_MAIN(TestBrowsing)
#include "tst_browsing.moc"
