// A lesson for those who want to see the program at work before they have it: some twenty seconds
// at the demonstration camera, as pictures of the screen, with the pointer in them.
//
//   orvanta_lesson PROGRAM FOLDER
//
// Run by tests/lab/tour, which makes one file of them. FOLDER gets frame-0001.jpg and so on, eight
// a second. What the program needs to answer is not shown, so that the lesson lasts as long on any
// machine. Status 0 when every step worked.

#include "DemoSession.h"
#include "LayoutScale.h"

#include <QApplication>
#include <QCursor>
#include <QDir>
#include <QPainter>
#include <QPainterPath>
#include <QTest>

#include <cstdio>

static const int betweenFrames = 125; // ms
static const int reactionLimit = 30000; // ms
static const QSize frameSize(640, 480);

namespace {

class Lesson {
public:
    Lesson(DemoSession *user, const QString &folder)
        : m_user(user)
        , m_folder(folder)
    {
    }

    // Shows what happens for so long.
    void watch(double seconds)
    {
        for (int i = 0; m_good && i < int(seconds * 1000 / betweenFrames); ++i) {
            QTest::qWait(betweenFrames); // nothing to wait for: the time from one to the next
            const QString name = QStringLiteral("frame-%1.jpg").arg(++m_frames, 4, 10, QChar('0'));
            m_good = look().save(m_folder.filePath(name), "JPG", 92);
        }
    }

    // Moves the pointer to a button, is seen to do so, and presses it.
    void press(WindowMap::Screen screen, const QString &button)
    {
        expect(qPrintable(button),
               QTest::qWaitFor(
                   [&] {
                       return m_user->map().look(m_user->desktop().screenshot(), screen, button)
                           == WindowMap::Up;
                   },
                   reactionLimit));
        click(m_user->map().button(screen, button).center());
    }

    void click(QPoint at)
    {
        pointAt(at);
        m_user->desktop().click(at);
    }

    void expect(const char *what, bool worked)
    {
        if (m_good && !worked)
            std::fprintf(stderr, "lesson: \"%s\" did not come\n", what);
        m_good = m_good && worked;
    }

    bool isGood() const { return m_good; }

private:
    void pointAt(QPoint to)
    {
        static const int steps = 4;
        const QPoint from = QCursor::pos();
        for (int i = 1; i <= steps; ++i) {
            m_user->desktop().moveMouse(from + (to - from) * i / steps);
            watch(betweenFrames / 1000.0);
        }
    }

    QImage look() const
    {
        QImage screen = m_user->desktop().screenshot();
        QPainterPath arrow(QPointF(0, 0));
        for (const QPointF corner : {QPointF(0, 34), QPointF(8, 27), QPointF(14, 40),
                                     QPointF(20, 37), QPointF(14, 25), QPointF(25, 25)})
            arrow.lineTo(corner);
        arrow.closeSubpath();
        QPainter painter(&screen);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.translate(QCursor::pos());
        painter.setPen(QPen(Qt::black, 2));
        painter.setBrush(Qt::white);
        painter.drawPath(arrow);
        painter.end();
        return screen.scaled(frameSize, Qt::KeepAspectRatio, Qt::SmoothTransformation);
    }

    DemoSession *m_user;
    QDir m_folder;
    int m_frames = 0;
    bool m_good = true;
};

} // namespace

static void photograph(Lesson *lesson, DemoSession *user)
{
    const int before = user->program().captured().size();
    lesson->press(WindowMap::LiveScreen, "Photo");
    lesson->expect(
        "a photo",
        QTest::qWaitFor([=] { return user->program().captured().size() > before; }, reactionLimit));
    lesson->press(WindowMap::PreviewScreen, "Apply");
    lesson->expect(
        "the accepted photo",
        QTest::qWaitFor([=] { return user->isStillAt(user->map().videoRect()); }, reactionLimit));
    lesson->watch(0.6);
}

static void compare(Lesson *lesson, DemoSession *user)
{
    lesson->press(WindowMap::PhotoScreen, "List");
    lesson->expect("the list",
                   user->waitForPressable(WindowMap::ListScreen, {"Live", "SwitchMovie", "Close"}));
    lesson->watch(0.5);
    for (int i = 0; i < 2; ++i)
        lesson->click(user->map().thumbnail(i).center());
    lesson->press(WindowMap::ListScreen, "Show");
    lesson->expect(
        "two photos side by side",
        QTest::qWaitFor([=] { return user->isStillAt(user->map().tile(2, 0)); }, reactionLimit));
    lesson->watch(1.6);
}

static void film(Lesson *lesson, DemoSession *user)
{
    lesson->press(WindowMap::LiveScreen, "Movie");
    lesson->expect("a movie", QTest::qWaitFor([=] { return user->isRecording(); }, reactionLimit));
    lesson->watch(2.4);
    lesson->press(WindowMap::RecordingScreen, "MovieStop");
    lesson->press(WindowMap::MovieScreen, "MoviePlay");
    lesson->watch(2);
}

static void leave(Lesson *lesson, DemoSession *user)
{
    lesson->press(WindowMap::PlayingScreen, "MoviePause");
    lesson->press(WindowMap::MovieScreen, "Close");
    lesson->expect("the question at exit", user->waitForDialog("Orvanta"));
    lesson->watch(1.6);
    lesson->expect("the end",
                   user->answerExitQuestion("Yes")
                       && user->program().hasEndedWithin(reactionLimit));
}

int main(int argc, char *argv[])
{
    LayoutScale::apply(); // as the program does it, for the twins of its buttons and boxes
    const QApplication application(argc, argv);
    qunsetenv("QT_SCALE_FACTOR"); // the program finds it out by itself
    const QStringList arguments = QApplication::arguments();
    if (arguments.size() != 3) {
        std::fprintf(stderr, "usage: orvanta_lesson PROGRAM FOLDER\n");
        return 2;
    }
    DemoSession user(arguments[1]);
    Lesson lesson(&user, arguments[2]);
    lesson.expect("the live picture", user.startLive());
    lesson.watch(2);
    photograph(&lesson, &user);
    lesson.press(WindowMap::PhotoScreen, "Live");
    lesson.watch(1.4);
    photograph(&lesson, &user);
    compare(&lesson, &user);
    lesson.press(WindowMap::PhotoScreen, "Live");
    film(&lesson, &user);
    leave(&lesson, &user);
    return lesson.isGood() ? 0 : 1;
}
