#pragma once

#include "lum_sdk/events/Payload.h"

#include <QByteArray>

class QString;

/// The payloads of the product's events.
namespace payload {

/// "line_num=LINE"
[[nodiscard]] QByteArray line(const QString& lineNumber);
/// "line_num=LINE,point_num=POINT"
[[nodiscard]] QByteArray linePoint(const QString& lineNumber, const QString& pointNumber);
/// "pointName=POINT,lineName=LINE"
[[nodiscard]] QByteArray selectedPoint(const QString& pointNumber, const QString& lineNumber);
/// "stationId=INDEX"
[[nodiscard]] QByteArray station(int index);

/// "azimuth=DEGREES", with all digits
[[nodiscard]] QByteArray azimuth(double degrees);

} // namespace payload
