#include "lum_desktop_sdkx/coords/CoordSystemPanel.h"

#include "basalt_utilities/Numbers.h"
#include "basalt_utilities/Product.h"
#include "lum_desktop_sdkx/controls/PropertyGridCtrl.h"
#include "lum_desktop_sdkx/coords/CoordSystemRows.h"
#include "lum_desktop_sdkx/coords/CoordSystemSearch.h"
#include "lum_desktop_sdkx/coords/DatumShiftChoice.h"
#include "lum_desktop_sdkx/dialogs/LumMessageBox.h"
#include "lum_sdk/coords/CoordCheck.h"
#include "lum_sdk/coords/CoordStoredForm.h"
#include "lum_sdk/coords/EpsgSystem.h"
#include "lum_sdk/coords/LengthUnit.h"
#include "lum_sdk/DpiScale.h"
#include "lum_sdk/Text.h"

#include <QLabel>
#include <QVBoxLayout>

namespace {

constexpr const char* kId = "coord_param_id";
constexpr const char* kUndefinedId = "Undefined";
constexpr const char* kRegister = "EPSG:";

QString id(const IDictionary& parameters)
{
    return lum::toQString(parameters.text(kId, kUndefinedId));
}

QString codeOf(const QString& registeredId)
{
    return registeredId.mid(static_cast<int>(qstrlen(kRegister)));
}

/// Symbol and name, such as "ftUS, US survey foot".
QString unitName(const lum::LengthUnit& unit)
{
    QString symbol = lum::toQString(lum::symbolOf(unit));
    if (symbol == QLatin1String("ft"))
        return CoordSystemPanel::tr("ft, international foot");
    if (symbol == QLatin1String("ftUS"))
        return CoordSystemPanel::tr("ftUS, US survey foot");
    return symbol;
}

QString metres(const lum::LengthUnit& unit)
{
    constexpr int kDigits = 10; // both feet differ in the sixth
    return QString::fromStdString(basalt::formatGeneral(unit.metres, kDigits));
}

QLabel* makeText(QWidget* parent)
{
    auto* const label = new QLabel(parent);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    return label;
}

/// A red that can be read on the window's colour.
QPalette faultPalette(QPalette palette)
{
    const bool isDark = palette.color(QPalette::Window).lightness() < 128;
    palette.setColor(QPalette::WindowText,
                     isDark ? QColor(0xff, 0x8a, 0x80) : QColor(0xb0, 0x1e, 0x1e));
    return palette;
}

} // namespace

CoordSystemPanel::CoordSystemPanel(QWidget* parent)
    : QWidget(parent), m_search(new CoordSystemSearch(this)), m_identity(makeText(this)),
      m_shift(new DatumShiftChoice(this)), m_grid(new PropertyGridCtrl(this)),
      m_fault(makeText(this))
{
    m_grid->setResizeMode(PropertyGridCtrl::ResizeMode::Stretch);
    m_grid->setHeaderVisible(false);

    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(dpi_scaled(6));
    layout->addWidget(m_search);
    layout->addWidget(m_identity);
    layout->addWidget(m_shift);
    layout->addWidget(m_grid, 1);
    layout->addWidget(m_fault);
    setFocusProxy(m_search);

    connect(m_search, &CoordSystemSearch::chosen, this, &CoordSystemPanel::choose);
    connect(m_shift, &DatumShiftChoice::chosen, this, &CoordSystemPanel::takeShift);
    connect(m_grid, &PropertyGridCtrl::valueChanged, this, &CoordSystemPanel::takeEdit);
    connect(m_grid, &PropertyGridCtrl::faultChanged, this, &CoordSystemPanel::showFault);
    setParameters(basalt::Dictionary());
}

void CoordSystemPanel::setParameters(const IDictionary& parameters)
{
    const QString given = id(parameters);
    m_shift->setSystem(given.startsWith(QLatin1String(kRegister)) ? codeOf(given) : QString());
    show(parameters);
}

basalt::Dictionary CoordSystemPanel::parameters()
{
    basalt::Dictionary result = m_grid->getData();
    lum::toStoredForm(result);
    dic_set_value(result, kId, id(result).toStdString());
    return result;
}

bool CoordSystemPanel::hasFaults()
{
    judge(); // a geoid file may have been made or deleted meanwhile
    return m_grid->hasFaults() || !m_refusal.isEmpty();
}

void CoordSystemPanel::goToFault()
{
    m_grid->goToFault();
}

void CoordSystemPanel::choose(const QString& code)
{
    basalt::Dictionary filled = m_grid->getData();
    const std::string reason = fillFromEpsg(code.toStdString(), filled);
    if (!reason.empty()) {
        LumMessageBox::warning(this, tr("Coordinate System"), lum::toQString(reason));
        return;
    }
    filled.set(kId, kRegister + code.toStdString());
    setParameters(filled);
    Q_EMIT changed();
}

void CoordSystemPanel::takeShift(const lum::DatumShift& shift)
{
    basalt::Dictionary values = m_grid->getData();
    shift.toDictionary(values);
    show(values);
    Q_EMIT changed();
}

void CoordSystemPanel::takeEdit(const QString& key, const QString& value)
{
    if (key.startsWith(QLatin1String("ellipsoid_")))
        m_shift->setSystem({}); // the register's shifts are for another datum
    followEllipsoid(key, value);
    m_grid->setValue(QLatin1String(kId), QLatin1String(kUndefinedId));
    showAll();
    Q_EMIT changed();
}

/// Makes the name of the ellipsoid fit its axis and flattening, or the other way round.
void CoordSystemPanel::followEllipsoid(const QString& editedKey, const QString& value)
{
    const QString nameKey = QStringLiteral("ellipsoid_name");
    const QStringList figures{QStringLiteral("ellipsoid_a"), QStringLiteral("ellipsoid_f")};
    basalt::Dictionary ellipsoid;
    if (editedKey == nameKey && CoordSystemRows::fillEllipsoid(value.toStdString(), ellipsoid)) {
        for (const QString& key : figures)
            m_grid->setValue(key, lum::toQString(ellipsoid.text(key.toStdString())));
    } else if (figures.contains(editedKey)) {
        m_grid->setValue(nameKey, CoordSystemRows::ellipsoidName(m_grid->getData()));
    }
}

void CoordSystemPanel::show(const IDictionary& parameters)
{
    const QString file = QString::fromStdString(basalt::controlFile("CoordSystem"));
    if (!m_grid->init(file, parameters)) {
        // Without rows nothing is shown, but the grid still keeps the values.
        for (std::size_t i = 0; i < parameters.size(); ++i)
            m_grid->setValue(lum::toQString(parameters.keyAt(i)),
                             lum::toQString(parameters.valueAt(i)));
    }
    showAll();
}

void CoordSystemPanel::showAll()
{
    showRows();
    judge();
    showIdentity();
    m_shift->showShiftOf(m_grid->getData());
}

void CoordSystemPanel::showRows()
{
    const basalt::Dictionary values = m_grid->getData();
    for (const auto& [key, isShown] : CoordSystemRows::visibilities(values))
        m_grid->setRowVisible(key, isShown);
    m_grid->setRowCaption(QStringLiteral("parallel_1_lat"),
                          CoordSystemRows::firstParallelCaption(values));
    const QString unit = lum::toQString(lum::symbolOf(lum::lengthUnitOf(values)));
    for (const QString& key : CoordSystemRows::planeLengths())
        m_grid->setRowUnit(key, unit);
}

void CoordSystemPanel::judge()
{
    const basalt::Dictionary values = m_grid->getData();
    const auto nameOf = [this](std::string_view key) {
        const QString caption = m_grid->rowCaption(lum::toQString(key));
        return caption.isEmpty() ? std::string(key) : caption.toStdString();
    };
    lum::CoordParameterFault fault;
    if (CoordSystemRows::isSet(values))
        fault = lum::checkCoordParameters(values, nameOf);
    const QString key = lum::toQString(fault.key);
    m_refusal = lum::toQString(fault.message);
    if (fault)
        m_grid->setRowVisible(key, true); // the user must be able to correct it
    m_grid->markRow(key, m_refusal);
    showFault();
}

/// Shows one fault: what keeps the parameters from working, or else the topmost bad value.
void CoordSystemPanel::showFault()
{
    const QString text = m_refusal.isEmpty() ? m_grid->faultText() : m_refusal;
    m_fault->setText(text);
    m_fault->setPalette(faultPalette(palette()));
    m_fault->setVisible(!text.isEmpty());
}

void CoordSystemPanel::showIdentity()
{
    const basalt::Dictionary values = m_grid->getData();
    const QString current = id(values);
    QString text = tr("The coordinate system is defined by the parameters below.");
    if (!CoordSystemRows::isSet(values))
        text = tr("No coordinate system is set. Search for one, or choose ellipsoid and "
                  "projection.");
    else if (current.startsWith(QLatin1String(kRegister)))
        text = QStringLiteral("%1   %2").arg(
            current, QString::fromStdString(epsgName(codeOf(current).toStdString())));
    const lum::LengthUnit unit = lum::lengthUnitOf(values);
    if (!lum::isMetre(unit))
        text += QLatin1Char('\n') + tr("Coordinates are in %1 (%2 m); heights are in metres.")
                                        .arg(unitName(unit), metres(unit));
    m_identity->setText(text);
}
