#ifndef SCALEWEIGHTS_H
#define SCALEWEIGHTS_H

#include <QtGlobal>

#include <vector>

/**
 * How a line of samples becomes a line of another length: the window of samples that each new one
 * is made of, and their weights. Where the line shrinks, a window is the area that the new sample
 * covers, so nothing of a thin stroke is lost between two samples; where it grows, a window is the
 * two neighbours, blended by distance.
 *
 * Immutable: any thread may read it.
 */
class ScaleWeights {
public:
    static constexpr int one = 256; ///< what the weights of a window add up to

    struct Window {
        int first; ///< index of its first sample
        int count; ///< at least 1
        int weights; ///< index of its first weight
    };

    ScaleWeights() = default;

    /// New sample i, of @p count, lies at (i + 0.5) * @p step + @p shift, counted in the
    /// @p samples old ones, of which the first has its middle at 0.5. What would lie outside of
    /// them is like the outermost one. None of the numbers of samples is 0.
    ScaleWeights(int samples, int count, double step, double shift);

    int samples() const { return m_samples; }
    int count() const { return int(m_windows.size()); }
    const Window &at(int index) const { return m_windows[size_t(index)]; }
    const quint16 *of(const Window &window) const { return &m_weights[size_t(window.weights)]; }

    /// True when each new sample is the old one of the same index.
    bool isIdentity() const { return m_identity; }

private:
    void addWindow(double from, double to);

    int m_samples = 0;
    bool m_identity = false;
    std::vector<Window> m_windows;
    std::vector<quint16> m_weights;
};

#endif
