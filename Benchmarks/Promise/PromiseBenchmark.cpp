// SPDX-License-Identifier: Apache-2.0
// Measures our promise against other ways to do the same work.
//
// Each function below is measured as a whole, including making and destroying its promises:
//  - one then: creates a promise, registers one handler, settles, and runs the handler on the same thread. Our handler
//    runs as every screen's does, from the main queue, which is drained each time. QPromise runs its continuation
//    within the settling call. std::promise has no continuation, so the value is fetched instead.
//  - chain: builds 100 links, settles the first, and waits until the last handler has run on the pool. The reference
//    gives the same pool 100 tasks, each of which submits the next.
//  - all: creates 1,000 promises, joins them, settles each, and waits for the handler of the joint promise. The
//    reference registers one handler for each promise and waits for all handlers.
#include "Benchmarks/Program.h"
#include "Controllers/REST/RXPromise.h"
#include "Platform/Queues/MainQueue.h"
#include "Platform/Queues/ThreadPool.h"

#include <QFuture>
#include <QPromise>
#include <QThreadPool>

#include <atomic>
#include <functional>
#include <future>
#include <semaphore>
#include <vector>

namespace lodestar
{
namespace
{

constexpr int links = 100;
constexpr int inputs = 1000;

void oneThen()
{
    int seen = 0;
    const RXPromise<int> promise;
    promise.thenOnMain([&seen](int value) { seen = value; });
    promise.fulfillWithValue(1);
    MainQueue::shared().drain();
    benchmark::DoNotOptimize(seen);
}

void oneThenOfQPromise()
{
    int seen = 0;
    QPromise<int> promise;
    promise.start();
    promise.future().then([&seen](int value) { seen = value; });
    promise.addResult(1);
    promise.finish();
    benchmark::DoNotOptimize(seen);
}

void noThenOfStdPromise()
{
    std::promise<int> promise;
    std::future<int> future = promise.get_future();
    promise.set_value(1);
    int seen = future.get();
    benchmark::DoNotOptimize(seen);
}

void chain()
{
    std::binary_semaphore done(0);
    const RXPromise<int> first;
    RXPromise<int> last = first;
    for (int i = 0; i < links - 1; ++i) {
        last = last.then([](int value) { return value + 1; });
    }
    last.then([&done](int) { done.release(); });
    first.fulfillWithValue(1);
    done.acquire();
}

struct PoolChain {
    int left = links;
    std::binary_semaphore done{0};

    void next()
    {
        if (--left == 0) {
            done.release();
        } else {
            ThreadPool::shared().submit([this] { next(); });
        }
    }
};

void chainOfPoolTasks()
{
    PoolChain tasks;
    ThreadPool::shared().submit([&tasks] { tasks.next(); });
    tasks.done.acquire();
}

struct QtChain {
    int left = links;
    std::binary_semaphore done{0};

    void next()
    {
        if (--left == 0) {
            done.release();
        } else {
            QThreadPool::globalInstance()->start([this] { next(); });
        }
    }
};

void chainOfQtPoolTasks()
{
    QtChain tasks;
    QThreadPool::globalInstance()->start([&tasks] { tasks.next(); });
    tasks.done.acquire();
}

void joined()
{
    std::binary_semaphore done(0);
    const std::vector<RXPromise<int>> promises(inputs);
    RXPromise<int>::all(promises).then([&done](const std::vector<int>&) { done.release(); });
    for (int i = 0; i < inputs; ++i) {
        promises[static_cast<std::size_t>(i)].fulfillWithValue(i);
    }
    done.acquire();
}

void oneThenEach()
{
    std::binary_semaphore done(0);
    std::atomic<int> left = inputs;
    const std::vector<RXPromise<int>> promises(inputs);
    for (const auto& promise : promises) {
        promise.then([&](int) {
            if (left.fetch_sub(1, std::memory_order_acq_rel) == 1) {
                done.release();
            }
        });
    }
    for (int i = 0; i < inputs; ++i) {
        promises[static_cast<std::size_t>(i)].fulfillWithValue(i);
    }
    done.acquire();
}

/// Runs the function as a registered benchmark.
template <void (*function)()>
void run(benchmark::State& state)
{
    for (auto unused : state) {
        static_cast<void>(unused);
        function();
    }
}
BENCHMARK(run<oneThen>)->Name("one then");
BENCHMARK(run<oneThenOfQPromise>)->Name("one then, QPromise");
BENCHMARK(run<noThenOfStdPromise>)->Name("no then, std::promise");
BENCHMARK(run<chain>)->Name("chain of 100")->UseRealTime();
BENCHMARK(run<chainOfPoolTasks>)->Name("chain of 100, pool tasks")->UseRealTime();
BENCHMARK(run<chainOfQtPoolTasks>)->Name("chain of 100, QThreadPool tasks")->UseRealTime();
BENCHMARK(run<joined>)->Name("all: of 1,000")->UseRealTime();
BENCHMARK(run<oneThenEach>)->Name("one then each, 1,000")->UseRealTime();

/// A function that runs the given one this many times, for one measurement.
auto times(int count, void (*function)())
{
    return [count, function] {
        for (int i = 0; i < count; ++i) {
            function();
        }
    };
}

void compare(bench::Rows& rows, std::string_view name, double goal, int count, void (*ours)(), void (*reference)())
{
    const auto medians = bench::medianInterleaved(times(count, ours), times(count, reference), 31);
    rows.add(name, medians.ours / count, medians.reference / count, goal);
}

void measureRows(bench::Rows& rows)
{
    compare(rows, "promise: create, one then, settle / QPromise and then", 0.5, 20000, oneThen, oneThenOfQPromise);
    compare(rows, "promise: create, one then, settle / std::promise, no continuation", 1.2, 20000, oneThen,
            noThenOfStdPromise);
    compare(rows, "promise: chain of 100 with pool hops / a pool task a link", 2, 100, chain, chainOfPoolTasks);
    compare(rows, "all: of 1,000 inputs / one then each", 0.5, 20, joined, oneThenEach);
}

} // namespace
} // namespace lodestar

int main(int argc, char** argv)
{
    return lodestar::bench::run(argc, argv, lodestar::measureRows);
}
