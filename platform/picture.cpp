#include "platform/picture.h"

#include "platform/textlist.h"

#include <QPainter>

namespace platform {

Picture::Picture(int width, int height, TColor fill) : image_(width, height, QImage::Format_RGB32)
{
    this->fill(fill);
}

Picture::Picture(QImage image) : image_(image.convertToFormat(QImage::Format_RGB32)) {}

void Picture::setSize(int width, int height)
{
    image_ = QImage(width, height, QImage::Format_RGB32);
    fill(clWhite);
}

void Picture::fill(TColor c)
{
    image_.fill(QColor(redOf(c), greenOf(c), blueOf(c)));
}

TColor Picture::pixel(int x, int y) const
{
    if (x < 0 || y < 0 || x >= width() || y >= height())
        return clBlack;
    QRgb p = scanLine(y)[x];
    return rgb(qRed(p), qGreen(p), qBlue(p));
}

void Picture::setPixel(int x, int y, TColor c)
{
    if (x < 0 || y < 0 || x >= width() || y >= height())
        return;
    scanLine(y)[x] = qRgb(redOf(c), greenOf(c), blueOf(c));
}

void Picture::copyFrom(const Picture& src, int x, int y)
{
    QPainter p(&image_);
    p.drawImage(x, y, src.image_);
}

void Picture::stretchFrom(const Picture& src, int x, int y, int w, int h)
{
    QPainter p(&image_);
    p.setRenderHint(QPainter::SmoothPixmapTransform);
    p.drawImage(QRect(x, y, w, h), src.image_);
}

bool Picture::savePng(const std::string& path) const
{
    return image_.save(QString::fromStdString(path), "PNG");
}

}  // namespace platform
