#include "design/DesignFields.h"

#include <QCoreApplication>

#include <algorithm>

namespace {

using enum DesignField;
using enum DesignValue;
constexpr GridKind kR = GridKind::Receiver;
constexpr GridKind kS = GridKind::Source;

// clang-format off
constexpr std::array kParameters{
    DesignParameter{kR, LineDistance, Distance, "r_line_dist", "15", QT_TRANSLATE_NOOP("DlgDesignLine", "R-Line Dist:")},
    DesignParameter{kR, LineStart, Number, "r_line_start_num", "0", QT_TRANSLATE_NOOP("DlgDesignLine", "R-Line Start No.:")},
    DesignParameter{kR, LineEnd, Number, "r_line_end_num", "1000", QT_TRANSLATE_NOOP("DlgDesignLine", "R-Line End No.:")},
    DesignParameter{kR, LineStep, Step, "r_line_step", "10", QT_TRANSLATE_NOOP("DlgDesignLine", "R-Line Step:")},
    DesignParameter{kR, LineDigits, Digits, "r_line_base", "4", QT_TRANSLATE_NOOP("DlgDesignLine", "R-Line Base:")},
    DesignParameter{kR, PointDistance, Distance, "r_pt_dist", "15", QT_TRANSLATE_NOOP("DlgDesignLine", "R-Point Dist:")},
    DesignParameter{kR, PointStart, Number, "r_pt_start_num", "0", QT_TRANSLATE_NOOP("DlgDesignLine", "R-Point Start No.:")},
    DesignParameter{kR, PointEnd, Number, "r_pt_end_num", "1000", QT_TRANSLATE_NOOP("DlgDesignLine", "R-Point End No.:")},
    DesignParameter{kR, PointStep, Step, "r_pt_step", "10", QT_TRANSLATE_NOOP("DlgDesignLine", "R-Point Step:")},
    DesignParameter{kR, PointDigits, Digits, "r_pt_base", "4", QT_TRANSLATE_NOOP("DlgDesignLine", "R-Point Base:")},
    DesignParameter{kR, FirstLine, Number, "calc_r_line_start_num", "0", QT_TRANSLATE_NOOP("DlgDesignLine", "Line Start No.:")},
    DesignParameter{kR, FirstPoint, Number, "calc_r_pt_start_num", "0", QT_TRANSLATE_NOOP("DlgDesignLine", "Point Start No.:")},
    DesignParameter{kR, StartNorth, Coordinate, "calc_r_start_north", "0", QT_TRANSLATE_NOOP("DlgDesignLine", "Start North:")},
    DesignParameter{kR, StartEast, Coordinate, "calc_r_start_east", "0", QT_TRANSLATE_NOOP("DlgDesignLine", "Start East:")},
    DesignParameter{kR, Azimuth, Angle, "calc_r_start_azi", "0", QT_TRANSLATE_NOOP("DlgDesignLine", "Azimuth:")},
    DesignParameter{kR, Reversal, Switch, "r_recvrse_recvline", "0", QT_TRANSLATE_NOOP("DlgDesignLine", "Reverse of receiving line")},
    DesignParameter{kS, LineDistance, Distance, "s_line_dist", "15", QT_TRANSLATE_NOOP("DlgDesignLine", "S-Line Dist:")},
    DesignParameter{kS, LineStart, Number, "s_line_start_num", "0", QT_TRANSLATE_NOOP("DlgDesignLine", "S-Line Start No.:")},
    DesignParameter{kS, LineEnd, Number, "s_line_end_num", "1000", QT_TRANSLATE_NOOP("DlgDesignLine", "S-Line End No.:")},
    DesignParameter{kS, LineStep, Step, "s_line_step", "10", QT_TRANSLATE_NOOP("DlgDesignLine", "S-Line Step:")},
    DesignParameter{kS, LineDigits, Digits, "s_line_base", "4", QT_TRANSLATE_NOOP("DlgDesignLine", "S-Line Base:")},
    DesignParameter{kS, PointDistance, Distance, "s_pt_dist", "15", QT_TRANSLATE_NOOP("DlgDesignLine", "S-Point Dist:")},
    DesignParameter{kS, PointStart, Number, "s_pt_start_num", "0", QT_TRANSLATE_NOOP("DlgDesignLine", "S-Point Start No.:")},
    DesignParameter{kS, PointEnd, Number, "s_pt_end_num", "1000", QT_TRANSLATE_NOOP("DlgDesignLine", "S-Point End No.:")},
    DesignParameter{kS, PointStep, Step, "s_pt_step", "10", QT_TRANSLATE_NOOP("DlgDesignLine", "S-Point Step:")},
    DesignParameter{kS, PointDigits, Digits, "s_pt_base", "4", QT_TRANSLATE_NOOP("DlgDesignLine", "S-Point Base:")},
    DesignParameter{kS, FirstLine, Number, "calc_s_line_start_num", "0", QT_TRANSLATE_NOOP("DlgDesignLine", "Line Start No.:")},
    DesignParameter{kS, FirstPoint, Number, "calc_s_pt_start_num", "0", QT_TRANSLATE_NOOP("DlgDesignLine", "Point Start No.:")},
    DesignParameter{kS, StartNorth, Coordinate, "calc_s_start_north", "0", QT_TRANSLATE_NOOP("DlgDesignLine", "Start North:")},
    DesignParameter{kS, StartEast, Coordinate, "calc_s_start_east", "0", QT_TRANSLATE_NOOP("DlgDesignLine", "Start East:")},
    DesignParameter{kS, Azimuth, Angle, "calc_s_start_azi", "0", QT_TRANSLATE_NOOP("DlgDesignLine", "Azimuth:")},
    DesignParameter{kS, Reversal, Switch, "s_recvrse_recvline", "0", QT_TRANSLATE_NOOP("DlgDesignLine", "Excitation line reversal")},
};
// clang-format on

bool isOfStart(DesignField field)
{
    return field >= FirstLine && field <= Azimuth;
}

QString kindName(GridKind kind)
{
    return kind == kR ? QCoreApplication::translate("DlgDesignLine", "Receive Line")
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
    return kParameters[(kind == kR ? 0 : half) + static_cast<std::size_t>(field)];
}

const DesignParameter* findDesignParameter(std::string_view key)
{
    const auto* const found = std::ranges::find(kParameters, key, &DesignParameter::key);
    return found == kParameters.end() ? nullptr : found;
}
