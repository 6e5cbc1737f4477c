#pragma once

#include "basalt_utilities/Dictionary.h"

#include <QByteArray>
#include <QWidget>

class PropertyGridModel;
class PropertyGridView;
class QLabel;
class QModelIndex;

/// The property grid: shows and edits the values of a dictionary in the rows of a control file
/// (`PropertyGridLayout.h`).
///
/// What is typed is judged when it is entered. A bad value is marked where it stands, and is
/// neither announced nor handed out: the last good one stays. A text that was not edited is handed
/// out byte for byte as it came in.
class PropertyGridCtrl : public QWidget
{
    Q_OBJECT

public:
    /// How the caption column takes its width; the value column takes what is left.
    enum class ResizeMode
    {
        Interactive = 0, ///< the user drags it
        Stretch = 1,     ///< both columns share the width
        Fixed = 2,       ///< stays as it is
        ResizeToContents = 3
    };

    explicit PropertyGridCtrl(QWidget* parent = nullptr);

    /// Shows `values` in the rows of the control file. The same control file again only replaces
    /// the values, so that scroll place, closed groups and hidden rows stay.
    /// \returns false, with the grid as it was and file, line and reason in the log, when the file
    ///          is missing or malformed
    bool init(const QString& controlXmlPath, const IDictionary& values);

    /// Replaces one value without announcing it; a key without a row is handed out all the same.
    void setValue(const QString& key, const QString& text);

    /// All values that came in, with the edits in place; takes the open editor's text first.
    [[nodiscard]] basalt::Dictionary getData();

    /// True while a bad value stands in a row; takes the open editor's text first.
    [[nodiscard]] bool hasFaults();

    /// Marks a row whose value is bad for a reason that only the owner knows; the mark made before
    /// goes. It counts as a fault until it is taken off, by an empty key, or the value is edited.
    void markRow(const QString& key, const QString& message);

    /// Selects the topmost bad value and scrolls to it.
    void goToFault();

    /// Caption and unit in place of those of the control file, in the user's language.
    void setRowCaption(const QString& key, const QString& caption);
    void setRowUnit(const QString& key, const QString& unit);

    void setResizeMode(ResizeMode mode);
    void setHeaderVisible(bool visible);

    /// The pane under the grid that describes the selected row.
    void setDescriptionVisible(bool visible);

    /// A hidden row gives up what was typed wrongly in it. A group without visible rows is hidden.
    void setRowVisible(const QString& key, bool visible);

Q_SIGNALS:
    /// The user entered a good value that differs from the one before.
    void valueChanged(const QString& key, const QString& value);

private:
    void describe(const QModelIndex& index);

    PropertyGridModel* m_model;
    PropertyGridView* m_view;
    QLabel* m_description;
    QByteArray m_controlXml;
};
