#include "Session.h"

#include "LabPattern.h"
#include "PlainButtons.h"
#include "SaveConfirmDlg.h"
#include "Setting.h"
#include "SpareTime.h"
#include "WebcamUtil.h"

#include <QApplication>
#include <QDeadlineTimer>
#include <QMessageBox>
#include <QPushButton>
#include <QScreen>
#include <QTest>

namespace {

// An emulated machine needs many times as long as the one that it runs on.
const int patience = qMax(1, qEnvironmentVariableIntValue("ORVANTA_LAB_PATIENCE"));
const int startLimit = 60000 * patience; // ms, also of a busy machine
const int reactionLimit = 30000 * patience; // ms
// Colours that went through the camera's luma and chroma, and through scaling.
constexpr int colourTolerance = 16;
// To look at the screen all the time would leave an emulated machine nothing for the program.
const int betweenLooks = patience > 1 ? 200 : 10; // ms

} // namespace

Session::Session(const QString &executable, const QString &cameraName, QSize cameraSize, QRect area)
    : m_program(executable)
    , m_camera(cameraSize)
    , m_area(area.isNull() ? m_desktop.screen() : area)
    , m_map(m_area, int(qApp->devicePixelRatio()), cameraSize)
    , m_ground(LabPattern::groundOf(cameraName))
{
    QApplication::setStyle(new PlainButtons); // of the program, for the twins of its boxes
}

Session::~Session()
{
    if (QTest::currentTestFailed())
        qWarning(
            "when the test had failed, the program %s, \"%s\" was in front, and it had said: %s",
            m_program.isRunning() ? "ran" : "had ended",
            qPrintable(m_desktop.topWindowOf(m_program.pid()).title),
            qPrintable(m_program.output()));
}

bool Session::waitFor(const std::function<bool()> &isThere, int limit)
{
    const QDeadlineTimer deadline(limit);
    while (!isThere()) {
        if (deadline.hasExpired())
            return isThere();
        QTest::qWait(betweenLooks); // nothing to wait for: looked at again, up to a limit
    }
    return true;
}

bool Session::startLive()
{
    m_program.start();
    return waitForMainWindow()
        && waitFor([this] { return isLiveAt(m_map.videoRect()); }, startLimit);
}

bool Session::waitForMainWindow()
{
    const bool isUp = waitFor([this] { return mainWindow().id != 0; }, startLimit);
    if (!isUp)
        qWarning("the window did not come up; \"%s\" is in front; the program said: %s",
                 qPrintable(m_desktop.topWindowOf(m_program.pid()).title),
                 qPrintable(m_program.output()));
    return isUp;
}

bool Session::waitForMainWindowAt(QRect area)
{
    m_area = area;
    // Buttons are as wide as a screen lets them be, and the map measures some of its own.
    const auto screenIsKnown = [area] {
        return QGuiApplication::primaryScreen()->availableGeometry().size()
            == area.size() / qApp->devicePixelRatio();
    };
    if (!waitFor(screenIsKnown, startLimit))
        return false;
    m_map = WindowMap(area, int(qApp->devicePixelRatio()), m_camera);
    return waitForMainWindow();
}

bool Session::waitForChooser()
{
    const bool isAsked = waitFor([this] { return dialog().isActive; }, startLimit);
    if (!isAsked)
        qWarning("nothing was asked; the window %s; the program said: %s",
                 mainWindow().id ? "came up" : "did not come up", qPrintable(m_program.output()));
    return isAsked;
}

Desktop::Window Session::mainWindow() const
{
    for (const Desktop::Window &window : m_desktop.windowsOf(m_program.pid()))
        if (window.geometry == m_area)
            return window;
    return {};
}

Desktop::Window Session::dialog() const
{
    const Desktop::Window top = m_desktop.topWindowOf(m_program.pid());
    return top.geometry == m_area ? Desktop::Window() : top;
}

bool Session::waitForDialog(const QString &title)
{
    // Active, so that it has been mapped and placed where it will stay.
    return waitFor(
        [&] {
            const Desktop::Window found = dialog();
            return found.isActive && found.title == title;
        },
        reactionLimit);
}

bool Session::waitUntilNoDialog()
{
    return waitFor([this] { return dialog().id == 0; }, reactionLimit);
}

int Session::counterAt(QRect place) const
{
    return LabPattern::counterOf(seenAt(place));
}

bool Session::isPicture(const QImage &seen) const
{
    return LabPattern::counterOf(seen) >= 0
        && LabPattern::worstDifference(seen, m_ground) < colourTolerance;
}

bool Session::isLiveAt(QRect place) const
{
    const QImage first = seenAt(place);
    const int counter = LabPattern::counterOf(first);
    return isPicture(first) && waitFor([&] { return counterAt(place) > counter; }, 1000);
}

bool Session::isStillAt(QRect place) const
{
    const QImage first = seenAt(place);
    return isPicture(first) && !waitFor([&] { return seenAt(place) != first; }, 300);
}

void Session::press(WindowMap::Screen screen, const QString &button)
{
    m_desktop.click(m_map.button(screen, button).center());
}

bool Session::pressWhenReady(WindowMap::Screen screen, const QString &button)
{
    const auto ready = [&] {
        return m_map.look(m_desktop.screenshot(), screen, button) == WindowMap::Up;
    };
    if (!waitFor(ready, reactionLimit))
        return false;
    press(screen, button);
    return true;
}

bool Session::isRecording()
{
    return m_map.look(m_desktop.screenshot(), WindowMap::RecordingScreen,
                      QStringLiteral("MovieStop"))
        == WindowMap::Up;
}

bool Session::beginMovie()
{
    static constexpr int mostTries = 8;
    for (int i = 0; i < mostTries; ++i) {
        const SpareTime spare;
        const bool isPressed = pressWhenReady(WindowMap::LiveScreen, QStringLiteral("Movie"));
        bool hasBegun = false;
        const auto isAnswered = [&] {
            hasBegun = isRecording();
            return hasBegun || dialog().isActive;
        };
        const bool answers = isPressed && waitFor(isAnswered, startLimit);
        if (hasBegun)
            return true;
        if (!answers || spare.isPlenty() || !dismissMessage()) {
            qWarning(
                "no movie at try %d: \"Movie\" was %spressed, there was %sanswer; idle for %.0f "
                "%%, longest wait %d ms",
                i + 1, isPressed ? "" : "not ", answers ? "an " : "no ", 100 * spare.idleShare(),
                spare.longestWait());
            return false;
        }
    }
    return false;
}

bool Session::takePhotoForPreview()
{
    const int before = m_program.captured().size();
    return pressWhenReady(WindowMap::LiveScreen, "Photo")
        && waitFor(
               [&] {
                   return m_program.captured().size() == before + 1
                       && m_map.look(m_desktop.screenshot(), WindowMap::PreviewScreen, "Apply")
                       == WindowMap::Up;
               },
               reactionLimit);
}

bool Session::waitForPressable(WindowMap::Screen screen, const QStringList &buttons)
{
    return waitFor([&] { return m_map.pressable(m_desktop.screenshot(), screen) == buttons; },
                   reactionLimit);
}

bool Session::clickInSettings(const QString &objectName)
{
    if (!waitForDialog("Settings"))
        return false;
    Setting twin(nullptr);
    const auto *control = twin.findChild<QWidget *>(objectName);
    if (!control)
        return false;
    m_desktop.click(WindowMap::inDialog(&twin, control, dialog().geometry.topLeft()));
    return true;
}

bool Session::answerExitQuestion(const QString &caption)
{
    if (!waitForDialog("Orvanta"))
        return false;
    SaveConfirmDlg twin;
    for (const auto *button : twin.findChildren<QPushButton *>()) {
        if (button->text() == caption) {
            m_desktop.click(WindowMap::inDialog(&twin, button, dialog().geometry.topLeft()));
            return true;
        }
    }
    return false;
}

void Session::chooseCamera(int position)
{
    for (int i = 0; i < position; ++i)
        m_desktop.pressKey("Down");
    m_desktop.pressKey("Tab");
    m_desktop.pressKey("space");
}

void Session::prepareTwin(QMessageBox *box) const
{
    box->setIcon(QMessageBox::Warning);
    box->setWindowTitle("Orvanta");
    box->setText(m_messageText);
    box->setStandardButtons(QMessageBox::Ok);
    box->button(QMessageBox::Ok)->setText(m_confirmText);
    box->setAttribute(Qt::WA_DontShowOnScreen);
    // Long texts break into lines by the size the box has before it is shown.
    WebcamUtil::moveToCenter(box, nullptr);
    box->show();
}

bool Session::messageSays(const QString &text, const QString &confirm)
{
    m_messageText = text;
    m_confirmText = confirm;
    QMessageBox twin;
    prepareTwin(&twin);
    const QImage expected = twin.grab().toImage().convertToFormat(QImage::Format_RGB32);
    m_desktop.moveMouse({0, 0}); // a button that the mouse is on looks different
    return waitFor(
        [&] {
            const Desktop::Window box = dialog();
            return box.id != 0 && seenAt(box.geometry) == expected;
        },
        reactionLimit);
}

bool Session::dismissMessage()
{
    m_desktop.pressKey("Return");
    return waitUntilNoDialog();
}

bool Session::confirmMessage()
{
    QMessageBox twin;
    prepareTwin(&twin);
    const auto *ok = twin.button(QMessageBox::Ok);
    m_desktop.click(WindowMap::inDialog(&twin, ok, dialog().geometry.topLeft()));
    return waitUntilNoDialog();
}
