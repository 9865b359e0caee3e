#include "HouseFiles.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QTest>

using HouseFiles::captured;
using HouseFiles::contentOf;

static const int patience = 30000; // ms, for a command to say what it is for

// What the pages tell a reader to open or to type is there and is understood.
class TestPages : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void everyPathLeadsSomewhere_data();
    void everyPathLeadsSomewhere();
    void everyCommandUnderstandsWhatItIsTold_data();
    void everyCommandUnderstandsWhatItIsTold();
    void everyToolIsThere_data();
    void everyToolIsThere();
    void everyPresetExists_data();
    void everyPresetExists();
    void everyTargetExists_data();
    void everyTargetExists();
    void everyVariableIsRead_data();
    void everyVariableIsRead();
    void everySettingIsTold_data();
    void everySettingIsTold();

private:
    struct Code {
        QString page;
        QString text;
    };

    static void addRows(const QVector<Code> &rows, const char *column);
    QVector<Code> matches(const QString &pattern) const;

    QVector<Code> m_codes; ///< what the pages set apart as code, line by line
    QVector<Code> m_typed; ///< those of them that a reader types as they are
    QVector<Code> m_links; ///< where they lead to
    QStringList m_files; ///< of the tree
    QString m_sources; ///< of everything that runs or is built
};

void TestPages::initTestCase()
{
    const QDir house(HOUSE);
    QDirIterator files(HOUSE, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        const QString path = house.relativeFilePath(files.next());
        if (path.startsWith("build/") || path.startsWith(".git/"))
            continue;
        m_files.append(path);
        const bool isScript = QFileInfo(house.filePath(path)).isExecutable();
        if (isScript || path.endsWith(".cpp") || path.endsWith(".txt"))
            m_sources += contentOf(path);
    }
    for (const QString page : {"README.md", "CONTRIBUTING.md", "ARCHITECTURE.md", "CHANGELOG.md"}) {
        const QString text = contentOf(page);
        QVERIFY2(!text.isEmpty(), qPrintable(page));
        for (const QString &code : captured(text, "^    ([^#\\n]+?)(?: +#.*)?$")) {
            m_codes.append({page, code});
            m_typed.append({page, code});
        }
        for (const QString &code : captured(text, "`([^`\\n]+)`"))
            m_codes.append({page, code});
        for (const QString &link : captured(text, "\\]\\(([^)]+)\\)"))
            m_links.append({page, link});
    }
    QVERIFY(m_codes.size() > 100 && m_links.size() > 5);
}

QVector<TestPages::Code> TestPages::matches(const QString &pattern) const
{
    QVector<Code> found;
    for (const Code &code : m_codes)
        for (const QString &part : captured(code.text, pattern))
            found.append({code.page, part});
    return found;
}

void TestPages::addRows(const QVector<Code> &rows, const char *column)
{
    QTest::addColumn<QString>(column);
    QVERIFY(!rows.isEmpty());
    QStringList names;
    for (const Code &row : rows) {
        const QString name = row.page + ": " + row.text;
        if (!names.contains(name))
            QTest::newRow(qPrintable(name)) << row.text;
        names.append(name);
    }
}

void TestPages::everyPathLeadsSomewhere_data()
{
    // A folder, something in one, or a file by its ending; not what is on other people's disks or
    // only made by the build.
    QVector<Code> rows = m_links;
    const QString path =
        "^(?:\\./)?+((?:[\\w.-]+/)+[\\w.-]*|[\\w-]+\\.(?:cpp|h|md|txt|svg|ui|sh))$";
    for (const Code &code : matches(path))
        if (!code.text.startsWith("build/"))
            rows.append(code);
    addRows(rows, "path");
}

void TestPages::everyPathLeadsSomewhere()
{
    QFETCH(QString, path);
    for (const QString &file : qAsConst(m_files))
        if (file == path || file.endsWith('/' + path)
            || (path.endsWith('/') && ('/' + file).contains('/' + path)))
            return;
    QFAIL("there is no such thing in the tree");
}

// Commands of our own: a script of the tree and what stands behind it.
void TestPages::everyCommandUnderstandsWhatItIsTold_data()
{
    QVector<Code> rows;
    for (const Code &code : qAsConst(m_codes)) {
        const QString script =
            code.text.section(' ', code.text.startsWith("sudo ") ? 1 : 0).section(' ', 0, 0);
        const QFileInfo file(QDir(HOUSE).filePath(script));
        if (code.text.startsWith("./")
            || (script.contains('/') && file.isFile() && file.isExecutable())
            || (code.text.contains(' ') && script.startsWith("tests/")))
            rows.append(code);
    }
    addRows(rows, "command");
}

// What the command says of itself; empty when it does not.
static QString helpOf(const QString &script)
{
    QProcess command;
    command.setWorkingDirectory(HOUSE);
    command.start(QDir(HOUSE).filePath(script), {"--help"});
    const bool helps = command.waitForFinished(patience)
        && command.exitStatus() == QProcess::NormalExit && command.exitCode() == 0;
    return helps ? QString::fromUtf8(command.readAllStandardOutput()) : QString();
}

void TestPages::everyCommandUnderstandsWhatItIsTold()
{
    QFETCH(QString, command);
    QStringList words = command.split(' ', Qt::SkipEmptyParts);
    if (words.first() == "sudo")
        words.removeFirst();
    const QString script = words.takeFirst();
    QVERIFY2(QFileInfo(QDir(HOUSE).filePath(script)).isExecutable(), "no such command");
    static const QRegularExpression openWord(
        "^([A-Z]+|[0-9]+(x[0-9]+)?)$"); // for the reader to fill in
    const int others = words.indexOf("-R"); // what follows is the test tool's own
    words = words.mid(0, others).filter(QRegularExpression("^(?!" + openWord.pattern() + ")"));
    if (words.isEmpty())
        return;
    const QString text = helpOf(script);
    QVERIFY2(!text.isEmpty(), "it does not help");
    for (const QString &word : qAsConst(words)) {
        if (QFileInfo::exists(QDir(HOUSE).filePath(word))) // for an option that takes one
            continue;
        QVERIFY2(text.contains(QRegularExpression("(?:^|[^\\w-])" + QRegularExpression::escape(word)
                                                  + "\\b")),
                 qPrintable(script + " knows nothing of " + word));
    }
}

// Commands that are not the tree's.
void TestPages::everyToolIsThere_data()
{
    QVector<Code> rows;
    for (const Code &typed : qAsConst(m_typed)) {
        const QString tool =
            typed.text.section(' ', typed.text.startsWith("sudo ") ? 1 : 0).section(' ', 0, 0);
        if (!tool.contains('/') && typed.page != "ARCHITECTURE.md") // where rooms are drawn so
            rows.append({typed.page, tool});
    }
    addRows(rows, "tool");
}

void TestPages::everyToolIsThere()
{
    QFETCH(QString, tool);
    QVERIFY(!QStandardPaths::findExecutable(tool).isEmpty());
}

void TestPages::everyPresetExists_data()
{
    addRows(matches("((?:cmake|ctest)(?: --build)? --preset [\\w-]+)"), "command");
}

void TestPages::everyPresetExists()
{
    QFETCH(QString, command);
    const QString kind = command.startsWith("ctest") ? "testPresets"
        : command.contains("--build")                ? "buildPresets"
                                                     : "configurePresets";
    QStringList names;
    const QJsonObject file =
        QJsonDocument::fromJson(contentOf("CMakePresets.json").toUtf8()).object();
    for (const auto &preset : file.value(kind).toArray())
        names.append(preset.toObject().value("name").toString());
    QVERIFY2(names.contains(command.section(' ', -1)), qPrintable(names.join(' ')));
}

void TestPages::everyTargetExists_data()
{
    addRows(matches("--target (\\w+)"), "target");
}

void TestPages::everyTargetExists()
{
    QFETCH(QString, target);
    QVERIFY(m_sources.contains(QRegularExpression("add_custom_target\\(" + target + "\\b")));
}

void TestPages::everyVariableIsRead_data()
{
    addRows(matches("(ORVANTA_[A-Z_]+)"), "name");
}

void TestPages::everyVariableIsRead()
{
    QFETCH(QString, name);
    QVERIFY(m_sources.contains(QRegularExpression("\\b" + name + "\\b")));
}

// By its name in the settings' file.
void TestPages::everySettingIsTold_data()
{
    QVector<Code> rows;
    for (const QString &key :
         captured(contentOf("settings/Setting.cpp"), "setValue\\(QStringLiteral\\(\"(\\w+)\""))
        rows.append({"settings", key});
    addRows(rows, "key");
}

void TestPages::everySettingIsTold()
{
    QFETCH(QString, key);
    QVERIFY(contentOf("README.md").contains("| `" + key + "` |"));
}

QTEST_GUILESS_MAIN(TestPages)
#include "tst_pages.moc"
