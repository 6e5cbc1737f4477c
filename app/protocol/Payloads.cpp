#include "app/protocol/Payloads.h"

#include "basalt_utilities/FixedDecimals.h"
#include "basalt_utilities/KeyList.h"
#include "basalt_utilities/Numbers.h"

#include <QString>

#include <cstring>

namespace {

constexpr char kProgressTail[] = ",is_exec=0";

double percentOf(std::size_t done, std::size_t total)
{
    return total == 0 ? 100.0 : static_cast<double>(done) * 100.0 / static_cast<double>(total);
}

QByteArray quoted(const QString& text)
{
    return QByteArray::fromStdString(basalt::quotedValue(text.toStdString()));
}

} // namespace

namespace payload {

std::string progress(std::string_view caption, double percent)
{
    Progress progress;
    progress.setCaption(caption);
    return progress.at(percent);
}

void Progress::setCaption(std::string_view caption)
{
    if (m_valueAt != 0 && caption == m_caption)
        return;
    m_caption = caption;
    m_text = "text=" + basalt::quotedValue(caption) + ",value=";
    m_valueAt = m_text.size();
    m_text.resize(m_valueAt + basalt::kFixedSize + sizeof kProgressTail);
}

const char* Progress::at(double percent)
{
    char* const end = basalt::writeGeneral(&m_text[m_valueAt], percent);
    std::memcpy(end, kProgressTail, sizeof kProgressTail); // with its closing NUL
    return m_text.c_str();
}

const char* Progress::at(std::size_t done, std::size_t total)
{
    if (total > kMostSteps || done > total)
        return at(percentOf(done, total));
    if (m_steps.size() != total + 1)
        m_steps.assign(total + 1, Step());
    Step& step = m_steps[done];
    if (step[0] == '\0') {
        at(percentOf(done, total));
        std::memcpy(step.data(), &m_text[m_valueAt], step.size());
    } else {
        std::memcpy(&m_text[m_valueAt], step.data(), step.size());
    }
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
