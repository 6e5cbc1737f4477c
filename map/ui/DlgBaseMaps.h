#pragma once

#include "lum_desktop_sdkx/dialogs/Dialog.h"
#include "lum_sdk/raster/BaseMapList.h"

class BaseMapForm;
class IDesktopHost;
class QLabel;
class QPushButton;
class QSpinBox;
class QTreeWidget;
class QTreeWidgetItem;

/// Edits the user's list of base maps. The installed ones can be changed, hidden and put back; the
/// user's own can be added and removed. Also tells how much the tiles take that are kept on the
/// disk, limits and deletes them.
///
/// OK keeps the list and publishes "UPDATE_SYSTEM_STATUS_EVENT"; what cannot be used is shown where
/// it stands, and the dialog stays open.
class DlgBaseMaps final : public Dialog
{
    Q_OBJECT

public:
    explicit DlgBaseMaps(IDesktopHost& host);

    void accept() override;

private:
    using Entry = lum::BaseMapList::Entry;

    [[nodiscard]] QLayout* makeList();
    [[nodiscard]] QLayout* makeCacheRow();
    [[nodiscard]] QLayout* makeButtons();
    QPushButton* addButton(QLayout& row, const QString& text, const QString& tip,
                           void (DlgBaseMaps::*clicked)());

    void fillList();
    void addRow(const Entry& entry);
    void showRow(QTreeWidgetItem& row, const Entry& entry);
    void select(int row);
    [[nodiscard]] Entry* current();

    void onSelected();
    void onChecked(QTreeWidgetItem* row);
    void onEdited();
    void add();
    void remove();
    void reset();
    void clearTiles();
    void acceptAndShow();

    /// Shows what is wrong with the current one, and what can be done with it.
    void judge();
    [[nodiscard]] QString faultOf(const Entry& entry) const;
    /// Whether it can be in the list: also what is hidden, and a file on a disk that is not there.
    [[nodiscard]] bool mayStay(const Entry& entry) const;
    [[nodiscard]] bool isNameTaken(const QString& name, const Entry& by) const;
    void showTiles();

    IDesktopHost& m_host;
    std::vector<Entry> m_entries; ///< in the order of the rows
    QTreeWidget* m_list;
    BaseMapForm* m_form;
    QPushButton* m_remove = nullptr;
    QPushButton* m_reset = nullptr;
    QPushButton* m_show = nullptr;
    QLabel* m_tiles;
    QSpinBox* m_limit;
};
