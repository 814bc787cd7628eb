#pragma once
// What the user asked for on the command line.

#include "SpeedUnit.h"

#include <string>
#include <string_view>
#include <vector>

struct Invocation {
    std::string command;
    std::string format = "json";
    SpeedUnit unit = SpeedUnit::MPH;
    std::vector<std::string> files;
    bool help = false;
    std::vector<std::string_view> optionsGiven;  // long names, to check they suit the command
};
