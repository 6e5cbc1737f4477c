#pragma once

#include <QAbstractListModel>
#include <QStringList>

#include <vector>

class IDictionary;

/// All columns of a survey export with a check mark each, in the order in which they will stand in
/// the file: for a list in which the user checks columns and moves them.
///
/// Line and point number cannot be unchecked, since no row is written without them.
class ExportColumnsModel final : public QAbstractListModel
{
    Q_OBJECT

public:
    explicit ExportColumnsModel(QObject* parent = nullptr);

    /// The chosen columns come first, in their order, then the others in the order of
    /// `surveyColumns()`.
    void load(const IDictionary& settings);
    /// Puts the choice into `settings`; saving them is the caller's task.
    void store(IDictionary& settings) const;
    /// Checks all columns, in the order of `surveyColumns()`.
    void reset();

    /// The keys of the checked columns, in their order.
    [[nodiscard]] QStringList chosenKeys() const;

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;
    [[nodiscard]] Qt::ItemFlags flags(const QModelIndex& index) const override;
    bool moveRows(const QModelIndex& sourceParent, int sourceRow, int count,
                  const QModelIndex& destinationParent, int destinationChild) override;

private:
    struct Row
    {
        std::size_t column; ///< in `surveyColumns()`
        bool isChosen;
    };

    void setChosen(const QStringList& keys);

    QStringList m_captions;
    std::vector<Row> m_rows;
};
