// make_demo FOLDER [SEED]: writes the demo survey into a folder.

#include "lum_sdk/coords/ProjectCoordTransform.h"
#include "samples/DemoFiles.h"
#include "samples/DemoImage.h"
#include "samples/DemoSurvey.h"
#include "samples/ResultCompleter.h"

#include <QCoreApplication>
#include <QStringList>
#include <QTextCodec>

#include <cstdio>

namespace {

constexpr int kFailed = 1;
constexpr int kWrongUsage = 2;

int report(const QString& message, int status)
{
    std::fprintf(stderr, "make_demo: %s\n", qUtf8Printable(message));
    return status;
}

int makeDemo(const QString& folder, std::uint64_t seed)
{
    ICoordTransform& transform = get_project_coord_transform();
    QString fault = demo::useSurveySystem(transform);
    if (fault.isEmpty())
        fault = demo::writeDemoFiles(folder, demo::makeDemoSurvey(seed, transform));
    if (fault.isEmpty())
        fault = demo::writeDemoImage(folder + QLatin1Char('/') + QLatin1String(demo::kImageFile));
    return fault.isEmpty() ? 0 : report(fault, kFailed);
}

} // namespace

int main(int argc, char* argv[])
{
    QTextCodec::setCodecForLocale(QTextCodec::codecForName("UTF-8")); // even when the locale is "C"
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    bool isNumber = true;
    const std::uint64_t seed = arguments.size() < 3 ? 1 : arguments[2].toULongLong(&isNumber);
    if (arguments.size() < 2 || arguments.size() > 3 || !isNumber)
        return report(QStringLiteral("usage: make_demo FOLDER [SEED]"), kWrongUsage);
    return makeDemo(arguments[1], seed);
}
