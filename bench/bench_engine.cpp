// The inside: finding one caption among many controls against a plain walk, and what the steps of a request
// cost.
#include <benchmark/benchmark.h>

#include <thread>

#include "Engine/Host/RUXHttpConnection.h"
#include "Engine/Locator/RUXTestLocatorParser.h"
#include "Engine/Request/RUXRequestText.h"
#include "Engine/Request/RUXTestFramework.h"
#include "Engine/TaskCenter/RUXAutoTask.h"
#include "Engine/TaskCenter/RUXShowWindowHook.h"
#include "bench/BenchEngine.h"
#include "platform/SocketService.h"
#include "platform/toolkit/Controls.h"
#include "rtl/CodePage.h"
#include "rtl/Text.h"

namespace rux::bench {
namespace {

/// Every control of the tree, its caption compared as the search compares it, and nothing else.
int PlainWalk(TObject* control, const std::string& caption) {
    int hits = AnsiPos(caption, Cast<TControl>(control).Text()) > 0;
    if (!Is<TWinControl>(control)) return hits;
    auto& window = Cast<TWinControl>(control);
    for (int i = window.ControlCount() - 1; i >= 0; --i) hits += PlainWalk(window.Controls(i), caption);
    return hits;
}

std::string LastCaption(benchmark::State& state) {
    return "caption " + std::to_string(state.range(0) - 1);
}

void PerControl(benchmark::State& state) {
    state.counters["per_control"] =
        benchmark::Counter(static_cast<double>(state.range(0)),
                           benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
}

void BM_PlainWalk(benchmark::State& state) {
    TBenchEngine engine;
    HCustomForm& form = engine.MakeForm(static_cast<int>(state.range(0)), static_cast<int>(state.range(1)));
    const std::string caption = LastCaption(state);
    for (auto _ : state)
        if (PlainWalk(&form, caption) != 1) state.SkipWithError("not found");
    PerControl(state);
}

void BM_Search(benchmark::State& state) {
    TBenchEngine engine;
    engine.MakeForm(static_cast<int>(state.range(0)), static_cast<int>(state.range(1)));
    const std::string caption = LastCaption(state);
    for (auto _ : state) {
        TSolviLocatorParser parser(&engine.Kit().Application(), true);
        if (parser.Locate(caption)->GetCount() != 1) state.SkipWithError("not found");
    }
    PerControl(state);
}

BENCHMARK(BM_PlainWalk)->ArgsProduct({{100, 1000, 10000, 100000}, {20}})->Args({100000, 100000});
BENCHMARK(BM_Search)->ArgsProduct({{100, 1000, 10000, 100000}, {20}})->Args({100000, 100000});

// ------------------------------------------------------------------------------------------ steps of a
// request

void BM_StepParse(benchmark::State& state) {
    TBenchEngine engine;
    for (auto _ : state) {
        TRequestText text;
        ParseURL(Utf8ToAnsi(DecodeURL("caption%2099$Find")), text);
        benchmark::DoNotOptimize(text);
    }
}
BENCHMARK(BM_StepParse);

void BM_StepFind100(benchmark::State& state) {
    TBenchEngine engine;
    engine.MakeForm(100);
    for (auto _ : state) {
        TSolviLocatorParser parser(&engine.Kit().Application(), true);
        benchmark::DoNotOptimize(parser.Locate("caption 99"));
    }
}
BENCHMARK(BM_StepFind100);

/// Execute as a whole, on the thread of the controls: pump, actions, search, adapter, answer.
void BM_StepExecute(benchmark::State& state) {
    TBenchEngine engine;
    engine.MakeForm(100);
    for (auto _ : state) {
        const TIntf<ITestRequest> request(new TTestRequest("caption 99$Find"));
        engine.State.RequestStack.Add(request);
        request->Execute();
        engine.State.RequestStack.Clear();
    }
}
BENCHMARK(BM_StepExecute);

/// From Post to Finish on one thread: the queue, both messages, the log of the user-interface thread.
void BM_StepTaskCenter(benchmark::State& state) {
    TBenchEngine engine;
    engine.MakeForm(100);
    CreateTaskCenter();
    for (auto _ : state) {
        const TIntf<ITestRequest> request(new TTestRequest("caption 99$Find"));
        request->Post();
        engine.Kit().App().ProcessMessages();
    }
    FreeTaskCenter();
}
BENCHMARK(BM_StepTaskCenter);

void BM_StepLogRecord(benchmark::State& state) {
    TBenchEngine engine;
    for (auto _ : state) GetLogger().Info(LogTimeStamp() + "Execute Test:caption 99$Find");
}
BENCHMARK(BM_StepLogRecord);

void BM_StepMemoryUsage(benchmark::State& state) {
    TBenchEngine engine;
    for (auto _ : state) benchmark::DoNotOptimize(GetMemoryUsage());
}
BENCHMARK(BM_StepMemoryUsage);

/// Showing and hiding a window; argument 1: while windows are watched, with no request to report them to.
void BM_StepShowWindow(benchmark::State& state) {
    TBenchEngine engine;
    if (state.range(0) == 1) InstallShowWindowHook();
    HDesktop& desktop = engine.Desktop.Desktop();
    HCreateParams params;
    params.ClassName = "Notice";
    params.Style = WS_POPUP;
    const HWnd window = desktop.CreateWindowA(params);
    for (auto _ : state) {
        desktop.ShowWindow(window, SW_SHOWNOACTIVATE);
        desktop.ShowWindow(window, SW_SHOW);
        desktop.ShowWindow(window, SW_HIDE);
    }
    RemoveShowWindowHook();
}
BENCHMARK(BM_StepShowWindow)->Arg(0)->Arg(1);

/// An event to another thread and one back: what a hand-over costs at least.
void BM_StepHandOver(benchmark::State& state) {
    TBenchEngine engine;
    const auto there = engine.Posix.Kernel.CreateEventA(), back = engine.Posix.Kernel.CreateEventA();
    bool end = false;
    std::thread other([&] {
        while (there->WaitFor(WaitForever) == TWaitResult::Signalled && !end) back->SetEvent();
    });
    for (auto _ : state) {
        there->SetEvent();
        back->WaitFor(WaitForever);
    }
    end = true;
    there->SetEvent();
    other.join();
}
BENCHMARK(BM_StepHandOver)->UseRealTime();

}  // namespace
}  // namespace rux::bench

BENCHMARK_MAIN();
