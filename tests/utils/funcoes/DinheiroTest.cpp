#include "utils/funcoes/Dinheiro.h"

#include <gtest/gtest.h>
#include <limits>

TEST(Dinheiro, RoundsHalvesAwayFromZeroWithoutBinaryNoise) {
    const struct {
        double Value;
        int Decimals;
        double Expected;
    } cases[] = {{2.675, 2, 2.68},
                 {-2.675, 2, -2.68},
                 {1.005, 2, 1.01},
                 {0.125, 2, 0.13},
                 {2.5, 0, 3},
                 {-2.5, 0, -3},
                 {2.4999, 0, 2},
                 {1.2345675, 6, 1.234568},
                 {0.1, 10, 0.1},
                 {0, 2, 0},
                 {1250, -2, 1300},
                 {-1249, -2, -1200},
                 {49, -2, 0},
                 {1e15, 2, 1e15},
                 // Less than the fifteenth digit is noise, more is value.
                 {0.4999999999999999, 0, 1},
                 {0.4999999999, 0, 0}};
    for (const auto& c : cases) {
        SCOPED_TRACE(testing::Message() << c.Value << " to " << c.Decimals);
        EXPECT_EQ(ArredondaDouble(c.Value, c.Decimals), c.Expected);
    }
    const double infinity = std::numeric_limits<double>::infinity();
    EXPECT_EQ(ArredondaDouble(-infinity, 2), -infinity);
}
