#include "lum_desktop_sdkx/frame/LayoutText.h"

#include <QCoreApplication>

namespace desktop {

QString layoutText(const QString& english)
{
    if (english.isEmpty())
        return {};
    return QCoreApplication::translate("FrameLayout", english.toUtf8().constData());
}

} // namespace desktop
