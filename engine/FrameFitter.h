#ifndef FRAMEFITTER_H
#define FRAMEFITTER_H

#include "GstHandles.h"

#include <gst/video/video.h>

/**
 * Makes frames fit a movie, which has one format from its begin to its end, whatever its camera
 * does: some send another size after a while, or leave the colours out in the dark, or send half a
 * frame. A picture of another shape gets black borders.
 *
 * One thread at a time.
 */
class FrameFitter {
public:
    explicit FrameFitter(const GstVideoInfo &wanted);

    /// The frame itself when its @p caps are those of the movie (or null), as almost always; else a
    /// new one, made while the caller waits. Null for a frame that cannot be read.
    GstMiniHandle<GstBuffer> fitted(GstBuffer *frame, GstCaps *caps);

private:
    void look(GstCaps *caps);
    bool fits() const;
    void makeConverter();
    GstMiniHandle<GstBuffer> converted(GstBuffer *frame);

    struct FreeConverter {
        void operator()(GstVideoConverter *converter) const { gst_video_converter_free(converter); }
    };

    const GstVideoInfo m_wanted;
    GstMiniHandle<GstCaps> m_caps; ///< of the last frame; null for the movie's
    GstVideoInfo m_given; ///< what they say
    bool m_isKnown = true; ///< they say anything
    std::unique_ptr<GstVideoConverter, FreeConverter> m_converter; ///< null when none is needed
};

#endif
