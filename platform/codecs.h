#pragma once
// Picture files through the real libraries: libjpeg, giflib, libpng, and our own BMP code.
// Decoders throw ResourceError (UTF-8 text) on damaged data; encoders return the file as bytes.
#include "platform/picture.h"
#include "platform/textlist.h"  // ResourceError

#include <string>

namespace platform {

// Decoders of single pictures (GIF: the first frame composed on its logical screen).
Picture decodeBmp(const std::string& bytes);
Picture decodeJpeg(const std::string& bytes);
Picture decodePng(const std::string& bytes);
Picture decodeGif(const std::string& bytes);
// Guesses the format from the first bytes; "" when unknown.
std::string sniffPictureType(const std::string& bytes);

// Encoders.
std::string encodeBmp24(const Picture& pic);
// 4 bits a pixel with the 16 standard colours of the VGA palette, nearest colour.
std::string encodeBmp16(const Picture& pic);
std::string encodeJpeg(const Picture& pic, int quality = 100);
// Exact palette when the picture has at most 256 colours, otherwise our median cut.
std::string encodeGif(const Picture& pic);
std::string encodePng(const Picture& pic);

// The 16 colours of encodeBmp16, red in the low byte.
extern const TColor kVgaPalette[16];

}  // namespace platform
