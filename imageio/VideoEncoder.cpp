#include "imageio/VideoEncoder.h"

#include "imageio/PendingWriter.h"

#include <cmath>

extern "C" {
#include <libavcodec/avcodec.h>
#include <libavformat/avformat.h>
#include <libavutil/opt.h>
#include <libswscale/swscale.h>
}

namespace orrery::imageio {
namespace {

struct CodecDeleter {
    void operator()(AVCodecContext* p) const { avcodec_free_context(&p); }
};
struct FrameDeleter {
    void operator()(AVFrame* p) const { av_frame_free(&p); }
};
struct PacketDeleter {
    void operator()(AVPacket* p) const { av_packet_free(&p); }
};
struct ScalerDeleter {
    void operator()(SwsContext* p) const { sws_freeContext(p); }
};

std::string ffmpegError(const std::string& what, int code) {
    char text[AV_ERROR_MAX_STRING_SIZE] = {};
    av_strerror(code, text, sizeof text);
    return what + ": " + text;
}

struct Codec {
    const char* encoder;
    AVPixelFormat pixels;
    // The rate factor from compression 1 (best) to 0 (smallest): each library's useful span.
    double bestCrf;
    double worstCrf;
};

Codec codecFor(VideoKind kind) {
    if (kind == VideoKind::webm)
        return {"libvpx-vp9", AV_PIX_FMT_YUVA420P, 15.0, 63.0};
    return {"libx264", AV_PIX_FMT_YUV420P, 16.0, 51.0};
}

class VideoEncoder final : public AnimationWriter {
public:
    VideoEncoder(std::unique_ptr<PendingFile> file, VideoKind kind,
                 const AnimationSettings& settings)
        : file_(std::move(file)), kind_(kind), settings_(settings) {}
    ~VideoEncoder() override { abandon(); }

    std::string start() {
        const Codec codec = codecFor(kind_);
        const int width = kind_ == VideoKind::mp4 ? settings_.width & ~1 : settings_.width;
        const int height = kind_ == VideoKind::mp4 ? settings_.height & ~1 : settings_.height;
        if (width < 2 || height < 2)
            return "a video is at least 2 pixels wide and high";
        int status = avformat_alloc_output_context2(
            &format_, nullptr, kind_ == VideoKind::webm ? "webm" : "mp4", nullptr);
        if (status < 0)
            return ffmpegError("the container could not be made", status);
        const AVCodec* encoder = avcodec_find_encoder_by_name(codec.encoder);
        if (encoder == nullptr)
            return std::string("FFmpeg has no ") + codec.encoder + " encoder";
        stream_ = avformat_new_stream(format_, nullptr);
        context_.reset(avcodec_alloc_context3(encoder));
        frame_.reset(av_frame_alloc());
        packet_.reset(av_packet_alloc());
        if (stream_ == nullptr || !context_ || !frame_ || !packet_)
            return "out of memory for the video encoder";
        context_->width = width;
        context_->height = height;
        context_->pix_fmt = codec.pixels;
        context_->time_base = AVRational{1, settings_.fps};
        context_->framerate = AVRational{settings_.fps, 1};
        context_->gop_size = settings_.fps * 2;
        if (format_->oformat->flags & AVFMT_GLOBALHEADER)
            context_->flags |= AV_CODEC_FLAG_GLOBAL_HEADER;
        const double crf =
            codec.worstCrf - (codec.worstCrf - codec.bestCrf) * settings_.compression;
        av_opt_set_double(context_->priv_data, "crf", std::round(crf), 0);
        // Each encoder's quicker settings: at the same rate factor a turntable looks the same,
        // in a file a little larger, for about half (VP9) or a quarter (H.264) of the time,
        // which on few cores is the time the whole export takes.
        if (kind_ == VideoKind::webm) {
            av_opt_set_int(context_->priv_data, "row-mt", 1, 0);
            av_opt_set(context_->priv_data, "deadline", "realtime", 0);
            av_opt_set_int(context_->priv_data, "cpu-used", 6, 0);
            // Real time looks at no frames ahead: buffers for them would only cost memory and
            // the time to clear it.
            av_opt_set_int(context_->priv_data, "lag-in-frames", 0, 0);
            context_->bit_rate = 0; // constant quality
            av_dict_set(&stream_->metadata, "alpha_mode", "1", 0);
        } else {
            av_opt_set(context_->priv_data, "preset", "veryfast", 0);
        }
        if ((status = avcodec_open2(context_.get(), encoder, nullptr)) < 0)
            return ffmpegError(std::string("the ") + codec.encoder + " encoder could not start",
                               status);
        if ((status = avcodec_parameters_from_context(stream_->codecpar, context_.get())) < 0)
            return ffmpegError("the video stream could not be described", status);
        stream_->time_base = context_->time_base;
        if ((status = avio_open(&format_->pb, file_->temporaryPath().c_str(), AVIO_FLAG_WRITE)) < 0)
            return ffmpegError("the file could not be opened", status);
        if ((status = avformat_write_header(format_, nullptr)) < 0)
            return ffmpegError("the video header could not be written", status);
        frame_->format = codec.pixels;
        frame_->width = width;
        frame_->height = height;
        if ((status = av_frame_get_buffer(frame_.get(), 0)) < 0)
            return ffmpegError("out of memory for a video frame", status);
        scaler_.reset(sws_getContext(width, height, AV_PIX_FMT_RGBA, width, height, codec.pixels,
                                     SWS_BICUBIC, nullptr, nullptr, nullptr));
        if (!scaler_)
            return "the colour conversion for the video could not start";
        return {};
    }

    std::string addFrame(Image frame) override {
        int status = av_frame_make_writable(frame_.get());
        if (status < 0)
            return ffmpegError("out of memory for a video frame", status);
        const std::uint8_t* source[1] = {frame.pixels.data()};
        const int stride[1] = {static_cast<int>(frame.stride())};
        sws_scale(scaler_.get(), source, stride, 0, frame_->height, frame_->data, frame_->linesize);
        frame_->pts = pts_++;
        return encode(frame_.get());
    }

    std::string finish() override {
        std::string error = encode(nullptr); // flushes what the encoder still holds
        int status = 0;
        if (error.empty() && (status = av_write_trailer(format_)) < 0)
            error = ffmpegError("the video could not be closed", status);
        if (error.empty() && (status = avio_closep(&format_->pb)) < 0)
            error = ffmpegError("the video could not be closed", status);
        if (!error.empty()) {
            abandon();
            return error;
        }
        release();
        return file_->commit();
    }

    void abandon() override {
        release();
        file_->abandon();
    }

private:
    std::string encode(const AVFrame* frame) {
        int status = avcodec_send_frame(context_.get(), frame);
        if (status < 0)
            return ffmpegError("a frame could not be encoded", status);
        while ((status = avcodec_receive_packet(context_.get(), packet_.get())) >= 0) {
            av_packet_rescale_ts(packet_.get(), context_->time_base, stream_->time_base);
            packet_->stream_index = stream_->index;
            status = av_interleaved_write_frame(format_, packet_.get());
            if (status < 0)
                return ffmpegError("the video could not be written", status);
        }
        if (status != AVERROR(EAGAIN) && status != AVERROR_EOF)
            return ffmpegError("a frame could not be encoded", status);
        return {};
    }

    void release() {
        if (format_ != nullptr) {
            avio_closep(&format_->pb);
            avformat_free_context(format_);
            format_ = nullptr;
        }
        scaler_.reset();
        context_.reset();
    }

    std::unique_ptr<PendingFile> file_;
    VideoKind kind_;
    AnimationSettings settings_;
    AVFormatContext* format_ = nullptr;
    AVStream* stream_ = nullptr; // owned by format_
    std::unique_ptr<AVCodecContext, CodecDeleter> context_;
    std::unique_ptr<AVFrame, FrameDeleter> frame_;
    std::unique_ptr<AVPacket, PacketDeleter> packet_;
    std::unique_ptr<SwsContext, ScalerDeleter> scaler_;
    std::int64_t pts_ = 0;
};

} // namespace

std::unique_ptr<AnimationWriter> beginVideo(VideoKind kind, const std::string& path,
                                            const AnimationSettings& settings, std::string& error) {
    // The libraries' own chatter would break the one-line-per-failure rule of the command line.
    av_log_set_level(AV_LOG_ERROR);
    return startPendingWriter<VideoEncoder>(path, error, kind, settings);
}

} // namespace orrery::imageio
