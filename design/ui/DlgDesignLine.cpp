#include "design/ui/DlgDesignLine.h"

#include "basalt_utilities/Dictionary.h"
#include "design/Azimuth.h"
#include "design/DesignFaults.h"
#include "design/DesignGenerator.h"
#include "design/ui/DesignSummary.h"
#include "design/ui/DesignTexts.h"
#include "design/ui/GridForm.h"
#include "design/ui/GridStart.h"
#include "design/ui/NoteLabel.h"
#include "lum_desktop_sdkx/controls/ChoiceBox.h"
#include "lum_desktop_sdkx/dialogs/LumMessageBox.h"
#include "lum_desktop_sdkx/dialogs/ScreenFit.h"
#include "lum_desktop_sdkx/IDesktopHost.h"
#include "lum_sdk/coords/Angles.h"
#include "lum_sdk/events/EventNames.h"
#include "lum_sdk/events/Payload.h"
#include "lum_sdk/events/PlatformEvents.h"
#include "map/ui/PlacePick.h"
#include "project/DataProcessDataManager.h"
#include "protocol/Events.h"

#include <QCoreApplication>
#include <QFormLayout>
#include <QGroupBox>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QPushButton>
#include <QStackedWidget>
#include <QVBoxLayout>

#include <algorithm>
#include <cmath>
#include <cstring>

namespace {

constexpr int kAzimuthDecimals = 9; // of dd.mmss
constexpr double kDegree = 3.14159265358979323846 / 180;

/// A step that is no whole number counts as a step of 0.
bool isBadStep(GridForm& form, const DesignFault& fault)
{
    const DesignParameter& parameter = designParameter(fault.kind, fault.field);
    return parameter.value == DesignValue::Step &&
           faultOf(parameter, form.edit(fault.field).value()).has_value();
}

} // namespace

DlgDesignLine::DlgDesignLine(IDesktopHost& host)
    : Dialog(host.dialogParent()), m_host(host), m_forms{new GridForm(GridKind::Receiver, this),
                                                         new GridForm(GridKind::Source, this)},
      m_kinds(new ChoiceBox(this)), m_pages(new QStackedWidget(this)),
      m_summary(new DesignSummary(this)), m_outcome(new NoteLabel(2, this)),
      m_pick(new PlacePick(host, this)), m_preview(host),
      m_subscription(*this,
                     lum::eventNames({events::kAzimuthHandedOver, events::kRefreshDesignLayer,
                                      events::kSettingViewFinished}),
                     host.eventManager()),
      m_closing(*this, host.eventManager())
{
    setWindowTitle(tr("Design Line Dialog"));
    setAttribute(Qt::WA_DeleteOnClose);
    QVBoxLayout* const rows = makeMainLayout();
    rows->addLayout(makeFields());
    rows->addWidget(m_outcome);
    rows->addLayout(makeButtons());
    for (GridForm* const form : m_forms)
        form->show(DataProcessDataManager::instance().designParameters());
    watchForms();
    orderTabs();
    refresh();
    const int width = layout()->totalMinimumSize().width(); // leaves the map most room
    resize(width, layout()->totalHeightForWidth(width));
    moveIntoCorner();
    DesignEdit& first = m_forms[0]->edit(DesignField::LineDistance);
    first.setFocus();
    first.selectAll();
}

QBoxLayout* DlgDesignLine::makeFields()
{
    auto* const columns = new QHBoxLayout;
    for (GridForm* const form : m_forms) {
        auto* const column = new QVBoxLayout;
        column->addWidget(form->lines());
        column->addWidget(form->points());
        column->addStretch(1);
        columns->addLayout(column);
    }
    auto* const last = new QVBoxLayout;
    last->addWidget(makeStartBlock());
    last->addWidget(m_summary);
    last->addStretch(1);
    columns->addLayout(last, 1);
    return columns;
}

QWidget* DlgDesignLine::makeStartBlock()
{
    auto* const block = new QGroupBox(tr("Start"), this);
    m_kinds->addItem(tr("Receive Line"));
    m_kinds->addItem(tr("Send Line"));
    connect(m_kinds, qOverload<int>(&QComboBox::currentIndexChanged), this,
            &DlgDesignLine::cbChanged);
    for (GridForm* const form : m_forms)
        m_pages->addWidget(form->start());
    auto* const rows = new QVBoxLayout(block);
    auto* const kind = new QFormLayout;
    kind->addRow(tr("Line Type:"), m_kinds);
    rows->addLayout(kind);
    rows->addWidget(m_pages);
    return block;
}

QBoxLayout* DlgDesignLine::makeButtons()
{
    auto* const row = new QHBoxLayout;
    auto* const show = new QPushButton(tr("Show on Map"), this);
    show->setAutoDefault(false);
    show->setToolTip(tr("Zoom the map to the grid of the line type above"));
    connect(show, &QPushButton::clicked, this, [this] { m_preview.bringIntoView(); });
    row->addWidget(show);
    row->addStretch(1);
    m_ok = addButton(tr("OK"), tr("Replace the whole design by both grids"), *row);
    m_save = addButton(tr("Save"), tr("Keep the parameters; the design stays as it is"), *row);
    m_calcR =
        addButton(tr("Calc R"),
                  tr("Replace the whole design, source points too, by the receiver grid"), *row);
    m_calcS =
        addButton(tr("Calc S"),
                  tr("Replace the whole design, receiver points too, by the source grid"), *row);
    m_cancel = addButton(tr("Cancel"), tr("Change nothing"), *row);
    return row;
}

QPushButton* DlgDesignLine::addButton(const QString& text, const QString& tip, QBoxLayout& row)
{
    auto* const button = new QPushButton(text, this);
    button->setAutoDefault(false);
    button->setToolTip(tip);
    connect(button, &QPushButton::clicked, this, &DlgDesignLine::onBtnClicked);
    row.addWidget(button);
    return button;
}

void DlgDesignLine::watchForms()
{
    for (GridForm* const form : m_forms) {
        connect(form, &GridForm::changed, this, &DlgDesignLine::refresh);
        connect(form->start(), &GridStart::formatChosen, this, &DlgDesignLine::setFormat);
        connect(form->start(), &GridStart::placeWanted, this, [this] { m_pick->start(1); });
        connect(form->start(), &GridStart::azimuthWanted, this, [this] { m_pick->start(2); });
    }
    connect(m_pick, &PlacePick::picked, this, &DlgDesignLine::takePlaces);
}

/// From the groups of the receivers to those of the sources, and then to the start block.
void DlgDesignLine::orderTabs()
{
    QWidget* before = &m_forms[0]->edit(DesignField::PointDigits);
    for (const DesignParameter& parameter : designParameters()) {
        if (parameter.kind != GridKind::Source || parameter.field > DesignField::PointDigits)
            continue;
        QWidget* const next = &m_forms[1]->edit(parameter.field);
        setTabOrder(before, next);
        before = next;
    }
    setTabOrder(before, m_kinds);
}

// --- what is shown ---

GridForm& DlgDesignLine::formInView()
{
    return *m_forms.at(static_cast<std::size_t>(m_pages->currentIndex()));
}

void DlgDesignLine::cbChanged(int index)
{
    m_pages->setCurrentIndex(index);
    refresh();
}

void DlgDesignLine::setFormat(AzimuthFormat format)
{
    for (GridForm* const form : m_forms)
        form->start()->setFormat(format);
}

void DlgDesignLine::refresh()
{
    std::vector<DesignGrid> grids;
    for (GridForm* const form : m_forms) {
        form->judge();
        if (form->grid())
            grids.push_back(*form->grid());
    }
    m_summary->show(*m_forms[0], *m_forms[1]);
    const DesignPoints& design = DataProcessDataManager::instance().designPoints();
    QString outcome = DesignTexts::loss(design.lineCount(), design.pointCount());
    if (grids.size() == m_forms.size())
        outcome += QLatin1Char('\n') + DesignTexts::comparison(grids[0], grids[1]);
    m_outcome->say(outcome);
    if (isVisible())
        showOnMap(std::move(grids));
}

void DlgDesignLine::showOnMap(std::vector<DesignGrid> grids)
{
    if (&formInView() == m_forms[1])
        std::reverse(grids.begin(), grids.end()); // the map goes to the first one
    m_preview.show(grids);
    DataProcessDataManager& manager = DataProcessDataManager::instance();
    const bool isEmpty =
        manager.designPoints().pointCount() + manager.surveyPoints().pointCount() == 0;
    if (isEmpty && !m_preview.isInView()) // the map has nothing else to show
        m_preview.bringIntoView();
}

void DlgDesignLine::handleEvent(const char* eventName, const char* payload, int /*reserved*/)
{
    if (std::strcmp(eventName, events::kAzimuthHandedOver) == 0) {
        basalt::Dictionary values;
        payload::read(payload, values);
        takeAzimuth(values.number("azimuth"));
        return;
    }
    refresh(); // the design is another one, or the map
}

void DlgDesignLine::takeAzimuth(double degrees)
{
    DesignEdit& edit = formInView().edit(DesignField::Azimuth);
    edit.setValue(QString::number(covertToAngle(foldedAzimuth(degrees)), 'f', kAzimuthDecimals));
    edit.setFocus();
    edit.selectAll();
}

/// One place is the start; two give the azimuth.
void DlgDesignLine::takePlaces(const QVector<PickedPlace>& places)
{
    GridForm& form = formInView();
    const PickedPlace& first = places.first();
    if (places.size() == 1) {
        const auto show = [&](DesignField field, double value) {
            form.edit(field).setValue(QString::number(value, 'f', QLocale::FloatingPointShortest));
        };
        show(DesignField::StartNorth, first.north);
        show(DesignField::StartEast, first.east);
        if (!first.point.isEmpty())
            m_host.tell(tr("The start is the position of point %1.").arg(first.point));
        return;
    }
    const double north = places.last().north - first.north;
    const double east = places.last().east - first.east;
    if (std::hypot(north, east) > 0)
        takeAzimuth(std::atan2(east, north) / kDegree);
    else
        m_host.tell(tr("Both places are the same. The azimuth stays as it was."));
}

bool DlgDesignLine::event(QEvent* event)
{
    const bool isHandled = Dialog::event(event);
    if (event->type() == QEvent::LayoutRequest && isVisible() &&
        layout()->totalHeightForWidth(width()) > height()) {
        resize(width(), layout()->totalHeightForWidth(width()));
        desktop::fitToScreen(*this);
    }
    return isHandled;
}

void DlgDesignLine::keyPressEvent(QKeyEvent* event)
{
    if (event->key() != Qt::Key_Return && event->key() != Qt::Key_Enter) {
        Dialog::keyPressEvent(event);
        return;
    }
    if (auto* const button = qobject_cast<QPushButton*>(focusWidget())) {
        button->click();
    } else if (focusWidget() != nullptr) {
        QKeyEvent tab(QEvent::KeyPress, Qt::Key_Tab, Qt::NoModifier);
        QCoreApplication::sendEvent(focusWidget(), &tab);
    }
}

// --- what is done ---

void DlgDesignLine::onBtnClicked()
{
    const QObject* const button = sender();
    if (button == m_cancel) {
        reject();
        return;
    }
    if (!hasGoodFields())
        return;
    if (button == m_save) {
        DataProcessDataManager::instance().setDesignParameters(parameters());
        reject(); // nothing was generated
        return;
    }
    generate(button == m_calcR   ? DesignLines::Receiver
             : button == m_calcS ? DesignLines::Source
                                 : DesignLines::Both);
}

bool DlgDesignLine::hasGoodFields()
{
    refresh();
    const DesignFault* first = nullptr;
    for (GridForm* const form : m_forms) {
        for (const DesignFault& fault : form->faults()) {
            if (isBadStep(*form, fault)) {
                refuse(fault, true);
                return false;
            }
            if (first == nullptr)
                first = &fault;
        }
    }
    if (first != nullptr)
        refuse(*first, false);
    return first == nullptr;
}

basalt::Dictionary DlgDesignLine::parameters() const
{
    basalt::Dictionary parameters(DataProcessDataManager::instance().designParameters());
    for (const GridForm* const form : m_forms)
        form->store(parameters);
    return parameters;
}

void DlgDesignLine::refuse(const DesignFault& fault, bool isBadStep)
{
    LumMessageBox::information(this, tr("注意"), isBadStep ? tr("步长禁止输入0。") : fault.text);
    const bool isOfReceivers = fault.kind == GridKind::Receiver;
    DesignEdit& edit = m_forms.at(isOfReceivers ? 0 : 1)->edit(fault.field);
    if (fault.field >= DesignField::FirstLine)
        m_kinds->setCurrentIndex(isOfReceivers ? 0 : 1);
    edit.setFocus();
    edit.selectAll();
}

void DlgDesignLine::generate(DesignLines lines)
{
    QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    Outcome outcome = Outcome::done();
    DataProcessDataManager::instance().generateDesign(lines, parameters(), &outcome);
    QGuiApplication::restoreOverrideCursor();
    if (!outcome.isDone()) {
        LumMessageBox::error(this, windowTitle(), outcome.text());
        return;
    }
    m_host.tell(outcome.text());
    accept();
}

void DlgDesignLine::showEvent(QShowEvent* event)
{
    Dialog::showEvent(event);
    refresh();
}

void DlgDesignLine::done(int result)
{
    m_preview.clear();
    Dialog::done(result);
}
