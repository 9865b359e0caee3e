#include "FaultTrial.h"
#include "StoreFolders.h"
#include "TimeZone.h"
#include "WebcamUtil.h"

#include <QDir>
#include <QFileInfo>
#include <QTest>

#include <sys/stat.h>

// Clocks that jump, and names that are taken: whatever the time is said to be, no capture takes the
// place of another.

static const QDateTime clockChange({2023, 10, 29}, {2, 30}, Qt::OffsetFromUTC, 2 * 3600);

// What is in the files, however they are called; each capture here holds something of its own.
static QStringList contentsIn(const QString &folder)
{
    QStringList contents;
    const QDir files(folder);
    for (const QString &name : files.entryList(QDir::Files | QDir::Hidden))
        contents.append(QString::fromLatin1(StoreFolders::read(files.filePath(name))));
    contents.sort();
    return contents;
}

static QString savedTo(const StoreFolders &folders, const QDateTime &moment)
{
    return folders.target() + "/TavelinCamera/" + WebcamUtil::CurrentDateString(moment);
}

// As the window does it.
static bool save(const StoreFolders &folders, const QDateTime &moment)
{
    WebcamUtil::keepApartFromSaved(folders.target(), moment);
    return WebcamUtil::saveData(folders.target(), moment);
}

class TestHostileNames : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void theHourThatComesTwiceTakesNoPhotoAway();
    void aNameIsTakenByWhateverHasIt_data();
    void aNameIsTakenByWhateverHasIt();
    void aMovieTakesNobodysStillPicture();
    void aClockThatJumpsLosesNothing();
    void whatWasSavedBeforeIsNotSavedTwice();
    void whatIsNoSavedCaptureTakesNoneAway_data();
    void whatIsNoSavedCaptureTakesNoneAway();
    void aMovieAndItsPictureStayTogether();
    void noFolderIsTooStrangeForCaptures_data();
    void noFolderIsTooStrangeForCaptures();

private:
    static QString capture(const QDateTime &moment, bool isMovie, const QString &content);
};

// A capture with that content, as it is taken at that moment; the name of its file.
QString TestHostileNames::capture(const QDateTime &moment, bool isMovie, const QString &content)
{
    const QString area = WebcamUtil::getTemporaryPath() + '/';
    const QString path = isMovie ? WebcamUtil::newMoviefilename(moment)
                                 : area + WebcamUtil::newPhotofilename(moment);
    const bool isWritten = StoreFolders::write(path, content.toLatin1())
        && (!isMovie
            || StoreFolders::write(WebcamUtil::stillNameOf(path), content.toLatin1() + " still"));
    return isWritten ? QFileInfo(path).fileName() : QString();
}

void TestHostileNames::theHourThatComesTwiceTakesNoPhotoAway()
{
    const TimeZone berlin("CET-1CEST,M3.5.0,M10.5.0/3");
    const StoreFolders folders;
    const QDateTime first = clockChange.toLocalTime();
    const QDateTime second = first.addSecs(3600);
    QCOMPARE(WebcamUtil::CurrentTimeQString(first), WebcamUtil::CurrentTimeQString(second));
    for (const bool isMovie : {false, true}) {
        const QString before = capture(first, isMovie, "first");
        const QString after = capture(second, isMovie, "second");
        QVERIFY(!before.isEmpty() && !after.isEmpty());
        QVERIFY2(before != after, qPrintable(after));
    }
    QCOMPARE(contentsIn(folders.area()),
             QStringList({"first", "first", "first still", "second", "second", "second still"}));
}

void TestHostileNames::aNameIsTakenByWhateverHasIt_data()
{
    QTest::addColumn<QString>("kind");
    for (const char *kind : {"file", "folder", "link to nowhere"})
        QTest::newRow(kind) << kind;
}

void TestHostileNames::aNameIsTakenByWhateverHasIt()
{
    QFETCH(QString, kind);
    const StoreFolders folders;
    const QDateTime moment({2009, 3, 4}, {9, 5, 7, 42});
    QCOMPARE(WebcamUtil::newPhotofilename(moment), QString("photo20090304090507042.png"));
    QCOMPARE(WebcamUtil::newMoviefilename(moment), folders.area() + "/movie20090304090507.mov");
    for (const char *name : {"/photo20090304090507042.png", "/movie20090304090507.mov"}) {
        const QString path = folders.area() + name;
        if (kind == "folder")
            QVERIFY(QDir().mkpath(path));
        else if (kind == "file")
            QVERIFY(StoreFolders::write(path));
        else
            QVERIFY(QFile::link("nowhere", path));
    }
    QCOMPARE(WebcamUtil::newPhotofilename(moment), QString("photo20090304090507043.png"));
    QCOMPARE(WebcamUtil::newMoviefilename(moment), folders.area() + "/movie20090304090508.mov");
}

void TestHostileNames::aMovieTakesNobodysStillPicture()
{
    const StoreFolders folders;
    const QDateTime moment({2009, 3, 4}, {9, 5, 7});
    QVERIFY(StoreFolders::write(folders.area() + "/movie20090304090507tmp.png"));
    QCOMPARE(WebcamUtil::newMoviefilename(moment), folders.area() + "/movie20090304090508.mov");
}

// Lessons on a computer whose clock is anything but a clock, saved now and then.
void TestHostileNames::aClockThatJumpsLosesNothing()
{
    FaultTrial trial("the clock jumps back and forth", 5, 300);
    while (trial.next()) {
        const TimeZone berlin("CET-1CEST,M3.5.0,M10.5.0/3");
        const StoreFolders folders;
        QDateTime moment = clockChange.toLocalTime().addSecs(-3600);
        const QDateTime atStart = moment;
        QStringList taken;
        for (int i = 0; i < 60; ++i) {
            const bool isMovie = trial.upTo(2) == 0;
            const QString content = QString::number(i);
            QVERIFY(!capture(moment, isMovie, content).isEmpty());
            taken.append(content);
            if (isMovie)
                taken.append(content + " still");
            const int jumps[] = {0, 1, -1, 3600, -3600, 7200, -7200, 86400};
            moment = trial.upTo(9) == 0 ? atStart : moment.addSecs(jumps[trial.upTo(7)]);
            if (trial.upTo(7) == 0)
                QVERIFY(save(folders, moment));
        }
        QStringList found = contentsIn(folders.area());
        const QDir days(folders.target() + "/TavelinCamera");
        for (const QString &day : days.entryList(QDir::Dirs | QDir::NoDotAndDotDot))
            found += contentsIn(days.filePath(day));
        found.sort();
        taken.sort();
        trial.addLost(taken.size() - found.size());
        QCOMPARE(found, taken);
    }
}

void TestHostileNames::whatWasSavedBeforeIsNotSavedTwice()
{
    const StoreFolders folders;
    const QDateTime moment({2009, 3, 4}, {9, 5, 7});
    const QString name = capture(moment, false, "the same");
    QVERIFY(StoreFolders::write(savedTo(folders, moment) + '/' + name, "the same"));
    QVERIFY(save(folders, moment));
    QCOMPARE(contentsIn(savedTo(folders, moment)), QStringList{"the same"});
    QCOMPARE(contentsIn(folders.area()), QStringList());
}

void TestHostileNames::whatIsNoSavedCaptureTakesNoneAway_data()
{
    QTest::addColumn<QString>("laid");
    for (const char *laid : {"another file", "a folder", "a link to the capture"})
        QTest::newRow(laid) << laid;
}

// As somebody else may do where the folder to save to is everybody's.
void TestHostileNames::whatIsNoSavedCaptureTakesNoneAway()
{
    QFETCH(QString, laid);
    const StoreFolders folders;
    const QDateTime moment({2009, 3, 4}, {9, 5, 7});
    const QString name = capture(moment, false, "the lesson");
    const QString saved = savedTo(folders, moment);
    QVERIFY(QDir().mkpath(saved));
    if (laid == "a folder")
        QVERIFY(QDir(saved).mkdir(name));
    else if (laid == "another file")
        QVERIFY(StoreFolders::write(saved + '/' + name, "something"));
    else
        QVERIFY(QFile::link(folders.area() + '/' + name, saved + '/' + name));
    QVERIFY(save(folders, moment));
    QCOMPARE(StoreFolders::read(saved + "/photo20090304090507000-2.png"), QByteArray("the lesson"));
}

void TestHostileNames::aMovieAndItsPictureStayTogether()
{
    const StoreFolders folders;
    const QDateTime moment({2009, 3, 4}, {9, 5, 7});
    const QDir saved(savedTo(folders, moment));
    const QString movie = capture(moment, true, "new");
    // Of the same length, so that only the contents tell; and a number that is taken as well.
    QVERIFY(StoreFolders::write(saved.filePath(movie), "old"));
    QVERIFY(StoreFolders::write(saved.filePath("movie20090304090507-2tmp.png"), "old"));
    QVERIFY(save(folders, moment));
    QCOMPARE(saved.entryList(QDir::Files, QDir::Name),
             QStringList({"movie20090304090507-2tmp.png", "movie20090304090507-3.mov",
                          "movie20090304090507-3tmp.png", "movie20090304090507.mov"}));
    QCOMPARE(StoreFolders::read(saved.filePath("movie20090304090507-3.mov")), QByteArray("new"));
    QCOMPARE(StoreFolders::read(saved.filePath("movie20090304090507.mov")), QByteArray("old"));
}

void TestHostileNames::noFolderIsTooStrangeForCaptures_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<bool>("isThere");
    const QByteArrayList names = {"a blank",
                                  "quotes'\"`",
                                  "%41%n%1",
                                  "a#b?c",
                                  "new\nline",
                                  "$(x);&|*",
                                  "-rf",
                                  "back\\slash",
                                  "\xd7\xa9\xd7\x9c",
                                  "no letters \xff\xfe",
                                  QByteArray(250, 'x')};
    for (const QByteArray &name : names)
        for (const bool isThere : {true, false})
            QTest::addRow("%s, %s", name.toPercentEncoding(" ").left(40).constData(),
                          isThere ? "there" : "missing")
                << name << isThere;
}

// Temporary, home and save folder, whatever they are called and whether they are there or not.
void TestHostileNames::noFolderIsTooStrangeForCaptures()
{
    QFETCH(QByteArray, name);
    QFETCH(bool, isThere);
    const StoreFolders folders;
    const QByteArray strange = QFile::encodeName(folders.root()) + '/' + name;
    if (isThere)
        QCOMPARE(mkdir(strange.constData(), 0700), 0);
    qputenv("TMPDIR", strange);
    qputenv("HOME", strange);
    StoreFolders::forget();
    const QString area = WebcamUtil::getTemporaryPath();
    QVERIFY2(area.startsWith(folders.root()), qPrintable(area));
    QVERIFY(!WebcamUtil::getAppPath().isEmpty());
    const QDateTime moment({2009, 3, 4}, {9, 5, 7});
    QVERIFY(!capture(moment, true, "movie").isEmpty());
    QCOMPARE(WebcamUtil::getMovieFileList(), QStringList{"movie20090304090507tmp.png"});
    const QString home = WebcamUtil::getDocumentPath();
    QVERIFY(WebcamUtil::saveData(home, moment));
    QCOMPARE(contentsIn(home + "/TavelinCamera/20090304"), QStringList({"movie", "movie still"}));
}

QTEST_MAIN(TestHostileNames)
#include "tst_hostilenames.moc"
