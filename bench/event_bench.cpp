#include "app/ProgressStatusBarForSkyquill.h"
#include "basalt_utilities/Dictionary.h"
#include "basalt_utilities/KeyList.h"
#include "bench/Allocations.h"
#include "bench/Limits.h"
#include "lum_desktop_sdkx/frame/DesktopHost.h"
#include "lum_sdk/events/EventSubscription.h"
#include "protocol/Events.h"

#include <QApplication>

// The time of a million progress events, divided by the time that parsing their payloads takes.

namespace {

constexpr int kPublishes = 1000000;
constexpr const char* kPayload = "text=Check Survey Line:1001,value=45.3210,is_exec=0";

int parse(const char* payload)
{
    basalt::Dictionary values;
    csa_to_dictionary(values, payload);
    return values.integer("value", -1);
}

class ParsingSubscriber final : public IEventHandler
{
public:
    explicit ParsingSubscriber(IEventManager& manager)
        : m_subscription(*this, events::kProgress, manager)
    {
    }
    void handleEvent(const char* /*name*/, const char* payload, int /*reserved*/) override
    {
        sum += parse(payload);
    }
    long sum = 0;

private:
    EventSubscription m_subscription;
};

double parseDirectly()
{
    return bench::secondsOf([] {
        long sum = 0;
        for (int i = 0; i < kPublishes; ++i)
            sum += parse(kPayload);
        benchmark::DoNotOptimize(sum);
    });
}

double publishTo(IEventManager& manager, const char* name)
{
    return bench::secondsOf([&] {
        for (int i = 0; i < kPublishes; ++i)
            manager.publish(name, kPayload, 0);
    });
}

template <class Measure>
void reportRatio(benchmark::State& state, const char* what, double limit, Measure measure)
{
    for (auto _ : state) {
        const double ratio = bench::medianOf([&] { return measure() / parseDirectly(); });
        bench::report(state, what, ratio, limit);
    }
}

void BM_PublishToAParser(benchmark::State& state)
{
    EventManager manager;
    const ParsingSubscriber subscriber(manager);
    reportRatio(state, "publish to one subscriber that parses / parsing", 1.5,
                [&] { return publishTo(manager, events::kProgress); });
}

void BM_PublishUnheard(benchmark::State& state)
{
    EventManager manager;
    const ParsingSubscriber subscriber(manager);
    reportRatio(state, "publish that nobody listens to / parsing", 0.25,
                [&] { return publishTo(manager, events::kRefreshSurveyTable); });
}

void BM_PublishToTheProgressBar(benchmark::State& state)
{
    DesktopHost host;
    const ProgressStatusBarForSkyquill bar("", &host);
    reportRatio(state, "publish to the progress bar / parsing", 1.0,
                [&] { return publishTo(host.eventManager(), events::kProgress); });
}

void BM_AllocationsOfAParse(benchmark::State& state)
{
    for (auto _ : state) {
        const long before = bench::allocations();
        basalt::Dictionary values;
        csa_to_dictionary(values, kPayload);
        const long fresh = bench::allocations() - before;
        values.clear();
        csa_to_dictionary(values, kPayload);
        const long kept = bench::allocations() - before - fresh;
        // one for the entries, one for the value that is too long for a short string
        bench::report(state, "allocations of a parse into a fresh dictionary", double(fresh), 2);
        bench::report(state, "allocations of a parse into a kept dictionary", double(kept), 0);
    }
}

BENCHMARK(BM_PublishToAParser)->Iterations(1);
BENCHMARK(BM_PublishUnheard)->Iterations(1);
BENCHMARK(BM_PublishToTheProgressBar)->Iterations(1);
BENCHMARK(BM_AllocationsOfAParse)->Iterations(1);

} // namespace

int main(int argc, char* argv[])
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    return bench::run(argc, argv);
}
