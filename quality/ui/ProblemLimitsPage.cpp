#include "quality/ui/ProblemLimitsPage.h"

#include "lum_desktop_sdkx/controls/PropertyGridCtrl.h"
#include "lum_sdk/DpiScale.h"
#include "quality/problems/ProblemLimits.h"

#include <QCoreApplication>
#include <QLabel>
#include <QVBoxLayout>

namespace {

QString translated(const char* text)
{
    return *text == 0 ? QString() : QCoreApplication::translate("ProblemLimits", text);
}

PropertyGridRow rowOf(const ProblemLimit& limit)
{
    using Editor = PropertyGridRow::Editor;
    PropertyGridRow row;
    row.key = QString::fromLatin1(limit.key);
    row.caption = translated(limit.caption);
    row.description = translated(limit.description);
    row.editor = limit.isWhole ? Editor::Integer : Editor::Number;
    row.unit = translated(limit.unit);
    row.minimum = 0;
    row.maximum = limit.largest;
    row.fallback = QString::fromLatin1(limit.fallback);
    if (limit.choices.empty())
        return row;
    row.editor = Editor::Choice;
    for (const int choice : limit.choices)
        row.choices.push_back({QString::number(choice), choice == 0 ? ProblemLimitsPage::tr("Off")
                                                                    : limit.choiceText(choice)});
    return row;
}

PropertyGridLayout makeLayout()
{
    PropertyGridLayout layout;
    for (const ProblemLimitGroup& group : problemLimitGroups()) {
        layout.groups.push_back({translated(group.caption), {}});
        for (const ProblemLimit& limit : group.limits)
            layout.groups.back().rows.push_back(rowOf(limit));
    }
    return layout;
}

} // namespace

ProblemLimitsPage::ProblemLimitsPage(const IDictionary& parameters, QWidget* parent)
    : QWidget(parent), m_grid(new PropertyGridCtrl(this))
{
    auto* const hint =
        new QLabel(tr("Find Problems looks at these limits. 0 switches one off, where its "
                      "description does not say otherwise."),
                   this);
    hint->setWordWrap(true);
    m_grid->init(makeLayout(), parameters);
    m_grid->setResizeMode(PropertyGridCtrl::ResizeMode::ResizeToContents);
    m_grid->setHeaderVisible(false);

    auto* const layout = new QVBoxLayout(this);
    const int margin = dpi_scaled(5);
    layout->setContentsMargins(0, margin, 0, 0);
    layout->setSpacing(margin);
    layout->addWidget(hint);
    layout->addWidget(m_grid, 1);
}

bool ProblemLimitsPage::hasFaults()
{
    return m_grid->hasFaults();
}

void ProblemLimitsPage::goToFault()
{
    m_grid->goToFault();
}

void ProblemLimitsPage::store(IDictionary& parameters)
{
    const basalt::Dictionary entered = m_grid->getData();
    for (const ProblemLimitGroup& group : problemLimitGroups()) {
        for (const ProblemLimit& limit : group.limits) {
            if (const auto value = entered.find(limit.key))
                parameters.set(limit.key, *value);
        }
    }
}
