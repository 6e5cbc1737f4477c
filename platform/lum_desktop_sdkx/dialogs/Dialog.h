#pragma once

#include <QDialog>

class QVBoxLayout;

/// The base of every dialog: the same margins, no context-help button, lengths scaled for the
/// screen. Escape rejects.
///
/// A dialog is never larger than its screen. When its outermost layout, a box from top to bottom,
/// needs more room than there is, all but its last row, the buttons, moves into a scroll area.
class Dialog : public QDialog
{
    Q_OBJECT

public:
    explicit Dialog(QWidget* parent = nullptr);

    /// Both take logical pixels, and scale them for the screen.
    void setMinimumSizeScaled(int width, int height);
    void setFixedSizeScaled(int width, int height);

    void setVisible(bool visible) override;

protected:
    /// For a window beside the work, of a known size: puts it into the lower right corner of its
    /// parent, away from other dialogs that are there already.
    void moveIntoCorner();

    /// The outermost layout, with the margins and spacing that all dialogs share.
    QVBoxLayout* makeMainLayout();

    /// Gives the dialog the size that the last dialog with the same key had when it was closed, and
    /// remembers its size when it is closed, both in this process only. Called once, after the
    /// minimum size was set.
    void rememberSize(const QString& key);

    bool event(QEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    void fit();
    void scrollContent(QVBoxLayout& rows);

    QString m_sizeKey;
    bool m_scrolls = false;
    bool m_hasFrame = false; ///< the window manager has given it one
};
