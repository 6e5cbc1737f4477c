#include "app/cli/CalculateAzimuth.h"

#include "app/cli/CliArguments.h"
#include "design/Azimuth.h"

#include <array>
#include <cstdio>

Outcome calculateAzimuth(const CliArguments& arguments)
{
    std::array<double, 4> places{}; // north and east of both
    for (std::size_t i = 0; i < places.size(); ++i) {
        const QString& text = arguments.places[static_cast<int>(i)];
        const auto coordinate = readCoordinate(text);
        if (!coordinate)
            return Outcome::refused(
                QStringLiteral("\"%1\" is no %2 of the %3 place: a number with a decimal point, at "
                               "most 1000000000")
                    .arg(text, i % 2 == 0 ? QStringLiteral("NORTH") : QStringLiteral("EAST"),
                         i < 2 ? QStringLiteral("first") : QStringLiteral("second")));
        places.at(i) = *coordinate;
    }
    const Azimuth azimuth = azimuthBetween(places[0], places[1], places[2], places[3]);
    const auto format = arguments.options.contains(QStringLiteral("--dms"))
                            ? lum::AngleFormat::DegreesMinutesSeconds
                            : lum::AngleFormat::Degrees;
    std::printf("azimuth: %s\nlength: %s\n", qUtf8Printable(azimuthText(azimuth.degrees, format)),
                qUtf8Printable(lengthText(azimuth.length)));
    return Outcome::done();
}
