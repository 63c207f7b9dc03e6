#include "platform/toolframe.h"

#include "platform/codecs.h"
#include "platform/codepage.h"
#include "platform/container.h"

#include <QAbstractButton>
#include <QApplication>
#include <QBuffer>
#include <QClipboard>
#include <QCoreApplication>
#include <QFileDialog>
#include <QMessageBox>
#include <QPainter>
#include <QPainterPath>
#include <QPixmap>
#include <QPrintDialog>
#include <QPrinter>
#include <QSvgGenerator>
#include <QToolButton>

namespace platform {

// ---------------------------------------------------------------- toolbar

QString toolButtonHint(int kind)
{
    switch (kind) {
    case 1: return QStringLiteral("Beenden");
    case 2: return QStringLiteral("Drucken");
    case 3: return QStringLiteral("Kopieren");
    case 4: return QStringLiteral("Speichern");
    case 5: return QStringLiteral("Daten,Text,Abbildung laden");
    case 6: return QStringLiteral("Daten,Text,Abbildung speichern");
    case 7: return QStringLiteral("Gitternetz");
    case 8: return QStringLiteral("Millimeternetz");
    case 9: return QStringLiteral("Vergrößern");
    case 10: return QStringLiteral("Verkleinern");
    case 11: return QStringLiteral("Grundeinstellung");
    case 12: return QStringLiteral("Koordinatenachsen");
    case 13: return QStringLiteral("Animation");
    case 20: return QStringLiteral("Beispieldaten");
    case 21: return QStringLiteral("Löschen");
    default: return QString();
    }
}

namespace {

// Glyphs are drawn on a 24-unit grid and scaled to the wanted size.
void drawSheet(QPainter& p, QRectF r)
{
    QPainterPath path;
    path.moveTo(r.left(), r.top());
    path.lineTo(r.right() - 4, r.top());
    path.lineTo(r.right(), r.top() + 4);
    path.lineTo(r.right(), r.bottom());
    path.lineTo(r.left(), r.bottom());
    path.closeSubpath();
    p.setBrush(Qt::white);
    p.drawPath(path);
}

void drawDisk(QPainter& p, const QColor& body)
{
    p.setBrush(body);
    p.drawRoundedRect(QRectF(3, 3, 18, 18), 2, 2);
    p.setBrush(Qt::white);
    p.drawRect(QRectF(6, 3, 12, 7));
    p.setBrush(QColor(60, 60, 60));
    p.drawRect(QRectF(14, 4, 2, 5));
    p.setBrush(QColor(220, 220, 220));
    p.drawRect(QRectF(7, 13, 10, 8));
}

void drawMagnifier(QPainter& p, bool plus)
{
    p.setBrush(QColor(220, 235, 255));
    p.drawEllipse(QPointF(10, 10), 6.5, 6.5);
    p.setPen(QPen(QColor(90, 60, 30), 3, Qt::SolidLine, Qt::RoundCap));
    p.drawLine(QPointF(15, 15), QPointF(21, 21));
    p.setPen(QPen(Qt::black, 2));
    p.drawLine(QPointF(7, 10), QPointF(13, 10));
    if (plus)
        p.drawLine(QPointF(10, 7), QPointF(10, 13));
}

void drawGlyph(QPainter& p, int kind)
{
    const QPen outline(QColor(40, 40, 40), 1.2);
    p.setPen(outline);
    switch (kind) {
    case 1:  // door with an arrow out
        p.setBrush(QColor(170, 110, 60));
        p.drawRect(QRectF(4, 3, 10, 18));
        p.setBrush(Qt::black);
        p.drawEllipse(QPointF(12, 12), 1, 1);
        p.setPen(QPen(QColor(200, 0, 0), 2.2));
        p.drawLine(QPointF(14, 12), QPointF(21, 12));
        p.drawLine(QPointF(18, 9), QPointF(21, 12));
        p.drawLine(QPointF(18, 15), QPointF(21, 12));
        break;
    case 2:  // printer
        drawSheet(p, QRectF(7, 2, 10, 8));
        p.setBrush(QColor(150, 150, 160));
        p.drawRoundedRect(QRectF(2, 9, 20, 9), 2, 2);
        drawSheet(p, QRectF(6, 15, 12, 7));
        p.setBrush(QColor(0, 180, 0));
        p.drawEllipse(QPointF(18.5, 12), 1.2, 1.2);
        break;
    case 3:  // two sheets
        drawSheet(p, QRectF(3, 2, 12, 15));
        drawSheet(p, QRectF(9, 7, 12, 15));
        p.drawLine(QPointF(11, 12), QPointF(18, 12));
        p.drawLine(QPointF(11, 15), QPointF(18, 15));
        p.drawLine(QPointF(11, 18), QPointF(16, 18));
        break;
    case 4:  // disk
        drawDisk(p, QColor(40, 80, 170));
        break;
    case 5: {  // open folder
        p.setBrush(QColor(230, 190, 80));
        p.drawRect(QRectF(2, 6, 18, 14));
        QPolygonF lid;
        lid << QPointF(5, 10) << QPointF(22, 10) << QPointF(19, 20) << QPointF(2, 20);
        p.setBrush(QColor(250, 215, 110));
        p.drawPolygon(lid);
        break;
    }
    case 6:  // disk with a green arrow in
        drawDisk(p, QColor(40, 130, 80));
        p.setPen(QPen(QColor(0, 150, 0), 2.2));
        p.drawLine(QPointF(12, 12), QPointF(12, 20));
        p.drawLine(QPointF(9, 17), QPointF(12, 20));
        p.drawLine(QPointF(15, 17), QPointF(12, 20));
        break;
    case 7:  // coarse grid
        p.setBrush(Qt::white);
        p.drawRect(QRectF(2, 2, 20, 20));
        p.setPen(QPen(QColor(0, 0, 160), 1));
        for (int i = 1; i < 4; ++i) {
            p.drawLine(QPointF(2 + 5 * i, 2), QPointF(2 + 5 * i, 22));
            p.drawLine(QPointF(2, 2 + 5 * i), QPointF(22, 2 + 5 * i));
        }
        break;
    case 8:  // millimetre grid
        p.setBrush(QColor(255, 250, 235));
        p.drawRect(QRectF(2, 2, 20, 20));
        p.setPen(QPen(QColor(230, 140, 60), 0.5));
        for (int i = 1; i < 10; ++i) {
            p.drawLine(QPointF(2 + 2 * i, 2), QPointF(2 + 2 * i, 22));
            p.drawLine(QPointF(2, 2 + 2 * i), QPointF(22, 2 + 2 * i));
        }
        p.setPen(QPen(QColor(200, 90, 20), 1.2));
        p.drawLine(QPointF(12, 2), QPointF(12, 22));
        p.drawLine(QPointF(2, 12), QPointF(22, 12));
        break;
    case 9: drawMagnifier(p, true); break;
    case 10: drawMagnifier(p, false); break;
    case 11: {  // house: back to the start
        QPolygonF roof;
        roof << QPointF(2, 12) << QPointF(12, 3) << QPointF(22, 12);
        p.setBrush(QColor(190, 50, 40));
        p.drawPolygon(roof);
        p.setBrush(QColor(240, 230, 200));
        p.drawRect(QRectF(5, 12, 14, 10));
        p.setBrush(QColor(120, 80, 40));
        p.drawRect(QRectF(10, 15, 4, 7));
        break;
    }
    case 12:  // axes with arrows
        p.setPen(QPen(Qt::black, 1.6));
        p.drawLine(QPointF(2, 14), QPointF(22, 14));
        p.drawLine(QPointF(8, 22), QPointF(8, 2));
        p.drawLine(QPointF(19, 11), QPointF(22, 14));
        p.drawLine(QPointF(19, 17), QPointF(22, 14));
        p.drawLine(QPointF(5, 5), QPointF(8, 2));
        p.drawLine(QPointF(11, 5), QPointF(8, 2));
        p.setPen(QPen(QColor(0, 0, 200), 1.4));
        p.drawLine(QPointF(3, 21), QPointF(20, 4));
        break;
    case 13: {  // play
        QPolygonF tri;
        tri << QPointF(6, 3) << QPointF(21, 12) << QPointF(6, 21);
        p.setBrush(QColor(0, 150, 60));
        p.drawPolygon(tri);
        break;
    }
    case 20:  // table of sample values
        drawSheet(p, QRectF(3, 2, 18, 20));
        p.setPen(QPen(QColor(0, 0, 160), 1));
        for (int i = 0; i < 4; ++i) {
            p.drawLine(QPointF(6, 7 + 4 * i), QPointF(10, 7 + 4 * i));
            p.drawLine(QPointF(12, 7 + 4 * i), QPointF(18, 7 + 4 * i));
        }
        break;
    case 21:  // red cross
        p.setPen(QPen(QColor(200, 0, 0), 3.5, Qt::SolidLine, Qt::RoundCap));
        p.drawLine(QPointF(5, 5), QPointF(19, 19));
        p.drawLine(QPointF(19, 5), QPointF(5, 19));
        break;
    default: break;
    }
}

}  // namespace

QIcon toolButtonGlyph(int kind, int size)
{
    if (toolButtonHint(kind).isEmpty())
        return QIcon();
    QPixmap pm(size, size);
    pm.fill(Qt::transparent);
    QPainter p(&pm);
    p.setRenderHint(QPainter::Antialiasing);
    p.scale(size / 24.0, size / 24.0);
    drawGlyph(p, kind);
    p.end();
    return QIcon(pm);
}

void SetToolButton(QAbstractButton* button, int kind)
{
    if (!button)
        return;
    button->setToolTip(toolButtonHint(kind));
    button->setText(QString());
    QFont f(mapFontFamily("Verdana"));
    button->setFont(f);
    const QIcon icon = toolButtonGlyph(kind, 24);
    button->setIcon(icon);
    button->setIconSize(QSize(24, 24));
    if (auto* tb = qobject_cast<QToolButton*>(button))
        tb->setAutoRaise(true);
}

// ---------------------------------------------------------------- pictures

bool pictureFormatFromName(const std::string& name, PictureFormat& format)
{
    if (name == "bmp") format = PictureFormat::Bmp24;
    else if (name == "bmp16") format = PictureFormat::Bmp16;
    else if (name == "jpg" || name == "jpeg") format = PictureFormat::Jpeg;
    else if (name == "gif") format = PictureFormat::Gif;
    else if (name == "png") format = PictureFormat::Png;
    else if (name == "svg") format = PictureFormat::Svg;
    else return false;
    return true;
}

namespace {

const char* const kFilters[] = {"Abbildung (*.bmp)",      "Abbildung,16 Farben (*.bmp)", "Abbildung (*.jpg)",
                                "GIF-Abbildung (*.gif *.GIF)", "PNG-Abbildung (*.png *.PNG)", "Vektorgrafik (*.svg)"};
const PictureFormat kFilterFormats[] = {PictureFormat::Bmp24, PictureFormat::Bmp16, PictureFormat::Jpeg,
                                        PictureFormat::Gif,   PictureFormat::Png,   PictureFormat::Svg};

}  // namespace

QString savePictureFilter()
{
    QStringList parts;
    for (const char* f : kFilters)
        parts << QString::fromUtf8(f);
    return parts.join(QStringLiteral(";;"));
}

PictureFormat pictureFormatOfFilter(const QString& selectedFilter)
{
    for (size_t i = 0; i < std::size(kFilters); ++i)
        if (selectedFilter == QString::fromUtf8(kFilters[i]))
            return kFilterFormats[i];
    return PictureFormat::Gif;
}

Picture paintPicture(int width, int height, const PaintRoutine& paint)
{
    Picture pic(std::max(1, width), std::max(1, height), clWhite);
    {
        Canvas canvas(pic);
        canvas.setFontName("Verdana");
        paint(canvas, pic.width(), pic.height());
    }
    return pic;
}

std::string paintSvg(int width, int height, const PaintRoutine& paint)
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    QSvgGenerator gen;
    gen.setOutputDevice(&buffer);
    gen.setSize(QSize(width, height));
    gen.setViewBox(QRect(0, 0, width, height));
    gen.setResolution(96);
    gen.setTitle(QStringLiteral("Quorix"));
    {
        Canvas canvas(static_cast<QPaintDevice*>(&gen));
        canvas.setFontName("Verdana");
        paint(canvas, width, height);
    }
    std::string svg(buffer.data().constData(), static_cast<size_t>(buffer.data().size()));
    // The generator states the size in millimetres, which readers turn back into pixels at
    // differing resolutions; plain pixel sizes keep the picture at width x height everywhere.
    const size_t head = svg.find("<svg ");
    const size_t end = svg.find("viewBox", head);
    if (head != std::string::npos && end != std::string::npos)
        svg.replace(head, end - head,
                    "<svg width=\"" + std::to_string(width) + "\" height=\"" + std::to_string(height) + "\"\n ");
    return svg;
}

void writePictureFile(const std::string& path, PictureFormat format, int width, int height,
                      const PaintRoutine& paint)
{
    if (width <= 0 || height <= 0)
        throw ResourceError("Leeres Bild kann nicht gespeichert werden");
    std::string bytes;
    if (format == PictureFormat::Svg) {
        bytes = paintSvg(width, height, paint);
    } else {
        const Picture pic = paintPicture(width, height, paint);
        switch (format) {
        case PictureFormat::Bmp24: bytes = encodeBmp24(pic); break;
        case PictureFormat::Bmp16: bytes = encodeBmp16(pic); break;
        case PictureFormat::Jpeg: bytes = encodeJpeg(pic, 100); break;
        case PictureFormat::Gif: bytes = encodeGif(pic); break;
        default: bytes = encodePng(pic); break;
        }
    }
    try {
        writeFileSafely(path, bytes);
    } catch (const std::exception& e) {
        throw ResourceError("Die Abbildung kann nicht gespeichert werden: " + path);
    }
}

bool SavePicture(int width, int height, const PaintRoutine& paint, QWidget* owner)
{
    QFileDialog dlg(owner, QStringLiteral("Abbildung speichern"));
    dlg.setAcceptMode(QFileDialog::AcceptSave);
    dlg.setNameFilter(savePictureFilter());
    dlg.selectNameFilter(QString::fromUtf8(kFilters[3]));
    dlg.setDefaultSuffix(QStringLiteral("gif"));
    if (dlg.exec() != QDialog::Accepted || dlg.selectedFiles().isEmpty())
        return false;
    const QString file = dlg.selectedFiles().first();
    try {
        writePictureFile(file.toStdString(), pictureFormatOfFilter(dlg.selectedNameFilter()), width, height, paint);
    } catch (const std::exception& e) {
        QMessageBox::warning(owner, QStringLiteral("Quorix"), QString::fromUtf8(e.what()) + QLatin1Char('.'));
        return false;
    }
    return true;
}

void CopyPicture(int width, int height, const PaintRoutine& paint, QWidget* /*owner*/)
{
    const Picture pic = paintPicture(width, height, paint);
    if (QClipboard* cb = QGuiApplication::clipboard())
        cb->setImage(pic.image());
}

void printPictureTo(QPrinter& printer, int width, int height, const PaintRoutine& paint)
{
    QPainter painter;
    if (!painter.begin(&printer))
        throw ResourceError("Der Drucker ist nicht bereit");
    // Scale the drawing to the page, keeping its proportions.
    const QRectF page = printer.pageLayout().paintRectPixels(printer.resolution());
    const double s = std::min(page.width() / std::max(1, width), page.height() / std::max(1, height));
    painter.scale(s, s);
    painter.setClipRect(QRect(0, 0, width, height));
    {
        Canvas canvas(&painter);
        canvas.setFontName("Verdana");
        paint(canvas, width, height);
    }
    painter.end();
}

bool PrintPicture(int width, int height, const PaintRoutine& paint, QWidget* owner)
{
    QPrinter printer(QPrinter::HighResolution);
    printer.setPageOrientation(width > height ? QPageLayout::Landscape : QPageLayout::Portrait);
    QPrintDialog dlg(&printer, owner);
    dlg.setWindowTitle(QStringLiteral("Drucken"));
    if (dlg.exec() != QDialog::Accepted)
        return false;
    try {
        printPictureTo(printer, width, height, paint);
    } catch (const std::exception& e) {
        QMessageBox::warning(owner, QStringLiteral("Quorix"), QString::fromUtf8(e.what()) + QLatin1Char('.'));
        return false;
    }
    return true;
}

// ---------------------------------------------------------------- text files and resources

bool readTextFile(const std::string& path, StringList& list)
{
    list.clear();
    std::string data;
    if (!readFile(path, data))
        return false;
    list = splitLines(data);
    return true;
}

void writeTextFile(const std::string& path, const StringList& list)
{
    writeFileSafely(path, joinLines(list));
}

bool LoadTextFile(StringList& list, QWidget* owner)
{
    QFileDialog dlg(owner, QStringLiteral("Text laden"));
    dlg.setAcceptMode(QFileDialog::AcceptOpen);
    dlg.setFileMode(QFileDialog::ExistingFile);
    dlg.setNameFilter(QStringLiteral("Textdatei (*.txt)"));
    dlg.setDefaultSuffix(QStringLiteral("txt"));
    if (dlg.exec() != QDialog::Accepted || dlg.selectedFiles().isEmpty())
        return false;
    return readTextFile(dlg.selectedFiles().first().toStdString(), list);
}

bool SaveTextFile(const StringList& list, QWidget* owner)
{
    QFileDialog dlg(owner, QStringLiteral("Daten speichern"));
    dlg.setAcceptMode(QFileDialog::AcceptSave);
    dlg.setNameFilter(QStringLiteral("Textdatei (*.txt)"));
    dlg.setDefaultSuffix(QStringLiteral("txt"));
    if (dlg.exec() != QDialog::Accepted || dlg.selectedFiles().isEmpty())
        return false;
    try {
        writeTextFile(dlg.selectedFiles().first().toStdString(), list);
    } catch (const std::exception&) {
        QMessageBox::warning(owner, QStringLiteral("Quorix"), QStringLiteral("Die Datei kann nicht gespeichert werden."));
        return false;
    }
    return true;
}

namespace {

std::string& textResourcePathStore()
{
    static std::string path;
    return path;
}

}  // namespace

void setTextResourceFile(const std::string& path)
{
    textResourcePathStore() = path;
}

std::string textResourceFile()
{
    if (!textResourcePathStore().empty())
        return textResourcePathStore();
    const QString dir = QCoreApplication::instance() ? QCoreApplication::applicationDirPath() : QStringLiteral(".");
    return (dir + QStringLiteral("/000/textx.dll")).toStdString();
}

bool LoadTextResource(StringList& list, const std::string& name)
{
    list.clear();
    try {
        list = loadTextResource(textResourceFile(), "10", name);
        return true;
    } catch (const std::exception&) {
        list.clear();
        return false;
    }
}

namespace {

std::string& pictureDirectoryStore()
{
    static std::string dir;
    return dir;
}

std::string pictureContainerPath(const std::string& container)
{
    return pictureDirectory() + "/" + container + ".dll";
}

}  // namespace

void setPictureDirectory(const std::string& dir)
{
    pictureDirectoryStore() = dir;
}

std::string pictureDirectory()
{
    if (!pictureDirectoryStore().empty())
        return pictureDirectoryStore();
    const QString dir = QCoreApplication::instance() ? QCoreApplication::applicationDirPath() : QStringLiteral(".");
    return (dir + QStringLiteral("/bmp")).toStdString();
}

bool LoadPictureResource(Picture& picture, const std::string& container, const std::string& type,
                         const std::string& name)
{
    try {
        picture = decodePicture(readResource(pictureContainerPath(container), type, name), type);
        return true;
    } catch (const std::exception&) {
        picture = Picture();
        return false;
    }
}

bool LoadAnimatedGifResource(std::vector<PictureFrame>& frames, const std::string& container,
                             const std::string& name)
{
    try {
        frames = decodeAnimatedGif(readResource(pictureContainerPath(container), "GIF", name));
        return true;
    } catch (const std::exception&) {
        frames.clear();
        return false;
    }
}

// ---------------------------------------------------------------- messages

std::string messageText(int n)
{
    StringList list;
    LoadTextResource(list, "fehlerm");  // loaded for each message: no file stays open
    if (n < 0 || n >= static_cast<int>(list.size()))
        return "Allgemeiner Fehler";
    return list[static_cast<size_t>(n)];
}

void ShowMessageNumber(int n, QWidget* parent)
{
    QMessageBox::information(parent, QStringLiteral("Quorix"), fromCp1252(messageText(n)));
}

// ---------------------------------------------------------------- drawing

void DrawLine(Canvas& canvas, int x1, int y1, int x2, int y2)
{
    canvas.moveTo(x1, y1);
    canvas.lineTo(x2, y2);
}

void SetFontAngle(Canvas& canvas, int tenthsOfDegree)
{
    canvas.setFontAngle(tenthsOfDegree);
}

void DrawToolTitle(Canvas& c, int width, int height, const QString& title, int textY, TColor background)
{
    c.setBrushColor(background);
    c.fillRect(0, 0, width, height);
    c.setBrushStyle(BrushStyle::Clear);
    c.setFontName("Verdana");
    c.setFontSize(14);
    c.setFontStyle(fsBold);
    c.setFontColor(rgb(0, 0, 128));
    c.textOutW(16, textY, title);
    c.setPenColor(rgb(0, 0, 128));
    c.moveTo(16, 50);
    c.lineTo(width - 16, 50);
}

}  // namespace platform
