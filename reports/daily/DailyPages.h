#pragma once

#include "reports/daily/DailyTables.h"

#include <QRectF>

#include <functional>
#include <vector>

class QPainter;
class QPdfWriter;

/// Pages of A4, filled from top to bottom and painted at the end, when their number is known.
/// Lengths are pixels of 1/96 inch. No text leaves its place: it takes more lines or is shortened.
class DailyPages
{
public:
    /// \param left, right  what stands at the top of each page
    DailyPages(QString left, QString right);

    void addTitle(const QString& text);
    void addChapter(const QString& text);
    void addNote(const QString& text);
    /// In two columns of captions with their values.
    void addValues(const DailyValues& values);
    /// Goes on over pages, with its heading on each.
    void addTable(const DailyTable& table);
    /// \param paint gets a place in the dots of the painter, which has no scale
    void addPicture(double height, std::function<void(QPainter&, const QRectF& dots)> paint);
    void beginPage();
    /// What is left of this page.
    [[nodiscard]] double rest() const;

    [[nodiscard]] std::size_t count() const { return m_pages.size(); }
    /// Paints the pages.
    /// \param next is called after each; false ends it
    /// \returns false when it was ended
    bool paint(QPdfWriter& writer, const std::function<bool()>& next) const;

private:
    using Item = std::function<void(QPainter&)>;

    /// Begins a page when there is no room for so much.
    void need(double height);
    void add(Item item) { m_pages.back().push_back(std::move(item)); }
    void addText(const QString& text, double size, bool isBold, int lines);
    void paintEdges(QPainter& painter, std::size_t page) const;

    QString m_left;
    QString m_right;
    std::vector<std::vector<Item>> m_pages;
    double m_top = 0; ///< of what comes next
};
