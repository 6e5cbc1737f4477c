#pragma once

#include "plots/PlotData.h"

#include <qwt_scale_draw.h>
#include <qwt_scale_engine.h>

#include <memory>

/// Results along an axis, line after line, each at a whole number from 0.
struct Stations
{
    struct Line
    {
        double before = 0; ///< half a unit before its first result
        QString name;
    };

    std::vector<Line> lines;
    std::vector<QString> points; ///< the numbers of the results

    /// \param places ascending, so that those of a line follow each other
    [[nodiscard]] static std::shared_ptr<const Stations>
    of(const PlotData& data, const std::vector<std::uint32_t>& places);

    /// What stands beside a tick.
    [[nodiscard]] QString label(double value) const;
};

/// Puts ticks before lines, and where few lines are seen, at results.
class StationEngine : public QwtLinearScaleEngine
{
public:
    explicit StationEngine(std::shared_ptr<const Stations> stations)
        : m_stations(std::move(stations))
    {
    }

    [[nodiscard]] QwtScaleDiv divideScale(double from, double to, int mostTicks, int mostMinor,
                                          double step) const override;

private:
    std::shared_ptr<const Stations> m_stations;
};

class StationDraw : public QwtScaleDraw
{
public:
    explicit StationDraw(std::shared_ptr<const Stations> stations) : m_stations(std::move(stations))
    {
    }

    [[nodiscard]] QwtText label(double value) const override
    {
        return {m_stations->label(value), QwtText::PlainText};
    }

private:
    std::shared_ptr<const Stations> m_stations;
};
