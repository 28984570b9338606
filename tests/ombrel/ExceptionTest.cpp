#include "kestrane/backend/InvalidIndexException.h"
#include "tests/support/QtPrinters.h"

#include <gtest/gtest.h>

using namespace pelorin::utilities;

static_assert(std::is_nothrow_copy_constructible_v<InvalidIndexException>);

TEST(ExceptionTest, KeepsItsMessageAsTextAndAsUtf8WhenItIsCopied)
{
    const Exception error = Exception(QStringLiteral("5 µs late"));
    const Exception copy = error;
    EXPECT_EQ(copy.message(), QStringLiteral("5 µs late"));
    EXPECT_STREQ(copy.what(), "5 µs late");
}
