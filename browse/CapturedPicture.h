#ifndef CAPTUREDPICTURE_H
#define CAPTUREDPICTURE_H

#include "PictureVersion.h"

#include <QImage>
#include <QPixmap>
#include <QString>

/**
 * Reading the pictures of the temporary area. Null when there is no such file, when it is damaged,
 * neither a PNG nor a BMP file, or when it is larger than any camera's picture (50 megapixels): a
 * stray file must not take all the memory.
 */
namespace CapturedPicture {

/** The full path of a picture that goes by its bare file name. */
QString path(const QString &name);

/**
 * Decodes the file at @p path, with the pixels that a pixmap of it would have. From any thread;
 * pictures larger than a camera's usual ones are decoded one at a time, so that several threads
 * do not hold several of them.
 */
QImage read(const QString &path);

/**
 * Whether the file of that bare name says that it is larger than a camera's usual ones (3840x2160),
 * so that to decode it may take some seconds.
 */
bool isLarge(const QString &name);

/**
 * The picture by its bare file name. The one read last is remembered until its file changes: a
 * photo just taken is shown at once in several places. GUI thread only.
 */
QImage whole(const QString &name);
QPixmap load(const QString &name); ///< the same as a pixmap

/**
 * Remembers @p picture as what the file of that bare name holds, for the above to give without
 * reading: its file was just written, of these very pixels. Nothing when the picture is null. GUI
 * thread only.
 */
void remember(const QString &name, const QImage &picture);

/** The remembered picture when it is of this version, else null: nothing is read. */
QImage remembered(const PictureVersion &version);

} // namespace CapturedPicture

#endif
