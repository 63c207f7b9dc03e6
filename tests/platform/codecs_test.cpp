// Every encoder is read back by Qt's own readers (independent code) and by our decoders.
#include "gui_app.h"
#include "platform/codecs.h"

#include <gtest/gtest.h>

#include <QBuffer>
#include <QImage>
#include <QImageReader>
#include <QImageWriter>

#include <gif_lib.h>

#include <cstdlib>
#include <cstring>
#include <vector>

using namespace platform;

namespace {

// Six solid blocks of 10 x 10 in a 30 x 20 picture, colours chosen from the VGA palette so the
// 16-colour path keeps them exactly.
const TColor kBlocks[6] = {clRed, rgb(0, 255, 0), clBlue, clYellow, clWhite, rgb(0, 128, 128)};

Picture blockPicture()
{
    Picture pic(30, 20);
    for (int y = 0; y < 20; ++y)
        for (int x = 0; x < 30; ++x)
            pic.setPixel(x, y, kBlocks[(y / 10) * 3 + x / 10]);
    return pic;
}

QImage readWithQt(const std::string& bytes, const char* format)
{
    QByteArray data(bytes.data(), static_cast<qsizetype>(bytes.size()));
    QBuffer buf(&data);
    buf.open(QIODevice::ReadOnly);
    QImageReader reader(&buf, format);
    QImage img = reader.read();
    EXPECT_FALSE(img.isNull()) << format << ": " << reader.errorString().toStdString();
    return img.convertToFormat(QImage::Format_RGB32);
}

int channelDistance(TColor a, TColor b)
{
    return std::max({std::abs(redOf(a) - redOf(b)), std::abs(greenOf(a) - greenOf(b)), std::abs(blueOf(a) - blueOf(b))});
}

// Samples the centre of each block (JPEG blurs only the edges).
void expectBlocks(const QImage& img, int tolerance, const char* what)
{
    ASSERT_EQ(img.width(), 30) << what;
    ASSERT_EQ(img.height(), 20) << what;
    for (int b = 0; b < 6; ++b) {
        const int x = (b % 3) * 10 + 5, y = (b / 3) * 10 + 5;
        const QColor c = img.pixelColor(x, y);
        const TColor got = rgb(c.red(), c.green(), c.blue());
        EXPECT_LE(channelDistance(got, kBlocks[b]), tolerance)
            << what << " block " << b << ": expected " << std::hex << kBlocks[b] << ", got " << got;
    }
}

void expectBlocks(const Picture& pic, int tolerance, const char* what)
{
    expectBlocks(pic.image(), tolerance, what);
}

}  // namespace

TEST(Codecs, EveryEncoderReadBackByQtAndByOurDecoders)
{
    ensureGuiApp();
    const Picture pic = blockPicture();
    struct Case { const char* name; std::string bytes; const char* qtFormat; int tolerance; };
    const Case cases[] = {
        {"bmp24", encodeBmp24(pic), "bmp", 0}, {"bmp16", encodeBmp16(pic), "bmp", 0},
        {"jpeg", encodeJpeg(pic, 100), "jpeg", 6}, {"gif", encodeGif(pic), "gif", 0},
        {"png", encodePng(pic), "png", 0},
    };
    for (const Case& c : cases) {
        expectBlocks(readWithQt(c.bytes, c.qtFormat), c.tolerance, c.name);
        expectBlocks(decodePicture(c.bytes, ""), c.tolerance, c.name);
    }
    // The headers say what they promise.
    EXPECT_EQ(cases[0].bytes.substr(0, 2), "BM");
    EXPECT_EQ(static_cast<unsigned char>(cases[1].bytes[28]), 4);  // 4 bits a pixel
    EXPECT_EQ(cases[1].bytes.size(), 14u + 40 + 64 + 16 * 20);    // 30 pixels -> 16-byte rows
    EXPECT_EQ(cases[3].bytes.substr(0, 4), "GIF8");
}

TEST(Codecs, SixteenColoursTakeTheNearestPaletteEntry)
{
    Picture pic(4, 1);
    pic.setPixel(0, 0, rgb(250, 10, 5));     // near red
    pic.setPixel(1, 0, rgb(0, 150, 0));      // near dark green
    pic.setPixel(2, 0, rgb(200, 190, 185));  // near silver
    pic.setPixel(3, 0, rgb(20, 20, 20));     // near black
    const Picture back = decodeBmp(encodeBmp16(pic));
    EXPECT_EQ(back.pixel(0, 0), clRed);
    EXPECT_EQ(back.pixel(1, 0), rgb(0, 128, 0));
    EXPECT_EQ(back.pixel(2, 0), clSilver);
    EXPECT_EQ(back.pixel(3, 0), clBlack);
}

TEST(Codecs, GifOfManyColoursIsQuantised)
{
    ensureGuiApp();
    Picture pic(64, 64);
    for (int y = 0; y < 64; ++y)
        for (int x = 0; x < 64; ++x)
            pic.setPixel(x, y, rgb(x * 4, y * 4, (x + y) * 2));  // 4096 colours
    const std::string gif = encodeGif(pic);
    const QImage qt = readWithQt(gif, "gif");
    const Picture ours = decodeGif(gif);
    ASSERT_EQ(qt.size(), QSize(64, 64));
    int worst = 0, sum = 0, count = 0;
    for (int y = 0; y < 64; y += 7)
        for (int x = 0; x < 64; x += 7) {
            const QColor c = qt.pixelColor(x, y);
            const int d = channelDistance(rgb(c.red(), c.green(), c.blue()), pic.pixel(x, y));
            worst = std::max(worst, d);
            sum += d;
            ++count;
            EXPECT_EQ(ours.pixel(x, y), rgb(c.red(), c.green(), c.blue())) << x << "," << y;
        }
    EXPECT_LE(worst, 20) << "median cut to 256 colours of a smooth gradient";
    EXPECT_LE(sum / count, 8) << "mean channel error";
}

TEST(Codecs, ForeignFilesDecode)
{
    ensureGuiApp();
    // Written by Qt's own writers: JPEG, 32-bit BMP and 8-bit palette BMP.
    QImage img(30, 20, QImage::Format_RGB32);
    for (int y = 0; y < 20; ++y)
        for (int x = 0; x < 30; ++x) {
            const TColor c = kBlocks[(y / 10) * 3 + x / 10];
            img.setPixel(x, y, qRgb(redOf(c), greenOf(c), blueOf(c)));
        }
    auto write = [](const QImage& i, const char* fmt) {
        QByteArray out;
        QBuffer buf(&out);
        buf.open(QIODevice::WriteOnly);
        QImageWriter w(&buf, fmt);
        w.setQuality(95);
        EXPECT_TRUE(w.write(i)) << fmt;
        return std::string(out.constData(), static_cast<size_t>(out.size()));
    };
    expectBlocks(decodeJpeg(write(img, "jpeg")), 8, "Qt JPEG");
    expectBlocks(decodeBmp(write(img, "bmp")), 0, "Qt BMP");
    expectBlocks(decodeBmp(write(img.convertToFormat(QImage::Format_Indexed8), "bmp")), 0, "Qt 8-bit BMP");
    expectBlocks(decodePng(write(img, "png")), 0, "Qt PNG");

    // A hand-made top-down 1-bit BMP of 3 x 2: black white black / white black white.
    std::string bmp = "BM";
    auto p32 = [&bmp](std::uint32_t v) { for (int i = 0; i < 4; ++i) bmp.push_back(static_cast<char>(v >> (8 * i))); };
    auto p16 = [&bmp](std::uint32_t v) { for (int i = 0; i < 2; ++i) bmp.push_back(static_cast<char>(v >> (8 * i))); };
    p32(14 + 40 + 8 + 8); p32(0); p32(14 + 40 + 8);
    p32(40); p32(3); p32(static_cast<std::uint32_t>(-2)); p16(1); p16(1); p32(0); p32(8); p32(0); p32(0); p32(2); p32(0);
    p32(0x000000); p32(0xFFFFFF);
    bmp += std::string("\x40\0\0\0", 4);  // 010 -> black white black
    bmp += std::string("\xA0\0\0\0", 4);  // 101 -> white black white
    const Picture tiny = decodeBmp(bmp);
    ASSERT_EQ(tiny.width(), 3);
    ASSERT_EQ(tiny.height(), 2);
    EXPECT_EQ(tiny.pixel(0, 0), clBlack);
    EXPECT_EQ(tiny.pixel(1, 0), clWhite);
    EXPECT_EQ(tiny.pixel(0, 1), clWhite);
    EXPECT_EQ(tiny.pixel(1, 1), clBlack);
}

namespace {

// A bottom-up BMP with a three-colour palette (black, red, blue) and run-length data.
std::string rleBmp(int width, int height, int bits, int compression, const std::string& data)
{
    std::string b = "BM";
    auto p32 = [&b](std::uint32_t v) { for (int i = 0; i < 4; ++i) b.push_back(static_cast<char>(v >> (8 * i))); };
    auto p16 = [&b](std::uint32_t v) { for (int i = 0; i < 2; ++i) b.push_back(static_cast<char>(v >> (8 * i))); };
    const std::uint32_t offset = 14 + 40 + 3 * 4;
    p32(offset + static_cast<std::uint32_t>(data.size())); p32(0); p32(offset);
    p32(40); p32(static_cast<std::uint32_t>(width)); p32(static_cast<std::uint32_t>(height)); p16(1);
    p16(static_cast<std::uint32_t>(bits)); p32(static_cast<std::uint32_t>(compression));
    p32(static_cast<std::uint32_t>(data.size())); p32(0); p32(0); p32(3); p32(0);
    p32(0x000000); p32(0xFF0000); p32(0x0000FF);  // BGRA words: black, red, blue
    return b + data;
}

}  // namespace

TEST(Codecs, RunLengthBmp)
{
    ensureGuiApp();
    // RLE8, 4 x 2. Bottom row: a run of four reds. Top row: an absolute run blue black blue
    // (padded), then one red; end of picture.
    const std::string rle8 = rleBmp(4, 2, 8, 1, std::string("\x04\x01\x00\x00\x00\x03\x02\x00\x02\x00\x01\x01\x00\x01", 14));
    const Picture a = decodeBmp(rle8);
    const TColor top[4] = {clBlue, clBlack, clBlue, clRed};
    QImage qt;
    ASSERT_TRUE(qt.loadFromData(reinterpret_cast<const uchar*>(rle8.data()), static_cast<int>(rle8.size()), "BMP"));
    for (int x = 0; x < 4; ++x) {
        EXPECT_EQ(a.pixel(x, 0), top[x]) << x;
        EXPECT_EQ(a.pixel(x, 1), clRed) << x;
        EXPECT_EQ(a.pixel(x, 0), rgb(qRed(qt.pixel(x, 0)), qGreen(qt.pixel(x, 0)), qBlue(qt.pixel(x, 0)))) << x;
    }
    // RLE4, 5 x 1: a run of five alternating red/blue nibbles.
    const Picture b = decodeBmp(rleBmp(5, 1, 4, 2, std::string("\x05\x12\x00\x01", 4)));
    const TColor row[5] = {clRed, clBlue, clRed, clBlue, clRed};
    for (int x = 0; x < 5; ++x)
        EXPECT_EQ(b.pixel(x, 0), row[x]) << x;
}

TEST(Codecs, DamagedDataIsRefused)
{
    const std::string png = encodePng(blockPicture());
    EXPECT_THROW(decodePng(png.substr(0, png.size() / 2)), ResourceError);
    EXPECT_THROW(decodeJpeg("\xFF\xD8\xFF\xE0 kaputt"), ResourceError);
    EXPECT_THROW(decodeGif("GIF89a"), ResourceError);
    EXPECT_THROW(decodeBmp("BM1234"), ResourceError);
    const std::string bmp = encodeBmp24(blockPicture());
    EXPECT_THROW(decodeBmp(bmp.substr(0, bmp.size() - 50)), ResourceError);
    EXPECT_THROW(decodePicture("nichts", "GIF"), ResourceError);
    EXPECT_THROW(encodePng(Picture()), ResourceError);
}

namespace {

int appendToString(GifFileType* gif, const GifByteType* buf, int len)
{
    static_cast<std::string*>(gif->UserData)->append(reinterpret_cast<const char*>(buf), static_cast<size_t>(len));
    return len;
}

// An animation of 20 x 10 on a white background (palette 0 white, 1 red, 2 blue, 3 green):
// frame 0 all red (100 ms, keep), frame 1 a blue 5 x 5 at (2, 2) (200 ms, restore background),
// frame 2 a green 3 x 3 at (10, 5) whose centre is transparent (300 ms, keep).
std::string makeAnimation()
{
    std::string out;
    int error = 0;
    GifFileType* gif = EGifOpen(&out, appendToString, &error);
    GifColorType colors[4] = {{255, 255, 255}, {255, 0, 0}, {0, 0, 255}, {0, 160, 0}};
    ColorMapObject* map = GifMakeMapObject(4, colors);
    EGifSetGifVersion(gif, true);
    EGifPutScreenDesc(gif, 20, 10, 2, 0, map);
    struct F { int l, t, w, h, color, delay, disposal; bool hole; };
    const F frames[] = {{0, 0, 20, 10, 1, 10, DISPOSE_DO_NOT, false},
                        {2, 2, 5, 5, 2, 20, DISPOSE_BACKGROUND, false},
                        {10, 5, 3, 3, 3, 30, DISPOSE_DO_NOT, true}};
    for (const F& f : frames) {
        GraphicsControlBlock gcb{f.disposal, false, f.delay, f.hole ? 0 : NO_TRANSPARENT_COLOR};
        GifByteType ext[4];
        const size_t len = EGifGCBToExtension(&gcb, ext);
        EGifPutExtension(gif, GRAPHICS_EXT_FUNC_CODE, static_cast<int>(len), ext);
        EGifPutImageDesc(gif, f.l, f.t, f.w, f.h, false, nullptr);
        for (int y = 0; y < f.h; ++y) {
            std::vector<GifByteType> line(static_cast<size_t>(f.w), static_cast<GifByteType>(f.color));
            if (f.hole && y == 1)
                line[1] = 0;  // the centre pixel is transparent
            EGifPutLine(gif, line.data(), f.w);
        }
    }
    EGifCloseFile(gif, &error);
    GifFreeMapObject(map);
    return out;
}

}  // namespace

TEST(Codecs, AnimatedGifFramesDelaysAndDisposal)
{
    ensureGuiApp();
    const std::string bytes = makeAnimation();
    const auto frames = decodeAnimatedGif(bytes);
    ASSERT_EQ(frames.size(), 3u);
    EXPECT_EQ(frames[0].delayMs, 100);
    EXPECT_EQ(frames[1].delayMs, 200);
    EXPECT_EQ(frames[2].delayMs, 300);
    EXPECT_EQ(frames[1].disposal, 2);
    for (const auto& f : frames) {
        EXPECT_EQ(f.picture.width(), 20);
        EXPECT_EQ(f.picture.height(), 10);
    }
    EXPECT_EQ(frames[0].picture.pixel(4, 4), clRed);
    EXPECT_EQ(frames[1].picture.pixel(4, 4), clBlue);   // drawn over frame 0
    EXPECT_EQ(frames[1].picture.pixel(15, 1), clRed);   // frame 0 kept around it
    EXPECT_EQ(frames[2].picture.pixel(4, 4), clWhite);  // frame 1 went back to the background
    EXPECT_EQ(frames[2].picture.pixel(15, 1), clRed);
    EXPECT_EQ(frames[2].picture.pixel(10, 5), rgb(0, 160, 0));
    EXPECT_EQ(frames[2].picture.pixel(11, 6), clRed);  // transparent centre shows what lay below
    // A single picture is the first frame.
    EXPECT_EQ(decodeGif(bytes).pixel(4, 4), clRed);

    // Qt's reader (independent code) sees the same frames where no disposal is involved.
    QByteArray data(bytes.data(), static_cast<qsizetype>(bytes.size()));
    QBuffer buf(&data);
    buf.open(QIODevice::ReadOnly);
    QImageReader reader(&buf, "gif");
    EXPECT_EQ(reader.imageCount(), 3);
    QImage qt;
    ASSERT_TRUE(reader.read(&qt));
    EXPECT_EQ(QColor(qt.pixel(4, 4)), QColor(255, 0, 0));
    EXPECT_EQ(reader.nextImageDelay(), 100);  // Qt reports the delay of the frame just read
    ASSERT_TRUE(reader.read(&qt));
    EXPECT_EQ(QColor(qt.pixel(4, 4)), QColor(0, 0, 255));
}

TEST(Codecs, InterlacedGifRowsInPictureOrder)
{
    ensureGuiApp();
    // 4 x 16, row y painted in palette entry y, written in the four interlace passes.
    std::string out;
    int error = 0;
    GifFileType* gif = EGifOpen(&out, appendToString, &error);
    GifColorType colors[16];
    for (int i = 0; i < 16; ++i)
        colors[i] = {static_cast<GifByteType>(i * 16), static_cast<GifByteType>(255 - i * 16), 0};
    ColorMapObject* map = GifMakeMapObject(16, colors);
    EGifPutScreenDesc(gif, 4, 16, 4, 0, map);
    EGifPutImageDesc(gif, 0, 0, 4, 16, true, nullptr);
    const int passes[4][2] = {{0, 8}, {4, 8}, {2, 4}, {1, 2}};
    for (const auto& pass : passes)
        for (int y = pass[0]; y < 16; y += pass[1]) {
            GifByteType line[4] = {static_cast<GifByteType>(y), static_cast<GifByteType>(y),
                                   static_cast<GifByteType>(y), static_cast<GifByteType>(y)};
            EGifPutLine(gif, line, 4);
        }
    EGifCloseFile(gif, &error);
    GifFreeMapObject(map);
    const Picture ours = decodeGif(out);
    QImage qt;
    ASSERT_TRUE(qt.loadFromData(reinterpret_cast<const uchar*>(out.data()), static_cast<int>(out.size())));
    for (int y = 0; y < 16; ++y) {
        EXPECT_EQ(redOf(ours.pixel(2, y)), y * 16) << "row " << y;
        EXPECT_EQ(qRed(qt.pixel(2, y)), y * 16) << "row " << y;
    }
}

TEST(Codecs, JpegKeepsThinColouredLines)
{
    // A one-pixel red line on white: with halved chroma it would come back pale pink.
    Picture pic(16, 16);
    for (int y = 0; y < 16; ++y)
        pic.setPixel(7, y, clRed);
    const Picture back = decodeJpeg(encodeJpeg(pic, 100));
    const TColor c = back.pixel(7, 8);
    EXPECT_GE(redOf(c), 230) << std::hex << c;
    EXPECT_LE(greenOf(c), 40) << std::hex << c;
    EXPECT_LE(blueOf(c), 40) << std::hex << c;
}
