#include "MovieDemuxer.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace {

constexpr std::array<std::string_view, 9> kPictureDemuxers = {
    "image2", "image2pipe", "apng", "gif", "ico", "alias_pix", "brender_pix", "fits", "txd",
};
constexpr std::array<std::string_view, 5> kTextArtDemuxers = {"tty", "bin", "xbin", "adf", "idf"};
constexpr std::array<std::string_view, 9> kListDemuxers = {
    "concat", "hls", "dash", "webm_dash_manifest", "imf", "sdp", "rtp", "rtsp", "ffmetadata",
};

template <std::size_t N>
bool contains(const std::array<std::string_view, N>& names, std::string_view name) {
    return std::find(names.begin(), names.end(), name) != names.end();
}

}  // namespace

bool isMovieDemuxer(const AVInputFormat& format) {
    if (format.name == nullptr || (format.flags & AVFMT_NOFILE) != 0) return false;
    const std::string_view name = format.name;
    return !name.ends_with("_pipe") && !contains(kPictureDemuxers, name) && !contains(kTextArtDemuxers, name) &&
           !contains(kListDemuxers, name);
}
