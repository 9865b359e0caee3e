#ifndef DISPLAYMODE_H
#define DISPLAYMODE_H

/**
 * The main window's screens. The type is a plain int underneath: a value without a name shows the
 * live screen and is remembered all the same.
 */
enum DisplayMode : int {
    LiveMode = 0, ///< live picture with the capture buttons
    MovieMode = 1, ///< playback of a movie
    PhotoMode = 2, ///< a still picture, or the photo preview
    ListMode = 3, ///< strip of thumbnails
    PhotSeqMode = 4, ///< a series: live picture, last shot and strip
};

#endif
