#include "PlaneScaler.h"

#include <libyuv/planar_functions.h>
#include <libyuv/rotate.h>

#include <algorithm>
#include <cmath>

namespace PlaneScaler {

static constexpr unsigned half = ScaleWeights::one / 2; // rounds what is divided by one

// The compiler makes these loops wide; sums of weighted bytes fit in 16 bits.

static void blendThree(const uchar *rows, int stride, const quint16 *weights, uchar *target,
                       int bytes)
{
    const uchar *second = rows + stride;
    const uchar *third = second + stride;
    const unsigned a = weights[0];
    const unsigned b = weights[1];
    const unsigned c = weights[2];
    uchar *__restrict out = target;
    for (int i = 0; i < bytes; ++i)
        out[i] =
            uchar(quint16(rows[i] * a + second[i] * b + third[i] * c + half) / ScaleWeights::one);
}

static void blendFour(const uchar *rows, int stride, const quint16 *weights, uchar *target,
                      int bytes)
{
    const uchar *second = rows + stride;
    const uchar *third = second + stride;
    const uchar *fourth = third + stride;
    const unsigned a = weights[0];
    const unsigned b = weights[1];
    const unsigned c = weights[2];
    const unsigned d = weights[3];
    uchar *__restrict out = target;
    for (int i = 0; i < bytes; ++i)
        out[i] = uchar(quint16(rows[i] * a + second[i] * b + third[i] * c + fourth[i] * d + half)
                       / ScaleWeights::one);
}

static void blendMany(const uchar *rows, int stride, const quint16 *weights, int count,
                      uchar *target, int bytes)
{
    constexpr int piece = 64;
    for (int at = 0; at < bytes; at += piece) {
        const int length = std::min(piece, bytes - at);
        quint16 sums[piece];
        std::fill_n(sums, piece, quint16(half));
        for (int row = 0; row < count; ++row) {
            const uchar *in = rows + qptrdiff(row) * stride + at;
            const quint16 weight = weights[row];
            for (int i = 0; i < length; ++i)
                sums[i] = quint16(sums[i] + in[i] * weight);
        }
        for (int i = 0; i < length; ++i)
            target[at + i] = uchar(sums[i] / ScaleWeights::one);
    }
}

void blendRows(const uchar *rows, int stride, const ScaleWeights &weights,
               const ScaleWeights::Window &window, uchar *target, int bytes)
{
    const quint16 *shares = weights.of(window);
    switch (window.count) {
    case 1:
        std::copy_n(rows, bytes, target);
        break;
    case 2:
        libyuv::InterpolatePlane(rows, 0, rows + stride, 0, target, 0, bytes, 1, shares[1]);
        break;
    case 3:
        blendThree(rows, stride, shares, target, bytes);
        break;
    case 4:
        blendFour(rows, stride, shares, target, bytes);
        break;
    default:
        blendMany(rows, stride, shares, window.count, target, bytes);
    }
}

size_t acrossRoom(const ScaleWeights &weights)
{
    return size_t(std::max(weights.samples(), weights.count())) * laneCount;
}

// Lines of as many samples as there are lanes are blended like rows.
template <int Lanes>
static void blendLanes(const uchar *turned, const ScaleWeights &weights, uchar *scaled)
{
    for (int i = 0; i < weights.count(); ++i) {
        const ScaleWeights::Window &window = weights.at(i);
        const uchar *in = turned + qptrdiff(window.first) * Lanes;
        const quint16 *shares = weights.of(window);
        quint16 sums[Lanes];
        for (int lane = 0; lane < Lanes; ++lane)
            sums[lane] = quint16(half + in[lane] * shares[0]);
        for (int sample = 1; sample < window.count; ++sample) {
            in += Lanes;
            const quint16 share = shares[sample];
            for (int lane = 0; lane < Lanes; ++lane)
                sums[lane] = quint16(sums[lane] + in[lane] * share);
        }
        for (int lane = 0; lane < Lanes; ++lane)
            scaled[lane] = uchar(sums[lane] / ScaleWeights::one);
        scaled += Lanes;
    }
}

void scaleAcross(const uchar *rows, int stride, int count, const ScaleWeights &weights,
                 uchar *target, int targetStride, uchar *turned, uchar *scaled)
{
    if (weights.isIdentity()) {
        libyuv::CopyPlane(rows, stride, target, targetStride, weights.count(), count);
        return;
    }
    const int lanes = count > laneCount / 2 ? laneCount : laneCount / 2;
    libyuv::TransposePlane(rows, stride, turned, lanes, weights.samples(), lanes);
    if (lanes == laneCount)
        blendLanes<laneCount>(turned, weights, scaled);
    else
        blendLanes<laneCount / 2>(turned, weights, scaled);
    libyuv::TransposePlane(scaled, lanes, target, targetStride, lanes, weights.count());
}

void stretch(uchar *samples, int count, double gain)
{
    constexpr int middle = 128;
    constexpr int unit = 1024;
    const auto more = qint16(std::lround((gain - 1) * unit));
    for (int i = 0; i < count; ++i) {
        const auto distance = qint16(samples[i] - middle);
        const auto added = qint16(qint16(distance * more + unit / 2) >> 10);
        samples[i] = uchar(std::clamp<qint16>(qint16(samples[i] + added), 0, 255));
    }
}

} // namespace PlaneScaler
