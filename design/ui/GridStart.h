#pragma once

#include "design/ui/DesignEdit.h"

#include <QWidget>

#include <array>

class ChoiceBox;
class NoteLabel;
class QCheckBox;
class QFormLayout;

/// Where the generation of one grid begins: first numbers, start position, azimuth, and the side on
/// which lines follow.
class GridStart final : public QWidget
{
    Q_OBJECT

public:
    GridStart(GridKind kind, QWidget* parent);

    [[nodiscard]] const std::array<DesignEdit*, 5>& edits() const { return m_edits; }
    [[nodiscard]] QCheckBox& reversal() { return *m_reversal; }
    [[nodiscard]] NoteLabel& note() { return *m_note; }

    void setFormat(AzimuthFormat format);

Q_SIGNALS:
    void formatChosen(AzimuthFormat format);
    void placeWanted();
    void azimuthWanted();

private:
    void addEdit(QFormLayout& form, DesignEdit* edit, QWidget* beside = nullptr);
    void addButton(QFormLayout& form, const QString& text, const QString& tip,
                   void (GridStart::*wanted)());
    [[nodiscard]] ChoiceBox* makeFormats();

    std::array<DesignEdit*, 5> m_edits; ///< from the first line's number to the azimuth
    ChoiceBox* m_formats;
    QCheckBox* m_reversal;
    NoteLabel* m_note;
};
