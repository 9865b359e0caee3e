// What browsing costs, each beside doing the same plainly in the same round: opening the strip of
// fifty photos, showing nine of them side by side, one of them enlarged, and listing folders of
// many files. The real window, over the scripted engine, which needs no camera.
//
//   bench_browse found ROUNDS      photos of an earlier lesson
//   bench_browse taken ROUNDS      photos taken in the same run
//   bench_browse listing ROUNDS    folders of 500, 5,000 and 50,000 captures
//
// Prints for each round and figure a line "NAME<TAB>ms<TAB>ms done plainly"; for what is no
// comparison the second is 0.

#include "CStretchBitmapButton.h"
#include "CVistrelDlg.h"
#include "DeskPicture.h"
#include "FakeEngine.h"
#include "PictureListView.h"
#include "PictureWidget.h"
#include "WebcamUtil.h"

#include <QApplication>
#include <QDateTime>
#include <QDir>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QFile>
#include <QTemporaryDir>
#include <QTimer>
#include <QVector>

#include <algorithm>
#include <cstdio>
#include <dirent.h>
#include <fcntl.h>
#include <functional>
#include <sys/stat.h>

namespace {

constexpr int photos = 50;
constexpr int tiles = 9;
const QSize pictureSize(1920, 1080);
// As the window shows them on a screen of 1024x768.
const QSize tileSize(341, 192);
const QSize fullSize(1024, 576);

double millisecondsOf(const std::function<void()> &action)
{
    QElapsedTimer timer;
    timer.start();
    action();
    return double(timer.nsecsElapsed()) / 1e6;
}

/// Lets the window work until the condition holds, and returns the longest time, in ms, that it
/// was away from its events on the way.
double workUntil(const std::function<bool()> &condition)
{
    constexpr int beat = 2; // ms
    QEventLoop loop;
    QTimer heart;
    QElapsedTimer sinceBeat;
    double longest = 0;
    heart.setTimerType(Qt::PreciseTimer);
    QObject::connect(&heart, &QTimer::timeout, [&] {
        longest = std::max(longest, double(sinceBeat.nsecsElapsed()) / 1e6 - beat);
        sinceBeat.start();
        if (condition())
            loop.quit();
    });
    sinceBeat.start();
    heart.start(beat);
    loop.exec();
    return longest;
}

QString photoName(int number)
{
    return QStringLiteral("photo20090304090507%1.png").arg(number, 3, 10, QLatin1Char('0'));
}

void report(const QString &what, double ours, double plain)
{
    std::printf("%s\t%.4f\t%.4f\n", qPrintable(what), ours, plain);
    std::fflush(stdout);
}

/// The window over the temporary area, newly started.
class Browser {
public:
    Browser() { m_dialog.show(); }

    void press(const char *button)
    {
        m_dialog.findChild<CStretchBitmapButton *>(QLatin1String(button))->click();
    }

    PictureListView *strip() { return m_dialog.findChild<PictureListView *>(); }

    /// From the live picture to the live picture.
    void takePhoto()
    {
        press("Photo");
        workUntil([] { return !FakeEngine::isSaving(); });
        m_dialog.repaint();
        press("Apply");
        m_dialog.repaint();
        press("Live");
        m_dialog.repaint();
    }

    /// Returns the longest time, in ms, that the window was away from its user.
    double openStrip()
    {
        const double pressing = millisecondsOf([this] { press("List"); });
        const double filling = workUntil([this] { return isStripComplete(); });
        strip()->repaint();
        return std::max(pressing, filling);
    }

    void viewNine()
    {
        press("Show");
        showTiles();
    }

    void zoom()
    {
        shownTiles().constFirst()->OnZoom();
        showTiles();
    }

    void back()
    {
        shownTiles().constFirst()->OnBack();
        showTiles();
    }

private:
    bool isStripComplete()
    {
        for (int row = 0; row < strip()->count(); ++row)
            if (strip()->item(row)->icon().isNull())
                return false;
        return strip()->count() == photos;
    }

    QVector<PictureWidget *> shownTiles()
    {
        QVector<PictureWidget *> shown;
        for (auto *view :
             m_dialog.findChildren<PictureWidget *>(QString(), Qt::FindDirectChildrenOnly))
            if (view->isVisible())
                shown.append(view);
        return shown;
    }

    void showTiles()
    {
        workUntil([this] {
            const QVector<PictureWidget *> shown = shownTiles();
            return !shown.isEmpty()
                && std::all_of(shown.cbegin(), shown.cend(),
                               [](const PictureWidget *view) { return view->hasPicture(); });
        });
        m_dialog.repaint();
    }

    CVistrelDlg m_dialog;
};

QStringList photosInArea()
{
    const QDir area(WebcamUtil::getTemporaryPath());
    QStringList paths;
    for (const QString &name : area.entryList({QStringLiteral("photo*.png")}, QDir::Files))
        paths.append(area.filePath(name));
    return paths;
}

void loadPlainly(int count, QSize fit)
{
    for (const QString &path : photosInArea().mid(0, count))
        QPixmap(path).scaled(fit, Qt::KeepAspectRatio, Qt::FastTransformation);
}

void emptyArea()
{
    for (const QString &path : photosInArea())
        QFile::remove(path);
}

/// The strip, the strip once more, nine tiles, one of them enlarged, and back.
void measureRound(Browser *browser, const QString &kind)
{
    double longest = 0;
    const double first = millisecondsOf([&] { longest = browser->openStrip(); });
    const QSize thumbnail = browser->strip()->iconSize();
    const double fifty = millisecondsOf([&] { loadPlainly(photos, thumbnail); });
    report(QStringLiteral("strip ") + kind, first, fifty);
    report(QStringLiteral("away ") + kind, longest, 0);
    browser->press("Live");
    report(QStringLiteral("strip again ") + kind, millisecondsOf([&] { browser->openStrip(); }),
           fifty);
    for (int row = 0; row < tiles; ++row)
        browser->strip()->item(row)->setSelected(true);
    const double nineShown = millisecondsOf([&] { browser->viewNine(); });
    const double nine = millisecondsOf([&] { loadPlainly(tiles, tileSize); });
    report(QStringLiteral("tiles ") + kind, nineShown, nine);
    const double one = millisecondsOf([&] { loadPlainly(1, fullSize); });
    report(QStringLiteral("zoom ") + kind, millisecondsOf([&] { browser->zoom(); }), one);
    report(QStringLiteral("back ") + kind, millisecondsOf([&] { browser->back(); }), nine);
}

/// Whatever the last round remembers of its photos no longer counts: their times are others.
void writePhotos(const QString &original, int round)
{
    const QDateTime stamp = QDateTime::currentDateTime().addSecs(round - 3600);
    emptyArea();
    for (int i = 0; i < photos; ++i) {
        const QString path = WebcamUtil::getTemporaryPath() + QLatin1Char('/') + photoName(i);
        QFile file(path);
        if (!QFile::copy(original, path) || !file.open(QIODevice::ReadWrite)
            || !file.setFileTime(stamp.addMSecs(i), QFileDevice::FileModificationTime))
            qFatal("A photo cannot be written.");
    }
}

void measureFound(const QString &original, int rounds)
{
    for (int round = 0; round < rounds; ++round) {
        writePhotos(original, round);
        Browser browser;
        measureRound(&browser, QStringLiteral("found"));
    }
}

void measureTaken(const QString &original, int rounds)
{
    FakeEngine::script().nativeSize = pictureSize;
    FakeEngine::script().saving = [&](const QString &path) { return QFile::copy(original, path); };
    FakeEngine::script().savedPicture =
        QImage(original).convertToFormat(QImage::Format_RGB888); // as the engine has it
    for (int round = 0; round < rounds; ++round) {
        emptyArea();
        Browser browser;
        for (int i = 0; i < photos; ++i)
            browser.takePhoto();
        if (photosInArea().size() != photos)
            qFatal("A photo was not taken.");
        measureRound(&browser, QStringLiteral("taken"));
    }
}

void listPlainly(const QByteArray &path)
{
    DIR *folder = opendir(path.constData());
    struct stat status = {};
    while (const dirent *item = readdir(folder))
        fstatat(dirfd(folder), item->d_name, &status, AT_SYMLINK_NOFOLLOW);
    closedir(folder);
}

void writeFiles(const QString &area, int first, int end)
{
    for (int i = first; i < end; ++i) {
        QFile file(area + QStringLiteral("/photo2009%1.png").arg(i, 13, 10, QLatin1Char('0')));
        if (!file.open(QIODevice::WriteOnly) || file.write("x") != 1)
            qFatal("A file cannot be written.");
    }
}

void measureListing(int rounds)
{
    const QString area = WebcamUtil::getTemporaryPath();
    int files = 0;
    for (const int count : {500, 5000, 50000}) {
        writeFiles(area, files, count);
        files = count;
        for (int round = 0; round < rounds; ++round) {
            const double plain = millisecondsOf([&] { listPlainly(QFile::encodeName(area)); });
            const double listing = millisecondsOf([] { WebcamUtil::getTempPhotoNameList(); });
            report(QStringLiteral("listing %1").arg(count), listing, plain);
        }
    }
}

} // namespace

int main(int argc, char *argv[])
{
    const QTemporaryDir folder;
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("HOME", QFile::encodeName(folder.path()));
    qputenv("TMPDIR", QFile::encodeName(folder.path()));
    const QApplication application(argc, argv);
    const QString what = QApplication::arguments().value(1);
    const int rounds = qMax(1, QApplication::arguments().value(2).toInt());
    const QString original = folder.filePath(QStringLiteral("original.png"));
    if (!deskPicture(pictureSize, 4).save(original, "PNG", 80))
        return 1;
    if (what == QLatin1String("found"))
        measureFound(original, rounds);
    else if (what == QLatin1String("taken"))
        measureTaken(original, rounds);
    else if (what == QLatin1String("listing"))
        measureListing(rounds);
    else
        return 2;
    return 0;
}
