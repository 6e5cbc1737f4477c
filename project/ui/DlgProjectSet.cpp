#include "project/ui/DlgProjectSet.h"

#include "basalt_utilities/Dictionary.h"
#include "basalt_utilities/Product.h"
#include "lum_desktop_sdkx/controls/PropertyGridCtrl.h"
#include "lum_desktop_sdkx/coords/CoordSystemPanel.h"
#include "lum_desktop_sdkx/IDesktopHost.h"
#include "lum_sdk/DpiScale.h"
#include "lum_sdk/events/IEventManager.h"
#include "lum_sdk/files/SystemDictionaries.h"
#include "lum_sdk/Text.h"
#include "model/CoordinateRecord.h"
#include "project/ProjectFile.h"
#include "protocol/Events.h"
#include "protocol/StatusKeys.h"

#include <QDialogButtonBox>
#include <QDir>
#include <QHBoxLayout>
#include <QIcon>
#include <QLabel>
#include <QListWidget>
#include <QStackedWidget>
#include <QVBoxLayout>

namespace {

constexpr const char* kUnit = "unit";         // row that shows the setting "un_coordUnit"
constexpr const char* kName = "project_name"; // row that shows the last part of the folder
constexpr int kGeneralPage = 0;
constexpr int kCoordPage = 1;

} // namespace

DlgProjectSet::DlgProjectSet(IDesktopHost& host, IDictionary& project)
    : Dialog(host.dialogParent()), m_host(host), m_project(project), m_pages(new QListWidget(this)),
      m_stack(new QStackedWidget(this))
{
    setWindowTitle(tr("Project Settings"));
    setMinimumSizeScaled(760, 560);
    m_pages->setFixedWidth(dpi_scaled(210));
    m_pages->setIconSize(QSize(dpi_scaled(22), dpi_scaled(22)));
    addPage(QStringLiteral("CommInfoSet"), tr("General"), QStringLiteral("documentinfo"),
            makeGeneralPage());
    addPage(QStringLiteral("CoordSystem"), tr("Coordinate System"), QStringLiteral("globe"),
            makeCoordPage());
    connect(m_pages, &QListWidget::currentRowChanged, m_stack, &QStackedWidget::setCurrentIndex);
    m_pages->setCurrentRow(kGeneralPage);

    auto* const buttons = new QDialogButtonBox(this);
    buttons->addButton(tr("Apply"), QDialogButtonBox::AcceptRole);
    buttons->addButton(tr("Cancel"), QDialogButtonBox::RejectRole);
    connect(buttons, &QDialogButtonBox::accepted, this, &DlgProjectSet::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);

    auto* const body = new QHBoxLayout;
    body->addWidget(m_pages);
    body->addWidget(m_stack, 1);
    QVBoxLayout* const layout = makeMainLayout();
    layout->addLayout(body, 1);
    layout->addWidget(buttons);
    rememberSize(QStringLiteral("DlgProjectSet"));
}

void DlgProjectSet::setInformationReadOnly(const QString& reason)
{
    if (reason.isEmpty())
        return;
    m_reason->setText(reason);
    m_reason->show();
    m_general->setReadOnlyBut({QLatin1String(kUnit)}); // a setting of the program
}

void DlgProjectSet::accept()
{
    if (showFault())
        return;
    if (m_question && !m_question(m_coordSystem->parameters())) {
        m_pages->setCurrentRow(kCoordPage);
        return;
    }
    writeBack();
    Q_EMIT applied();
    m_host.eventManager().publish(events::kProjectChanged, nullptr, 0);
    m_host.eventManager().publish(events::kSettingViewFinished, nullptr, 0);
    Dialog::accept();
}

void DlgProjectSet::addPage(const QString& name, const QString& caption, const QString& icon,
                            QWidget* page)
{
    page->setObjectName(name);
    auto* const item = new QListWidgetItem(QIcon::fromTheme(icon), caption, m_pages);
    item->setSizeHint(QSize(0, dpi_scaled(34)));
    m_stack->addWidget(page);
}

QWidget* DlgProjectSet::makeGeneralPage()
{
    const QString folder = lum::toQString(m_project.text(ProjectFile::kPath));
    basalt::Dictionary values(m_project);
    values.set(kName, QDir(folder).dirName().toStdString());
    values.set(ProjectFile::kPath, QDir::toNativeSeparators(folder).toStdString());
    values.set(kUnit, get_system_ini_parameter().dictionary().text(settings::kCoordUnit, "0"));
    auto* const page = new QWidget(this);
    m_reason = new QLabel(page);
    m_reason->setObjectName(QStringLiteral("reason"));
    m_reason->setTextFormat(Qt::PlainText);
    m_reason->setWordWrap(true);
    m_reason->setTextInteractionFlags(Qt::TextSelectableByMouse);
    m_reason->hide();
    m_general = new PropertyGridCtrl(page);
    m_general->init(QString::fromStdString(basalt::controlFile("CommInfoSet")), values);
    m_general->setHeaderVisible(false);
    m_general->setResizeMode(PropertyGridCtrl::ResizeMode::ResizeToContents);
    auto* const layout = new QVBoxLayout(page);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_reason);
    layout->addWidget(m_general, 1);
    return page;
}

QWidget* DlgProjectSet::makeCoordPage()
{
    basalt::Dictionary parameters;
    CoordinateRecord::copy(m_project, parameters);
    m_coordSystem = new CoordSystemPanel(this);
    m_coordSystem->setParameters(parameters);
    return m_coordSystem;
}

bool DlgProjectSet::showFault()
{
    if (m_general->hasFaults()) {
        m_pages->setCurrentRow(kGeneralPage);
        return true;
    }
    if (!m_coordSystem->hasFaults())
        return false;
    m_pages->setCurrentRow(kCoordPage);
    m_coordSystem->goToFault();
    return true;
}

void DlgProjectSet::writeBack()
{
    basalt::Dictionary values = m_general->getData();
    const std::string unit(values.text(kUnit));
    for (const char* shownOnly : {kUnit, kName, ProjectFile::kPath})
        values.remove(shownOnly);
    dictionary_copy(values, m_project);
    CoordinateRecord::copy(m_coordSystem->parameters(), m_project);
    SystemParameter& settings = get_system_ini_parameter();
    if (settings.dictionary().text(settings::kCoordUnit, "0") != unit) {
        settings.dictionary().set(settings::kCoordUnit, unit);
        settings.save(); // has logged why it failed; the choice holds for this session
    }
}
