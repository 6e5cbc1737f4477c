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
#include "lum_sdk/InstanceReceiver.h"
#include "lum_sdk/QtMessages.h"
#include "lum_sdk/Text.h"

#include <QFile>
#include <QFileInfo>
#include <QScreen>
#include <QTextCodec>
#include <QTimer>

#include <cstdio>
#include <cstdlib>
#include <ctime>

namespace {

/// Which application of the product this is.
struct Identity
{
    const char* applicationId;
    const char* toolPath;

    [[nodiscard]] static QString configFolder()
    {
        return QString::fromStdString(basalt::configFolder());
    }
    [[nodiscard]] QString tool() const { return configFolder() + QString::fromUtf8(toolPath); }

    /// Reads the settings, which fonts and texts depend on.
    void readSettings() const
    {
        get_system_ini_parameter().load((tool() + QStringLiteral(".sys")).toStdString());
    }

    /// Names the process so, reads the configuration and registers what the platform has.
    void take() const
    {
        QCoreApplication::setOrganizationName(
            QString::fromStdString(basalt::product().organisation));
        QCoreApplication::setApplicationName(QString::fromUtf8(applicationId));
        SystemParameter& config = get_system_config_parameter();
        config.load((tool() + QStringLiteral(".xml")).toStdString());
        QCoreApplication::setApplicationVersion(
            lum::toQString(config.dictionary().text("version")));
        registerCoordComponents();
        registerMapComponents();
        registerFrameComponents();
    }
};

QString setting(const char* key)
{
    return lum::toQString(get_system_ini_parameter().dictionary().text(key));
}

void loadTexts()
{
    lum::loadTranslations(setting(settings::kLanguage),
                          Identity::configFolder() + QStringLiteral("/Language"),
                          QCoreApplication::applicationName().toLower());
}

/// Prints the text that the command line asks for and ends the program. Returns when there is none
/// after all.
void answer(int argc, char** argv, const Identity& identity)
{
    const QCoreApplication withoutWindow(argc, argv);
    identity.take();
    identity.readSettings();
    loadTexts();
    static_cast<void>(CommandLine::read(QCoreApplication::arguments()));
}

/// The font engine thickens the strokes of most Chinese fonts, and of no others: light text on dark
/// would look bold. This is a third of what it adds by itself: stroke widths and what they gain, in
/// thousandths of a pixel.
constexpr const char* kStrokes = "cff:darkening-parameters=500,150,1000,100,1667,100,2333,0";

/// Sets what must be set before Qt makes the application object.
int& prepared(int& argc, char** argv, const Identity& identity)
{
    qInstallMessageHandler(lum::logQtMessage);
    // All 8-bit text is UTF-8, also file names, and also when the locale is "C".
    QTextCodec::setCodecForLocale(QTextCodec::codecForName("UTF-8"));
    if (CommandLine::asksForText(argc, argv))
        answer(argc, argv, identity);
    if (!qEnvironmentVariableIsSet("FREETYPE_PROPERTIES"))
        qputenv("FREETYPE_PROPERTIES", kStrokes);
    identity.readSettings();
    lum::chooseFontsFor(setting(settings::kLanguage));
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
    : QApplication(prepared(argc, argv, {applicationId, toolPath}), argv)
{
    static_cast<void>(MessageLog::instance()); // from here on it listens to the log
    const Identity identity{applicationId, toolPath};
    identity.take();
    m_toolFolder = QFileInfo(identity.tool()).path();
    lum::setDpiScale(primaryScreen()->logicalDotsPerInch() / 96.0);
    m_commandLine = CommandLine::read(arguments());
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
        loadTexts();
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

void Applicationx::receiveLaterStarts(const QString& program)
{
    auto* const receiver = new lum::InstanceReceiver(program, this);
    // Queued: opening the file may ask the user, and the receiver must not wait for that.
    connect(
        receiver, &lum::InstanceReceiver::startedAgain, this,
        [this](const QString& file) {
            if (!m_mainFrame)
                return;
            m_mainFrame->comeToFront();
            if (!file.isEmpty())
                m_mainFrame->openWhenFree({file});
        },
        Qt::QueuedConnection);
}

void Applicationx::reportShown()
{
    const int cpuMs = static_cast<int>(std::clock() * 1000 / CLOCKS_PER_SEC);
    basalt::logDebug("Window shown after " + std::to_string(cpuMs) + " ms of CPU time");
    rism_logger_get_instance()->flush(); // a test may wait for this line
    if (m_commandLine.printsStartupTime) {
        std::printf("%d ms of CPU time to the shown window\n", cpuMs);
        exit(0);
        return;
    }
    const QString& picture = m_commandLine.screenshotFile;
    if (!picture.isEmpty())
        m_mainFrame->resize(dpi_scaled(1280), dpi_scaled(800)); // the same on every screen
    if (!fileToOpen().isEmpty())
        m_mainFrame->openWhenFree({fileToOpen()});
    if (!picture.isEmpty()) {
        QTimer::singleShot(500, this, [this] { // enough time for the map's worker
            const QString& file = m_commandLine.screenshotFile;
            const bool done = m_mainFrame->grab().save(file);
            if (!done)
                basalt::logError("Cannot write \"" + file.toStdString() + "\"");
            exit(done ? 0 : 1);
        });
        return;
    }
    if (!m_layoutProblem.isEmpty())
        LumMessageBox::error(m_mainFrame.get(), applicationName(), m_layoutProblem);
}
