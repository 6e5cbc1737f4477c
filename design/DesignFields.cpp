#include "design/DesignFields.h"

#include <QCoreApplication>

#include <algorithm>

namespace {

using enum DesignField;
using enum DesignValue;
constexpr GridKind R = GridKind::Receiver;
constexpr GridKind S = GridKind::Source;

// clang-format off
constexpr std::array kParameters{
    DesignParameter{R, LineDistance, Distance, "r_line_dist", "15", QT_TRANSLATE_NOOP("DlgDesignLine", "R-Line Dist:")},
    DesignParameter{R, LineStart, Number, "r_line_start_num", "0", QT_TRANSLATE_NOOP("DlgDesignLine", "R-Line Start No.:")},
    DesignParameter{R, LineEnd, Number, "r_line_end_num", "1000", QT_TRANSLATE_NOOP("DlgDesignLine", "R-Line End No.:")},
    DesignParameter{R, LineStep, Step, "r_line_step", "10", QT_TRANSLATE_NOOP("DlgDesignLine", "R-Line Step:")},
    DesignParameter{R, LineDigits, Digits, "r_line_base", "4", QT_TRANSLATE_NOOP("DlgDesignLine", "R-Line Base:")},
    DesignParameter{R, PointDistance, Distance, "r_pt_dist", "15", QT_TRANSLATE_NOOP("DlgDesignLine", "R-Point Dist:")},
    DesignParameter{R, PointStart, Number, "r_pt_start_num", "0", QT_TRANSLATE_NOOP("DlgDesignLine", "R-Point Start No.:")},
    DesignParameter{R, PointEnd, Number, "r_pt_end_num", "1000", QT_TRANSLATE_NOOP("DlgDesignLine", "R-Point End No.:")},
    DesignParameter{R, PointStep, Step, "r_pt_step", "10", QT_TRANSLATE_NOOP("DlgDesignLine", "R-Point Step:")},
    DesignParameter{R, PointDigits, Digits, "r_pt_base", "4", QT_TRANSLATE_NOOP("DlgDesignLine", "R-Point Base:")},
    DesignParameter{R, FirstLine, Number, "calc_r_line_start_num", "0", QT_TRANSLATE_NOOP("DlgDesignLine", "Line Start No.:")},
    DesignParameter{R, FirstPoint, Number, "calc_r_pt_start_num", "0", QT_TRANSLATE_NOOP("DlgDesignLine", "Point Start No.:")},
    DesignParameter{R, StartNorth, Coordinate, "calc_r_start_north", "0", QT_TRANSLATE_NOOP("DlgDesignLine", "Start North:")},
    DesignParameter{R, StartEast, Coordinate, "calc_r_start_east", "0", QT_TRANSLATE_NOOP("DlgDesignLine", "Start East:")},
    DesignParameter{R, Azimuth, Angle, "calc_r_start_azi", "0", QT_TRANSLATE_NOOP("DlgDesignLine", "Azimuth:")},
    DesignParameter{R, Reversal, Switch, "r_recvrse_recvline", "0", QT_TRANSLATE_NOOP("DlgDesignLine", "Reverse of receiving line")},
    DesignParameter{S, LineDistance, Distance, "s_line_dist", "15", QT_TRANSLATE_NOOP("DlgDesignLine", "S-Line Dist:")},
    DesignParameter{S, LineStart, Number, "s_line_start_num", "0", QT_TRANSLATE_NOOP("DlgDesignLine", "S-Line Start No.:")},
    DesignParameter{S, LineEnd, Number, "s_line_end_num", "1000", QT_TRANSLATE_NOOP("DlgDesignLine", "S-Line End No.:")},
    DesignParameter{S, LineStep, Step, "s_line_step", "10", QT_TRANSLATE_NOOP("DlgDesignLine", "S-Line Step:")},
    DesignParameter{S, LineDigits, Digits, "s_line_base", "4", QT_TRANSLATE_NOOP("DlgDesignLine", "S-Line Base:")},
    DesignParameter{S, PointDistance, Distance, "s_pt_dist", "15", QT_TRANSLATE_NOOP("DlgDesignLine", "S-Point Dist:")},
    DesignParameter{S, PointStart, Number, "s_pt_start_num", "0", QT_TRANSLATE_NOOP("DlgDesignLine", "S-Point Start No.:")},
    DesignParameter{S, PointEnd, Number, "s_pt_end_num", "1000", QT_TRANSLATE_NOOP("DlgDesignLine", "S-Point End No.:")},
    DesignParameter{S, PointStep, Step, "s_pt_step", "10", QT_TRANSLATE_NOOP("DlgDesignLine", "S-Point Step:")},
    DesignParameter{S, PointDigits, Digits, "s_pt_base", "4", QT_TRANSLATE_NOOP("DlgDesignLine", "S-Point Base:")},
    DesignParameter{S, FirstLine, Number, "calc_s_line_start_num", "0", QT_TRANSLATE_NOOP("DlgDesignLine", "Line Start No.:")},
    DesignParameter{S, FirstPoint, Number, "calc_s_pt_start_num", "0", QT_TRANSLATE_NOOP("DlgDesignLine", "Point Start No.:")},
    DesignParameter{S, StartNorth, Coordinate, "calc_s_start_north", "0", QT_TRANSLATE_NOOP("DlgDesignLine", "Start North:")},
    DesignParameter{S, StartEast, Coordinate, "calc_s_start_east", "0", QT_TRANSLATE_NOOP("DlgDesignLine", "Start East:")},
    DesignParameter{S, Azimuth, Angle, "calc_s_start_azi", "0", QT_TRANSLATE_NOOP("DlgDesignLine", "Azimuth:")},
    DesignParameter{S, Reversal, Switch, "s_recvrse_recvline", "0", QT_TRANSLATE_NOOP("DlgDesignLine", "Excitation line reversal")},
};
// clang-format on

bool isOfStart(DesignField field)
{
    return field >= FirstLine && field <= Azimuth;
}

QString kindName(GridKind kind)
{
    return kind == R ? QCoreApplication::translate("DlgDesignLine", "Receive Line")
                     : QCoreApplication::translate("DlgDesignLine", "Send Line");
}

} // namespace

QString DesignParameter::label() const
{
    return QCoreApplication::translate("DlgDesignLine", caption);
}

QString DesignParameter::name() const
{
    QString text = label();
    while (text.endsWith(QLatin1Char(':')) || text.endsWith(QChar(0xFF1A))) // the Chinese colon
        text.chop(1);
    return isOfStart(field) ? QStringLiteral("%1 (%2)").arg(text, kindName(kind)) : text;
}

std::span<const DesignParameter> designParameters()
{
    return kParameters;
}

const DesignParameter& designParameter(GridKind kind, DesignField field)
{
    const std::size_t half = kParameters.size() / 2;
    return kParameters[(kind == R ? 0 : half) + static_cast<std::size_t>(field)];
}

const DesignParameter* findDesignParameter(std::string_view key)
{
    const auto* const found = std::ranges::find(kParameters, key, &DesignParameter::key);
    return found == kParameters.end() ? nullptr : found;
}
