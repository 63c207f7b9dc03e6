#pragma once
// The off-screen picture: 24-bit colour (stored 32 bits a pixel) with scan-line access.
#include "platform/color.h"

#include <QImage>
#include <string>
#include <vector>

namespace platform {

class Picture {
public:
    Picture() = default;
    Picture(int width, int height, TColor fill = clWhite);
    explicit Picture(QImage image);

    int width() const { return image_.width(); }
    int height() const { return image_.height(); }
    bool empty() const { return image_.isNull(); }
    void setSize(int width, int height);  // content is lost, white after
    void fill(TColor c);

    TColor pixel(int x, int y) const;
    void setPixel(int x, int y, TColor c);
    // Direct row access: 0x00RRGGBB words, as QImage keeps them.
    std::uint32_t* scanLine(int y) { return reinterpret_cast<std::uint32_t*>(image_.scanLine(y)); }
    const std::uint32_t* scanLine(int y) const
    {
        return reinterpret_cast<const std::uint32_t*>(image_.constScanLine(y));
    }

    void copyFrom(const Picture& src, int x, int y);            // draw src at (x, y)
    void stretchFrom(const Picture& src, int x, int y, int w, int h);

    QImage& image() { return image_; }
    const QImage& image() const { return image_; }
    bool savePng(const std::string& path) const;

private:
    QImage image_;
};

// One frame of a decoded (possibly animated) picture.
struct PictureFrame {
    Picture picture;   // the whole logical screen as it shows at this frame
    int delayMs = 0;
    int disposal = 0;  // GIF disposal of this frame: 0/1 keep, 2 background, 3 previous
};

// Decodes the bytes of a resource of type "Jpeg", "GIF", "BMP" or "PNG". Throws ResourceError.
Picture decodePicture(const std::string& bytes, const std::string& type);
// All frames of a GIF (a single picture gives one frame).
std::vector<PictureFrame> decodeAnimatedGif(const std::string& bytes);

}  // namespace platform
