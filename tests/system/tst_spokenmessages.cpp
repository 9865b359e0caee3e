#include "Session.h"

#include <QApplication>
#include <QTest>

// Warnings as users of the whiteboard application in different languages see them, down to the
// button, whose caption the toolkit brings along. There is no camera to be found.
class TestSpokenMessages : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void aMissingCameraIsToldInTheLanguage_data();
    void aMissingCameraIsToldInTheLanguage();
    void cleanup();
};

void TestSpokenMessages::cleanup()
{
    QApplication::setLayoutDirection(Qt::LeftToRight);
}

void TestSpokenMessages::aMissingCameraIsToldInTheLanguage_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("confirm");
    QTest::addColumn<Qt::LayoutDirection>("direction");
    QTest::newRow("de") << "Weder Kamera noch Mikrofon gefunden."
                        << "OK" << Qt::LeftToRight;
    QTest::newRow("tr") << "Kamera ve mikrofon bulunamadı."
                        << "Tamam" << Qt::LeftToRight;
    QTest::newRow("th") << "ไม่พบกล้องและไมโครโฟน"
                        << "ตกลง" << Qt::LeftToRight;
    QTest::newRow("he") << "לא נמצאו מצלמה ומיקרופון."
                        << "אישור" << Qt::RightToLeft;
}

void TestSpokenMessages::aMissingCameraIsToldInTheLanguage()
{
    QFETCH(QString, text);
    QFETCH(QString, confirm);
    QFETCH(Qt::LayoutDirection, direction);
    QApplication::setLayoutDirection(direction);
    Session user(ORVANTA_PROGRAM, "none", QSize(1, 1));
    user.program().setLanguage(QTest::currentDataTag());
    user.program().start();
    QVERIFY(user.waitForMainWindow());
    QVERIFY(user.messageSays(text, confirm));
    QVERIFY(user.confirmMessage());
    QVERIFY(user.program().isRunning());
}

QTEST_MAIN(TestSpokenMessages)
#include "tst_spokenmessages.moc"
