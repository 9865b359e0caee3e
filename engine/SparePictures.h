#ifndef SPAREPICTURES_H
#define SPAREPICTURES_H

#include <QImage>

#include <vector>

/**
 * Pictures that were replaced, for their memory: a picture of a large screen in fresh memory costs
 * as much in page faults as in copying. One that is still on its way to the screen keeps its memory
 * until it is let go.
 *
 * One thread at a time; who still holds a picture may be on another.
 */
class SparePictures {
public:
    static constexpr int limit = 2; ///< one may be on its way to the screen, one is free then

    /// A picture that nobody else holds, or a null image.
    QImage take();

    /// Keeps @p picture in place of the oldest one when there are as many as the limit says. A null
    /// image is not kept.
    void keep(QImage picture);

private:
    std::vector<QImage> m_pictures; ///< oldest first
};

#endif
