#include "UvcDescriptors.h"

#include <QStringList>

#include <algorithm>

UvcMode uvcModeFromText(const QString &text)
{
    const QStringList parts = text.split(':');
    const QStringList sides = parts.value(1).split('x');
    UvcMode mode;
    if (parts.size() != 3 || sides.size() != 2 || (parts[0] != "MJPG" && parts[0] != "YUYV"))
        return {};
    mode.isJpeg = parts[0] == "MJPG";
    mode.rate = parts[2].toInt();
    const QSize size(sides[0].toInt(), sides[1].toInt());
    const bool possible = size.width() >= 32 && size.height() >= 32 && size.width() % 2 == 0
        && size.width() <= 4096 && size.height() <= 4096 && mode.rate >= 1 && mode.rate <= 120;
    if (possible)
        mode.size = size;
    return mode;
}

namespace UvcDescriptors {

// Kinds of descriptor.
static constexpr char deviceKind = 0x01;
static constexpr char configurationKind = 0x02;
static constexpr char textKind = 0x03;
static constexpr char interfaceKind = 0x04;
static constexpr char endpointKind = 0x05;
static constexpr char associationKind = 0x0b;
static constexpr char classKind = 0x24; // of the class; the next byte says which
static constexpr char videoClass = 0x0e;

static QByteArray bytes(std::initializer_list<int> values)
{
    QByteArray out;
    for (const int value : values)
        out += char(value);
    return out;
}

static QByteArray word(quint32 value)
{
    return bytes({int(value & 0xff), int(value >> 8 & 0xff)});
}

static QByteArray doubleWord(quint32 value)
{
    return word(value & 0xffff) + word(value >> 16);
}

// Every descriptor begins with its own length and its kind.
static QByteArray descriptor(char kind, const QByteArray &rest)
{
    return bytes({rest.size() + 2, kind}) + rest;
}

static QByteArray interfaceHead(int number, int endpoints, int subclass)
{
    return descriptor(interfaceKind, bytes({number, 0, endpoints, videoClass, subclass, 0, 0}));
}

// JPEG first, if there is any.
static bool isJpeg(const QVector<UvcMode> &modes, int format)
{
    return format == 1
        && std::any_of(
               modes.begin(), modes.end(), [](const UvcMode &mode) { return mode.isJpeg; });
}

int formatCount(const QVector<UvcMode> &modes)
{
    const auto count =
        std::count_if(modes.begin(), modes.end(), [](const UvcMode &mode) { return mode.isJpeg; });
    return int(count > 0) + int(count < modes.size());
}

QVector<UvcMode> framesOf(const QVector<UvcMode> &modes, int format)
{
    QVector<UvcMode> frames;
    if (format < 1 || format > formatCount(modes))
        return frames;
    const bool jpeg = isJpeg(modes, format);
    for (const UvcMode &mode : modes)
        if (mode.isJpeg == jpeg)
            frames.append(mode);
    return frames;
}

static QByteArray frameHead(const UvcMode &mode, int index)
{
    const quint32 bits = mode.frameBytes() * 8 * quint32(mode.rate);
    return descriptor(classKind,
                      bytes({mode.isJpeg ? 0x07 : 0x05, index, 0})
                          + word(quint32(mode.size.width())) + word(quint32(mode.size.height()))
                          + doubleWord(bits) + doubleWord(bits) + doubleWord(mode.frameBytes())
                          + doubleWord(mode.interval()) + bytes({1}) + doubleWord(mode.interval()));
}

static QByteArray format(const QVector<UvcMode> &frames, int index)
{
    static const QByteArray yuyv("YUY2\x00\x00\x10\x00\x80\x00\x00\xaa\x00\x38\x9b\x71", 16);
    const bool jpeg = frames.first().isJpeg;
    const QByteArray kind = jpeg ? bytes({0x06, index, frames.size(), 1})
                                 : bytes({0x04, index, frames.size()}) + yuyv + bytes({16});
    QByteArray out = descriptor(classKind, kind + bytes({1, 0, 0, 0, 0}));
    for (int i = 0; i < frames.size(); ++i)
        out += frameHead(frames.at(i), i + 1);
    // Colours as those of television sets of old.
    return out + descriptor(classKind, bytes({0x0d, 1, 1, 4}));
}

// The lens, the processor with brightness and contrast, and the way out, one behind the other.
static QByteArray controlPart()
{
    const QByteArray units = descriptor(classKind,
                                        bytes({0x02, cameraTerminal, 0x01, 0x02, 0, 0})
                                            + QByteArray(6, '\0') + bytes({3, 0, 0, 0}))
        + descriptor(classKind,
                     bytes({0x05, processingUnit, cameraTerminal, 0, 0, 2, 0x03, 0, 0, 0}))
        + descriptor(classKind, bytes({0x03, outputTerminal, 0x01, 0x01, 0, processingUnit, 0}));
    constexpr int headBytes = 13;
    const QByteArray head =
        descriptor(classKind,
                   bytes({0x01}) + word(0x0110) + word(quint32(headBytes + units.size()))
                       + doubleWord(48000000) + bytes({1, streamInterface}));
    return interfaceHead(controlInterface, 0, 1) + head + units;
}

static QByteArray streamPart(const QVector<UvcMode> &modes)
{
    const int count = formatCount(modes);
    QByteArray formats;
    for (int i = 1; i <= count; ++i)
        formats += format(framesOf(modes, i), i);
    const int headBytes = 13 + count;
    const QByteArray head =
        descriptor(classKind,
                   bytes({0x01, count}) + word(quint32(headBytes + formats.size()))
                       + bytes({0x80 | streamEndpoint, 0, outputTerminal, 0, 0, 0, 1})
                       + QByteArray(count, '\0'));
    const QByteArray endpoint =
        descriptor(endpointKind, bytes({0x80 | streamEndpoint, 0x02}) + word(512) + bytes({0}));
    return interfaceHead(streamInterface, 1, 2) + head + formats + endpoint;
}

QByteArray device(const UvcIdentity &identity)
{
    return descriptor(deviceKind,
                      word(0x0200) + bytes({0xef, 2, 1, 64}) + word(identity.vendor)
                          + word(identity.product) + word(0x0100) + bytes({1, 2, 3, 1}));
}

QByteArray configuration(const UvcIdentity &identity)
{
    const QByteArray parts = descriptor(associationKind, bytes({0, 2, videoClass, 3, 0, 2}))
        + controlPart() + streamPart(identity.modes);
    constexpr int headBytes = 9;
    return descriptor(configurationKind,
                      word(quint32(headBytes + parts.size())) + bytes({2, 1, 0, 0x80, 250}))
        + parts;
}

QByteArray text(const UvcIdentity &identity, int index)
{
    static constexpr quint32 english = 0x0409;
    if (index == 0)
        return descriptor(textKind, word(english));
    const QString words =
        QStringList{QString(), QStringLiteral("Classroom"), identity.name, identity.serial}.value(
            index);
    QByteArray letters;
    for (const QChar letter : words)
        letters += word(letter.unicode());
    return letters.isEmpty() ? QByteArray() : descriptor(textKind, letters);
}

} // namespace UvcDescriptors
