#include "FaultTrial.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QTest>

#include <algorithm>

// What ./test faults hands over.
static const char seedVariable[] = "ORVANTA_FAULTS_SEED";
static const char minutesVariable[] = "ORVANTA_FAULTS_MINUTES";
static const char folderVariable[] = "ORVANTA_FAULTS_FOLDER";

static qint64 timeGiven() // ms
{
    return qint64(qEnvironmentVariable(minutesVariable).toDouble() * 60000);
}

static QString fileNameFor(QString name)
{
    return name.replace(QRegularExpression("[^a-z0-9]+", QRegularExpression::CaseInsensitiveOption),
                        "-");
}

FaultTrial::FaultTrial(const QString &name, int usualTries, int wholeTries)
    : m_name(name)
    , m_wanted(isWholeSuite() ? wholeTries : usualTries)
    , m_time(isWholeSuite() ? timeGiven() : 0)
    , m_seed(qEnvironmentVariable(seedVariable, "1").toUInt())
{
    if (isWholeSuite()) {
        m_evidence = qEnvironmentVariable(folderVariable) + '/' + fileNameFor(name);
        QDir().mkpath(m_evidence);
    }
    m_since.start();
}

FaultTrial::~FaultTrial()
{
    const QString line = QStringList{m_name, QString::number(m_tries), QString::number(m_lost),
                                     QString::number(m_standstill), outcome()}
                             .join('\t');
    qInfo("%s", qPrintable(line));
    if (!isWholeSuite())
        return;
    QFile row(m_evidence + ".row");
    if (!row.open(QIODevice::WriteOnly) || row.write(line.toUtf8() + '\n') < 0)
        qWarning("%s cannot be written", qPrintable(row.fileName()));
}

bool FaultTrial::isWholeSuite()
{
    return qEnvironmentVariableIsSet(folderVariable);
}

bool FaultTrial::next()
{
    const bool wasEnough = m_time > 0 ? m_since.hasExpired(m_time) : m_tries >= m_wanted;
    if (QTest::currentTestFailed()) {
        qWarning("%s: failed in try %d of seed %u", qPrintable(m_name), m_tries, m_seed);
        return false;
    }
    if (wasEnough && m_tries > 0)
        return false;
    ++m_tries;
    // Not qHash() with its own seed, which is another one in each process.
    m_chance.seed(m_seed * 1000003U + qHash(m_name, 0) + quint32(m_tries));
    return true;
}

void FaultTrial::addStandstill(qint64 milliseconds)
{
    m_standstill = std::max(m_standstill, milliseconds);
}

QString FaultTrial::outcome() const
{
    if (QTest::currentTestFailed() || m_lost > 0)
        return "FAILED";
    return m_tries > 0 ? "held" : "not tried";
}
