#pragma once

#include "quality/problems/Problem.h"

#include <QIcon>

/// The sign of a severity, which tells it without a colour as well.
[[nodiscard]] inline QIcon severityIcon(Severity severity)
{
    switch (severity) {
    case Severity::Error:
        return QIcon::fromTheme(QStringLiteral("data-error"));
    case Severity::Warning:
        return QIcon::fromTheme(QStringLiteral("data-warning"));
    default:
        return QIcon::fromTheme(QStringLiteral("data-information"));
    }
}
