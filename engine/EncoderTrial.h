#ifndef ENCODERTRIAL_H
#define ENCODERTRIAL_H

#include <QByteArray>

/// Lets the encoder @p encoder, a part of a launch line, encode all that the source @p source, the
/// part before it, gives. Returns the time that it needs for one piece of it, in s; negative when
/// it does not work. May take half a minute, or hang in a driver; works on the calling thread,
/// which yields to others from then on.
double tryEncoder(const QByteArray &source, const QByteArray &encoder);

#endif
