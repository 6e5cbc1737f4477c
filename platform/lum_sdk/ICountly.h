#pragma once

/// The analytics session. With an empty server address nothing is sent, ever.
class ICountly
{
public:
    virtual ~ICountly() = default;

    /// Begins the session: one HTTP request in the background, given up after a few seconds. The
    /// caller is not held up, and nobody is told when it fails (a line in the log apart).
    virtual void begin(const char* appKey, const char* version, const char* server, int port) = 0;
};

/// The process's session, made at the first call.
[[nodiscard]] ICountly* s_get_instance_ICountly();

/// Ends it, with what is under way.
void s_release_instance_ICountly();
