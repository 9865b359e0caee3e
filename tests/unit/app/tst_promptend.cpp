#include <QElapsedTimer>
#include <QProcess>
#include <QTest>

class tst_PromptEnd : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void aStuckLibraryDoesNotKeepTheProcess();
    void theProcessHasItsTimeToEndByItself();
};

void tst_PromptEnd::aStuckLibraryDoesNotKeepTheProcess()
{
    QProcess program;
    program.start(HANGS_AT_THE_END, {"100"});
    QVERIFY(program.waitForFinished(20000));
    QCOMPARE(program.exitStatus(), QProcess::NormalExit);
    QCOMPARE(program.exitCode(), 7);
}

void tst_PromptEnd::theProcessHasItsTimeToEndByItself()
{
    QElapsedTimer timer;
    timer.start();
    QProcess program;
    program.start(HANGS_AT_THE_END, {"700"});
    QVERIFY(program.waitForFinished(20000));
    QVERIFY2(timer.elapsed() >= 700, qPrintable(QString::number(timer.elapsed())));
}

QTEST_GUILESS_MAIN(tst_PromptEnd)
#include "tst_promptend.moc"
