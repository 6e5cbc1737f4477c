#include "bench/Limits.h"

#include <QCoreApplication>
#include <QProcess>
#include <QProcessEnvironment>
#include <QTemporaryDir>

#include <sys/resource.h>

// CPU time of the program from nothing to its shown window, the end of the process included.

namespace {

double childSeconds()
{
    rusage usage{};
    getrusage(RUSAGE_CHILDREN, &usage);
    const auto seconds = [](const timeval& time) {
        return double(time.tv_sec) + double(time.tv_usec) / 1e6;
    };
    return seconds(usage.ru_utime) + seconds(usage.ru_stime);
}

/// The CPU time of one start; the benchmark ends with a message when the program did not start.
double startProgram(benchmark::State& state, const QProcessEnvironment& environment)
{
    QProcess program;
    program.setProcessEnvironment(environment);
    const double before = childSeconds();
    program.start(QStringLiteral(PROGRAM_FILE), {QStringLiteral("--startup-time")});
    if (!program.waitForFinished() || program.exitCode() != 0)
        state.SkipWithError("the program did not start");
    return childSeconds() - before;
}

void BM_StartUp(benchmark::State& state)
{
    const QTemporaryDir home; // the first start of a new user, and the ones after it
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const char* name : {"XDG_CONFIG_HOME", "XDG_STATE_HOME", "XDG_RUNTIME_DIR"})
        environment.insert(QLatin1String(name), home.path());
    environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
    for (auto _ : state) {
        const double seconds = bench::medianOf([&] { return startProgram(state, environment); });
        bench::report(state, "CPU time to the shown window", seconds, 0.5, "s");
    }
}

BENCHMARK(BM_StartUp)->Iterations(1);

} // namespace

int main(int argc, char* argv[])
{
    const QCoreApplication application(argc, argv);
    return bench::run(argc, argv);
}
