// dashtrack-samplegen: writes a dash-camera movie with an embedded GPS track from a route file.

#include "CommandLine.h"
#include "Route.h"
#include "SampleGenError.h"
#include "SampleMovie.h"

extern "C" {
#include <libavutil/log.h>
}

#include <cstdio>
#include <exception>
#include <string_view>
#include <vector>

int main(int argc, char** argv) {
    const std::vector<std::string_view> arguments(argv + 1, argv + argc);
    av_log_set_level(AV_LOG_ERROR);  // the encoder's statistics are noise here
    try {
        const CommandLine line = parseCommandLine(arguments);
        if (line.help) {
            std::fputs(usageText().c_str(), stdout);
            return 0;
        }
        writeSampleMovie(Route::load(line.route), line.options, line.output);
        return 0;
    } catch (const UsageError& e) {
        std::fprintf(stderr, "dashtrack-samplegen: %s (see --help)\n", e.what());
        return 2;
    } catch (const std::exception& e) {
        std::fprintf(stderr, "dashtrack-samplegen: %s\n", e.what());
        return 1;
    }
}
