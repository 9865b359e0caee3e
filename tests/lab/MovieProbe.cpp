#include "MovieProbe.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QProcess>
#include <QStringList>

namespace {

constexpr int patience = 300000; // ms; ten minutes of movie take a while
constexpr char facts[] =
    "stream=codec_type,codec_name,pix_fmt,nb_frames,r_frame_rate,duration:format=duration";

struct Answer {
    QByteArray output;
    QString complaints;
};

Answer ask(const QString &program, const QStringList &arguments)
{
    QProcess process;
    process.start(program, QStringList{"-v", "error"} + arguments);
    if (!process.waitForFinished(patience))
        return {{}, program + " did not answer: " + process.errorString()};
    const QString complaints = QString::fromUtf8(process.readAllStandardError());
    if (process.exitStatus() != QProcess::NormalExit || process.exitCode() != 0)
        return {{}, program + " gave up. " + complaints};
    return {process.readAllStandardOutput(), complaints};
}

} // namespace

MovieProbe::MovieProbe(const QString &path)
{
    const Answer probing = ask("ffprobe", {"-of", "json", "-show_entries", facts, path});
    const Answer decoding = ask("ffmpeg", {"-nostdin", "-i", path, "-f", "null", "-"});
    m_complaints = probing.complaints + decoding.complaints;
    const QJsonObject all = QJsonDocument::fromJson(probing.output).object();
    m_duration = all.value("format").toObject().value("duration").toString().toDouble();
    const QJsonArray streams = all.value("streams").toArray();
    for (const QJsonValue &stream : streams) {
        const QString type = stream.toObject().value("codec_type").toString();
        (type == "video" ? m_video : m_sound) = stream.toObject();
    }
}
