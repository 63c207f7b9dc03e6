// Pictures for the containers: authored as SVG (vector source) or as our own raster files.
#include "platform/picture.h"
#include "tools/packer.h"

#include <QBuffer>
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
    QByteArray out;
    QBuffer buf(&out);
    buf.open(QIODevice::WriteOnly);
    const char* fmt = type == "Jpeg" ? "JPG" : type == "BMP" ? "BMP" : "PNG";
    if (!img.save(&buf, fmt, type == "Jpeg" ? 92 : -1))
        throw PackError(source.string() + ":0: Bild kann nicht kodiert werden");
    return std::string(out.constData(), static_cast<size_t>(out.size()));
}

}  // namespace packer
