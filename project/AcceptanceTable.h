#pragma once

class Acceptances;
class IDBAdapter;
class QString;

/// The table of accepted problems in a project's database, which is open. The first one that is
/// saved makes it. A later form may add columns that may be empty; its rows are kept.
namespace AcceptanceTable {

inline constexpr int kForm = 1; ///< of the rows that this version writes
inline constexpr const char* kName = "ProblemAcceptance";

/// Replaces what `acceptances` holds; without a table there is none. A table that cannot be read
/// keeps nobody from opening the project.
/// \returns what could not be read, and why, for the user; mostly empty
[[nodiscard]] QString read(IDBAdapter& database, Acceptances& acceptances);

/// Makes the table tell what `acceptances` hold; one that does already is not touched. A table that
/// does not take them stays as it is, and keeps nobody from saving the points.
/// \param notice  gets why they are not written, for the user; mostly stays as it is
/// \returns false when the transaction is lost
bool write(IDBAdapter& database, const Acceptances& acceptances, QString& notice);

} // namespace AcceptanceTable
