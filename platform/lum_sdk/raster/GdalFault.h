#pragma once

#include <QString>

#include <cpl_error.h>

namespace lum {

/// Keeps what GDAL complains about on this thread while it lives, instead of the standard error.
class GdalFault
{
public:
    GdalFault() { CPLPushErrorHandlerEx(&GdalFault::note, this); }
    ~GdalFault() { CPLPopErrorHandler(); }
    GdalFault(const GdalFault&) = delete;
    GdalFault& operator=(const GdalFault&) = delete;

    /// The first failure, which tells the reason of those behind it; empty without one.
    [[nodiscard]] const QString& text() const { return m_text; }

private:
    static void CPL_STDCALL note(CPLErr severity, CPLErrorNum /*number*/, const char* message)
    {
        auto* const self = static_cast<GdalFault*>(CPLGetErrorHandlerUserData());
        if (severity >= CE_Failure && self->m_text.isEmpty())
            self->m_text = QString::fromUtf8(message).simplified();
    }

    QString m_text;
};

} // namespace lum
