#include "Lesson.h"

#include "BallMovie.h"
#include "FaultTrial.h"
#include "LabPattern.h"
#include "MovieProbe.h"

#include <QCryptographicHash>
#include <QDir>
#include <QDirIterator>
#include <QImage>
#include <QTest>

#include <unistd.h>

static constexpr int patience = 30000; // ms, also of a busy machine
static constexpr int bulk = 16; // photos to be saved, so that there is a middle of it
// What a movie may lack at its end (s): nobody could complete it, or somebody did.
static constexpr double sinceLastIndex = 2;
static constexpr double completed = 0.5;
static const char half[] = ".photo20090304090507042.png"; // left by a program that was killed

static QByteArray contentOf(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    QCryptographicHash hash(QCryptographicHash::Md5);
    hash.addData(&file);
    return hash.result();
}

// Noise is as large as a file as it is as a picture.
static QImage noise()
{
    QImage picture(1000, 700, QImage::Format_RGB32);
    QRandomGenerator chance(1);
    for (int y = 0; y < picture.height(); ++y)
        chance.fillRange(reinterpret_cast<quint32 *>(picture.scanLine(y)), picture.width());
    return picture;
}

const char *Lesson::nameOf(Moment moment)
{
    static const char *const names[moments] = {
        "live",        "while a photo is written", "recording",
        "in a series", "playing a movie",          "saving at exit"};
    return names[moment];
}

Lesson::Lesson()
    : m_saved(std::make_unique<QTemporaryDir>("/dev/shm/orvanta-saved-XXXXXX"))
    , m_user(std::make_unique<Session>(ORVANTA_PROGRAM, "cam1", QSize(640, 480)))
{
    if (!m_saved->isValid())
        m_saved = std::make_unique<QTemporaryDir>();
    program().writeSettings(
        "AutoShoot=0\nContinuShootCount=9\nSaveDirectory=" + m_saved->path().toUtf8() + '\n');
    QImage still(320, 240, QImage::Format_RGB32);
    still.fill(Qt::blue);
    still.save(m_earlier.filePath("movie20240229101500tmp.png"));
    makeBallMovie(m_earlier.filePath("movie20240229101500.mov"), 200);
    noise().save(m_earlier.filePath("photo"), "PNG", 100);
}

QString Lesson::begin()
{
    m_time = std::make_unique<SpareTime>();
    ++m_lessons;
    m_movie.clear();
    m_seenPhoto = -1;
    m_complete.clear();
    QDir().mkpath(program().temporaryArea());
    for (const QString &name : QDir(m_earlier.path()).entryList({"movie*"}, QDir::Files))
        QFile::copy(m_earlier.filePath(name), program().temporaryArea() + '/' + name);
    QFile left(program().temporaryArea() + '/' + half);
    if (!left.open(QIODevice::WriteOnly) || left.write("half a photo") < 0)
        return "the area cannot be written to";
    left.close();
    if (!m_user->startLive())
        return "it does not start: " + program().output();
    for (const QString &name : program().captured())
        if (name.startsWith('.')) // swept by the first copy only
            return "it is not the first copy, or half a photo stays: " + name;
    return {};
}

QString Lesson::goTo(Moment moment, FaultTrial &trial)
{
    m_moment = moment;
    QString complaint;
    switch (moment) {
    case Live:
        QTest::qWait(trial.upTo(300)); // nothing to wait for: a moment
        break;
    case PhotoBeingWritten:
        complaint = takePhoto();
        QTest::qWait(trial.upTo(250)); // nothing to wait for: a moment
        break;
    case Recording:
        complaint = record(trial);
        break;
    case Series:
        complaint = takeSeries(trial);
        break;
    case Playback:
        complaint = play(trial);
        break;
    case SavingAtExit:
        return saveAtExit(trial);
    }
    noteCaptures();
    return complaint;
}

static const char notReady[] = "a button cannot be pressed";

QString Lesson::takePhoto()
{
    return m_user->pressWhenReady(WindowMap::LiveScreen, "Photo") ? QString() : notReady;
}

QString Lesson::record(FaultTrial &trial)
{
    m_sincePress.start();
    if (!m_user->beginMovie())
        return "no movie begins";
    m_sinceBegun.start();
    const QDir area(program().temporaryArea());
    m_movie = area.entryList({"movie*.mov"}, QDir::Files, QDir::Time).value(0);
    const QString still = QString(m_movie).replace(".mov", "tmp.png");
    if (!area.exists(still))
        return "a movie is recorded that has no picture to be listed by";
    QTest::qWait(900 + trial.upTo(2000)); // nothing to wait for: the movie's length
    return {};
}

QString Lesson::takeSeries(FaultTrial &trial)
{
    for (int i = 1 + trial.upTo(3); i > 0; --i) {
        const WindowMap::Screen screen = WindowMap::LiveScreen;
        if (!m_user->pressWhenReady(screen, "PhotoMulti"))
            return notReady;
    }
    QTest::qWait(trial.upTo(250)); // nothing to wait for: a moment
    return {};
}

QString Lesson::play(FaultTrial &trial)
{
    if (!m_user->pressWhenReady(WindowMap::LiveScreen, "List")
        || !m_user->pressWhenReady(WindowMap::ListScreen, "SwitchMovie"))
        return notReady;
    const QRect thumbnail = m_user->map().thumbnail(0);
    const auto isThere = [&] {
        return m_user->desktop().pixel(thumbnail.center()) == QColor(Qt::blue);
    };
    if (!QTest::qWaitFor(isThere, patience))
        return "the movie is not listed";
    m_user->desktop().click(thumbnail.center());
    if (!m_user->pressWhenReady(WindowMap::ListScreen, "Show")
        || !m_user->pressWhenReady(WindowMap::MovieScreen, "MoviePlay"))
        return notReady;
    QTest::qWait(trial.upTo(1500)); // nothing to wait for: a moment
    return {};
}

void Lesson::addManyPhotos()
{
    for (int i = 0; i < bulk; ++i) {
        const QString name = QStringLiteral("photo20240229%1%2.png")
                                 .arg(m_lessons, 6, 10, QLatin1Char('0'))
                                 .arg(i, 3, 10, QLatin1Char('0'));
        QFile::copy(m_earlier.filePath("photo"), program().temporaryArea() + '/' + name);
    }
}

QString Lesson::saveAtExit(FaultTrial &trial)
{
    addManyPhotos();
    noteCaptures();
    if (!m_user->pressWhenReady(WindowMap::LiveScreen, "Close")
        || !m_user->answerExitQuestion("Yes"))
        return "nothing is asked at exit";
    QTest::qWait(trial.upTo(150)); // nothing to wait for: a moment
    return {};
}

void Lesson::noteCaptures()
{
    const QDir area(program().temporaryArea());
    for (const QString &name : area.entryList(QDir::Files))
        if (name != m_movie)
            m_complete[name] = contentOf(area.filePath(name));
}

void Lesson::faultComes()
{
    if (m_moment == PhotoBeingWritten)
        m_seenPhoto = m_user->counterAt(m_user->map().previewPhotoRect());
    if (!m_movie.isEmpty())
        m_lengthAtFault = double(m_sinceBegun.elapsed()) / 1000;
}

QStringList Lesson::filesKept() const
{
    QStringList paths;
    for (const QString &folder : {m_user->program().temporaryArea(), m_saved->path()}) {
        QDirIterator files(folder, QDir::Files, QDirIterator::Subdirectories);
        while (files.hasNext())
            paths.append(files.next());
    }
    return paths;
}

QString Lesson::findKept(const QString &name) const
{
    for (const QString &path : filesKept())
        if (path.endsWith('/' + name))
            return path;
    return {};
}

// All that the program has started has its home folder.
QString Lesson::orphans() const
{
    const QByteArray home = "HOME=" + m_user->program().home().toLocal8Bit();
    for (const QString &process : QDir("/proc").entryList(QDir::Dirs)) {
        QFile environment("/proc/" + process + "/environ");
        if (process.toInt() > 0 && environment.open(QIODevice::ReadOnly)
            && environment.readAll().split('\0').contains(home))
            return "a process is left: " + process + ' '
                + QFileInfo("/proc/" + process + "/exe").symLinkTarget();
    }
    return {};
}

QString Lesson::checkSeenPhoto() const
{
    for (const QString &path : filesKept())
        if (path.endsWith(".png") && LabPattern::counterOf(QImage(path)) == m_seenPhoto)
            return {};
    return "a photo was seen that is not there";
}

QString Lesson::checkMovie(bool isKilled) const
{
    const double lastMoment = isKilled ? sinceLastIndex : completed;
    const MovieProbe probe(findKept(m_movie));
    if (!probe.complaints().isEmpty())
        return m_movie + " cannot be played: " + probe.complaints();
    // An encoder without time is behind by what waits for it, and so is the index.
    const double slow = m_time->isPlenty() ? 0 : m_lengthAtFault * 2 / 3;
    const double least = m_lengthAtFault - qMax(lastMoment, slow);
    const double most = double(m_sincePress.elapsed()) / 1000 + 0.3 + m_time->lateness();
    if (probe.duration() < least || probe.duration() > most)
        return QStringLiteral("%1 is %2 s long, not %3 to %4")
            .arg(m_movie)
            .arg(probe.duration())
            .arg(least)
            .arg(most);
    return {};
}

QString Lesson::check(FaultTrial &trial, bool isKilled)
{
    QStringList complaints{orphans()};
    for (auto capture = m_complete.cbegin(); capture != m_complete.cend(); ++capture) {
        const QString path = findKept(capture.key());
        if (!path.isEmpty() && contentOf(path) == capture.value())
            continue;
        trial.addLost(1);
        complaints.append(capture.key() + (path.isEmpty() ? " is gone" : " has changed"));
    }
    for (const QString &path : filesKept())
        if (path.endsWith(".png") && QImage(path).isNull())
            complaints.append(path + " is half a picture");
    if (!m_movie.isEmpty()) {
        const QString complaint = checkMovie(isKilled);
        if (!complaint.isEmpty())
            trial.addLost(1);
        complaints.append(complaint);
    }
    if (m_seenPhoto >= 0 && !isKilled)
        complaints.append(checkSeenPhoto());
    tidyUp();
    complaints.removeAll({});
    return complaints.join("; ");
}

void Lesson::tidyUp()
{
    for (const QString &path : filesKept())
        QFile::remove(path);
}
