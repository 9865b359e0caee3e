#ifndef SCREENMODEL_H
#define SCREENMODEL_H

#include <QString>
#include <QStringList>

/**
 * What the window may look like: each screen with the buttons that it shows, where they stand on a
 * screen of 800x600 px, and which of them can be pressed. Written down a second time, apart from
 * the program's own layout, so that either is a test of the other.
 */
struct ScreenModel {
    enum Screen { Live, Recording, Preview, Photo, Series, List, Tiles, Movie };

    /// What decides about the buttons of a screen.
    struct Circumstances {
        bool captures = true; ///< there is a camera, and room for what it takes
        bool isWriting = false; ///< a photo
        bool hasSelection = false; ///< in the strip
        /// The strip offers to go over to photos. One that was opened from another screen than a
        /// movie's offers the movies, also when it shows them already: after the camera was lost
        /// with a movie.
        bool offersPhotos = false;
        bool plays = false; ///< the movie does
    };

    static QString nameOf(Screen screen);
    /// "Live 1,532 133x68", sorted.
    static QStringList shown(Screen screen, const Circumstances &now);
    static QStringList usable(Screen screen, const Circumstances &now); ///< base names, sorted
    /// Where a press of that button may lead to; empty when it opens a box or changes nothing.
    static QList<Screen> after(const QString &button);
};

#endif
