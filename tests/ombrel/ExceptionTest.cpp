#include "kestrane/backend/InvalidIndexException.h"
#include "tests/support/QtPrinters.h"

#include <gtest/gtest.h>

using namespace pelorin::utilities;

static_assert(std::is_nothrow_copy_constructible_v<InvalidIndexException>);

TEST(ExceptionTest, KeepsItsMessageAsTextAndAsUtf8WhenItIsCopied)
{
    const Exception error = Exception(QStringLiteral("5 µs late"));
    Exception copies[] = {error, Exception(QString())};
    copies[1] = error;
    for (const Exception& copy : copies) {
        EXPECT_EQ(copy.message(), QStringLiteral("5 µs late"));
        EXPECT_STREQ(copy.what(), "5 µs late");
    }
    const InvalidIndexException index("here", 7.0, 0.0, 1.0);
    InvalidIndexException same = index;
    same = InvalidIndexException("there", 0.5, 0.0, 0.0);
    EXPECT_STREQ(same.what(), "there (given index: 0.5, legal values are between 0 and 0)");
}
