#pragma once

#include <QString>

#include <vector>

class IDictionary;

/// A group of parameters in words.
struct ParameterGroup
{
    QString caption; ///< "Projection"
    QString text;    ///< "UTM, Central meridian 117°"
};

/// A coordinate system: what its projection uses, and the corrections that are switched on. None
/// for a project without a system.
[[nodiscard]] std::vector<ParameterGroup> coordSystemWords(const IDictionary& coordParameters);

/// Which height the elevations of its points are.
[[nodiscard]] QString heightKind(const IDictionary& coordParameters);

/// The limits in force.
[[nodiscard]] std::vector<ParameterGroup> limitWords(const IDictionary& qualityParameters);
