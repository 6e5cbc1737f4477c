#include "quality/colors/ColorPalette.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <vector>

namespace {

using Triple = std::array<double, 3>;
using Matrix = std::array<Triple, 3>;

/// What eyes see that lack a kind of cone, in linear RGB (Machado, Oliveira and Fernandes, 2009,
/// table 1, severity 1.0); the first are complete.
constexpr std::array<Matrix, 4> kEyes{{
    {{{1, 0, 0}, {0, 1, 0}, {0, 0, 1}}},
    {{{0.152286, 1.052583, -0.204868},
      {0.114503, 0.786281, 0.099216},
      {-0.003882, -0.048116, 1.051998}}},
    {{{0.367322, 0.860646, -0.227968},
      {0.280085, 0.672501, 0.047413},
      {-0.011820, 0.042940, 0.968881}}},
    {{{1.255528, -0.076749, -0.178779},
      {-0.078411, 0.930809, 0.147602},
      {0.004733, 0.691367, 0.303900}}},
}};

Triple times(const Matrix& matrix, const Triple& value)
{
    Triple result{};
    for (std::size_t row = 0; row < 3; ++row) {
        for (std::size_t i = 0; i < 3; ++i)
            result[row] += matrix[row][i] * value[i];
        result[row] = std::clamp(result[row], 0.0, 1.0);
    }
    return result;
}

/// IEC 61966-2-1.
Triple linear(QRgb color)
{
    const auto channel = [](int value) {
        const double share = value / 255.0;
        return share <= 0.04045 ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4);
    };
    return {channel(qRed(color)), channel(qGreen(color)), channel(qBlue(color))};
}

/// CIE 1976 L*a*b* under D65.
Triple lab(const Triple& rgb)
{
    constexpr Matrix kToXyz{{{0.4124564, 0.3575761, 0.1804375},
                             {0.2126729, 0.7151522, 0.0721750},
                             {0.0193339, 0.1191920, 0.9503041}}};
    constexpr Triple kWhite{0.95047, 1, 1.08883};
    Triple f{};
    for (std::size_t i = 0; i < 3; ++i) {
        double value = 0;
        for (std::size_t k = 0; k < 3; ++k)
            value += kToXyz[i][k] * rgb[k];
        value /= kWhite[i];
        f[i] = value > 216.0 / 24389 ? std::cbrt(value) : (24389.0 / 27 * value + 16) / 116;
    }
    return {116 * f[1] - 16, 500 * (f[0] - f[1]), 200 * (f[1] - f[2])};
}

/// How much two colours differ for the eyes that see them worst.
double smallestDifference(QRgb a, QRgb b)
{
    double smallest = 1e9;
    for (const Matrix& eye : kEyes) {
        const Triple one = lab(times(eye, linear(a)));
        const Triple other = lab(times(eye, linear(b)));
        smallest =
            std::min(smallest, std::hypot(one[0] - other[0], one[1] - other[1], one[2] - other[2]));
    }
    return smallest;
}

/// WCAG 2, of 1 to 21.
double contrast(QRgb a, QRgb b)
{
    const auto luminance = [](QRgb color) {
        const Triple rgb = linear(color);
        return 0.2126 * rgb[0] + 0.7152 * rgb[1] + 0.0722 * rgb[2] + 0.05;
    };
    return std::max(luminance(a), luminance(b)) / std::min(luminance(a), luminance(b));
}

void expectDistinct(const std::vector<QRgb>& colors)
{
    constexpr double kEnough = 17; // a pure red and a green of equal weight have 12
    for (std::size_t i = 0; i < colors.size(); ++i) {
        for (std::size_t k = 0; k < i; ++k)
            EXPECT_GT(smallestDifference(colors[i], colors[k]), kEnough)
                << std::hex << colors[i] << ' ' << colors[k];
    }
}

} // namespace

TEST(ColorPalette, AllEyesTellTheColorsApart)
{
    std::vector<QRgb> distinct(palette::kDistinct.begin(), palette::kDistinct.end());
    distinct.insert(distinct.end(), {palette::kOthers, palette::kUnknown});
    expectDistinct(distinct);
    std::vector<QRgb> rising(palette::kRising.begin(), palette::kRising.end());
    rising.insert(rising.end(), {palette::kBeyond, palette::kUnknown});
    expectDistinct(rising);
}

TEST(ColorPalette, ColorsAreSeenOnPaperAndInDarkTables)
{
    constexpr QRgb kDarkBase = 0xff232629;
    EXPECT_GT(contrast(palette::kEdge, kDarkBase), 7);
    std::vector<QRgb> colors(palette::kDistinct.begin(), palette::kDistinct.end());
    colors.insert(colors.end(), palette::kRising.begin(), palette::kRising.end());
    for (const QRgb color : colors) {
        EXPECT_GT(contrast(color, 0xffffffff), 2.1) << std::hex << color;
        EXPECT_GT(contrast(color, palette::kEdge), 1.5) << std::hex << color;
    }
}
