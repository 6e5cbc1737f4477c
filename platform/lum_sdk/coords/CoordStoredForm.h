#pragma once

class IDictionary;

namespace lum {

/// Brings coordinate parameters into the form in which they are stored, so that equal systems have
/// equal values however they were given.
///
/// A datum shift about a pivot becomes the coordinate frame rotation that does the same, without
/// one. Keys that the projection does not use become 0, a "factor" of 0 becomes the 1 that it
/// counts as, and UTM gets its own factor, false easting and central meridian; its hemisphere is
/// told by "false_north", which stays. What is incomplete or unknown stays as it is, and so does
/// the text of a value that is right.
void toStoredForm(IDictionary& parameters);

} // namespace lum
