#pragma once
// Which of libavformat's demuxers read movies. Every demuxer counts except those that make
// something else look like a movie:
// - pictures: image2, image2pipe, every "*_pipe" picture reader, and the still or animated
//   picture formats with demuxers of their own (gif, apng, ico...);
// - text drawn as a picture: tty and the other text-art readers (bin, xbin, adf, idf);
// - lists that name other files or network streams: concat, hls, dash, sdp...;
// - demuxers that open their input themselves (AVFMT_NOFILE): devices, filter graphs, patterns.

extern "C" {
#include <libavformat/avformat.h>
}

bool isMovieDemuxer(const AVInputFormat& format);
