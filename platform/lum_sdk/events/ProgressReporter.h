#pragma once

#include "lum_sdk/events/Payload.h"

#include <QString>

#include <cstddef>
#include <string_view>

class IEventManager;

/// Shows in the progress bar how far a long operation is. Hides the bar when it goes out of scope.
///
/// Without an event manager (a test, a nested step) it reports to nobody.
class ProgressReporter
{
public:
    explicit ProgressReporter(IEventManager* manager);
    ~ProgressReporter();

    ProgressReporter(const ProgressReporter&) = delete;
    ProgressReporter& operator=(const ProgressReporter&) = delete;

    /// Shows the bar at its beginning, before the first step.
    /// \param caption translated, such as "Loading Database"
    void start(const QString& caption);
    /// \param percent 0 to 100
    void report(const QString& caption, double percent);
    /// The same for `done` of `total` steps; no steps count as finished.
    void report(const QString& caption, std::size_t done, std::size_t total);
    /// Work of unknown length.
    void busy(const QString& caption);
    /// Hides the bar; once, and only when something was reported.
    void finish();
    /// Hides the bar, also when nothing was reported.
    void hide();

private:
    friend class ProgressSteps;
    void publish(const char* text);

    IEventManager* m_manager;
    bool m_isShown = false;
};

/// Reports many steps under one caption, each as `ProgressReporter::report` does, but faster.
class ProgressSteps
{
public:
    /// \param caption UTF-8
    /// \param total number of steps, not 0
    ProgressSteps(ProgressReporter& progress, std::string_view caption, std::size_t total);

    /// The next step is done.
    void next();

private:
    ProgressReporter& m_progress;
    payload::ProgressText m_text;
    std::size_t m_done = 0;
    std::size_t m_total;
};
