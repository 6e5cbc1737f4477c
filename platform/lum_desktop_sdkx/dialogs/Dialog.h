#pragma once

#include <QDialog>

class QVBoxLayout;

/// The base of every dialog: the same margins, no context-help button, lengths scaled for the
/// screen. Escape rejects.
class Dialog : public QDialog
{
    Q_OBJECT

public:
    explicit Dialog(QWidget* parent = nullptr);

    /// Both take logical pixels, and scale them for the screen.
    void setMinimumSizeScaled(int width, int height);
    void setFixedSizeScaled(int width, int height);

protected:
    /// The outermost layout, with the margins and spacing that all dialogs share.
    QVBoxLayout* makeMainLayout();

    /// Gives the dialog the size that the last dialog with the same key had when it was closed, and
    /// remembers its size when it is closed, both in this process only. Called once, after the
    /// minimum size was set.
    void rememberSize(const QString& key);

    void hideEvent(QHideEvent* event) override;

private:
    QString m_sizeKey;
};
