#ifndef GSTHANDLES_H
#define GSTHANDLES_H

#include <gst/gst.h>

#include <memory>

// Owning handles for the references that GStreamer and GLib hand out. Each gives back exactly one
// reference; what was borrowed is never put into one without sharing it first.

struct GstObjectUnref {
    void operator()(gpointer object) const { gst_object_unref(object); }
};

struct GstMiniObjectUnref {
    void operator()(gpointer object) const { gst_mini_object_unref(GST_MINI_OBJECT_CAST(object)); }
};

struct GstStructureFree {
    void operator()(GstStructure *structure) const { gst_structure_free(structure); }
};

struct GlibFree {
    void operator()(gpointer memory) const { g_free(memory); }
};

struct GlibErrorFree {
    void operator()(GError *error) const { g_error_free(error); }
};

/// Elements, pads, buses, devices and providers.
template <typename T> using GstObjectHandle = std::unique_ptr<T, GstObjectUnref>;

/// Caps, samples, buffers and messages.
template <typename T> using GstMiniHandle = std::unique_ptr<T, GstMiniObjectUnref>;

using GstStructureHandle = std::unique_ptr<GstStructure, GstStructureFree>;
using GlibString = std::unique_ptr<gchar, GlibFree>;
using GlibErrorHandle = std::unique_ptr<GError, GlibErrorFree>;

/// A device that a provider has listed.
using GstDeviceHandle = std::shared_ptr<GstDevice>;

/// Takes a new object whose first reference is still floating.
template <typename T> GstObjectHandle<T> ownFloating(T *object)
{
    return GstObjectHandle<T>(object ? static_cast<T *>(gst_object_ref_sink(object)) : nullptr);
}

#endif
