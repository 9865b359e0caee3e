// A person at the program, told by lines what to do. Each line is answered by one that begins with
// "ok" or "failed"; times are the monotonic clock's in ns.
//
//   bench_user PROGRAM CAMERA WIDTHxHEIGHT     the program, and the camera that it is to show
//
//   settings LINE;LINE...      for the next start
//   start                      ok TIME PID, the moment before it
//   buttons SCREEN NAME...     waits until all of them can be pressed: ok TIME
//   shows SCREEN NAME...       ok if all of them can be pressed now
//   live                       waits until the live picture moves: ok TIME
//   place NAME [COUNT I]       ok X,Y,WIDTHxHEIGHT: video, preview, photo, selection, thumbnail I,
//                              tile COUNT I; row, of the live screen's buttons
//   press SCREEN NAME          waits until it can be pressed: ok TIME, when the finger left it
//   click X Y                  the same at a point of the screen
//   key NAME                   ok TIME
//   corner COUNT I             presses "Zoom" of a tile; of COUNT 0, "Back" of the zoomed picture
//   photos COUNT               takes that many, from live to live, with no preview to accept
//   window                     ok NUMBER of the program's main window
//   folder                     ok PATH, where captures lie
//   saved                      ok PATH, where "Yes" puts them
//   answer CAPTION             of the question at exit: ok TIME
//   ended                      waits until the program has ended: ok TIME
//   dialog TITLE               waits for it: ok TIME

#include "SaveConfirmDlg.h"
#include "Session.h"

#include <QApplication>
#include <QHash>
#include <QPushButton>
#include <QTest>

#include <algorithm>
#include <cstdio>
#include <ctime>
#include <functional>
#include <iostream>
#include <string>

namespace {

constexpr int fingerTime = 25; // ms, that a finger stays on a button
constexpr int glance = 5; // ms between two looks at a button
constexpr int patience = 40000; // ms
constexpr int longPatience = 300000; // ms, for hundreds of captures on their way to another disk

qint64 nanosecondsNow()
{
    timespec now = {};
    clock_gettime(CLOCK_MONOTONIC, &now);
    return qint64(now.tv_sec) * 1000000000 + now.tv_nsec;
}

QString failed(const QString &why)
{
    return QStringLiteral("failed: ") + why;
}

QString text(const QRect &place)
{
    return QStringLiteral("%1,%2,%3x%4")
        .arg(place.x())
        .arg(place.y())
        .arg(place.width())
        .arg(place.height());
}

/// The orders of one program.
class User {
public:
    User(const QString &program, const QString &camera, QSize size);

    QString obey(const QString &line);

private:
    QString start();
    QString waitForButtons(const QStringList &words);
    QString waitForLive();
    QString placeOf(const QStringList &words);
    QString press(const QStringList &words);
    QString clickAt(QPoint point);
    QString pressCorner(const QStringList &words);
    QString takePhotos(int count);
    QString answer(const QString &caption);
    QString waitForEnd();
    bool canBePressed(WindowMap::Screen screen, const QStringList &buttons);
    WindowMap::Screen screenOf(const QString &name) const;

    Session m_session;
    QHash<QString, std::function<QString(const QStringList &)>> m_orders;
};

User::User(const QString &program, const QString &camera, QSize size)
    : m_session(program, camera, size)
{
    m_orders[QStringLiteral("settings")] = [this](const QStringList &words) {
        const QByteArray lines = words.value(1).replace(';', '\n').toUtf8() + '\n';
        return m_session.program().writeSettings(lines) ? QStringLiteral("ok")
                                                        : failed(QStringLiteral("no settings"));
    };
    m_orders[QStringLiteral("start")] = [this](const QStringList &) { return start(); };
    m_orders[QStringLiteral("buttons")] = [this](const QStringList &words) {
        return waitForButtons(words);
    };
    m_orders[QStringLiteral("shows")] = [this](const QStringList &words) {
        return canBePressed(screenOf(words.value(1)), words.mid(2))
            ? QStringLiteral("ok")
            : failed(QStringLiteral("not all of them"));
    };
    m_orders[QStringLiteral("live")] = [this](const QStringList &) { return waitForLive(); };
    m_orders[QStringLiteral("place")] = [this](const QStringList &words) { return placeOf(words); };
    m_orders[QStringLiteral("press")] = [this](const QStringList &words) { return press(words); };
    m_orders[QStringLiteral("click")] = [this](const QStringList &words) {
        return clickAt({words.value(1).toInt(), words.value(2).toInt()});
    };
    m_orders[QStringLiteral("key")] = [this](const QStringList &words) {
        m_session.desktop().pressKey(qPrintable(words.value(1)));
        return QStringLiteral("ok %1").arg(nanosecondsNow());
    };
    m_orders[QStringLiteral("corner")] = [this](const QStringList &words) {
        return pressCorner(words);
    };
    m_orders[QStringLiteral("photos")] = [this](const QStringList &words) {
        return takePhotos(words.value(1).toInt());
    };
    m_orders[QStringLiteral("window")] = [this](const QStringList &) {
        return QStringLiteral("ok %1").arg(m_session.mainWindow().id);
    };
    m_orders[QStringLiteral("folder")] = [this](const QStringList &) {
        return QStringLiteral("ok ") + m_session.program().temporaryArea();
    };
    m_orders[QStringLiteral("saved")] = [this](const QStringList &) {
        return QStringLiteral("ok ") + m_session.program().saveFolder();
    };
    m_orders[QStringLiteral("answer")] = [this](const QStringList &words) {
        return answer(words.value(1));
    };
    m_orders[QStringLiteral("ended")] = [this](const QStringList &) { return waitForEnd(); };
    m_orders[QStringLiteral("dialog")] = [this](const QStringList &words) {
        return m_session.waitForDialog(words.value(1))
            ? QStringLiteral("ok %1").arg(nanosecondsNow())
            : failed(QStringLiteral("no such dialog"));
    };
}

QString User::obey(const QString &line)
{
    const QStringList words = line.split(' ');
    const auto order = m_orders.constFind(words.value(0));
    return order == m_orders.cend() ? failed(QStringLiteral("what is ") + line) : (*order)(words);
}

QString User::start()
{
    // What the buttons look like is found out when it is first asked, which takes a moment.
    m_session.map().pressable(m_session.desktop().screenshot(), WindowMap::LiveScreen);
    const qint64 before = nanosecondsNow();
    m_session.program().start();
    return m_session.program().isRunning()
        ? QStringLiteral("ok %1 %2").arg(before).arg(m_session.program().pid())
        : failed(QStringLiteral("it does not start"));
}

WindowMap::Screen User::screenOf(const QString &name) const
{
    static const QHash<QString, WindowMap::Screen> screens = {
        {QStringLiteral("live"), WindowMap::LiveScreen},
        {QStringLiteral("photo"), WindowMap::PhotoScreen},
        {QStringLiteral("preview"), WindowMap::PreviewScreen},
        {QStringLiteral("list"), WindowMap::ListScreen},
        {QStringLiteral("movielist"), WindowMap::MovieListScreen},
        {QStringLiteral("recording"), WindowMap::RecordingScreen},
        {QStringLiteral("movie"), WindowMap::MovieScreen},
        {QStringLiteral("playing"), WindowMap::PlayingScreen},
    };
    return screens.value(name);
}

bool User::canBePressed(WindowMap::Screen screen, const QStringList &buttons)
{
    const QImage screenshot = m_session.desktop().screenshot();
    return std::all_of(buttons.cbegin(), buttons.cend(), [&](const QString &button) {
        return m_session.map().look(screenshot, screen, button) == WindowMap::Up;
    });
}

QString User::waitForButtons(const QStringList &words)
{
    const WindowMap::Screen screen = screenOf(words.value(1));
    const qint64 limit = nanosecondsNow() + qint64(patience) * 1000000;
    while (!canBePressed(screen, words.mid(2))) {
        if (nanosecondsNow() > limit)
            return failed(QStringLiteral("no button ") + words.mid(2).join(' '));
        QTest::qWait(glance); // nothing to wait for: a look at buttons that change by themselves
    }
    return QStringLiteral("ok %1").arg(nanosecondsNow());
}

QString User::waitForLive()
{
    const QRect video = m_session.map().videoRect();
    int first = -1;
    const auto moves = [&] {
        const int number = m_session.counterAt(video);
        first = first < 0 ? number : first;
        return first >= 0 && number > first;
    };
    return QTest::qWaitFor(moves, patience) ? QStringLiteral("ok %1").arg(nanosecondsNow())
                                            : failed(m_session.program().output());
}

QString User::placeOf(const QStringList &words)
{
    const WindowMap &map = m_session.map();
    const int first = words.value(2).toInt();
    const QHash<QString, QRect> places = {
        {QStringLiteral("video"), map.videoRect()},
        {QStringLiteral("preview"), map.previewLiveRect()},
        {QStringLiteral("photo"), map.previewPhotoRect()},
        {QStringLiteral("selection"), map.selectionRect()},
        {QStringLiteral("thumbnail"), map.thumbnail(first)},
        {QStringLiteral("row"),
         map.button(WindowMap::LiveScreen, QStringLiteral("Live"))
             .united(map.button(WindowMap::LiveScreen, QStringLiteral("Close")))},
        {QStringLiteral("tile"), map.tile(first, words.value(3).toInt())},
    };
    const QRect place = places.value(words.value(1));
    return place.isEmpty() ? failed(QStringLiteral("no such place"))
                           : QStringLiteral("ok ") + text(place);
}

QString User::press(const QStringList &words)
{
    QString ready = waitForButtons(words);
    if (!ready.startsWith(QLatin1String("ok")))
        return ready;
    return clickAt(m_session.map().button(screenOf(words.value(1)), words.value(2)).center());
}

QString User::clickAt(QPoint point)
{
    m_session.desktop().pressMouse(point);
    QTest::qWait(fingerTime); // nothing to wait for: the time a finger takes
    const qint64 released = nanosecondsNow();
    m_session.desktop().releaseMouse();
    return QStringLiteral("ok %1").arg(released);
}

QString User::pressCorner(const QStringList &words)
{
    const WindowMap &map = m_session.map();
    const int count = words.value(1).toInt();
    return clickAt(
        map.cornerButton(count == 0 ? map.videoRect() : map.tile(count, words.value(2).toInt())));
}

QString User::takePhotos(int count)
{
    for (int i = 0; i < count; ++i) {
        const int before = m_session.program().captured().size();
        const QStringList shoot = {QString(), QStringLiteral("live"), QStringLiteral("Photo")};
        const QStringList back = {QString(), QStringLiteral("photo"), QStringLiteral("Live")};
        if (press(shoot).startsWith(QLatin1String("failed"))
            || press(back).startsWith(QLatin1String("failed")))
            return failed(QStringLiteral("the camera is not back after a photo"));
        if (m_session.program().captured().size() <= before)
            return failed(QStringLiteral("there is no photo"));
    }
    return QStringLiteral("ok %1").arg(nanosecondsNow());
}

QString User::answer(const QString &caption)
{
    if (!m_session.waitForDialog(QStringLiteral("Orvanta")))
        return failed(QStringLiteral("no question"));
    SaveConfirmDlg twin;
    for (const auto *button : twin.findChildren<QPushButton *>())
        if (button->text() == caption)
            return clickAt(
                WindowMap::inDialog(&twin, button, m_session.dialog().geometry.topLeft()));
    return failed(QStringLiteral("no such answer"));
}

QString User::waitForEnd()
{
    if (!m_session.program().hasEndedWithin(longPatience))
        return failed(QStringLiteral("it does not end"));
    return QStringLiteral("ok %1").arg(nanosecondsNow());
}

QSize sizeIn(const QString &text)
{
    const QStringList sides = text.split('x');
    return {sides.value(0).toInt(), sides.value(1).toInt()};
}

} // namespace

int main(int argc, char **argv)
{
    const QApplication application(argc, argv);
    const QStringList arguments = QApplication::arguments();
    User user(arguments.value(1), arguments.value(2), sizeIn(arguments.value(3)));
    std::string line;
    while (std::getline(std::cin, line)) {
        const QString reply = user.obey(QString::fromStdString(line)).replace('\n', ' ');
        std::printf("%s\n", qPrintable(reply));
        std::fflush(stdout);
    }
    return 0;
}
