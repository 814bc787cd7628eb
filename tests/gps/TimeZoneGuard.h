#pragma once
// Sets TZ for the life of a test and puts the old value back.

#include <cstdlib>
#include <ctime>
#include <optional>
#include <string>

class TimeZoneGuard {
public:
    explicit TimeZoneGuard(const char* zone) {
        if (const char* old = std::getenv("TZ")) previous_ = old;
        setenv("TZ", zone, 1);
        tzset();
    }
    ~TimeZoneGuard() {
        if (previous_)
            setenv("TZ", previous_->c_str(), 1);
        else
            unsetenv("TZ");
        tzset();
    }
    TimeZoneGuard(const TimeZoneGuard&) = delete;
    TimeZoneGuard& operator=(const TimeZoneGuard&) = delete;

private:
    std::optional<std::string> previous_;
};
