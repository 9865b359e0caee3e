#ifndef MOVIEPROBE_H
#define MOVIEPROBE_H

#include <QJsonObject>
#include <QString>

/**
 * A movie as another family of players takes it: what ffprobe says of the file, and what ffmpeg
 * complains of while it decodes all of it. Both run in the constructor.
 */
class MovieProbe {
public:
    explicit MovieProbe(const QString &path);

    /// What is wrong with the file, in the tools' words; empty when all of it can be played.
    const QString &complaints() const { return m_complaints; }

    /// Names as the tools have them, such as "h264", "yuv420p" and "aac"; empty without the stream.
    QString videoCodec() const { return m_video.value("codec_name").toString(); }
    QString pixelFormat() const { return m_video.value("pix_fmt").toString(); }
    QString soundCodec() const { return m_sound.value("codec_name").toString(); }
    QString frameRate() const { return m_video.value("r_frame_rate").toString(); } ///< "30/1"
    int frames() const { return m_video.value("nb_frames").toString().toInt(); } ///< by the index
    double videoDuration() const { return m_video.value("duration").toString().toDouble(); } ///< s
    double soundDuration() const { return m_sound.value("duration").toString().toDouble(); } ///< s
    double duration() const { return m_duration; } ///< s, of the whole file

private:
    QString m_complaints;
    QJsonObject m_video;
    QJsonObject m_sound;
    double m_duration = 0;
};

#endif
