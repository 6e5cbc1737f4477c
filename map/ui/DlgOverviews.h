#pragma once

#include "lum_desktop_sdkx/dialogs/Dialog.h"
#include "lum_sdk/raster/OverviewBuilder.h"

class QLabel;
class QProgressBar;

/// Shows how far the building of overviews is, in a corner beside the work; Cancel and Escape end
/// it. Hidden while nothing is built.
class DlgOverviews final : public Dialog
{
    Q_OBJECT

public:
    explicit DlgOverviews(QWidget* parent);

    /// Builds the overviews of this file after those that are in work.
    void build(const QString& path);

    /// Cancels.
    void reject() override;

Q_SIGNALS:
    void built(const QString& path, const lum::OverviewResult& result);

private:
    void showState();
    void onFinished(const QString& path, const lum::OverviewResult& result);

    QLabel* m_text;
    QProgressBar* m_bar;
    lum::OverviewBuilder m_builder;
};
