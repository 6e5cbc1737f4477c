#pragma once

#include "basalt_utilities/Dictionary.h"
#include "lum_desktop_sdkx/controls/PropertyGridLayout.h"

#include <QByteArray>
#include <QWidget>

#include <vector>

class PropertyGridModel;
class PropertyGridView;
class QAction;
class QLabel;
class QModelIndex;

/// The property grid. It shows and edits the values of a dictionary in the rows of a control file
/// (`PropertyGridLayout.h`).
///
/// A value is checked when the user enters it. A bad value is marked in its row, and no signal is
/// sent for it: `getData` keeps the last good value. A text that was not edited comes out byte for
/// byte as it came in. Ctrl+C copies the value of a row, Ctrl+Shift+C all rows; so does the context
/// menu.
class PropertyGridCtrl : public QWidget
{
    Q_OBJECT

public:
    /// How the width of the caption column is set. The value column takes the rest.
    enum class ResizeMode
    {
        Interactive = 0, ///< the user drags it
        Stretch = 1,     ///< both columns share the width
        Fixed = 2,       ///< the width stays as it is
        ResizeToContents = 3
    };

    explicit PropertyGridCtrl(QWidget* parent = nullptr);
    ~PropertyGridCtrl() override;

    /// Shows `values` in the rows of the control file. When it is the same file as before, only the
    /// values are replaced: scroll position, closed groups and hidden rows stay.
    /// \returns false, and leaves the grid as it was, when the file is missing or malformed; the
    ///          log names file, line and reason
    bool init(const QString& controlXmlPath, const IDictionary& values);

    /// The same for rows that no control file has, with texts in the user's language.
    void init(PropertyGridLayout layout, const IDictionary& values);

    /// Why the last `init` failed; empty when it did not.
    [[nodiscard]] const QString& initFault() const { return m_initFault; }

    /// Replaces one value without a signal. `getData` also returns a key without a row.
    void setValue(const QString& key, const QString& text);

    /// All values, with the edits. It takes the text of an open editor first.
    [[nodiscard]] basalt::Dictionary getData();

    /// True while a row holds a bad value. It takes the text of an open editor first.
    [[nodiscard]] bool hasFaults();

    /// The caption of the topmost bad value and what is wrong with it; empty when nothing is.
    [[nodiscard]] QString faultText() const;

    /// Marks the value of a row as bad for a reason that only the caller knows. There is one such
    /// mark: it replaces the one before, and an empty key removes it. It counts as a fault until it
    /// is removed or the value is edited.
    void markRow(const QString& key, const QString& message);

    /// Shows a sentence under a row whose value is good, and yet not what the user may have meant.
    /// An empty sentence removes it.
    void setRowNote(const QString& key, const QString& sentence);

    /// Selects the topmost bad value and scrolls to it.
    void goToFault();

    /// The caption of a row as it is shown; empty when no row has this key.
    [[nodiscard]] QString rowCaption(const QString& key) const;

    /// Both replace the text of the control file. The text is in the user's language.
    void setRowCaption(const QString& key, const QString& caption);
    void setRowUnit(const QString& key, const QString& unit);

    /// Adds choices to those that the control file gives a row. Values that it has are passed over.
    void addRowChoices(const QString& key, const std::vector<PropertyGridChoice>& choices);

    /// Shows a pencil in the rows that can be edited, for a grid in which most cannot.
    void setEditableMarked(bool marked);

    /// Shows the values of all rows without letting the user change them, but for those of `keys`.
    void setReadOnlyBut(const QStringList& keys);

    /// Adds an entry to the context menu.
    [[nodiscard]] QAction* addMenuEntry(const QString& text);

    void setResizeMode(ResizeMode mode);
    void setHeaderVisible(bool visible);

    /// Shows or hides the text under the grid that describes the selected row.
    void setDescriptionVisible(bool visible);

    /// Shows or hides a row. A row that gets hidden drops a bad value that was typed. A group
    /// without visible rows is hidden.
    void setRowVisible(const QString& key, bool visible);

Q_SIGNALS:
    /// The user has entered a good value that differs from the one before.
    void valueChanged(const QString& key, const QString& value);
    /// The user has entered a bad value, or a good one in its place.
    void faultChanged();

    /// The good value that the row shows: while the user types in its editor, and once more when
    /// the editor is closed.
    void valueShown(const QString& key, const QString& value);

private:
    void makeCopyActions();
    void describe(const QModelIndex& index);

    PropertyGridModel* m_model;
    PropertyGridView* m_view;
    QLabel* m_description;
    QByteArray m_controlXml;
    QString m_initFault;
};
