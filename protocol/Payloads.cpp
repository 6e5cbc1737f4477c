#include "protocol/Payloads.h"

#include "basalt_utilities/KeyList.h"
#include "basalt_utilities/Numbers.h"

#include <QString>

namespace {

QByteArray quoted(const QString& text)
{
    return QByteArray::fromStdString(basalt::quotedValue(text.toStdString()));
}

} // namespace

namespace payload {

QByteArray line(const QString& lineNumber)
{
    return "line_num=" + quoted(lineNumber);
}

QByteArray linePoint(const QString& lineNumber, const QString& pointNumber)
{
    return line(lineNumber) + ",point_num=" + quoted(pointNumber);
}

QByteArray selectedPoint(const QString& pointNumber, const QString& lineNumber)
{
    return "pointName=" + quoted(pointNumber) + ",lineName=" + quoted(lineNumber);
}

QByteArray station(int index)
{
    return "stationId=" + QByteArray::number(index);
}

QByteArray azimuth(double degrees)
{
    return "azimuth=" + QByteArray::fromStdString(basalt::formatShortest(degrees));
}

} // namespace payload
