#ifndef CAPTUREDPICTURE_H
#define CAPTUREDPICTURE_H

#include <QPixmap>
#include <QString>

namespace CapturedPicture {

/// Reads a picture of the temporary area by its bare file name. Null when there is no such file,
/// when it is damaged, or when it is larger than any camera's picture (50 megapixels): a stray
/// file must not take all the memory.
QPixmap load(const QString &name);

} // namespace CapturedPicture

#endif
