#include "UvcPayloads.h"

static constexpr int headBytes = 2;
static constexpr int oddFrame = 0x01;
static constexpr int endOfFrame = 0x02;
static constexpr int endOfHead = 0x80;

void UvcPayloads::begin(const QByteArray &frame)
{
    m_frame = frame;
    m_sent = 0;
    m_isOdd = !m_isOdd;
    m_isDone = false;
}

QByteArray UvcPayloads::next(int bytes)
{
    const QByteArray part = m_frame.mid(m_sent, bytes - headBytes);
    m_sent += part.size();
    m_isDone = m_sent == m_frame.size();
    const int flags = endOfHead | (m_isOdd ? oddFrame : 0) | (m_isDone ? endOfFrame : 0);
    QByteArray payload;
    payload.reserve(headBytes + part.size());
    payload += char(headBytes);
    payload += char(flags);
    return payload + part;
}
