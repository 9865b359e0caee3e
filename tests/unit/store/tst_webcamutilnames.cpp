#include "ForeignLocale.h"
#include "StoreFolders.h"
#include "TimeZone.h"
#include "WebcamUtil.h"

#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>
#include <QTest>

class WebcamUtilNamesTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void stampsAreMadeOfTheMoment_data();
    void stampsAreMadeOfTheMoment();
    void stampsAreTakenNowUnlessToldOtherwise();
    void stampsAreInLocalTime_data();
    void stampsAreInLocalTime();
    void stampsAreTheSameInEveryCountry_data();
    void stampsAreTheSameInEveryCountry();
    void aPhotoIsNamedByTheMillisecond();
    void aPhotoAfterMidnightKeepsItsZeros();
    void aMovieIsNamedByTheSecondInTheTemporaryArea();
    void twoMoviesOfTheSameSecondShareTheirName();
    void aMovieAndItsStillPictureAreFoundByEachOther_data();
    void aMovieAndItsStillPictureAreFoundByEachOther();
    void theDaysFolderIsMadeAndMadeOnce();
    void theDaysFolderIsEmptyWhereItCannotBeMade();
};

void WebcamUtilNamesTest::stampsAreMadeOfTheMoment_data()
{
    QTest::addColumn<QDateTime>("moment");
    QTest::addColumn<QString>("milliseconds");
    const auto row = [](const char *name, const QDate &day, const QTime &time, const char *stamp) {
        QTest::newRow(name) << QDateTime(day, time) << QString(QLatin1String(stamp));
    };
    row("a lesson", {2009, 3, 4}, {9, 5, 7, 42}, "20090304090507042");
    row("midnight", {2010, 1, 1}, {0, 0, 0, 0}, "20100101000000000");
    row("just after midnight", {2010, 1, 1}, {0, 0, 0, 5}, "20100101000000005");
    row("just before midnight", {2010, 12, 31}, {23, 59, 59, 999}, "20101231235959999");
    row("noon", {2021, 6, 15}, {12, 0, 0, 0}, "20210615120000000");
    row("in the evening", {2021, 6, 15}, {21, 7, 9, 0}, "20210615210709000");
    row("a leap day", {2024, 2, 29}, {8, 30, 0, 120}, "20240229083000120");
    row("the year 999", {999, 7, 8}, {1, 2, 3, 4}, "09990708010203004");
}

void WebcamUtilNamesTest::stampsAreMadeOfTheMoment()
{
    QFETCH(QDateTime, moment);
    QFETCH(QString, milliseconds);
    QCOMPARE(WebcamUtil::CurrentTimeQString(moment), milliseconds);
    QCOMPARE(WebcamUtil::CurrentSecondString(moment), milliseconds.left(14));
    QCOMPARE(WebcamUtil::CurrentDateString(moment), milliseconds.left(8));
}

void WebcamUtilNamesTest::stampsAreTakenNowUnlessToldOtherwise()
{
    const QString before = WebcamUtil::CurrentTimeQString(QDateTime::currentDateTime());
    const QString stamp = WebcamUtil::CurrentTimeQString();
    const QString photo = WebcamUtil::CreatePhotofilename();
    const QString after = WebcamUtil::CurrentTimeQString(QDateTime::currentDateTime());
    QVERIFY(QRegularExpression("^[0-9]{17}$").match(stamp).hasMatch());
    QVERIFY(before <= stamp && stamp <= after);
    QVERIFY(before <= photo.mid(5, 17) && photo.mid(5, 17) <= after);
}

void WebcamUtilNamesTest::stampsAreInLocalTime_data()
{
    QTest::addColumn<QByteArray>("zone");
    // One of the first two has another day than Greenwich at any moment.
    QTest::newRow("14 hours east of Greenwich") << QByteArray("EAST-14");
    QTest::newRow("12 hours west of Greenwich") << QByteArray("WEST+12");
    QTest::newRow("half an hour off") << QByteArray("HALF-05:30");
}

void WebcamUtilNamesTest::stampsAreInLocalTime()
{
    QFETCH(QByteArray, zone);
    const TimeZone there(zone);
    const StoreFolders folders;
    const QString before = TimeZone::localStamp();
    const QStringList stamps = {
        WebcamUtil::CurrentTimeQString().left(14),
        WebcamUtil::CurrentSecondString(),
        WebcamUtil::CreatePhotofilename().mid(5, 14),
        WebcamUtil::CreateTempPhotofilename().mid(5, 14),
        QFileInfo(WebcamUtil::CreateMoviefilename()).fileName().mid(5, 14),
        QFileInfo(WebcamUtil::CreateTempMoviefilename()).fileName().mid(5, 14),
    };
    const QStringList days = {
        WebcamUtil::CurrentDateString(),
        QFileInfo(WebcamUtil::CreateSavePath(folders.target())).fileName(),
    };
    const QString after = TimeZone::localStamp();
    for (const QString &stamp : stamps)
        QVERIFY2(before <= stamp && stamp <= after, qPrintable(stamp));
    for (const QString &day : days)
        QVERIFY2(before.left(8) <= day && day <= after.left(8), qPrintable(day));
}

void WebcamUtilNamesTest::stampsAreTheSameInEveryCountry_data()
{
    QTest::addColumn<QString>("country");
    for (const char *country : {"de_DE", "tr_TR", "ar_EG", "fa_IR"})
        QTest::newRow(country) << QString(country);
}

void WebcamUtilNamesTest::stampsAreTheSameInEveryCountry()
{
    QFETCH(QString, country);
    const ForeignLocale abroad(country);
    QVERIFY2(abroad.isInUse(), "needs the package \"locales\"");
    const StoreFolders folders;
    const QDateTime moment({2009, 3, 4}, {9, 5, 7, 42});
    QCOMPARE(WebcamUtil::CreatePhotofilename(moment), QString("photo20090304090507042.png"));
    QCOMPARE(WebcamUtil::CreateMoviefilename(moment), folders.area() + "/movie20090304090507.mov");
    QCOMPARE(WebcamUtil::CreateSavePath(folders.target(), moment),
             folders.target() + "/TavelinCamera/20090304");
}

void WebcamUtilNamesTest::aPhotoIsNamedByTheMillisecond()
{
    const QDateTime moment({2009, 3, 4}, {9, 5, 7, 42});
    QCOMPARE(WebcamUtil::CreatePhotofilename(moment), QString("photo20090304090507042.png"));
    QCOMPARE(WebcamUtil::CreateTempPhotofilename(moment), QString("photo20090304090507042tmp.png"));
}

void WebcamUtilNamesTest::aPhotoAfterMidnightKeepsItsZeros()
{
    QCOMPARE(WebcamUtil::CreatePhotofilename(QDateTime({2010, 1, 1}, {0, 0, 0, 5})),
             QString("photo20100101000000005.png"));
}

void WebcamUtilNamesTest::aMovieIsNamedByTheSecondInTheTemporaryArea()
{
    const StoreFolders folders;
    const QDateTime moment({2009, 3, 4}, {21, 7, 9, 999});
    QCOMPARE(WebcamUtil::CreateMoviefilename(moment), folders.area() + "/movie20090304210709.mov");
    QCOMPARE(WebcamUtil::CreateTempMoviefilename(moment),
             folders.area() + "/movie20090304210709tmpphoto");
    QVERIFY(QFileInfo(folders.area()).isDir());
}

void WebcamUtilNamesTest::twoMoviesOfTheSameSecondShareTheirName()
{
    const StoreFolders folders;
    const QDateTime moment({2009, 3, 4}, {9, 5, 7, 42});
    QCOMPARE(WebcamUtil::CreateMoviefilename(moment),
             WebcamUtil::CreateMoviefilename(moment.addMSecs(900)));
    QVERIFY(WebcamUtil::CreateMoviefilename(moment)
            != WebcamUtil::CreateMoviefilename(moment.addMSecs(1000)));
}

void WebcamUtilNamesTest::aMovieAndItsStillPictureAreFoundByEachOther_data()
{
    QTest::addColumn<QString>("movie");
    QTest::addColumn<QString>("still");
    QTest::newRow("a name") << "movie20090304090507.mov"
                            << "movie20090304090507tmp.png";
    QTest::newRow("a path") << "/tmp/area/movie1.mov"
                            << "/tmp/area/movie1tmp.png";
    QTest::newRow("no movie") << "photo20090304090507042.png"
                              << "photo20090304090507042.png";
    QTest::newRow("capital letters") << "movie1.MOV"
                                     << "movie1.MOV";
    QTest::newRow("nothing") << QString() << QString();
}

void WebcamUtilNamesTest::aMovieAndItsStillPictureAreFoundByEachOther()
{
    QFETCH(QString, movie);
    QFETCH(QString, still);
    QCOMPARE(WebcamUtil::stillNameOf(movie), still);
    QCOMPARE(WebcamUtil::movieNameOf(still), movie);
}

void WebcamUtilNamesTest::theDaysFolderIsMadeAndMadeOnce()
{
    const StoreFolders folders;
    const QDateTime moment({2009, 3, 4}, {9, 5, 7});
    const QString base = folders.root() + "/not/yet/there";
    const QString expected = base + "/TavelinCamera/20090304";
    QCOMPARE(WebcamUtil::CreateSavePath(base, moment), expected);
    QVERIFY(QFileInfo(expected).isDir());
    QVERIFY(StoreFolders::write(expected + "/photo1.png"));
    QCOMPARE(WebcamUtil::CreateSavePath(base, moment), expected);
    QVERIFY(QFileInfo::exists(expected + "/photo1.png"));
}

void WebcamUtilNamesTest::theDaysFolderIsEmptyWhereItCannotBeMade()
{
    const StoreFolders folders;
    const QString file = folders.root() + "/plainfile";
    QVERIFY(StoreFolders::write(file, "still a file"));
    QCOMPARE(WebcamUtil::CreateSavePath(file), QString());
    QCOMPARE(StoreFolders::read(file), QByteArray("still a file"));
}

QTEST_GUILESS_MAIN(WebcamUtilNamesTest)
#include "tst_webcamutilnames.moc"
