#include "DialogFixture.h"
#include "FakeEngine.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QImage>
#include <QTest>

/** The window on a screen of several times the usual size, where each pixel of it is two by two. */
class LargeScreenTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void theSizeHandedOverIsThatOnTheScreen();
};

void LargeScreenTest::theSizeHandedOverIsThatOnTheScreen()
{
    DialogFixture fixture;
    FakeEngine::script().picture = QImage(64, 36, QImage::Format_RGB32);
    CVistrelDlg &dialog = fixture.build();
    QCOMPARE(dialog.devicePixelRatioF(), 2.0);
    fixture.click("Photo");
    fixture.click("Apply");
    fixture.click("PutPhoto");
    const QDir folder(fixture.temporaryArea() + QStringLiteral("/tmp"));
    QFile file(folder.filePath(folder.entryList(QDir::Files).value(0)));
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QImage onScreen = dialog.grab(dialog.videoRect()).toImage();
    QCOMPARE(file.readAll(),
             QStringLiteral("0\n%1x%2\n%3\n")
                 .arg(onScreen.width())
                 .arg(onScreen.height())
                 .arg(fixture.captures().value(0))
                 .toUtf8());
    QCOMPARE(onScreen.size(), 2 * dialog.videoRect().size());
}

int main(int argc, char *argv[])
{
    qputenv("QT_SCALE_FACTOR", "2"); // as the program does it before its own start
    QApplication application(argc, argv);
    LargeScreenTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_cvistreldlg_largescreen.moc"
