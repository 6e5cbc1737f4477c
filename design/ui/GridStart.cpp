#include "design/ui/GridStart.h"

#include "design/ui/DesignTexts.h"
#include "design/ui/NoteLabel.h"
#include "lum_desktop_sdkx/controls/ChoiceBox.h"
#include "lum_sdk/DpiScale.h"

#include <QCheckBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QPushButton>

namespace {

constexpr int kRowGap = 3;
constexpr int kAzimuthWidth = 110; // for 359.595999999

DesignEdit* makeEdit(GridKind kind, DesignField field, QWidget* parent)
{
    return new DesignEdit(designParameter(kind, field), parent);
}

} // namespace

GridStart::GridStart(GridKind kind, QWidget* parent)
    : QWidget(parent), m_edits{makeEdit(kind, DesignField::FirstLine, this),
                               makeEdit(kind, DesignField::FirstPoint, this),
                               makeEdit(kind, DesignField::StartNorth, this),
                               makeEdit(kind, DesignField::StartEast, this),
                               makeEdit(kind, DesignField::Azimuth, this)},
      m_formats(makeFormats()),
      m_reversal(new QCheckBox(designParameter(kind, DesignField::Reversal).label(), this)),
      m_note(new NoteLabel(2, this))
{
    const DesignParameter& reversal = designParameter(kind, DesignField::Reversal);
    m_reversal->setObjectName(QString::fromLatin1(reversal.key));
    m_reversal->setToolTip(DesignTexts::hint(reversal));

    auto* const form = new QFormLayout(this);
    form->setContentsMargins(0, 0, 0, 0);
    form->setVerticalSpacing(dpi_scaled(kRowGap));
    for (DesignEdit* const edit : m_edits) {
        if (edit != m_edits.back())
            addEdit(*form, edit);
    }
    addButton(*form, tr("Pick Start on Map"),
              tr("Take the start position from a click on the map, or from the design point there"),
              &GridStart::placeWanted);
    DesignEdit* const azimuth = m_edits.back();
    azimuth->setMinimumWidth(dpi_scaled(kAzimuthWidth));
    addEdit(*form, azimuth, m_formats);
    addButton(*form, tr("Pick Azimuth on Map"),
              tr("Take the azimuth from two clicks on the map, or from the design points there"),
              &GridStart::azimuthWanted);
    form->addRow(m_reversal);
    form->addRow(m_note);
}

ChoiceBox* GridStart::makeFormats()
{
    auto* const formats = new ChoiceBox(this);
    formats->addItem(QStringLiteral("dd.dddddd"));
    formats->addItem(QStringLiteral("dd.mmss"));
    formats->setCurrentIndex(static_cast<int>(AzimuthFormat::DegreesMinutesSeconds));
    formats->setMinimumWidth(formats->sizeHint().width());
    formats->setToolTip(tr("How the azimuth is typed: decimal degrees, or degrees with two digits "
                           "of minutes and seconds"));
    connect(formats, qOverload<int>(&QComboBox::currentIndexChanged), this,
            [this](int index) { Q_EMIT formatChosen(static_cast<AzimuthFormat>(index)); });
    return formats;
}

void GridStart::addEdit(QFormLayout& form, DesignEdit* edit, QWidget* beside)
{
    const QString label = edit->parameter().label();
    if (beside == nullptr) {
        form.addRow(label, edit);
        return;
    }
    auto* const row = new QHBoxLayout;
    row->addWidget(edit, 1);
    row->addWidget(beside);
    form.addRow(label, row);
}

void GridStart::addButton(QFormLayout& form, const QString& text, const QString& tip,
                          void (GridStart::*wanted)())
{
    auto* const button = new QPushButton(text, this);
    button->setAutoDefault(false);
    button->setToolTip(tip);
    connect(button, &QPushButton::clicked, this, wanted);
    form.addRow(QString(), button);
}

void GridStart::setFormat(AzimuthFormat format)
{
    m_formats->setCurrentIndex(static_cast<int>(format));
    m_edits.back()->setFormat(format);
}
