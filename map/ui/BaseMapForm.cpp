#include "map/ui/BaseMapForm.h"

#include "lum_desktop_sdkx/controls/FaultColors.h"
#include "lum_desktop_sdkx/dialogs/FileDialog.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalBlocker>
#include <QSpinBox>

namespace {

constexpr lum::BaseMapKind kKinds[] = {lum::BaseMapKind::Road, lum::BaseMapKind::Satellite,
                                       lum::BaseMapKind::Terrain};
constexpr int kTileSizes[] = {256, 512};

void setText(QLineEdit& edit, const QString& text)
{
    edit.setText(text);
    edit.setCursorPosition(0); // the beginning tells most
}

/// A combo box that can hold `size`, which need not be one of the usual ones.
void setTileSize(QComboBox& box, int size)
{
    if (box.findData(size) < 0)
        box.addItem(QString::number(size), size);
    box.setCurrentIndex(box.findData(size));
}

} // namespace

BaseMapForm::BaseMapForm(QWidget* parent)
    : QWidget(parent), m_name(new QLineEdit(this)), m_kind(new QComboBox(this)),
      m_address(new QLineEdit(this)), m_leastZoom(new QSpinBox(this)),
      m_greatestZoom(new QSpinBox(this)), m_tileSize(new QComboBox(this)),
      m_attribution(new QLineEdit(this)),
      m_keepsTiles(new QCheckBox(tr("&Keep tiles on this computer"), this)),
      m_fault(new QLabel(this))
{
    for (const lum::BaseMapKind kind : kKinds)
        m_kind->addItem(captionOf(kind), static_cast<int>(kind));
    for (const int size : kTileSizes)
        m_tileSize->addItem(QString::number(size), size);
    for (QSpinBox* const zoom : {m_leastZoom, m_greatestZoom})
        zoom->setRange(0, lum::kGreatestZoom);
    auto* const form = new QFormLayout(this);
    form->setContentsMargins(0, 0, 0, 0);
    addFields(*form);

    for (QLineEdit* const edit : {m_name, m_address, m_attribution})
        connect(edit, &QLineEdit::textEdited, this, &BaseMapForm::onEdited);
    for (QSpinBox* const zoom : {m_leastZoom, m_greatestZoom})
        connect(zoom, qOverload<int>(&QSpinBox::valueChanged), this, &BaseMapForm::onEdited);
    for (QComboBox* const box : {m_kind, m_tileSize})
        connect(box, qOverload<int>(&QComboBox::currentIndexChanged), this, &BaseMapForm::onEdited);
    connect(m_keepsTiles, &QCheckBox::toggled, this, &BaseMapForm::onEdited);
}

void BaseMapForm::addFields(QFormLayout& form)
{
    auto* const hint = new QLabel(
        tr("{x}, {y} and {z} stand for the place of a tile, {-y} for rows that are counted from "
           "the south. Also the address of a WMS or WMTS service, or a file such as MBTiles."),
        this);
    hint->setTextFormat(Qt::PlainText);
    m_fault->setTextFormat(Qt::PlainText);
    for (QLabel* const text : {hint, m_fault})
        text->setWordWrap(true);
    QPalette colors = m_fault->palette();
    colors.setColor(QPalette::WindowText, faultText(palette()));
    m_fault->setPalette(colors);
    m_attribution->setToolTip(tr("Whose map it is, as its terms want it: it stands on the map"));
    m_keepsTiles->setToolTip(tr("As the terms of the service allow"));
    m_address->setToolTip(tr("The service learns which part of the world is looked at"));

    form.addRow(tr("&Name:"), m_name);
    form.addRow(tr("K&ind:"), m_kind);
    QWidget* const address = makeAddressRow();
    form.addRow(tr("A&ddress or file:"), address);
    qobject_cast<QLabel*>(form.labelForField(address))->setBuddy(m_address);
    form.addRow(QString(), hint);
    form.addRow(tr("A&ttribution:"), m_attribution);
    QWidget* const zoom = makeZoomRow();
    form.addRow(tr("&Zoom levels:"), zoom);
    qobject_cast<QLabel*>(form.labelForField(zoom))->setBuddy(m_leastZoom);
    form.addRow(tr("Til&e size:"), m_tileSize);
    form.addRow(QString(), m_keepsTiles);
    form.addRow(QString(), m_fault);
}

QWidget* BaseMapForm::makeAddressRow()
{
    auto* const row = new QWidget(this);
    auto* const layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    auto* const button = new QPushButton(tr("&File..."), row);
    button->setAutoDefault(false);
    connect(button, &QPushButton::clicked, this, &BaseMapForm::browse);
    layout->addWidget(m_address, 1);
    layout->addWidget(button);
    return row;
}

QWidget* BaseMapForm::makeZoomRow()
{
    auto* const row = new QWidget(this);
    auto* const layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_leastZoom);
    layout->addWidget(new QLabel(tr("to"), row));
    layout->addWidget(m_greatestZoom);
    layout->addStretch();
    return row;
}

void BaseMapForm::set(const lum::BaseMap& map)
{
    const QSignalBlocker quiet(this);
    setText(*m_name, map.name);
    setText(*m_address, map.address);
    setText(*m_attribution, map.attribution);
    m_kind->setCurrentIndex(m_kind->findData(static_cast<int>(map.kind)));
    m_leastZoom->setValue(map.leastZoom);
    m_greatestZoom->setValue(map.greatestZoom);
    setTileSize(*m_tileSize, map.tileSize);
    m_keepsTiles->setChecked(map.mayKeepTiles);
    enableForAddress();
}

lum::BaseMap BaseMapForm::map() const
{
    lum::BaseMap map;
    map.name = m_name->text().trimmed();
    map.kind = static_cast<lum::BaseMapKind>(m_kind->currentData().toInt());
    map.address = m_address->text().trimmed();
    map.leastZoom = m_leastZoom->value();
    map.greatestZoom = m_greatestZoom->value();
    map.tileSize = m_tileSize->currentData().toInt();
    map.attribution = m_attribution->text().trimmed();
    map.mayKeepTiles = m_keepsTiles->isChecked();
    return map;
}

void BaseMapForm::showFault(const QString& fault)
{
    m_fault->setText(fault);
}

void BaseMapForm::goToFault()
{
    QLineEdit* field = m_address;
    if (m_attribution->text().trimmed().isEmpty() && !m_address->text().trimmed().isEmpty())
        field = m_attribution;
    lum::BaseMap named = map(); // with everything but its own name
    if (named.name.isEmpty() || lum::faultOf(named).isEmpty())
        field = m_name; // it is empty, or taken
    field->setFocus();
    field->selectAll();
}

void BaseMapForm::goToName()
{
    m_name->setFocus();
    m_name->selectAll();
}

QString BaseMapForm::captionOf(lum::BaseMapKind kind)
{
    switch (kind) {
    case lum::BaseMapKind::Road:
        return tr("Road map");
    case lum::BaseMapKind::Satellite:
        return tr("Satellite map");
    case lum::BaseMapKind::Terrain:
        break;
    }
    return tr("Terrain map");
}

void BaseMapForm::browse()
{
    const QString file = FileDialog::getOpenFileName(
        this, tr("Base Map File"),
        tr("map files") + QStringLiteral("(*.mbtiles *.tif *.tiff *.vrt *.gpkg *.jp2);;") +
            tr("all files") + QStringLiteral("(*)"));
    if (file.isEmpty())
        return;
    setText(*m_address, file);
    onEdited();
}

void BaseMapForm::onEdited()
{
    enableForAddress();
    Q_EMIT edited();
}

void BaseMapForm::enableForAddress()
{
    const bool isService = !m_address->text().isEmpty() && !lum::isFile(map());
    for (QWidget* const field :
         std::initializer_list<QWidget*>{m_leastZoom, m_greatestZoom, m_tileSize, m_keepsTiles})
        field->setEnabled(isService);
}
