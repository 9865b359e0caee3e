#ifndef DEMOSCENE_H
#define DEMOSCENE_H

#include "DemoCanvas.h"
#include "DemoDrawing.h"

#include <QImage>

#include <atomic>
#include <memory>
#include <vector>

/**
 * What the demonstration camera sees: the desk, and on it a pencil that draws and a clock whose
 * hand jumps with each second of the computer's own clock.
 *
 * The desk is drawn once; of each picture only what has changed since its memory was last used is
 * painted. Made and used by one thread; who holds a picture may be any.
 */
class DemoScene {
public:
    /// Memory of one picture, which returns by isFree.
    struct Picture {
        Picture();
        DemoCanvas canvas;
        std::atomic<bool> isFree{true};
    };

    DemoScene();

    /// The scene at a moment (ms since 1970), in a picture that is not free until its holder says
    /// so. Nothing changes it until then.
    std::shared_ptr<Picture> at(qint64 moment);

private:
    void follow(qint64 moment);
    void drawOn(double second);
    void setHands(qint64 second);
    void change(QRect place);
    void paintPencil(DemoCanvas &canvas, const DemoDrawing::Pencil &pencil);
    std::shared_ptr<Picture> freePicture();

    const DemoDrawing m_drawing;
    const QImage m_pencil; ///< its point at pencilPoint
    const QImage m_shadow; ///< of the pencil, likewise
    const QImage m_empty; ///< the desk before anything was drawn
    QImage m_desk; ///< with what has been drawn, and the clock's hands
    DemoCanvas m_resting; ///< the same, as the camera sends it
    std::vector<std::shared_ptr<Picture>> m_pictures;
    double m_drawnUntil = 0; ///< s
    qint64 m_second = -1; ///< that the clock shows
};

#endif
