#pragma once

#include "lum_desktop_sdkx/ILayerRegistry.h"
#include "lum_desktop_sdkx/map/MapComponents.h"
#include "lum_desktop_sdkx/map/MapWindow.h"
#include "lum_desktop_sdkx/Registration.h"
#include "lum_sdk/files/SystemDictionaries.h"
#include "map/ui/DataProcessLayerImp.h"
#include "map/ui/ReactorMoveTrans.h"
#include "map/ui/ReactorZoomRectTrans.h"
#include "map/ui/SeletePointReactor.h"
#include "project/DataProcessDataManager.h"
#include "tests/lum_desktop_sdkx/TestHost.h"
#include "tests/support/Literals.h"
#include "tests/support/Points.h"

#include <QtTest>

/// A map window "DataMap" with the data layer of an open project on it, 400 x 300 pixels, which
/// shows as many metres from (0, 0) in its lower left.
class TestMap
{
public:
    static void registerComponents()
    {
        using namespace desktop::registration;
        registerMapComponents();
        desktop::registration::layer<DataProcessLayerImp>("DataProcessLayer", "");
        reactor<ReactorMoveTrans>("ReactorMoveTrans", "");
        reactor<ReactorZoomRectTrans>("ReactorZoomRectTrans", "");
        reactor<SeletePointReactor>("SeletePointReactor", "");
    }

    TestMap()
    {
        get_system_status_dictionary().clear();
        manager.designParameters().set("r_pt_dist", "25");
        window.resize(400, 300);
        window.show();
        if (!QTest::qWaitForWindowExposed(&window))
            qFatal("the map does not show");
        window.repaint();
        host.windowRegistry.windows.insert("DataMap"_q, &window);
        window.addLayer("DataProcessLayer"_q, basalt::Dictionary());
        showAll();
    }

    void click(int x, int y, Qt::MouseButton button = Qt::LeftButton)
    {
        QTest::mouseClick(&window, button, {}, QPoint(x, y));
    }
    [[nodiscard]] Qt::CursorShape cursor() const { return window.cursor().shape(); }
    /// What shows now, painted or not.
    [[nodiscard]] QColor shown(int x, int y) { return window.grab().toImage().pixelColor(x, y); }
    void publish(const char* name) { host.events.publish(name, nullptr, 0); }
    void showAll() { window.zoomRect(0, 0, 400, 300); }
    void setStatus(const char* key, const char* value)
    {
        get_system_status_dictionary().set(key, value);
    }
    [[nodiscard]] IDataLayer& layer()
    {
        return dynamic_cast<IDataLayer&>(*window.layers().find("DataProcessLayer"_q));
    }
    /// What shows once everything has been painted.
    QImage picture()
    {
        return QTest::qWaitFor([this] { return window.isUpToDate(); }, 20000)
                   ? window.grab().toImage()
                   : QImage();
    }

    void addDesign(const char* line, const char* number, double north, double east, int type = 1)
    {
        DesignPoint point = designPoint(line, number);
        point.north = north;
        point.east = east;
        point.type = type;
        manager.designPoints().set(point);
    }
    void addResult(const char* line, const char* number, double north, double east,
                   const QPointF& base, const QPointF& design = {})
    {
        SurveyPoint point = surveyPoint(line, number);
        point.north = north;
        point.east = east;
        point.referenceNorth = base.y();
        point.referenceEast = base.x();
        point.designNorth = design.y();
        point.designEast = design.x();
        manager.surveyPoints().set(point);
    }

    TestHost host;
    DataProcessDataManager manager{&host};
    MapWindow window{"reactors=ReactorDefault;SeletePointReactor", &host};
};
