#include "views/tables/ColumnChoice.h"

#include "basalt_utilities/IDictionary.h"
#include "basalt_utilities/KeyList.h"
#include "lum_sdk/Text.h"
#include "protocol/StatusKeys.h"
#include "views/tables/SurveyTableColumns.h"

namespace {

/// The known keys of a setting, each once.
QStringList keysIn(const IDictionary& settings, const char* setting)
{
    QStringList keys;
    std::string_view rest = settings.text(setting);
    while (!rest.empty()) {
        const QString key = lum::toQString(basalt::trimmed(next_word3(rest, ',')));
        if (surveyTableKeys().contains(key) && !keys.contains(key))
            keys << key;
    }
    return keys;
}

} // namespace

ColumnChoice columnChoice(const IDictionary& settings)
{
    ColumnChoice choice{keysIn(settings, settings::kTableColumns),
                        keysIn(settings, settings::kHiddenColumns)};
    for (const QString& key : surveyTableKeys()) {
        if (!choice.order.contains(key))
            choice.order << key;
    }
    if (choice.hidden.size() == choice.order.size())
        choice.hidden.removeOne(choice.order.first());
    return choice;
}

void setColumnChoice(IDictionary& settings, const ColumnChoice& choice)
{
    const bool isFirstOrder = choice.order == surveyTableKeys(); // a later version may have another
    settings.set(settings::kTableColumns,
                 isFirstOrder ? "" : choice.order.join(QLatin1Char(',')).toStdString());
    settings.set(settings::kHiddenColumns, choice.hidden.join(QLatin1Char(',')).toStdString());
}
