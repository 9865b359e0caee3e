#include "Patience.h"

#include <QProcess>
#include <QTemporaryDir>

// What comes in is pictures and messages of strangers: a fault in what reads them is made hard to
// use.
class TestHardening : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void theProgramsAreHardened();
    void whatWritesIsWatched();
    void aProgramAtAPlaceOfItsOwnIsFound();
    void aProgramThatLooksForFunctionsWhileItRunsIsFound();

private:
    QString complaintsAbout(const QStringList &files);
    QString built(const QStringList &options);

    QTemporaryDir m_folder;
};

// Empty when there is none.
QString TestHardening::complaintsAbout(const QStringList &files)
{
    QProcess check;
    check.start(CHECK, files);
    if (!check.waitForFinished(patience))
        return "it does not end";
    const QString said = QString::fromUtf8(check.readAllStandardError());
    return check.exitCode() == 0 ? QString() : said + "status " + QString::number(check.exitCode());
}

// A program that does nothing.
QString TestHardening::built(const QStringList &options)
{
    const QString program = m_folder.filePath("program");
    QProcess compiler;
    compiler.start("gcc", QStringList{"-x", "c", "-", "-o", program} + options);
    compiler.write("int main(void) { return 0; }");
    compiler.closeWriteChannel();
    return compiler.waitForFinished(patience) && compiler.exitCode() == 0 ? program : QString();
}

void TestHardening::theProgramsAreHardened()
{
    QCOMPARE(complaintsAbout({ORVANTA_PROGRAM, ORVANTA_ENGINE, ORVANTA_REPORT}), QString());
}

// The size of what is written to. It leaves no trace in a program whose sizes are all known.
void TestHardening::whatWritesIsWatched()
{
    QVERIFY(_FORTIFY_SOURCE >= 2);
}

void TestHardening::aProgramAtAPlaceOfItsOwnIsFound()
{
    const QString program = built({"-no-pie"});
    QVERIFY(!program.isEmpty());
    QVERIFY(complaintsAbout({program}).contains("lies at a place of its own"));
}

void TestHardening::aProgramThatLooksForFunctionsWhileItRunsIsFound()
{
    const QString program = built({"-pie", "-fPIE", "-Wl,-z,lazy"});
    QVERIFY(!program.isEmpty());
    QVERIFY(complaintsAbout({program}).contains("looks for functions while it runs"));
}

QTEST_GUILESS_MAIN(TestHardening)
#include "tst_hardening.moc"
