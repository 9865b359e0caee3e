#ifndef PNGENCODER_H
#define PNGENCODER_H

class QIODevice;
class QImage;

/// Writes @p picture (RGB888) to @p file as PNG, quickly: a shutter cannot wait for the best
/// compression. All processors help. In a camera's picture the noise of the sensor leaves hardly
/// any repetition to search for, so only runs are looked for, which takes a tenth of the time for a
/// file of the same size; where a picture is even, as a page that a program drew, repetitions are.
/// False when the file cannot be written.
bool encodePng(const QImage &picture, QIODevice &file);

#endif
