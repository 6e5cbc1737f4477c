#include "map/ui/DlgBaseMaps.h"

#include "lum_desktop_sdkx/controls/FaultColors.h"
#include "lum_desktop_sdkx/dialogs/LumMessageBox.h"
#include "lum_desktop_sdkx/IDesktopHost.h"
#include "lum_sdk/events/IEventManager.h"
#include "lum_sdk/files/SystemDictionaries.h"
#include "lum_sdk/raster/TileCache.h"
#include "lum_sdk/raster/UserBaseMaps.h"
#include "map/ui/BaseMapForm.h"
#include "map/ui/BaseMapSwitch.h"
#include "protocol/Events.h"

#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QSignalBlocker>
#include <QSpinBox>
#include <QTreeWidget>
#include <QVBoxLayout>

#include <algorithm>

namespace {

constexpr int kGreatestCacheMb = 100000;

QString megabytes(qint64 bytes)
{
    return QLocale(QLocale::English).toString(static_cast<double>(bytes) / (1 << 20), 'f', 1);
}

/// A base map of the user's own; the file's or service's address is still to come.
lum::BaseMapList::Entry newEntry(const QString& name)
{
    lum::BaseMapList::Entry entry;
    entry.map.name = name;
    return entry;
}

} // namespace

DlgBaseMaps::DlgBaseMaps(IDesktopHost& host)
    : Dialog(host.dialogParent()), m_host(host), m_entries(lum::userBaseMaps().entries()),
      m_list(new QTreeWidget(this)), m_form(new BaseMapForm(this)), m_tiles(new QLabel(this)),
      m_limit(new QSpinBox(this))
{
    setWindowTitle(tr("Base Maps"));
    auto* const halves = new QHBoxLayout;
    halves->addLayout(makeList(), 2);
    halves->addWidget(m_form, 3);
    QVBoxLayout* const rows = makeMainLayout();
    if (const QString fault = lum::userBaseMapsFault(); !fault.isEmpty()) {
        auto* const label = new QLabel(
            fault + QLatin1Char('\n') + tr("OK writes a new one and keeps the old one beside it."),
            this);
        label->setTextFormat(Qt::PlainText);
        label->setWordWrap(true);
        rows->addWidget(label);
    }
    rows->addLayout(halves, 1);
    rows->addLayout(makeCacheRow());
    rows->addLayout(makeButtons());

    connect(m_form, &BaseMapForm::edited, this, &DlgBaseMaps::onEdited);
    fillList();
    setMinimumSizeScaled(820, 440);
    rememberSize(QStringLiteral("BaseMaps"));
}

QLayout* DlgBaseMaps::makeList()
{
    m_list->setHeaderLabels({tr("Name"), tr("Kind")});
    m_list->setRootIsDecorated(false);
    m_list->setAllColumnsShowFocus(true);
    m_list->header()->setSectionResizeMode(0, QHeaderView::Stretch);
    m_list->header()->setSectionResizeMode(1, QHeaderView::ResizeToContents);
    m_list->header()->setStretchLastSection(false);
    connect(m_list, &QTreeWidget::currentItemChanged, this, &DlgBaseMaps::onSelected);
    connect(m_list, &QTreeWidget::itemPressed, this, [this](QTreeWidgetItem* row) {
        m_list->setCurrentItem(row, 0); // where the space bar finds the check mark
    });
    connect(m_list, &QTreeWidget::itemChanged, this, &DlgBaseMaps::onChecked);
    auto* const buttons = new QHBoxLayout;
    addButton(*buttons, tr("&Add"), tr("Add a base map of your own"), &DlgBaseMaps::add);
    m_remove =
        addButton(*buttons, tr("&Remove"),
                  tr("Remove a base map of your own; an installed one is only hidden, by its "
                     "check mark"),
                  &DlgBaseMaps::remove);
    m_reset = addButton(*buttons, tr("&Put Back"), tr("Make it as it was installed"),
                        &DlgBaseMaps::reset);
    auto* const column = new QVBoxLayout;
    column->addWidget(m_list, 1);
    column->addLayout(buttons);
    return column;
}

QPushButton* DlgBaseMaps::addButton(QLayout& row, const QString& text, const QString& tip,
                                    void (DlgBaseMaps::*clicked)())
{
    auto* const button = new QPushButton(text, this);
    button->setToolTip(tip);
    button->setAutoDefault(false); // Enter is for OK
    connect(button, &QPushButton::clicked, this, clicked);
    row.addWidget(button);
    return button;
}

QLayout* DlgBaseMaps::makeCacheRow()
{
    m_limit->setRange(0, kGreatestCacheMb);
    m_limit->setSuffix(QStringLiteral(" ") + tr("MB"));
    m_limit->setValue(static_cast<int>(lum::userTileFetching().cacheLimitBytes >> 20));
    auto* const limit = new QLabel(tr("At &most:"), this);
    limit->setBuddy(m_limit);
    auto* const row = new QHBoxLayout;
    row->addWidget(m_tiles);
    row->addStretch();
    row->addWidget(limit);
    row->addWidget(m_limit);
    addButton(*row, tr("&Clear"), tr("Delete the tiles; they are fetched again when needed"),
              &DlgBaseMaps::clearTiles);
    showTiles();
    return row;
}

QLayout* DlgBaseMaps::makeButtons()
{
    auto* const row = new QHBoxLayout;
    m_show = addButton(*row, tr("&Show on Map"), tr("Keep the list, and show this base map"),
                       &DlgBaseMaps::acceptAndShow);
    auto* const buttons =
        new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    buttons->button(QDialogButtonBox::Ok)->setDefault(true);
    connect(buttons, &QDialogButtonBox::accepted, this, &DlgBaseMaps::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    row->addWidget(buttons, 1);
    return row;
}

// --- rows ---

void DlgBaseMaps::fillList()
{
    for (const Entry& entry : m_entries)
        addRow(entry);
    const lum::BaseMap* const last = lum::chosenBaseMap();
    const auto shown = std::find_if(m_entries.begin(), m_entries.end(), [&](const Entry& entry) {
        return last != nullptr && entry.map == *last;
    });
    select(shown == m_entries.end() ? 0 : static_cast<int>(shown - m_entries.begin()));
}

void DlgBaseMaps::addRow(const Entry& entry)
{
    const QSignalBlocker quiet(m_list);
    showRow(*new QTreeWidgetItem(m_list), entry);
}

void DlgBaseMaps::showRow(QTreeWidgetItem& row, const Entry& entry)
{
    row.setText(0, entry.map.name);
    row.setText(1, BaseMapForm::captionOf(entry.map.kind));
    row.setCheckState(0, entry.isHidden ? Qt::Unchecked : Qt::Checked);
    row.setToolTip(0, entry.map.address);
    const bool isFaulty = !entry.isHidden && !faultOf(entry).isEmpty();
    row.setForeground(0, isFaulty ? QBrush(faultText(palette())) : QBrush());
}

void DlgBaseMaps::select(int row)
{
    m_list->setCurrentItem(m_list->topLevelItem(row));
    onSelected();
}

DlgBaseMaps::Entry* DlgBaseMaps::current()
{
    const int row = m_list->indexOfTopLevelItem(m_list->currentItem());
    return row < 0 ? nullptr : &m_entries[static_cast<std::size_t>(row)];
}

void DlgBaseMaps::onSelected()
{
    const Entry* const entry = current();
    m_form->setEnabled(entry != nullptr);
    m_form->set(entry != nullptr ? entry->map : lum::BaseMap());
    judge();
}

void DlgBaseMaps::onChecked(QTreeWidgetItem* row)
{
    Entry& entry = m_entries[static_cast<std::size_t>(m_list->indexOfTopLevelItem(row))];
    entry.isHidden = row->checkState(0) == Qt::Unchecked;
    judge();
}

void DlgBaseMaps::onEdited()
{
    Entry* const entry = current();
    if (entry == nullptr)
        return;
    entry->map = m_form->map();
    judge();
}

void DlgBaseMaps::judge()
{
    const QSignalBlocker quiet(m_list);
    for (std::size_t i = 0; i < m_entries.size(); ++i) // a name may be taken no more
        showRow(*m_list->topLevelItem(static_cast<int>(i)), m_entries[i]);
    const Entry* const entry = current();
    const QString fault = entry != nullptr ? faultOf(*entry) : QString();
    m_form->showFault(fault);
    const bool isInstalled = entry != nullptr && entry->installed;
    m_remove->setEnabled(entry != nullptr && !isInstalled);
    m_reset->setEnabled(isInstalled && (entry->map != *entry->installed || entry->isHidden));
    m_show->setEnabled(entry != nullptr && fault.isEmpty() && !entry->isHidden &&
                       BaseMapSwitch::isPossible(m_host));
}

QString DlgBaseMaps::faultOf(const Entry& entry) const
{
    return isNameTaken(entry.map.name, entry) ? tr("Another base map has this name.")
                                              : lum::faultOf(entry.map);
}

bool DlgBaseMaps::mayStay(const Entry& entry) const
{
    const bool isNamed = !entry.map.name.isEmpty() && !isNameTaken(entry.map.name, entry);
    const bool isOnDisk = isNamed && !entry.map.attribution.isEmpty() &&
                          !entry.map.address.isEmpty() && lum::isFile(entry.map);
    return entry.isHidden || isOnDisk || faultOf(entry).isEmpty();
}

bool DlgBaseMaps::isNameTaken(const QString& name, const Entry& by) const
{
    return std::any_of(m_entries.begin(), m_entries.end(), [&](const Entry& other) {
        return &other != &by && other.map.name.compare(name, Qt::CaseInsensitive) == 0;
    });
}

// --- what the buttons do ---

void DlgBaseMaps::add()
{
    Entry entry = newEntry(tr("New base map"));
    for (int number = 2; isNameTaken(entry.map.name, entry); ++number)
        entry.map.name = tr("New base map %1").arg(number);
    m_entries.push_back(entry);
    addRow(m_entries.back());
    select(static_cast<int>(m_entries.size()) - 1);
    m_form->goToName();
}

void DlgBaseMaps::remove()
{
    const int row = m_list->indexOfTopLevelItem(m_list->currentItem());
    if (row < 0)
        return;
    {
        const QSignalBlocker quiet(m_list);
        m_entries.erase(m_entries.begin() + row);
        const std::unique_ptr<QTreeWidgetItem> item(m_list->takeTopLevelItem(row));
    }
    select(std::min(row, m_list->topLevelItemCount() - 1));
}

void DlgBaseMaps::reset()
{
    Entry* const entry = current();
    if (entry == nullptr || !entry->installed)
        return;
    entry->map = *entry->installed;
    entry->isHidden = false;
    onSelected();
}

void DlgBaseMaps::clearTiles()
{
    const lum::TileCache cache(lum::userTileFetching().cacheFolder);
    if (const QString fault = cache.clear(); !fault.isEmpty())
        LumMessageBox::error(this, windowTitle(), fault);
    showTiles();
    BaseMapSwitch::restart(m_host); // what it shows may have come from there
}

void DlgBaseMaps::showTiles()
{
    const qint64 bytes = lum::TileCache(lum::userTileFetching().cacheFolder).sizeBytes();
    m_tiles->setText(tr("Tiles kept on this computer: %1 MB").arg(megabytes(bytes)));
}

void DlgBaseMaps::accept()
{
    const Entry* const edited = current(); // of two with the same name, this one is to be changed
    const auto faulty = edited != nullptr && !mayStay(*edited)
                            ? m_entries.cbegin() + (edited - m_entries.data())
                            : std::find_if(m_entries.cbegin(), m_entries.cend(),
                                           [this](const Entry& entry) { return !mayStay(entry); });
    if (faulty != m_entries.cend()) {
        select(static_cast<int>(faulty - m_entries.cbegin()));
        m_form->goToFault();
        return;
    }
    SystemParameter& settings = get_system_ini_parameter();
    settings.dictionary().set(settings::kTileCacheMb, std::to_string(m_limit->value()));
    settings.save(); // a failure is logged; the limit holds until the program ends
    const lum::TileFetching fetching = lum::userTileFetching();
    lum::TileCache(fetching.cacheFolder).trim(fetching.cacheLimitBytes);
    if (const QString fault = lum::setUserBaseMaps(m_entries); !fault.isEmpty())
        LumMessageBox::error(this, windowTitle(),
                             tr("The list cannot be saved. It holds until the program ends."),
                             fault);
    if (BaseMapSwitch::isOn(m_host) && lum::lastBaseMap() == nullptr)
        BaseMapSwitch::turnOff(m_host); // what was shown is no longer in the list
    m_host.eventManager().publish(events::kUpdateSystemStatus, nullptr, 0);
    Dialog::accept();
}

void DlgBaseMaps::acceptAndShow()
{
    const Entry* const entry = current();
    if (entry == nullptr)
        return;
    const lum::BaseMap map = entry->map;
    accept();
    if (result() == Accepted)
        BaseMapSwitch::turnOn(m_host, map);
}
