#include "engine/numbers.h"

#include <gtest/gtest.h>

namespace vantorel {
namespace {

TEST(Numbers, RoundsHalfToEvenKeepingTheType) {
    EXPECT_EQ(Round(2.5, 0), 2.0);
    EXPECT_EQ(Round(3.5, 0), 4.0);
    EXPECT_EQ(Round(2.675f, 2), 2.67f); // the single lies just below the half
    EXPECT_EQ(Round(0.125, 2), 0.12);
}

} // namespace
} // namespace vantorel
