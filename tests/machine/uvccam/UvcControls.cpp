#include "UvcControls.h"

#include <QtEndian>

// What a request is about: its type, with the direction.
static constexpr int inward = 0x80;
static constexpr int classRequest = 0x20;
static constexpr int requestKindMask = 0x60;

// Standard requests.
static constexpr int getStatus = 0;
static constexpr int clearFeature = 1;
static constexpr int setFeature = 3;
static constexpr int getDescriptor = 6;
static constexpr int getConfiguration = 8;
static constexpr int setConfiguration = 9;
static constexpr int getInterface = 10;
static constexpr int setInterface = 11;

// Requests of the class.
static constexpr int setCurrent = 0x01;
static constexpr int getCurrent = 0x81;
static constexpr int getLowest = 0x82;
static constexpr int getHighest = 0x83;
static constexpr int getStep = 0x84;
static constexpr int getLength = 0x85;
static constexpr int getAbilities = 0x86;
static constexpr int getDefault = 0x87;

// Controls of the stream, and of the processing unit.
static constexpr int probeControl = 1;
static constexpr int commitControl = 2;
static constexpr int brightnessControl = 2;
static constexpr int contrastControl = 3;

static constexpr int blockBytes = 34; // of a probe or a commit in this version of the class
static constexpr int canGetAndSet = 0x03;

static QByteArray word(int value)
{
    QByteArray out(2, '\0');
    qToLittleEndian(quint16(value), out.data());
    return out;
}

static UvcControls::Answer stall()
{
    UvcControls::Answer answer;
    answer.isStalled = true;
    return answer;
}

static UvcControls::Answer saying(const QByteArray &data)
{
    UvcControls::Answer answer;
    answer.data = data;
    if (data.isEmpty())
        answer.isStalled = true;
    return answer;
}

UvcControls::UvcControls(UvcIdentity identity)
    : m_identity(std::move(identity))
    , m_units{{brightnessControl, word(128)}, {contrastControl, word(64)}}
{
}

UvcControls::Answer UvcControls::answer(const QByteArray &bytes, const QByteArray &data)
{
    if (bytes.size() != 8)
        return stall();
    const auto *raw = reinterpret_cast<const uchar *>(bytes.constData());
    Setup setup;
    setup.type = raw[0];
    setup.request = raw[1];
    setup.value = qFromLittleEndian<quint16>(raw + 2);
    setup.index = qFromLittleEndian<quint16>(raw + 4);
    setup.length = qFromLittleEndian<quint16>(raw + 6);
    Answer answer;
    if ((setup.type & requestKindMask) == 0)
        answer = standardAnswer(setup);
    else if ((setup.type & requestKindMask) != classRequest)
        answer = stall();
    else if (setup.index == UvcDescriptors::streamInterface)
        answer = streamAnswer(setup, data);
    else
        answer = unitAnswer(setup, data);
    answer.data.truncate(setup.length);
    return answer;
}

UvcControls::Answer UvcControls::standardAnswer(const Setup &setup) const
{
    Answer answer;
    switch (setup.request) {
    case getDescriptor:
        return descriptorAnswer(setup.value);
    case getStatus:
        return saying(word(0));
    case getConfiguration:
        return saying(QByteArray(1, '\1'));
    case getInterface:
        return saying(QByteArray(1, '\0'));
    case clearFeature:
        // Of the stream's endpoint: so the kernel ends a stream that has one setting only.
        answer.halts = setup.index == (inward | UvcDescriptors::streamEndpoint);
        return answer;
    case setFeature:
    case setConfiguration:
        return answer;
    case setInterface:
        answer.isStalled = setup.value != 0;
        return answer;
    default:
        return stall();
    }
}

UvcControls::Answer UvcControls::descriptorAnswer(int value) const
{
    switch (value >> 8) {
    case 1:
        return saying(UvcDescriptors::device(m_identity));
    case 2:
        return saying(UvcDescriptors::configuration(m_identity));
    case 3:
        return saying(UvcDescriptors::text(m_identity, value & 0xff));
    default:
        return stall();
    }
}

UvcControls::Answer UvcControls::streamAnswer(const Setup &setup, const QByteArray &data)
{
    const int control = setup.value >> 8;
    if (control != probeControl && control != commitControl)
        return stall();
    Answer answer;
    switch (setup.request) {
    case setCurrent:
        if (data.size() < 8)
            return stall();
        m_probed = understood(data);
        if (control == commitControl) {
            m_committed = m_probed;
            answer.commits = true;
        }
        return answer;
    case getCurrent:
        return saying(block(control == probeControl ? m_probed : m_committed));
    case getLowest:
    case getHighest:
        return saying(block(m_probed));
    case getDefault:
        return saying(block({}));
    case getLength:
        return saying(word(blockBytes));
    case getAbilities:
        return saying(QByteArray(1, char(canGetAndSet)));
    default:
        return stall();
    }
}

UvcControls::Answer UvcControls::unitAnswer(const Setup &setup, const QByteArray &data)
{
    const int control = setup.value >> 8;
    if (setup.index >> 8 != UvcDescriptors::processingUnit || !m_units.contains(control))
        return stall();
    switch (setup.request) {
    case setCurrent:
        if (data.size() != 2)
            return stall();
        m_units[control] = data;
        return {};
    case getCurrent:
        return saying(m_units.value(control));
    case getLowest:
        return saying(word(0));
    case getHighest:
        return saying(word(255));
    case getStep:
        return saying(word(1));
    case getLength:
        return saying(word(2));
    case getAbilities:
        return saying(QByteArray(1, char(canGetAndSet)));
    case getDefault:
        return saying(word(control == brightnessControl ? 128 : 64));
    default:
        return stall();
    }
}

UvcMode UvcControls::agreed(const Choice &choice) const
{
    return UvcDescriptors::framesOf(m_identity.modes, choice.format).value(choice.frame - 1);
}

// A camera takes what is nearest to a wish that it cannot fulfil.
UvcControls::Choice UvcControls::understood(const QByteArray &block) const
{
    Choice choice;
    choice.format = qBound(1, int(uchar(block[2])), UvcDescriptors::formatCount(m_identity.modes));
    const int frames = UvcDescriptors::framesOf(m_identity.modes, choice.format).size();
    choice.frame = qBound(1, int(uchar(block[3])), frames);
    return choice;
}

QByteArray UvcControls::block(const Choice &choice) const
{
    const UvcMode mode = agreed(choice);
    QByteArray out(blockBytes, '\0');
    out[2] = char(choice.format);
    out[3] = char(choice.frame);
    qToLittleEndian(mode.interval(), out.data() + 4);
    qToLittleEndian(mode.frameBytes(), out.data() + 18);
    qToLittleEndian(UvcDescriptors::payloadBytes, out.data() + 22);
    qToLittleEndian(quint32(48000000), out.data() + 26);
    return out;
}
