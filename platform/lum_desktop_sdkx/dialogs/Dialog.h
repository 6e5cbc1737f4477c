#pragma once

#include <QDialog>

class QVBoxLayout;

/// The base of every dialog: one look, no context-help button, lengths scaled for the screen.
/// Escape rejects.
class Dialog : public QDialog
{
    Q_OBJECT

public:
    explicit Dialog(QWidget* parent = nullptr);

    /// Logical pixels, scaled here.
    void setMinimumSizeScaled(int width, int height);
    void setFixedSizeScaled(int width, int height);

protected:
    /// The outermost layout, with the margins and spacing that all dialogs share.
    QVBoxLayout* makeMainLayout();

    /// Takes the size that the last dialog with the same key had when it was closed in this
    /// process, and keeps its own when it is closed. Called once, after the minimum size is set.
    void rememberSize(const QString& key);

    void hideEvent(QHideEvent* event) override;

private:
    QString m_sizeKey;
};
