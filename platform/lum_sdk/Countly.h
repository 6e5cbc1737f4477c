#pragma once

#include "lum_sdk/ICountly.h"

#include <QString>

#include <memory>

class QNetworkAccessManager;

/// Sends "GET /i?app_key=...&device_id=...&begin_session=1&metrics={...}".
///
/// The device is known by a random identifier in the user's settings folder; neither names nor
/// project data are sent.
class Countly final : public ICountly
{
public:
    /// \param timeoutMs how long a request may stand still before it is given up
    explicit Countly(int timeoutMs = 5000);
    ~Countly() override;

    void begin(const char* appKey, const char* version, const char* server, int port) override;

private:
    int m_timeoutMs;
    std::unique_ptr<QNetworkAccessManager> m_network; ///< made when there is a server
};
