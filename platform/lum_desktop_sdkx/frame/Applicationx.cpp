#include "lum_desktop_sdkx/frame/Applicationx.h"

#include "basalt_utilities/ILogger.h"
#include "basalt_utilities/Product.h"
#include "lum_desktop_sdkx/dialogs/LumMessageBox.h"
#include "lum_desktop_sdkx/frame/Appearance.h"
#include "lum_desktop_sdkx/frame/FrameComponents.h"
#include "lum_desktop_sdkx/frame/MainFrame.h"
#include "lum_desktop_sdkx/frame/MessageLog.h"
#include "lum_desktop_sdkx/map/MapComponents.h"
#include "lum_sdk/coords/ICoordTransform.h"
#include "lum_sdk/DpiScale.h"
#include "lum_sdk/files/SystemDictionaries.h"
#include "lum_sdk/files/SystemKeys.h"
#include "lum_sdk/files/Translations.h"
#include "lum_sdk/Text.h"

#include <QCommandLineParser>
#include <QFile>
#include <QFileInfo>
#include <QScreen>
#include <QTextCodec>
#include <QTimer>

#include <cstdio>
#include <cstdlib>
#include <ctime>

namespace {

/// Writes Qt's messages into the log.
void logQtMessage(QtMsgType type, const QMessageLogContext& /*context*/, const QString& message)
{
    const std::string line = "Qt: " + message.toStdString();
    if (type == QtCriticalMsg || type == QtFatalMsg)
        basalt::logError(line);
    else
        basalt::logDebug(line); // the message window hides debug lines from the user
}

template <class Factory>
void printKind(const char* kind, const Factory& factory)
{
    for (const auto& [name, caption] : factory.captions())
        std::printf("%-17s %-30s %s\n", kind, name.c_str(), caption.c_str());
}

void printComponents()
{
    printKind("IWindow", extensible_factory_IWindow());
    printKind("ILayerViewer", extensible_factory_ILayerViewer());
    printKind("IReactor", extensible_factory_IReactor());
    printKind("ICommandExecuterx", extensible_factory_ICommandExecuterx());
    printKind("IGuiAssistant", extensible_factory_IGuiAssistant());
}

/// Sets what must be set before Qt makes the application object.
int& prepared(int& argc)
{
    qInstallMessageHandler(logQtMessage);
    // All 8-bit text is UTF-8, also file names, and also when the locale is "C".
    QTextCodec::setCodecForLocale(QTextCodec::codecForName("UTF-8"));
    QCoreApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    QGuiApplication::setHighDpiScaleFactorRoundingPolicy(
        Qt::HighDpiScaleFactorRoundingPolicy::PassThrough);
    return argc;
}

/// Reads the layout from the file. When that fails, returns the minimal layout and fills `problem`.
FrameLayout loadLayout(const QString& path, QString& problem)
{
    FrameLayout layout;
    QFile file(path);
    const QString fault = file.open(QIODevice::ReadOnly)
                              ? desktop::readFrameLayout(file.readAll(), layout)
                              : file.errorString();
    if (fault.isEmpty())
        return layout;
    basalt::logError("Cannot read \"" + path.toStdString() + "\": " + fault.toStdString());
    problem = Applicationx::tr("The window layout \"%1\" cannot be read (%2). "
                               "The program has started with the map alone.")
                  .arg(path, fault);
    return FrameLayout::minimal();
}

} // namespace

Applicationx::Applicationx(int& argc, char** argv, const char* applicationId, const char* toolPath)
    : QApplication(prepared(argc), argv)
{
    static_cast<void>(MessageLog::instance()); // from here on it listens to the log
    setOrganizationName(QString::fromStdString(basalt::product().organisation));
    setApplicationName(QString::fromUtf8(applicationId));
    m_configFolder = QString::fromStdString(basalt::configFolder());
    const QString tool = m_configFolder + QString::fromUtf8(toolPath);
    m_toolFolder = QFileInfo(tool).path();
    get_system_config_parameter().load((tool + QStringLiteral(".xml")).toStdString());
    const std::string_view version = get_system_config_parameter().dictionary().text("version");
    setApplicationVersion(lum::toQString(version));
    lum::setDpiScale(primaryScreen()->logicalDotsPerInch() / 96.0);
    registerCoordComponents();
    registerMapComponents();
    registerFrameComponents();
    readOptions();
}

Applicationx::~Applicationx()
{
    m_mainFrame.reset();
    qInstallMessageHandler(nullptr);
}

Applicationx& Applicationx::instance()
{
    return *qobject_cast<Applicationx*>(QCoreApplication::instance());
}

MainFrame& Applicationx::mainFrame()
{
    if (!m_mainFrame) {
        const auto setting = [](const char* key) {
            const std::string_view text = get_system_ini_parameter().dictionary().text(key);
            return lum::toQString(text);
        };
        lum::loadTranslations(setting(settings::kLanguage),
                              m_configFolder + QStringLiteral("/Language"),
                              applicationName().toLower());
        desktop::applyAppearance(setting(settings::kTheme));
        m_mainFrame = std::make_unique<MainFrame>(
            m_host, loadLayout(m_toolFolder + QStringLiteral("/main_frame.xml"), m_layoutProblem));
        connect(m_mainFrame.get(), &MainFrame::firstShown, this, &Applicationx::reportShown);
    }
    return *m_mainFrame;
}

bool Applicationx::notify(QObject* receiver, QEvent* event)
{
    try {
        return QApplication::notify(receiver, event);
    } catch (const std::exception& fault) {
        basalt::logError(std::string("An event handler failed: ") + fault.what());
        return false;
    }
}

void Applicationx::readOptions()
{
    QCommandLineParser parser;
    parser.setApplicationDescription(
        lum::toQString(get_system_config_parameter().dictionary().text("description")));
    const QCommandLineOption startupTime(QStringLiteral("startup-time"),
                                         tr("Print the CPU time to the shown window, and leave."));
    const QCommandLineOption screenshot(QStringLiteral("screenshot"),
                                        tr("Write a picture of the window to <file>, and leave."),
                                        QStringLiteral("file"));
    const QCommandLineOption components(
        QStringLiteral("components"),
        tr("List the components that a window layout can name, and leave."));
    parser.addOptions({startupTime, screenshot, components});
    parser.addPositionalArgument(QStringLiteral("project"), tr("The project file to open."),
                                 QStringLiteral("[project]"));
    parser.addHelpOption();
    parser.addVersionOption();
    parser.process(*this);
    if (parser.isSet(components)) {
        printComponents();
        std::exit(0);
    }
    m_printsStartupTime = parser.isSet(startupTime);
    m_screenshotFile = parser.value(screenshot);
    m_fileToOpen = parser.positionalArguments().value(0);
}

void Applicationx::reportShown()
{
    const int cpuMs = static_cast<int>(std::clock() * 1000 / CLOCKS_PER_SEC);
    basalt::logDebug("Window shown after " + std::to_string(cpuMs) + " ms of CPU time");
    rism_logger_get_instance()->flush(); // a test may wait for this line
    if (m_printsStartupTime) {
        std::printf("%d ms of CPU time to the shown window\n", cpuMs);
        exit(0);
        return;
    }
    if (!m_screenshotFile.isEmpty())
        m_mainFrame->resize(dpi_scaled(1280), dpi_scaled(800)); // the same on every screen
    if (!m_fileToOpen.isEmpty() && !m_mainFrame->openFile(m_fileToOpen))
        LumMessageBox::warning(m_mainFrame.get(), applicationName(),
                               tr("\"%1\" is not a project file.").arg(m_fileToOpen));
    if (!m_screenshotFile.isEmpty()) {
        QTimer::singleShot(500, this, [this] { // enough time for the map's worker
            const bool done = m_mainFrame->grab().save(m_screenshotFile);
            if (!done)
                basalt::logError("Cannot write \"" + m_screenshotFile.toStdString() + "\"");
            exit(done ? 0 : 1);
        });
        return;
    }
    if (!m_layoutProblem.isEmpty())
        LumMessageBox::error(m_mainFrame.get(), applicationName(), m_layoutProblem);
}
