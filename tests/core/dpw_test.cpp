#include "engine/calculator.h"

#include <gtest/gtest.h>

namespace vantorel {
namespace {

CalculatorState Tables() {
    CalculatorState s;
    FillDPWTables(s);
    return s;
}

TEST(DpwCurves, BeamArrayCheckTable) {
    const CalculatorState s = Tables();
    const int powers[5] = {35, 50, 75, 100, 125};
    const double expected[7][5] = {
        {27.62, 42.51, 67.142, 90.707, 114.3},   {19.936, 34.975, 59.093, 82.654, 106.912},
        {12.882, 26.423, 51.46, 74.552, 98.893}, {7.464, 19.035, 44.404, 66.733, 91.438},
        {5.566, 10.776, 36.518, 58.668, 83.23},  {4.488, 8.793, 28.382, 51.648, 75.595},
        {3.34, 6.879, 20.695, 44.472, 68.994},
    };
    for (int count = 2; count <= 8; ++count) {
        for (int p = 0; p < 5; ++p) {
            const DPW d = DPWCalc(s, powers[p], 5, count);
            EXPECT_EQ(d.type, DPW::Type::Double);
            EXPECT_EQ(d.dbl, expected[count - 2][p]) << "count " << count << " power " << powers[p];
        }
    }
}

TEST(DpwCurves, PathsAndEdgeCases) {
    const CalculatorState s = Tables();
    struct Case {
        const char* name;
        int power, kind, count;
        DPW::Type type;
        double value;
    } cases[] = {
        {"lone beam array at 100", 100, 5, 1, DPW::Type::Single, static_cast<double>(96.735f)},
        {"lone beam array at 50", 50, 5, 1, DPW::Type::Single, static_cast<double>(static_cast<float>(48.3675))},
        {"lone beam array at 125", 125, 5, 1, DPW::Type::Single, static_cast<double>(static_cast<float>(120.91875))},
        {"dual heavy cannons pair", 100, 1, 2, DPW::Type::Double, 132.777},
        {"dual cannons pair", 100, 2, 2, DPW::Type::Double, 127.892},
        {"dual beam bank pair", 100, 3, 2, DPW::Type::Double, 117.94},
        {"cannon pair", 100, 4, 2, DPW::Type::Double, 105.157},
        {"turret pair", 100, 6, 2, DPW::Type::Double, 65.787},
        {"untested dual heavy cannons at eight", 100, 1, 8, DPW::Type::Double, 0.0},
        {"untested dual cannons at eight", 100, 2, 8, DPW::Type::Double, 0.0},
        {"dual beam bank at eight", 100, 3, 8, DPW::Type::Double, 65.239},
        {"turret at eight", 100, 6, 8, DPW::Type::Double, 44.123},
        {"no weapons", 100, 3, 0, DPW::Type::Zero, 0.0},
        {"no weapons at low power", 35, 1, 0, DPW::Type::Zero, 0.0},
    };
    for (const Case& c : cases) {
        const DPW d = DPWCalc(s, c.power, c.kind, c.count);
        EXPECT_EQ(d.type, c.type) << c.name;
        const double got = d.type == DPW::Type::Single ? static_cast<double>(d.single) : d.dbl;
        EXPECT_EQ(got, c.value) << c.name;
    }
}

} // namespace
} // namespace vantorel
