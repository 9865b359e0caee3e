// A guided tour of the program for those who have no screen at hand: it uses the program in the lab
// with real clicks, keeps a picture of every screen and, at the end, the photo that was saved.
//
//   orvanta_tour PROGRAM FOLDER CAMERA WIDTHxHEIGHT [COMMAND ARGS...]
//   orvanta_tour PROGRAM FOLDER demonstration [COMMAND ARGS...]
//
// Run by tests/lab/tour, which builds the lab around it. The command, such as the installation of
// another version of the program, is run after the first photo. Status 0 when every step worked.

#include "DemoSession.h"
#include "LayoutScale.h"
#include "Session.h"

#include <QApplication>
#include <QDir>
#include <QProcess>
#include <QTest>

#include <cstdio>
#include <memory>

static const int reactionLimit = 30000; // ms, also of a busy machine

namespace {

class Tour {
public:
    Tour(Session *user, const QString &folder)
        : m_user(user)
        , m_folder(folder)
    {
    }

    // One stop: says what it is, and keeps a picture of the screen when the step worked.
    void stop(const char *name, const char *what, bool worked)
    {
        if (!m_good)
            return;
        m_good = worked;
        if (!worked) {
            std::fprintf(stderr, "tour: \"%s\" did not come up\n%s\n", what,
                         qPrintable(m_user->program().output()));
        }
        // Also of what came up instead.
        const QString file = m_folder.filePath(
            QStringLiteral("%1-%2.png").arg(++m_stops, 2, 10, QChar('0')).arg(QLatin1String(name)));
        m_user->desktop().screenshot().save(file);
        std::printf("%-58s %s\n", what, qPrintable(QDir::cleanPath(file)));
        std::fflush(stdout);
    }

    // The photos that the program saved, copied out of the lab; and that the movie was saved, too.
    void keepSavedFiles()
    {
        const QDir saved(m_user->program().saveFolder());
        const QStringList files = saved.entryList({"photo*"}, QDir::Files, QDir::Name);
        for (const QString &file : files) {
            const QString kept = m_folder.filePath(file);
            m_good = m_good && QFile::copy(saved.filePath(file), kept)
                && m_user->isPicture(QImage(kept));
            std::printf("%-58s %s\n", "A saved photo", qPrintable(QDir::cleanPath(kept)));
        }
        const QStringList movies = saved.entryList({"movie*.mov"}, QDir::Files);
        m_good = m_good && !files.isEmpty() && movies.size() == 1
            && QFileInfo(saved.filePath(movies[0])).size() > 0;
    }

    bool isGood() const { return m_good; }

private:
    Session *m_user;
    QDir m_folder;
    int m_stops = 0;
    bool m_good = true;
};

void photograph(Tour *tour, Session *user)
{
    const WindowMap &map = user->map();
    tour->stop("live", "The live picture", user->startLive());
    tour->stop("preview", "A photo beside the live picture: accept or retry",
               user->takePhotoForPreview()
                   && QTest::qWaitFor([&] { return user->isStillAt(map.previewPhotoRect()); },
                                      reactionLimit));
    tour->stop(
        "photo", "The accepted photo",
        user->pressWhenReady(WindowMap::PreviewScreen, "Apply")
            && QTest::qWaitFor([&] { return user->isStillAt(map.videoRect()); }, reactionLimit));
}

// What it says is seen; long enough for a slow machine to install packages.
bool runMeanwhile(const QStringList &command)
{
    QProcess process;
    process.setProcessChannelMode(QProcess::ForwardedChannels);
    process.start(command.value(0), command.mid(1));
    return process.waitForFinished(300000) && process.exitStatus() == QProcess::NormalExit
        && process.exitCode() == 0;
}

void film(Tour *tour, Session *user)
{
    const QRect picture = user->map().videoRect();
    const QStringList toPlay{"Live", "MoviePlay", "List", "Close"};
    tour->stop("recording", "A movie being recorded",
               user->pressWhenReady(WindowMap::PhotoScreen, "Live")
                   && user->pressWhenReady(WindowMap::LiveScreen, "Movie")
                   && user->waitForPressable(WindowMap::RecordingScreen, {"MovieStop"})
                   && QTest::qWaitFor([=] { return user->isLiveAt(picture); }, reactionLimit));
    QTest::qWait(3000); // nothing to wait for: the movie's length
    tour->stop("movie", "The movie, ready to be played",
               user->pressWhenReady(WindowMap::RecordingScreen, "MovieStop")
                   && user->waitForPressable(WindowMap::MovieScreen, toPlay)
                   && QTest::qWaitFor([=] { return user->isStillAt(picture); }, reactionLimit));
    tour->stop("playing", "The movie played",
               user->pressWhenReady(WindowMap::MovieScreen, "MoviePlay")
                   && QTest::qWaitFor([=] { return user->isLiveAt(picture); }, reactionLimit));
    tour->stop("paused", "The movie paused",
               user->pressWhenReady(WindowMap::PlayingScreen, "MoviePause")
                   && user->waitForPressable(WindowMap::MovieScreen, toPlay));
}

void photographASeries(Tour *tour, Session *user)
{
    const auto presses = [user](int count) {
        for (int i = 0; i < count; ++i) {
            const int before = user->program().captured().size();
            if (!user->pressWhenReady(WindowMap::LiveScreen, "PhotoMulti")
                || !QTest::qWaitFor([&] { return user->program().captured().size() > before; },
                                    reactionLimit))
                return false;
        }
        return true;
    };
    // The self-timer is on at first; further presses do not wait for it.
    tour->stop("countdown", "A series: the self-timer counts down",
               user->pressWhenReady(WindowMap::MovieScreen, "Live")
                   && user->pressWhenReady(WindowMap::LiveScreen, "PhotoMulti")
                   && !QTest::qWaitFor([] { return false; }, 1500)
                   && user->isLiveAt(user->map().seriesLiveRect()));
    tour->stop("series", "A series: live, the last photo, and those before", presses(3));
    tour->stop("tiles", "A series: all photos side by side",
               presses(1)
                   && QTest::qWaitFor([user] { return user->isStillAt(user->map().tile(4, 3)); },
                                      reactionLimit));
    const QPoint zoom = user->map().cornerButton(user->map().tile(4, 0));
    user->desktop().click(zoom);
    tour->stop("zoom", "One of them, enlarged",
               QTest::qWaitFor([user] { return user->isStillAt(user->map().videoRect()); },
                               reactionLimit));
}

void lookAround(Tour *tour, Session *user)
{
    tour->stop(
        "list", "The list of photos",
        user->pressWhenReady(WindowMap::PhotoScreen, "List")
            && user->waitForPressable(WindowMap::ListScreen, {"Live", "SwitchMovie", "Close"}));
    for (int i = 0; i < 2; ++i)
        user->desktop().click(user->map().thumbnail(i).center());
    tour->stop("selection", "Two of them selected, the last one shown",
               QTest::qWaitFor([user] { return user->isStillAt(user->map().selectionRect()); },
                               reactionLimit));
    tour->stop("settings", "The settings",
               user->pressWhenReady(WindowMap::ListScreen, "Live")
                   && user->pressWhenReady(WindowMap::LiveScreen, "Settings")
                   && user->waitForDialog("Settings"));
}

void leave(Tour *tour, Session *user)
{
    tour->stop("exit", "The question at exit",
               user->clickInSettings("btnOk") && user->waitUntilNoDialog()
                   && user->pressWhenReady(WindowMap::LiveScreen, "Close")
                   && user->waitForDialog("Orvanta"));
    const bool ended = user->answerExitQuestion("Yes") && user->program().hasEndedWithin(5000)
        && user->program().exitStatus() == 0;
    tour->stop("gone", "\"Yes\": the desktop is back", ended);
    tour->keepSavedFiles();
}

} // namespace

int main(int argc, char *argv[])
{
    LayoutScale::apply(); // as the program does it, for the twins of its buttons and boxes
    const QApplication application(argc, argv);
    qunsetenv("QT_SCALE_FACTOR"); // the program finds it out by itself
    const QStringList arguments = QApplication::arguments();
    const bool isDemonstration = arguments.value(3) == QLatin1String("demonstration");
    const QStringList size = arguments.value(4).split('x');
    if (!isDemonstration && size.size() != 2) {
        std::fprintf(stderr, "usage: orvanta_tour PROGRAM FOLDER CAMERA WIDTHxHEIGHT\n");
        return 2;
    }
    const std::unique_ptr<Session> user = isDemonstration
        ? std::make_unique<DemoSession>(arguments[1])
        : std::make_unique<Session>(arguments[1], arguments[3],
                                    QSize(size[0].toInt(), size[1].toInt()));
    const QStringList meanwhile = arguments.mid(isDemonstration ? 4 : 5);
    QDir().mkpath(arguments[2]);
    Tour tour(user.get(), arguments[2]);
    photograph(&tour, user.get());
    if (!meanwhile.isEmpty())
        tour.stop("meanwhile", "The program after what happened meanwhile",
                  runMeanwhile(meanwhile) && user->program().isRunning());
    for (const auto part : {film, photographASeries, lookAround, leave})
        if (tour.isGood())
            part(&tour, user.get());
    return tour.isGood() ? 0 : 1;
}
