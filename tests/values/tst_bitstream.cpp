// SPDX-License-Identifier: LGPL-2.1-or-later
#include <Brixel/ZARNBitstream.h>

#include <QRandomGenerator>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

// The stream's rules read one bit at a time, exactly as stated, to check the word-at-a-time
// reader against.
struct ReferenceStream {
    std::optional<QByteArray> data;
    qint64 at = 0, end = 0;

    explicit ReferenceStream(const QByteArray &bytes) { setData(bytes); }
    void setData(const std::optional<QByteArray> &bytes)
    {
        if ((data = bytes))
            at = 0, end = qint64(quint32(data->size()) * 8u);
    }
    void setLocation(qint64 location) { at = data ? location : at; }
    qint64 location() const { return data ? at : -1; }
    void setLength(qint64 length) { end = length; }
    qint64 length() const { return data ? end : -1; }
    quint8 readBit()
    {
        if (at >= end || !data)
            return 0;
        const qint64 bit = at++;
        return bit >= 0 && bit / 8 < data->size() ? (uchar(data->at(bit / 8)) >> (7 - bit % 8)) & 1 : 0;
    }
    quint32 readBits(qint64 count)
    {
        count = std::min(count, end - at);
        if (count > 32)
            skipBits(count - 32);
        quint32 value = 0;
        for (auto left = qint32(quint32(quint64(count))); left-- > 0;)
            value |= quint32(readBit()) << (left % 32);
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
        while (at < end && data && readBit() == 0)
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
    void skipBits(qint64 count) { at = at + count >= end ? end - 1 : at + count; }
    void skipExpGolomb()
    {
        if (const qint64 z = zeros())
            skipBits(z);
    }
};

// Runs one operation, named as in the test tables ("bits4", "loc-3", "ue", "data:a5"), on
// either stream and gives the value read, if the operation reads one.
template<typename Stream>
std::optional<qint64> apply(Stream &stream, const QString &operation)
{
    if (operation.startsWith(u"data:")) {
        stream.setData(QByteArray::fromHex(operation.sliced(5).toLatin1()));
        return std::nullopt;
    }
    const auto isArgument = [](QChar c) { return c == u'-' || c.isDigit(); };
    const auto digits = std::find_if(operation.cbegin(), operation.cend(), isArgument);
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

// Runs the same operations on the stream and on the bit-at-a-time reference; false, with the
// operations so far in a warning, at the first difference in value, location or length.
struct Comparison {
    ZARNBitstream stream;
    ReferenceStream reference;
    QStringList done;

    explicit Comparison(const QByteArray &bytes)
        : stream(bytes), reference(bytes), done{QString::fromLatin1(bytes.toHex())} { }
    bool step(const QString &operation)
    {
        done << operation;
        const std::optional<qint64> value = apply(stream, operation);
        const std::optional<qint64> expected = apply(reference, operation);
        if (value == expected && stream.location() == reference.location() && stream.length() == reference.length())
            return true;
        qWarning("%s gave %lld at %lld, expected %lld at %lld", qPrintable(done.join(u' ')), value.value_or(-1),
                 stream.location(), expected.value_or(-1), reference.location());
        return false;
    }
};

} // namespace

class TestBitstream : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void reads_data()
    {
        QTest::addColumn<std::optional<QByteArray>>("bytes");
        QTest::addColumn<QString>("script");
        QTest::addColumn<QList<qint64>>("values");
        QTest::addColumn<qint64>("location");

        const auto row = [](const char *name, const char *hex, const char *script, QList<qint64> values,
                            qint64 location) {
            const auto bytes = hex ? std::optional(QByteArray::fromHex(hex)) : std::nullopt;
            QTest::newRow(name) << bytes << QString::fromLatin1(script) << values << location;
        };
        row("bits, nibble, byte, then nothing past the end", "a50f", "bit bit bit bit bits4 byte bit",
            {1, 0, 1, 0, 5, 15, 0}, 16);
        row("without data nothing reads or moves", nullptr, "loc3 len99 bit bits8 bytes4 ue se skip4",
            {0, 0, 0, 0, 0}, -1);
        row("over 32 bits skip first, then fold modulo 32", "0081000000010000", "bits40", {0x81}, 48);
        row("a negative count with positive low bits reads them", "f8", "bits-4294967291", {31}, 5);
        row("readBytes of one still reads four", "0102030405", "bytes1 byte", {0x01020304, 5}, 40);
        row("readBytes beyond four skips the excess", "010203040506", "bytes6", {0x03040506}, 48);
        row("readBytes of -1 moves back five bytes", "0102030405060708", "loc40 bytes-1", {0x01020304}, 32);
        row("unsigned Exp-Golomb 1, 010, 011, 00100", "a640", "ue ue ue ue", {0, 1, 2, 3}, 12);
        row("signed Exp-Golomb 010, 011, 00100, 00101", "4c85", "se se se se", {1, -1, 2, -2}, 16);
        row("the widest Exp-Golomb code that fits 32 bits", "00000001fffffffe", "ue", {0xfffffffe}, 63);
        row("an Exp-Golomb code of 32 zeros wraps", "000000008000000080", "ue", {0}, 65);
        row("Exp-Golomb zeros running into the end stop there", "00", "ue ue", {255, 0}, 8);
        row("a code cut by the length reads zeros for the rest", "00000001ffffffff", "len62 ue", {0xbffffffe}, 62);
        row("skipping an Exp-Golomb code", "3c", "skipue bit", {1}, 6);
        row("a skip past the end stops on the last bit", "0001", "skip100 bit bit", {1, 0}, 16);
        row("location arithmetic saturates", "ffff", "loc9223372036854775000 skip9223372036854775000 bit", {1}, 16);
        row("one bit past the largest location saturates too", "ffff", "loc9223372036854775807 skip1 bit", {1}, 16);
        row("reading backwards from far before the data", "01", "loc-9223372036854775807 ue", {0xffffffff}, 8);
        row("a folded read at the lowest location and length", "ffffffffffffffff",
            "len-9223372036854775808 loc-9223372036854775808 bits-4294967254", {0}, std::numeric_limits<qint64>::min());
    }

    void reads()
    {
        QFETCH(std::optional<QByteArray>, bytes);
        QFETCH(QString, script);
        QFETCH(QList<qint64>, values);
        QFETCH(qint64, location);

        ZARNBitstream stream = ZARNBitstream::bitstreamWithData(bytes);
        QList<qint64> read;
        for (const QString &operation : script.split(u' ', Qt::SkipEmptyParts)) {
            if (const std::optional<qint64> value = apply(stream, operation))
                read << *value;
        }
        QCOMPARE(read, values);
        QCOMPARE(stream.location(), location);
    }

    void matchesBitAtATimeReading()
    {
        QRandomGenerator random(20240515);
        const auto randomBytes = [&](qsizetype size) {
            QByteArray bytes(size, Qt::Uninitialized);
            // Sparse bits make long Exp-Golomb codes.
            const quint32 density = random.bounded(4);
            for (char &byte : bytes)
                byte = char(random.generate() & (density == 0 ? 0x01 : density == 1 ? 0x11 : 0xff));
            return bytes;
        };
        const QStringList others = u"bit byte ue se skipue skipbit skipbyte nodata"_s.split(u' ');
        for (int sequence = 0; sequence < 10000; ++sequence) {
            const QByteArray bytes = randomBytes(random.bounded(64));
            const int bits = int(bytes.size()) * 8;
            Comparison comparison(bytes);
            for (int step = 0; step < 40; ++step) {
                QString operation;
                switch (random.bounded(11)) {
                case 0: operation = u"bits%1"_s.arg(random.bounded(-40, 72)); break;
                case 1: operation = u"bits%1"_s.arg(-(qint64(1) << 32) + random.bounded(40)); break;
                case 2: operation = u"bytes%1"_s.arg(random.bounded(-3, 10)); break;
                case 3: operation = u"skip%1"_s.arg(random.bounded(-90, 90)); break;
                case 4: operation = u"skipbytes%1"_s.arg(random.bounded(-6, 6)); break;
                // Positions and lengths near the ends of the buffer, where the word reads stop.
                case 5: operation = u"loc%1"_s.arg(random.bounded(-70, bits + 20)); break;
                case 6: operation = u"len%1"_s.arg(random.bounded(-10, bits + 80)); break;
                case 7: operation = u"data:"_s + QString::fromLatin1(randomBytes(random.bounded(64)).toHex()); break;
                // Runs of codes, which share a look-ahead.
                case 8: operation = u"ue ue ue ue ue ue ue"_s.left(3 * random.bounded(1, 8) - 1); break;
                default: operation = others[random.bounded(others.size())]; break;
                }
                for (const QString &part : operation.split(u' '))
                    QVERIFY(comparison.step(part));
            }
        }

        // Then every read from every location near a length cut anywhere in a buffer, so that the
        // bits after the length are real data that must not show.
        QByteArray bytes(24, Qt::Uninitialized);
        for (char &byte : bytes)
            byte = char(random.generate());
        QStringList reads = u"ue skipue bytes3"_s.split(u' ');
        for (int count = 1; count <= 40; ++count)
            reads << u"bits%1"_s.arg(count);
        for (int length = 0; length <= bytes.size() * 8; length += 3) {
            for (int location = -70; location <= length + 2; ++location) {
                for (const QString &read : std::as_const(reads)) {
                    Comparison comparison(bytes);
                    QVERIFY(comparison.step(u"len%1"_s.arg(length)) && comparison.step(u"loc%1"_s.arg(location))
                            && comparison.step(read));
                }
            }
        }
    }

    // Codes with 0 to 31 leading zeros, written after every number of one-bit codes from 0 to
    // 63, so that each code length meets the look-ahead word at every alignment.
    void longCodesAtEveryAlignment()
    {
        const QString pattern = QString::number(0xB6DB6DB7u, 2);   // ends in a one bit
        for (int lead = 0; lead < 64; ++lead) {
            QString bits(lead, u'1');
            for (int zeros = 0; zeros < 32; ++zeros)
                bits += QString(zeros, u'0') + u'1' + pattern.right(zeros);
            // 16 zero bytes after the last code leave room for whole look-ahead loads.
            QByteArray bytes(bits.size() / 8 + 17, 0);
            for (qsizetype i = 0; i < bits.size(); ++i)
                bytes[i / 8] = char(bytes[i / 8] | (bits[i] == u'1' ? 0x80 >> (i % 8) : 0));
            Comparison comparison(bytes);
            for (int code = 0; code < lead + 32; ++code)
                QVERIFY(comparison.step(u"ue"_s));
        }
    }

    // A "moved" stream is copied, so both go on reading the shared buffer, also mid-code-run.
    void movedFromStreamStaysReadable()
    {
        ZARNBitstream source(QByteArray::fromHex("a640a640a640a640a640a640"));
        QCOMPARE(source.readExpGolomb(), 0u);
        ZARNBitstream moved(std::move(source));
        moved = ZARNBitstream(std::move(source));
        QCOMPARE(source.readExpGolomb(), 1u);
        QCOMPARE(moved.readExpGolomb(), 1u);
        QCOMPARE(source.location(), 4);
    }
};

QTEST_GUILESS_MAIN(TestBitstream)
#include "tst_bitstream.moc"
