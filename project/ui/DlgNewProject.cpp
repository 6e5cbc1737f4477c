#include "project/ui/DlgNewProject.h"

#include "lum_desktop_sdkx/dialogs/FileDialog.h"
#include "lum_sdk/DpiScale.h"
#include "lum_sdk/files/SystemDictionaries.h"
#include "lum_sdk/Text.h"
#include "project/ProjectPlace.h"

#include <QDialogButtonBox>
#include <QDir>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QStandardPaths>
#include <QVBoxLayout>

namespace {

constexpr const char* kLastFolder = "project_folder"; // setting: the folder chosen last

QString lastFolder()
{
    const QString folder =
        lum::toQString(get_system_ini_parameter().dictionary().text(kLastFolder));
    return folder.isEmpty() ? QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation)
                            : folder;
}

} // namespace

DlgNewProject::DlgNewProject(QWidget* parent)
    : Dialog(parent), m_name(new QLineEdit(this)),
      m_path(new QLineEdit(QDir::toNativeSeparators(lastFolder()), this)), m_hint(new QLabel(this))
{
    setWindowTitle(tr("New Project"));
    setMinimumSizeScaled(520, 0);
    m_name->setObjectName(QStringLiteral("name"));
    m_path->setObjectName(QStringLiteral("path"));
    m_hint->setTextFormat(Qt::PlainText);
    m_hint->setWordWrap(true);
    m_hint->setMinimumHeight(2 * m_hint->fontMetrics().lineSpacing());

    auto* const form = new QFormLayout;
    form->addRow(tr("Project Name:"), m_name);
    form->addRow(tr("Project Path:"), makePathRow());
    form->addRow(QString(), m_hint);

    auto* const buttons = new QDialogButtonBox(this);
    m_ok = buttons->addButton(tr("OK"), QDialogButtonBox::AcceptRole);
    buttons->addButton(tr("Cancel"), QDialogButtonBox::RejectRole);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(m_name, &QLineEdit::textChanged, this, &DlgNewProject::judge);
    connect(m_path, &QLineEdit::textChanged, this, &DlgNewProject::judge);

    QVBoxLayout* const layout = makeMainLayout();
    layout->addLayout(form);
    layout->addStretch();
    layout->addWidget(buttons);
    judge();
    m_name->setFocus();
}

QString DlgNewProject::projectName() const
{
    return m_name->text().trimmed();
}

QString DlgNewProject::projectPath() const
{
    return QDir::cleanPath(QDir::fromNativeSeparators(m_path->text().trimmed()));
}

QWidget* DlgNewProject::makePathRow()
{
    auto* const row = new QWidget(this);
    auto* const browse = new QPushButton(tr("browse"), row);
    browse->setAutoDefault(false); // Enter in a field accepts the dialog
    connect(browse, &QPushButton::clicked, this, &DlgNewProject::browse);
    auto* const layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_path, 1);
    layout->addWidget(browse);
    return row;
}

void DlgNewProject::browse()
{
    const QString folder = FileDialog::getExistingDirectory(this, tr("Choose Project Directory"));
    if (folder.isEmpty())
        return;
    m_path->setText(QDir::toNativeSeparators(folder));
    get_system_ini_parameter().dictionary().set(kLastFolder, folder.toStdString());
}

void DlgNewProject::judge()
{
    const QString nameFault = projectNameFault(projectName());
    const QString fault =
        nameFault.isEmpty()
            ? projectLocationFault(m_path->text().trimmed().isEmpty() ? QString() : projectPath())
            : nameFault;
    m_ok->setEnabled(fault.isEmpty());
    const QString folder =
        QDir::toNativeSeparators(ProjectPlace::planned(projectPath(), projectName()).folder);
    m_hint->setText(fault.isEmpty() ? tr("The project will be in \"%1\".").arg(folder) : fault);
}
