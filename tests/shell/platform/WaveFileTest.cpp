#include "shell/platform/WaveFile.h"

#include "tests/shell/FailOnWarning.h"

#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include <random>
#include <sys/stat.h>

namespace keyfluent::shell
{
namespace
{

QByteArray Bytes(const char* hexadecimal)
{
    return QByteArray::fromHex(hexadecimal);
}

QByteArray LittleEndian(quint32 number, int bytes)
{
    QByteArray text;
    for (int place = 0; place < bytes; ++place) {
        text += static_cast<char>((number >> (8 * place)) & 0xFF);
    }
    return text;
}

QByteArray Chunk(const QByteArray& name, const QByteArray& content)
{
    return name + LittleEndian(quint32(content.size()), 4) + content +
           QByteArray(content.size() % 2, '\0');
}

QByteArray Format(quint32 tag, quint32 channels, quint32 rate, quint32 bits)
{
    return LittleEndian(tag, 2) + LittleEndian(channels, 2) + LittleEndian(rate, 4) +
           LittleEndian(rate * channels * bits / 8, 4) + LittleEndian(channels * bits / 8, 2) +
           LittleEndian(bits, 2);
}

QByteArray File(const QByteArray& chunks)
{
    return Chunk("RIFF", "WAVE" + chunks);
}

QByteArray Wave(quint32 channels, quint32 rate, const Samples& samples)
{
    QByteArray data;
    for (const std::int16_t sample : samples) {
        data += LittleEndian(static_cast<quint16>(sample), 2);
    }
    return File(Chunk("fmt ", Format(1, channels, rate, 16)) + Chunk("data", data));
}

} // namespace

class WaveFileTest : public QObject
{
    Q_OBJECT

private slots:
    void init() { FailOnWarning(); }

    void FileWrittenByHandIsRead()
    {
        const QByteArray bytes = Bytes("52494646 2c000000 57415645" // RIFF, 44 bytes, WAVE
                                       "666d7420 10000000"          // format, 16 bytes
                                       "0100 0200 80bb0000"         // PCM, two channels, 48000
                                       "00ee0200 0400 1000"         // bytes a second, a frame, bits
                                       "64617461 08000000"          // data, 8 bytes
                                       "0100 ffff 0080 ff7f");
        QVERIFY(DecodeWave(bytes) == (Samples{1, -1, -32768, 32767}));
    }

    void SingleChannelSoundsOnBothSides()
    {
        QVERIFY(DecodeWave(Wave(1, 48000, {5, -6})) == (Samples{5, 5, -6, -6}));
    }

    void LowerRateIsFilledWithStraightLines()
    {
        QVERIFY(DecodeWave(Wave(1, 24000, {0, 100, -100})) ==
                (Samples{0, 0, 50, 50, 100, 100, 0, 0, -100, -100, -100, -100}));
    }

    void HigherRateIsThinnedOut()
    {
        QVERIFY(DecodeWave(Wave(2, 96000, {1, 10, 2, 20, 3, 30, 4, 40, 5, 50})) ==
                (Samples{1, 10, 3, 30, 5, 50}));
    }

    void DurationStaysAtEveryRate()
    {
        for (const quint32 rate : {8000U, 11025U, 16000U, 22050U, 44100U, 48000U, 96000U}) {
            const Samples second(rate, 1000);
            const Samples samples = DecodeWave(Wave(1, rate, second));
            QCOMPARE(samples.size(), std::size_t{soundRate * soundChannels});
            QVERIFY(samples == Samples(samples.size(), 1000));
        }
    }

    void StrangeRatesAreTaken()
    {
        QCOMPARE(DecodeWave(Wave(1, 1, Samples(100, 7))).size(),
                 std::size_t{longestSound} * soundChannels);
        QVERIFY(DecodeWave(Wave(1, 0xFFFFFFFF, {7, 8, 9})) == (Samples{7, 7}));
    }

    void LongSoundIsCut()
    {
        const Samples samples = DecodeWave(Wave(1, 8000, Samples(8000 * 11, 3)));
        QCOMPARE(samples.size(), std::size_t{longestSound} * soundChannels);
    }

    void OtherChunksArePassedOver()
    {
        const QByteArray bytes =
            File(Chunk("LIST", "odd") + Chunk("fmt ", Format(1, 1, 48000, 16) + "more") +
                 Chunk("fact", QByteArray()) + Chunk("data", Bytes("2a00")) + Chunk("id3 ", "x"));
        QVERIFY(DecodeWave(bytes) == (Samples{42, 42}));
    }

    void HalfASampleAtTheEndIsDropped()
    {
        const QByteArray bytes =
            File(Chunk("fmt ", Format(1, 2, 48000, 16)) + Chunk("data", Bytes("0100020003")));
        QVERIFY(DecodeWave(bytes) == (Samples{1, 2}));
    }

    void OtherKindsOfSoundAreSilent()
    {
        const QByteArray data = Chunk("data", QByteArray(64, '\1'));
        const QByteArray formats[] = {
            Format(3, 1, 48000, 16),
            Format(1, 0, 48000, 16),
            Format(1, 3, 48000, 16),
            Format(1, 1, 0, 16),
            Format(1, 1, 48000, 8),
            Format(1, 1, 48000, 24),
            Format(1, 1, 48000, 16).chopped(1),
        };
        for (const QByteArray& format : formats) {
            QVERIFY(DecodeWave(File(Chunk("fmt ", format) + data)).empty());
        }
        QVERIFY(DecodeWave(File(data)).empty());
        QVERIFY(DecodeWave(File(data + Chunk("fmt ", Format(1, 1, 48000, 16)))).empty());
        QVERIFY(DecodeWave(Wave(1, 48000, {})).empty());
        QVERIFY(DecodeWave(Chunk("RIFX", "WAVE" + data)).empty());
        QVERIFY(DecodeWave(Chunk("RIFF", "AVI " + data)).empty());
    }

    void FileCutAtAnyLengthIsSilent()
    {
        const QByteArray whole = Wave(2, 44100, {1, 2, 3, 4, 5, 6, 7, 8});
        for (qsizetype length = 0; length < whole.size(); ++length) {
            QVERIFY(DecodeWave(whole.first(length)).empty());
        }
        QVERIFY(!DecodeWave(whole).empty());
    }

    void AnyByteMayBeWrong()
    {
        const QByteArray whole = Wave(2, 44100, {1, 2, 3, 4, 5, 6, 7, 8});
        for (qsizetype place = 0; place < whole.size(); ++place) {
            for (int value = 0; value < 256; ++value) {
                QByteArray bytes = whole;
                bytes[place] = static_cast<char>(value);
                QVERIFY(DecodeWave(bytes).size() <= std::size_t{longestSound} * soundChannels);
            }
        }
    }

    void NoiseIsNoSound()
    {
        std::mt19937 random(1);
        for (int round = 0; round < 2000; ++round) {
            QByteArray chunks;
            for (int byte = 0; byte < 200; ++byte) {
                chunks += static_cast<char>(random() & 0xFF);
            }
            QVERIFY(DecodeWave(chunks).empty());
            const QByteArray file = File(Chunk("fmt ", Format(1, 1, 48000, 16)) + chunks);
            QVERIFY(DecodeWave(file).size() <= 200);
        }
    }

    void FileOnTheDiskIsRead()
    {
        const QString name = Written("sound.wav", Wave(1, 48000, {9}));
        QVERIFY(ReadWaveFile(name) == (Samples{9, 9}));
    }

    void FileBeyondTheLimitIsSilent()
    {
        const auto frames = [](qint64 size) { return static_cast<std::size_t>((size - 44) / 2); };
        const Samples most(frames(waveFileLimit), 1);
        QVERIFY(!ReadWaveFile(Written("most.wav", Wave(1, 192000, most))).empty());
        const Samples more(frames(waveFileLimit) + 1, 1);
        const QString tooLong = Written("more.wav", Wave(1, 192000, more));
        QCOMPARE(QFileInfo(tooLong).size(), waveFileLimit + 2);
        QVERIFY(ReadWaveFile(tooLong).empty());
    }

    void WhatIsNoFileIsSilent()
    {
        QVERIFY(ReadWaveFile(QString()).empty());
        QVERIFY(ReadWaveFile(folder_.filePath(QStringLiteral("none.wav"))).empty());
        QVERIFY(ReadWaveFile(folder_.path()).empty());
        QVERIFY(ReadWaveFile(QStringLiteral("/dev/zero")).empty());
        const QString pipe = folder_.filePath(QStringLiteral("pipe.wav"));
        QCOMPARE(::mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
        QVERIFY(ReadWaveFile(pipe).empty());
    }

private:
    QString Written(const char* name, const QByteArray& bytes)
    {
        const QString path = folder_.filePath(QString::fromLatin1(name));
        QFile file(path);
        return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() ? path
                                                                                    : QString();
    }

    QTemporaryDir folder_;
};

} // namespace keyfluent::shell

KEYFLUENT_TEST_MAIN(keyfluent::shell::WaveFileTest)

#include "WaveFileTest.moc"
