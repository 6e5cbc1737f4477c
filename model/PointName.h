#pragma once

#include <string>

/// What names a point within its container.
struct PointName
{
    std::string line;
    std::string point;

    friend bool operator==(const PointName&, const PointName&) = default;
};
