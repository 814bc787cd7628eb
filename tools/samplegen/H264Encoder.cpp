#include "H264Encoder.h"

#include "AvcConfig.h"
#include "SampleGenError.h"

extern "C" {
#include <libavutil/error.h>
#include <libavutil/opt.h>
}

#include <string>

namespace {

std::string describe(int error) {
    char text[AV_ERROR_MAX_STRING_SIZE] = {};
    av_strerror(error, text, sizeof text);
    return text;
}

void check(int result, const char* what) {
    if (result < 0) throw SampleGenError(std::string("H.264 encoder: ") + what + ": " + describe(result));
}

}  // namespace

H264Encoder::H264Encoder(int width, int height, int fps) {
    const AVCodec* codec = avcodec_find_encoder_by_name("libx264");
    if (!codec) throw SampleGenError("H.264 encoder: libavcodec was built without libx264");
    context_.reset(avcodec_alloc_context3(codec));
    canvas_.reset(av_frame_alloc());
    packet_.reset(av_packet_alloc());
    if (!context_ || !canvas_ || !packet_) throw SampleGenError("H.264 encoder: out of memory");

    AVCodecContext& c = *context_;
    c.width = width;
    c.height = height;
    c.pix_fmt = AV_PIX_FMT_YUV420P;
    c.time_base = AVRational{1, fps};
    c.framerate = AVRational{fps, 1};
    c.sample_aspect_ratio = AVRational{1, 1};
    c.gop_size = fps;
    c.keyint_min = fps;
    c.max_b_frames = 0;
    c.color_range = AVCOL_RANGE_MPEG;
    c.color_primaries = AVCOL_PRI_BT709;
    c.color_trc = AVCOL_TRC_BT709;
    c.colorspace = AVCOL_SPC_BT709;
    c.flags |= AV_CODEC_FLAG_GLOBAL_HEADER;  // parameter sets once, in the avcC, not in every key frame
    check(av_opt_set(c.priv_data, "preset", "ultrafast", 0), "preset");
    // No scene-cut key frames: exactly one IDR frame at the start of every second.
    check(av_opt_set(c.priv_data, "x264-params", "scenecut=0:open-gop=0", 0), "x264 parameters");
    check(av_opt_set(c.priv_data, "forced-idr", "1", 0), "forced IDR");
    check(avcodec_open2(&c, codec, nullptr), "open");

    avcConfig_ = makeAvcConfig({c.extradata, std::size_t(c.extradata_size)});
    if (avcConfig_.empty()) throw SampleGenError("H.264 encoder: no parameter sets in the stream header");

    canvas_->format = c.pix_fmt;
    canvas_->width = width;
    canvas_->height = height;
    canvas_->color_range = c.color_range;
    canvas_->color_primaries = c.color_primaries;
    canvas_->color_trc = c.color_trc;
    canvas_->colorspace = c.colorspace;
    check(av_frame_get_buffer(canvas_.get(), 0), "frame buffer");
}

AVFrame& H264Encoder::canvas() {
    check(av_frame_make_writable(canvas_.get()), "frame buffer");
    return *canvas_;
}

std::vector<EncodedFrame> H264Encoder::encode() {
    canvas_->pts = nextPts_++;
    // Every second starts with an IDR frame, whatever the encoder would have chosen.
    canvas_->pict_type = canvas_->pts % context_->gop_size == 0 ? AV_PICTURE_TYPE_I : AV_PICTURE_TYPE_NONE;
    return send(canvas_.get());
}

std::vector<EncodedFrame> H264Encoder::finish() { return send(nullptr); }

std::vector<EncodedFrame> H264Encoder::send(const AVFrame* frame) {
    check(avcodec_send_frame(context_.get(), frame), "encode");
    std::vector<EncodedFrame> frames;
    for (;;) {
        const int result = avcodec_receive_packet(context_.get(), packet_.get());
        if (result == AVERROR(EAGAIN) || result == AVERROR_EOF) return frames;
        check(result, "encode");
        frames.push_back(
            {toLengthPrefixed({packet_->data, std::size_t(packet_->size)}), (packet_->flags & AV_PKT_FLAG_KEY) != 0});
        av_packet_unref(packet_.get());
    }
}
