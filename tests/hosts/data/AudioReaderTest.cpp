#include "tests/hosts/data/Reading.h"

#include <gtest/gtest.h>

#include <sndfile.h>

#include <limits>

namespace hosts::data {

namespace {

QByteArray soundOf(const Reading& reading, int format, std::vector<double> frames)
{
    QFile file(reading.directory.filePath("sound"));
    SF_INFO info = {};
    info.samplerate = 8000;
    info.channels = 2;
    info.format = format;
    SNDFILE* const sound =
        sf_open(QFile::encodeName(file.fileName()).constData(), SFM_WRITE, &info);
    sf_writef_double(sound, frames.data(), static_cast<sf_count_t>(frames.size() / 2));
    sf_close(sound);
    file.open(QIODevice::ReadOnly);
    return file.readAll();
}

/// Stereo, multiples of 1/64, up and down.
std::vector<double> ramps(int count)
{
    std::vector<double> frames;
    for (int i = 0; i < 2 * count; ++i)
        frames.push_back((i % 2 == 0 ? 1.0 : -1.0) * (i / 2 % 64) / 64.0);
    return frames;
}

TEST(AudioReaderTest, ReadsTheChannelsAskedForWhateverTheFileIsCalled)
{
    const Reading reading;
    const char* const up = "file 1 0:0.000125[0 0.015625 0.03125]";
    const char* const down = "file 2 0:0.000125[0 -0.015625 -0.03125]";
    for (const int format : {SF_FORMAT_FLAC | SF_FORMAT_PCM_16, SF_FORMAT_AIFF | SF_FORMAT_PCM_24})
        EXPECT_EQ(reading.read(soundOf(reading, format, ramps(3))), std::string(up) + " | " + down);
    const QByteArray wav = soundOf(reading, SF_FORMAT_WAV | SF_FORMAT_PCM_16, ramps(3));
    EXPECT_EQ(reading.read(wav, {{"2"}, "none", {}, {}}), down);
    EXPECT_EQ(reading.read(wav, {{"1"}, "", 4.0, 0.5}), "file 1 4:0.5[0 0.015625 0.03125]");
    EXPECT_EQ(reading.read(wav, {{"3"}, "", {}, {}}),
              "file: no channel \"3\"; the channels are numbered 1 to 2");
    EXPECT_EQ(reading.read(wav, {{}, "t", {}, {}}), "file: a sound has no time column \"t\"");
}

TEST(AudioReaderTest, SamplesThatAreNoNumbersAreGaps)
{
    constexpr double nan = std::numeric_limits<double>::quiet_NaN();
    constexpr double inf = std::numeric_limits<double>::infinity();
    const Reading reading;
    const QByteArray wav = soundOf(reading, SF_FORMAT_WAV | SF_FORMAT_DOUBLE,
                                   {1.0, nan, nan, inf, 3.0, nan, 4.0, -0.5});
    EXPECT_EQ(reading.read(wav),
              "file 1 0:0.000125[1] 0.00025:0.000125[3 4] | file 2 0.000375:0.000125[-0.5]");
}

TEST(AudioReaderTest, OfABrokenSoundNothingIsInvented)
{
    const Reading reading;
    const QByteArray wav = soundOf(reading, SF_FORMAT_WAV | SF_FORMAT_FLOAT, ramps(50000));
    const auto series =
        readRecording(reading.write("cut", wav.left(wav.size() / 2)), {{"1"}, "", {}, {}});
    ASSERT_EQ(series.at(0).snapshot.segments.size(), 1u);
    const auto& segment = series[0].snapshot.segments[0];
    ASSERT_NEAR(static_cast<double>(segment.count), 25000.0, 20.0);
    for (long long i = 0; i < segment.count; ++i)
        ASSERT_EQ(segment.begin[i], static_cast<double>(i % 64) / 64.0);

    EXPECT_EQ(
        reading.read(wav.left(20)),
        "file: no sound that can be read: Error in WAV/W64/RF64 file. Malformed 'fmt ' chunk.");
    EXPECT_EQ(reading.read("1,2\n", {}, "table.wav"),
              "table.wav: no sound that can be read: Format not recognised.");
    EXPECT_EQ(reading.read(soundOf(reading, SF_FORMAT_WAV | SF_FORMAT_PCM_16, {})),
              "file: channel 1 holds no samples");
    const QByteArray flac = soundOf(reading, SF_FORMAT_FLAC | SF_FORMAT_PCM_16, ramps(50000));
    EXPECT_EQ(reading.read(flac.left(flac.size() / 2)).find("file: is cut off or damaged: only "),
              0u);
    for (int size = 4; size < flac.size(); size += flac.size() / 10)
        EXPECT_EQ(reading.read(flac.left(size)).find("file: "), 0u) << size;
}

} // namespace

} // namespace hosts::data
