#include "Session.h"

#include <QFile>
#include <QIcon>
#include <QPixmap>
#include <QProcess>
#include <QRegularExpression>
#include <QSettings>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

// What a dock, a task list or a screen reader knows the window by: it has to lead to the program's
// entry in the menu, however the program was started.
class TestWindowIdentity : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void theClassIsTheOneThatTheMenuEntryNames();
    void theNameIsTheOneOfTheMenuEntry();
    void theIconIsThereInSizesForListsAndDocks();

private:
    QString property(const char *name) const;
    static QString entry(const QString &key);

    QTemporaryDir m_folder;
    std::unique_ptr<Session> m_user;
};

// By a link of another name, as a school's own starter may do.
void TestWindowIdentity::init()
{
    const QString link = m_folder.filePath("camera-of-room-12");
    QFile::remove(link);
    QVERIFY(QFile::link(ORVANTA_PROGRAM, link));
    m_user = std::make_unique<Session>(link, "cam1", QSize(640, 480));
    QVERIFY(m_user->startLive());
}

// The value as text: strings in quotes, numbers in a row; empty when the window has none.
QString TestWindowIdentity::property(const char *name) const
{
    QProcess xprop;
    xprop.start("xprop",
                {"-id", QString::number(m_user->mainWindow().id), "-notype", "-len", "9999999",
                 "-f", "_NET_WM_ICON", "32c", name});
    xprop.waitForFinished(10000);
    const QString line = QString::fromUtf8(xprop.readAllStandardOutput()).section('\n', 0, 0);
    return line.contains(" = ") ? line.section(" = ", 1) : QString();
}

QString TestWindowIdentity::entry(const QString &key)
{
    return QSettings(MENU_ENTRY, QSettings::IniFormat).value("Desktop Entry/" + key).toString();
}

void TestWindowIdentity::theClassIsTheOneThatTheMenuEntryNames()
{
    QVERIFY(!entry("StartupWMClass").isEmpty());
    // The file that was started, then what all its windows have in common.
    QCOMPARE(property("WM_CLASS"),
             QString("\"camera-of-room-12\", \"%1\"").arg(entry("StartupWMClass")));
}

void TestWindowIdentity::theNameIsTheOneOfTheMenuEntry()
{
    QCOMPARE(property("_NET_WM_NAME"), QString("\"%1\"").arg(entry("Name")));
}

void TestWindowIdentity::theIconIsThereInSizesForListsAndDocks()
{
    QVector<quint32> numbers;
    for (const QString &number : property("_NET_WM_ICON").split(", "))
        numbers.append(number.toUInt());
    const QIcon drawn(":/res/Vistrel.ico");
    QVector<int> sizes;
    for (int at = 0; at + 1 < numbers.size();) {
        const QSize size{int(numbers[at]), int(numbers[at + 1])};
        const int pixels = size.width() * size.height();
        QVERIFY2(pixels > 0 && at + 2 + pixels <= numbers.size(), "half an icon");
        const QImage image(reinterpret_cast<const uchar *>(&numbers[at + 2]), size.width(),
                           size.height(), QImage::Format_ARGB32);
        QCOMPARE(image, drawn.pixmap(size).toImage().convertToFormat(QImage::Format_ARGB32));
        sizes.append(size.width());
        at += 2 + pixels;
    }
    for (const int wanted : {16, 32, 48, 256})
        QVERIFY2(sizes.contains(wanted), qPrintable(QString::number(wanted)));
}

QTEST_MAIN(TestWindowIdentity)
#include "tst_windowidentity.moc"
