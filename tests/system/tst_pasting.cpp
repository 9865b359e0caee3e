#include "ClipboardKeeper.h"
#include "Patience.h"
#include "Session.h"

#include <QClipboard>
#include <QDir>
#include <QFile>
#include <QGuiApplication>
#include <QMimeData>
#include <QUrl>

#include <memory>

// "Paste", as other programs of the desktop see it.
class TestPasting : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void otherProgramsFindThePhotoOnTheClipboard();
    void theDesktopKeepsThePhotoWhenTheProgramHasSavedIt();
    void aDesktopThatKeepsNothingIsNotWaitedFor();

private:
    void paste();

    std::unique_ptr<Session> m_user;
};

static QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("no file");
}

void TestPasting::init()
{
    m_user = std::make_unique<Session>(ORVANTA_PROGRAM, "cam1", QSize(640, 480));
    QVERIFY(m_user->startLive());
}

void TestPasting::cleanup()
{
    m_user.reset();
}

void TestPasting::paste()
{
    QVERIFY(m_user->takePhotoForPreview());
    QVERIFY(m_user->pressWhenReady(WindowMap::PreviewScreen, "Apply"));
    QVERIFY(m_user->pressWhenReady(WindowMap::PhotoScreen, "PutPhoto"));
    QTRY_VERIFY(!m_user->program().handedOver().isEmpty());
}

void TestPasting::otherProgramsFindThePhotoOnTheClipboard()
{
    paste();
    const QString photo =
        m_user->program().temporaryArea() + '/' + m_user->program().captured().value(0);
    const QClipboard &clipboard = *QGuiApplication::clipboard();
    QTRY_COMPARE(clipboard.mimeData()->data("image/png"), contentOf(photo));
    QCOMPARE(clipboard.image().size(), QSize(640, 480));
    QCOMPARE(clipboard.mimeData()->urls(), QList<QUrl>{QUrl::fromLocalFile(photo)});
}

void TestPasting::theDesktopKeepsThePhotoWhenTheProgramHasSavedIt()
{
    const ClipboardKeeper keeper;
    QVERIFY(keeper.isInCharge());
    paste();
    const QString name = m_user->program().captured().value(0);
    QVERIFY(m_user->pressWhenReady(WindowMap::PhotoScreen, "Close"));
    QVERIFY(m_user->answerExitQuestion("Yes"));
    QTRY_VERIFY(!m_user->program().isRunning()); // the keeper is to be heard meanwhile
    QVERIFY(!m_user->program().hasCrashed());
    const QString saved = m_user->program().saveFolder() + '/' + name;
    QCOMPARE(keeper.kept().value("image/png"), contentOf(saved));
    const QByteArray url = QUrl::fromLocalFile(saved).toEncoded();
    QCOMPARE(keeper.kept().value("text/uri-list").trimmed(), url);
    QCOMPARE(keeper.kept().value("x-special/gnome-copied-files"), "copy\n" + url);
}

void TestPasting::aDesktopThatKeepsNothingIsNotWaitedFor()
{
    paste();
    QVERIFY(m_user->pressWhenReady(WindowMap::PhotoScreen, "Close"));
    QVERIFY(m_user->answerExitQuestion("No"));
    QVERIFY(m_user->program().hasEndedWithin(4000));
    QVERIFY(!m_user->program().hasCrashed());
}

QTEST_MAIN(TestPasting)
#include "tst_pasting.moc"
