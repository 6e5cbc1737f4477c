#pragma once

#include "protocol/Outcome.h"

class QPrinter;
struct MapSheet;
struct SheetWatch;

/// Gives a printer the paper of a sheet, before the user is asked about the printer.
void setPaper(QPrinter& printer, const MapSheet& sheet);

/// Prints a sheet, true to its scale, on the paper of `setPaper`.
Outcome printSheet(QPrinter& printer, const MapSheet& sheet, SheetWatch& watch);
