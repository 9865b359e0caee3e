#ifndef ENCODERCACHE_H
#define ENCODERCACHE_H

#include <QByteArray>
#include <QByteArrayList>
#include <QSize>

/// What the trials of encoders have shown on this machine.
struct TriedEncoders {
    QByteArray video;
    QByteArray sound;
    double frameTime = 0; ///< s that the video encoder needs for a frame
    QByteArrayList failed; ///< video encoders that would have been better

    bool isEmpty() const { return video.isEmpty() || sound.isEmpty(); }
};

/**
 * Remembers from one start to the next what the trials have shown, so that they are not repeated.
 * It is believed only while nothing has changed that could change it: versions and files of
 * GStreamer's plug-ins, the kernel, the graphics devices, the processors, size and rate of the
 * picture. A file that cannot be read or written, or is damaged, is as good as none.
 *
 * Any thread.
 */
namespace EncoderCache {

/// What must not have changed. @p encoders are the names of all elements that come into question.
QByteArray keyOf(const QSize &size, double rate, const QByteArrayList &encoders);

TriedEncoders load(const QByteArray &key); ///< empty when nothing is known
void store(const QByteArray &key, const TriedEncoders &tried);
void forget(); ///< an encoder did not do what it had shown

} // namespace EncoderCache

#endif
