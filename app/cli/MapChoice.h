#pragma once

#include "lum_sdk/raster/BaseMap.h"
#include "map/sheet/MapDrawing.h"
#include "protocol/Outcome.h"

#include <QStringList>

class DataProcessDataManager;
class MapGround;
struct CliArguments;
struct Coloring;

/// What "render" and "print" paint: design or survey, its colours, and what lies under it.
class MapChoice
{
public:
    /// Reads the second argument, "--color-by", "--base-map" and "--overlay".
    [[nodiscard]] Outcome read(const CliArguments& arguments);
    /// Opens what lies under the data of the open project.
    [[nodiscard]] Outcome open(MapGround& ground) const;
    /// \param plainNames which names a design and results without colours have; coloured results
    ///        have those with room
    [[nodiscard]] MapDrawing drawing(DataProcessDataManager& manager,
                                     SurveyPictureOptions::Names plainNames) const;

private:
    [[nodiscard]] Outcome readColoring(const QString& name);
    [[nodiscard]] Outcome readBaseMap(const QString& name);

    bool m_isSurvey = false;
    const Coloring* m_coloring = nullptr; ///< null for no colours
    lum::BaseMap m_baseMap;               ///< without a name when there is none
    QStringList m_overlays;
};
