#include <QProcess>
#include <QTest>

class tst_LostScreen : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void capturesAreCompletedAndNothingIsWaitedFor();
    void aWriteToAServerThatIsGoneDoesNotEndTheProcess();
    void afterwardsTheEndIsAUsualOne();
};

static QByteArray outputOf(const QStringList &arguments, int status)
{
    QProcess program;
    program.start(LOSES_ITS_SCREEN, arguments);
    if (!program.waitForFinished(20000) || program.exitStatus() != QProcess::NormalExit
        || program.exitCode() != status)
        return "another end";
    return program.readAllStandardOutput();
}

void tst_LostScreen::capturesAreCompletedAndNothingIsWaitedFor()
{
    QCOMPARE(outputOf({}, 7), QByteArray("completed\n"));
}

void tst_LostScreen::aWriteToAServerThatIsGoneDoesNotEndTheProcess()
{
    QCOMPARE(outputOf({"writing"}, 7), QByteArray("not written\ncompleted\n"));
}

void tst_LostScreen::afterwardsTheEndIsAUsualOne()
{
    QCOMPARE(outputOf({"over"}, 7), QByteArray());
}

QTEST_GUILESS_MAIN(tst_LostScreen)
#include "tst_lostscreen.moc"
