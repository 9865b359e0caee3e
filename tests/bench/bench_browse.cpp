// What browsing costs, each as a ratio to doing the same plainly, in the same run: opening the
// strip of fifty photos and opening it again, showing nine photos side by side, and listing a
// folder of 5,000 files.

#include "CStretchBitmapButton.h"
#include "CVistrelDlg.h"
#include "DeskPicture.h"
#include "PictureListView.h"
#include "PictureWidget.h"
#include "WebcamUtil.h"

#include <QApplication>
#include <QDateTime>
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

constexpr int rounds = 3;
constexpr int photos = 50;
constexpr int tiles = 9;
constexpr int manyFiles = 5000;
const QSize pictureSize(1920, 1080);

double median(QVector<double> values)
{
    std::sort(values.begin(), values.end());
    return values.at(values.size() / 2);
}

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

void report(const char *what, const QVector<double> &ours, const QVector<double> &baseline)
{
    std::printf("%s: %.1f ms against %.1f ms, ratio %.3f\n", what, median(ours), median(baseline),
                median(ours) / median(baseline));
    std::fflush(stdout);
}

/// The window over a temporary area with photos in it, newly started.
class Browser {
public:
    Browser() { m_dialog.show(); }

    void press(const char *button)
    {
        m_dialog.findChild<CStretchBitmapButton *>(QLatin1String(button))->click();
    }

    PictureListView *strip() { return m_dialog.findChild<PictureListView *>(); }

    bool isStripComplete()
    {
        for (int row = 0; row < strip()->count(); ++row)
            if (strip()->item(row)->icon().isNull())
                return false;
        return strip()->count() == photos;
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
        const auto views =
            m_dialog.findChildren<PictureWidget *>(QString(), Qt::FindDirectChildrenOnly);
        workUntil([&] {
            return std::all_of(views.begin(), views.end(), [](const PictureWidget *view) {
                return !view->isVisible() || view->hasPicture();
            });
        });
        m_dialog.repaint();
    }

private:
    CVistrelDlg m_dialog;
};

/// New time stamps: whatever is remembered of the photos no longer counts.
void touchPhotos(int round)
{
    const QDateTime stamp = QDateTime::currentDateTime().addSecs(round - 3600);
    for (int i = 0; i < photos; ++i) {
        QFile file(WebcamUtil::getTemporaryPath() + QLatin1Char('/') + photoName(i));
        if (!file.open(QIODevice::ReadWrite)
            || !file.setFileTime(stamp.addMSecs(i), QFileDevice::FileModificationTime))
            qFatal("A photo cannot be given its time.");
    }
}

void loadPlainly(int count, QSize fit)
{
    for (int i = 0; i < count; ++i)
        QPixmap(WebcamUtil::getTemporaryPath() + QLatin1Char('/') + photoName(i))
            .scaled(fit, Qt::KeepAspectRatio, Qt::FastTransformation);
}

void measurePictures()
{
    QVector<double> first;
    QVector<double> again;
    QVector<double> fifty;
    QVector<double> nine;
    QVector<double> nineShown;
    double longest = 0;
    for (int round = 0; round < rounds; ++round) {
        touchPhotos(round);
        Browser browser;
        first.append(millisecondsOf([&] { longest = std::max(longest, browser.openStrip()); }));
        const QSize thumbnail = browser.strip()->iconSize();
        browser.press("Live");
        again.append(millisecondsOf([&] { browser.openStrip(); }));
        for (int row = 0; row < tiles; ++row)
            browser.strip()->item(row)->setSelected(true);
        nineShown.append(millisecondsOf([&] { browser.viewNine(); }));
        fifty.append(millisecondsOf([&] { loadPlainly(photos, thumbnail); }));
        nine.append(millisecondsOf([&] { loadPlainly(tiles, QSize(426, 240)); }));
    }
    report("strip of 50 photos 1920x1080", first, fifty);
    report("the same strip again", again, fifty);
    report("nine photos side by side", nineShown, nine);
    std::printf("longest time that the window was away while the strip filled: %.0f ms\n", longest);
}

void listPlainly(const QByteArray &path)
{
    DIR *folder = opendir(path.constData());
    struct stat status = {};
    while (const dirent *item = readdir(folder))
        fstatat(dirfd(folder), item->d_name, &status, AT_SYMLINK_NOFOLLOW);
    closedir(folder);
}

void measureListing()
{
    QVector<double> listing;
    QVector<double> plain;
    const QByteArray path = QFile::encodeName(WebcamUtil::getTemporaryPath());
    for (int round = 0; round < 10 * rounds; ++round) {
        plain.append(millisecondsOf([&] { listPlainly(path); }));
        listing.append(millisecondsOf([] { WebcamUtil::getTempPhotoNameList(); }));
    }
    report("listing 5000 captures", listing, plain);
}

bool writePhotos(const QString &area)
{
    const QString original = area + QStringLiteral("/original.png");
    if (!deskPicture(pictureSize, 4).save(original, "PNG", 80))
        return false;
    for (int i = 0; i < photos; ++i)
        if (!QFile::copy(original, area + QLatin1Char('/') + photoName(i)))
            return false;
    return QFile::remove(original);
}

bool writeManyFiles(const QString &area)
{
    for (int i = 0; i < manyFiles; ++i) {
        QFile file(area + QStringLiteral("/photo2009%1.png").arg(i, 13, 10, QLatin1Char('0')));
        if (!file.open(QIODevice::WriteOnly) || file.write("x") != 1)
            return false;
    }
    return true;
}

} // namespace

int main(int argc, char *argv[])
{
    const QTemporaryDir folder;
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("HOME", QFile::encodeName(folder.path()));
    qputenv("TMPDIR", QFile::encodeName(folder.path()));
    const QApplication application(argc, argv);
    if (!writePhotos(WebcamUtil::getTemporaryPath()))
        return 1;
    measurePictures();
    if (!writeManyFiles(WebcamUtil::getTemporaryPath()))
        return 1;
    measureListing();
    return 0;
}
