#include "project/ui/DlgProjectPlace.h"

#include "lum_desktop_sdkx/dialogs/FileDialog.h"
#include "lum_sdk/DpiScale.h"
#include "lum_sdk/files/SystemDictionaries.h"
#include "lum_sdk/Text.h"

#include <QDialogButtonBox>
#include <QDir>
#include <QFileInfo>
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
    const QString chosen =
        lum::toQString(get_system_ini_parameter().dictionary().text(kLastFolder));
    const QString documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    for (const QString& folder : {chosen, documents}) {
        if (QFileInfo(folder).isDir())
            return folder;
    }
    return QDir::homePath();
}

/// Of a folder that is there, with every link followed.
QString realPath(const QString& folder)
{
    const QString path = QFileInfo(folder).canonicalFilePath();
    return path.isEmpty() ? QDir::cleanPath(folder) : path;
}

/// The name with the first number from 2 on that is free.
QString numbered(const QString& location, const QString& name)
{
    QString next;
    for (int number = 2; next.isEmpty() || QFileInfo::exists(location + QLatin1Char('/') + next);
         ++number)
        next = QStringLiteral("%1 %2").arg(name).arg(number);
    return next;
}

} // namespace

DlgProjectPlace::DlgProjectPlace(QWidget* parent, const QString& title, const QString& ready)
    : Dialog(parent), m_ready(ready), m_name(new QLineEdit(this)),
      m_path(new QLineEdit(QDir::toNativeSeparators(lastFolder()), this)), m_hint(new QLabel(this)),
      m_proposal(new QPushButton(this))
{
    setWindowTitle(title);
    setMinimumSizeScaled(520, 0);
    m_name->setObjectName(QStringLiteral("name"));
    m_path->setObjectName(QStringLiteral("path"));
    m_hint->setTextFormat(Qt::PlainText);
    m_hint->setWordWrap(true);
    m_hint->setMinimumHeight(2 * m_hint->fontMetrics().lineSpacing());
    prepareProposal();

    auto* const form = new QFormLayout;
    form->addRow(tr("Project Name:"), m_name);
    form->addRow(tr("Project Path:"), makePathRow());
    form->addRow(QString(), m_hint);
    form->addRow(QString(), m_proposal);

    auto* const buttons = new QDialogButtonBox(this);
    m_ok = buttons->addButton(tr("OK"), QDialogButtonBox::AcceptRole);
    buttons->addButton(tr("Cancel"), QDialogButtonBox::RejectRole);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(m_name, &QLineEdit::textChanged, this, &DlgProjectPlace::judge);
    connect(m_path, &QLineEdit::textChanged, this, &DlgProjectPlace::judge);

    QVBoxLayout* const layout = makeMainLayout();
    layout->addLayout(form);
    layout->addStretch();
    layout->addWidget(buttons);
    judge();
    m_name->setFocus();
}

void DlgProjectPlace::setName(const QString& name)
{
    m_name->setText(name);
    m_name->selectAll();
}

void DlgProjectPlace::keepApartFrom(const ProjectPlace& other)
{
    m_otherFolder = realPath(other.folder);
    judge();
}

ProjectPlace DlgProjectPlace::place() const
{
    return ProjectPlace::planned(location(), name());
}

QString DlgProjectPlace::name() const
{
    return m_name->text().trimmed();
}

QString DlgProjectPlace::location() const
{
    return QDir::cleanPath(QDir::fromNativeSeparators(m_path->text().trimmed()));
}

void DlgProjectPlace::prepareProposal()
{
    QSizePolicy kept = m_proposal->sizePolicy();
    kept.setHorizontalPolicy(QSizePolicy::Maximum);
    kept.setRetainSizeWhenHidden(true); // the dialog stays as high as it is
    m_proposal->setSizePolicy(kept);
    connect(m_proposal, &QPushButton::clicked, this, [this] {
        m_name->setText(fault().proposal);
        m_name->setFocus();
    });
}

QWidget* DlgProjectPlace::makePathRow()
{
    auto* const row = new QWidget(this);
    auto* const browse = new QPushButton(tr("browse"), row);
    browse->setAutoDefault(false); // Enter in a field accepts the dialog
    connect(browse, &QPushButton::clicked, this, &DlgProjectPlace::browse);
    auto* const layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_path, 1);
    layout->addWidget(browse);
    return row;
}

void DlgProjectPlace::browse()
{
    const QString folder = FileDialog::getExistingDirectory(this, tr("Choose Project Directory"));
    if (folder.isEmpty())
        return;
    m_path->setText(QDir::toNativeSeparators(folder));
    get_system_ini_parameter().dictionary().set(kLastFolder, folder.toStdString());
}

DlgProjectPlace::Fault DlgProjectPlace::fault() const
{
    if (const QString text = projectNameFault(name()); !text.isEmpty())
        return {text, projectNameProposal(name())};
    if (const QString text = projectLocationFault(location()); !text.isEmpty())
        return {text, {}};
    if (!m_otherFolder.isEmpty() && realPath(place().folder) == m_otherFolder)
        return {tr("The open project itself is in this folder. Choose another name or folder."),
                numbered(location(), name())};
    return {};
}

void DlgProjectPlace::judge()
{
    const Fault found = fault();
    const bool isGood = found.text.isEmpty();
    m_hint->setText(isGood ? m_ready.arg(QDir::toNativeSeparators(place().folder)) : found.text);
    QString shown = found.proposal;
    m_proposal->setText(
        tr("Use \"%1\"").arg(shown.replace(QLatin1Char('&'), QStringLiteral("&&"))));
    m_proposal->setHidden(shown.isEmpty());
    m_ok->setEnabled(isGood);
    (shown.isEmpty() ? m_ok : m_proposal)->setDefault(true); // for Enter
}
