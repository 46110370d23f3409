// SPDX-License-Identifier: LGPL-2.1-or-later
#include "ZARNBitstream.h"

#include <QtEndian>
#include <QtNumeric>

#include <algorithm>
#include <bit>
#include <limits>

namespace {

constexpr qint64 Int64Max = std::numeric_limits<qint64>::max();
constexpr qint64 Int64Min = std::numeric_limits<qint64>::min();

qint64 saturatingAdd(qint64 a, qint64 b)
{
    qint64 sum;
    if (qAddOverflow(a, b, &sum))
        return b > 0 ? Int64Max : Int64Min;
    return sum;
}

qint64 saturatingSub(qint64 a, qint64 b)
{
    qint64 difference;
    if (qSubOverflow(a, b, &difference))
        return b < 0 ? Int64Max : Int64Min;
    return difference;
}

// The 64 bits from stream bit `position` on, the first one in the most significant bit, for a
// position at least 72 bits before the end of `bytes`: the eight bytes from the first one and
// the byte after them.
quint64 wordAt(const uchar *bytes, qint64 position)
{
    const qint64 first = position >> 3;
    const int shift = int(position & 7);
    return (qFromBigEndian<quint64>(bytes + first) << shift) | (bytes[first + 8] >> (8 - shift));
}

const uchar *bytesOf(const std::optional<QByteArray> &data)
{
    return reinterpret_cast<const uchar *>(data->constData());
}

// The same for any position, with the bits outside [0, readable) as 0, where readable is at
// most the buffer's bit count.
quint64 maskedWordAt(const std::optional<QByteArray> &data, qint64 readable, qint64 position)
{
    if (position >= readable || position <= -64 || !data)
        return 0;
    const qint64 byteCount = data->size();
    const auto byteAt = [&](qint64 index) -> quint64 {
        return index >= 0 && index < byteCount ? bytesOf(data)[index] : 0;
    };
    const qint64 first = position >> 3;
    const int shift = int(position & 7);
    quint64 word = 0;
    for (int i = 0; i < 8; ++i)
        word = (word << 8) | byteAt(first + i);
    word = (word << shift) | (byteAt(first + 8) >> (8 - shift));
    if (readable - position < 64)
        word &= ~quint64(0) << (64 - (readable - position));
    return word;
}

bool wholeWordAt(qint64 readable, qint64 position)
{
    return position >= 0 && position <= readable - 72;
}

quint64 peek64(const std::optional<QByteArray> &data, qint64 readable, qint64 position)
{
    return wholeWordAt(readable, position) ? wordAt(bytesOf(data), position) : maskedWordAt(data, readable, position);
}

// The bits that are both inside the buffer and before the length: [0, readableBits).
qint64 readableBits(const std::optional<QByteArray> &data, qint64 length)
{
    return data ? std::clamp<qint64>(length, 0, qint64(data->size()) * 8) : 0;
}

// The result of reading `count` (> 32) bits from `start` one at a time, each shifted left by
// (count - 1 - i) mod 32, where only the first `moves` bits come from the stream. Bits whose
// shifts coincide fold together by OR, so the run splits into 32-bit groups that end at
// offset `count`, and each group is one big-endian word.
quint32 foldedBits(const std::optional<QByteArray> &data, qint64 readable, qint64 start, qint64 moves, qint32 count)
{
    // Offsets [first, end) of the run are the ones inside the buffer.
    const qint64 first = start < 0 ? std::min(moves, saturatingSub(0, start)) : 0;
    const qint64 end = std::min(moves, std::max<qint64>(0, saturatingSub(readable, start)));
    const qint64 misalignment = (32 - ((count - first) & 31)) & 31;
    quint32 value = 0;
    for (qint64 group = first - misalignment; group < end; group += 32) {
        quint32 word = quint32(peek64(data, readable, saturatingAdd(start, group)) >> 32);
        if (group < first)
            word &= ~quint32(0) >> (first - group);
        value |= word;
    }
    return value;
}

} // namespace

ZARNBitstream ZARNBitstream::bitstreamWithData(const std::optional<QByteArray> &data)
{
    return ZARNBitstream(data);
}

ZARNBitstream::ZARNBitstream(const std::optional<QByteArray> &data)
{
    setData(data);
}

void ZARNBitstream::setData(const std::optional<QByteArray> &data)
{
    settleLocation();
    m_data = data;
    if (m_data) {
        m_location = 0;
        // The byte count times 8 wraps in 32 bits, as the stream has always computed it.
        m_length = qint64(quint32(m_data->size()) * 8u);
    }
    m_readableBits = readableBits(m_data, m_length);
}

void ZARNBitstream::setLocation(qint64 location)
{
    settleLocation();
    if (m_data)
        m_location = location;
}

qint64 ZARNBitstream::location() const
{
    if (!m_data)
        return -1;
    return hasCache() ? cachedLocation() : m_location;
}

void ZARNBitstream::setLength(qint64 length)
{
    settleLocation();
    m_length = length;
    m_readableBits = readableBits(m_data, m_length);
}

qint64 ZARNBitstream::length() const
{
    return m_data ? m_length : -1;
}

quint8 ZARNBitstream::readBit()
{
    settleLocation();
    if (m_location >= m_length || !m_data)
        return 0;
    const auto bit = quint8(peek64(m_data, m_readableBits, m_location) >> 63);
    ++m_location;
    return bit;
}

quint32 ZARNBitstream::readBits(qint64 count)
{
    settleLocation();
    count = std::min(count, saturatingSub(m_length, m_location));
    if (count > 32)
        skipBits(count - 32);
    // The bit loop runs for the low 32 bits of the count, not for the clamped count itself.
    const auto loops = qint32(quint32(quint64(count)));
    if (loops <= 0 || !m_data)
        return 0;
    const qint64 start = m_location;
    // Bits at or past the length read as 0 without moving.
    const qint64 moves = std::clamp<qint64>(saturatingSub(m_length, start), 0, loops);
    m_location = start + moves;
    if (loops <= 32)
        return quint32(peek64(m_data, m_readableBits, start) >> (64 - loops));
    return foldedBits(m_data, m_readableBits, start, moves, loops);
}

quint8 ZARNBitstream::readByte()
{
    return quint8(readBits(8));
}

quint32 ZARNBitstream::readBytes(qint32 count)
{
    if (quint32(count) > 4u)
        skipBytes(qint32(quint32(count) - 4u));
    quint32 value = 0;
    for (int i = 0; i < 4; ++i)
        value = (value << 8) | readByte();
    return value;
}

// Consumes zero bits up to and including the next one bit and returns how many zeros there
// were. At the length the count stops (a zero read there does not move), with the position
// on the length.
qint64 ZARNBitstream::countExpGolombZeros()
{
    if (m_location >= m_length || !m_data)
        return 0;
    const qint64 start = m_location;
    for (qint64 position = std::max<qint64>(start, 0); position < m_readableBits; position += 64) {
        if (const quint64 word = peek64(m_data, m_readableBits, position)) {
            const qint64 one = position + std::countl_zero(word);
            m_location = one + 1;
            return saturatingSub(one, start);
        }
    }
    m_location = m_length;
    return saturatingSub(m_length, start);
}

// Starts the look-ahead at the position, with the rest of the byte there (the next refill
// completes it), and reads from it; reads bit by bit where that cannot be done (long codes,
// codes near the ends of the buffer, positions outside it).
quint32 ZARNBitstream::readExpGolombStartingCache()
{
    settleLocation();
    if (m_location >= 0 && m_location < m_readableBits) {
        const qint64 first = m_location >> 3;
        const int shift = int(m_location & 7);
        m_cacheBytes = m_data->constData();
        m_cache = quint64(uchar(m_cacheBytes[first])) << (56 + shift);
        m_cacheBits = 8 - shift;
        m_cacheNext = first + 1;
        m_cacheLastLoad = (m_readableBits >> 3) - 8;
        quint32 value;
        if (readCachedExpGolomb(value))
            return value;
        settleLocation();
    }
    const qint64 zeros = countExpGolombZeros();
    const quint32 power = zeros < 32 ? quint32(1) << zeros : 0u;
    return power + readBits(zeros) - 1u;
}

// Ends the look-ahead, writing the position it holds back; every read other than
// readExpGolomb() and every change of position, data or length starts with this.
void ZARNBitstream::settleLocation()
{
    if (!hasCache())
        return;
    m_location = cachedLocation();
    m_cacheNext = NoCache;
}

qint32 ZARNBitstream::readSignedExpGolomb()
{
    const quint32 code = readExpGolomb();
    if (code % 2 == 0)
        return -qint32(code / 2);
    // 0xffffffff gives 2^31, which wraps to the most negative value.
    return qint32(quint32((quint64(code) + 1) / 2));
}

void ZARNBitstream::skipBit()
{
    skipBits(1);
}

void ZARNBitstream::skipByte()
{
    skipBytes(1);
}

void ZARNBitstream::skipBytes(qint32 count)
{
    skipBits(qint64(count) * 8);
}

void ZARNBitstream::skipBits(qint64 count)
{
    settleLocation();
    m_location = saturatingAdd(m_location, count);
    // Intended: a skip past the end stops on the last bit, which stays readable.
    if (m_location >= m_length)
        m_location = saturatingSub(m_length, 1);
}

void ZARNBitstream::skipExpGolomb()
{
    settleLocation();
    const qint64 zeros = countExpGolombZeros();
    if (zeros > 0)
        skipBits(zeros);
}
