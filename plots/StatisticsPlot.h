#pragma once

#include "plots/PanelColumn.h"
#include "plots/PlotData.h"
#include "plots/PlotLegend.h"
#include "plots/PlotPanel.h"
#include "protocol/Outcome.h"

#include <QWidget>

class PlotMouse;
class QLabel;
class QTimer;

/// A plot of survey results with legend, data and a note.
///
/// The wheel zooms about the cursor, the middle button and the arrow keys move, plus and minus
/// zoom. A drag with the left button zooms or selects. A click selects what lies under it, a double
/// click activates a result; beside results it shows everything, and then what is usually seen. The
/// latter leaves out the few values that lie far from all others.
///
/// On the screen it looks as the program does, in files, on the clipboard and on paper always dark
/// on white.
class StatisticsPlot : public QWidget
{
    Q_OBJECT

public:
    enum class Mouse
    {
        Select,
        Zoom
    };

    /// Shows the data; of the same subject as before, at the same scale.
    void setData(PlotData data);
    [[nodiscard]] const PlotData& data() const { return m_data; }
    /// Marks results. Announces nothing.
    /// \param places in the sample
    void setSelected(const std::vector<std::uint32_t>& places);

    /// What a drag with the left button does.
    void setMouse(Mouse mouse) { m_mouse = mouse; }
    [[nodiscard]] Mouse mouse() const { return m_mouse; }
    /// Shows everything.
    void showAll();
    /// Shows what is seen at first.
    void showUsual();
    void zoomIn();
    void zoomOut();

    /// Writes a file, by its ending a PNG, SVG or PDF.
    [[nodiscard]] Outcome save(const QString& path);
    /// For file dialogs, and the endings without a point.
    [[nodiscard]] static QStringList fileEndings();
    /// Puts a picture on the clipboard.
    void copy();
    /// Paints it as it is shown, with its title, on paper.
    /// \param rectangle of the painter's coordinates before any scaling: device pixels of a picture
    ///                  or a page
    void paint(QPainter& painter, const QRectF& rectangle);

    /// What it is called, with its subject.
    [[nodiscard]] QString title() const;
    /// The sentences below the data; with them, how many results lie outside of the picture.
    [[nodiscard]] QString note() const;
    /// With how figures are computed, which is a tool tip on the screen.
    [[nodiscard]] QString noteOnPaper() const;
    [[nodiscard]] const PlotLegend& legend() const { return *m_legend; }
    [[nodiscard]] PanelColumn& column() const { return *m_column; }
    [[nodiscard]] const std::vector<PlotPanel*>& panels() const { return m_column->panels(); }
    /// Whether there is nothing to show.
    [[nodiscard]] bool isEmpty() const { return !m_empty.isEmpty(); }
    /// Why.
    [[nodiscard]] const QString& emptyText() const { return m_empty; }
    /// Its present colours.
    [[nodiscard]] const PlotLook& look() const { return m_look; }

    // What its mouse asks for.
    void setView(PlotPanel& panel, const PlotPanel::View& view);
    void select(const PlotPanel& panel, const QRectF& rectangle);
    void pick(const PlotPanel& panel, const QPoint& at);
    void open(const PlotPanel& panel, const QPoint& at);
    [[nodiscard]] QString tipAt(const PlotPanel& panel, const QPoint& at) const;

Q_SIGNALS:
    /// The user has selected results; none by a click on an empty place.
    void selected(const std::vector<std::uint32_t>& places);
    void activated(std::uint32_t place);

protected:
    /// \param panelCount panels with one x axis, below each other
    StatisticsPlot(int panelCount, QWidget* parent);

    /// Its name, translated.
    [[nodiscard]] virtual QString caption() const = 0;
    /// Fills the panels, which are empty, with the data. They have a sample and places.
    virtual void fill() = 0;

    [[nodiscard]] PlotPanel& panel(int place) const { return *panels()[std::size_t(place)]; }
    [[nodiscard]] const PlotSelection& selection() const { return m_selection; }
    void addLegend(PlotLegend::Sign sign, const QColor& color, const QString& text)
    {
        m_legend->add(sign, color, text);
    }
    /// Sentences below the data. \param method  how a figure is computed: on the screen a tool tip
    void setNote(const QString& note, const QString& method = {})
    {
        m_note = note;
        m_method = method;
    }
    /// Two sentences behind each other, as the language writes them; either may be empty.
    [[nodiscard]] static QString joined(const QString& first, const QString& second);
    /// Says that there is nothing to show, and why.
    void setEmpty(const QString& reason) { m_empty = reason; }

    void changeEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    void refill(const PlotLook& look);
    void updateParts();
    void updateNote();
    void showNote();
    void replotAll();
    void setViews(bool isUsual);
    void zoomAll(double factor);
    void pan(double right, double down);
    [[nodiscard]] std::optional<PlotItem::Hit> hitAt(const PlotPanel& panel,
                                                     const QPointF& at) const;

    PlotData m_data;
    PlotLook m_look;
    PlotSelection m_selection;
    PlotLegend* m_legend;
    PanelColumn* m_column;
    std::vector<PlotMouse*> m_mice;
    QLabel* m_noteLabel;
    QLabel* m_emptyLabel;
    QTimer* m_noteTimer; ///< what lies outside is counted when the picture rests
    QString m_note;
    QString m_method;
    QString m_empty;
    Mouse m_mouse = Mouse::Select;
    bool m_isUsual = true; ///< until the user zooms or moves
};
