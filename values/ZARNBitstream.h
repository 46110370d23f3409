// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <Brixel/brixel_export.h>

#include <QByteArray>
#include <QtEndian>
#include <QtGlobal>

#include <bit>
#include <cstring>
#include <limits>
#include <optional>

/**
 * Reads a block of bytes as a stream of bits, most significant bit of each byte first, with
 * fixed-width reads and Exp-Golomb codes (the variable-length integers of video and audio
 * bitstream headers).
 *
 * The stream keeps a bit position (location()) and a number of readable bits (length()) over
 * an immutable byte buffer. Bit i of the stream is bit 7 - (i mod 8) of byte i / 8.
 *
 * \code
 * ZARNBitstream bits(QByteArray::fromHex("a50f"));
 * bits.readBit();                 // 1
 * bits.skipBits(3);
 * quint32 nibble = bits.readBits(4);   // 5
 * quint8 byte = bits.readByte();       // 0x0f
 * \endcode
 *
 * "No data" is std::nullopt. It differs from an empty buffer: a stream without data reports
 * location() and length() as -1 and every read gives 0, while an empty buffer gives a stream
 * of length 0 at location 0.
 *
 * Nothing throws and no input leads to undefined behaviour:
 * - reads at or past length() give 0 bits and do not move;
 * - bits inside length() but outside the buffer (a negative location, or a length set beyond
 *   the buffer) read as 0 and do move;
 * - location arithmetic saturates at the limits of qint64 instead of wrapping;
 * - readBits() with more than 32 bits moves by 2n - 32 and folds the extra bits into the
 *   result (see there); callers read at most 32 bits at a time.
 *
 * readBits() and the Exp-Golomb reads work a 64-bit word at a time wherever the bits lie
 * inside the buffer, and bit by bit only near its ends. Successive readExpGolomb() calls
 * share a look-ahead word, which any other change of position, data or length discards.
 */
class BRIXEL_EXPORT ZARNBitstream
{
public:
    /// A stream over \a data, positioned on its first bit.
    static ZARNBitstream bitstreamWithData(const std::optional<QByteArray> &data);

    /// A stream over \a data (see setData()); without data, location and length start at 0
    /// internally and report -1.
    explicit ZARNBitstream(const std::optional<QByteArray> &data = std::nullopt);

    /// Copies share the buffer. There is no move: a stream "moved from" is copied from, so it
    /// keeps its buffer and stays readable.
    ZARNBitstream(const ZARNBitstream &) = default;
    ZARNBitstream &operator=(const ZARNBitstream &) = default;

    /**
     * Replaces the buffer. With data, location() becomes 0 and length() 8 times the byte
     * count, computed in unsigned 32 bits: a buffer of 512 MiB or more wraps (exactly 512 MiB
     * gives length 0). With std::nullopt the stored location and length are kept, though
     * they report -1 until data is set again.
     */
    void setData(const std::optional<QByteArray> &data);
    const std::optional<QByteArray> &data() const { return m_data; }

    /// Moves to bit \a location; ignored without data. Any value is accepted, also a negative
    /// one or one past length().
    void setLocation(qint64 location);
    /// The position of the next bit, or -1 without data.
    qint64 location() const;

    /// Sets the number of readable bits, also without data and beyond the buffer (the bits
    /// past the buffer read as 0).
    void setLength(qint64 length);
    /// The number of readable bits, or -1 without data.
    qint64 length() const;

    /// The next bit (0 or 1); 0 without moving at or past length() or without data.
    quint8 readBit();

    /**
     * The next \a count bits as a big-endian number (the first bit read is the most
     * significant one). \a count is first clamped to the bits left before length(); 0 or a
     * negative count reads nothing and gives 0.
     *
     * More than 32 bits are read as follows, intentionally: the stream first skips
     * count - 32 bits, then reads count bits (only the low 32 bits of the count, taken as a
     * signed number, are used for this), shifting bit i of that run left by
     * ((count - 1 - i) mod 32) and OR-ing it in. So the position moves by 2 * count - 32 in
     * all, and the extra bits fold into the result. A count whose low 32 bits are a positive
     * number reads that many bits even when the count itself is negative.
     */
    quint32 readBits(qint64 count);

    /// The low 8 bits of readBits(8).
    quint8 readByte();

    /**
     * Four bytes as a big-endian number, always consuming four bytes (also for a count of 1
     * or 0). A \a count above 4, compared as an unsigned 32-bit number, first skips
     * count - 4 bytes (computed in wrapping 32-bit arithmetic): 6 skips two bytes, while -1
     * moves back by 5 bytes.
     */
    quint32 readBytes(qint32 count);

    /**
     * An unsigned Exp-Golomb code: z zero bits, a one bit, then z bits b; the value is
     * 2^z + b - 1, computed modulo 2^32 (readBits() rules apply to b when z exceeds 32).
     *
     * At length() (or without data) the count of zeros stops instead of looping forever; the
     * value is then 2^z - 1 modulo 2^32 for the z zeros read, so a stream already at its end
     * gives 0 and a trailing run of 32 or more zeros gives 0xffffffff. The count of zeros
     * saturates at the largest qint64.
     */
    quint32 readExpGolomb()
    {
        quint32 value;
        if (readCachedExpGolomb(value))
            return value;
        return readExpGolombStartingCache();
    }

    /**
     * A signed Exp-Golomb code: the unsigned code k maps to -(k / 2) when even and
     * (k + 1) / 2 when odd, so 0, 1, 2, 3, 4 give 0, 1, -1, 2, -2. The one value that does not
     * fit, k = 0xffffffff, gives -2147483648.
     */
    qint32 readSignedExpGolomb();

    void skipBit();
    void skipByte();
    /// skipBits() of 8 times \a count.
    void skipBytes(qint32 count);
    /**
     * Moves by \a count bits. A move to or past length() leaves the position on the last bit
     * (length() - 1), not after it, so one more readBit() still reads that bit; this is
     * intended. Negative counts move back without a lower bound.
     */
    void skipBits(qint64 count);
    /// Skips an unsigned Exp-Golomb code: the zeros and the one bit, then skipBits() of the
    /// number of zeros. Stops at length() like readExpGolomb().
    void skipExpGolomb();

private:
    // Kept inline for speed: tops the look-ahead up to at least 56 bits with one eight-byte
    // load and reads a code of up to 55 bits from it. False, with the position unchanged, when
    // there is no look-ahead, the load would leave the readable bytes or the code is longer.
    // The position stays in the look-ahead (see settleLocation()), so a code costs no other
    // bookkeeping.
    bool readCachedExpGolomb(quint32 &value)
    {
        if (m_cacheNext > m_cacheLastLoad)
            return false;
        quint64 word;
        std::memcpy(&word, m_cacheBytes + m_cacheNext, sizeof word);
        m_cache |= qFromBigEndian(word) >> m_cacheBits;
        m_cacheNext += (63 - m_cacheBits) >> 3;
        m_cacheBits |= 56;
        const int zeros = std::countl_zero(m_cache | 1);
        if (zeros > 27)
            return false;
        const int codeLength = 2 * zeros + 1;
        value = quint32(m_cache >> (64 - codeLength)) - 1u;
        m_cache <<= codeLength;
        m_cacheBits -= codeLength;
        return true;
    }
    quint32 readExpGolombStartingCache();
    bool hasCache() const { return m_cacheNext != NoCache; }
    qint64 cachedLocation() const { return m_cacheNext * 8 - m_cacheBits; }
    void settleLocation();
    qint64 countExpGolombZeros();

    static constexpr qint64 NoCache = std::numeric_limits<qint64>::max();

    std::optional<QByteArray> m_data;
    // The position while there is no look-ahead; with one, cachedLocation() is.
    qint64 m_location = 0;
    qint64 m_length = 0;
    // Bits that are both inside the buffer and before m_length: [0, m_readableBits).
    qint64 m_readableBits = 0;
    // The look-ahead of readExpGolomb(): the m_cacheBits bits from the position on,
    // left-aligned in m_cache (the bits after them are 0 or the stream's); m_cacheNext, the
    // index of the byte after them (NoCache without a look-ahead); m_cacheLastLoad, the last
    // index an eight-byte load may start at; m_cacheBytes, the buffer's bytes.
    const char *m_cacheBytes = nullptr;
    quint64 m_cache = 0;
    qint64 m_cacheBits = 0;
    qint64 m_cacheNext = NoCache;
    qint64 m_cacheLastLoad = 0;
};
