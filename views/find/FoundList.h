#pragma once

#include "views/find/PointFinder.h"

#include <QTreeWidget>

/// What was found, a row each: data (design or survey), kind, line, point. It does not take the
/// focus: the field above it keeps it.
class FoundList final : public QTreeWidget
{
    Q_OBJECT

public:
    /// The rows that are seen at once, at most.
    static constexpr int kMostRows = 12;

    explicit FoundList(QWidget* parent);

    void setPlaces(const std::vector<FoundPlace>& places);
    void setCurrentRow(int row);

    /// Gives the columns their shares of `width`.
    void shareWidth(int width);
    /// The height that shows all rows, or the most that are seen at once.
    [[nodiscard]] int neededHeight() const;

Q_SIGNALS:
    void rowClicked(int row);
};
