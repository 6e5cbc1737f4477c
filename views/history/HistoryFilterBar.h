#pragma once

#include "views/history/HistoryActionModel.h"

#include <QTimer>
#include <QWidget>

class ChoiceBox;
class QCheckBox;
class QDateEdit;
class QGridLayout;
class QLineEdit;

/// The fields that choose actions of the history: by person, kind, days and point.
class HistoryFilterBar final : public QWidget
{
    Q_OBJECT

public:
    explicit HistoryFilterBar(QWidget* parent);

    /// A fault leaves its part of the filter out.
    [[nodiscard]] HistoryFilter filter() const;
    [[nodiscard]] bool isFiltered() const;
    /// What is wrong with what was typed; empty when nothing is.
    [[nodiscard]] QString fault() const;

    /// Adds what the lists do not have: persons, and kinds that this version does not know.
    void addChoices(const HistoryActionModel::Rows& rows);
    void setPoint(const PointName& point);

Q_SIGNALS:
    void changed();

private:
    void makeChoices(QGridLayout& grid);
    void makeDays(QGridLayout& grid);
    void clear();
    [[nodiscard]] std::optional<PointName> typedPoint() const;

    ChoiceBox* m_person;
    ChoiceBox* m_kind;
    QLineEdit* m_point;
    QCheckBox* m_hasDays;
    QDateEdit* m_from;
    QDateEdit* m_to;
    PointName m_named; ///< by another window; it knows which slash stands between its numbers
    QTimer m_typing;   ///< ends when the user has stopped typing
};
