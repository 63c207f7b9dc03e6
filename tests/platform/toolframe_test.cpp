#include "gui_app.h"
#include "platform/codecs.h"
#include "platform/codepage.h"
#include "platform/commands.h"
#include "platform/container.h"
#include "platform/toolframe.h"

#include <gtest/gtest.h>

#include <QClipboard>
#include <QFile>
#include <QImageReader>
#include <QPainter>
#include <QPrinter>
#include <QSvgRenderer>
#include <QToolButton>

#include <filesystem>
#include <fstream>
#include <sstream>

using namespace platform;
namespace fs = std::filesystem;

namespace {

fs::path tempDir(const char* name)
{
    const fs::path d = fs::temp_directory_path() / name;
    fs::create_directories(d);
    return d;
}

TColor pixelOf(const QImage& img, int x, int y)
{
    const QColor c = img.pixelColor(x, y);
    return rgb(c.red(), c.green(), c.blue());
}

int channelDistance(TColor a, TColor b)
{
    return std::max({std::abs(redOf(a) - redOf(b)), std::abs(greenOf(a) - greenOf(b)), std::abs(blueOf(a) - blueOf(b))});
}

// The messages as the packer stores them: Windows-1252 lines in container "textx.dll".
std::string buildTextx(const fs::path& dir)
{
    std::ifstream in(std::string(QUORIX_SOURCE_DIR) + "/data/textx/fehlerm.txt", std::ios::binary);
    std::stringstream ss;
    ss << in.rdbuf();
    StringList lines;
    for (const std::string& l : splitLines(ss.str()))
        lines.push_back(utf8ToCp1252(l));
    ContainerWriter w;
    w.addText("10", "fehlerm", lines);
    const std::string path = (dir / "textx.dll").string();
    w.write(path);
    return path;
}

}  // namespace

TEST(ToolButtons, HintsAndOwnGlyphs)
{
    ensureGuiApp();
    const std::pair<int, const char*> table[] = {
        {1, "Beenden"}, {2, "Drucken"}, {3, "Kopieren"}, {4, "Speichern"}, {5, "Daten,Text,Abbildung laden"},
        {6, "Daten,Text,Abbildung speichern"}, {7, "Gitternetz"}, {8, "Millimeternetz"}, {9, "Vergrößern"},
        {10, "Verkleinern"}, {11, "Grundeinstellung"}, {12, "Koordinatenachsen"}, {13, "Animation"},
        {20, "Beispieldaten"}, {21, "Löschen"}};
    std::vector<QImage> glyphs;
    for (const auto& [kind, hint] : table) {
        QToolButton b;
        SetToolButton(&b, kind);
        EXPECT_EQ(b.toolTip().toStdString(), hint) << "kind " << kind;
        EXPECT_TRUE(b.text().isEmpty());
        ASSERT_FALSE(b.icon().isNull()) << "kind " << kind;
        glyphs.push_back(b.icon().pixmap(24, 24).toImage());
    }
    // Each kind has a glyph of its own.
    for (size_t i = 0; i < glyphs.size(); ++i)
        for (size_t j = i + 1; j < glyphs.size(); ++j)
            EXPECT_NE(glyphs[i], glyphs[j]) << "kinds " << table[i].first << " and " << table[j].first;
    QToolButton unknown;
    SetToolButton(&unknown, 14);
    EXPECT_TRUE(unknown.toolTip().isEmpty());
    EXPECT_TRUE(unknown.icon().isNull());
}

TEST(SavePicture, EveryFormatReadBackIndependently)
{
    ensureGuiApp();
    const fs::path dir = tempDir("quorix_export_test");
    struct Case { const char* name; const char* ext; int tolerance; };
    const Case cases[] = {{"bmp", "bmp", 0}, {"bmp16", "bmp", 0}, {"jpg", "jpg", 12}, {"gif", "gif", 0},
                          {"png", "png", 0}, {"svg", "svg", 0}};
    // Interior points of the test drawing: filled shapes and the white ground.
    struct Probe { int x, y; TColor color; TColor color16; };
    const Probe probes[] = {{250, 70, clYellow, clYellow},
                            {345, 70, clRed, clRed},
                            {250, 185, rgb(0, 160, 0), rgb(0, 128, 0)},
                            {345, 160, clWhite, clWhite},  // inside the clear shapes
                            {380, 270, clWhite, clWhite}};
    for (const Case& c : cases) {
        PictureFormat f;
        ASSERT_TRUE(pictureFormatFromName(c.name, f));
        const std::string path = (dir / (std::string("probe_") + c.name + "." + c.ext)).string();
        writePictureFile(path, f, kExportWidth, kExportHeight, paintExportTestDrawing);
        QImage img;
        if (f == PictureFormat::Svg) {
            QSvgRenderer r(QString::fromStdString(path));
            ASSERT_TRUE(r.isValid()) << path;
            EXPECT_EQ(r.defaultSize(), QSize(kExportWidth, kExportHeight));
            img = QImage(r.defaultSize(), QImage::Format_RGB32);
            img.fill(Qt::white);
            QPainter p(&img);
            r.render(&p);
        } else {
            QImageReader reader(QString::fromStdString(path));
            img = reader.read();
            ASSERT_FALSE(img.isNull()) << path << ": " << reader.errorString().toStdString();
            // Our own decoder agrees with Qt's reader on every probe.
            std::string bytes;
            ASSERT_TRUE(readFile(path, bytes));
            const Picture ours = decodePicture(bytes, "");
            for (const Probe& p : probes)
                EXPECT_EQ(ours.pixel(p.x, p.y), pixelOf(img, p.x, p.y)) << c.name << " at " << p.x << "," << p.y;
        }
        EXPECT_EQ(img.width(), kExportWidth) << c.name;
        EXPECT_EQ(img.height(), kExportHeight) << c.name;
        for (const Probe& p : probes) {
            const TColor want = f == PictureFormat::Bmp16 ? p.color16 : p.color;
            const TColor got = pixelOf(img, p.x, p.y);
            EXPECT_LE(channelDistance(got, want), c.tolerance)
                << c.name << " at " << p.x << "," << p.y << ": expected " << std::hex << want << ", got " << got;
        }
    }
    EXPECT_THROW(writePictureFile((dir / "nicht" / "da" / "x.png").string(), PictureFormat::Png, 10, 10,
                                  paintExportTestDrawing),
                 ResourceError);
}

TEST(SavePicture, FilterOrderAndNames)
{
    EXPECT_EQ(savePictureFilter().split(";;").size(), 6);
    EXPECT_TRUE(savePictureFilter().startsWith("Abbildung (*.bmp);;Abbildung,16 Farben (*.bmp)"));
    EXPECT_EQ(pictureFormatOfFilter("Abbildung,16 Farben (*.bmp)"), PictureFormat::Bmp16);
    EXPECT_EQ(pictureFormatOfFilter("Vektorgrafik (*.svg)"), PictureFormat::Svg);
    EXPECT_EQ(pictureFormatOfFilter("???"), PictureFormat::Gif);
    PictureFormat f;
    EXPECT_FALSE(pictureFormatFromName("tiff", f));
}

TEST(CopyAndPrint, ClipboardAndPdfPrinter)
{
    ensureGuiApp();
    CopyPicture(120, 80, [](Canvas& c, int w, int h) {
        c.setBrushColor(clBlue);
        c.fillRect(0, 0, w, h);
    });
    const QImage clip = QGuiApplication::clipboard()->image();
    ASSERT_FALSE(clip.isNull());
    EXPECT_EQ(clip.size(), QSize(120, 80));
    EXPECT_EQ(pixelOf(clip, 60, 40), clBlue);

    const fs::path pdf = tempDir("quorix_print_test") / "druck.pdf";
    fs::remove(pdf);
    QPrinter printer(QPrinter::HighResolution);
    printer.setOutputFormat(QPrinter::PdfFormat);
    printer.setOutputFileName(QString::fromStdString(pdf.string()));
    printPictureTo(printer, kExportWidth, kExportHeight, paintExportTestDrawing);
    std::string bytes;
    ASSERT_TRUE(readFile(pdf.string(), bytes));
    EXPECT_EQ(bytes.substr(0, 5), "%PDF-");
    EXPECT_GT(bytes.size(), 1000u);
}

TEST(TextFiles, RoundTripAndMissingFile)
{
    const fs::path dir = tempDir("quorix_textfile_test");
    const StringList lines = {"x\ty", "1,5\t2", "\xC4rger"};
    writeTextFile((dir / "daten.txt").string(), lines);
    std::string raw;
    ASSERT_TRUE(readFile((dir / "daten.txt").string(), raw));
    EXPECT_EQ(raw, "x\ty\r\n1,5\t2\r\n\xC4rger\r\n");
    StringList back = {"alt"};
    ASSERT_TRUE(readTextFile((dir / "daten.txt").string(), back));
    EXPECT_EQ(back, lines);
    EXPECT_FALSE(readTextFile((dir / "fehlt.txt").string(), back));
    EXPECT_TRUE(back.empty());
}

TEST(Messages, NumberedTextsFromTheResource)
{
    ensureGuiApp();
    const fs::path dir = tempDir("quorix_messages_test");
    setTextResourceFile(buildTextx(dir));
    StringList list;
    ASSERT_TRUE(LoadTextResource(list, "fehlerm"));
    EXPECT_GT(list.size(), 60u);
    for (size_t i = 0; i < list.size(); ++i)
        EXPECT_FALSE(list[i].empty()) << "line " << i;
    EXPECT_EQ(messageText(0), "Allgemeiner Fehler");
    EXPECT_NE(messageText(36).find("Darstellungsintervall"), std::string::npos) << messageText(36);
    EXPECT_NE(messageText(52).find("keine Eintr\xE4ge gefunden"), std::string::npos) << messageText(52);
    EXPECT_NE(messageText(58).find("495"), std::string::npos) << messageText(58);
    EXPECT_NE(messageText(60).find("100 Ziffern"), std::string::npos) << messageText(60);
    EXPECT_EQ(messageText(-1), "Allgemeiner Fehler");
    EXPECT_EQ(messageText(static_cast<int>(list.size())), "Allgemeiner Fehler");
    EXPECT_FALSE(LoadTextResource(list, "gibtesnicht"));
    EXPECT_TRUE(list.empty());
    // Without the companion file every number gives the general text.
    setTextResourceFile((dir / "fehlt.dll").string());
    EXPECT_EQ(messageText(36), "Allgemeiner Fehler");
    setTextResourceFile("");
}

TEST(Resources, PicturesByContainerTypeAndName)
{
    ensureGuiApp();
    const fs::path dir = tempDir("quorix_picture_resources");
    Picture pic(8, 6, clYellow);
    ContainerWriter w;
    w.add("Jpeg", "aa", encodeJpeg(pic, 100));
    w.add("GIF", "z000", encodeGif(pic));
    w.add("GIF", "kaputt", "GIF89a");
    w.write((dir / "bwfkt.dll").string());
    setPictureDirectory(dir.string());
    Picture got;
    ASSERT_TRUE(LoadPictureResource(got, "bwfkt", "Jpeg", "aa"));
    EXPECT_EQ(got.width(), 8);
    EXPECT_LE(std::abs(blueOf(got.pixel(4, 3)) - 0), 6);
    EXPECT_LE(std::abs(redOf(got.pixel(4, 3)) - 255), 6);
    std::vector<PictureFrame> frames;
    ASSERT_TRUE(LoadAnimatedGifResource(frames, "bwfkt", "z000"));
    ASSERT_EQ(frames.size(), 1u);
    EXPECT_EQ(frames[0].picture.pixel(0, 0), clYellow);
    EXPECT_FALSE(LoadPictureResource(got, "bwfkt", "GIF", "kaputt"));
    EXPECT_TRUE(got.empty());
    EXPECT_FALSE(LoadPictureResource(got, "bwfkt", "GIF", "fehlt"));
    EXPECT_FALSE(LoadPictureResource(got, "gibtesnicht", "GIF", "z000"));
    EXPECT_FALSE(LoadAnimatedGifResource(frames, "bwfkt", "kaputt"));
    EXPECT_TRUE(frames.empty());
    setPictureDirectory("");
}

TEST(Drawing, DrawLineAndFontAngle)
{
    ensureGuiApp();
    Picture pic(60, 60);
    {
        Canvas c(pic);
        c.setPenColor(clRed);
        DrawLine(c, 5, 30, 55, 30);
        EXPECT_EQ(c.penPos(), QPoint(55, 30));
    }
    EXPECT_EQ(pic.pixel(30, 30), clRed);
    EXPECT_EQ(pic.pixel(30, 31), clWhite);
    // Text turned by 90 degrees runs upwards: taller than wide.
    Picture text(200, 200);
    {
        Canvas c(text);
        c.setFontSize(14);
        SetFontAngle(c, 900);
        c.textOut(100, 180, "Koordinaten");
    }
    int minX = 200, maxX = -1, minY = 200, maxY = -1;
    for (int y = 0; y < 200; ++y)
        for (int x = 0; x < 200; ++x)
            if (text.pixel(x, y) != clWhite) {
                minX = std::min(minX, x), maxX = std::max(maxX, x);
                minY = std::min(minY, y), maxY = std::max(maxY, y);
            }
    ASSERT_GE(maxX, 0);
    EXPECT_GT(maxY - minY, 3 * (maxX - minX));
    EXPECT_LE(maxY, 181);  // it rises from the anchor
}
