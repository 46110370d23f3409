// SPDX-License-Identifier: LGPL-2.1-or-later
#include <Brixel/ZARNBitstream.h>

#include <QRandomGenerator>
#include <QTest>

#include <limits>

namespace {

// The stream's rules read one bit at a time, exactly as stated, to check the word-at-a-time
// reader against.
class ReferenceStream
{
public:
    explicit ReferenceStream(const std::optional<QByteArray> &data) { setData(data); }

    void setData(const std::optional<QByteArray> &data)
    {
        m_data = data;
        if (data) {
            m_location = 0;
            m_length = qint64(quint32(data->size()) * 8u);
        }
    }
    void setLocation(qint64 location) { m_location = m_data ? location : m_location; }
    qint64 location() const { return m_data ? m_location : -1; }
    void setLength(qint64 length) { m_length = length; }
    qint64 length() const { return m_data ? m_length : -1; }

    quint8 readBit()
    {
        if (m_location >= m_length || !m_data)
            return 0;
        const qint64 byte = m_location >= 0 ? m_location / 8 : -1;
        const quint8 bit = byte >= 0 && byte < m_data->size() ? (uchar(m_data->at(byte)) >> (7 - m_location % 8)) & 1 : 0;
        ++m_location;
        return bit;
    }
    quint32 readBits(qint64 count)
    {
        count = std::min(count, m_length - m_location);
        if (count > 32)
            skipBits(count - 32);
        quint32 value = 0;
        for (auto left = qint32(quint32(quint64(count))); left > 0;) {
            --left;
            value |= quint32(readBit()) << (left % 32);
        }
        return value;
    }
    quint8 readByte() { return quint8(readBits(8)); }
    quint32 readBytes(qint32 count)
    {
        if (quint32(count) > 4u)
            skipBytes(qint32(quint32(count) - 4u));
        quint32 value = 0;
        for (int i = 0; i < 4; ++i)
            value = value << 8 | readByte();
        return value;
    }
    qint64 zeros()
    {
        qint64 zeros = 0;
        while (m_location < m_length && m_data && readBit() == 0)
            ++zeros;
        return zeros;
    }
    quint32 readExpGolomb()
    {
        const qint64 z = zeros();
        return (z < 32 ? 1u << z : 0u) + readBits(z) - 1u;
    }
    qint32 readSignedExpGolomb()
    {
        const qint64 k = readExpGolomb();
        return qint32(quint32(k % 2 == 0 ? -(k / 2) : (k + 1) / 2));
    }
    void skipBit() { skipBits(1); }
    void skipByte() { skipBytes(1); }
    void skipBytes(qint32 count) { skipBits(qint64(count) * 8); }
    void skipBits(qint64 count)
    {
        m_location += count;
        if (m_location >= m_length)
            m_location = m_length - 1;
    }
    void skipExpGolomb()
    {
        if (const qint64 z = zeros())
            skipBits(z);
    }

private:
    std::optional<QByteArray> m_data;
    qint64 m_location = 0;
    qint64 m_length = 0;
};

// Runs one operation, named as in the test tables ("bits4", "loc-3", "ue"), on either stream
// and gives the value read, if the operation reads one.
template<typename Stream>
std::optional<qint64> apply(Stream &stream, const QString &operation)
{
    const auto digits = std::find_if(operation.cbegin(), operation.cend(), [](QChar c) { return c == u'-' || c.isDigit(); });
    const QString name = QStringView(operation.cbegin(), digits).toString();
    const qint64 argument = QStringView(digits, operation.cend()).toLongLong();
    if (name == u"bit") return stream.readBit();
    if (name == u"bits") return stream.readBits(argument);
    if (name == u"byte") return stream.readByte();
    if (name == u"bytes") return stream.readBytes(qint32(argument));
    if (name == u"ue") return stream.readExpGolomb();
    if (name == u"se") return stream.readSignedExpGolomb();
    if (name == u"skipbit") stream.skipBit();
    else if (name == u"skipbyte") stream.skipByte();
    else if (name == u"skipbytes") stream.skipBytes(qint32(argument));
    else if (name == u"skip") stream.skipBits(argument);
    else if (name == u"skipue") stream.skipExpGolomb();
    else if (name == u"loc") stream.setLocation(argument);
    else if (name == u"len") stream.setLength(argument);
    else if (name == u"nodata") stream.setData(std::nullopt);
    else qFatal("unknown operation %s", qPrintable(operation));
    return std::nullopt;
}

QList<qint64> run(ZARNBitstream &stream, const QString &script)
{
    QList<qint64> values;
    for (const QString &operation : script.split(u' ', Qt::SkipEmptyParts)) {
        if (const std::optional<qint64> value = apply(stream, operation))
            values << *value;
    }
    return values;
}

} // namespace

class TestBitstream : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void reads_data();
    void reads();
    void withoutData();
    void matchesBitAtATimeReading();
    void sweepsTheEndsOfTheBuffer();
};

void TestBitstream::reads_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("script");
    QTest::addColumn<QList<qint64>>("values");
    QTest::addColumn<qint64>("location");

    const auto row = [](const char *name, const char *hex, const char *script, QList<qint64> values, qint64 location) {
        QTest::newRow(name) << QByteArray::fromHex(hex) << QString::fromLatin1(script) << values << location;
    };
    row("bits, nibble, byte, then nothing past the end", "a50f", "bit bit bit bit bits4 byte bit",
        {1, 0, 1, 0, 5, 15, 0}, 16);
    row("zero bits read nothing", "ff", "bits0 bits-3", {0, 0}, 0);
    row("a count beyond the end is clamped", "1234", "bits40", {0x1234}, 16);
    row("over 32 bits skip first, then fold modulo 32", "0081000000010000", "bits40", {0x81}, 48);
    row("a negative count with positive low bits reads them", "f8", "bits-4294967291", {31}, 5);
    row("readBytes always reads four bytes", "01020304", "bytes2", {0x01020304}, 32);
    row("readBytes of one still reads four", "0102030405", "bytes1 byte", {0x01020304, 5}, 40);
    row("readBytes beyond four skips the excess", "010203040506", "bytes6", {0x03040506}, 48);
    row("readBytes of -1 moves back five bytes", "0102030405060708", "loc40 bytes-1", {0x01020304}, 32);
    row("unsigned Exp-Golomb 1, 010, 011, 00100", "a640", "ue ue ue ue", {0, 1, 2, 3}, 12);
    row("signed Exp-Golomb 010, 011, 00100, 00101", "4c85", "se se se se", {1, -1, 2, -2}, 16);
    row("the widest Exp-Golomb code that fits 32 bits", "00000001fffffffe", "ue", {0xfffffffe}, 63);
    row("an unaligned Exp-Golomb code of 59 bits", "000000000fffffffc0000000", "skip7 ue", {0x3ffffffe}, 66);
    row("an Exp-Golomb code of 32 zeros wraps", "000000008000000080", "ue", {0}, 65);
    row("Exp-Golomb zeros running into the end stop there", "00", "ue ue", {255, 0}, 8);
    row("zeros up to a length cut just before a one bit", "0000000000000001", "len63 ue", {0xffffffff}, 63);
    row("a code cut by the length reads zeros for the rest", "00000001ffffffff", "len62 ue", {0xbffffffe}, 62);
    row("skipping an Exp-Golomb code", "3c", "skipue bit", {1}, 6);
    row("a skip past the end stops on the last bit", "0001", "skip100 bit bit", {1, 0}, 16);
    row("skipBytes counts bytes", "00ff", "skipbytes1 skipbit bits3", {7}, 12);
    row("a length past the buffer reads zeros", "ff", "len16 bits16", {0xff00}, 16);
    row("a negative location reads zeros up to the data", "80", "loc-3 bits4", {1}, 1);
    row("a location past the length reads nothing", "ff", "loc20 bit ue", {0, 0}, 20);
    row("location arithmetic saturates", "ffff", "loc9223372036854775000 skip9223372036854775000 bit", {1}, 16);
    row("reading backwards from far before the data", "01", "loc-9223372036854775807 ue", {0xffffffff}, 8);
}

void TestBitstream::reads()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QString, script);
    QFETCH(QList<qint64>, values);
    QFETCH(qint64, location);

    ZARNBitstream stream = ZARNBitstream::bitstreamWithData(bytes);
    QCOMPARE(stream.length(), qint64(bytes.size()) * 8);
    QCOMPARE(run(stream, script), values);
    QCOMPARE(stream.location(), location);
}

void TestBitstream::withoutData()
{
    ZARNBitstream stream;
    QCOMPARE(stream.location(), -1);
    QCOMPARE(stream.length(), -1);
    QCOMPARE(run(stream, QStringLiteral("loc3 len99 bit bits8 bytes4 ue se skip4")), QList<qint64>({0, 0, 0, 0, 0}));

    stream.setData(QByteArray());
    QCOMPARE(stream.location(), 0);
    QCOMPARE(stream.length(), 0);
    QCOMPARE(run(stream, QStringLiteral("bit ue")), QList<qint64>({0, 0}));

    // Taking the data away keeps the position for when data comes back without a reset.
    stream.setData(QByteArray::fromHex("ff"));
    run(stream, QStringLiteral("skip3 nodata"));
    QCOMPARE(stream.location(), -1);
    QCOMPARE(stream.length(), -1);
    QVERIFY(!stream.data());
}

// Runs the same operations on the stream and on the bit-at-a-time reference and reports the
// first difference in value read, location or length.
class Comparison
{
public:
    explicit Comparison(const QByteArray &bytes) : m_bytes(bytes), m_stream(bytes), m_reference(bytes) { }

    void setData(const QByteArray &bytes)
    {
        m_stream.setData(bytes);
        m_reference.setData(bytes);
        m_done << QStringLiteral("data:") + QString::fromLatin1(bytes.toHex());
    }

    bool step(const QString &operation)
    {
        m_done << operation;
        const std::optional<qint64> value = apply(m_stream, operation);
        const std::optional<qint64> expected = apply(m_reference, operation);
        if (value == expected && m_stream.location() == m_reference.location() && m_stream.length() == m_reference.length())
            return true;
        qWarning("%s: %s gave %lld at %lld, expected %lld at %lld", m_bytes.toHex().constData(),
                 qPrintable(m_done.join(u' ')), value.value_or(-1), m_stream.location(), expected.value_or(-1),
                 m_reference.location());
        return false;
    }

private:
    QByteArray m_bytes;
    ZARNBitstream m_stream;
    ReferenceStream m_reference;
    QStringList m_done;
};

void TestBitstream::matchesBitAtATimeReading()
{
    QRandomGenerator random(20240515);
    const QStringList others{QStringLiteral("bit"),  QStringLiteral("byte"),   QStringLiteral("ue"),
                             QStringLiteral("se"),   QStringLiteral("skipue"), QStringLiteral("skipbit"),
                             QStringLiteral("skipbyte"), QStringLiteral("nodata")};
    const auto randomBytes = [&] {
        QByteArray bytes(random.bounded(64), Qt::Uninitialized);
        // Sparse bits make long Exp-Golomb codes.
        const quint32 density = random.bounded(4);
        for (char &byte : bytes)
            byte = char(random.generate() & (density == 0 ? 0x01 : density == 1 ? 0x11 : 0xff));
        return bytes;
    };
    for (int sequence = 0; sequence < 10000; ++sequence) {
        const QByteArray bytes = randomBytes();
        const int bits = int(bytes.size()) * 8;
        Comparison comparison(bytes);
        for (int step = 0; step < 40; ++step) {
            QString operation;
            switch (random.bounded(11)) {
            case 0: operation = QStringLiteral("bits%1").arg(random.bounded(-40, 72)); break;
            case 1: operation = QStringLiteral("bits%1").arg(-(qint64(1) << 32) + random.bounded(40)); break;
            case 2: operation = QStringLiteral("bytes%1").arg(random.bounded(-3, 10)); break;
            case 3: operation = QStringLiteral("skip%1").arg(random.bounded(-90, 90)); break;
            case 4: operation = QStringLiteral("skipbytes%1").arg(random.bounded(-6, 6)); break;
            // Positions and lengths near the ends of the buffer, where the word reads stop.
            case 5: operation = QStringLiteral("loc%1").arg(random.bounded(-70, bits + 20)); break;
            case 6: operation = QStringLiteral("len%1").arg(random.bounded(-10, bits + 80)); break;
            case 7:
                comparison.setData(randomBytes());
                continue;
            case 8:
                // Runs of codes, which share a look-ahead.
                for (int codes = random.bounded(1, 8); codes > 0; --codes)
                    QVERIFY(comparison.step(QStringLiteral("ue")));
                continue;
            default: operation = others[random.bounded(others.size())]; break;
            }
            QVERIFY(comparison.step(operation));
        }
    }
}

void TestBitstream::sweepsTheEndsOfTheBuffer()
{
    QRandomGenerator random(15052024);
    QByteArray bytes(24, Qt::Uninitialized);
    for (char &byte : bytes)
        byte = char(random.generate());
    QStringList reads{QStringLiteral("ue"), QStringLiteral("skipue"), QStringLiteral("bytes3")};
    for (int count = 1; count <= 40; ++count)
        reads << QStringLiteral("bits%1").arg(count);
    // Every read from every location near a length cut anywhere in the buffer, so that the
    // bits after the length are real data that must not show.
    for (int length = 0; length <= bytes.size() * 8; length += 3) {
        for (int location = -70; location <= length + 2; ++location) {
            for (const QString &read : std::as_const(reads)) {
                Comparison comparison(bytes);
                QVERIFY(comparison.step(QStringLiteral("len%1").arg(length)));
                QVERIFY(comparison.step(QStringLiteral("loc%1").arg(location)));
                QVERIFY(comparison.step(read));
            }
        }
    }
}

QTEST_GUILESS_MAIN(TestBitstream)
#include "tst_bitstream.moc"
