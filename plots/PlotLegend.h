#pragma once

#include <QColor>
#include <QString>
#include <QWidget>

#include <vector>

/// What colours and lines of a plot mean: entries one behind the other, in as many rows as they
/// need. Long names are shortened in their middle; what has no room in `kMostRows` even then is
/// counted.
class PlotLegend : public QWidget
{
    Q_OBJECT

public:
    enum class Sign
    {
        Disc,
        Box,
        Line,
        DashedLine
    };
    struct Entry
    {
        Sign sign = Sign::Disc;
        QColor color;
        QString text;
    };
    static constexpr int kMostRows = 3;

    explicit PlotLegend(QWidget* parent);

    void clear();
    void add(Sign sign, const QColor& color, const QString& text);
    [[nodiscard]] const std::vector<Entry>& entries() const { return m_entries; }

    /// Paints into a rectangle of at least `heightFor` its width, logical pixels.
    void paint(QPainter& painter, const QRectF& rectangle, const QColor& text) const;
    [[nodiscard]] int heightFor(int width) const;

    [[nodiscard]] bool hasHeightForWidth() const override { return true; }
    [[nodiscard]] int heightForWidth(int width) const override { return heightFor(width); }
    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    struct Placed
    {
        QRectF place;
        QString text;
        const Entry* entry; ///< null for how many more there are
    };
    /// As long names as have room.
    [[nodiscard]] std::vector<Placed> placed(double width) const;
    /// \param longest  where the texts of discs and boxes, which may be names, are cut, pixels
    [[nodiscard]] std::vector<Placed> placed(double width, int longest) const;
    [[nodiscard]] int rowHeight() const;

    std::vector<Entry> m_entries;
};
