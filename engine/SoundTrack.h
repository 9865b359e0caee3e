#ifndef SOUNDTRACK_H
#define SOUNDTRACK_H

#include <QByteArray>

/**
 * The sound of a movie as one line without gaps. What the microphone sends is laid in where it was
 * heard: silence fills what is missing, what overlaps is left out. Differences too small to hear
 * are left alone, so that a microphone whose clock runs a little differently is corrected rarely.
 *
 * Positions and counts are in sample frames, one sample of each channel; position 0 is where the
 * movie begins. One thread at a time.
 */
class SoundTrack {
public:
    static constexpr int rate = 48000; ///< sample frames a second, what every player takes
    static constexpr int channels = 2;
    static constexpr int bytesPerSampleFrame = channels * 2; ///< a sample has 16 bits

    /// The position at @p time nanoseconds after the movie's begin.
    static qint64 positionAt(qint64 time);

    /// Lays in @p count sample frames that were heard from @p position on; @p position may lie
    /// before the movie's begin. What was taken already stays as it is.
    void add(const char *samples, qint64 count, qint64 position);

    /// Silence up to @p position, if there is nothing yet.
    void coverUntil(qint64 position);

    /// Takes out what was not taken yet and lies before @p position.
    QByteArray take(qint64 position);

    qint64 taken() const { return m_taken; } ///< position up to which everything was taken
    /// Position up to which there is sound, taken or not.
    qint64 end() const { return m_taken + m_waiting.size() / bytesPerSampleFrame; }

private:
    qint64 m_taken = 0;
    QByteArray m_waiting;
};

#endif
