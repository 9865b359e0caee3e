// The program as it comes up for users of the whiteboard application in different languages. What
// it speaks shows in the title of its settings, and which way it reads in the order of the answers
// to its save question.

#include "Desktop.h"
#include "Patience.h"
#include "Program.h"

#include <QDir>
#include <QTemporaryDir>

#include <functional>
#include <memory>
#include <unistd.h>

namespace {

// Long for a person, but the machine may be building something else meanwhile.

/// The program and all that lies beside it, in a folder that a test may add to and take from. As
/// further names of the same files: copies of the program for each start keep a disk busy.
bool linkProgram(const QString &folder)
{
    const QDir from(QStringLiteral(PROGRAM_FOLDER));
    const QStringList names = from.entryList(QDir::Files);
    for (const QString &name : names) {
        const QByteArray file = QFile::encodeName(QFileInfo(from, name).canonicalFilePath());
        if (link(file.constData(), QFile::encodeName(folder + QLatin1Char('/') + name).constData())
            != 0)
            return false;
    }
    return !names.isEmpty();
}

} // namespace

class StartLanguagesTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void speaksTheWhiteboardsLanguage_data();
    void speaksTheWhiteboardsLanguage();
    void theSaveQuestionReadsInTheDirectionOfTheLanguage_data();
    void theSaveQuestionReadsInTheDirectionOfTheLanguage();

private:
    void addStoredLanguages();
    void startWith(const QString &stored, const QString &missing);
    QPoint middleOfSmallButton(int placeFromBottom) const;
    bool pressUntil(QPoint place, const std::function<bool()> &hasHappened) const;
    bool isOnTop(const QString &title) const;

    Desktop m_desktop;
    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<Program> m_program;
};

void StartLanguagesTest::init()
{
    QVERIFY(m_desktop.isOpen());
    m_folder = std::make_unique<QTemporaryDir>();
    QVERIFY(m_folder->isValid());
    QVERIFY(linkProgram(m_folder->path()));
    m_program = std::make_unique<Program>(m_folder->filePath(QStringLiteral("orvanta")));
}

void StartLanguagesTest::cleanup()
{
    // Ended, not killed: a camera does not get back what a killed program had of it.
    constexpr int rounds = 10;
    for (int i = 0; i < rounds && !m_program->hasEndedWithin(i * 1000); ++i)
        m_desktop.closeWindow(m_desktop.topWindowOf(m_program->pid()).id);
    if (m_program->isRunning())
        QWARN("the program did not end when its windows were closed");
    m_program.reset();
    m_folder.reset();
}

/// Starts the program for a user whose whiteboard application stores a language, after the file of
/// a language was taken away, and waits for the window.
void StartLanguagesTest::startWith(const QString &stored, const QString &missing)
{
    if (!missing.isEmpty())
        QVERIFY(QFile::remove(m_folder->filePath(QStringLiteral("qvexplugin_%1.qm").arg(missing))));
    m_program->setLanguage(stored);
    m_program->start();
    QTRY_VERIFY2(isOnTop(QStringLiteral("Orvanta")), qPrintable(m_program->output()));
}

/// As a person does it who sees that nothing happens: the first press on a window that has just
/// come up can be lost on a busy machine.
bool StartLanguagesTest::pressUntil(QPoint place, const std::function<bool()> &hasHappened) const
{
    constexpr int presses = 5;
    for (int i = 0; i < presses; ++i) {
        m_desktop.click(place);
        if (QTest::qWaitFor(hasHappened, patience / presses))
            return true;
    }
    return false;
}

/// Active too, so that it is on the screen: what is clicked before hits the desktop behind it.
bool StartLanguagesTest::isOnTop(const QString &title) const
{
    const Desktop::Window top = m_desktop.topWindowOf(m_program->pid());
    return top.title == title && top.isActive;
}

/// "Exit" is in the right corner at the bottom, "Settings" above it.
QPoint StartLanguagesTest::middleOfSmallButton(int placeFromBottom) const
{
    const QSize button(m_desktop.screen().width() / 6, 38);
    return m_desktop.screen().bottomRight()
        - QPoint(button.width() / 2, button.height() / 2 + placeFromBottom * button.height());
}

void StartLanguagesTest::addStoredLanguages()
{
    QTest::addColumn<QString>("stored");
    QTest::addColumn<QString>("missing");
    QTest::addColumn<QString>("settings");
    QTest::addColumn<bool>("isRightToLeft");
    QTest::newRow("German") << "de"
                            << ""
                            << "Optionen" << false;
    QTest::newRow("Brazilian with Portuguese only") << "pt_BR"
                                                    << "pt_BR"
                                                    << "Definições" << false;
    QTest::newRow("Bokmål") << "nb_NO"
                            << ""
                            << "Innstillinger" << false;
    QTest::newRow("Arabic without its file") << "ar"
                                             << "ar"
                                             << "Settings" << false;
    QTest::newRow("Hebrew") << "he"
                            << ""
                            << "הגדרות" << true;
}

void StartLanguagesTest::speaksTheWhiteboardsLanguage_data()
{
    addStoredLanguages();
}

void StartLanguagesTest::speaksTheWhiteboardsLanguage()
{
    QFETCH(QString, stored);
    QFETCH(QString, missing);
    QFETCH(QString, settings);
    startWith(stored, missing);
    if (QTest::currentTestFailed())
        return;
    QVERIFY(m_program->isRunning());
    QVERIFY(pressUntil(middleOfSmallButton(1), [&] { return isOnTop(settings); }));
    m_desktop.pressKey("Escape");
    QTRY_VERIFY(isOnTop(QStringLiteral("Orvanta")));
}

void StartLanguagesTest::theSaveQuestionReadsInTheDirectionOfTheLanguage_data()
{
    addStoredLanguages();
}

// The answers are "Yes", "No" and "Cancel" in the order of reading: the one at the right saves and
// ends the program, or lets it go on.
void StartLanguagesTest::theSaveQuestionReadsInTheDirectionOfTheLanguage()
{
    QFETCH(QString, stored);
    QFETCH(QString, missing);
    QFETCH(bool, isRightToLeft);
    const QString photo =
        m_program->temporaryArea() + QStringLiteral("/photo20240229101500000.png");
    QVERIFY(QDir().mkpath(m_program->temporaryArea()));
    QVERIFY(QImage(4, 3, QImage::Format_RGB32).save(photo));
    startWith(stored, missing);
    if (QTest::currentTestFailed())
        return;
    const quint32 window = m_desktop.topWindowOf(m_program->pid()).id;
    Desktop::Window top;
    QVERIFY(pressUntil(middleOfSmallButton(0), [&] {
        top = m_desktop.topWindowOf(m_program->pid());
        return top.id != window && top.isActive;
    }));

    const QRect question = top.geometry;
    m_desktop.click(question.bottomRight() - QPoint(question.width() / 6, 22));
    if (isRightToLeft) {
        QTRY_VERIFY(!m_program->isRunning());
        QVERIFY(!QFile::exists(photo));
        QVERIFY(!QDir(m_program->saveFolder()).isEmpty());
    } else {
        QTRY_COMPARE(m_desktop.topWindowOf(m_program->pid()).id, window);
        QVERIFY(m_program->isRunning());
        QVERIFY(QFile::exists(photo));
    }
}

QTEST_GUILESS_MAIN(StartLanguagesTest)
#include "tst_startlanguages.moc"
