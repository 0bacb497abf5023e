#pragma once

#include <optional>
#include <string_view>

// The document area is the picture that gets exported; the window is built around it.
// These are its limits and the arithmetic between the typed size, the area on screen
// (the typed size plus a 1-pixel frame on every side) and the window.
namespace orrery {

struct PixelSize {
    int width = 0;
    int height = 0;
    friend bool operator==(const PixelSize&, const PixelSize&) = default;
};

inline constexpr int kDocumentWidthMin = 610;
inline constexpr int kDocumentWidthMax = 2518;
inline constexpr int kDocumentHeightMin = 420;
inline constexpr int kDocumentHeightMax = 1150;
// The frame around the document and what the window adds around that frame: the title
// bar and toolbar above, the planet panel and status bar below, margins at the sides.
inline constexpr int kDocumentFrame = 2;
inline constexpr int kWindowExtraWidth = 40;
inline constexpr int kWindowExtraHeight = 262;

enum class DocumentAxis { width, height };

// What a size field holds when Return is pressed: not a whole number, a whole number
// outside the axis's limits, or a usable size.
enum class SideCheck { notWhole, outOfRange, valid };
SideCheck checkDocumentSide(std::string_view text, DocumentAxis axis);

// The window around a typed document size, and the typed size a window shows.
PixelSize windowSizeForDocument(PixelSize document);
PixelSize documentSizeForWindow(PixelSize window);

// Where a document of this size is shown in an area of the window: at its own size and
// centred when it fits, else scaled down to fit whole and centred. `percent` is the scale.
struct DocumentFit {
    int left = 0;
    int top = 0;
    PixelSize size;
    int percent = 100;
    friend bool operator==(const DocumentFit&, const DocumentFit&) = default;
};
DocumentFit fitDocument(PixelSize document, PixelSize area);

// The smallest and largest windows, those of the smallest and largest documents.
PixelSize minimumWindowSize();
PixelSize maximumWindowSize();

} // namespace orrery
