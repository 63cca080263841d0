#include "common/RunInOrder.h"

#include <atomic>
#include <chrono>
#include <gtest/gtest.h>
#include <stdexcept>
#include <string>
#include <thread>
#include <vector>

namespace sw {
namespace {

// Jobs that take longer the earlier they come, so that later ones finish first.
std::function<int(std::size_t)> slowFirst(std::size_t count, std::atomic<int>& produced) {
    return [count, &produced](std::size_t i) {
        std::this_thread::sleep_for(std::chrono::microseconds(50 * (count - i)));
        ++produced;
        return static_cast<int>(i * i);
    };
}

TEST(RunInOrder, HandsEveryResultOverInOrderWhateverTheThreads) {
    for (const int threads : {1, 2, 3, 16}) {
        for (const std::size_t count : {0u, 1u, 2u, 37u}) {
            std::atomic<int> produced = 0;
            std::vector<std::size_t> seen;
            RunInOrder<int>(count, threads, slowFirst(count, produced),
                            [&](std::size_t i, int& result) {
                                EXPECT_EQ(result, static_cast<int>(i * i));
                                seen.push_back(i);
                                return true;
                            });
            ASSERT_EQ(seen.size(), count) << threads << " threads";
            for (std::size_t i = 0; i < count; ++i) {
                EXPECT_EQ(seen[i], i);
            }
            EXPECT_EQ(produced, static_cast<int>(count));
        }
    }
}

TEST(RunInOrder, AStopEndsTheRunAndNothingLaterIsConsumed) {
    for (const int threads : {1, 4}) {
        for (const std::size_t stopAt : {0u, 5u, 29u}) {
            std::atomic<int> produced = 0;
            std::size_t consumed = 0;
            RunInOrder<int>(30, threads, slowFirst(30, produced), [&](std::size_t i, int&) {
                ++consumed;
                return i != stopAt;
            });
            EXPECT_EQ(consumed, stopAt + 1);
            // Work runs ahead by a bounded number of jobs only.
            EXPECT_LE(produced, static_cast<int>(stopAt) + 1 + 2 * threads);
        }
    }
}

TEST(RunInOrder, AFailedJobReachesTheCallerAtItsTurn) {
    for (const int threads : {1, 3}) {
        std::size_t consumed = 0;
        const auto produce = [](std::size_t i) {
            if (i == 7 || i == 12) {
                throw std::runtime_error("job " + std::to_string(i));
            }
            return 0;
        };
        try {
            RunInOrder<int>(20, threads, produce, [&](std::size_t, int&) {
                ++consumed;
                return true;
            });
            ADD_FAILURE() << "no exception";
        } catch (const std::runtime_error& error) {
            EXPECT_STREQ(error.what(), "job 7");
        }
        EXPECT_EQ(consumed, 7u);
        // A throwing consumer ends the run too, and the workers are joined.
        EXPECT_THROW(RunInOrder<int>(
                         20, threads, [](std::size_t) { return 1; },
                         [](std::size_t i, int&) -> bool {
                             if (i == 3) {
                                 throw std::logic_error("consumer");
                             }
                             return true;
                         }),
                     std::logic_error);
    }
}

} // namespace
} // namespace sw
