#pragma once

#include <QWidget>

/// A sentence in the status bar. One that is longer than its place is cut; the tool tip has
/// the whole.
class StatusText final : public QWidget
{
    Q_OBJECT

public:
    using QWidget::QWidget;

    void setText(const QString& text);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QString m_text;
};
