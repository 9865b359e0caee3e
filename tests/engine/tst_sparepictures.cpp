#include "SparePictures.h"

#include <QTest>

class TestSparePictures : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void aPictureOnItsWayToTheScreenIsLeftAlone();
    void itsMemoryIsUsedOnceItIsLetGo();
    void noMoreThanTheLimitAreKept();
    void nothingIsKeptOfNoPicture();
};

static QImage picture()
{
    return {8, 8, QImage::Format_RGB32};
}

void TestSparePictures::aPictureOnItsWayToTheScreenIsLeftAlone()
{
    SparePictures spares;
    const QImage painted = picture();
    QImage other = picture();
    const uchar *memory = other.constBits();
    spares.keep(painted);
    spares.keep(std::move(other));
    QCOMPARE(spares.take().constBits(), memory);
    QVERIFY(spares.take().isNull());
}

void TestSparePictures::itsMemoryIsUsedOnceItIsLetGo()
{
    SparePictures spares;
    QImage painted = picture();
    const uchar *memory = painted.constBits();
    spares.keep(painted);
    QVERIFY(spares.take().isNull());
    painted = QImage();
    QCOMPARE(spares.take().constBits(), memory);
}

void TestSparePictures::noMoreThanTheLimitAreKept()
{
    SparePictures spares;
    for (int i = 0; i < 2 * SparePictures::limit; ++i)
        spares.keep(picture());
    int kept = 0;
    while (!spares.take().isNull())
        ++kept;
    QCOMPARE(kept, SparePictures::limit);
}

void TestSparePictures::nothingIsKeptOfNoPicture()
{
    SparePictures spares;
    QImage first = picture();
    const uchar *memory = first.constBits();
    spares.keep(std::move(first));
    for (int i = 0; i < SparePictures::limit; ++i)
        spares.keep({});
    QCOMPARE(spares.take().constBits(), memory);
}

QTEST_APPLESS_MAIN(TestSparePictures)
#include "tst_sparepictures.moc"
