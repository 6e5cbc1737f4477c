#include "lum_desktop_sdkx/frame/DesktopHost.h"

#include "lum_desktop_sdkx/IMainFrame.h"

void DesktopHost::setDocument(const QString& name)
{
    m_hasDocument = !name.isEmpty();
    if (m_frame != nullptr)
        m_frame->setDocument(name);
}

void DesktopHost::setFrame(IMainFrame* frame, QWidget* dialogParent)
{
    m_frame = frame;
    m_dialogParent = dialogParent;
}

ICoordTransformHelper* get_instance_ICoordTransformHelper(IDesktopHost* host)
{
    return &host->coordTransformHelper();
}
