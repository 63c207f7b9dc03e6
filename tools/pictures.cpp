// Pictures for the containers: authored as SVG (vector source) or as our own raster files.
#include "platform/codecs.h"
#include "platform/picture.h"
#include "tools/packer.h"

#include <QImage>
#include <QPainter>
#include <QSvgRenderer>
#include <filesystem>

namespace fs = std::filesystem;

namespace packer {

std::string pictureBytesFromSource(const fs::path& source, const std::string& type)
{
    std::string raw;
    if (!platform::readFile(source.string(), raw))
        throw PackError(source.string() + ":0: Bild nicht lesbar");
    QImage img;
    if (source.extension() == ".svg") {
        QSvgRenderer r(QByteArray(raw.data(), static_cast<qsizetype>(raw.size())));
        if (!r.isValid())
            throw PackError(source.string() + ":0: ungültiges SVG");
        img = QImage(r.defaultSize(), QImage::Format_RGB32);
        img.fill(Qt::white);
        QPainter p(&img);
        p.setRenderHint(QPainter::Antialiasing);
        r.render(&p);
    } else {
        if (!img.loadFromData(reinterpret_cast<const uchar*>(raw.data()), static_cast<int>(raw.size())))
            throw PackError(source.string() + ":0: Bild nicht lesbar");
        // Raster sources in the target format are stored as they are.
        const auto ext = source.extension().string();
        if ((type == "Jpeg" && (ext == ".jpg" || ext == ".jpeg")) || (type == "GIF" && ext == ".gif") ||
            (type == "BMP" && ext == ".bmp"))
            return raw;
    }
    // Our own encoders, so the containers hold what the program's decoders read: a real GIF for
    // "GIF", a libjpeg JPEG for "Jpeg".
    try {
        const platform::Picture pic(img);
        if (type == "Jpeg")
            return platform::encodeJpeg(pic, 92);
        if (type == "GIF")
            return platform::encodeGif(pic);
        if (type == "BMP")
            return platform::encodeBmp24(pic);
        return platform::encodePng(pic);
    } catch (const platform::ResourceError& e) {
        throw PackError(source.string() + ":0: Bild kann nicht kodiert werden (" + e.what() + ")");
    }
}

}  // namespace packer
