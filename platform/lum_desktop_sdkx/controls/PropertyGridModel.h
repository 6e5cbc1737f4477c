#pragma once

#include "basalt_utilities/Dictionary.h"
#include "lum_desktop_sdkx/controls/PropertyGridLayout.h"

#include <QAbstractItemModel>
#include <QHash>

/// The tree of a property grid: groups, and below each its rows, with caption and value.
///
/// The values are those of a dictionary. All its keys and bytes are kept. A bad value that was
/// typed is kept apart from them, and shown with a mark, until it is corrected or dropped.
class PropertyGridModel : public QAbstractItemModel
{
    Q_OBJECT

public:
    enum Column
    {
        Caption,
        Value
    };

    using QAbstractItemModel::QAbstractItemModel;

    void setLayout(PropertyGridLayout layout);

    /// Replaces the whole dictionary. A value that is no number or out of range is marked, and
    /// stays as it came until the user edits it.
    void setValues(const IDictionary& values);
    [[nodiscard]] const basalt::Dictionary& values() const { return m_values; }

    /// Sets one value without `valueEdited`. A key without a row is kept, too.
    void setValue(const QString& key, const QString& value);

    [[nodiscard]] bool hasFaults() const { return !m_faults.isEmpty(); }
    void dropFault(const QString& key);

    /// Marks the value of a row as bad for a reason that the layout does not know, and removes the
    /// mark that was made before. A bad value typed into the row keeps its own message. An unknown
    /// key marks no row.
    void mark(const QString& key, const QString& message);

    /// The cell of the topmost bad value; invalid when there is none.
    [[nodiscard]] QModelIndex firstFault() const;

    void setCaption(const QString& key, const QString& caption);
    void setUnit(const QString& key, const QString& unit);

    /// Values that the row has are passed over.
    void addChoices(const QString& key, const std::vector<PropertyGridChoice>& choices);

    /// Shows a pencil in the rows that can be edited.
    void setEditableMarked(bool marked) { m_isEditableMarked = marked; }

    /// Makes all rows read-only but those of some keys.
    void setReadOnlyBut(const QStringList& keys);

    /// The value cell of a row; invalid when no row has this key.
    [[nodiscard]] QModelIndex indexOfKey(const QString& key) const;

    /// The row at an index; null for a group. Valid until the next `setLayout`.
    [[nodiscard]] const PropertyGridRow* row(const QModelIndex& index) const;
    /// What is wrong with the value of a row; empty when nothing is.
    [[nodiscard]] QString fault(const QModelIndex& index) const;

    /// A sentence about the value of a row, which is none the less good. Empty without one.
    void setNote(const QString& key, const QString& sentence);
    [[nodiscard]] QString note(const QModelIndex& index) const;

    /// The value of a row, or its fallback.
    [[nodiscard]] QString value(const PropertyGridRow& row) const;

    [[nodiscard]] QModelIndex index(int row, int column,
                                    const QModelIndex& parent = {}) const override;
    [[nodiscard]] QModelIndex parent(const QModelIndex& index) const override;
    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] Qt::ItemFlags flags(const QModelIndex& index) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation,
                                      int role) const override;

Q_SIGNALS:
    /// The user has entered a good value that differs from the one before.
    void valueEdited(const QString& key, const QString& value);
    /// The user has entered a bad value, or a good one in its place.
    void faultChanged();

private:
    struct Fault
    {
        QString typed;
        QString message;
        bool isMark = false;
    };

    [[nodiscard]] QString shownOrTyped(const PropertyGridRow& row, bool shown) const;
    [[nodiscard]] QVariant valueData(const PropertyGridRow& row, int role) const;
    [[nodiscard]] PropertyGridRow* rowOfKey(const QString& key);
    void judge(const PropertyGridRow& row);
    bool enter(const QModelIndex& index, const QString& typed);
    void tellChanged(const QModelIndex& index);

    PropertyGridLayout m_layout;
    basalt::Dictionary m_values;
    QHash<QString, Fault> m_faults;  ///< by row key
    QHash<QString, QString> m_notes; ///< by row key
    bool m_isEditableMarked = false;
};
