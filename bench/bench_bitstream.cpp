// SPDX-License-Identifier: LGPL-2.1-or-later
// Exp-Golomb decoding: ZARNBitstream against a plain reader that takes one bit at a time (Qt
// has no bit reader to compare with), over 1 MiB of codes of mixed lengths.

#include "BenchHarness.h"

#include <Brixel/ZARNBitstream.h>

#include <QByteArray>
#include <QRandomGenerator>

#include <bit>
#include <cstdio>
#include <vector>

namespace {

// Writes unsigned Exp-Golomb codes, most significant bit first.
class ExpGolombWriter
{
public:
    void write(quint32 value)
    {
        const quint64 codeNumber = quint64(value) + 1;
        const int width = 64 - std::countl_zero(codeNumber);
        for (int i = 1; i < width; ++i)
            writeBit(0);
        for (int i = width - 1; i >= 0; --i)
            writeBit(int(codeNumber >> i) & 1);
    }
    const QByteArray &bytes() const { return m_bytes; }

private:
    void writeBit(int bit)
    {
        if (m_bitCount % 8 == 0)
            m_bytes.append('\0');
        if (bit)
            m_bytes.back() = char(uchar(m_bytes.back()) | (0x80 >> (m_bitCount % 8)));
        ++m_bitCount;
    }

    QByteArray m_bytes;
    qint64 m_bitCount = 0;
};

// The straightforward decoder: every bit is fetched, tested and counted on its own.
class BitAtATimeReader
{
public:
    explicit BitAtATimeReader(const QByteArray &bytes)
        : m_bytes(reinterpret_cast<const uchar *>(bytes.constData())), m_length(qint64(bytes.size()) * 8)
    {
    }

    quint32 readExpGolomb()
    {
        int zeros = 0;
        while (m_position < m_length && readBit() == 0)
            ++zeros;
        quint32 value = 0;
        for (int i = 0; i < zeros; ++i)
            value = (value << 1) | readBit();
        return (quint32(1) << zeros) + value - 1;
    }

private:
    quint32 readBit()
    {
        if (m_position >= m_length)
            return 0;
        const quint32 bit = (m_bytes[m_position / 8] >> (7 - m_position % 8)) & 1;
        ++m_position;
        return bit;
    }

    const uchar *m_bytes;
    qint64 m_length;
    qint64 m_position = 0;
};

} // namespace

int main()
{
    // Values of 0 to 24 significant bits, so codes of 1 to 49 bits.
    QRandomGenerator random(1);
    ExpGolombWriter writer;
    std::vector<quint32> values;
    while (writer.bytes().size() < (1 << 20)) {
        const int bits = int(random.bounded(25));
        const quint32 value = bits == 0 ? 0 : (random.generate() >> (32 - bits));
        writer.write(value);
        values.push_back(value);
    }
    const QByteArray bytes = writer.bytes();
    const auto codes = qint64(values.size());

    const auto decodeOurs = [&](std::vector<quint32> &out) {
        ZARNBitstream stream(bytes);
        for (qint64 i = 0; i < codes; ++i)
            out[i] = stream.readExpGolomb();
    };
    const auto decodePlain = [&](std::vector<quint32> &out) {
        BitAtATimeReader reader(bytes);
        for (qint64 i = 0; i < codes; ++i)
            out[i] = reader.readExpGolomb();
    };

    std::vector<quint32> ours(values.size());
    std::vector<quint32> plain(values.size());
    decodeOurs(ours);
    decodePlain(plain);
    if (ours != values || plain != values) {
        std::fprintf(stderr, "bench_bitstream: the decoders disagree with the encoded values\n");
        return 1;
    }

    const double oursPerCode = brixelbench::nanosecondsPerCall([&] {
        decodeOurs(ours);
        brixelbench::keep(ours.back());
    }) / double(codes);
    const double plainPerCode = brixelbench::nanosecondsPerCall([&] {
        decodePlain(plain);
        brixelbench::keep(plain.back());
    }) / double(codes);
    std::printf("%lld codes in %lld bytes\n", codes, qint64(bytes.size()));
    brixelbench::report("ZARNBitstream::readExpGolomb per code", oursPerCode, "bit-at-a-time reader per code",
                        plainPerCode);
    return 0;
}
