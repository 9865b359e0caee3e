#include "DialogFixture.h"

#include "BoxGlance.h"
#include "CStretchBitmapButton.h"
#include "FakeEngine.h"
#include "WebcamUtil.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDialog>
#include <QDir>
#include <QLabel>
#include <QMap>
#include <QMessageBox>
#include <QProcess>
#include <QTest>

namespace {

void forgetPaths()
{
    WebcamUtil::m_apppath.clear();
    WebcamUtil::m_pictureDataPath.clear();
    WebcamUtil::m_tempbmpfilenameList.clear();
    WebcamUtil::m_savefilenameList.clear();
}

QString textOf(const QWidget &box)
{
    if (const auto *message = qobject_cast<const QMessageBox *>(&box))
        return message->text();
    const auto *label = box.findChild<QLabel *>();
    return label ? label->text() : box.windowTitle();
}

} // namespace

DialogFixture::RestoredVariable::RestoredVariable(const char *variable)
    : name(variable)
    , value(qgetenv(variable))
{
}

DialogFixture::RestoredVariable::~RestoredVariable()
{
    qputenv(name, value);
}

DialogFixture::DialogFixture()
{
    FakeEngine::reset();
    // Presses of these tests follow each other faster than any hand's, and are all meant.
    QApplication::setDoubleClickInterval(0);
    qputenv("HOME", QFile::encodeName(m_home.path()));
    qputenv("TMPDIR", QFile::encodeName(m_temporary.path()));
    qunsetenv("DBUS_SESSION_BUS_ADDRESS"); // whoever runs the test keeps his desktop as it is
    forgetPaths();
}

DialogFixture::~DialogFixture()
{
    m_dialog.reset();
    forgetPaths();
}

CVistrelDlg &DialogFixture::build()
{
    m_dialog = std::make_unique<CVistrelDlg>();
    if (m_dialog->isDeviceSelected())
        m_dialog->show();
    return *m_dialog;
}

QWidget &DialogFixture::button(const char *baseName) const
{
    auto *found = m_dialog->findChild<CStretchBitmapButton *>(QLatin1String(baseName),
                                                              Qt::FindDirectChildrenOnly);
    Q_ASSERT(found);
    return *found;
}

void DialogFixture::click(const char *baseName) const
{
    QTest::mouseClick(&button(baseName), Qt::LeftButton);
    const auto isDone = [] { return !FakeEngine::isSaving() || FakeEngine::script().writesSlowly; };
    if (!QTest::qWaitFor(isDone))
        qFatal("A photo is not written.");
}

QStringList DialogFixture::shownButtons() const
{
    QStringList shown;
    const auto buttons =
        m_dialog->findChildren<CStretchBitmapButton *>(QString(), Qt::FindDirectChildrenOnly);
    for (const CStretchBitmapButton *each : buttons)
        if (each->isVisible())
            shown.append(QStringLiteral("%1 %2,%3 %4x%5")
                             .arg(each->objectName())
                             .arg(each->x())
                             .arg(each->y())
                             .arg(each->width())
                             .arg(each->height()));
    return shown;
}

QStringList DialogFixture::usableButtons() const
{
    QStringList usable;
    const auto buttons =
        m_dialog->findChildren<CStretchBitmapButton *>(QString(), Qt::FindDirectChildrenOnly);
    for (const CStretchBitmapButton *each : buttons)
        if (each->isVisible() && each->isEnabled())
            usable.append(each->objectName());
    return usable;
}

void DialogFixture::setSettings(const QByteArray &lines) const
{
    QFile settings(home() + QStringLiteral("/.halcyra_orvantacc.ini"));
    if (!settings.open(QIODevice::WriteOnly) || settings.write("[General]\n" + lines) < 0)
        qFatal("The settings file cannot be written.");
}

QByteArray DialogFixture::movieOf(int frames)
{
    static QMap<int, QByteArray> made;
    QByteArray &movie = made[frames];
    if (!movie.isEmpty())
        return movie;
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("a.mov"));
    QProcess recorder;
    recorder.start(QStringLiteral("gst-launch-1.0"),
                   {"-q", "videotestsrc", QStringLiteral("num-buffers=%1").arg(frames), "!",
                    "video/x-raw,format=I420,width=160,height=120,framerate=10/1", "!", "x264enc",
                    "tune=zerolatency", "key-int-max=10", "!", "qtmux", "!", "filesink",
                    "location=" + path});
    recorder.waitForFinished(30000);
    QFile file(path);
    if (file.open(QIODevice::ReadOnly))
        movie = file.readAll();
    return movie;
}

QString DialogFixture::temporaryArea() const
{
    return WebcamUtil::getTemporaryPath();
}

QString DialogFixture::home() const
{
    return m_home.path();
}

QStringList DialogFixture::captures() const
{
    return QDir(temporaryArea()).entryList(QDir::Files | QDir::Hidden, QDir::Name);
}

void DialogFixture::fillTheDisk()
{
    // No folder can be made below a file, not even by root; a missing area counts as full.
    qputenv("TMPDIR", "/dev/null");
    WebcamUtil::m_pictureDataPath.clear();
}

QString DialogFixture::boxDuring(const std::function<void()> &action, const QString &answer)
{
    QString text;
    const BoxGlance user([&](QWidget &box) {
        text = textOf(box);
        const auto buttons = box.findChildren<QAbstractButton *>();
        for (QAbstractButton *button : buttons) {
            if (QString(button->text()).remove(QLatin1Char('&')) == answer) {
                button->click();
                return;
            }
        }
        box.close(); // no such button: leave the box as a user would
    });
    action();
    return text;
}
