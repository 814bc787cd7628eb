#pragma once
// The one test of what is a movie, and the open movie that passes it. Playlist validation, the
// player and the snapshot all open files through here, so they never disagree about a file.
//
// A movie is a local regular file that a movie demuxer (MovieDemuxer.h) reads and that holds a
// real video stream: a stream of pictures in a codec FFmpeg knows, not a cover picture.

#include "FFmpegHandles.h"
#include "LocalFileInput.h"

#include <filesystem>
#include <memory>
#include <optional>

class MovieFile {
public:
    // Nothing when the file is not a movie. Reads only the container's header where the header
    // lists the streams (MP4, MOV, MKV, AVI, mostly MPEG-TS); a few packets, within a fixed budget,
    // where streams appear only with their packets (MPEG-PS, FLV). Never prints anything. Safe to
    // call from any thread.
    static std::optional<MovieFile> open(const std::filesystem::path& file);

    MovieFile(MovieFile&&) noexcept = default;
    MovieFile& operator=(MovieFile&&) = delete;  // the old input would go before its demuxer
    MovieFile(const MovieFile&) = delete;
    MovieFile& operator=(const MovieFile&) = delete;
    ~MovieFile() = default;

    AVFormatContext& format() const { return *format_; }
    int videoStreamIndex() const { return videoStreamIndex_; }
    AVStream& videoStream() const { return *format_->streams[videoStreamIndex_]; }

    // Reads the first packets, within a fixed budget, to learn what the header leaves out (the
    // duration of an MPEG-TS file, the picture format). Does the reading once; false when FFmpeg
    // found nothing more.
    bool readStreamDetails();

private:
    MovieFile(std::unique_ptr<LocalFileInput> input, FormatContextPtr format);

    // Declared before format_, so the demuxer is closed before its input.
    std::unique_ptr<LocalFileInput> input_;
    FormatContextPtr format_;
    int videoStreamIndex_ = -1;
    std::optional<bool> detailsRead_;
};
