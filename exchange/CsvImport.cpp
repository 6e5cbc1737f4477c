#include "exchange/CsvImport.h"

#include "exchange/CsvFields.h"

#include <QCoreApplication>

void noteUndecoded(const CsvInput& input, std::string_view line, ImportSummary& summary)
{
    for (const std::size_t number : input.undecodedFields()) {
        summary.note(summary.undecoded, [&] {
            return QCoreApplication::translate("CsvImport", "Field %1, \"%2\", is damaged.")
                .arg(QString::number(number), shownField(fieldAt(line, number)));
        });
    }
}
