#include "JpegGuard.h"

#include <QtEndian>

#include <cstring>

namespace {

// The second byte of a marker; the first is that of a fill. ITU-T T.81, B.1.1.
constexpr guint8 stuffing = 0x00; // no marker: a byte of the picture that is 0xff is followed by it
constexpr guint8 firstRestart = 0xd0;
constexpr guint8 lastRestart = 0xd7;
constexpr guint8 startOfFrame = 0xd8;
constexpr guint8 endOfFrame = 0xd9;
constexpr guint8 startOfPicture = 0xda;
constexpr guint8 fill = 0xff; // as many as one likes may stand before a marker

constexpr gsize markerSize = 2;
constexpr gsize lengthSize = 2; // of a segment: big-endian, counts itself
constexpr gsize leastPicture = 2; // bytes, by which the decoder tells that there is one

/// Goes through the frame from marker to marker.
class Markers {
public:
    Markers(const guint8 *bytes, gsize size)
        : m_at(bytes)
        , m_end(bytes + size)
    {
    }

    gsize left() const { return gsize(m_end - m_at); }

    /// Steps behind the next marker and returns it; stuffing when there is none.
    guint8 next()
    {
        while (true) {
            const void *found = std::memchr(m_at, fill, left());
            m_at = found ? static_cast<const guint8 *>(found) : m_end;
            if (left() < markerSize)
                return stuffing;
            const guint8 marker = m_at[1];
            m_at += marker == fill ? 1 : markerSize;
            const bool isOfPicture =
                marker == stuffing || (marker >= firstRestart && marker <= lastRestart);
            if (!isOfPicture && marker != fill)
                return marker;
        }
    }

    /// False when it is not there as a whole.
    bool skipSegment()
    {
        if (left() < lengthSize)
            return false;
        const gsize length = qFromBigEndian<quint16>(m_at);
        if (length < lengthSize || length > left())
            return false;
        m_at += length;
        return true;
    }

private:
    const guint8 *m_at;
    const guint8 *m_end;
};

} // namespace

bool JpegGuard::hasEnd(const guint8 *bytes, gsize size)
{
    Markers markers(bytes, size);
    if (markers.next() != startOfFrame)
        return false;
    bool hasPicture = false;
    while (true) {
        const guint8 marker = markers.next();
        if (marker == stuffing || marker == endOfFrame || marker == startOfFrame)
            return hasPicture;
        if (!markers.skipSegment())
            return false;
        hasPicture = hasPicture || (marker == startOfPicture && markers.left() >= leastPicture);
    }
}

void JpegGuard::attach(GstPad *pad)
{
    gst_pad_add_probe(
        pad, GST_PAD_PROBE_TYPE_BUFFER,
        [](GstPad *, GstPadProbeInfo *info, gpointer) {
            GstMapInfo frame = {};
            if (!gst_buffer_map(GST_PAD_PROBE_INFO_BUFFER(info), &frame, GST_MAP_READ))
                return GST_PAD_PROBE_DROP;
            const bool passes = hasEnd(frame.data, frame.size);
            gst_buffer_unmap(GST_PAD_PROBE_INFO_BUFFER(info), &frame);
            return passes ? GST_PAD_PROBE_OK : GST_PAD_PROBE_DROP;
        },
        nullptr, nullptr);
}
