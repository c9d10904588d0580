#include "engine/dpw.h"

#include "engine/numbers.h"

#include <cmath>

namespace vantorel {

namespace {

// The tables print some coefficients with a power of ten; the fill multiplies
// mantissa and power at run time, as the measured table was built.
double Scaled(double mantissa, int exponent) { return mantissa * std::pow(10.0, exponent); }

struct Curve {
    double a, b, c, d, e;
};

// [count 2..8][kind 1..6]: the quartic through the five measured power levels.
Curve CurveOf(int count, int kind) {
    static const Curve kCount2[6] = {
        {Scaled(-1.22421, -6), Scaled(3.7918272, -4), -0.0416715048, 3.293001225, -36.56982906},
        {Scaled(6.4017322, -7), Scaled(-2.43602, -4), 0.0319972866, -0.3463434758, 22.13811966},
        {Scaled(1.9646724, -7), Scaled(-6.91902, -5), 0.0084238336, 0.8397173789, -0.7265982905},
        {Scaled(2.2788832, -7), Scaled(-7.242225, -5), 0.0073925442, 0.8350570655, -2.640735043},
        {Scaled(2.4412536, -7), Scaled(-7.376387, -5), 0.0073514627, 0.6943533618, -2.891623932},
        {Scaled(3.7693447, -7), Scaled(-1.192337, -4), 0.0133304672, 0.0707680912, 6.945803419},
    };
    static const Curve kCount3[6] = {
        {Scaled(3.5936137, -6), -0.0011311088, 0.1269770068, -4.640652906, 89.84964103},
        {Scaled(3.0363168, -6), Scaled(-9.383695, -4), 0.1011221584, -3.138450655, 53.83235043},
        {Scaled(5.841755, -7), Scaled(-1.914908, -4), 0.0219963877, 0.2164210399, -0.404773504},
        {Scaled(1.5350883, -7), Scaled(-6.897076, -5), 0.0103607544, 0.4893460399, -0.836273504},
        {Scaled(6.2912821, -8), Scaled(-8.643487, -6), Scaled(-6.634436, -4), 1.086396026, -16.99896154},
        {Scaled(2.3966952, -7), Scaled(-8.6551, -5), 0.0108169348, 0.1391418946, 3.292508547},
    };
    static const Curve kCount4[6] = {
        {Scaled(4.3669447, -6), -0.0013611133, 0.1501447724, -5.535894088, 93.01453419},
        {Scaled(7.6802507, -7), Scaled(-2.199234, -4), 0.0206755125, 0.622886339, -16.84182479},
        {Scaled(9.0446496, -7), Scaled(-3.151547, -4), 0.0385092325, -0.6583888034000001, 5.003794872},
        {Scaled(7.3527066, -8), Scaled(-4.136114, -5), 0.0073755635, 0.6007821652, -9.795418803},
        {Scaled(1.0665254, -6), Scaled(-3.392145, -4), 0.0381054627, -0.8167199715, 7.731376068},
        {Scaled(1.511567, -7), Scaled(-5.973151, -5), 0.0077715783, 0.2983858689, -3.433529914},
    };
    static const Curve kCount5[6] = {
        {Scaled(4.0543385, -6), -0.0012969065, 0.1456744692, -5.378271923, 84.99311539},
        {Scaled(-2.661766, -6), Scaled(8.4399157, -4), -0.0939222832, 5.627522023, -100.2142991},
        {Scaled(1.7797835, -7), Scaled(-6.464975, -5), 0.0085697892, 0.7587729345, -25.42226496},
        {Scaled(-1.922186, -6), Scaled(6.0858368, -4), -0.0680081929, 4.251512806, -77.39445727},
        {Scaled(2.0976228, -6), Scaled(-6.763973, -4), 0.0776516114, -2.78987151, 35.83906838},
        {Scaled(4.9291624, -7), Scaled(-1.5379, -4), 0.0165683581, -0.0260463675, -2.938551282},
    };
    static const Curve kCount6[6] = {
        {Scaled(4.6017048, -6), -0.001495834, 0.1714846524, -6.756318946, 102.6869145},
        {Scaled(-6.46694, -7), Scaled(1.2371891, -4), -0.001929047, 0.6807674786, -12.88678205},
        {Scaled(2.6192889, -6), Scaled(-9.186284, -4), 0.1161981444, -5.004750556, 76.63716667},
        {Scaled(1.5522256, -6), Scaled(-5.606976, -4), 0.0720808128, -2.785056282, 41.00957692},
        {Scaled(4.1188103, -6), -0.0013775409, 0.1654890051, -7.481313846, 117.5692308},
        {Scaled(1.3741994, -7), Scaled(-3.562765, -5), 0.00277001, 0.6260999288, -16.95044017},
    };
    static const Curve kCount7[6] = {
        {Scaled(9.4591316, -6), -0.0031387814, 0.3697393658, -16.74608214, 270.2547949},
        {Scaled(6.8292809, -6), -0.002418611, 0.3060797405, -14.91667053, 252.2515427},
        {Scaled(4.9912023, -6), -0.0017429208, 0.2204574011, -10.69926048, 182.0096068},
        {Scaled(5.2791339, -6), -0.0018475369, 0.231866367, -11.14541595, 186.3894017},
        {Scaled(1.2641322, -6), Scaled(-4.744036, -4), 0.0662278661, -3.145264758, 51.88619658},
        {Scaled(4.7592707, -7), Scaled(-1.751185, -4), 0.0231664635, -0.6155995014, 5.993081197},
    };
    // Eight weapons with dual cannons of either kind were never tested: zero
    // rows, which CalculateDPS turns into its "no data" answer.
    static const Curve kCount8[6] = {
        {0.0, 0.0, 0.0, 0.0, 0.0},
        {0.0, 0.0, 0.0, 0.0, 0.0},
        {Scaled(1.4925128, -6), Scaled(-6.191262, -4), 0.0945798564, -5.076672308, 96.98253846},
        {Scaled(1.8372581, -6), Scaled(-6.794563, -4), 0.0925899291, -4.42844235, 76.29847436},
        {Scaled(-1.101007, -6), Scaled(2.8704859, -4), -0.0187700037, 0.6083990741, -5.615722222},
        {Scaled(3.0360889, -6), -0.0010298098, 0.1256432444, -5.802102222, 94.10166667},
    };
    static const Curve* const kByCount[7] = {kCount2, kCount3, kCount4, kCount5, kCount6, kCount7, kCount8};
    return kByCount[count - 2][kind - 1];
}

CurveValues ReadCurves() {
    CalculatorState tables;
    FillDPWTables(tables);
    CurveValues v{};
    for (int power = 35; power <= 125; ++power)
        for (int kind = 1; kind <= 6; ++kind)
            for (int count = 2; count <= 8; ++count)
                v.at[power - 35][kind - 1][count - 2] = ReadCurve(tables, power, kind, count);
    return v;
}

} // namespace

// Read once, at start: no reading has to check that the table is filled.
const CurveValues kCurveValues = ReadCurves();

double ReadCurve(const CalculatorState& s, int power, int kind, int count) {
    const double* k = s.DPWCoefficient[kind][count];
    const double p = power;
    // std::pow, not repeated products, and strictly left-to-right sums: the
    // last digit of the rounded result depends on both.
    double sum = k[1] * std::pow(p, 4.0);
    sum = sum + k[2] * std::pow(p, 3.0);
    sum = sum + k[3] * std::pow(p, 2.0);
    sum = sum + k[4] * p;
    sum = sum + k[5];
    return Round(sum, 3);
}

void FillDPWTables(CalculatorState& s) {
    static constexpr float kSingle[6] = {135.387f, 134.039f, 126.036f, 110.938f, 96.735f, 69.41f};
    for (int kind = 1; kind <= 6; ++kind) {
        s.SingleWeaponDPW[kind] = kSingle[kind - 1];
        for (int count = 2; count <= 8; ++count) {
            const Curve q = CurveOf(count, kind);
            double* row = s.DPWCoefficient[kind][count];
            row[1] = q.a;
            row[2] = q.b;
            row[3] = q.c;
            row[4] = q.d;
            row[5] = q.e;
        }
    }
}

} // namespace vantorel
