#include "MovieBox.h"

extern "C" {
#include <libavutil/channel_layout.h>
}

namespace {

constexpr uint32_t kMovieTimescale = 1000;
constexpr uint16_t kUndeterminedLanguage = 0x55C4;  // "und", packed ISO 639-2

struct TrackHeader {
    uint32_t id;
    uint32_t duration;  // movie time scale
    uint16_t volume;    // 8.8
    uint16_t width;     // 0 for sound
    uint16_t height;
};

void writeMatrix(ByteWriter& out) {
    for (uint32_t value : {0x00010000u, 0u, 0u, 0u, 0x00010000u, 0u, 0u, 0u, 0x40000000u}) out.u32(value);
}

void writeMovieHeader(ByteWriter& out, const MovieDescription& movie) {
    out.fullBox("mvhd", 0, 0, [&] {
        out.u32(movie.creationTime);
        out.u32(movie.creationTime);  // modification
        out.u32(kMovieTimescale);
        out.u32(movie.durationSeconds * kMovieTimescale);
        out.u32(0x00010000);  // rate 1.0
        out.u16(0x0100);      // volume 1.0
        out.zeros(10);
        writeMatrix(out);
        out.zeros(24);
        out.u32(movie.dataTrack ? 4 : 3);  // next track ID
    });
}

void writeTrackHeader(ByteWriter& out, const MovieDescription& movie, const TrackHeader& track) {
    out.fullBox("tkhd", 0, 0x3 /* enabled, in movie */, [&] {
        out.u32(movie.creationTime);
        out.u32(movie.creationTime);
        out.u32(track.id);
        out.u32(0);
        out.u32(track.duration);
        out.zeros(8);
        out.u16(0);  // layer
        out.u16(0);  // alternate group
        out.u16(track.volume);
        out.u16(0);
        writeMatrix(out);
        out.u32(uint32_t(track.width) << 16);
        out.u32(uint32_t(track.height) << 16);
    });
}

void writeMediaHeader(ByteWriter& out, const MovieDescription& movie, uint32_t timescale, uint32_t duration) {
    out.fullBox("mdhd", 0, 0, [&] {
        out.u32(movie.creationTime);
        out.u32(movie.creationTime);
        out.u32(timescale);
        out.u32(duration);
        out.u16(kUndeterminedLanguage);
        out.u16(0);
    });
}

void writeHandler(ByteWriter& out, FileBrand brand, const char* handler) {
    out.fullBox("hdlr", 0, 0, [&] {
        // QuickTime names the component type here; ISO files leave it zero.
        if (brand == FileBrand::QuickTime)
            out.fourcc("mhlr");
        else
            out.u32(0);
        out.fourcc(handler);
        out.zeros(12);
        out.u8(0);  // empty name: a zero-length Pascal string and an empty C string alike
    });
}

void writeDataInformation(ByteWriter& out) {
    out.box("dinf", [&] {
        out.fullBox("dref", 0, 0, [&] {
            out.u32(1);
            out.fullBox("url ", 0, 1 /* media in this file */, [] {});
        });
    });
}

void writeColour(ByteWriter& out, FileBrand brand) {
    // BT.709 primaries, transfer and matrix, limited range: the same as the stream's VUI.
    out.box("colr", [&] {
        out.fourcc(brand == FileBrand::IsoMp4 ? "nclx" : "nclc");
        out.u16(1);
        out.u16(1);
        out.u16(1);
        if (brand == FileBrand::IsoMp4) out.u8(0);  // full-range flag clear
    });
}

void writeVideoSampleDescription(ByteWriter& out, FileBrand brand, const VideoTrack& video) {
    out.fullBox("stsd", 0, 0, [&] {
        out.u32(1);
        out.box("avc1", [&] {
            out.zeros(6);
            out.u16(1);     // data reference index
            out.zeros(16);  // version, revision, vendor, qualities
            out.u16(video.width);
            out.u16(video.height);
            out.u32(0x00480000);  // 72 dpi
            out.u32(0x00480000);
            out.u32(0);
            out.u16(1);  // frames per sample
            constexpr std::string_view name = "H.264";
            out.u8(uint8_t(name.size()));
            for (char c : name) out.u8(uint8_t(c));
            out.zeros(31 - name.size());
            out.u16(24);      // depth
            out.u16(0xFFFF);  // no colour table
            out.box("avcC", [&] { out.bytes(video.avcC); });
            writeColour(out, brand);
            out.box("pasp", [&] {
                out.u32(1);
                out.u32(1);
            });
        });
    });
}

// Without a channel layout, players guess one and say so.
void writeChannelLayout(ByteWriter& out, uint16_t channels) {
    constexpr uint32_t kUseChannelBitmap = 1 << 16;
    AVChannelLayout layout{};
    av_channel_layout_default(&layout, channels);
    const uint64_t bitmap = layout.order == AV_CHANNEL_ORDER_NATIVE ? layout.u.mask : 0;
    av_channel_layout_uninit(&layout);
    out.fullBox("chan", 0, 0, [&] {
        out.u32(kUseChannelBitmap);
        out.u32(uint32_t(bitmap));  // the QuickTime channel bits are the WAVE ones
        out.u32(0);                 // no channel descriptions
    });
}

void writeSoundSampleDescription(ByteWriter& out, const SoundTrack& sound) {
    out.fullBox("stsd", 0, 0, [&] {
        out.u32(1);
        out.box("sowt", [&] {
            out.zeros(6);
            out.u16(1);    // data reference index
            out.zeros(8);  // version 0, revision, vendor
            out.u16(sound.channels);
            out.u16(16);  // bits per sample
            out.u16(0);   // compression ID
            out.u16(0);   // packet size
            out.u32(uint32_t(sound.sampleRate) << 16);
            writeChannelLayout(out, sound.channels);
        });
    });
}

void writeVideoTrack(ByteWriter& out, const MovieDescription& movie) {
    const VideoTrack& video = movie.video;
    out.box("trak", [&] {
        writeTrackHeader(out, movie, {1, movie.durationSeconds * kMovieTimescale, 0, video.width, video.height});
        out.box("mdia", [&] {
            writeMediaHeader(out, movie, video.timescale, video.samples.sampleCount * video.samples.sampleDelta);
            writeHandler(out, movie.brand, "vide");
            out.box("minf", [&] {
                out.fullBox("vmhd", 0, 1, [&] { out.zeros(8); });
                writeDataInformation(out);
                out.box("stbl", [&] {
                    writeVideoSampleDescription(out, movie.brand, video);
                    writeSampleTableBoxes(out, video.samples);
                });
            });
        });
    });
}

void writeSoundTrack(ByteWriter& out, const MovieDescription& movie) {
    const SoundTrack& sound = movie.sound;
    out.box("trak", [&] {
        writeTrackHeader(out, movie, {2, movie.durationSeconds * kMovieTimescale, 0x0100, 0, 0});
        out.box("mdia", [&] {
            writeMediaHeader(out, movie, sound.sampleRate, sound.samples.sampleCount);
            writeHandler(out, movie.brand, "soun");
            out.box("minf", [&] {
                out.fullBox("smhd", 0, 0, [&] { out.zeros(4); });
                writeDataInformation(out);
                out.box("stbl", [&] {
                    writeSoundSampleDescription(out, sound);
                    writeSampleTableBoxes(out, sound.samples);
                });
            });
        });
    });
}

void writeDataTrack(ByteWriter& out, const MovieDescription& movie, const TimedDataTrack& track) {
    out.box("trak", [&] {
        writeTrackHeader(out, movie, {3, movie.durationSeconds * kMovieTimescale, 0, 0, 0});
        out.box("mdia", [&] {
            writeMediaHeader(out, movie, kMovieTimescale, track.samples.sampleCount * track.samples.sampleDelta);
            writeHandler(out, movie.brand, track.handler);
            out.box("minf", [&] {
                out.fullBox("nmhd", 0, 0, [] {});
                writeDataInformation(out);
                out.box("stbl", [&] {
                    out.fullBox("stsd", 0, 0, [&] {
                        out.u32(1);
                        out.box(track.sampleFormat, [&] {
                            out.zeros(6);
                            out.u16(1);  // data reference index
                        });
                    });
                    writeSampleTableBoxes(out, track.samples);
                });
            });
        });
    });
}

}  // namespace

std::vector<uint8_t> fileTypeBox(FileBrand brand) {
    ByteWriter out;
    out.box("ftyp", [&] {
        if (brand == FileBrand::IsoMp4) {
            out.fourcc("isom");
            out.u32(0x200);
            for (const char* compatible : {"isom", "iso2", "avc1"}) out.fourcc(compatible);
        } else {
            out.fourcc("qt  ");
            out.u32(0x20050300);
            out.fourcc("qt  ");
        }
    });
    return out.take();
}

std::vector<uint8_t> movieBox(const MovieDescription& movie) {
    ByteWriter out;
    out.box("moov", [&] {
        writeMovieHeader(out, movie);
        writeVideoTrack(out, movie);
        writeSoundTrack(out, movie);
        if (movie.dataTrack) writeDataTrack(out, movie, *movie.dataTrack);
        if (movie.gpsIndex) out.box("gps ", [&] { out.bytes(*movie.gpsIndex); });
    });
    return out.take();
}
