#pragma once

#include "map/ui/SheetWork.h"

#include <QImage>
#include <QWidget>

/// Shows a sheet as it will come out of the printer, as large as there is room. It is painted on
/// another thread; until then the last picture is shown.
class SheetPreview final : public QWidget
{
    Q_OBJECT

public:
    explicit SheetPreview(QWidget* parent = nullptr);

    void setSheet(const MapSheet& sheet);
    /// Paints nothing until the next `setSheet`, whatever happens to the window; the sheet's ground
    /// is free then.
    void stop();
    [[nodiscard]] bool isUpToDate() const { return !m_work.isBusy(); }

    [[nodiscard]] QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void request();
    /// Where the paper lies in the window.
    [[nodiscard]] QRectF paperPlace() const;

    MapSheet m_sheet;
    QImage m_picture;
    SheetWork m_work;
};
