#include "HouseFiles.h"

#include <QDir>
#include <QDirIterator>
#include <QMap>
#include <QRegularExpression>
#include <QSet>
#include <QTest>

using HouseFiles::contentOf;

// What ARCHITECTURE.md says of the house is true of the house.
class TestArchitecture : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void theDrawingShowsTheRooms();
    void noRoomIsReachedByItsPath();
    void everyFileThatIsNamedExists_data();
    void everyFileThatIsNamedExists();
    void everyNameIsOneOfTheCode_data();
    void everyNameIsOneOfTheCode();

private:
    int floorOf(const QString &room) const;
    QString drawing() const;
    void addRows(const QRegularExpression &pattern) const;

    QString m_text; ///< of ARCHITECTURE.md
    QString m_code; ///< of all headers, sources and build scripts
    QStringList m_files; ///< of the house, each with its folder
    QMap<QString, QStringList> m_rooms; ///< which rooms each uses, in order
};

static QString withoutComments(QString script)
{
    return script.remove(QRegularExpression("#[^\n]*"));
}

// The folders whose build scripts make a room; which of the targets they link are other rooms'.
static QMap<QString, QStringList> readRooms()
{
    const QRegularExpression target("(?:orvanta_room|add_library)\\((\\w+)");
    QMap<QString, QString> scripts;
    QMap<QString, QString> owners; // of targets
    for (const QString &folder : QDir(HOUSE).entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
        const QString script = withoutComments(contentOf(folder + "/CMakeLists.txt"));
        auto found = target.globalMatch(script);
        while (found.hasNext() && folder != "tests") {
            const QString name = found.next().captured(1);
            scripts[folder] = script;
            owners[name.startsWith("orvanta_") || name[0].isUpper() ? name : "orvanta_" + name] =
                folder;
        }
    }
    QMap<QString, QStringList> rooms;
    for (auto script = scripts.cbegin(); script != scripts.cend(); ++script) {
        QSet<QString> used;
        for (auto owner = owners.cbegin(); owner != owners.cend(); ++owner)
            if (owner.value() != script.key()
                && script.value().contains(QRegularExpression("\\b" + owner.key() + "\\b")))
                used.insert(owner.value());
        QStringList sorted = used.values();
        sorted.sort();
        rooms[script.key()] = sorted;
    }
    return rooms;
}

void TestArchitecture::initTestCase()
{
    m_text = contentOf("ARCHITECTURE.md");
    QVERIFY(!m_text.isEmpty());
    const QDir house(HOUSE);
    QDirIterator files(HOUSE, QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        const QString path = house.relativeFilePath(files.next());
        if (path.startsWith("build/") || path.startsWith(".git/"))
            continue;
        m_files.append(path);
        if (path.endsWith(".cpp") || path.endsWith(".h") || path.endsWith("CMakeLists.txt"))
            m_code += contentOf(path);
    }
    m_rooms = readRooms();
    QVERIFY(m_rooms.contains("app") && m_rooms.contains("engine"));
}

int TestArchitecture::floorOf(const QString &room) const
{
    int floor = 0;
    for (const QString &used : m_rooms.value(room))
        floor = qMax(floor, floorOf(used) + 1);
    return floor;
}

QString TestArchitecture::drawing() const
{
    int top = 0;
    for (const QString &room : m_rooms.keys())
        top = qMax(top, floorOf(room));
    QString lines;
    for (int floor = top; floor >= 0; --floor) {
        bool isFirst = true;
        for (auto room = m_rooms.cbegin(); room != m_rooms.cend(); ++room) {
            if (floorOf(room.key()) != floor)
                continue;
            const QString number = isFirst ? QString("floor %1").arg(floor) : QString(7, ' ');
            QString line = number + "  " + room.key().leftJustified(16);
            if (!room.value().isEmpty())
                line += "-> " + room.value().join(' ');
            while (line.endsWith(' '))
                line.chop(1);
            lines += line + '\n';
            isFirst = false;
        }
    }
    return lines;
}

void TestArchitecture::theDrawingShowsTheRooms()
{
    QVERIFY2(m_text.contains("```text\n" + drawing() + "```"),
             qPrintable("ARCHITECTURE.md is to show this:\n" + drawing()));
}

// The build sees to it that a room finds only the headers of rooms that it links, and that those
// stand below; what is left is to reach one by its path.
void TestArchitecture::noRoomIsReachedByItsPath()
{
    const QRegularExpression include("#include \"([^\"]*/[^\"]*)\"");
    for (const QString &path : qAsConst(m_files)) {
        if (!m_rooms.contains(path.section('/', 0, 0)))
            continue;
        const QRegularExpressionMatch found = include.match(contentOf(path));
        QVERIFY2(!found.hasMatch(), qPrintable(path + " includes " + found.captured(1)));
    }
}

void TestArchitecture::addRows(const QRegularExpression &pattern) const
{
    QTest::addColumn<QString>("name");
    QSet<QString> names;
    auto found = pattern.globalMatch(m_text);
    while (found.hasNext())
        names.insert(found.next().captured(1));
    QVERIFY(names.size() > 10);
    for (const QString &name : qAsConst(names))
        QTest::newRow(qPrintable(name)) << name;
}

void TestArchitecture::everyFileThatIsNamedExists_data()
{
    addRows(QRegularExpression("`([\\w./-]+(?:\\.(?:cpp|h|md|txt|svg|ui|ts|ini|json)|/))`"));
}

void TestArchitecture::everyFileThatIsNamedExists()
{
    QFETCH(QString, name);
    for (const QString &file : qAsConst(m_files))
        if (file == name || file.endsWith('/' + name)
            || (name.endsWith('/') && file.contains(name)))
            return;
    QFAIL("there is no such file");
}

// Classes, functions and members; a name that the code does not know has been renamed or gone.
void TestArchitecture::everyNameIsOneOfTheCode_data()
{
    addRows(QRegularExpression("`((?:[A-Za-z]\\w*::)*[A-Za-z]\\w*)(?:\\(\\))?`"));
}

void TestArchitecture::everyNameIsOneOfTheCode()
{
    QFETCH(QString, name);
    const QString last = name.section("::", -1);
    const bool isFolder = QDir(HOUSE).exists(name);
    QVERIFY2(isFolder || m_code.contains(QRegularExpression("\\b" + last + "\\b")),
             "the code has no such name");
    if (name.contains("::"))
        QVERIFY2(m_code.contains(name + '('), "the class has no such function");
}

QTEST_GUILESS_MAIN(TestArchitecture)
#include "tst_architecture.moc"
