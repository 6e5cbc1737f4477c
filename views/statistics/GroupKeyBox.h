#pragma once

#include "views/statistics/StatisticsTableModel.h"

#include <QComboBox>

/// By what the results are grouped. The user's settings keep the choice.
class GroupKeyBox final : public QComboBox
{
    Q_OBJECT

public:
    explicit GroupKeyBox(QWidget* parent);

    [[nodiscard]] StatisticsTableModel::Key key() const;

Q_SIGNALS:
    /// The user has chosen another one.
    void keyChanged();
};
