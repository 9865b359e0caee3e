#include "TargetPainter.h"

#include <QFrame>
#include <QSignalSpy>
#include <QTest>

class TestTargetPainter : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void theTargetIsBlackWithoutAPicture();
    void thePictureIsCentredWithBlackAroundIt_data();
    void thePictureIsCentredWithBlackAroundIt();
    void aHiddenTargetHasNoRoom();
    void showingHidingAndResizingAreReported();
    void aTargetMayBeDestroyedFirst();
    void aTargetThatIsLetGoPaintsItself();
    void aTargetMayMoveToAnotherParent();

private:
    QImage screen() const
    {
        return m_target->grab().toImage().convertToFormat(QImage::Format_RGB32);
    }

    std::unique_ptr<QFrame> m_target;
    std::unique_ptr<TargetPainter> m_painter;
    QImage m_picture;
};

void TestTargetPainter::init()
{
    m_target = std::make_unique<QFrame>();
    m_target->resize(200, 100);
    m_painter = std::make_unique<TargetPainter>();
    m_picture = QImage();
    m_painter->setSource([this] { return m_picture; });
    m_painter->setTarget(m_target.get());
    m_target->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_target.get()));
}

void TestTargetPainter::cleanup()
{
    m_painter.reset();
    m_target.reset();
}

void TestTargetPainter::theTargetIsBlackWithoutAPicture()
{
    const QImage seen = screen();
    QCOMPARE(seen.size(), QSize(200, 100));
    for (const QPoint &point : {QPoint(0, 0), QPoint(199, 99), QPoint(100, 50)})
        QCOMPARE(seen.pixel(point), qRgb(0, 0, 0));
}

void TestTargetPainter::thePictureIsCentredWithBlackAroundIt_data()
{
    QTest::addColumn<QSize>("picture");
    QTest::addColumn<QRect>("place");
    QTest::newRow("fills the target") << QSize(200, 100) << QRect(0, 0, 200, 100);
    QTest::newRow("narrower") << QSize(100, 100) << QRect(50, 0, 100, 100);
    QTest::newRow("wider") << QSize(200, 50) << QRect(0, 25, 200, 50);
    QTest::newRow("too small, until the next one comes") << QSize(50, 50) << QRect(50, 0, 100, 100);
    QTest::newRow("too large, until the next one comes")
        << QSize(400, 100) << QRect(0, 25, 200, 50);
}

void TestTargetPainter::thePictureIsCentredWithBlackAroundIt()
{
    QFETCH(QSize, picture);
    QFETCH(QRect, place);
    m_picture = QImage(picture, QImage::Format_RGB32);
    m_picture.fill(Qt::red);
    const QImage seen = screen();
    for (int y = 0; y < seen.height(); ++y) {
        for (int x = 0; x < seen.width(); ++x) {
            const QRgb expected = place.contains(x, y) ? qRgb(255, 0, 0) : qRgb(0, 0, 0);
            QVERIFY2(seen.pixel(x, y) == expected, qPrintable(QString("at %1, %2").arg(x).arg(y)));
        }
    }
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
    QCOMPARE(screen().pixel(100, 50), qRgb(0, 0, 0));
    m_painter->setTarget(nullptr);
    QVERIFY(!m_target->testAttribute(Qt::WA_OpaquePaintEvent));
    QCOMPARE(screen().pixel(100, 50), qRgb(0, 255, 0));
}

void TestTargetPainter::aTargetMayMoveToAnotherParent()
{
    m_picture = QImage(200, 100, QImage::Format_RGB32);
    m_picture.fill(Qt::red);
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
