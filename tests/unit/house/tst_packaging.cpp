#include "HouseFiles.h"

#include <QDir>
#include <QFile>
#include <QMap>
#include <QRegularExpression>
#include <QTest>

using HouseFiles::captured;
using HouseFiles::contentOf;

// What the package and the desktop are told of the program is complete and says the same
// everywhere.
class TestPackaging : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void thePackageIsBuiltWithWhatTheBuildNeeds();
    void thePackageBringsWhatRunningNeeds();
    void theMenuEntrySpeaksEveryLanguage_data();
    void theMenuEntrySpeaksEveryLanguage();
    void softwareCentresShowWhatTheMenuEntrySays();
    void theirPicturesAreInTheTree();
    void everyPlaceTellsTheSameVersion_data();
    void everyPlaceTellsTheSameVersion();
};

static const char menuEntry[] = "packaging/desktop/orvanta.desktop";
static const char metainfo[] = "packaging/desktop/org.orvanta.orvanta.metainfo.xml.in";

static QStringList listed(const QString &list)
{
    QStringList packages =
        captured(contentOf("packaging/packages/" + list + ".txt"), "^([a-z]\\S+)$");
    packages.sort();
    return packages;
}

// The packages that a field of the control file names by themselves.
static QStringList named(const QString &field)
{
    const QString lines =
        captured(contentOf("packaging/debian/control"), "^" + field + ":\\n((?: .*\\n)+)").value(0);
    QStringList packages = captured(lines, "^ ([a-z][^ ,\\n]*),?$");
    packages.sort();
    return packages;
}

// How desktops call the language of a translation of ours.
static QString desktopLanguage(const QString &code)
{
    static const QMap<QString, QString> others{{"no", "nb"}, {"zh", "zh_CN"}};
    return others.value(code, code);
}

void TestPackaging::thePackageIsBuiltWithWhatTheBuildNeeds()
{
    QStringList needed = listed("build");
    QVERIFY(needed.removeOne("build-essential")); // is there wherever packages are built
    QVERIFY(needed.size() > 10);
    QCOMPARE(named("Build-Depends"), needed);
}

void TestPackaging::thePackageBringsWhatRunningNeeds()
{
    QVERIFY(listed("run").size() > 10);
    QCOMPARE(named("Depends"), listed("run"));
}

void TestPackaging::theMenuEntrySpeaksEveryLanguage_data()
{
    QTest::addColumn<QString>("language");
    const QStringList sources = QDir(QString(HOUSE) + "/translations").entryList({"*.ts"});
    QVERIFY(sources.size() >= 30);
    for (const QString &source : sources) {
        const QString code = captured(source, "^qvexplugin_(.*)\\.ts$").value(0);
        if (code != "en")
            QTest::newRow(qPrintable(code)) << desktopLanguage(code);
    }
}

void TestPackaging::theMenuEntrySpeaksEveryLanguage()
{
    QFETCH(QString, language);
    const QString entry = contentOf(menuEntry);
    const auto said = [&](const QString &key) { return captured(entry, "^" + key + "=(.+)$"); };
    QCOMPARE(said("Name\\[" + language + "\\]"), said("Name"));
    for (const QString key : {"GenericName", "Comment", "Keywords"}) {
        const QStringList here = said(key + "\\[" + language + "\\]");
        QCOMPARE(here.size(), 1);
        QVERIFY2(here != said(key), qPrintable(key + " is in English"));
        QVERIFY(here[0].endsWith(';') == (key == "Keywords"));
    }
}

void TestPackaging::softwareCentresShowWhatTheMenuEntrySays()
{
    QString told = contentOf(metainfo);
    QStringList comments = captured(contentOf(menuEntry), "^Comment(?:\\[\\w+\\])?=(.+)$");
    QCOMPARE(captured(told, "<summary[^>]*>(.+)</summary>"), comments);
    QStringList languages = captured(contentOf(menuEntry), "^Comment\\[(\\w+)\\]=");
    QCOMPARE(captured(told, "<summary xml:lang=\"(\\w+)\">"), languages);
    QCOMPARE(captured(told, "<launchable type=\"desktop-id\">(.+)</launchable>"),
             QStringList(QFileInfo(menuEntry).fileName()));
}

void TestPackaging::theirPicturesAreInTheTree()
{
    const QStringList pictures =
        captured(contentOf(metainfo), "@ORVANTA_SCREENSHOTS_URL@/(\\S+)</");
    QVERIFY(!pictures.isEmpty());
    for (const QString &picture : pictures)
        QVERIFY2(QFile::exists(QString(HOUSE) + "/docs/" + picture), qPrintable(picture));
}

void TestPackaging::everyPlaceTellsTheSameVersion_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QString>("pattern");
    QTest::newRow("changes") << "CHANGELOG.md"
                             << "^## ([\\d.]+)";
    QTest::newRow("package") << "packaging/debian/changelog"
                             << "^orvanta \\(([\\d.]+)\\)";
    QTest::newRow("software centres") << metainfo << "<release version=\"([\\d.]+)\"";
    QTest::newRow("manual page") << "packaging/desktop/orvanta.1"
                                 << "^\\.TH .*\"Orvanta ([\\d.]+)\"";
    QTest::newRow("manual page of the report") << "packaging/desktop/orvanta-report.1"
                                               << "^\\.TH .*\"Orvanta ([\\d.]+)\"";
}

void TestPackaging::everyPlaceTellsTheSameVersion()
{
    QFETCH(QString, file);
    QFETCH(QString, pattern);
    const QString version =
        captured(contentOf("CMakeLists.txt"), "^project\\(\\w+ VERSION ([\\d.]+)").value(0);
    QVERIFY(!version.isEmpty());
    QCOMPARE(captured(contentOf(file), pattern).value(0), version); // the newest comes first
}

QTEST_GUILESS_MAIN(TestPackaging)
#include "tst_packaging.moc"
