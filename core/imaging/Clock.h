#pragma once

namespace sw {

// The local time of day, for seeding noise.
class Clock {
public:
    virtual ~Clock() = default;
    virtual float SecondsSinceMidnight() = 0;
};

// The system's clock in local time.
Clock& SystemClock();

} // namespace sw
