#include "ModeChooser.h"

#include <QList>

#include <algorithm>
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
static auto merit(const CameraMode &mode)
{
    const double rate = mode.rate();
    const bool smooth = rate >= 24;
    const bool fits = mode.width <= 1920 && mode.height <= 1080;
    return std::make_tuple(!mode.isGrey(), smooth, smooth ? 0.0 : rate, fits,
                           fits ? area(mode.size()) : -area(mode.size()), -qAbs(rate - 30),
                           mode.encoding == CameraMode::Encoding::Raw, -formatRank(mode.format));
}

int bestMode(const QVector<CameraMode> &modes, const QSize &wanted)
{
    int best = -1;
    for (int i = 0; i < modes.size(); ++i) {
        if (!wanted.isEmpty() && modes.at(i).size() != wanted)
            continue;
        if (best < 0 || merit(modes.at(best)) < merit(modes.at(i)))
            best = i;
    }
    return best;
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
