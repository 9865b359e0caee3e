#ifndef UVCPAYLOADS_H
#define UVCPAYLOADS_H

#include <QByteArray>

/**
 * One frame after the other, cut into the payloads that a bulk endpoint sends: each with a head of
 * two bytes that says to which frame it belongs, every other one being alike, and whether it is
 * that frame's last.
 */
class UvcPayloads {
public:
    /// Begins another frame; what was not sent of the one before is lost.
    void begin(const QByteArray &frame);
    /// The frame has no more payloads; so it is before the first one.
    bool isDone() const { return m_isDone; }
    /// The next payload, of at most @p bytes, which are more than the head.
    QByteArray next(int bytes);

private:
    QByteArray m_frame;
    int m_sent = 0;
    bool m_isOdd = true;
    bool m_isDone = true;
};

#endif
