#pragma once

#include "lum_sdk/raster/Legend.h"
#include "model/SurveyPoint.h"

#include <QRgb>
#include <QString>

#include <cstdint>
#include <functional>
#include <vector>

/// Classes of survey results, each with a colour.
///
/// The first class is the most important one: it lies on top of the others on the map, and stands
/// on top in the legend.
class ResultColors
{
public:
    struct Class
    {
        QString caption;
        QRgb color = 0;
    };
    /// The place of a result's class.
    using ClassOf = std::function<std::uint8_t(const SurveyPoint& point)>;

    /// Colours nothing.
    ResultColors() = default;
    /// \param title what the colours tell, translated as the captions are
    ResultColors(QString title, std::vector<Class> classes, ClassOf classOf)
        : m_title(std::move(title)), m_classes(std::move(classes)), m_classOf(std::move(classOf))
    {
    }

    [[nodiscard]] bool isNone() const { return m_classes.empty(); }
    [[nodiscard]] const std::vector<Class>& classes() const { return m_classes; }
    /// Not for `isNone`. For the thread that made this object.
    [[nodiscard]] const ClassOf& classOf() const { return m_classOf; }
    /// The colours of the classes.
    [[nodiscard]] std::vector<QRgb> colors() const;

    /// What a class means: "Verdict: off its place".
    [[nodiscard]] QString text(std::uint8_t place) const;
    /// The legend of so many results of each class; classes without a result are left out.
    [[nodiscard]] lum::Legend legend(const std::vector<std::size_t>& counts) const;

private:
    QString m_title;
    std::vector<Class> m_classes;
    ClassOf m_classOf;
};
