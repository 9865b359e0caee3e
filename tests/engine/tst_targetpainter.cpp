#include "Patience.h"
#include "TargetPainter.h"

#include <QBackingStore>
#include <QFrame>
#include <QSignalSpy>

class TestTargetPainter : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void theTargetIsBlackWithoutAPicture();
    void thePictureIsCentredWithBlackAroundIt_data();
    void thePictureIsCentredWithBlackAroundIt();
    void aWindowInMemoryIsPaintedWithoutACopy();
    void whatOthersShowOnThePictureStays();
    void aPartThatIsPaintedAnewLeavesTheRest();
    void aPictureThatIsNotThereYetIsBlack();
    void aHiddenTargetHasNoRoom();
    void showingHidingAndResizingAreReported();
    void aTargetMayBeDestroyedFirst();
    void aTargetThatIsLetGoPaintsItself();
    void aTargetMayMoveToAnotherParent();

private:
    /// What the window holds in memory for the screen.
    QImage window() const
    {
        const QImage &shown =
            *static_cast<QImage *>(m_target->window()->backingStore()->paintDevice());
        return shown.copy(QRect(m_target->mapTo(m_target->window(), QPoint()), m_target->size()));
    }

    void show(const QSize &size, const QColor &colour)
    {
        m_size = size;
        m_colour = colour;
        repaint();
    }

    void repaint()
    {
        const int before = m_paintings;
        m_painter->repaintSoon();
        QTRY_VERIFY(m_paintings > before);
    }

    std::unique_ptr<QFrame> m_target;
    std::unique_ptr<TargetPainter> m_painter;
    QSize m_size; ///< of the picture; empty for none
    QColor m_colour; ///< of the picture; invalid while there is none yet
    int m_paintings = 0;
    int m_copies = 0;
};

void TestTargetPainter::init()
{
    m_size = {};
    m_colour = Qt::red;
    m_paintings = 0;
    m_copies = 0;
    m_target = std::make_unique<QFrame>();
    m_target->resize(200, 100);
    m_painter = std::make_unique<TargetPainter>();
    TargetPainter::Source source;
    source.size = [this] {
        ++m_paintings;
        return m_size;
    };
    source.paintInto = [this](QImage *picture) {
        if (m_colour.isValid())
            picture->fill(m_colour);
        return m_colour.isValid();
    };
    source.picture = [this](const QSize &size) {
        ++m_copies;
        QImage picture(m_colour.isValid() ? size : QSize(), QImage::Format_RGB32);
        picture.fill(m_colour);
        return picture;
    };
    m_painter->setSource(source);
    m_painter->setTarget(m_target.get());
    m_target->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_target.get()));
    repaint();
}

void TestTargetPainter::cleanup()
{
    m_painter.reset();
    m_target.reset();
}

static void verifyColours(const QImage &seen, const QRect &place, QRgb inside, QRgb outside)
{
    for (int y = 0; y < seen.height(); ++y) {
        for (int x = 0; x < seen.width(); ++x) {
            const QRgb expected = place.contains(x, y) ? inside : outside;
            QVERIFY2(seen.pixel(x, y) == expected, qPrintable(QString("at %1, %2").arg(x).arg(y)));
        }
    }
}

void TestTargetPainter::theTargetIsBlackWithoutAPicture()
{
    QCOMPARE(window().size(), QSize(200, 100));
    verifyColours(window(), {}, 0, qRgb(0, 0, 0));
}

void TestTargetPainter::thePictureIsCentredWithBlackAroundIt_data()
{
    QTest::addColumn<QSize>("picture");
    QTest::addColumn<QRect>("place");
    QTest::newRow("fills the target") << QSize(200, 100) << QRect(0, 0, 200, 100);
    QTest::newRow("narrower") << QSize(100, 100) << QRect(50, 0, 100, 100);
    QTest::newRow("wider") << QSize(200, 50) << QRect(0, 25, 200, 50);
    QTest::newRow("small") << QSize(50, 50) << QRect(50, 0, 100, 100);
    QTest::newRow("large") << QSize(400, 100) << QRect(0, 25, 200, 50);
}

void TestTargetPainter::thePictureIsCentredWithBlackAroundIt()
{
    QFETCH(QSize, picture);
    QFETCH(QRect, place);
    show(picture, Qt::red);
    verifyColours(window(), place, qRgb(255, 0, 0), qRgb(0, 0, 0));
    const QImage elsewhere = m_target->grab().toImage().convertToFormat(QImage::Format_RGB32);
    verifyColours(elsewhere, place, qRgb(255, 0, 0), qRgb(0, 0, 0));
}

void TestTargetPainter::aWindowInMemoryIsPaintedWithoutACopy()
{
    show({100, 100}, Qt::red);
    QCOMPARE(m_copies, 0);
    QImage elsewhere(200, 100, QImage::Format_RGB16);
    m_target->render(&elsewhere);
    QCOMPARE(m_copies, 1);
    QCOMPARE(elsewhere.pixel(100, 50), qRgb(255, 0, 0));
}

void TestTargetPainter::whatOthersShowOnThePictureStays()
{
    QWidget caption(m_target.get());
    caption.setAutoFillBackground(true);
    caption.setPalette(QColor(Qt::green));
    caption.setGeometry(40, 20, 30, 10); // over the picture's left edge
    caption.show();
    QTRY_COMPARE(window().pixel(55, 25), qRgb(0, 255, 0));
    show({100, 100}, Qt::red);
    show({100, 100}, Qt::blue);
    QCOMPARE(m_copies, 0);
    const QImage seen = window();
    verifyColours(seen.copy(caption.geometry()), {}, 0, qRgb(0, 255, 0));
    for (const QPoint &beside : {QPoint(55, 19), QPoint(55, 30), QPoint(70, 25)})
        QCOMPARE(seen.pixel(beside), qRgb(0, 0, 255));
    QCOMPARE(seen.pixel(39, 25), qRgb(0, 0, 0));
}

void TestTargetPainter::aPartThatIsPaintedAnewLeavesTheRest()
{
    show({200, 100}, Qt::red);
    m_colour = Qt::blue;
    m_target->repaint(20, 30, 40, 10);
    verifyColours(window(), {20, 30, 40, 10}, qRgb(0, 0, 255), qRgb(255, 0, 0));
}

void TestTargetPainter::aPictureThatIsNotThereYetIsBlack()
{
    show({100, 100}, Qt::red);
    show({100, 100}, QColor());
    verifyColours(window(), {}, 0, qRgb(0, 0, 0));
}

void TestTargetPainter::aHiddenTargetHasNoRoom()
{
    QCOMPARE(m_painter->roomFor({1920, 1080}), QSize(177, 100));
    m_target->hide();
    QCOMPARE(m_painter->roomFor({1920, 1080}), QSize());
    m_target->show();
    QCOMPARE(m_painter->roomFor({400, 100}), QSize(200, 50));
    QCOMPARE(m_painter->roomFor({}), QSize());
}

void TestTargetPainter::showingHidingAndResizingAreReported()
{
    const QSignalSpy changes(m_painter.get(), &TargetPainter::roomChanged);
    m_target->hide();
    QCOMPARE(changes.count(), 1);
    m_target->show();
    QCOMPARE(changes.count(), 2);
    m_target->resize(300, 100);
    QTRY_COMPARE(changes.count(), 3);
}

void TestTargetPainter::aTargetMayBeDestroyedFirst()
{
    m_target.reset();
    QCOMPARE(m_painter->roomFor({1920, 1080}), QSize());
    m_painter->repaintSoon();
    m_painter->setTarget(nullptr);
}

void TestTargetPainter::aTargetThatIsLetGoPaintsItself()
{
    m_target->setStyleSheet("background: #00ff00");
    QCOMPARE(window().pixel(100, 50), qRgb(0, 0, 0));
    m_painter->setTarget(nullptr);
    QVERIFY(!m_target->testAttribute(Qt::WA_OpaquePaintEvent));
    QTRY_COMPARE(window().pixel(100, 50), qRgb(0, 255, 0));
}

void TestTargetPainter::aTargetMayMoveToAnotherParent()
{
    m_size = QSize(200, 100);
    QWidget parent;
    parent.resize(300, 300);
    m_target->setParent(&parent);
    m_target->setGeometry(50, 50, 200, 100);
    m_target->show();
    parent.show();
    const QImage seen = parent.grab().toImage();
    QCOMPARE(seen.pixel(150, 100), qRgb(255, 0, 0));
    m_target->setParent(nullptr);
}

QTEST_MAIN(TestTargetPainter)
#include "tst_targetpainter.moc"
