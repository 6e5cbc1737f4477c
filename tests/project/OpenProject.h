#pragma once

#include "lum_sdk/files/SystemDictionaries.h"
#include "project/DataProcessDataManager.h"
#include "protocol/StatusKeys.h"
#include "tests/lum_desktop_sdkx/TestHost.h"

#include <memory>

/// A project that is open without a file, and a desktop without a frame.
class OpenProject
{
public:
    OpenProject()
    {
        settings().clear();
        status().clear();
        status().set(status::kProjectOpen, "1");
        status().set(status::kProjectPath, "/a");
    }

    static IDictionary& status() { return get_system_status_dictionary(); }
    static IDictionary& settings() { return get_system_ini_parameter().dictionary(); }
    DesignPoints& design() { return manager->designPoints(); }
    SurveyPoints& results() { return manager->surveyPoints(); }
    void publish(const char* event, const QByteArray& payload = {})
    {
        host.events.publish(event, payload.isNull() ? nullptr : payload.constData(), 0);
    }
    /// The status of a project in another folder; of none without a folder.
    void tellProject(const char* folder)
    {
        status().set(status::kProjectOpen, *folder == '\0' ? "0" : "1");
        status().set(status::kProjectPath, folder);
        publish("UPDATE_SYSTEM_STATUS_EVENT");
    }

    TestHost host;
    std::unique_ptr<DataProcessDataManager> manager =
        std::make_unique<DataProcessDataManager>(&host);
};
