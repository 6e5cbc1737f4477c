#pragma once

#include "lum_desktop_sdkx/ReactorBase.h"

class IDataLayer;
class QByteArray;
class QPointF;
class QString;

/// Picks the point under a left click, publishes the selection and then highlights it, so that its
/// own mark is the one that stays. A right click or Escape removes the highlight, a double click
/// shows the full extent.
class SeletePointReactor final : public ReactorBase // spelled as registered
{
public:
    SeletePointReactor(const char* config, IMapWindow* map);

    int lButtonDown(const MouseKeyEventParameters& event) override;
    int rButtonUp(const MouseKeyEventParameters& event) override;
    int dblClick(const MouseKeyEventParameters& event) override;

private:
    [[nodiscard]] int pickSurvey(const IDataLayer& layer, const QPointF& place);
    [[nodiscard]] int pickDesign(const IDataLayer& layer, const QPointF& place);
    /// \param name as the layer picked it, such as "base-0"
    [[nodiscard]] int selectBase(const IDataLayer& layer, const QString& name);
    void publish(const char* eventName, const QByteArray& payload);
};
