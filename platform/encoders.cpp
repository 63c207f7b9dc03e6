// Encoders: BMP (24 bits and 16 colours) of our own, JPEG through libjpeg, GIF through giflib,
// PNG through libpng.
#include "platform/codecs.h"
#include "platform/textlist.h"

#include <algorithm>
#include <cmath>
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
    // Full chroma resolution: one-pixel coloured lines of drawings keep their colour.
    for (int c = 0; c < cinfo.num_components; ++c) {
        cinfo.comp_info[c].h_samp_factor = 1;
        cinfo.comp_info[c].v_samp_factor = 1;
    }
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

namespace {

struct ColorCount {
    QRgb color;
    int count;
};

int channel(QRgb c, int ch) { return ch == 0 ? qRed(c) : ch == 1 ? qGreen(c) : qBlue(c); }

// Median cut on the histogram at full 8 bits a channel. A box is split at the weighted median of
// its widest channel; its colour is the weighted mean, or the colour that holds at least half of
// its pixels, so the ground of a drawing keeps its exact white.
std::vector<QRgb> medianCut(const std::unordered_map<QRgb, int>& histogram, int wanted)
{
    std::vector<ColorCount> all;
    all.reserve(histogram.size());
    for (const auto& [c, n] : histogram)
        all.push_back({c, n});
    struct Box {
        size_t begin, end;  // range in `all`
        int widest = 0, range = 0;
        long long pixels = 0;
    };
    auto measure = [&all](Box& b) {
        int lo[3] = {255, 255, 255}, hi[3] = {0, 0, 0};
        b.pixels = 0;
        for (size_t i = b.begin; i < b.end; ++i) {
            for (int ch = 0; ch < 3; ++ch) {
                lo[ch] = std::min(lo[ch], channel(all[i].color, ch));
                hi[ch] = std::max(hi[ch], channel(all[i].color, ch));
            }
            b.pixels += all[i].count;
        }
        b.range = -1;
        for (int ch = 0; ch < 3; ++ch)
            if (hi[ch] - lo[ch] > b.range) {
                b.range = hi[ch] - lo[ch];
                b.widest = ch;
            }
    };
    std::vector<Box> boxes(1, Box{0, all.size()});
    measure(boxes[0]);
    while (static_cast<int>(boxes.size()) < wanted) {
        // Split the box whose spread weighs most; single colours cannot be split.
        int pick = -1;
        double best = 0;
        for (size_t i = 0; i < boxes.size(); ++i) {
            if (boxes[i].end - boxes[i].begin < 2)
                continue;
            const double score = static_cast<double>(boxes[i].range) * std::sqrt(static_cast<double>(boxes[i].pixels));
            if (score > best) {
                best = score;
                pick = static_cast<int>(i);
            }
        }
        if (pick < 0)
            break;
        Box& b = boxes[static_cast<size_t>(pick)];
        const int ch = b.widest;
        std::sort(all.begin() + static_cast<long>(b.begin), all.begin() + static_cast<long>(b.end),
                  [ch](const ColorCount& x, const ColorCount& y) { return channel(x.color, ch) < channel(y.color, ch); });
        long long half = b.pixels / 2, run = 0;
        size_t cut = b.begin + 1;
        for (size_t i = b.begin; i < b.end - 1; ++i) {
            run += all[i].count;
            cut = i + 1;
            if (run >= half)
                break;
        }
        Box second{cut, b.end};
        b.end = cut;
        measure(b);
        measure(second);
        boxes.push_back(second);
    }
    std::vector<QRgb> palette;
    for (const Box& b : boxes) {
        double sum[3] = {0, 0, 0};
        QRgb dominant = all[b.begin].color;
        int dominantCount = 0;
        for (size_t i = b.begin; i < b.end; ++i) {
            for (int ch = 0; ch < 3; ++ch)
                sum[ch] += static_cast<double>(channel(all[i].color, ch)) * all[i].count;
            if (all[i].count > dominantCount) {
                dominantCount = all[i].count;
                dominant = all[i].color;
            }
        }
        if (2LL * dominantCount >= b.pixels)
            palette.push_back(dominant);
        else
            palette.push_back(qRgb(static_cast<int>(std::lround(sum[0] / b.pixels)),
                                   static_cast<int>(std::lround(sum[1] / b.pixels)),
                                   static_cast<int>(std::lround(sum[2] / b.pixels))) & 0xFFFFFF);
    }
    return palette;
}

int nearestEntry(const std::vector<QRgb>& palette, QRgb c)
{
    int best = 0, bestDist = 1 << 30;
    for (size_t i = 0; i < palette.size(); ++i) {
        const int dr = qRed(c) - qRed(palette[i]), dg = qGreen(c) - qGreen(palette[i]),
                  db = qBlue(c) - qBlue(palette[i]);
        const int d = dr * dr + dg * dg + db * db;
        if (d < bestDist) {
            bestDist = d;
            best = static_cast<int>(i);
        }
    }
    return best;
}

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
        std::unordered_map<QRgb, int> histogram;
        for (int y = 0; y < h; ++y) {
            const std::uint32_t* in = pic.scanLine(y);
            for (int x = 0; x < w; ++x)
                ++histogram[in[x] & 0xFFFFFF];
        }
        const std::vector<QRgb> palette = medianCut(histogram, 256);
        colors.clear();
        for (QRgb p : palette)
            colors.push_back({static_cast<GifByteType>(qRed(p)), static_cast<GifByteType>(qGreen(p)),
                              static_cast<GifByteType>(qBlue(p))});
        std::unordered_map<QRgb, int> nearest;
        for (int y = 0; y < h; ++y) {
            const std::uint32_t* in = pic.scanLine(y);
            for (int x = 0; x < w; ++x) {
                const QRgb p = in[x] & 0xFFFFFF;
                auto it = nearest.find(p);
                if (it == nearest.end())
                    it = nearest.emplace(p, nearestEntry(palette, p)).first;
                indices[static_cast<size_t>(y) * w + x] = static_cast<GifByteType>(it->second);
            }
        }
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
