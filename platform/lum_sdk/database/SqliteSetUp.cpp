#include "lum_sdk/database/SqliteSetUp.h"

#include "basalt_utilities/ILogger.h"

#include <sqlite3.h>

void lum::setUpDatabase()
{
    // While SQLite counts its memory, every allocation of every connection takes the same lock.
    const int result = sqlite3_config(SQLITE_CONFIG_MEMSTATUS, 0);
    if (result != SQLITE_OK)
        basalt::logWarning("SQLite is not set up for several threads: it is in use already");
}
