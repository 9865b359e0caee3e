#include "ScreenConverter.h"

#include "PlaneScaler.h"

#include <libyuv/convert_argb.h>
#include <libyuv/planar_functions.h>

#include <QThread>

#include <algorithm>

using PlaneScaler::laneCount;

// Pixels of a picture that one thread is not left alone with: half of what a Full-HD screen has.
static constexpr int aloneLimit = 1000000;

ScreenConverter::ScreenConverter()
{
    gst_video_info_init(&m_from);
    m_helper.setMaxThreadCount(1);
}

bool ScreenConverter::convert(const GstVideoFrame &frame, QImage *picture)
{
    if (!prepare(frame.info, picture->size()) || !takePlanes(frame))
        return false;
    m_target = picture->bits();
    m_targetStride = picture->bytesPerLine();
    m_nextBand = 0;
    const bool helped = isLarge() && startHelper();
    makeBands(&m_workspace);
    if (helped) {
        std::unique_lock<std::mutex> lock(m_mutex);
        m_helperIsDone.wait(lock, [this] { return !m_helping; }); // for a band at most
    }
    return true;
}

bool ScreenConverter::isLarge() const
{
    return m_to.width() * m_to.height() > aloneLimit;
}

// False on a machine with one processor, or when no thread can be had: one is enough to go on.
bool ScreenConverter::startHelper()
{
    if (QThread::idealThreadCount() < 2)
        return false;
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_helping = true;
    }
    return m_helper.tryStart([this] {
        makeBands(&m_helperWorkspace);
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_helping = false;
        m_helperIsDone.notify_one();
    });
}

bool ScreenConverter::prepare(const GstVideoInfo &from, const QSize &to)
{
    if (gst_video_info_is_equal(&m_from, &from) && m_to == to)
        return m_format != nullptr;
    m_from = from;
    m_to = to;
    m_format = ScreenFormat::of(GST_VIDEO_INFO_FORMAT(&from));
    if (!m_format)
        return false;
    m_colours = {nullptr, 1};
    if (!m_format->isRgb())
        m_colours = coloursOf(GST_VIDEO_INFO_COLORIMETRY(&from));
    if (!m_format->isRgb() && !m_colours.constants) {
        m_format = nullptr;
        return false;
    }
    prepareComponents();
    preparePlanes();
    prepareBands();
    prepareWorkspace(&m_workspace);
    if (isLarge())
        prepareWorkspace(&m_helperWorkspace);
    return true;
}

// Where a sample of chroma lies among those of luma, in samples of chroma.
static double chromaShift(const GstVideoInfo &info, GstVideoChromaSite besideTheFirst, int halvings)
{
    const bool beside = (GST_VIDEO_INFO_CHROMA_SITE(&info) & besideTheFirst) != 0;
    return halvings == 1 && beside ? 0.25 : 0;
}

static int roundedUp(int value, int step)
{
    return (value + step - 1) / step * step;
}

void ScreenConverter::prepareComponents()
{
    const GstVideoFormatInfo *format = m_from.finfo;
    const double step = double(GST_VIDEO_INFO_WIDTH(&m_from)) / m_to.width();
    const int half = (m_to.width() + 1) / 2;
    // Chroma that has to be enlarged at least twice loses nothing to see by ending half as wide.
    m_halfChroma = m_colours.constants && half >= GST_VIDEO_INFO_COMP_WIDTH(&m_from, 1);
    for (int i = 0; i < 3; ++i) {
        const int samples = GST_VIDEO_INFO_COMP_WIDTH(&m_from, i);
        const int halvings = GST_VIDEO_FORMAT_INFO_W_SUB(format, i);
        const bool halved = i > 0 && m_halfChroma;
        m_components[i].across = ScaleWeights(
            samples, halved ? half : m_to.width(), step * (halved ? 2 : 1) / (1 << halvings),
            chromaShift(m_from, GST_VIDEO_CHROMA_SITE_H_COSITED, halvings));
        m_components[i].stride = roundedUp(samples, 64);
        m_components[i].scaledStride = roundedUp(m_components[i].across.count(), 64);
    }
}

void ScreenConverter::preparePlanes()
{
    const GstVideoFormatInfo *format = m_from.finfo;
    const double step = double(GST_VIDEO_INFO_HEIGHT(&m_from)) / m_to.height();
    m_planes.clear();
    for (int i = 0; i < m_format->planeCount; ++i) {
        const ScreenFormat::Plane &plane = m_format->planes[i];
        const int last = plane.first + plane.components - 1;
        const int halvings = GST_VIDEO_FORMAT_INFO_H_SUB(format, last);
        const int bytes =
            GST_VIDEO_INFO_COMP_WIDTH(&m_from, last) * GST_VIDEO_FORMAT_INFO_PSTRIDE(format, last);
        m_planes.push_back(
            {plane, bytes,
             ScaleWeights(GST_VIDEO_INFO_COMP_HEIGHT(&m_from, last), m_to.height(),
                          step / (1 << halvings),
                          chromaShift(m_from, GST_VIDEO_CHROMA_SITE_V_COSITED, halvings)),
             nullptr, 0});
    }
}

void ScreenConverter::prepareBands()
{
    m_bands.clear();
    for (int first = 0; first < m_to.height();) {
        const int end = bandEnd(first);
        m_bands.push_back({first, end - first});
        first = end;
    }
}

// As many rows as fill the lanes of those that are scaled across: in the picture's height when it
// is lower than the frame, else in the frame's.
int ScreenConverter::bandEnd(int first) const
{
    if (m_to.height() <= GST_VIDEO_INFO_HEIGHT(&m_from))
        return std::min(m_to.height(), first + laneCount);
    const auto fits = [this, first](int row) {
        return std::all_of(m_planes.begin(), m_planes.end(), [&](const Plane &plane) {
            const bool isHalf = plane.down.samples() < GST_VIDEO_INFO_HEIGHT(&m_from);
            const ScaleWeights::Window &last = plane.down.at(row);
            return last.first + last.count - plane.down.at(first).first
                <= (isHalf ? laneCount / 2 : laneCount);
        });
    };
    int end = first + 1;
    while (end < m_to.height() && fits(end))
        ++end;
    return end;
}

void ScreenConverter::prepareWorkspace(Workspace *workspace) const
{
    size_t blended = 0;
    for (const Plane &plane : m_planes)
        blended = std::max(blended, size_t(plane.bytes) * laneCount);
    workspace->blended.resize(blended);
    size_t turned = 0;
    for (int i = 0; i < 3; ++i) {
        const Component &component = m_components[i];
        workspace->parts[i].resize(size_t(component.stride) * laneCount);
        workspace->scaled[i].resize(size_t(component.scaledStride) * laneCount);
        workspace->lines[i].resize(size_t(component.scaledStride));
        turned = std::max(turned, PlaneScaler::acrossRoom(component.across));
    }
    workspace->turned.resize(turned);
    workspace->turnedScaled.resize(turned);
}

// False for rows that stand closer than two columns of the format need; some drivers send such.
bool ScreenConverter::takePlanes(const GstVideoFrame &frame)
{
    for (Plane &plane : m_planes) {
        const auto at = size_t(GST_VIDEO_FORMAT_INFO_PLANE(m_from.finfo, plane.format.first));
        plane.rows = static_cast<const uchar *>(GST_VIDEO_FRAME_PLANE_DATA(&frame, at));
        plane.stride = GST_VIDEO_FRAME_PLANE_STRIDE(&frame, at);
        if (plane.stride < plane.bytes)
            return false;
    }
    return true;
}

void ScreenConverter::makeBands(Workspace *workspace)
{
    const bool isLower = m_to.height() <= GST_VIDEO_INFO_HEIGHT(&m_from);
    for (size_t i = m_nextBand++; i < m_bands.size(); i = m_nextBand++)
        if (isLower)
            shrinkBand(m_bands[i], workspace);
        else
            enlargeBand(m_bands[i], workspace);
}

void ScreenConverter::shrinkBand(const Band &band, Workspace *workspace) const
{
    for (const Plane &plane : m_planes) {
        const int first = plane.format.first;
        std::vector<uchar> &target =
            plane.format.split ? workspace->blended : workspace->parts[first];
        const int stride = plane.format.split ? plane.bytes : m_components[first].stride;
        for (int row = 0; row < band.count; ++row) {
            const ScaleWeights::Window &window = plane.down.at(band.first + row);
            PlaneScaler::blendRows(plane.rows + qptrdiff(window.first) * plane.stride, plane.stride,
                                   plane.down, window, &target[size_t(row) * size_t(stride)],
                                   plane.bytes);
        }
        if (plane.format.split)
            splitRows(plane, target.data(), stride, band.count, workspace);
        scaleComponents(plane, band.count, workspace);
    }
    writeRows(workspace->scaled, band.first, band.count);
}

void ScreenConverter::enlargeBand(const Band &band, Workspace *workspace) const
{
    for (const Plane &plane : m_planes) {
        const ScaleWeights::Window &last = plane.down.at(band.first + band.count - 1);
        const int first = plane.down.at(band.first).first;
        const int count = last.first + last.count - first;
        splitRows(plane, plane.rows + qptrdiff(first) * plane.stride, plane.stride, count,
                  workspace);
        scaleComponents(plane, count, workspace);
    }
    for (int row = band.first; row < band.first + band.count; ++row) {
        for (const Plane &plane : m_planes)
            blendLines(plane, band, row, workspace);
        writeRows(workspace->lines, row, 1);
    }
}

void ScreenConverter::blendLines(const Plane &plane, const Band &band, int row,
                                 Workspace *workspace) const
{
    const ScaleWeights::Window &window = plane.down.at(row);
    const auto from = size_t(window.first - plane.down.at(band.first).first);
    for (int i = plane.format.first; i < plane.format.first + plane.format.components; ++i) {
        const int stride = m_components[i].scaledStride;
        PlaneScaler::blendRows(&workspace->scaled[i][from * size_t(stride)], stride, plane.down,
                               window, workspace->lines[i].data(), m_components[i].across.count());
    }
}

void ScreenConverter::splitRows(const Plane &plane, const uchar *rows, int stride, int count,
                                Workspace *workspace) const
{
    uchar *targets[3] = {};
    int strides[3] = {};
    for (int i = 0; i < plane.format.components; ++i) {
        targets[i] = workspace->parts[plane.format.first + i].data();
        strides[i] = m_components[plane.format.first + i].stride;
    }
    if (plane.format.split)
        plane.format.split(rows, stride, count, GST_VIDEO_INFO_WIDTH(&m_from), targets, strides);
    else
        libyuv::CopyPlane(rows, stride, targets[0], strides[0], plane.bytes, count);
}

void ScreenConverter::scaleComponents(const Plane &plane, int rows, Workspace *workspace) const
{
    for (int i = plane.format.first; i < plane.format.first + plane.format.components; ++i) {
        const Component &component = m_components[i];
        PlaneScaler::scaleAcross(workspace->parts[i].data(), component.stride, rows,
                                 component.across, workspace->scaled[i].data(),
                                 component.scaledStride, workspace->turned.data(),
                                 workspace->turnedScaled.data());
        if (i == 1 && m_colours.gain > 1)
            PlaneScaler::stretch(workspace->scaled[i].data(), component.scaledStride * rows,
                                 m_colours.gain);
    }
}

void ScreenConverter::writeRows(const std::vector<uchar> *components, int first, int count) const
{
    const uchar *const c[3] = {components[0].data(), components[1].data(), components[2].data()};
    const int strides[3] = {m_components[0].scaledStride, m_components[1].scaledStride,
                            m_components[2].scaledStride};
    uchar *target = m_target + qptrdiff(first) * m_targetStride;
    if (!m_colours.constants)
        libyuv::MergeARGBPlane(c[0], strides[0], c[1], strides[1], c[2], strides[2], nullptr, 0,
                               target, m_targetStride, m_to.width(), count);
    else if (m_halfChroma)
        libyuv::I422ToARGBMatrix(c[0], strides[0], c[1], strides[1], c[2], strides[2], target,
                                 m_targetStride, m_colours.constants, m_to.width(), count);
    else
        libyuv::I444ToARGBMatrix(c[0], strides[0], c[1], strides[1], c[2], strides[2], target,
                                 m_targetStride, m_colours.constants, m_to.width(), count);
}
