#ifndef CAMERAMODE_H
#define CAMERAMODE_H

#include <QByteArray>
#include <QSize>

/// One way in which a camera can deliver its picture.
struct CameraMode {
    enum class Encoding { Raw, Jpeg };

    Encoding encoding = Encoding::Raw;
    QByteArray format; ///< GStreamer's name of the pixel format, "YUY2"; empty for JPEG
    int width = 0; ///< px
    int height = 0; ///< px
    int rateNumerator = 0; ///< frames per second, as a fraction; 0/1 is a rate that varies
    int rateDenominator = 1;

    QSize size() const { return {width, height}; }
    double rate() const
    {
        return rateDenominator > 0 ? double(rateNumerator) / rateDenominator : 0;
    }
    bool isGrey() const { return format.startsWith("GRAY"); }
};

inline bool operator==(const CameraMode &left, const CameraMode &right)
{
    return left.encoding == right.encoding && left.format == right.format
        && left.size() == right.size() && left.rateNumerator == right.rateNumerator
        && left.rateDenominator == right.rateDenominator;
}

#endif
