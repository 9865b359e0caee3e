#include "ModeChooser.h"

#include <QList>

#include <algorithm>
#include <array>
#include <tuple>

static qint64 area(const QSize &size)
{
    return qint64(size.width()) * size.height();
}

// Formats that convert fastest come first; every other one is as good as the next.
static int formatRank(const QByteArray &format)
{
    static const QList<QByteArray> preferred{"YUY2", "UYVY", "NV12", "I420"};
    const int index = preferred.indexOf(format);
    return index < 0 ? preferred.size() : index;
}

// Larger is better, member by member.
using Merit = std::array<double, 8>;

static Merit meritOf(const CameraMode &mode)
{
    const double rate = mode.rate();
    const bool smooth = rate >= 24;
    const bool fits = mode.width <= 1920 && mode.height <= 1080;
    const double size = double(area(mode.size()));
    return {double(!mode.isGrey()),
            double(smooth),
            smooth ? 0.0 : rate,
            double(fits),
            fits ? size : -size,
            -qAbs(rate - 30),
            double(mode.encoding == CameraMode::Encoding::Raw),
            -double(formatRank(mode.format))};
}

int bestMode(const QVector<CameraMode> &modes, const QSize &wanted)
{
    int best = -1;
    for (int i = 0; i < modes.size(); ++i) {
        if (!wanted.isEmpty() && modes.at(i).size() != wanted)
            continue;
        if (best < 0 || meritOf(modes.at(best)) < meritOf(modes.at(i)))
            best = i;
    }
    return best;
}

QByteArray advantageOf(const CameraMode &mode, const CameraMode &other)
{
    static const std::array<const char *, std::tuple_size<Merit>::value> names{
        "colours",
        "at least 24 frames a second",
        "more frames a second",
        "a size of at most 1920x1080",
        "the better size",
        "a rate nearer to 30 frames a second",
        "no JPEG to decode",
        "a format that is quick to convert"};
    const Merit merit = meritOf(mode);
    const Merit rival = meritOf(other);
    const auto differ = std::mismatch(merit.begin(), merit.end(), rival.begin());
    if (differ.first == merit.end() || *differ.first < *differ.second)
        return {};
    return names[size_t(std::distance(merit.begin(), differ.first))];
}

QStringList resolutionNames(const QVector<CameraMode> &modes)
{
    QVector<QSize> sizes;
    for (const CameraMode &mode : modes)
        if (!sizes.contains(mode.size()))
            sizes.append(mode.size());
    std::sort(sizes.begin(), sizes.end(), [](const QSize &left, const QSize &right) {
        return std::make_tuple(area(left), left.width())
            > std::make_tuple(area(right), right.width());
    });
    QStringList names;
    for (const QSize &size : qAsConst(sizes))
        names.append(QStringLiteral("%1x%2").arg(size.width()).arg(size.height()));
    return names;
}
