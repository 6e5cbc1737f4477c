#include "design/ui/DesignEdit.h"

#include "design/DesignFaults.h"
#include "design/DesignGrid.h"
#include "design/ui/DesignTexts.h"
#include "lum_desktop_sdkx/controls/FaultColors.h"
#include "lum_sdk/coords/Angles.h"
#include "lum_sdk/DpiScale.h"
#include "lum_sdk/Text.h"

#include <QCoreApplication>
#include <QPalette>

#include <cmath>

namespace {

constexpr int kWidth = 84;
constexpr int kDegreeDecimals = 11; // hold an angle of dd.mmss with 9 decimals
constexpr double kFullCircle = 360;

QString withoutZeros(QString number)
{
    if (!number.contains(QLatin1Char('.')))
        return number;
    while (number.endsWith(QLatin1Char('0')))
        number.chop(1);
    if (number.endsWith(QLatin1Char('.')))
        number.chop(1);
    return number;
}

QString degreesText(double dms)
{
    return withoutZeros(QString::number(convetFromAngle(dms), 'f', kDegreeDecimals));
}

} // namespace

DesignEdit::DesignEdit(const DesignParameter& parameter, QWidget* parent)
    : QLineEdit(parent), m_parameter(parameter), m_hint(DesignTexts::hint(parameter))
{
    setObjectName(QString::fromLatin1(parameter.key));
    setAccessibleName(parameter.name());
    setMinimumWidth(dpi_scaled(kWidth));
    setFault({});
}

void DesignEdit::setValue(const QString& value)
{
    QString text = value;
    if (!faultOf(m_parameter, value)) {
        text = withoutZeros(lum::toQString(storedText(m_parameter, value)));
        if (m_parameter.value == DesignValue::Angle && m_format == AzimuthFormat::Degrees)
            text = degreesText(value.toDouble());
    }
    setText(text);
    setCursorPosition(0);
}

QString DesignEdit::value() const
{
    if (m_parameter.value != DesignValue::Angle || m_format != AzimuthFormat::Degrees)
        return text();
    bool isNumber = false;
    const double degrees = text().toDouble(&isNumber);
    if (!isNumber || !(std::fabs(degrees) <= kFullCircle))
        return text();
    return QString::number(covertToAngle(degrees), 'f', 9);
}

void DesignEdit::setFormat(AzimuthFormat format)
{
    if (m_format == format)
        return;
    const QString angle = value();
    m_format = format;
    setValue(angle);
}

void DesignEdit::setFault(const QString& sentence)
{
    QPalette colours; // that of the desktop
    if (!sentence.isEmpty())
        colours.setColor(QPalette::Base, faultBase(colours));
    setPalette(colours);
    setToolTip(sentence.isEmpty() ? m_hint : sentence);
}
