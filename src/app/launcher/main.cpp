// dashtrack: hands the movies named on the command line to the window already open in this
// session, or starts the player (dashtrack-window, beside this program) in its own place. Links
// nothing of the player, so that opening a clip into a running window costs a few milliseconds.

#include "InstanceClient.h"
#include "InstanceSocketName.h"
#include "MovieArguments.h"

#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <string>
#include <system_error>

namespace {

std::filesystem::path playerBeside() {
    std::error_code error;
    const std::filesystem::path self = std::filesystem::read_symlink("/proc/self/exe", error);
    return (error ? std::filesystem::path("/usr/bin") : self.parent_path()) / "dashtrack-window";
}

}  // namespace

int main(int argc, char** argv) {
    // Options (--new-window, --help, Qt's own) are the player's to read; it hands over itself
    // when they allow.
    if (const auto movies = plainMovieArguments(argc, argv)) {
        if (InstanceClient::handOver(instanceSocketName(currentInstanceSocketPlace()), absoluteArguments(*movies)))
            return 0;
    }
    // The same process and arguments, argv[0] included: the window keeps the name desktops know.
    const std::string player = playerBeside().native();
    ::execv(player.c_str(), argv);
    std::fprintf(stderr, "dashtrack: cannot start %s: %s\n", player.c_str(), std::strerror(errno));
    return 127;
}
