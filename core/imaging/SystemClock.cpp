#include "imaging/Clock.h"

#include <chrono>
#include <ctime>

namespace sw {
namespace {

class LocalClock : public Clock {
public:
    float SecondsSinceMidnight() override {
        const auto now = std::chrono::system_clock::now();
        const std::time_t seconds = std::chrono::system_clock::to_time_t(now);
        std::tm local{};
        ::localtime_r(&seconds, &local);
        const auto fraction =
            std::chrono::duration<double>(now - std::chrono::system_clock::from_time_t(seconds));
        return static_cast<float>(local.tm_hour * 3600 + local.tm_min * 60 + local.tm_sec +
                                  fraction.count());
    }
};

} // namespace

Clock& SystemClock() {
    static LocalClock clock;
    return clock;
}

} // namespace sw
