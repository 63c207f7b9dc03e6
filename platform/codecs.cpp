// Decoders: libjpeg, giflib, libpng and our own BMP reader.
#include "platform/codecs.h"
#include "platform/textlist.h"

#include <csetjmp>
#include <cstdio>
#include <cstring>
#include <memory>
#include <vector>

#include <gif_lib.h>
#include <jpeglib.h>
#include <png.h>

namespace platform {

namespace {

std::uint32_t le16(const unsigned char* p) { return p[0] | (p[1] << 8); }
std::uint32_t le32(const unsigned char* p)
{
    return p[0] | (p[1] << 8) | (p[2] << 16) | (static_cast<std::uint32_t>(p[3]) << 24);
}

// Extracts a channel from a bit-field mask, scaled to 0..255.
int maskedChannel(std::uint32_t v, std::uint32_t mask)
{
    if (!mask)
        return 0;
    int shift = 0;
    while (!((mask >> shift) & 1))
        ++shift;
    const std::uint32_t max = mask >> shift;
    return static_cast<int>(((v & mask) >> shift) * 255 / max);
}

// Run-length coded rows (RLE8, RLE4), stored from the bottom row up; the result holds palette
// indices in file row order. Skipped pixels stay at index 0.
std::vector<unsigned char> decodeRle(const unsigned char* p, size_t n, int width, int height, bool four)
{
    std::vector<unsigned char> out(static_cast<size_t>(width) * height, 0);
    int x = 0, y = 0;
    size_t i = 0;
    auto put = [&](int value) {
        if (x < width && y < height)
            out[static_cast<size_t>(y) * width + x] = static_cast<unsigned char>(value);
        ++x;
    };
    while (i + 1 < n) {
        const int count = p[i], value = p[i + 1];
        i += 2;
        if (count > 0) {
            for (int k = 0; k < count; ++k)
                put(four ? ((k & 1) ? value & 0x0F : value >> 4) : value);
            continue;
        }
        if (value == 0) {  // end of line
            x = 0;
            ++y;
        } else if (value == 1) {  // end of picture
            break;
        } else if (value == 2) {  // delta
            if (i + 1 >= n)
                break;
            x += p[i];
            y += p[i + 1];
            i += 2;
        } else {  // absolute run of `value` pixels, padded to 16 bits
            const size_t bytes = four ? (static_cast<size_t>(value) + 1) / 2 : static_cast<size_t>(value);
            if (i + bytes > n)
                throw ResourceError("BMP-Bilddaten sind zu kurz");
            for (int k = 0; k < value; ++k)
                put(four ? ((k & 1) ? p[i + k / 2] & 0x0F : p[i + k / 2] >> 4) : p[i + k]);
            i += (bytes + 1) & ~static_cast<size_t>(1);
        }
    }
    return out;
}

}  // namespace

std::string sniffPictureType(const std::string& b)
{
    if (b.size() >= 3 && static_cast<unsigned char>(b[0]) == 0xFF && static_cast<unsigned char>(b[1]) == 0xD8)
        return "Jpeg";
    if (b.compare(0, 4, "GIF8") == 0)
        return "GIF";
    if (b.compare(0, 2, "BM") == 0)
        return "BMP";
    if (b.compare(0, 8, "\x89PNG\r\n\x1a\n") == 0)
        return "PNG";
    return "";
}

// ---------------------------------------------------------------- BMP

Picture decodeBmp(const std::string& bytes)
{
    const auto* d = reinterpret_cast<const unsigned char*>(bytes.data());
    const size_t n = bytes.size();
    if (n < 26 || d[0] != 'B' || d[1] != 'M')
        throw ResourceError("BMP-Datei ist beschädigt");
    const std::uint32_t dataOffset = le32(d + 10);
    const std::uint32_t headerSize = le32(d + 14);
    int width, height, bits;
    std::uint32_t compression = 0, colorsUsed = 0;
    std::uint32_t rmask = 0, gmask = 0, bmask = 0;
    size_t paletteOffset;
    int paletteEntrySize;
    if (headerSize == 12) {  // OS/2 core header
        width = static_cast<int>(le16(d + 18));
        height = static_cast<int>(static_cast<std::int16_t>(le16(d + 20)));
        bits = static_cast<int>(le16(d + 24));
        paletteOffset = 26;
        paletteEntrySize = 3;
    } else {
        if (headerSize < 40 || n < 14 + 40)
            throw ResourceError("BMP-Kopf nicht unterstützt");
        width = static_cast<std::int32_t>(le32(d + 18));
        height = static_cast<std::int32_t>(le32(d + 22));
        bits = static_cast<int>(le16(d + 28));
        compression = le32(d + 30);
        colorsUsed = le32(d + 46);
        paletteOffset = 14 + headerSize;
        paletteEntrySize = 4;
        if (compression == 3) {  // BI_BITFIELDS: masks follow a 40-byte header, or inside V4/V5
            if (n < 14 + 40 + 12)
                throw ResourceError("BMP-Datei ist beschädigt");
            rmask = le32(d + 54);
            gmask = le32(d + 58);
            bmask = le32(d + 62);
            if (headerSize == 40)
                paletteOffset += 12;
        }
    }
    const bool bottomUp = height > 0;
    if (height < 0)
        height = -height;
    if (width <= 0 || height <= 0 || width > 30000 || height > 30000)
        throw ResourceError("BMP-Größe ungültig");
    const bool rle = (compression == 1 && bits == 8) || (compression == 2 && bits == 4);
    if (compression != 0 && compression != 3 && !rle)
        throw ResourceError("BMP-Kompression nicht unterstützt");
    if (bits != 1 && bits != 4 && bits != 8 && bits != 16 && bits != 24 && bits != 32)
        throw ResourceError("BMP-Farbtiefe nicht unterstützt");
    if (bits == 16 && compression == 0) {
        rmask = 0x7C00;
        gmask = 0x03E0;
        bmask = 0x001F;
    }
    if (bits == 32 && compression == 0) {
        rmask = 0xFF0000;
        gmask = 0xFF00;
        bmask = 0xFF;
    }
    TColor palette[256] = {};
    if (bits <= 8) {
        size_t count = colorsUsed ? colorsUsed : (1u << bits);
        if (count > 256)
            count = 256;
        if (paletteOffset + count * paletteEntrySize > n)
            throw ResourceError("BMP-Palette ist beschädigt");
        for (size_t i = 0; i < count; ++i) {
            const unsigned char* p = d + paletteOffset + i * paletteEntrySize;
            palette[i] = rgb(p[2], p[1], p[0]);
        }
    }
    if (rle) {
        if (dataOffset > n)
            throw ResourceError("BMP-Bilddaten sind zu kurz");
        const std::vector<unsigned char> idx = decodeRle(d + dataOffset, n - dataOffset, width, height, bits == 4);
        Picture pic(width, height);
        for (int y = 0; y < height; ++y) {
            const unsigned char* row = idx.data() + static_cast<size_t>(bottomUp ? height - 1 - y : y) * width;
            std::uint32_t* out = pic.scanLine(y);
            for (int x = 0; x < width; ++x) {
                const TColor c = palette[row[x]];
                out[x] = qRgb(redOf(c), greenOf(c), blueOf(c));
            }
        }
        return pic;
    }
    const size_t stride = ((static_cast<size_t>(width) * bits + 31) / 32) * 4;
    if (dataOffset > n || stride * height > n - dataOffset)
        throw ResourceError("BMP-Bilddaten sind zu kurz");
    Picture pic(width, height);
    for (int y = 0; y < height; ++y) {
        const unsigned char* row = d + dataOffset + stride * (bottomUp ? height - 1 - y : y);
        std::uint32_t* out = pic.scanLine(y);
        for (int x = 0; x < width; ++x) {
            int r, g, b;
            switch (bits) {
            case 1:
            case 4:
            case 8: {
                const int perByte = 8 / bits;
                const int byte = row[x / perByte];
                const int shift = 8 - bits * (x % perByte + 1);
                const TColor c = palette[(byte >> shift) & ((1 << bits) - 1)];
                r = redOf(c), g = greenOf(c), b = blueOf(c);
                break;
            }
            case 16: {
                const std::uint32_t v = le16(row + 2 * x);
                r = maskedChannel(v, rmask), g = maskedChannel(v, gmask), b = maskedChannel(v, bmask);
                break;
            }
            case 24:
                b = row[3 * x], g = row[3 * x + 1], r = row[3 * x + 2];
                break;
            default: {
                const std::uint32_t v = le32(row + 4 * x);
                r = maskedChannel(v, rmask), g = maskedChannel(v, gmask), b = maskedChannel(v, bmask);
            }
            }
            out[x] = qRgb(r, g, b);
        }
    }
    return pic;
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

void jpegSilence(j_common_ptr, int) {}

}  // namespace

Picture decodeJpeg(const std::string& bytes)
{
    jpeg_decompress_struct cinfo;
    JpegError err;
    cinfo.err = jpeg_std_error(&err.mgr);
    err.mgr.error_exit = jpegErrorExit;
    err.mgr.emit_message = jpegSilence;
    // Everything that must survive a longjmp lives on the heap behind a pointer made before setjmp.
    struct State {
        Picture pic;
        std::vector<unsigned char> row;
    };
    const auto st = std::make_unique<State>();
    if (setjmp(err.jump)) {
        jpeg_destroy_decompress(&cinfo);
        throw ResourceError(std::string("JPEG kann nicht gelesen werden: ") + err.message);
    }
    jpeg_create_decompress(&cinfo);
    jpeg_mem_src(&cinfo, reinterpret_cast<const unsigned char*>(bytes.data()), bytes.size());
    jpeg_read_header(&cinfo, TRUE);
    cinfo.out_color_space = JCS_RGB;  // grey pictures come out as RGB as well
    jpeg_start_decompress(&cinfo);
    const int w = static_cast<int>(cinfo.output_width), h = static_cast<int>(cinfo.output_height);
    st->pic = Picture(w, h);
    st->row.resize(static_cast<size_t>(w) * 3);
    while (cinfo.output_scanline < cinfo.output_height) {
        unsigned char* rows[1] = {st->row.data()};
        const int y = static_cast<int>(cinfo.output_scanline);
        jpeg_read_scanlines(&cinfo, rows, 1);
        std::uint32_t* out = st->pic.scanLine(y);
        const unsigned char* in = st->row.data();
        for (int x = 0; x < w; ++x)
            out[x] = qRgb(in[3 * x], in[3 * x + 1], in[3 * x + 2]);
    }
    jpeg_finish_decompress(&cinfo);
    jpeg_destroy_decompress(&cinfo);
    return std::move(st->pic);
}

// ---------------------------------------------------------------- PNG

Picture decodePng(const std::string& bytes)
{
    png_image image;
    std::memset(&image, 0, sizeof image);
    image.version = PNG_IMAGE_VERSION;
    if (!png_image_begin_read_from_memory(&image, bytes.data(), bytes.size()))
        throw ResourceError(std::string("PNG kann nicht gelesen werden: ") + image.message);
    image.format = PNG_FORMAT_RGB;  // transparency is composed on white
    std::vector<unsigned char> buf(PNG_IMAGE_SIZE(image));
    png_color white{255, 255, 255};
    if (!png_image_finish_read(&image, &white, buf.data(), 0, nullptr)) {
        const std::string msg = image.message;
        png_image_free(&image);
        throw ResourceError("PNG kann nicht gelesen werden: " + msg);
    }
    const int w = static_cast<int>(image.width), h = static_cast<int>(image.height);
    Picture pic(w, h);
    for (int y = 0; y < h; ++y) {
        const unsigned char* row = buf.data() + static_cast<size_t>(y) * w * 3;
        std::uint32_t* out = pic.scanLine(y);
        for (int x = 0; x < w; ++x)
            out[x] = qRgb(row[3 * x], row[3 * x + 1], row[3 * x + 2]);
    }
    return pic;
}

// ---------------------------------------------------------------- GIF

namespace {

struct GifSource {
    const std::string* bytes;
    size_t pos = 0;
};

int gifRead(GifFileType* gif, GifByteType* buf, int len)
{
    auto* src = static_cast<GifSource*>(gif->UserData);
    const size_t left = src->bytes->size() - src->pos;
    const size_t take = std::min(left, static_cast<size_t>(len));
    std::memcpy(buf, src->bytes->data() + src->pos, take);
    src->pos += take;
    return static_cast<int>(take);
}

struct GifCloser {
    void operator()(GifFileType* g) const
    {
        int err;
        DGifCloseFile(g, &err);
    }
};

std::vector<PictureFrame> decodeGifFrames(const std::string& bytes, bool firstOnly)
{
    GifSource src{&bytes};
    int error = 0;
    std::unique_ptr<GifFileType, GifCloser> gif(DGifOpen(&src, gifRead, &error));
    if (!gif)
        throw ResourceError(std::string("GIF kann nicht gelesen werden: ") + GifErrorString(error));
    if (DGifSlurp(gif.get()) != GIF_OK && gif->ImageCount == 0)
        throw ResourceError(std::string("GIF kann nicht gelesen werden: ") + GifErrorString(gif->Error));
    const int sw = gif->SWidth, sh = gif->SHeight;
    if (sw <= 0 || sh <= 0 || gif->ImageCount <= 0)
        throw ResourceError("GIF enthält kein Bild");
    TColor background = clWhite;
    if (gif->SColorMap && gif->SBackGroundColor < gif->SColorMap->ColorCount) {
        const GifColorType& c = gif->SColorMap->Colors[gif->SBackGroundColor];
        background = rgb(c.Red, c.Green, c.Blue);
    }
    Picture screen(sw, sh, background);
    std::vector<PictureFrame> frames;
    for (int i = 0; i < gif->ImageCount; ++i) {
        const SavedImage& img = gif->SavedImages[i];
        GraphicsControlBlock gcb{DISPOSAL_UNSPECIFIED, false, 0, NO_TRANSPARENT_COLOR};
        DGifSavedExtensionToGCB(gif.get(), i, &gcb);
        const ColorMapObject* map = img.ImageDesc.ColorMap ? img.ImageDesc.ColorMap : gif->SColorMap;
        if (!map || !img.RasterBits)
            continue;
        Picture saved;
        if (gcb.DisposalMode == DISPOSE_PREVIOUS)
            saved = screen;
        const int left = img.ImageDesc.Left, top = img.ImageDesc.Top;
        const int w = img.ImageDesc.Width, h = img.ImageDesc.Height;
        for (int y = 0; y < h; ++y) {
            const int sy = top + y;
            if (sy < 0 || sy >= sh)
                continue;
            std::uint32_t* out = screen.scanLine(sy);
            const GifByteType* in = img.RasterBits + static_cast<size_t>(y) * w;
            for (int x = 0; x < w; ++x) {
                const int sx = left + x;
                const int idx = in[x];
                if (sx < 0 || sx >= sw || idx == gcb.TransparentColor || idx >= map->ColorCount)
                    continue;
                const GifColorType& c = map->Colors[idx];
                out[sx] = qRgb(c.Red, c.Green, c.Blue);
            }
        }
        frames.push_back({screen, gcb.DelayTime * 10, gcb.DisposalMode});
        frames.back().picture.image().detach();
        if (firstOnly)
            break;
        if (gcb.DisposalMode == DISPOSE_BACKGROUND) {
            for (int y = std::max(0, top); y < std::min(sh, top + h); ++y)
                for (int x = std::max(0, left); x < std::min(sw, left + w); ++x)
                    screen.scanLine(y)[x] = qRgb(redOf(background), greenOf(background), blueOf(background));
        } else if (gcb.DisposalMode == DISPOSE_PREVIOUS) {
            screen = saved;
        }
    }
    if (frames.empty())
        throw ResourceError("GIF enthält kein Bild");
    return frames;
}

}  // namespace

Picture decodeGif(const std::string& bytes)
{
    return decodeGifFrames(bytes, true).front().picture;
}

std::vector<PictureFrame> decodeAnimatedGif(const std::string& bytes)
{
    return decodeGifFrames(bytes, false);
}

Picture decodePicture(const std::string& bytes, const std::string& type)
{
    // The resource type names the usual format; the bytes decide, since authors mix them up.
    std::string kind = sniffPictureType(bytes);
    if (kind.empty())
        kind = type;
    if (kind == "Jpeg" || kind == "JPEG" || kind == "JPG")
        return decodeJpeg(bytes);
    if (kind == "GIF")
        return decodeGif(bytes);
    if (kind == "BMP")
        return decodeBmp(bytes);
    if (kind == "PNG")
        return decodePng(bytes);
    throw ResourceError("Bild kann nicht gelesen werden (" + type + ")");
}

}  // namespace platform
