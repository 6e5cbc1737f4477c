#pragma once

class IDictionary;

namespace lum {

/// Brings coordinate parameters into the form in which they are stored, so that equal systems have
/// equal values however they were given.
///
/// A datum shift about a pivot becomes the same shift as a coordinate frame rotation without a
/// pivot. Keys that the projection does not use become 0, a "factor" of 0 becomes 1, and UTM gets
/// its own factor, false easting and central meridian; "false_north", which tells its hemisphere,
/// stays. A system in another unit than metres gets it as `kLengthUnitKey`. Values that
/// are incomplete or unknown stay as they are, and so does the text of a value that is right.
void toStoredForm(IDictionary& parameters);

} // namespace lum
