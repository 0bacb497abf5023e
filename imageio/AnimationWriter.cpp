#include "imageio/AnimationWriter.h"

#include "imageio/AnimatedGif.h"
#include "imageio/AnimatedWebp.h"
#include "imageio/FrameSequence.h"
#include "imageio/SpriteSheetWriter.h"
#include "imageio/VideoEncoder.h"

namespace orrery::imageio {

std::unique_ptr<AnimationWriter> beginAnimation(AnimationFormat format, const std::string& path,
                                                const AnimationSettings& settings,
                                                std::string& error) {
    switch (format) {
    case AnimationFormat::gif:
        return beginAnimatedGif(path, settings, error);
    case AnimationFormat::webp:
        return beginAnimatedWebp(path, settings, error);
    case AnimationFormat::webm:
        return beginVideo(VideoKind::webm, path, settings, error);
    case AnimationFormat::mp4:
        return beginVideo(VideoKind::mp4, path, settings, error);
    case AnimationFormat::spriteSheet:
        return beginSpriteSheet(path, settings, error);
    case AnimationFormat::frames:
        return beginFrameSequence(path, settings, error);
    }
    error = "unknown animation format";
    return nullptr;
}

} // namespace orrery::imageio
