#include "project/PointCorrection.h"

#include "basalt_utilities/Numbers.h"
#include "exchange/CsvFields.h"
#include "model/PointNumber.h"

#include <QCoreApplication>

#include <algorithm>
#include <cmath>
#include <string_view>

namespace {

using Field = CorrectionFault::Field;

/// More decimals than any file holds, and fewer than a double is exact to.
constexpr int kExactDecimals = 8;

struct PointCorrection
{
    Q_DECLARE_TR_FUNCTIONS(PointCorrection)
};

bool isControl(char c)
{
    return (c >= 0 && c < ' ') || c == '\x7f';
}

QString textFault(std::string_view text)
{
    if (text.find(',') != std::string_view::npos)
        return PointCorrection::tr("A comma cannot stand here: it separates the fields of CSV "
                                   "files. Write a semicolon.");
    if (std::any_of(text.begin(), text.end(), isControl))
        return PointCorrection::tr("A line break, a tab or another control character cannot stand "
                                   "here.");
    return {};
}

QString nameFault(std::string_view text)
{
    if (text.find_first_of(",\"") != std::string_view::npos)
        return PointCorrection::tr("A line or point number has no comma and no quote.");
    return textFault(text);
}

QString lineFault(std::string_view text)
{
    return text.empty() ? PointCorrection::tr("The line number is missing.") : nameFault(text);
}

QString pointFault(std::string_view text)
{
    if (text.empty())
        return PointCorrection::tr("The point number is missing.");
    if (isCheckPoint(text) && writtenPointNumber(text) != text)
        return PointCorrection::tr("\"%1\" begins as the number of a check point, which is a C and "
                                   "eight characters: files hold no more of it than \"%2\".")
            .arg(QString::fromUtf8(text.data(), static_cast<int>(text.size())),
                 QString::fromStdString(std::string(writtenPointNumber(text))));
    return nameFault(text);
}

QString antennaFault(double heightM)
{
    if (std::fabs(heightM) <= kMostAntennaHeightM) // not so of what is no number
        return {};
    return PointCorrection::tr("The antenna height is a number from -%1 to %1 metres.")
        .arg(kMostAntennaHeightM);
}

QString numberFault(double value)
{
    return std::isfinite(value) ? QString() : PointCorrection::tr("This is no number.");
}

/// The first sentence of a row of checks.
class FirstFault
{
public:
    template <class Value, class Check>
    void look(Field field, const std::optional<Value>& value, const Check& check)
    {
        if (m_fault || !value)
            return;
        if (QString text = check(*value); !text.isEmpty())
            m_fault = {field, std::move(text)};
    }
    [[nodiscard]] const std::optional<CorrectionFault>& fault() const { return m_fault; }

private:
    std::optional<CorrectionFault> m_fault;
};

/// The result's name after the correction; of a check point that moves, without a counter.
PointName wantedName(const PointName& name, const SurveyCorrection& correction)
{
    PointName wanted = name;
    if (correction.lineNumber)
        wanted.line = withoutBlanks(*correction.lineNumber);
    if (correction.pointNumber)
        wanted.point = withoutBlanks(*correction.pointNumber);
    if (wanted != name && isCheckPoint(wanted.point)) {
        const bool stays =
            wanted.line == name.line && wanted.point == writtenPointNumber(name.point);
        wanted.point = stays ? name.point : std::string(writtenPointNumber(wanted.point));
    }
    return wanted;
}

double lowered(double heightM, double byM)
{
    const double moved = basalt::parseNumber(basalt::formatFixed(heightM - byM, kExactDecimals));
    return moved + 0.0; // no minus before 0
}

/// \returns whether `to` has become another value
template <class Value, class Corrected>
bool take(Value& to, const std::optional<Corrected>& corrected)
{
    if (!corrected || to == *corrected)
        return false;
    to = *corrected;
    return true;
}

bool takeText(std::string& to, const std::optional<std::string>& corrected)
{
    return corrected && take(to, std::optional(std::string(withoutBlanks(*corrected))));
}

bool takeAntennaHeight(SurveyPoint& point, const SurveyCorrection& correction)
{
    if (!correction.antennaHeightM || *correction.antennaHeightM == point.antennaHeight)
        return false;
    if (correction.movesHeights) {
        const PointHeights heights = movedHeights(point, *correction.antennaHeightM);
        point.elevation = heights.elevation;
        point.altitude = heights.altitude;
        point.seaHeight = heights.seaHeight;
    }
    point.antennaHeight = *correction.antennaHeightM;
    return true;
}

/// All but the name.
bool takeValues(SurveyPoint& point, const SurveyCorrection& correction)
{
    bool isChanged = takeAntennaHeight(point, correction);
    isChanged |= take(point.pointMark, correction.pointMark);
    isChanged |= takeText(point.surveyor, correction.surveyor);
    isChanged |= takeText(point.remarks, correction.remarks);
    isChanged |= takeText(point.obstacle, correction.obstacle);
    return isChanged;
}

} // namespace

std::optional<CorrectionFault> faultOf(const SurveyCorrection& correction)
{
    FirstFault first;
    const auto trimmed = [](QString (*check)(std::string_view)) {
        return [check](const std::string& text) { return check(withoutBlanks(text)); };
    };
    first.look(Field::LineNumber, correction.lineNumber, trimmed(lineFault));
    first.look(Field::PointNumber, correction.pointNumber, trimmed(pointFault));
    first.look(Field::AntennaHeight, correction.antennaHeightM, antennaFault);
    first.look(Field::Remarks, correction.remarks, trimmed(textFault));
    first.look(Field::Surveyor, correction.surveyor, trimmed(textFault));
    first.look(Field::Obstacle, correction.obstacle, trimmed(textFault));
    return first.fault();
}

std::optional<CorrectionFault> faultOf(const DesignCorrection& correction)
{
    FirstFault first;
    first.look(Field::Elevation, correction.elevationM, numberFault);
    first.look(Field::Azimuth, correction.azimuthDeg, numberFault);
    return first.fault();
}

PointHeights movedHeights(const SurveyPoint& point, double antennaHeightM)
{
    const double addedM = antennaHeightM - point.antennaHeight;
    PointHeights heights(point);
    for (double* height : {&heights.elevation, &heights.altitude, &heights.seaHeight})
        *height = lowered(*height, addedM);
    return heights;
}

const SurveyPoint* replacedBy(const SurveyPoints& points, const PointName& name,
                              const SurveyCorrection& correction)
{
    const PointName wanted = wantedName(name, correction);
    const bool isFree = wanted == name || isCheckPoint(wanted.point);
    return isFree ? nullptr : points.find(wanted.line, wanted.point);
}

SurveyPoints corrected(const SurveyPoints& points, PointName& name,
                       const SurveyCorrection& correction)
{
    const SurveyPoint* const standing = points.find(name.line, name.point);
    Q_ASSERT(standing != nullptr);
    SurveyPoint point = *standing;
    const bool isChanged = takeValues(point, correction);
    PointName wanted = wantedName(name, correction);
    SurveyPoints alone;
    if (wanted == name) {
        if (isChanged)
            alone.set(std::move(point));
        return alone;
    }
    point.lineNumber = std::move(wanted.line);
    point.pointNumber = std::move(wanted.point);
    const SurveyPoint& filed = SurveyPointFiler(alone, &points).file(std::move(point));
    name = {filed.lineNumber, filed.pointNumber};
    return alone;
}

DesignPoints corrected(const DesignPoint& point, const DesignCorrection& correction)
{
    DesignPoint other = point;
    DesignPoints alone;
    const bool isHigher = take(other.elevation, correction.elevationM);
    if (take(other.azimuth, correction.azimuthDeg) || isHigher)
        alone.set(std::move(other));
    return alone;
}
