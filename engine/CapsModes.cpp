#include "CapsModes.h"

#include <gst/video/video.h>

#include <iterator>
#include <utility>

// Sizes that cameras really have, for those that offer a range.
static const QSize usualSizes[] = {{1920, 1080}, {1280, 720}, {1024, 768},
                                   {800, 600},   {640, 480},  {320, 240}};

static const int longestSide = 16384; // px; more than any camera has

struct Rate {
    int numerator = 30;
    int denominator = 1;
};

// The values of a field that is one string or a list of them.
static QVector<QByteArray> stringsOf(const GValue *value)
{
    QVector<QByteArray> strings;
    if (value && G_VALUE_HOLDS_STRING(value))
        strings.append(g_value_get_string(value));
    else if (value && GST_VALUE_HOLDS_LIST(value))
        for (guint i = 0; i < gst_value_list_get_size(value); ++i)
            strings += stringsOf(gst_value_list_get_value(value, i));
    return strings;
}

static bool allows(const GValue *field, int wanted)
{
    if (G_VALUE_HOLDS_INT(field))
        return g_value_get_int(field) == wanted;
    if (GST_VALUE_HOLDS_INT_RANGE(field)) {
        const int low = gst_value_get_int_range_min(field);
        return wanted >= low && wanted <= gst_value_get_int_range_max(field)
            && (wanted - low) % gst_value_get_int_range_step(field) == 0;
    }
    for (guint i = 0; GST_VALUE_HOLDS_LIST(field) && i < gst_value_list_get_size(field); ++i)
        if (allows(gst_value_list_get_value(field, i), wanted))
            return true;
    return false;
}

static int largest(const GValue *field)
{
    if (G_VALUE_HOLDS_INT(field))
        return g_value_get_int(field);
    if (GST_VALUE_HOLDS_INT_RANGE(field))
        return gst_value_get_int_range_max(field);
    int best = 0;
    for (guint i = 0; GST_VALUE_HOLDS_LIST(field) && i < gst_value_list_get_size(field); ++i)
        best = qMax(best, largest(gst_value_list_get_value(field, i)));
    return best;
}

// A driver can say anything.
static bool isSizeOfAPicture(const QSize &size)
{
    return !size.isEmpty() && size.width() <= longestSide && size.height() <= longestSide;
}

static QVector<QSize> sizesOf(const GstStructure *structure)
{
    const GValue *width = gst_structure_get_value(structure, "width");
    const GValue *height = gst_structure_get_value(structure, "height");
    if (!width || !height)
        return {};
    if (G_VALUE_HOLDS_INT(width) && G_VALUE_HOLDS_INT(height))
        return {QSize(g_value_get_int(width), g_value_get_int(height))};
    QVector<QSize> sizes;
    for (const QSize &size : usualSizes)
        if (allows(width, size.width()) && allows(height, size.height()))
            sizes.append(size);
    if (sizes.isEmpty())
        sizes.append(QSize(largest(width), largest(height)));
    return sizes;
}

static QVector<Rate> ratesOf(const GValue *value)
{
    if (!value)
        return {Rate()};
    if (GST_VALUE_HOLDS_FRACTION(value))
        return {
            {gst_value_get_fraction_numerator(value), gst_value_get_fraction_denominator(value)}};
    if (GST_VALUE_HOLDS_FRACTION_RANGE(value)) {
        const GValue *low = gst_value_get_fraction_range_min(value);
        const GValue *high = gst_value_get_fraction_range_max(value);
        const Rate slowest = ratesOf(low).first();
        const Rate fastest = ratesOf(high).first();
        if (slowest.numerator > 30LL * slowest.denominator)
            return {slowest};
        return {fastest.numerator < 30LL * fastest.denominator ? fastest : Rate()};
    }
    QVector<Rate> rates;
    for (guint i = 0; GST_VALUE_HOLDS_LIST(value) && i < gst_value_list_get_size(value); ++i)
        rates += ratesOf(gst_value_list_get_value(value, i));
    return rates;
}

static bool isKnownFormat(const QByteArray &format)
{
    const GstVideoFormat known = gst_video_format_from_string(format.constData());
    return known != GST_VIDEO_FORMAT_UNKNOWN && known != GST_VIDEO_FORMAT_ENCODED;
}

static QVector<QByteArray> rawFormatsOf(const GstStructure *structure)
{
    QVector<QByteArray> formats;
    const QVector<QByteArray> offered = stringsOf(gst_structure_get_value(structure, "format"));
    for (const QByteArray &format : offered)
        if (isKnownFormat(format))
            formats.append(format);
    return formats;
}

static void appendModes(const GstStructure *structure, CameraMode::Encoding encoding,
                        const QVector<QByteArray> &formats, QVector<CameraMode> &modes)
{
    const QVector<QSize> sizes = sizesOf(structure);
    const QVector<Rate> rates = ratesOf(gst_structure_get_value(structure, "framerate"));
    for (const QByteArray &format : formats) {
        for (const QSize &size : sizes) {
            for (const Rate &rate : rates)
                if (isSizeOfAPicture(size))
                    modes.append({encoding, format, size.width(), size.height(), rate.numerator,
                                  rate.denominator});
        }
    }
}

static bool isOrdinaryMemory(const GstCaps *caps, guint index)
{
    const GstCapsFeatures *features = gst_caps_get_features(caps, index);
    return !features
        || gst_caps_features_is_equal(features, GST_CAPS_FEATURES_MEMORY_SYSTEM_MEMORY);
}

// How good the best is that a format offers: frames whole at once, two fields woven into a frame,
// now one and now the other. Fields that come one after the other, each a frame of its own, cannot
// be shown. A format that says nothing sends whole frames.
static const char *const interlacing[] = {"progressive", "interleaved", "mixed"};
static const int wholeFrames = 0;
static const int notShowable = int(std::size(interlacing));

static int interlacingRank(const GstStructure *structure)
{
    const GValue *field = gst_structure_get_value(structure, "interlace-mode");
    if (!field)
        return wholeFrames;
    const QVector<QByteArray> offered = stringsOf(field);
    int rank = wholeFrames;
    while (rank < notShowable && !offered.contains(interlacing[rank]))
        ++rank;
    return rank;
}

QVector<CameraMode> modesOf(const GstCaps *caps)
{
    QVector<CameraMode> modes;
    if (!caps || gst_caps_is_any(caps))
        return modes;
    for (guint i = 0; i < gst_caps_get_size(caps); ++i) {
        const GstStructure *structure = gst_caps_get_structure(caps, i);
        if (!isOrdinaryMemory(caps, i) || interlacingRank(structure) == notShowable)
            continue;
        if (gst_structure_has_name(structure, "video/x-raw"))
            appendModes(structure, CameraMode::Encoding::Raw, rawFormatsOf(structure), modes);
        else if (gst_structure_has_name(structure, "image/jpeg"))
            appendModes(structure, CameraMode::Encoding::Jpeg, {QByteArray()}, modes);
    }
    return modes;
}

// The one of several formats, all of the same size and rate, whose frames are whole if possible.
static GstMiniHandle<GstCaps> leastInterlaced(const GstCaps *formats)
{
    int best = notShowable;
    guint index = 0;
    for (guint i = 0; i < gst_caps_get_size(formats); ++i) {
        const int rank = interlacingRank(gst_caps_get_structure(formats, i));
        if (rank >= best)
            continue;
        best = rank;
        index = i;
    }
    if (best == notShowable)
        return nullptr;
    GstCaps *chosen = gst_caps_copy_nth(formats, index);
    GstStructure *format = gst_caps_get_structure(chosen, 0);
    if (gst_structure_has_field(format, "interlace-mode"))
        gst_structure_set(format, "interlace-mode", G_TYPE_STRING, interlacing[best], nullptr);
    GstMiniHandle<GstCaps> fixed(gst_caps_fixate(chosen));
    return gst_caps_is_fixed(fixed.get()) ? std::move(fixed) : nullptr;
}

GstMiniHandle<GstCaps> fixedCaps(GstCaps *offered, const CameraMode &mode)
{
    const bool raw = mode.encoding == CameraMode::Encoding::Raw;
    GstMiniHandle<GstCaps> wanted(
        gst_caps_new_simple(raw ? "video/x-raw" : "image/jpeg", "width", G_TYPE_INT, mode.width,
                            "height", G_TYPE_INT, mode.height, "framerate", GST_TYPE_FRACTION,
                            mode.rateNumerator, mode.rateDenominator, nullptr));
    if (raw)
        gst_caps_set_simple(wanted.get(), "format", G_TYPE_STRING, mode.format.constData(),
                            nullptr);
    const GstMiniHandle<GstCaps> common(gst_caps_intersect(offered, wanted.get()));
    return leastInterlaced(common.get());
}
