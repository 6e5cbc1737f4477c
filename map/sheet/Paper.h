#pragma once

#include <QSizeF>
#include <QString>

#include <span>

/// A size of paper.
struct Paper
{
    const char* name = nullptr; ///< "A4", as it is typed and shown
    double widthMm = 0;         ///< upright: the shorter side
    double heightMm = 0;

    [[nodiscard]] QSizeF sizeMm(bool isLandscape) const
    {
        return isLandscape ? QSizeF(heightMm, widthMm) : QSizeF(widthMm, heightMm);
    }
};

/// All sizes, the usual ones first.
[[nodiscard]] std::span<const Paper> papers();
/// Whatever the case of the letters. Null when there is none of this name.
[[nodiscard]] const Paper* findPaper(const QString& name);
/// "A4, A3, ..."
[[nodiscard]] QString paperNames();
