#pragma once

#include <QColor>
#include <QPalette>

#include <cstddef>

/// The colours of a plot, on the screen or on paper.
struct PlotLook
{
    QPalette palette; ///< of axes and texts
    QColor paper;     ///< under the data
    QColor text;
    QColor faint; ///< of grids and frames
    QColor plain; ///< of data without classes
    QColor good;
    QColor bad;
    QColor unknown;
    QColor others;
    QColor limit;  ///< of limits and tolerances
    QColor figure; ///< of what is computed: ellipses, means
    QColor selected;
    bool isDark = false;

    /// As the program looks.
    [[nodiscard]] static PlotLook onScreen(const QPalette& palette);
    /// Dark on white.
    [[nodiscard]] static PlotLook onPaper();

    /// How many classes have colours of their own.
    static constexpr std::size_t kClasses = 6;
    /// The colour of a class; `others` from `kClasses` on.
    [[nodiscard]] QColor ofClass(std::size_t place) const;
};
