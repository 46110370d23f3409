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
    m_data = data;
    if (m_data) {
        m_location = 0;
        // The byte count times 8 wraps in 32 bits, as the stream has always computed it.
        m_length = qint64(quint32(m_data->size()) * 8u);
    }
    updateReadableBits();
}

void ZARNBitstream::setLocation(qint64 location)
{
    if (m_data)
        m_location = location;
}

qint64 ZARNBitstream::location() const
{
    return m_data ? m_location : -1;
}

void ZARNBitstream::setLength(qint64 length)
{
    m_length = length;
    updateReadableBits();
}

qint64 ZARNBitstream::length() const
{
    return m_data ? m_length : -1;
}

void ZARNBitstream::updateReadableBits()
{
    m_readableBits = m_data ? std::clamp<qint64>(m_length, 0, qint64(m_data->size()) * 8) : 0;
}

// The 64 bits starting at stream bit `position`, the first one in the most significant bit;
// bits outside [0, m_readableBits) are 0.
quint64 ZARNBitstream::peek64(qint64 position) const
{
    const qint64 firstByte = position >> 3;
    const int shift = int(position & 7);
    if (position >= 0 && position <= m_readableBits - 64) {
        // All 64 bits, and the byte after them when they straddle it, lie in the buffer.
        const auto *bytes = reinterpret_cast<const uchar *>(m_data->constData());
        const quint64 word = qFromBigEndian<quint64>(bytes + firstByte);
        return shift == 0 ? word : (word << shift) | (bytes[firstByte + 8] >> (8 - shift));
    }
    if (position >= m_readableBits || position <= -64 || !m_data)
        return 0;
    const auto *bytes = reinterpret_cast<const uchar *>(m_data->constData());
    const qint64 byteCount = m_data->size();
    const auto byteAt = [&](qint64 index) -> quint64 {
        return index >= 0 && index < byteCount ? bytes[index] : 0;
    };
    quint64 word = 0;
    for (int i = 0; i < 8; ++i)
        word = (word << 8) | byteAt(firstByte + i);
    if (shift != 0)
        word = (word << shift) | (byteAt(firstByte + 8) >> (8 - shift));
    const qint64 readable = m_readableBits - position; // >= 1 here
    if (readable < 64)
        word &= ~quint64(0) << (64 - readable);
    return word;
}

quint8 ZARNBitstream::readBit()
{
    if (m_location >= m_length || !m_data)
        return 0;
    const auto bit = quint8(peek64(m_location) >> 63);
    ++m_location;
    return bit;
}

quint32 ZARNBitstream::readBits(qint64 count)
{
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
        return quint32(peek64(start) >> (64 - loops));
    return foldedBits(start, moves, loops);
}

// The result of reading `count` (> 32) bits from `start` one at a time, each shifted left by
// (count - 1 - i) mod 32, where only the first `moves` bits come from the stream. Bits whose
// shifts coincide fold together by OR, so the run splits into 32-bit groups that end at
// offset `count`, and each group is one big-endian word.
quint32 ZARNBitstream::foldedBits(qint64 start, qint64 moves, qint32 count) const
{
    // Offsets [first, end) of the run are the ones inside the buffer.
    const qint64 first = start < 0 ? std::min(moves, saturatingSub(0, start)) : 0;
    const qint64 end = std::min(moves, std::max<qint64>(0, saturatingSub(m_readableBits, start)));
    const qint64 misalignment = (32 - ((count - first) & 31)) & 31;
    quint32 value = 0;
    for (qint64 group = first - misalignment; group < end; group += 32) {
        quint32 word = quint32(peek64(start + group) >> 32);
        if (group < first)
            word &= ~quint32(0) >> (first - group);
        value |= word;
    }
    return value;
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
        if (const quint64 word = peek64(position)) {
            const qint64 one = position + std::countl_zero(word);
            m_location = one + 1;
            return saturatingSub(one, start);
        }
    }
    m_location = m_length;
    return saturatingSub(m_length, start);
}

quint32 ZARNBitstream::readExpGolomb()
{
    // A code of up to 63 bits whose 64-bit window lies wholly inside the buffer: one load.
    if (m_location >= 0 && m_location <= m_readableBits - 64) {
        const quint64 word = peek64(m_location);
        const int zeros = std::countl_zero(word);
        if (zeros < 32) {
            const int codeLength = 2 * zeros + 1;
            m_location += codeLength;
            return quint32(word >> (64 - codeLength)) - 1u;
        }
    }
    const qint64 zeros = countExpGolombZeros();
    const quint32 power = zeros < 32 ? quint32(1) << zeros : 0u;
    return power + readBits(zeros) - 1u;
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
    m_location = saturatingAdd(m_location, count);
    // Intended: a skip past the end stops on the last bit, which stays readable.
    if (m_location >= m_length)
        m_location = saturatingSub(m_length, 1);
}

void ZARNBitstream::skipExpGolomb()
{
    const qint64 zeros = countExpGolombZeros();
    if (zeros > 0)
        skipBits(zeros);
}
