#include "ForeignLocale.h"
#include "StoreFolders.h"
#include "WebcamUtil.h"

#include <QDir>
#include <QFile>
#include <QTest>

#include <algorithm>
#include <sys/stat.h>

class WebcamUtilListingTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void anEmptyAreaHoldsNothing();
    void capturedFilesComeOldestFirst_data();
    void capturedFilesComeOldestFirst();
    void millisecondsDecideTheOrder();
    void equalTimesAreOrderedByTheStampInTheName();
    void onlyPlainVisibleFilesAreListed();
    void aVanishedAreaHoldsNothing();
    void photosAreReadAfreshAndKept();
    void nothingFillsTheListOfMovies();
    void moviesAreListedByTheirStillPictures_data();
    void moviesAreListedByTheirStillPictures();
    void anyFileIsWorthAskingAbout();
    void anEmptyAreaLeavesTheRecordOfFilesAsItWas();
    void photosAreLookedForAsBitmaps_data();
    void photosAreLookedForAsBitmaps();
    void withoutAnAreaTheCurrentFolderIsListed();
    void listsAreTheSameInEveryCountry_data();
    void listsAreTheSameInEveryCountry();
};

namespace {

// Writes the files into the area, each a second younger than the one before.
bool fill(const StoreFolders &folders, const QStringList &oldestFirst)
{
    QDateTime moment({2009, 3, 4}, {9, 0, 0});
    return std::all_of(oldestFirst.begin(), oldestFirst.end(), [&](const QString &name) {
        moment = moment.addSecs(1);
        return StoreFolders::write(folders.area() + "/" + name, "x", moment);
    });
}

} // namespace

void WebcamUtilListingTest::anEmptyAreaHoldsNothing()
{
    const StoreFolders folders;
    QCOMPARE(WebcamUtil::getFileList({"photo*", "movie*"}), QStringList());
    QCOMPARE(WebcamUtil::getFileList({}), QStringList());
    QCOMPARE(WebcamUtil::getTempPhotoNameList(), QStringList());
    QCOMPARE(WebcamUtil::getMovieFileList(), QStringList());
    QVERIFY(!WebcamUtil::isSaveFile());
    QVERIFY(!WebcamUtil::isMovieFile());
    QVERIFY(!WebcamUtil::isPhotoFile());
    // Asking is what makes the area.
    QVERIFY(QDir(folders.area()).exists());
}

void WebcamUtilListingTest::capturedFilesComeOldestFirst_data()
{
    QTest::addColumn<QStringList>("patterns");
    QTest::addColumn<QStringList>("listed");
    QTest::newRow("all") << QStringList{}
                         << QStringList{"photo2.png", "movie1.mov", "photoX.png", "movie1tmp.png",
                                        "photo1.png"};
    QTest::newRow("photos") << QStringList{"photo*"}
                            << QStringList{"photo2.png", "photoX.png", "photo1.png"};
    QTest::newRow("movies") << QStringList{"movie*"} << QStringList{"movie1.mov", "movie1tmp.png"};
    QTest::newRow("two patterns") << QStringList{"*.mov", "photo1*"}
                                  << QStringList{"movie1.mov", "photo1.png"};
    QTest::newRow("one letter open")
        << QStringList{"photo?.png"} << QStringList{"photo2.png", "photoX.png", "photo1.png"};
    QTest::newRow("a set of letters")
        << QStringList{"photo[0-9].png"} << QStringList{"photo2.png", "photo1.png"};
    QTest::newRow("another letter case") << QStringList{"PHOTO1.PNG"} << QStringList{"photo1.png"};
    QTest::newRow("part of a name is no match") << QStringList{"photo"} << QStringList{};
    QTest::newRow("nothing of that kind") << QStringList{"*.bmp"} << QStringList{};
}

void WebcamUtilListingTest::capturedFilesComeOldestFirst()
{
    QFETCH(QStringList, patterns);
    QFETCH(QStringList, listed);
    const StoreFolders folders;
    QVERIFY(fill(folders,
                 {"photo2.png", "notes.txt", "movie1.mov", "photoX.png", "Photo9.png",
                  "movie1tmp.png", "phot1.png", "photo1.png"}));
    QCOMPARE(WebcamUtil::getFileList(patterns), listed);
}

void WebcamUtilListingTest::millisecondsDecideTheOrder()
{
    const StoreFolders folders;
    const QDateTime moment({2009, 3, 4}, {9, 0, 0, 500});
    QVERIFY(StoreFolders::write(folders.area() + "/photoA.png", "x", moment.addMSecs(1)));
    QVERIFY(StoreFolders::write(folders.area() + "/photoB.png", "x", moment.addMSecs(-1)));
    QVERIFY(StoreFolders::write(folders.area() + "/photoC.png", "x", moment));
    QCOMPARE(WebcamUtil::getTempPhotoNameList(),
             QStringList({"photoB.png", "photoC.png", "photoA.png"}));
}

void WebcamUtilListingTest::equalTimesAreOrderedByTheStampInTheName()
{
    const StoreFolders folders;
    const QDateTime moment({2009, 3, 4}, {9, 0, 0});
    for (const char *name : {"photo2.png", "photo3.png", "photo1.png"})
        QVERIFY(StoreFolders::write(folders.area() + "/" + name, "x", moment));
    QCOMPARE(WebcamUtil::getTempPhotoNameList(),
             QStringList({"photo1.png", "photo2.png", "photo3.png"}));
}

void WebcamUtilListingTest::onlyPlainVisibleFilesAreListed()
{
    const StoreFolders folders;
    QVERIFY(fill(folders, {"photo1.png", ".photo2.png"}));
    QVERIFY(QDir(folders.area()).mkpath("photo3.png"));
    QVERIFY(QFile::link(folders.area() + "/photo1.png", folders.area() + "/photo4.png"));
    QVERIFY(QFile::link(folders.area() + "/missing", folders.area() + "/photo5.png"));
    QCOMPARE(mkfifo(QFile::encodeName(folders.area() + "/photo6.png").constData(), 0600), 0);
    QCOMPARE(WebcamUtil::getTempPhotoNameList(), QStringList("photo1.png"));
    QVERIFY(WebcamUtil::isSaveFile());
    QCOMPARE(WebcamUtil::m_savefilenameList, QStringList("photo1.png"));
}

void WebcamUtilListingTest::aVanishedAreaHoldsNothing()
{
    const StoreFolders folders;
    QVERIFY(QDir(WebcamUtil::getTemporaryPath()).removeRecursively());
    QCOMPARE(WebcamUtil::getFileList({}), QStringList());
    QVERIFY(!WebcamUtil::isSaveFile());
}

void WebcamUtilListingTest::photosAreReadAfreshAndKept()
{
    const StoreFolders folders;
    QVERIFY(fill(folders, {"photo1.png", "movie1.mov", "photo2.png"}));
    const QStringList both = {"photo1.png", "photo2.png"};
    QCOMPARE(WebcamUtil::getTempPhotoNameList(), both);
    QCOMPARE(WebcamUtil::m_tempbmpfilenameList, both);
    QVERIFY(QFile::remove(folders.area() + "/photo1.png"));
    QCOMPARE(WebcamUtil::m_tempbmpfilenameList, both);
    WebcamUtil::setTempBmpFilenameList();
    QCOMPARE(WebcamUtil::m_tempbmpfilenameList, QStringList("photo2.png"));
}

void WebcamUtilListingTest::nothingFillsTheListOfMovies()
{
    const StoreFolders folders;
    QVERIFY(fill(folders, {"movie1.mov", "movie1tmp.png"}));
    WebcamUtil::setTempMovieFilnameList();
    QCOMPARE(WebcamUtil::getMovieFileList(), QStringList("movie1tmp.png"));
    QCOMPARE(WebcamUtil::m_tempmoviefilenameList, QStringList());
}

void WebcamUtilListingTest::moviesAreListedByTheirStillPictures_data()
{
    QTest::addColumn<QStringList>("files"); // oldest first
    QTest::addColumn<QStringList>("listed");
    const QString movie = "movie20090304090507.mov";
    const QString picture = "movie20090304090507tmp.png";
    QTest::newRow("a movie with its picture")
        << QStringList{movie, picture} << QStringList{picture};
    QTest::newRow("a picture older than its movie")
        << QStringList{picture, movie} << QStringList{picture};
    QTest::newRow("a movie without its picture") << QStringList{movie} << QStringList{};
    QTest::newRow("a picture without its movie") << QStringList{picture} << QStringList{};
    QTest::newRow("the movies' order, not the pictures'")
        << QStringList{"movie2.mov", "movie1tmp.png", "movie1.mov", "movie2tmp.png"}
        << QStringList{"movie2tmp.png", "movie1tmp.png"};
    QTest::newRow("photos are none of it")
        << QStringList{"photo1.mov", "photo1tmp.png"} << QStringList{};
    QTest::newRow("the suffix in another letter case is no movie")
        << QStringList{"movie1.MOV", "movie1tmp.png"} << QStringList{};
    QTest::newRow("every suffix in the name is replaced")
        << QStringList{"movie1.mov.mov", "movie1tmp.pngtmp.png"}
        << QStringList{"movie1tmp.pngtmp.png"};
    QTest::newRow("a suffix right after the prefix")
        << QStringList{"movie.mov", "movietmp.png"} << QStringList{"movietmp.png"};
}

void WebcamUtilListingTest::moviesAreListedByTheirStillPictures()
{
    QFETCH(QStringList, files);
    QFETCH(QStringList, listed);
    const StoreFolders folders;
    QVERIFY(fill(folders, files));
    QCOMPARE(WebcamUtil::getMovieFileList(), listed);
}

void WebcamUtilListingTest::anyFileIsWorthAskingAbout()
{
    const StoreFolders folders;
    QVERIFY(fill(folders, {"notes.txt"}));
    QVERIFY(WebcamUtil::isSaveFile());
    QVERIFY(WebcamUtil::isMovieFile());
    QVERIFY(fill(folders, {"photo1.png", "movie1.mov", "notes.txt"}));
    QVERIFY(WebcamUtil::isSaveFile());
    QCOMPARE(WebcamUtil::m_savefilenameList,
             QStringList({"notes.txt", "movie1.mov", "photo1.png"}));
}

void WebcamUtilListingTest::anEmptyAreaLeavesTheRecordOfFilesAsItWas()
{
    const StoreFolders folders;
    WebcamUtil::m_savefilenameList = QStringList("photo1.png");
    QVERIFY(!WebcamUtil::isSaveFile());
    QCOMPARE(WebcamUtil::m_savefilenameList, QStringList("photo1.png"));
}

void WebcamUtilListingTest::photosAreLookedForAsBitmaps_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<bool>("found");
    QTest::newRow("as photos are written") << "photo20090304090507042.png" << false;
    QTest::newRow("a bitmap") << "photo1.bmp" << true;
    QTest::newRow("a movie") << "movie1.bmp" << false;
    QTest::newRow("a bitmap in another letter case") << "PHOTO1.BMP" << true;
}

void WebcamUtilListingTest::photosAreLookedForAsBitmaps()
{
    QFETCH(QString, file);
    QFETCH(bool, found);
    const StoreFolders folders;
    QVERIFY(fill(folders, {file}));
    QCOMPARE(WebcamUtil::isPhotoFile(), found);
}

void WebcamUtilListingTest::withoutAnAreaTheCurrentFolderIsListed()
{
    StoreFolders folders;
    folders.makeAreaImpossible();
    QVERIFY(StoreFolders::write(folders.target() + "/photo1.png"));
    const QString current = QDir::currentPath();
    QVERIFY(QDir::setCurrent(folders.target()));
    const QStringList listed = WebcamUtil::getFileList({"photo*"});
    QVERIFY(QDir::setCurrent(current));
    QCOMPARE(listed, QStringList("photo1.png"));
}

void WebcamUtilListingTest::listsAreTheSameInEveryCountry_data()
{
    QTest::addColumn<QString>("country");
    // A Turkish I has no dot, and its small letter none either.
    for (const char *country : {"tr_TR", "ar_EG", "de_DE"})
        QTest::newRow(country) << QString(country);
}

void WebcamUtilListingTest::listsAreTheSameInEveryCountry()
{
    QFETCH(QString, country);
    const ForeignLocale abroad(country);
    QVERIFY2(abroad.isInUse(), "needs the package \"locales\"");
    const StoreFolders folders;
    QVERIFY(
        fill(folders, {"movie2.mov", "movie2tmp.png", "photoI.png", "photoi.PNG", "MOVIE3.mov"}));
    QCOMPARE(WebcamUtil::getTempPhotoNameList(), QStringList({"photoI.png", "photoi.PNG"}));
    QCOMPARE(WebcamUtil::getMovieFileList(), QStringList("movie2tmp.png"));
    QCOMPARE(WebcamUtil::getFileList({"*I.PNG"}), QStringList({"photoI.png", "photoi.PNG"}));
}

QTEST_GUILESS_MAIN(WebcamUtilListingTest)
#include "tst_webcamutillisting.moc"
