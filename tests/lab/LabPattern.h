#ifndef LABPATTERN_H
#define LABPATTERN_H

#include <QColor>
#include <QString>

class QImage;

// The test picture that the lab's cameras send, as plain functions, so that the camera that draws
// it and the tests that judge it cannot disagree.
//
// Places are relative: x and y run from 0 to 1 over the picture, whatever its size. From top to
// bottom:
//
//   upper third   eight bars of full colour: white, yellow, cyan, green, magenta, red, blue, black
//   middle third  24 black or white cells, the frame's number: a white and a black cell as guards,
//                 20 bits with the highest first, and two check cells that always differ
//   lower third   a strip that is white in every 60th frame, the marked one; else all of it is the
//                 camera's own ground colour, with an orange block that moves with each frame
//
// Where a camera sends luma and chroma, it uses limited range and the matrix that receivers assume
// when nothing is said: BT.709 above 576 lines, BT.601 up to there.
namespace LabPattern {

constexpr int barCount = 8;
constexpr int cellCount = 24;
constexpr int counterBits = 20;
constexpr quint32 beatFrames = 60; // the marked frames; with sound, a tone begins with each
constexpr int blockSteps = 120; // frames that the moving block takes from left to right

// Every row between two neighbouring edges looks the same.
constexpr double bandEdges[] = {0.0, 1.0 / 3, 2.0 / 3, 0.75, 0.92, 1.0};

// What a camera of this name has as ground colour; names give different, medium dark colours.
QRgb groundOf(const QString &cameraName);
QRgb barColour(int bar);
QRgb blockColour();

// The colour at a relative point of frame `counter`; the counter wraps at 2^20.
QRgb colourAt(double x, double y, quint32 counter, QRgb ground);
// The middle of the moving block of frame `counter`, between 0 and 1.
double blockCentre(quint32 counter);

// Whether the cell is white in frame `counter`.
bool cellIsWhite(int cell, quint32 counter);
// The frame's number as read from the cells of a picture that fills the image; -1 when the guards
// or the check cells are wrong, as in a black, torn or foreign picture.
int counterOf(const QImage &picture);

// Whether the picture is that of a marked frame, by its white strip.
bool isMarked(const QImage &picture);

// The whole frame as it should be seen.
QImage frame(int width, int height, quint32 counter, QRgb ground);

// The largest difference of one colour component between the picture and the pattern, looked for at
// the middle of each bar and at a point of the ground the block never covers. 0 is an exact
// picture; conversions through luma and chroma stay below 12.
int worstDifference(const QImage &picture, QRgb ground);

} // namespace LabPattern

#endif // LABPATTERN_H
