#pragma once

#include "basalt_utilities/Dictionary.h"
#include "lum_desktop_sdkx/IWindow.h"
#include "project/ILineList.h"
#include "project/IPointList.h"

#include <QStringList>

#include <functional>

/// A table and a tree in one, which note what they are told.
class NotingWindow final : public IWindow, public IPointList, public ILineList
{
public:
    QWidget* widget() override { return nullptr; }
    IDictionary& parameters() override { return m_parameters; }
    bool selectPoint(const QString& line, const QString& point) override
    {
        selected << line + QLatin1Char('/') + point;
        return line != lineThatIsMissing;
    }
    bool followPoint(const QString& line, const QString& point) override
    {
        followed << line + QLatin1Char('/') + point;
        if (onFollow)
            onFollow(line, point);
        return true;
    }
    void deselect() override { followed << QStringLiteral("nothing"); }
    void showOnly(const QString& what, std::vector<PointName> points) override
    {
        only = what + QLatin1String(": ") + QString::number(points.size());
    }
    [[nodiscard]] bool isShowingOnly() const override { return !only.isEmpty(); }
    void showOthersAgain() override { only.clear(); }
    void followLine(const QString& line) override { followed << line; }

    QStringList selected; ///< LINE/POINT
    QStringList followed; ///< LINE/POINT, LINE or "nothing"
    QString only;         ///< what is shown alone, and of how many points
    QString lineThatIsMissing;
    std::function<void(const QString& line, const QString& point)> onFollow;

private:
    basalt::Dictionary m_parameters;
};
