// Encoders: BMP (24 bits and 16 colours) of our own, JPEG through libjpeg, GIF through giflib,
// PNG through libpng.
#include "platform/codecs.h"
#include "platform/textlist.h"

#include <csetjmp>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <unordered_map>
#include <vector>

#include <gif_lib.h>
#include <jpeglib.h>
#include <png.h>

namespace platform {

const TColor kVgaPalette[16] = {
    rgb(0, 0, 0),       rgb(128, 0, 0),   rgb(0, 128, 0),   rgb(128, 128, 0),
    rgb(0, 0, 128),     rgb(128, 0, 128), rgb(0, 128, 128), rgb(192, 192, 192),
    rgb(128, 128, 128), rgb(255, 0, 0),   rgb(0, 255, 0),   rgb(255, 255, 0),
    rgb(0, 0, 255),     rgb(255, 0, 255), rgb(0, 255, 255), rgb(255, 255, 255),
};

namespace {

void put16(std::string& s, std::uint32_t v)
{
    s.push_back(static_cast<char>(v & 0xFF));
    s.push_back(static_cast<char>((v >> 8) & 0xFF));
}

void put32(std::string& s, std::uint32_t v)
{
    put16(s, v & 0xFFFF);
    put16(s, v >> 16);
}

void checkSize(const Picture& pic)
{
    if (pic.empty() || pic.width() <= 0 || pic.height() <= 0)
        throw ResourceError("Leeres Bild kann nicht gespeichert werden");
}

// File and info header of an uncompressed bottom-up bitmap.
std::string bmpHeaders(int w, int h, int bits, int paletteColors, size_t imageBytes)
{
    std::string s;
    const std::uint32_t offset = 14 + 40 + 4 * paletteColors;
    s += "BM";
    put32(s, static_cast<std::uint32_t>(offset + imageBytes));
    put32(s, 0);
    put32(s, offset);
    put32(s, 40);
    put32(s, static_cast<std::uint32_t>(w));
    put32(s, static_cast<std::uint32_t>(h));
    put16(s, 1);
    put16(s, static_cast<std::uint32_t>(bits));
    put32(s, 0);  // BI_RGB
    put32(s, static_cast<std::uint32_t>(imageBytes));
    put32(s, 3780);  // 96 dpi in pixels per metre
    put32(s, 3780);
    put32(s, static_cast<std::uint32_t>(paletteColors));
    put32(s, 0);
    return s;
}

int nearestVga(QRgb p)
{
    int best = 0, bestDist = 1 << 30;
    for (int i = 0; i < 16; ++i) {
        const int dr = qRed(p) - redOf(kVgaPalette[i]);
        const int dg = qGreen(p) - greenOf(kVgaPalette[i]);
        const int db = qBlue(p) - blueOf(kVgaPalette[i]);
        const int dist = dr * dr + dg * dg + db * db;
        if (dist < bestDist) {
            bestDist = dist;
            best = i;
        }
    }
    return best;
}

}  // namespace

std::string encodeBmp24(const Picture& pic)
{
    checkSize(pic);
    const int w = pic.width(), h = pic.height();
    const size_t stride = (static_cast<size_t>(w) * 3 + 3) & ~static_cast<size_t>(3);
    std::string s = bmpHeaders(w, h, 24, 0, stride * h);
    std::string row(stride, '\0');
    for (int y = h - 1; y >= 0; --y) {
        const std::uint32_t* in = pic.scanLine(y);
        for (int x = 0; x < w; ++x) {
            row[3 * x] = static_cast<char>(qBlue(in[x]));
            row[3 * x + 1] = static_cast<char>(qGreen(in[x]));
            row[3 * x + 2] = static_cast<char>(qRed(in[x]));
        }
        s += row;
    }
    return s;
}

std::string encodeBmp16(const Picture& pic)
{
    checkSize(pic);
    const int w = pic.width(), h = pic.height();
    const size_t stride = ((static_cast<size_t>(w) * 4 + 31) / 32) * 4;
    std::string s = bmpHeaders(w, h, 4, 16, stride * h);
    for (TColor c : kVgaPalette) {
        s.push_back(static_cast<char>(blueOf(c)));
        s.push_back(static_cast<char>(greenOf(c)));
        s.push_back(static_cast<char>(redOf(c)));
        s.push_back('\0');
    }
    // Drawings repeat few colours: remember each colour's nearest entry.
    std::unordered_map<QRgb, int> cache;
    std::string row(stride, '\0');
    for (int y = h - 1; y >= 0; --y) {
        std::fill(row.begin(), row.end(), '\0');
        const std::uint32_t* in = pic.scanLine(y);
        for (int x = 0; x < w; ++x) {
            const QRgb p = in[x] & 0xFFFFFF;
            auto it = cache.find(p);
            const int idx = it != cache.end() ? it->second : (cache[p] = nearestVga(p));
            row[x / 2] = static_cast<char>(row[x / 2] | (x % 2 ? idx : idx << 4));
        }
        s += row;
    }
    return s;
}

// ---------------------------------------------------------------- JPEG

namespace {

struct JpegError {
    jpeg_error_mgr mgr;
    std::jmp_buf jump;
    char message[JMSG_LENGTH_MAX];
};

void jpegErrorExit(j_common_ptr cinfo)
{
    auto* err = reinterpret_cast<JpegError*>(cinfo->err);
    (*cinfo->err->format_message)(cinfo, err->message);
    std::longjmp(err->jump, 1);
}

}  // namespace

std::string encodeJpeg(const Picture& pic, int quality)
{
    checkSize(pic);
    jpeg_compress_struct cinfo;
    JpegError err;
    cinfo.err = jpeg_std_error(&err.mgr);
    err.mgr.error_exit = jpegErrorExit;
    struct State {
        unsigned char* out = nullptr;
        unsigned long size = 0;
        std::vector<unsigned char> row;
        ~State() { std::free(out); }
    };
    const auto st = std::make_unique<State>();
    if (setjmp(err.jump)) {
        jpeg_destroy_compress(&cinfo);
        throw ResourceError(std::string("JPEG kann nicht geschrieben werden: ") + err.message);
    }
    jpeg_create_compress(&cinfo);
    jpeg_mem_dest(&cinfo, &st->out, &st->size);
    cinfo.image_width = static_cast<JDIMENSION>(pic.width());
    cinfo.image_height = static_cast<JDIMENSION>(pic.height());
    cinfo.input_components = 3;
    cinfo.in_color_space = JCS_RGB;
    jpeg_set_defaults(&cinfo);
    jpeg_set_quality(&cinfo, quality, TRUE);
    jpeg_start_compress(&cinfo, TRUE);
    st->row.resize(static_cast<size_t>(pic.width()) * 3);
    while (cinfo.next_scanline < cinfo.image_height) {
        const std::uint32_t* in = pic.scanLine(static_cast<int>(cinfo.next_scanline));
        unsigned char* r = st->row.data();
        for (int x = 0; x < pic.width(); ++x) {
            r[3 * x] = static_cast<unsigned char>(qRed(in[x]));
            r[3 * x + 1] = static_cast<unsigned char>(qGreen(in[x]));
            r[3 * x + 2] = static_cast<unsigned char>(qBlue(in[x]));
        }
        JSAMPROW rows[1] = {r};
        jpeg_write_scanlines(&cinfo, rows, 1);
    }
    jpeg_finish_compress(&cinfo);
    jpeg_destroy_compress(&cinfo);
    return std::string(reinterpret_cast<const char*>(st->out), st->size);
}

// ---------------------------------------------------------------- GIF

namespace {

int gifWrite(GifFileType* gif, const GifByteType* buf, int len)
{
    static_cast<std::string*>(gif->UserData)->append(reinterpret_cast<const char*>(buf), static_cast<size_t>(len));
    return len;
}

struct GifWriterCloser {
    void operator()(GifFileType* g) const
    {
        int err;
        EGifCloseFile(g, &err);
    }
};

struct ColorMapFree {
    void operator()(ColorMapObject* m) const { GifFreeMapObject(m); }
};

}  // namespace

std::string encodeGif(const Picture& pic)
{
    checkSize(pic);
    const int w = pic.width(), h = pic.height();
    const size_t count = static_cast<size_t>(w) * h;
    std::vector<GifByteType> indices(count);
    std::vector<GifColorType> colors;
    // First try the exact palette: drawings rarely use more than 256 colours.
    std::unordered_map<QRgb, int> index;
    bool exact = true;
    for (int y = 0; y < h && exact; ++y) {
        const std::uint32_t* in = pic.scanLine(y);
        for (int x = 0; x < w; ++x) {
            const QRgb p = in[x] & 0xFFFFFF;
            auto it = index.find(p);
            if (it == index.end()) {
                if (index.size() == 256) {
                    exact = false;
                    break;
                }
                it = index.emplace(p, static_cast<int>(index.size())).first;
                colors.push_back({static_cast<GifByteType>(qRed(p)), static_cast<GifByteType>(qGreen(p)),
                                  static_cast<GifByteType>(qBlue(p))});
            }
            indices[static_cast<size_t>(y) * w + x] = static_cast<GifByteType>(it->second);
        }
    }
    if (!exact) {
        // Median cut over the three channels.
        std::vector<GifByteType> r(count), g(count), b(count);
        for (int y = 0; y < h; ++y) {
            const std::uint32_t* in = pic.scanLine(y);
            for (int x = 0; x < w; ++x) {
                const size_t i = static_cast<size_t>(y) * w + x;
                r[i] = static_cast<GifByteType>(qRed(in[x]));
                g[i] = static_cast<GifByteType>(qGreen(in[x]));
                b[i] = static_cast<GifByteType>(qBlue(in[x]));
            }
        }
        colors.assign(256, GifColorType{0, 0, 0});
        int size = 256;
        if (GifQuantizeBuffer(static_cast<unsigned>(w), static_cast<unsigned>(h), &size, r.data(), g.data(),
                              b.data(), indices.data(), colors.data()) != GIF_OK)
            throw ResourceError("GIF: Farben können nicht reduziert werden");
        colors.resize(256);
    }
    // The colour table has a power-of-two size of at least 2.
    int bits = 1;
    while ((1u << bits) < colors.size())
        ++bits;
    colors.resize(1u << bits, GifColorType{0, 0, 0});
    std::unique_ptr<ColorMapObject, ColorMapFree> map(GifMakeMapObject(1 << bits, colors.data()));
    if (!map)
        throw ResourceError("GIF: Farbtabelle kann nicht angelegt werden");

    std::string out;
    int error = 0;
    std::unique_ptr<GifFileType, GifWriterCloser> gif(EGifOpen(&out, gifWrite, &error));
    if (!gif)
        throw ResourceError(std::string("GIF kann nicht geschrieben werden: ") + GifErrorString(error));
    if (EGifPutScreenDesc(gif.get(), w, h, bits, 0, map.get()) != GIF_OK ||
        EGifPutImageDesc(gif.get(), 0, 0, w, h, false, nullptr) != GIF_OK)
        throw ResourceError(std::string("GIF kann nicht geschrieben werden: ") + GifErrorString(gif->Error));
    for (int y = 0; y < h; ++y) {
        if (EGifPutLine(gif.get(), indices.data() + static_cast<size_t>(y) * w, w) != GIF_OK)
            throw ResourceError(std::string("GIF kann nicht geschrieben werden: ") + GifErrorString(gif->Error));
    }
    // Closing writes the trailer into `out`.
    gif.reset();
    return out;
}

// ---------------------------------------------------------------- PNG

std::string encodePng(const Picture& pic)
{
    checkSize(pic);
    const int w = pic.width(), h = pic.height();
    std::vector<unsigned char> rgbBuf(static_cast<size_t>(w) * h * 3);
    for (int y = 0; y < h; ++y) {
        const std::uint32_t* in = pic.scanLine(y);
        unsigned char* r = rgbBuf.data() + static_cast<size_t>(y) * w * 3;
        for (int x = 0; x < w; ++x) {
            r[3 * x] = static_cast<unsigned char>(qRed(in[x]));
            r[3 * x + 1] = static_cast<unsigned char>(qGreen(in[x]));
            r[3 * x + 2] = static_cast<unsigned char>(qBlue(in[x]));
        }
    }
    png_image image;
    std::memset(&image, 0, sizeof image);
    image.version = PNG_IMAGE_VERSION;
    image.width = static_cast<png_uint_32>(w);
    image.height = static_cast<png_uint_32>(h);
    image.format = PNG_FORMAT_RGB;
    png_alloc_size_t size = 0;
    if (!png_image_write_to_memory(&image, nullptr, &size, 0, rgbBuf.data(), 0, nullptr))
        throw ResourceError(std::string("PNG kann nicht geschrieben werden: ") + image.message);
    std::string out(size, '\0');
    if (!png_image_write_to_memory(&image, out.data(), &size, 0, rgbBuf.data(), 0, nullptr))
        throw ResourceError(std::string("PNG kann nicht geschrieben werden: ") + image.message);
    out.resize(size);
    return out;
}

}  // namespace platform
