// SPDX-License-Identifier: LGPL-2.1-or-later
// Drives a ZARNBitstream with operations and arguments taken from the input: two bytes give
// the size of a buffer cut from the input (0xffff: no data), then each operation is one byte
// of opcode and eight bytes of argument. Besides crashes and undefined behaviour, it checks
// the documented ranges of the results, and that a readExpGolomb() through the look-ahead
// reads as one from a stream whose look-ahead was discarded.

#include <Brixel/ZARNBitstream.h>

#include <cstdint>
#include <cstdlib>
#include <cstring>

namespace {

class Input
{
public:
    Input(const uint8_t *data, size_t size) : m_data(data), m_size(size) { }

    bool atEnd() const { return m_position >= m_size; }
    size_t left() const { return m_size - m_position; }

    // Little-endian, padded with zeros past the end.
    uint64_t take(size_t bytes)
    {
        uint64_t value = 0;
        for (size_t i = 0; i < bytes && m_position < m_size; ++i)
            value |= uint64_t(m_data[m_position++]) << (8 * i);
        return value;
    }

    QByteArray takeBytes(size_t count)
    {
        const QByteArray bytes(reinterpret_cast<const char *>(m_data + m_position), qsizetype(count));
        m_position += count;
        return bytes;
    }

private:
    const uint8_t *m_data;
    size_t m_size;
    size_t m_position = 0;
};

void check(bool condition)
{
    if (!condition)
        std::abort();
}

void checkExpGolomb(ZARNBitstream &stream)
{
    ZARNBitstream fresh = stream;
    fresh.setLength(fresh.length()); // discards the look-ahead, changes nothing else
    check(stream.readExpGolomb() == fresh.readExpGolomb());
    check(stream.location() == fresh.location());
}

void apply(ZARNBitstream &stream, uint8_t opcode, uint64_t argument)
{
    const auto count64 = qint64(argument);
    const auto count32 = qint32(uint32_t(argument));
    const qint64 before = stream.location();
    switch (opcode % 18) {
    case 0: {
        const quint8 bit = stream.readBit();
        check(bit <= 1);
        check(stream.location() == before || stream.location() == before + 1 || !stream.data());
        break;
    }
    case 1: {
        // Small counts most of the time, any count now and then.
        const qint64 count = argument & 0x100 ? count64 : qint64(argument & 0x3f);
        const quint32 value = stream.readBits(count);
        check(count <= 0 || count >= 32 || value < (quint32(1) << count));
        break;
    }
    case 2: stream.readByte(); break;
    case 3: stream.readBytes(count32); break;
    case 4:
    case 5: checkExpGolomb(stream); break;
    case 6: stream.readSignedExpGolomb(); break;
    case 7: stream.skipBit(); break;
    case 8: stream.skipByte(); break;
    case 9: stream.skipBytes(count32); break;
    case 10: stream.skipBits(count64); break;
    case 11: stream.skipBits(qint64(int8_t(argument))); break;
    case 12: stream.skipExpGolomb(); break;
    case 13: stream.setLocation(count64); break;
    case 14: stream.setLocation(qint64(int16_t(argument))); break;
    case 15: stream.setLength(count64); break;
    case 16: stream.setLength(qint64(uint16_t(argument))); break;
    case 17: stream.setData(std::nullopt); break;
    }
    if (!stream.data())
        check(stream.location() == -1 && stream.length() == -1);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    Input input(data, size);
    const auto bufferSize = size_t(input.take(2));
    ZARNBitstream stream = bufferSize == 0xffff
        ? ZARNBitstream::bitstreamWithData(std::nullopt)
        : ZARNBitstream::bitstreamWithData(input.takeBytes(std::min(bufferSize, input.left())));
    while (!input.atEnd()) {
        const auto opcode = uint8_t(input.take(1));
        apply(stream, opcode, input.take(8));
    }
    return 0;
}
