#pragma once

#include <QGroupBox>
#include <QStringList>

class QCheckBox;
class QListWidget;
class ResultDays;
struct ReportChoice;

/// Chooses the surveyors whose results count.
class CrewPanel final : public QGroupBox
{
    Q_OBJECT

public:
    CrewPanel(const ResultDays& results, const QStringList& leftOut, QWidget* parent);

    [[nodiscard]] QStringList chosen() const { return surveyors(Qt::Checked); }
    [[nodiscard]] QStringList leftOut() const { return surveyors(Qt::Unchecked); }
    /// Sets the surveyors.
    void apply(ReportChoice& report) const;
    /// What is wrong with the choice, a translated sentence; empty when it is good.
    [[nodiscard]] QString fault() const;

Q_SIGNALS:
    void changed();

private:
    [[nodiscard]] QStringList surveyors(Qt::CheckState state) const;
    void setAll(bool isChecked);
    void showWhetherAll();

    QCheckBox* m_all;
    QListWidget* m_list;
};
