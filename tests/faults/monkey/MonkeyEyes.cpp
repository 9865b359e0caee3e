// What the monkey sees of the window between two events.

#include "CStretchBitmapButton.h"
#include "FakeEngine.h"
#include "LiveVideoWidget.h"
#include "Monkey.h"
#include "MonkeyWorld.h"
#include "MovieWidget.h"
#include "PictureListView.h"
#include "PictureWidget.h"

#include <QMessageBox>

#include <utility>

bool Monkey::isShown(const char *button) const
{
    return m_fixture.button(button).isVisible();
}

void Monkey::look()
{
    for (const QString &complaint : {complaintAboutCaptures(), complaintAboutScreen()})
        if (!complaint.isEmpty())
            fail(complaint);
    m_clicked.clear();
    m_wasDisturbed = false;
}

static QVector<PictureWidget *> shownTiles(const CVistrelDlg &dialog)
{
    QVector<PictureWidget *> tiles;
    const auto pictures =
        dialog.findChildren<PictureWidget *>(QString(), Qt::FindDirectChildrenOnly);
    for (PictureWidget *each : pictures.mid(1)) // the first is the window's own view
        if (each->isVisible())
            tiles.append(each);
    return tiles;
}

// For those who read what happened.
QString Monkey::front() const
{
    if (!m_fixture.isBuilt())
        return "nothing";
    const CVistrelDlg &dialog = m_fixture.dialog();
    const QWidget *box = MonkeyHands::inFront(nullptr);
    if (const auto *message = qobject_cast<const QMessageBox *>(box))
        return "message " + message->text().simplified();
    if (box)
        return QString("box ") + box->metaObject()->className();
    return dialog.isVisible()
        ? ScreenModel::nameOf(screen()) + ": " + m_fixture.usableButtons().join(' ')
        : QString("nothing");
}

ScreenModel::Screen Monkey::screen() const
{
    const CVistrelDlg &dialog = m_fixture.dialog();
    switch (dialog.displayMode()) {
    case PhotoMode:
        return isShown("Apply") ? ScreenModel::Preview : ScreenModel::Photo;
    case ListMode:
        return m_fixture.child<PictureListView>().isVisible() ? ScreenModel::List
                                                              : ScreenModel::Tiles;
    case PhotSeqMode:
        return m_fixture.child<LiveVideoWidget>().isVisible() ? ScreenModel::Series
                                                              : ScreenModel::Tiles;
    case MovieMode:
        return ScreenModel::Movie;
    case LiveMode:
    default:
        return isShown("MovieStop") ? ScreenModel::Recording : ScreenModel::Live;
    }
}

ScreenModel::Circumstances Monkey::circumstances(ScreenModel::Screen screen) const
{
    const auto &strip = m_fixture.child<PictureListView>();
    ScreenModel::Circumstances now;
    now.captures = !m_fixture.dialog().hasError();
    now.isWriting = FakeEngine::isSaving();
    now.hasSelection = !strip.selectedNames().isEmpty();
    now.offersPhotos = strip.movieMode() && m_before != ScreenModel::Live;
    now.plays = screen == ScreenModel::Movie && isShown("MoviePause");
    return now;
}

static QString difference(const char *what, ScreenModel::Screen screen, const QStringList &seen,
                          const QStringList &expected)
{
    return QString("the %1 screen's buttons %2: %3; not: %4")
        .arg(ScreenModel::nameOf(screen), what, seen.join(", "), expected.join(", "));
}

QString Monkey::complaintAboutScreen()
{
    const ScreenModel::Screen now = screen();
    // What the strip offers stays as it was when it was opened.
    if (now != m_screen)
        m_before = std::exchange(m_screen, now);
    else if (m_clicked.contains("SwitchMovie") || m_clicked.contains("SwitchPhoto"))
        m_before = ScreenModel::List;
    const ScreenModel::Circumstances about = circumstances(now);
    QStringList shown = m_fixture.shownButtons();
    shown.sort();
    if (shown != ScreenModel::shown(now, about))
        return difference("that are shown", now, shown, ScreenModel::shown(now, about));
    QStringList usable = m_fixture.usableButtons();
    usable.sort();
    if (usable != ScreenModel::usable(now, about))
        return difference("that can be pressed", now, usable, ScreenModel::usable(now, about));

    const CVistrelDlg &dialog = m_fixture.dialog();
    const bool isLive = m_fixture.child<LiveVideoWidget>().isVisible();
    const bool hasLive = now == ScreenModel::Preview || now == ScreenModel::Series
        || now == ScreenModel::Recording || (now == ScreenModel::Live && about.captures);
    // A full disk leaves the picture on the live screen, a missing camera does not.
    if (isLive != hasLive && !(now == ScreenModel::Live && !about.captures))
        return QString("the live picture is %1 on the %2 screen")
            .arg(isLive ? "there" : "missing", ScreenModel::nameOf(now));
    if (m_fixture.child<MovieWidget>().isVisible() != (now == ScreenModel::Movie))
        return "the movie is there or missing on the wrong screen: " + ScreenModel::nameOf(now);
    if (m_fixture.child<PictureListView>().isVisible()
        != (now == ScreenModel::List || now == ScreenModel::Series))
        return "the strip is there or missing on the wrong screen: " + ScreenModel::nameOf(now);
    if (!shownTiles(dialog).isEmpty() && now != ScreenModel::Tiles)
        return "tiles are left on the screen: " + ScreenModel::nameOf(now);
    if ((now == ScreenModel::Recording) != !FakeEngine::script().recording.isEmpty())
        return "the engine records, or does not, on the screen: " + ScreenModel::nameOf(now);
    return complaintAboutWay(now);
}

QString Monkey::complaintAboutWay(ScreenModel::Screen now)
{
    if (m_wasDisturbed || m_clicked.size() != 1)
        return {};
    const auto ways = ScreenModel::after(m_clicked.first());
    if (ways.isEmpty() || ways.contains(now))
        return {};
    return QString("'%1' led to the %2 screen").arg(m_clicked.first(), ScreenModel::nameOf(now));
}

QString Monkey::complaintAboutCaptures()
{
    if (FakeEngine::isSaving())
        return {};
    const int photos = m_watch->photos();
    const int movies = m_watch->movies();
    QString lost = m_watch->complaint();
    if (!lost.isEmpty())
        return lost;
    if (m_wasDisturbed || m_clicked.size() != 1 || !MonkeyWorld::writes())
        return {};
    if (m_clicked.first() == "Photo" && m_watch->photos() != photos + 1)
        return "a photo is missing";
    if (m_clicked.first() == "Movie" && m_watch->movies() != movies + 1)
        return "a movie is missing";
    return {};
}
