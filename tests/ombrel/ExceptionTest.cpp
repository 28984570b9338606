#include "kestrane/backend/InvalidIndexException.h"
#include "tests/ombrel/NeighbourLibrary.h"

#include <gtest/gtest.h>

#include <string>
#include <type_traits>

using namespace pelorin::utilities;

static_assert(std::is_nothrow_copy_constructible_v<InvalidIndexException>);

TEST(ExceptionTest, KeepsItsMessageAsTextAndAsUtf8)
{
    const Exception error(QStringLiteral("5 µs late"));
    EXPECT_EQ(error.message(), QStringLiteral("5 µs late"));
    EXPECT_EQ(error.what(), std::string("5 µs late"));
}

TEST(ExceptionTest, AnInvalidIndexNamesTheUpperBoundFirstAndIsCaughtAcrossLibraries)
{
    const struct
    {
        double index;
        const char* message;
    } cases[] = {
        {-0.25, "Neighbour::at (given index: -0.25, legal values are between 1e+06 and 0)"},
        {1234567.0,
         "Neighbour::at (given index: 1.23457e+06, legal values are between 1e+06 and 0)"},
    };
    for (const auto& [index, message] : cases) {
        try {
            tests::neighbour::throwInvalidIndex(index);
            FAIL() << "nothing was thrown for " << index;
        } catch (const InvalidIndexException& error) {
            EXPECT_STREQ(error.what(), message);
        }
    }
    EXPECT_THROW(tests::neighbour::throwInvalidIndex(0.0), Exception);
}
