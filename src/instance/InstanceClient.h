#pragma once
// A later start's end of the hand-over: gives the running window its paths and waits for it to
// say it has them.

#include <QString>

#include <filesystem>
#include <vector>

class InstanceClient {
public:
    // False when no window answers on `name` (none runs, or it died) or it does not confirm: the
    // caller then opens its own. Blocks, briefly: it runs before any window exists.
    static bool handOver(const QString& name, const std::vector<std::filesystem::path>& absolutePaths);
};
