#include "views/AttributePage.h"

#include "basalt_utilities/Product.h"
#include "lum_desktop_sdkx/controls/PropertyGridCtrl.h"
#include "lum_sdk/DpiScale.h"
#include "lum_sdk/Text.h"

#include <QAction>
#include <QLabel>
#include <QVBoxLayout>

#include <utility>

namespace {

constexpr int kMargin = 8;

QLabel* makeLabel(QWidget* parent)
{
    auto* const label = new QLabel(parent);
    label->setTextFormat(Qt::PlainText);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse); // also breaks long paths
    label->setWordWrap(true);
    label->setAlignment(Qt::AlignTop);
    label->setMargin(dpi_scaled(kMargin));
    label->hide();
    return label;
}

} // namespace

AttributePage::AttributePage(const QString& controlFile, QWidget* parent)
    : QWidget(parent),
      m_file(QString::fromStdString(basalt::controlFile(controlFile.toStdString()))),
      m_grid(new PropertyGridCtrl(this)), m_problem(makeLabel(this)), m_fault(makeLabel(this)),
      m_drop(new QAction(this))
{
    m_drop->setShortcut(Qt::Key_Escape); // of an open editor it closes the editor
    m_drop->setShortcutContext(Qt::WidgetWithChildrenShortcut);
    m_drop->setEnabled(false);
    connect(m_drop, &QAction::triggered, this, &AttributePage::dropBadEdits);
    addAction(m_drop);
    m_grid->setResizeMode(PropertyGridCtrl::ResizeMode::ResizeToContents);
    m_grid->setHeaderVisible(false);
    m_grid->setDescriptionVisible(false);
    m_grid->setEditableMarked(true);
    connect(m_grid, &PropertyGridCtrl::valueChanged, this, &AttributePage::takeEdit);
    connect(m_grid, &PropertyGridCtrl::faultChanged, this, &AttributePage::tellFault);
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_grid, 1);
    layout->addWidget(m_problem, 1);
    layout->addWidget(m_fault);
}

void AttributePage::showPoint(const basalt::Dictionary& values)
{
    m_refused.clear();
    m_values = values;
    const bool isShown = m_grid->init(m_file, values);
    m_grid->setVisible(isShown);
    m_problem->setHidden(isShown);
    m_problem->setText(tr("The attributes cannot be shown: the file \"%1\" cannot be read (%2).")
                           .arg(m_file, m_grid->initFault()));
    tellFault();
}

void AttributePage::update(const basalt::Dictionary& values)
{
    const basalt::Dictionary before = std::exchange(m_values, values);
    for (std::size_t i = 0; i < values.size(); ++i) {
        const std::string_view key = values.keyAt(i);
        if (before.find(key) != values.valueAt(i))
            restore(lum::toQString(key));
    }
}

void AttributePage::commit()
{
    (void)m_grid->getData();
}

void AttributePage::refuse(const QString& key, const QString& reason)
{
    if (const QString former = std::exchange(m_refused, key); !former.isEmpty() && former != key)
        restore(former); // there is one mark
    m_grid->markRow(key, reason);
    tellFault();
}

void AttributePage::takeEdit(const QString& key, const QString& value)
{
    if (m_refused == key)
        m_refused.clear();
    Q_EMIT edited(key, value);
    if (m_refused != key)
        restore(key); // in the form in which it is shown
}

void AttributePage::restore(const QString& key)
{
    if (const auto value = m_values.find(key.toStdString()))
        m_grid->setValue(key, lum::toQString(*value));
    tellFault();
}

void AttributePage::dropBadEdits()
{
    showPoint(basalt::Dictionary(m_values));
}

void AttributePage::tellFault()
{
    const QString fault = m_grid->faultText();
    m_fault->setText(fault + QLatin1Char('\n') + tr("Esc brings the value back."));
    m_fault->setHidden(fault.isEmpty());
    m_drop->setEnabled(!fault.isEmpty());
}
