#ifndef MOVIEFILE_H
#define MOVIEFILE_H

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <QVector>

/**
 * A movie of a lab camera as it lies on the disk: what its boxes are, and what a player would show
 * and let be heard. Everything is decoded once, by the constructor.
 */
class MovieFile {
public:
    struct Frame {
        int counter; ///< the lab camera's number of it, -1 when it cannot be read
        bool marked; ///< the white strip of a marked frame is seen
        double time; ///< s, when it is shown
    };

    explicit MovieFile(const QString &path);

    const QString &path() const { return m_path; }
    /// Names of the outermost boxes, in order: "ftyp", "moov", "mdat" and such.
    const QStringList &boxes() const { return m_boxes; }
    double duration() const { return m_duration; } ///< s, as its header says
    double soundDuration() const { return m_soundDuration; } ///< s of sound that was decoded
    const QVector<Frame> &frames() const { return m_frames; }
    const QVector<double> &tones() const { return m_tones; } ///< s, when each begins
    double loudness() const { return m_loudness; } ///< share of the sound that is a tone
    const QStringList &complaints() const { return m_complaints; } ///< of the decoders
    QString videoFormat() const { return m_videoFormat; } ///< of the coded picture

    QVector<int> counters() const;
    /// Frames of the camera, between the first and the last shown, that are never shown.
    int missingFrames() const;
    /// The longest time that one camera frame stands still, in frames of the movie.
    int longestRepeat() const;
    QVector<double> flashes() const; ///< s, when each marked frame is first seen
    /// How much later than each flash the tone is heard that belongs to it (s).
    QVector<double> soundDelays() const;

private:
    void readBoxes();
    void decode();

    const QString m_path;
    QStringList m_boxes;
    double m_duration = 0;
    double m_soundDuration = 0;
    QVector<Frame> m_frames;
    QVector<double> m_tones;
    double m_loudness = 0;
    QStringList m_complaints;
    QString m_videoFormat;
};

#endif
