#ifndef SOUNDTRACK_H
#define SOUNDTRACK_H

#include <QByteArray>

/**
 * The sound of a movie as one line without gaps. What the microphone sends is laid in where it was
 * heard: silence fills what is missing, what overlaps is left out. Differences too small to hear
 * are left alone, so that a microphone whose clock runs a little differently is corrected rarely.
 *
 * Positions count samples of all channels together, from the movie's begin. One thread at a time.
 */
class SoundTrack {
public:
    static constexpr int rate = 48000; ///< samples in a second
    static constexpr int channels = 2;
    static constexpr int bytesPerSampleFrame = channels * 2; ///< 16 bits each

    /// The position at @p time nanoseconds after the movie's begin.
    static qint64 positionAt(qint64 time);

    /// Lays in @p count samples that were heard from @p position on.
    void add(const char *samples, qint64 count, qint64 position);

    /// Silence up to @p position, if there is nothing yet.
    void coverUntil(qint64 position);

    /// Takes out what was not taken yet and lies before @p position.
    QByteArray take(qint64 position);

    qint64 taken() const { return m_taken; } ///< position up to which everything was taken
    qint64 end() const { return m_taken + m_waiting.size() / bytesPerSampleFrame; }

private:
    qint64 m_taken = 0;
    QByteArray m_waiting;
};

#endif
