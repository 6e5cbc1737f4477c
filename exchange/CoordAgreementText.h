#pragma once

#include <QString>

class CoordCompare;
class IDictionary;
struct CoordAgreement;

/// What separates the two systems, a sentence with its size. Further lines tell of rows that do not
/// follow it and of rows that could not be compared, if there are any.
/// \param current coordinate parameters of the project
/// \param file    those of the results; without any, their unit is the project's
[[nodiscard]] QString agreementText(const CoordCompare& comparison, const CoordAgreement& agreement,
                                    const IDictionary& current, const IDictionary& file);
