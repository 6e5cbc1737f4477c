#pragma once

#include <QString>

struct PropertyGridRow;

/// The result of checking what was typed into a row.
struct PropertyGridInput
{
    QString value; ///< to be stored; a number has no blanks around it, and a decimal point; an
                   ///< angle is in decimal degrees
    QString fault; ///< what is wrong, with range and unit; empty when `value` may be stored
};

/// Checks what was typed. A comma is read as the decimal point when the user's language writes it
/// so, or the range of a number has no thousands, and the text holds no second comma and no point.
/// An empty text is no number. An angle may be given with minutes and seconds (`readAngle`).
[[nodiscard]] PropertyGridInput readPropertyGridInput(const PropertyGridRow& row,
                                                      const QString& typed);

/// What is wrong with a value of the dictionary; empty when nothing is. Numbers there have a
/// decimal point and any number of decimals.
[[nodiscard]] QString propertyGridFault(const PropertyGridRow& row, const QString& value);

/// A number with an exponent as a user would type it: "2000000" for "2e+06". Small numbers and
/// other texts are returned as they are.
[[nodiscard]] QString withoutExponent(const PropertyGridRow& row, const QString& value);

/// The text that the grid shows for a value: the caption of a choice; a number with all its digits
/// and its unit; nothing for a flag, which has a check box.
[[nodiscard]] QString shownPropertyGridValue(const PropertyGridRow& row, const QString& value);
