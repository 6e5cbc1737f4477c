#pragma once

/// The analytics session. With an empty server address nothing is sent, ever.
class ICountly
{
public:
    virtual ~ICountly() = default;

    /// Begins the session by one HTTP request and returns at once. The request is given up after a
    /// few seconds; a failure is only logged.
    virtual void begin(const char* appKey, const char* version, const char* server, int port) = 0;
};

/// The process's session, made at the first call.
[[nodiscard]] ICountly* s_get_instance_ICountly();

/// Ends the session and a request that is under way.
void s_release_instance_ICountly();
