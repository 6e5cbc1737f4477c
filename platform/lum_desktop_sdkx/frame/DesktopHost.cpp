#include "lum_desktop_sdkx/frame/DesktopHost.h"

#include "lum_desktop_sdkx/DesktopDocument.h"
#include "lum_desktop_sdkx/IMainFrame.h"

void DesktopHost::setDocument(const DesktopDocument& document)
{
    m_hasDocument = !document.name.isEmpty();
    if (m_frame != nullptr)
        m_frame->setDocument(document);
}

void DesktopHost::tell(const QString& sentence)
{
    if (m_frame != nullptr)
        m_frame->tell(sentence);
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
