#include "ScaleWeights.h"

#include <algorithm>
#include <cmath>

// Shares of a sample below this are errors of the arithmetic.
static constexpr double nothing = 1e-6;

ScaleWeights::ScaleWeights(int samples, int count, double step, double shift)
    : m_samples(samples)
{
    m_windows.reserve(size_t(count));
    const double width = std::max(1.0, step);
    for (int i = 0; i < count; ++i) {
        const double middle = (i + 0.5) * step + shift;
        addWindow(middle - width / 2, middle + width / 2);
    }
    m_identity = samples == count;
    for (int i = 0; m_identity && i < count; ++i)
        m_identity = m_windows[size_t(i)].first == i && m_windows[size_t(i)].count == 1;
}

// The area up to the end of each sample is rounded, not each sample's own, so that the weights of
// however many samples add up and none is favoured. Samples without weight at either end are left
// out.
void ScaleWeights::addWindow(double from, double to)
{
    const int last = m_samples - 1;
    const int start = qBound(0, int(std::floor(from + nothing)), last);
    const int end = qBound(start, int(std::ceil(to - nothing)) - 1, last) + 1;
    Window window = {start, 0, int(m_weights.size())};
    int given = 0;
    for (int sample = start; sample < end && given < one; ++sample) {
        const double covered =
            sample == last ? 1 : (std::min(to, sample + 1.0) - from) / (to - from);
        const int upTo = int(std::lround(qBound(0.0, covered, 1.0) * one));
        if (upTo == 0) {
            window.first = sample + 1;
            continue;
        }
        m_weights.push_back(quint16(upTo - given));
        ++window.count;
        given = upTo;
    }
    m_windows.push_back(window);
}
