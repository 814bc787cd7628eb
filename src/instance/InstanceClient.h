#pragma once
// A later start's end of the hand-over: gives the running window its paths and waits for it to
// say it has them. Plain POSIX: the launcher runs it before any library of the player is loaded,
// so that handing over costs next to nothing.

#include <filesystem>
#include <string>
#include <vector>

class InstanceClient {
public:
    // False when no window answers at socketPath (none runs, or it died) or it does
    // not confirm: the caller then opens its own. Blocks, within a bound.
    static bool handOver(const std::string& socketPath, const std::vector<std::filesystem::path>& absolutePaths);
};
