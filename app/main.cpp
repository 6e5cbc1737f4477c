#include "app/ProgramIcon.h"
#include "basalt_utilities/FatalReport.h"
#include "basalt_utilities/Paths.h"
#include "lum_desktop_sdkx/ComponentKinds.h"
#include "lum_desktop_sdkx/frame/Applicationx.h"
#include "lum_desktop_sdkx/IMainFrame.h"
#include "lum_desktop_sdkx/ISystemSettings.h"
#include "lum_sdk/database/SqliteSetUp.h"
#include "lum_sdk/files/SystemDictionaries.h"
#include "lum_sdk/ICountly.h"
#include "lum_sdk/InstanceReceiver.h"
#include "lum_sdk/raster/TileThreads.h"
#include "lum_sdk/SingleInstance.h"
#include "protocol/ProductName.h"

#include <array>
#include <memory>

namespace {

constexpr const char* kSystemFile =
    "$(APP_DIR)/../etc/Tarvona/config/Skyquill/Tool/DataProcess5/data_process_5.sys";
constexpr const char* kNoServer = ""; // the default: without a server nothing is ever sent

void beginSession(const IDictionary& config)
{
    const std::string appKey(config.text("countlyAppKey"));
    const std::string version(config.text("version", "2.10.190508.MARLOKTE"));
    const std::string server(config.text("countlyIP", kNoServer));
    const int port = config.integer("countlyPort", 8081);
    s_get_instance_ICountly()->begin(appKey.c_str(), version.c_str(), server.c_str(), port);
}

void showMainFrame(const IDictionary& config)
{
    ISystemSettings* const settings = extensible_factory_get_ISystemSettings("SystemSettings", "");
    std::array<char, 1000> path{};
    if (!process_resolve_path(kSystemFile, path.data(), path.size()) ||
        !settings->getSystemParameter()->load(path.data()))
        fatal_report("sys->getSystemParameter()->load(%s) fail!", path.data());
    IMainFrame* const frame = settings->getMainFrame();
    const std::string name(config.text("name"));
    frame->setTitle(name.empty() ? QString() : QObject::tr(name.c_str()));
    frame->show();
}

} // namespace

int main(int argc, char* argv[])
{
    nameProduct();
    lum::setUpDatabase();
    auto application = std::make_unique<Applicationx>(argc, argv, kProductName,
                                                      "/Tool/DataProcess5/data_process_5");
    QApplication::setWindowIcon(programIcon());
    const IDictionary& config = get_system_config_parameter().dictionary();
    const QString program = QString::fromLocal8Bit(argv[0]);
    if (instance_is_run(program, 1) && lum::handToInstance(program, application->fileToOpen())) {
        application.reset();
        return 0;
    }
    application->receiveLaterStarts(program);
    try {
        beginSession(config);
        showMainFrame(config);
    } catch (...) {
        s_release_instance_ICountly();
        throw;
    }
    const int result = QApplication::exec();
    application.reset();
    lum::exitProcess(result);
}
