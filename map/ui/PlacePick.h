#pragma once

#include "lum_sdk/events/EventSubscription.h"
#include "lum_sdk/events/IEventManager.h"

#include <QCursor>
#include <QElapsedTimer>
#include <QObject>
#include <QPointer>
#include <QString>
#include <QVector>

class IDataLayer;
class IDesktopHost;
class IMapWindow;
class QMouseEvent;
class QPointF;
class QWidget;

/// A place that was clicked on the map.
struct PickedPlace
{
    double north = 0; ///< on the project grid, in its unit
    double east = 0;
    QString point; ///< number of the point that was hit, label of a base station; else empty
};

/// Lets the user click places on the map "DataMap" for a modeless dialog, of which it is a member.
///
/// A click on a point of the picture in view takes its exact position, any other click the place,
/// rounded to three decimals. Meanwhile the map has a cross cursor and a ring around the point that
/// a click would take, and from the first place a line to the cursor; the status bar tells what to
/// click. Zooming and panning by wheel, middle button and keys go on. The tool in use gets no click
/// and is in use again afterwards.
///
/// Escape, also in the dialog, and a right click end it; the dialog then has the focus again, as
/// after the last place. Another tool, another project, the start of another pick and closing the
/// dialog end it too.
class PlacePick final : public QObject, private IEventHandler
{
    Q_OBJECT

public:
    PlacePick(IDesktopHost& host, QWidget* dialog);
    ~PlacePick() override;

    /// Brings the map to the front and waits for so many clicks. A pick that is under way ends.
    /// \returns false, and says why in the status bar, without a map or an open project
    bool start(int clicks);
    /// Ends without a result; does nothing while no pick is under way.
    void cancel();
    [[nodiscard]] bool isPicking() const { return m_clicks > 0; }

Q_SIGNALS:
    /// All places were clicked.
    void picked(const QVector<PickedPlace>& places);
    /// The pick is over, behind `picked` or without a result.
    void ended();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void handleEvent(const char* eventName, const char* payload, int reserved) override;
    bool onMouse(const QMouseEvent& event);
    bool onPress(const QMouseEvent& event);
    void take(const PickedPlace& place);
    /// Makes the map as it was.
    void restoreMap();
    void finish(const QVector<PickedPlace>& places);
    void returnToDialog();
    [[nodiscard]] const IDataLayer* dataLayer() const;
    [[nodiscard]] PickedPlace placeAt(const QPointF& screen) const;
    [[nodiscard]] QPointF toMap(const PickedPlace& place) const;
    void showHint();
    void showMarks(const PickedPlace& underCursor);

    IDesktopHost& m_host; // outlives the dialogs
    QWidget& m_dialog;
    IMapWindow* m_map = nullptr;
    QPointer<QWidget> m_widget; ///< the map's; null when the map is gone
    int m_clicks = 0;           ///< that are asked for; 0 while nothing is picked
    QVector<PickedPlace> m_places;
    QCursor m_toolCursor;
    int m_toolMode = 0;         ///< `MouseMode` when the pick began
    Qt::MouseButtons m_pressed; ///< buttons whose release the tool must not get either
    QElapsedTimer m_sinceLastPress;
    EventSubscription m_subscription;
};
