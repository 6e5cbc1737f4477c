#include "reports/StatisticsTerms.h"

#include <QCoreApplication>

#include <array>

namespace {

struct Term
{
    const char* figure;
    const char* meaning;
};

constexpr std::array kTerms{
    Term{QT_TRANSLATE_NOOP("StatisticsReport", "Designed"),
         QT_TRANSLATE_NOOP("StatisticsReport",
                           "Design points: of a line, a kind of point, or the whole project.")},
    Term{QT_TRANSLATE_NOOP("StatisticsReport", "Staked"),
         QT_TRANSLATE_NOOP("StatisticsReport", "Results whose line and point number are exactly "
                                               "those of a design point.")},
    Term{QT_TRANSLATE_NOOP("StatisticsReport", "Staked (%)"),
         QT_TRANSLATE_NOOP("StatisticsReport", "Of the design points of the line; of days, rovers, "
                                               "surveyors and bases: of the whole design.")},
    Term{QT_TRANSLATE_NOOP("StatisticsReport", "Left"),
         QT_TRANSLATE_NOOP("StatisticsReport", "Design points without a result in the whole "
                                               "project, whatever period and surveyors are "
                                               "chosen.")},
    Term{QT_TRANSLATE_NOOP("StatisticsReport", "Not planned"),
         QT_TRANSLATE_NOOP("StatisticsReport", "Results that are no design point, no resurvey and "
                                               "no repeat.")},
    Term{QT_TRANSLATE_NOOP("StatisticsReport", "Resurvey, repeat"),
         QT_TRANSLATE_NOOP("StatisticsReport", "A result with the resurvey code in its number, or "
                                               "with a number that begins with C.")},
    Term{QT_TRANSLATE_NOOP("StatisticsReport", "First measurements"),
         QT_TRANSLATE_NOOP("StatisticsReport", "Staked and not planned: all figures but those of "
                                               "points measured twice are of these.")},
    Term{QT_TRANSLATE_NOOP("StatisticsReport", "Within limits"),
         QT_TRANSLATE_NOOP("StatisticsReport", "First measurements that pass every test of the "
                                               "quality check, by the limits above.")},
    Term{QT_TRANSLATE_NOOP("StatisticsReport", "Over limit"),
         QT_TRANSLATE_NOOP("StatisticsReport", "First measurements that fail a test. A value on "
                                               "its limit passes.")},
    Term{QT_TRANSLATE_NOOP("StatisticsReport", "Not judged"),
         QT_TRANSLATE_NOOP("StatisticsReport", "First measurements that fail no test, but have no "
                                               "design position, or a value that is no number.")},
    Term{QT_TRANSLATE_NOOP("StatisticsReport", "Within limits (%)"),
         QT_TRANSLATE_NOOP("StatisticsReport",
                           "Within limits, of those within limits and over limit.")},
    Term{QT_TRANSLATE_NOOP("StatisticsReport", "dE, dN, dH"),
         QT_TRANSLATE_NOOP("StatisticsReport", "Measured minus design, in metres: to the east, to "
                                               "the north, upwards.")},
    Term{QT_TRANSLATE_NOOP("StatisticsReport", "2D"),
         QT_TRANSLATE_NOOP("StatisticsReport", "The distance in the plane from the design, or "
                                               "between two measurements, in metres.")},
    Term{QT_TRANSLATE_NOOP("StatisticsReport", "Mean"),
         QT_TRANSLATE_NOOP("StatisticsReport", "The sum by the number of values. A value that is "
                                               "no number is left out, here and below.")},
    Term{QT_TRANSLATE_NOOP("StatisticsReport", "Std. dev."),
         QT_TRANSLATE_NOOP("StatisticsReport", "Standard deviation of a sample, about the mean, "
                                               "with n - 1.")},
    Term{QT_TRANSLATE_NOOP("StatisticsReport", "RMS"),
         QT_TRANSLATE_NOOP("StatisticsReport", "The root of the mean of the squares, with n.")},
    Term{QT_TRANSLATE_NOOP("StatisticsReport", "95 %"),
         QT_TRANSLATE_NOOP("StatisticsReport", "By nearest rank: of n magnitudes in ascending "
                                               "order, number 0.95 n, rounded up.")},
    Term{QT_TRANSLATE_NOOP("StatisticsReport", "Maximum"),
         QT_TRANSLATE_NOOP("StatisticsReport", "The value farthest from 0, with its sign.")},
    Term{QT_TRANSLATE_NOOP("StatisticsReport", "Shift"),
         QT_TRANSLATE_NOOP("StatisticsReport", "The differences whose mean is farther from 0 than "
                                               "3 standard deviations / root of n, and than "
                                               "0.02 m.")},
    Term{QT_TRANSLATE_NOOP("StatisticsReport", "RMS / root of 2"),
         QT_TRANSLATE_NOOP("StatisticsReport", "The precision of a single measurement, from the "
                                               "differences of two that are equally good.")},
    Term{QT_TRANSLATE_NOOP("StatisticsReport", "Second - first"),
         QT_TRANSLATE_NOOP("StatisticsReport", "Of points measured twice, the resurvey or repeat "
                                               "minus the first measurement.")},
    Term{QT_TRANSLATE_NOOP("StatisticsReport", "Beyond tolerance"),
         QT_TRANSLATE_NOOP("StatisticsReport", "A resurvey whose difference is above "
                                               "re_north_diff, re_east_diff or re_elev_diff.")},
    Term{QT_TRANSLATE_NOOP("StatisticsReport", "Distribution"),
         QT_TRANSLATE_NOOP("StatisticsReport", "2D distances of first measurements; one on the "
                                               "end of a class belongs to it.")},
};

} // namespace

std::vector<FigureDefinition> statisticsTerms()
{
    std::vector<FigureDefinition> definitions;
    definitions.reserve(std::size(kTerms));
    for (const Term& term : kTerms)
        definitions.push_back({QCoreApplication::translate("StatisticsReport", term.figure),
                               QCoreApplication::translate("StatisticsReport", term.meaning)});
    return definitions;
}
