#ifndef UVCCONTROLS_H
#define UVCCONTROLS_H

#include "UvcDescriptors.h"

#include <QMap>

#include <optional>

/**
 * The camera's side of all control requests: the descriptors, brightness and contrast, and the
 * talk in which the kernel and the camera agree on a mode. Bytes in, bytes out; the caller has the
 * connection and the stream.
 */
class UvcControls {
public:
    struct Answer {
        bool isStalled = false; ///< the camera does not know such a request
        QByteArray data; ///< for a request that asks
        bool commits = false; ///< the stream of mode() is to begin
        bool halts = false; ///< the stream is to end
    };

    explicit UvcControls(UvcIdentity identity);

    /// @p setup are the eight bytes of the request, @p data what came with it.
    Answer answer(const QByteArray &setup, const QByteArray &data);

    /// What was agreed on last; before that the first mode.
    UvcMode mode() const { return agreed(m_committed); }

private:
    /// Counted from one, as they are described.
    struct Choice {
        int format = 1;
        int frame = 1;
    };
    /// A request of eight bytes.
    struct Setup {
        int type = 0;
        int request = 0;
        int value = 0;
        int index = 0;
        int length = 0;
    };

    Answer standardAnswer(const Setup &setup) const;
    Answer descriptorAnswer(int value) const;
    Answer streamAnswer(const Setup &setup, const QByteArray &data);
    Answer unitAnswer(const Setup &setup, const QByteArray &data);
    UvcMode agreed(const Choice &choice) const;
    Choice understood(const QByteArray &block) const;
    QByteArray block(const Choice &choice) const;

    const UvcIdentity m_identity;
    Choice m_probed;
    Choice m_committed;
    QMap<int, QByteArray> m_units; ///< two bytes for each control of the processing unit
};

#endif
