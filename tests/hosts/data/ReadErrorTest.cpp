#include "tests/hosts/data/Reading.h"

#include <gtest/gtest.h>

namespace hosts::data {

namespace {

TEST(ReadErrorTest, SaysInOneLineWhatIsWrongWithATable)
{
    const struct
    {
        QByteArray bytes;
        QStringList columns;
        const char* message;
    } cases[] = {
        // clang-format off
        {"",                    {},    "file: is empty"},
        {"\n # c\n\n",          {},    "file: holds no table, only blank lines and comments"},
        {"a\n\"" + QByteArray(1 << 19, 'x'), {},
         "file, line 2: a quotation mark opened in this row is never closed"},
        {QByteArray(1 << 19, 'x'), {},
         "file, line 1: the first row is longer than 256 KiB; is a quotation mark left open in it?"},
        {"a,b\nx,y\n",          {},    "file: no column holds mainly numbers"},
        {"a,b\n1,y\n",          {"b"}, "file: column 2 (\"b\") holds no numbers"},
        {"a\n1\n\"2\n3\n",      {},
         "file, line 3: a quotation mark opened in this row is never closed"},
        {"a\n1\n\"" + QByteArray(2 << 20, '\n'), {},
         "file, line 3: a cell is longer than 1 MiB; is a quotation mark left open in this row?"},
        {QByteArray("a\n1\n2\0\n", 7), {},
         "file, line 3: a NUL byte; this is neither text nor a known sound file"},
        {QByteArray(100, '-') + ",b\n1,2\n", {"c"},
         "file: no column \"c\"; there are 2: \"----------------------------------------...\", "
         "\"b\""},
        // clang-format on
    };
    const Reading reading;
    for (const auto& c : cases)
        EXPECT_EQ(reading.read(c.bytes, {c.columns, "", {}, {}}), c.message);
}

TEST(ReadErrorTest, StaysOneLineWhateverIsInNamesAndCells)
{
    const Reading reading;
    EXPECT_EQ(reading.read("", {}, QString::fromUtf8("a\nb\033[1m\u2028\u20ac\U0001F600")),
              "a?b?[1m?\u20ac\U0001F600: is empty");
    EXPECT_EQ(reading.read("v\n1\n", {{"\x01"}, "", {}, {}}),
              "file: no column \"?\"; there are 1: \"v\"");
}

} // namespace

} // namespace hosts::data
