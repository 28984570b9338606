#include "tests/fuzz/Target.h"
#include "tests/hosts/data/Reading.h"
#include "tests/support/Builders.h"

#include <gtest/gtest.h>

#include <cmath>

using namespace hosts::data;
using namespace tests;

namespace {

QString write(const QByteArray& bytes)
{
    static const Reading reading;
    return reading.write(QStringLiteral("file"), bytes);
}

// Whatever the bytes are: an error, or series of numbers.
void readAnything(Dice& dice)
{
    static const QList<QByteArray> words{",", ";",     "\t",  "\n", "\r\n", "\"",
                                         "#", "time",  "1",   "2",  "3",    ".",
                                         "-", "1e999", "nan", " ",  "0.1",  "\xEF\xBB\xBF"};
    QByteArray bytes;
    for (int i = dice.upTo(255); i > 0; --i) {
        const int word = dice.upTo(words.size());
        bytes += word < words.size() ? words[word] : QByteArray(1, char(dice.upTo(255)));
    }
    ReadOptions options;
    if (dice.upTo(3) == 0)
        options.step = dice.number();
    if (dice.upTo(3) == 0)
        options.start = dice.number();
    if (dice.upTo(3) == 0)
        options.columns = QStringList{QString::number(dice.upTo(4))};
    try {
        for (const Series& series : readRecording(write(bytes), options)) {
            EXPECT_FALSE(series.snapshot.empty());
            for (const auto& segment : series.snapshot.segments) {
                EXPECT_GT(segment.count, 0);
                EXPECT_TRUE(std::isfinite(segment.xInfo.offset) && segment.xInfo.scale > 0.0);
                EXPECT_TRUE(std::all_of(segment.begin, segment.end,
                                        [](double sample) { return std::isfinite(sample); }));
            }
        }
    } catch (const ReadError&) {
    }
}

// A table of numbers and gaps comes back as it was written.
void readTable(Dice& dice)
{
    const int columns = 1 + dice.upTo(4), rows = 1 + dice.upTo(40);
    const char separator = ",;\t"[dice.upTo(2)];
    const bool hasComma = separator == ';' && columns > 1 && dice.upTo(1);
    const QByteArray lineEnd = dice.upTo(1) ? "\n" : "\r\n";
    QByteArray table;
    ReadOptions options;
    options.timeColumn = QStringLiteral("none");
    std::vector<std::vector<double>> expected;
    for (int column = 0; column < columns; ++column) {
        table += (column ? QByteArray(1, separator) : "") + "name " + char('a' + column);
        options.columns << QString::number(column + 1);
        expected.emplace_back();
    }
    for (int row = 0; row < rows; ++row) {
        table += lineEnd;
        for (int column = 0; column < columns; ++column) {
            double number = dice.number();
            if (!std::isfinite(number)) // A gap, though not in the first row.
                number = row > 0 ? NaN : 1.0;
            expected[std::size_t(column)].push_back(number);
            QByteArray cell = std::isnan(number) ? "-" : QByteArray::number(number, 'g', 17);
            if (hasComma)
                cell.replace('.', ',');
            table +=
                (column ? QByteArray(1, separator) : "") + (dice.upTo(9) ? cell : '"' + cell + '"');
        }
    }
    const auto all = readRecording(write(table + lineEnd), options);
    ASSERT_EQ(all.size(), expected.size());
    for (std::size_t i = 0; i < all.size(); ++i) {
        std::vector<double> actual(std::size_t(rows), NaN);
        for (const auto& segment : all[i].snapshot.segments)
            std::copy(segment.begin, segment.end, actual.begin() + long(segment.xInfo.offset));
        ASSERT_TRUE(same(actual, expected[i])) << table.toStdString();
    }
}

} // namespace

FUZZ_TARGET(CsvReader)
{
    if (dice.upTo(1))
        readAnything(dice);
    else
        readTable(dice);
}
