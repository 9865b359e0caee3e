#include "FaultTrial.h"
#include "Fuzzed.h"

#include <QDir>
#include <QElapsedTimer>
#include <QTest>

#include <limits>

using Target = void (*)(const QByteArray &);
Q_DECLARE_METATYPE(Target)

static constexpr qint64 wholeTime = 60000; // ms

// What reads foreign bytes, on the examples that the fuzzers begin with and on such examples
// damaged. What is wrong ends this process; the sanitizers see more than it does by itself.
class TestFuzzed : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void bytesOfAnyKindDoNoHarm_data();
    void bytesOfAnyKindDoNoHarm();

private:
    static QByteArrayList examplesOf(const QString &target);
    static QByteArray damaged(const QByteArrayList &examples, FaultTrial &trial);
};

void TestFuzzed::bytesOfAnyKindDoNoHarm_data()
{
    QTest::addColumn<Target>("target");
    QTest::addColumn<QString>("fault");
    QTest::newRow("settings") << &Fuzzed::settings << "a settings file holds anything";
    QTest::newRow("pictures") << &Fuzzed::pictures << "a photo's file holds anything";
    QTest::newRow("names") << &Fuzzed::names << "captures are called anything";
    QTest::newRow("caps") << &Fuzzed::caps << "a camera offers anything";
}

QByteArrayList TestFuzzed::examplesOf(const QString &target)
{
    const QDir folder(QStringLiteral(CORPUS) + '/' + target);
    QByteArrayList examples;
    for (const QString &name : folder.entryList(QDir::Files)) {
        QFile file(folder.filePath(name));
        if (file.open(QIODevice::ReadOnly))
            examples.append(file.readAll());
    }
    return examples;
}

QByteArray TestFuzzed::damaged(const QByteArrayList &examples, FaultTrial &trial)
{
    QByteArray bytes = examples[trial.upTo(examples.size() - 1)];
    for (int i = trial.upTo(7); i >= 0; --i) {
        const QByteArray &other = examples[trial.upTo(examples.size() - 1)];
        const int at = trial.upTo(bytes.size());
        switch (trial.upTo(4)) {
        case 0:
            bytes.insert(at, char(trial.upTo(255)));
            break;
        case 1:
            bytes.remove(at, trial.upTo(16));
            break;
        case 2:
            bytes.insert(at, other.mid(trial.upTo(other.size()), 64));
            break;
        default:
            if (at < bytes.size())
                bytes[at] = char(bytes[at] ^ (1 << trial.upTo(7)));
        }
    }
    return bytes;
}

void TestFuzzed::bytesOfAnyKindDoNoHarm()
{
    QFETCH(Target, target);
    QFETCH(QString, fault);
    const QByteArrayList examples = examplesOf(QTest::currentDataTag());
    QVERIFY(!examples.isEmpty());
    for (const QByteArray &example : examples)
        target(example);
    FaultTrial trial(fault, 150, std::numeric_limits<int>::max());
    QElapsedTimer since;
    since.start();
    while (!(FaultTrial::isWholeSuite() && since.hasExpired(wholeTime)) && trial.next()) {
        const QByteArray bytes = damaged(examples, trial);
        QFile last(trial.evidence() + "/last");
        if (FaultTrial::isWholeSuite()
            && (!last.open(QIODevice::WriteOnly) || last.write(bytes) != bytes.size()))
            QFAIL("what is tried cannot be kept");
        last.close();
        QElapsedTimer time;
        time.start();
        target(bytes);
        trial.addStandstill(time.elapsed());
    }
}

QTEST_MAIN(TestFuzzed)
#include "tst_fuzzed.moc"
