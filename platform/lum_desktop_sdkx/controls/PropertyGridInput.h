#pragma once

#include <QString>

struct PropertyGridRow;

/// What was typed into a row, judged.
struct PropertyGridInput
{
    QString value; ///< as it is stored: numbers trimmed, with a decimal point
    QString fault; ///< what is wrong, naming range and unit; empty when `value` may be stored
};

/// A decimal comma is read where the user's numbers have one and the text holds neither a second
/// comma nor a point. An empty text is no number.
[[nodiscard]] PropertyGridInput readPropertyGridInput(const PropertyGridRow& row,
                                                      const QString& typed);

/// What is wrong with a value that stands in the dictionary, which is text with a decimal point
/// and as many decimals as it has; empty when nothing is.
[[nodiscard]] QString propertyGridFault(const PropertyGridRow& row, const QString& value);

/// A number with an exponent as a user would type it, "2000000" for "2e+06"; small ones and other
/// texts as they are.
[[nodiscard]] QString withoutExponent(const PropertyGridRow& row, const QString& value);

/// The value as the grid shows it: a choice by its caption, a number with its unit and with every
/// digit that it has, a flag as nothing beside its check box.
[[nodiscard]] QString shownPropertyGridValue(const PropertyGridRow& row, const QString& value);
