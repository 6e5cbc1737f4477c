#pragma once

#include <QWidget>

#include <vector>

class PlotPanel;

/// The panels of a plot, below each other. Their canvases have one height, and begin at one place.
class PanelColumn final : public QWidget
{
    Q_OBJECT

public:
    using QWidget::QWidget;

    PlotPanel& addPanel();
    [[nodiscard]] const std::vector<PlotPanel*>& panels() const { return m_panels; }

    /// The height of a panel when all have so much together; the last one has the x axis as well.
    [[nodiscard]] double heightOf(const PlotPanel& panel, double height) const;
    /// Lets the canvases begin at the same place.
    void alignTexts();
    /// To be called when the texts of axes are others: shares the room anew.
    void align();

    [[nodiscard]] QSize minimumSizeHint() const override;

Q_SIGNALS:
    void resized();

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void placePanels();
    [[nodiscard]] int axisHeight() const;

    std::vector<PlotPanel*> m_panels;
    bool m_isAligning = false; ///< which resizes panels
};
