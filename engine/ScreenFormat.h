#ifndef SCREENFORMAT_H
#define SCREENFORMAT_H

#include <gst/video/video.h>

#include <QtGlobal>

namespace libyuv { // NOLINT(readability-identifier-naming): as the library calls itself
struct YuvConstants;
}

/**
 * How the formats that cameras send stand in memory, and how their colours become those of a
 * screen. A picture has three components, Y, U, V or R, G, B; a format keeps them in one to three
 * planes, each with one of them or with several in turn.
 */
struct ScreenFormat {
    /// Takes rows of a plane of several components apart. The targets stand in the order of the
    /// components; @p width is that of the picture.
    using Split = void (*)(const uchar *rows, int stride, int count, int width,
                           uchar *const *components, const int *strides);

    struct Plane {
        int first; ///< index of its first component
        int components;
        Split split; ///< null for a plane of one component
    };

    GstVideoFormat format;
    int planeCount;
    Plane planes[3];

    bool isRgb() const { return GST_VIDEO_FORMAT_INFO_IS_RGB(gst_video_format_get_info(format)); }

    /// Null for a format that is not known here.
    static const ScreenFormat *of(GstVideoFormat format);
};

/// How YUV becomes RGB.
struct ScreenColours {
    const libyuv::YuvConstants *constants; ///< null for colours that are not known here
    double gain; ///< what the distance of U from its middle is multiplied by before
};

ScreenColours coloursOf(const GstVideoColorimetry &colorimetry);

#endif
