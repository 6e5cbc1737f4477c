#pragma once

#include <QAbstractTableModel>

#include <set>
#include <string>
#include <vector>

class IDictionary;

/// The parameters of two coordinate systems side by side: a sign where they differ, the name as in
/// the coordinate dialog with its group, the value in the file's system and in the project's. Those
/// that differ stand first, on a colour. A parameter that a system does not use has a dash.
class CoordParameterModel final : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column
    {
        Sign,
        Parameter,
        FileSystem,
        ProjectSystem,
        Columns
    };

    CoordParameterModel(const IDictionary& current, const IDictionary& file,
                        QObject* parent = nullptr);

    /// How many rows are marked.
    [[nodiscard]] int differenceCount() const { return m_differences; }

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation,
                                      int role) const override;

private:
    struct Row
    {
        QString name;
        QString description;
        QString file;
        QString current;
        bool isDifferent = false;
        bool isOnTop = false; ///< it differs, or belongs to a switch that does
    };

    void addIdentity(const IDictionary& current, const IDictionary& file);
    void addParameters(const IDictionary& current, const IDictionary& file,
                       const std::set<std::string>& different);

    std::vector<Row> m_rows;
    int m_differences = 0;
};
