#include "Diagnostics.h"

#include "ExitStatus.h"
#include "Utf8.h"

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
    auto appendHex = [&out](unsigned char byte) {
        char hex[8];
        std::snprintf(hex, sizeof hex, "\\x%02x", unsigned(byte));
        out += hex;
    };
    for (std::size_t at = 0; at < file.size();) {
        const Utf8Char c = nextUtf8Char(file, at);
        // Bytes that are no UTF-8 keep the line valid text and still name the file exactly.
        if (!c.valid) {
            for (std::size_t i = 0; i < c.length; ++i) appendHex(static_cast<unsigned char>(file[at + i]));
            at += c.length;
            continue;
        }
        const char ch = file[at];
        const auto escape = std::find_if(kEscapes.begin(), kEscapes.end(), [&](const auto& e) { return e.first == ch; });
        if (escape != kEscapes.end())
            out += escape->second;
        else if (c.codePoint < 0x20 || c.codePoint == 0x7F)
            appendHex(static_cast<unsigned char>(ch));
        else
            out.append(file.substr(at, c.length));
        at += c.length;
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
