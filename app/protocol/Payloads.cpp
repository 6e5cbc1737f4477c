#include "app/protocol/Payloads.h"

#include "basalt_utilities/FixedDecimals.h"
#include "basalt_utilities/KeyList.h"
#include "basalt_utilities/Numbers.h"

#include <QString>

#include <cstring>

namespace {

constexpr char kProgressTail[] = ",is_exec=0";

QByteArray quoted(const QString& text)
{
    return QByteArray::fromStdString(basalt::quotedValue(text.toStdString()));
}

} // namespace

namespace payload {

std::string progress(std::string_view caption, double percent)
{
    return Progress().at(caption, percent);
}

const char* Progress::at(std::string_view caption, double percent)
{
    if (m_valueAt == 0 || caption != m_caption) {
        m_caption = caption;
        m_text = "text=" + basalt::quotedValue(caption) + ",value=";
        m_valueAt = m_text.size();
        m_text.resize(m_valueAt + basalt::kFixedSize + sizeof kProgressTail);
    }
    char* const end = basalt::writeGeneral(m_text.data() + m_valueAt, percent);
    std::memcpy(end, kProgressTail, sizeof kProgressTail); // with its closing NUL
    return m_text.c_str();
}

std::string started(std::string_view caption)
{
    return "text=" + basalt::quotedValue(caption) + ",value=0";
}

std::string busy(std::string_view caption)
{
    return "text=" + basalt::quotedValue(caption) + ",scroll=1";
}

std::string position(double north, double east)
{
    return "N=" + basalt::formatShortest(north) + " E=" + basalt::formatShortest(east);
}

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

} // namespace payload
