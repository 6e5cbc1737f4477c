#include "exchange/ExportColumns.h"

#include "basalt_utilities/IDictionary.h"
#include "basalt_utilities/KeyList.h"
#include "lum_sdk/Text.h"
#include "model/SurveyColumns.h"
#include "protocol/StatusKeys.h"

namespace {

QStringList allKeys()
{
    QStringList keys;
    for (const SurveyColumn& column : surveyColumns())
        keys << QString::fromLatin1(column.key);
    return keys;
}

} // namespace

QStringList exportColumns(const IDictionary& settings)
{
    const QStringList all = allKeys();
    QStringList keys;
    std::string_view rest = settings.text(settings::kExportColumns);
    while (!rest.empty()) {
        const QString key = lum::toQString(basalt::trimmed(next_word3(rest, ',')));
        if (all.contains(key) && !keys.contains(key))
            keys << key;
    }
    return keys.isEmpty() ? all : keys;
}

void setExportColumns(IDictionary& settings, const QStringList& keys)
{
    const bool isAll = keys == allKeys(); // those of a later version, too
    settings.set(settings::kExportColumns, isAll ? "" : keys.join(QLatin1Char(',')).toStdString());
}

QStringList exportCaptions(const QStringList& keys)
{
    const QStringList all = allKeys();
    const QStringList captions = surveyCaptions();
    QStringList chosen;
    for (const QString& key : keys) {
        if (const int index = all.indexOf(key); index >= 0)
            chosen << captions[index];
    }
    return chosen;
}
