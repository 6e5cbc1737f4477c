#pragma once

#include <string>

class Acceptances;
class IDBAdapter;
class QString;

/// The table of accepted problems in a project's database, which is open. The first one that is
/// saved makes it. A later form may add columns that may be empty; its rows are kept.
namespace AcceptanceTable {

inline constexpr int kForm = 1; ///< of the rows that this version writes
inline constexpr const char* kName = "ProblemAcceptance";

/// Replaces what `acceptances` holds; without a table there is none.
/// \returns whether it succeeded; the adapter says why it did not
bool read(IDBAdapter& database, Acceptances& acceptances);

/// Makes the table tell what `acceptances` hold. One that does already is not touched, nor one of a
/// newer version that this one cannot write; the log says so.
/// \returns whether it succeeded; the adapter says why it did not
bool write(IDBAdapter& database, const Acceptances& acceptances);

/// What the table has that this version cannot show, for the user; empty when there is nothing.
[[nodiscard]] QString notice(IDBAdapter& database);

} // namespace AcceptanceTable
