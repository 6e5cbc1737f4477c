#include "quality/ui/DlgRepeatChoice.h"

#include "basalt_utilities/Numbers.h"
#include "exchange/ShownTimes.h"
#include "lum_desktop_sdkx/controls/ChoiceBox.h"
#include "lum_desktop_sdkx/controls/CustomTableWidget.h"
#include "lum_desktop_sdkx/controls/FaultColors.h"
#include "lum_desktop_sdkx/controls/PropertyGridInput.h"
#include "lum_desktop_sdkx/controls/PropertyGridLayout.h"
#include "lum_desktop_sdkx/IDesktopHost.h"
#include "lum_sdk/coords/ICoordTransform.h"
#include "lum_sdk/coords/LengthUnit.h"
#include "lum_sdk/coords/ProjectCoordTransform.h"
#include "lum_sdk/GroupedNumber.h"
#include "project/DataProcessDataManager.h"
#include "protocol/Events.h"
#include "quality/RepeatChoiceModel.h"
#include "quality/ResurveyTolerances.h"

#include <QLabel>
#include <QLineEdit>
#include <QPalette>
#include <QPointer>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>

namespace {

using Rule = RepeatChoice::Rule;

constexpr double kMostToleranceM = 1000;
constexpr int kToleranceDecimals = 4;

DataProcessDataManager& manager()
{
    return DataProcessDataManager::instance();
}

double planeUnitM()
{
    return lum::lengthUnitOf(get_project_coord_transform().parameters()).metres;
}

/// The largest of the tolerances between two measurements of a point.
double firstToleranceM()
{
    const auto tolerances =
        ResurveyTolerances::from(manager().qualityParameters(), planeUnitM()).metres;
    return std::max(0.0, *std::ranges::max_element(tolerances));
}

/// What resolving all points would do, in a sentence or two.
QString finding(const std::vector<RepeatedPoint>& points, const RepeatChoice& choice)
{
    if (points.empty())
        return DlgRepeatChoice::tr("No point was measured more than once.");
    if (!choice.isWhole())
        return DlgRepeatChoice::tr("The tolerance is a number from 0 to %1 metres.")
            .arg(kMostToleranceM);
    std::size_t results = 0;
    std::size_t left = 0;
    std::size_t removed = 0;
    for (const RepeatedPoint& point : points) {
        results += point.measured.size();
        if (choice.leaves(point))
            ++left;
        else
            removed += point.measured.size() - 1;
    }
    const auto counted = [](const QString& text, auto... counts) {
        return text.arg(lum::groupedNumber(counts)...);
    };
    QStringList sentences{counted(DlgRepeatChoice::tr("Points measured more than once: %1, with "
                                                      "%2 results."),
                                  points.size(), results)};
    if (removed != 0)
        sentences << counted(
            DlgRepeatChoice::tr("Results to be removed, which stay in the history: %1. They no "
                                "longer count as check shots of their crews and days."),
            removed);
    if (left != 0)
        sentences << counted(
            DlgRepeatChoice::tr("Points that stay as they are, too far apart for a mean: %1."),
            left);
    return sentences.join(QLatin1Char(' '));
}

CheckResult resultOf(const std::vector<RepeatedPoint>& points, const RepeatChoice& choice)
{
    return {makeRepeatChoiceModel(repeatChoiceRows(points, choice, shownTimes(), planeUnitM())),
            finding(points, choice)};
}

} // namespace

DlgRepeatChoice& DlgRepeatChoice::open(IDesktopHost& host)
{
    static QPointer<DlgRepeatChoice> present;
    if (present == nullptr)
        present = new DlgRepeatChoice(host); // deletes itself when it is closed
    present->show();
    present->raise();
    present->activateWindow();
    return *present;
}

DlgRepeatChoice::DlgRepeatChoice(IDesktopHost& host)
    : ResultList(host, kRepeatChoiceList, resultOf(manager().repeatedPoints(), {}),
                 {tr("Resolve Repeats"), QSize(960, 450), Points::Survey}),
      m_rule(new ChoiceBox(this)),
      m_toleranceLabel(new QLabel(tr("if they differ by at &most"), this)),
      m_tolerance(new QLineEdit(this)), m_resolveSelected(new QPushButton(this)),
      m_resolveAll(new QPushButton(this)),
      m_subscription(*this, "REFRESH_SURVEY_LAYER,REFRESH_SURVEY_TABLE", host.eventManager())
{
    addChoice();
    addButtons();
    m_refresh.setSingleShot(true);
    connect(&m_refresh, &QTimer::timeout, this, &DlgRepeatChoice::refresh);
    refresh();
    table().setFocus();
}

void DlgRepeatChoice::addChoice()
{
    for (const QString& rule :
         {tr("The first"), tr("The last"), tr("The most accurate"), tr("The weighted mean")})
        m_rule->addItem(rule);
    m_rule->setToolTip(tr("The most accurate: a fixed solution before others, then the smallest "
                          "HRMS and VRMS. The mean is weighted by HRMS and VRMS."));
    m_tolerance->setText(QString::fromStdString(basalt::formatShortest(firstToleranceM())));
    m_tolerance->setToolTip(tr("Points whose measurements differ by more, on the plane or in "
                               "height, stay as they are."));
    auto* const rule = new QLabel(tr("&Of several measurements stays:"), this);
    rule->setBuddy(m_rule);
    m_toleranceLabel->setBuddy(m_tolerance);
    auto* const row = new QHBoxLayout;
    for (QWidget* const each :
         std::initializer_list<QWidget*>{rule, m_rule, m_toleranceLabel, m_tolerance})
        row->addWidget(each);
    row->addWidget(new QLabel(tr("m"), this));
    row->addStretch(1);
    mainLayout().insertLayout(0, row);
    connect(m_rule, qOverload<int>(&QComboBox::currentIndexChanged), this,
            &DlgRepeatChoice::refresh);
    connect(m_tolerance, &QLineEdit::textChanged, this, &DlgRepeatChoice::refresh);
}

void DlgRepeatChoice::addButtons()
{
    auto* const close = new QPushButton(tr("Close"), this);
    auto* const row = new QHBoxLayout;
    row->addStretch(1);
    for (QPushButton* const button : {m_resolveSelected, m_resolveAll, close}) {
        button->setAutoDefault(false); // Enter in the list or in a field resolves nothing
        row->addWidget(button);
    }
    mainLayout().addLayout(row);
    connect(m_resolveSelected, &QPushButton::clicked, this, &DlgRepeatChoice::resolveSelected);
    connect(m_resolveAll, &QPushButton::clicked, this, &DlgRepeatChoice::resolveAll);
    connect(close, &QPushButton::clicked, this, &QDialog::close);
    connect(table().selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &DlgRepeatChoice::showState);
}

RepeatChoice DlgRepeatChoice::choice() const
{
    PropertyGridRow row;
    row.editor = PropertyGridRow::Editor::Number;
    row.minimum = 0;
    row.maximum = kMostToleranceM;
    row.decimals = kToleranceDecimals;
    const PropertyGridInput input = readPropertyGridInput(row, m_tolerance->text());
    return {static_cast<Rule>(m_rule->currentIndex()),
            input.fault.isEmpty() ? input.value.toDouble() : -1};
}

void DlgRepeatChoice::handleEvent(const char* /*eventName*/, const char* /*payload*/,
                                  int /*reserved*/)
{
    m_refresh.start(0);
}

void DlgRepeatChoice::refresh()
{
    std::vector<PointName> selected;
    if (m_revision == manager().surveyPoints().revision()) { // else they may be gone
        for (const int row : table().selectedRows()) {
            const SurveyPoint& first = *m_points[static_cast<std::size_t>(row)].measured.front();
            selected.push_back({first.lineNumber, first.pointNumber});
        }
    }
    m_points = manager().repeatedPoints();
    m_revision = manager().surveyPoints().revision();
    setResult(resultOf(m_points, choice()));
    table().widenColumn(kRepeatStaysColumn);
    selectPointsOf(PointNames(selected));
    showState();
}

void DlgRepeatChoice::showState()
{
    const RepeatChoice chosen = choice();
    const bool isMean = chosen.rule == Rule::WeightedMean;
    m_tolerance->setEnabled(isMean);
    QPalette colours; // that of the desktop
    if (!chosen.isWhole())
        colours.setColor(QPalette::Base, faultBase(colours));
    m_tolerance->setPalette(colours);
    m_toleranceLabel->setEnabled(isMean);
    const auto isOpen = [&](const RepeatedPoint& point) { return !chosen.leaves(point); };
    const auto all = std::ranges::count_if(m_points, isOpen);
    const std::vector<int> rows = table().selectedRows();
    const auto selected = std::ranges::count_if(
        rows, [&](int row) { return isOpen(m_points[static_cast<std::size_t>(row)]); });
    const auto show = [](QPushButton& button, const QString& text, auto count) {
        button.setText(text.arg(lum::groupedNumber(count)));
        button.setEnabled(count > 0);
    };
    show(*m_resolveSelected, tr("Resolve &Selected (%1)"), selected);
    show(*m_resolveAll, tr("Resolve &All (%1)"), all);
}

void DlgRepeatChoice::selectPointsOf(const PointNames& results)
{
    QItemSelection selection;
    const QAbstractItemModel& model = *table().model();
    for (std::size_t i = 0; i < m_points.size(); ++i) {
        const auto line = results.lines().find(m_points[i].name.line);
        const auto isAsked = [&](const SurveyPoint* point) {
            return line != results.lines().end() &&
                   std::ranges::binary_search(line->second, point->pointNumber);
        };
        if (!std::ranges::any_of(m_points[i].measured, isAsked))
            continue;
        const int row = static_cast<int>(i);
        selection.select(model.index(row, 0), model.index(row, model.columnCount() - 1));
    }
    table().selectionModel()->select(selection, QItemSelectionModel::ClearAndSelect);
    if (!selection.isEmpty())
        table().scrollTo(selection.front().topLeft());
}

void DlgRepeatChoice::resolveAll()
{
    std::vector<const RepeatedPoint*> points;
    for (const RepeatedPoint& point : m_points)
        points.push_back(&point);
    resolve(points);
}

void DlgRepeatChoice::resolveSelected()
{
    std::vector<const RepeatedPoint*> points;
    for (const int row : table().selectedRows())
        points.push_back(&m_points[static_cast<std::size_t>(row)]);
    resolve(points);
}

void DlgRepeatChoice::resolve(const std::vector<const RepeatedPoint*>& points)
{
    if (m_revision != manager().surveyPoints().revision()) { // what was shown is not so any more
        refresh();
        m_host.tell(tr("The results have changed: nothing was resolved."));
        return;
    }
    ResolvedRepeats resolved = resolveRepeats(points, choice());
    const QString told =
        tr("Points resolved: %1. Results removed: %2. Left as they are: %3. Ctrl+Z takes it back.")
            .arg(lum::groupedNumber(resolved.results.pointCount()),
                 lum::groupedNumber(resolved.removed), lum::groupedNumber(resolved.left));
    manager().resolveRepeats(std::move(resolved));
    refresh();
    m_host.eventManager().publish(events::kRefreshSurveyLayer, nullptr, 0);
    m_host.tell(told);
}
