#include "tests/ombrel/NeighbourLibrary.h"

#include <gtest/gtest.h>

using namespace pelorin;
using utilities::Singleton;

TEST(SingletonTest, IsOneObjectInAllLibrariesOfAProcess)
{
    EXPECT_EQ(&Singleton<variables::QuantityManager>::instance(),
              tests::neighbour::quantityManager());
    EXPECT_EQ(&Singleton<utilities::TranslationManager>::instance(),
              tests::neighbour::translationManager());
}
