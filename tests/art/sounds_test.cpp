// Sounds: the format that the player expects, a level that hurts nobody, no click at either end.
#include <algorithm>
#include <cmath>
#include <cstdint>
#include <vector>

#include <gtest/gtest.h>
#include <QByteArray>
#include <QFile>
#include <QString>
#include <QtEndian>

namespace {

constexpr int HeaderSize = 44;
constexpr double FullScale = 32768.0;
constexpr int Rate = 44100;

struct SoundRow {
    const char* Name;
    double Longest;  ///< seconds
};

constexpr SoundRow Rows[] = {{"START", 1.5},    {"CARDUP", 0.3}, {"CARDDOWN", 0.3},
                             {"AUTOPLAY", 0.6}, {"UNDO", 0.6},   {"WIN", 2.0}};

QByteArray Bytes(const char* name) {
    QFile file(QStringLiteral(":/sounds/%1.wav").arg(QLatin1String(name)));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << name;
    return file.readAll();
}

template <typename Number>
Number At(const QByteArray& bytes, int place) {
    return qFromLittleEndian<Number>(bytes.constData() + place);
}

std::vector<double> Samples(const QByteArray& bytes) {
    std::vector<double> samples;
    for (int place = HeaderSize; place + 1 < bytes.size(); place += 2) {
        samples.push_back(At<std::int16_t>(bytes, place) / FullScale);
    }
    return samples;
}

TEST(Sounds, HaveTheFormatOfAPlainWaveFile) {
    for (const SoundRow& row : Rows) {
        SCOPED_TRACE(row.Name);
        const QByteArray bytes = Bytes(row.Name);
        ASSERT_GT(bytes.size(), HeaderSize);
        EXPECT_EQ(bytes.left(4) + bytes.mid(8, 8) + bytes.mid(36, 4), "RIFFWAVEfmt data");
        EXPECT_EQ(At<std::uint16_t>(bytes, 20), 1) << "plain samples";
        EXPECT_EQ(At<std::uint16_t>(bytes, 22), 1) << "channels";
        EXPECT_EQ(At<std::uint32_t>(bytes, 24), static_cast<std::uint32_t>(Rate));
        EXPECT_EQ(At<std::uint16_t>(bytes, 34), 16) << "bits";
        EXPECT_EQ(At<std::uint32_t>(bytes, 40), bytes.size() - HeaderSize);
    }
}

TEST(Sounds, AreNeitherLoudNorSilentNorLong) {
    const double limit = std::pow(10.0, -3.0 / 20);
    for (const SoundRow& row : Rows) {
        const std::vector<double> samples = Samples(Bytes(row.Name));
        double peak = 0;
        double sum = 0;
        for (const double sample : samples) {
            peak = std::max(peak, std::abs(sample));
            sum += sample;
        }
        EXPECT_LT(peak, limit) << row.Name;
        EXPECT_GT(peak, 0.1) << row.Name;
        EXPECT_LT(std::abs(sum / static_cast<double>(samples.size())), 0.005)
            << row.Name << ": off the middle";
        EXPECT_LE(static_cast<double>(samples.size()) / Rate, row.Longest) << row.Name;
    }
}

TEST(Sounds, BeginAndEndWithoutAClick) {
    constexpr double Quiet = 0.02;
    constexpr std::size_t Millisecond = Rate / 1000;
    for (const SoundRow& row : Rows) {
        const std::vector<double> samples = Samples(Bytes(row.Name));
        for (std::size_t i = 0; i < Millisecond; ++i) {
            EXPECT_LE(std::abs(samples[i]), Quiet) << row.Name << " at sample " << i;
            EXPECT_LE(std::abs(samples[samples.size() - 1 - i]), Quiet) << row.Name << ", the end";
        }
    }
}

}  // namespace
