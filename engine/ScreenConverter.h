#ifndef SCREENCONVERTER_H
#define SCREENCONVERTER_H

#include "ScaleWeights.h"
#include "ScreenFormat.h"

#include <QImage>
#include <QThreadPool>

#include <atomic>
#include <condition_variable>
#include <mutex>
#include <vector>

/**
 * Turns the frames that cameras send into pictures for the screen, at a third to a half of what
 * GStreamer's converter of all formats takes. A frame is worked off in bands of few rows, each of
 * which goes through all steps while it is in the processor's cache: shrunk or enlarged as the
 * camera sent it, plane by plane, and turned into RGB last. Shrinking averages areas, so thin
 * strokes on a page stay whole.
 *
 * The pictures of the largest screens are made by two threads, which take bands from one heap; the
 * second is idle otherwise. Keeps what it worked out for the last format and size. One thread at a
 * time calls.
 */
class ScreenConverter {
public:
    ScreenConverter();

    /// Fills @p picture, of RGB32 or, opaque, of ARGB32_Premultiplied and at least 1x1, with @p
    /// frame, scaled without regard to its aspect. False, with the picture as it was, for a format
    /// or colours that are not known here.
    bool convert(const GstVideoFrame &frame, QImage *picture);

private:
    /// A plane of the frame, as it stands in memory.
    struct Plane {
        ScreenFormat::Plane format;
        int bytes; ///< of a row, without padding
        ScaleWeights down;
        const uchar *rows; ///< of the frame that is being converted
        int stride;
    };

    /// One of the three components.
    struct Component {
        ScaleWeights across;
        int stride; ///< of its rows in Workspace::parts
        int scaledStride; ///< of its rows in Workspace::scaled
    };

    /// What a thread needs for itself.
    struct Workspace {
        std::vector<uchar> blended; ///< rows of a plane with several components
        std::vector<uchar> parts[3]; ///< rows of each component
        std::vector<uchar> scaled[3]; ///< the same in the picture's width
        std::vector<uchar> lines[3]; ///< one row each, in the picture's height too
        std::vector<uchar> turned;
        std::vector<uchar> turnedScaled;
    };

    struct Band {
        int first; ///< row of the picture
        int count;
    };

    bool isLarge() const;
    bool startHelper();
    bool prepare(const GstVideoInfo &from, const QSize &to);
    void prepareComponents();
    void preparePlanes();
    void prepareBands();
    int bandEnd(int first) const;
    void prepareWorkspace(Workspace *workspace) const;
    bool takePlanes(const GstVideoFrame &frame);
    void makeBands(Workspace *workspace);
    void shrinkBand(const Band &band, Workspace *workspace) const;
    void enlargeBand(const Band &band, Workspace *workspace) const;
    void splitRows(const Plane &plane, const uchar *rows, int stride, int count,
                   Workspace *workspace) const;
    void blendLines(const Plane &plane, const Band &band, int row, Workspace *workspace) const;
    void scaleComponents(const Plane &plane, int rows, Workspace *workspace) const;
    void writeRows(const std::vector<uchar> *components, int first, int count) const;

    GstVideoInfo m_from;
    QSize m_to;
    const ScreenFormat *m_format = nullptr; ///< null while the last frame's is not known here
    ScreenColours m_colours = {nullptr, 1}; ///< without constants for RGB
    bool m_halfChroma = false; ///< two columns of the picture share their U and V
    std::vector<Plane> m_planes;
    Component m_components[3];
    std::vector<Band> m_bands;

    uchar *m_target = nullptr; ///< the picture that is being made
    int m_targetStride = 0;
    std::atomic<size_t> m_nextBand{0}; ///< set last: who takes a band sees all of the above
    Workspace m_workspace; ///< of the calling thread
    Workspace m_helperWorkspace;
    std::mutex m_mutex;
    std::condition_variable m_helperIsDone;
    bool m_helping = false; ///< guarded by the mutex
    QThreadPool m_helper; ///< last, so that it ends before what it works with
};

#endif
