#ifndef WINDOWMAP_H
#define WINDOWMAP_H

#include "DialogGeometry.h"

#include <QHash>
#include <QImage>
#include <QRect>
#include <QStringList>

class QDialog;
class QWidget;

// Where a person finds things in the main window, on this screen and with a camera of a given size:
// the button rows, the views, and how each button looks. It asks the program's own geometry and its
// own button class, so it needs the program's resources and a QApplication on the same screen.
//
// Buttons go by their base name ("Photo", "Close"); all places are pixels of the screen, also where
// the window begins beside a panel, or draws each of its own pixels as a block of them.
class WindowMap {
public:
    // A running series has the live screen's buttons, tiles have those of a photo.
    enum Screen {
        LiveScreen,
        PhotoScreen,
        PreviewScreen,
        ListScreen,
        MovieListScreen,
        RecordingScreen,
        MovieScreen, // a movie that waits or is paused
        PlayingScreen
    };
    enum Look { Up, Down, Disabled, Absent };

    // The window fills the area of the screen, with blocks of scale by scale pixels.
    WindowMap(QRect area, int scale, QSize camera);
    WindowMap(QSize screen, QSize camera)
        : WindowMap(QRect(QPoint(), screen), 1, camera)
    {
    }

    // Null when that screen has no such button.
    QRect button(Screen screen, const QString &name) const;
    // The bitmap the screenshot shows at the button's place; the caption is not looked at.
    Look look(const QImage &screenshot, Screen screen, const QString &name);
    // The buttons of a screen that can be pressed.
    QStringList pressable(const QImage &screenshot, Screen screen);

    QRect videoRect() const { return onScreen(m_video); }
    // While a photo waits for "Accept" or "Retry": live at the left, the photo at the right.
    QRect previewLiveRect() const { return onScreen(m_half); }
    QRect previewPhotoRect() const { return onScreen(DialogGeometry::besideHalfScreen(m_half)); }

    // While a series runs: live at the left, the last photo at the right.
    QRect seriesLiveRect() const;
    QRect seriesPhotoRect() const;

    // Of the strip, as long as it is not scrolled.
    QRect thumbnail(int position) const;
    // The picture above the strip while thumbnails are being selected.
    QRect selectionRect() const;
    QRect tile(int count, int position) const;
    // "Zoom" on a tile, and "Back" on a zoomed one.
    QPoint cornerButton(QRect tile) const;

    // The middle of a control of a dialog of the program, found on a twin of the dialog that is
    // laid out but not shown. `topLeft` is where the real one stands.
    static QPoint inDialog(QDialog *twin, const QWidget *control, QPoint topLeft);

private:
    QRect onScreen(QRect inWindow) const;
    QRect inWindow(Screen screen, const QString &button) const;
    QStringList rowOf(Screen screen) const;
    const QVector<QImage> &bitmaps(const QString &name, QSize size);

    QPoint m_origin; // px of the screen
    int m_scale;
    DialogGeometry m_geometry; // this and the rest: px of the window
    QRect m_close;
    QRect m_settings;
    QRect m_video;
    QRect m_half;
    QHash<QString, QVector<QImage>> m_bitmaps;
};

#endif // WINDOWMAP_H
