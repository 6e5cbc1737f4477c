#include "views/statistics/GroupKeyBox.h"

#include "lum_sdk/files/SystemDictionaries.h"
#include "protocol/StatusKeys.h"
#include "reports/StatisticsFigures.h"

#include <algorithm>
#include <array>

namespace {

using statistics::GroupKey;

struct Choice
{
    const char* name = ""; ///< in settings
    StatisticsTableModel::Key key;
};

constexpr std::array kChoices{
    Choice{"line", GroupKey::Line},   Choice{"day", GroupKey::Day},
    Choice{"rover", GroupKey::Rover}, Choice{"surveyor", GroupKey::Surveyor},
    Choice{"base", GroupKey::Base},   Choice{"kind", GroupKey::PointKind},
    Choice{"all", std::nullopt},
};

int chosenPlace()
{
    const auto name = get_system_ini_parameter().dictionary().text(settings::kStatisticsGroups);
    const auto found =
        std::ranges::find_if(kChoices, [&](const Choice& choice) { return name == choice.name; });
    return found == kChoices.end() ? 0 : static_cast<int>(found - kChoices.begin());
}

void store(int place)
{
    SystemParameter& settings = get_system_ini_parameter();
    settings.dictionary().set(settings::kStatisticsGroups,
                              kChoices[static_cast<std::size_t>(place)].name);
    settings.save(); // logs a failure; the choice is then kept for this session only
}

} // namespace

GroupKeyBox::GroupKeyBox(QWidget* parent) : QComboBox(parent)
{
    setObjectName(QStringLiteral("keys"));
    for (const Choice& choice : kChoices)
        addItem(choice.key ? statisticsKeyName(*choice.key) : tr("All Together"));
    setCurrentIndex(chosenPlace());
    connect(this, qOverload<int>(&QComboBox::currentIndexChanged), this, [this](int place) {
        store(place);
        Q_EMIT keyChanged();
    });
}

StatisticsTableModel::Key GroupKeyBox::key() const
{
    return kChoices[static_cast<std::size_t>(currentIndex())].key;
}
