#include "platform/picture.h"
#include "platform/textlist.h"

#include <QBuffer>
#include <QImageReader>

namespace platform {

// Interim decoders through Qt's readers; replaced by the libjpeg/giflib decoders.
Picture decodePicture(const std::string& bytes, const std::string& type)
{
    QImage img;
    if (!img.loadFromData(reinterpret_cast<const uchar*>(bytes.data()), static_cast<int>(bytes.size())))
        throw ResourceError("Bild kann nicht gelesen werden (" + type + ")");
    return Picture(img);
}

std::vector<PictureFrame> decodeAnimatedGif(const std::string& bytes)
{
    QByteArray data(bytes.data(), static_cast<qsizetype>(bytes.size()));
    QBuffer buf(&data);
    buf.open(QIODevice::ReadOnly);
    QImageReader reader(&buf);
    std::vector<PictureFrame> frames;
    QImage img;
    while (reader.read(&img)) {
        frames.push_back({Picture(img), reader.nextImageDelay()});
        if (!reader.supportsAnimation())
            break;
    }
    if (frames.empty())
        throw ResourceError("GIF kann nicht gelesen werden");
    return frames;
}

}  // namespace platform
