#include "Diagnostics.h"

#include "ExitStatus.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstring>
#include <ostream>
#include <utility>

namespace {

constexpr std::array<std::pair<char, std::string_view>, 4> kEscapes{{
    {'\\', "\\\\"},
    {'\n', "\\n"},
    {'\r', "\\r"},
    {'\t', "\\t"},
}};

}  // namespace

std::string displayName(std::string_view file) {
    std::string out;
    for (const char c : file) {
        const auto escape = std::find_if(kEscapes.begin(), kEscapes.end(), [&](const auto& e) { return e.first == c; });
        const auto byte = static_cast<unsigned char>(c);
        if (escape != kEscapes.end()) {
            out += escape->second;
        } else if (byte < 0x20 || byte == 0x7F) {
            char hex[8];
            std::snprintf(hex, sizeof hex, "\\x%02x", unsigned(byte));
            out += hex;
        } else {
            out += c;
        }
    }
    return out;
}

void reportFileError(std::ostream& err, std::string_view file, int errorNumber) {
    err << kProgramName << ": " << displayName(file) << ": " << std::strerror(errorNumber) << '\n';
}

void reportUsageError(std::ostream& err, std::string_view message) {
    err << kProgramName << ": " << message << " (try '" << kProgramName << " --help')\n";
}

int finishOutput(std::ostream& out, std::ostream& err, int status) {
    out.flush();
    if (out) return status;
    err << kProgramName << ": cannot write the output\n";
    return kExitFileError;
}
