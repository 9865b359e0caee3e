#include "ScreenFormat.h"

#include <libyuv/convert_argb.h>
#include <libyuv/planar_functions.h>

#include <algorithm>
#include <iterator>

static void splitUyvy(const uchar *rows, int stride, int count, int width, uchar *const *components,
                      const int *strides)
{
    libyuv::UYVYToI422(rows, stride, components[0], strides[0], components[1], strides[1],
                       components[2], strides[2], width, count);
}

static void splitYuy2(const uchar *rows, int stride, int count, int width, uchar *const *components,
                      const int *strides)
{
    libyuv::YUY2ToI422(rows, stride, components[0], strides[0], components[1], strides[1],
                       components[2], strides[2], width, count);
}

static void splitYvyu(const uchar *rows, int stride, int count, int width, uchar *const *components,
                      const int *strides)
{
    libyuv::YUY2ToI422(rows, stride, components[0], strides[0], components[2], strides[2],
                       components[1], strides[1], width, count);
}

static void splitUv(const uchar *rows, int stride, int count, int width, uchar *const *components,
                    const int *strides)
{
    libyuv::SplitUVPlane(rows, stride, components[0], strides[0], components[1], strides[1],
                         (width + 1) / 2, count);
}

static void splitVu(const uchar *rows, int stride, int count, int width, uchar *const *components,
                    const int *strides)
{
    libyuv::SplitUVPlane(rows, stride, components[1], strides[1], components[0], strides[0],
                         (width + 1) / 2, count);
}

static void splitLastPixels(const uchar *row, int bytes, int begin, int width, uchar *first,
                            uchar *second, uchar *third)
{
    const uchar *pixel = row + qptrdiff(bytes) * begin;
    for (int x = begin; x < width; ++x, pixel += bytes) {
        first[x] = pixel[0];
        second[x] = pixel[1];
        third[x] = pixel[2];
    }
}

// Pixels of three or four bytes, the first of which is of the component named, the third of the
// other named. What is left of a row beside the library's widest step is split here: version 1904
// of it, Debian 13's, writes beyond a buffer of its own there.
static void splitPixels(const uchar *rows, int stride, int count, int width,
                        uchar *const *components, const int *strides, int bytes, int first,
                        int third)
{
    constexpr int step = 32; // pixels, of AVX2
    const int whole = width - width % step;
    if (whole > 0 && bytes == 3)
        libyuv::SplitRGBPlane(rows, stride, components[first], strides[first], components[1],
                              strides[1], components[third], strides[third], whole, count);
    else if (whole > 0)
        libyuv::SplitARGBPlane(rows, stride, components[third], strides[third], components[1],
                               strides[1], components[first], strides[first], nullptr, 0, whole,
                               count);
    for (int y = 0; y < count; ++y)
        splitLastPixels(rows + qptrdiff(y) * stride, bytes, whole, width,
                        components[first] + qptrdiff(y) * strides[first],
                        components[1] + qptrdiff(y) * strides[1],
                        components[third] + qptrdiff(y) * strides[third]);
}

static void splitRgb(const uchar *rows, int stride, int count, int width, uchar *const *components,
                     const int *strides)
{
    splitPixels(rows, stride, count, width, components, strides, 3, 0, 2);
}

static void splitBgr(const uchar *rows, int stride, int count, int width, uchar *const *components,
                     const int *strides)
{
    splitPixels(rows, stride, count, width, components, strides, 3, 2, 0);
}

static void splitBgrx(const uchar *rows, int stride, int count, int width, uchar *const *components,
                      const int *strides)
{
    splitPixels(rows, stride, count, width, components, strides, 4, 2, 0);
}

static void splitRgbx(const uchar *rows, int stride, int count, int width, uchar *const *components,
                      const int *strides)
{
    splitPixels(rows, stride, count, width, components, strides, 4, 0, 2);
}

static const ScreenFormat::Plane first = {0, 1, nullptr};
static const ScreenFormat::Plane second = {1, 1, nullptr};
static const ScreenFormat::Plane third = {2, 1, nullptr};

static const ScreenFormat knownFormats[] = {
    {GST_VIDEO_FORMAT_UYVY, 1, {{0, 3, splitUyvy}, {}, {}}},
    {GST_VIDEO_FORMAT_YUY2, 1, {{0, 3, splitYuy2}, {}, {}}},
    {GST_VIDEO_FORMAT_YVYU, 1, {{0, 3, splitYvyu}, {}, {}}},
    {GST_VIDEO_FORMAT_NV12, 2, {first, {1, 2, splitUv}, {}}},
    {GST_VIDEO_FORMAT_NV21, 2, {first, {1, 2, splitVu}, {}}},
    {GST_VIDEO_FORMAT_I420, 3, {first, second, third}},
    {GST_VIDEO_FORMAT_YV12, 3, {first, second, third}},
    {GST_VIDEO_FORMAT_Y42B, 3, {first, second, third}},
    {GST_VIDEO_FORMAT_Y444, 3, {first, second, third}},
    {GST_VIDEO_FORMAT_RGB, 1, {{0, 3, splitRgb}, {}, {}}},
    {GST_VIDEO_FORMAT_BGR, 1, {{0, 3, splitBgr}, {}, {}}},
    {GST_VIDEO_FORMAT_BGRx, 1, {{0, 3, splitBgrx}, {}, {}}},
    {GST_VIDEO_FORMAT_RGBx, 1, {{0, 3, splitRgbx}, {}, {}}},
};

const ScreenFormat *ScreenFormat::of(GstVideoFormat format)
{
    const auto *found =
        std::find_if(std::begin(knownFormats), std::end(knownFormats),
                     [format](const ScreenFormat &known) { return known.format == format; });
    return found == std::end(knownFormats) ? nullptr : found;
}

static const libyuv::YuvConstants *constantsOf(const GstVideoColorimetry &colorimetry, bool full)
{
    switch (colorimetry.matrix) {
    case GST_VIDEO_COLOR_MATRIX_BT601:
        return full ? &libyuv::kYuvJPEGConstants : &libyuv::kYuvI601Constants;
    case GST_VIDEO_COLOR_MATRIX_BT709:
        return full ? &libyuv::kYuvF709Constants : &libyuv::kYuvH709Constants;
    case GST_VIDEO_COLOR_MATRIX_BT2020:
        return full ? &libyuv::kYuvV2020Constants : &libyuv::kYuv2020Constants;
    default:
        return nullptr;
    }
}

// The library's numbers end at twice the distance of U from its middle. The blue of BT.709 and
// BT.2020 is more than that where the range is limited, as it is in most cameras: up to 14 levels
// would be missing. What it really makes of U is looked at, since a later version may know better.
static double missingBlue(const libyuv::YuvConstants *constants, double blue, bool full)
{
    constexpr uchar y[2] = {40, 40};
    constexpr uchar u[2] = {128, 218};
    constexpr uchar v[2] = {128, 128};
    constexpr double tolerance = 0.02; // reading whole levels is no closer
    uchar bgrx[8] = {};
    libyuv::I444ToARGBMatrix(y, 2, u, 2, v, 2, bgrx, 8, constants, 2, 1);
    const double wanted = (u[1] - u[0]) * blue * (full ? 1 : 255.0 / 224);
    const double gain = wanted / std::max(1, bgrx[4] - bgrx[0]);
    return gain > 1 + tolerance ? gain : 1;
}

ScreenColours coloursOf(const GstVideoColorimetry &colorimetry)
{
    const bool full = colorimetry.range == GST_VIDEO_COLOR_RANGE_0_255;
    const libyuv::YuvConstants *constants = constantsOf(colorimetry, full);
    double red = 0;
    double blue = 0;
    if (!constants || (!full && colorimetry.range != GST_VIDEO_COLOR_RANGE_16_235)
        || !gst_video_color_matrix_get_Kr_Kb(colorimetry.matrix, &red, &blue))
        return {nullptr, 1};
    return {constants, missingBlue(constants, 2 * (1 - blue), full)};
}
