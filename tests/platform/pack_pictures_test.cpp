// The packer converts authored pictures with our encoders: "GIF" really becomes a GIF and
// "Jpeg" a JPEG, and both read back through the program's decoders and Qt's readers.
#include "gui_app.h"
#include "platform/codecs.h"
#include "platform/textlist.h"

#include <gtest/gtest.h>

#include <QImage>

#include <filesystem>

namespace packer {
std::string pictureBytesFromSource(const std::filesystem::path& source, const std::string& type);
}

namespace fs = std::filesystem;
using namespace platform;

TEST(PackPictures, SvgSourcesBecomeRealGifAndJpeg)
{
    ensureGuiApp();
    const fs::path dir = fs::temp_directory_path() / "quorix_pack_pictures";
    fs::create_directories(dir);
    const fs::path svg = dir / "quadrat.svg";
    writeFileSafely(svg.string(),
                    "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"40\" height=\"30\">"
                    "<rect x=\"0\" y=\"0\" width=\"20\" height=\"30\" fill=\"#ff0000\"/>"
                    "<rect x=\"20\" y=\"0\" width=\"20\" height=\"30\" fill=\"#0000ff\"/></svg>");
    const std::string gif = packer::pictureBytesFromSource(svg, "GIF");
    EXPECT_EQ(gif.substr(0, 4), "GIF8");
    const std::string jpeg = packer::pictureBytesFromSource(svg, "Jpeg");
    EXPECT_EQ(static_cast<unsigned char>(jpeg[0]), 0xFF);
    EXPECT_EQ(static_cast<unsigned char>(jpeg[1]), 0xD8);
    for (const auto& [bytes, tol] : {std::pair{gif, 0}, std::pair{jpeg, 8}}) {
        const Picture ours = decodePicture(bytes, "");
        QImage qt;
        ASSERT_TRUE(qt.loadFromData(reinterpret_cast<const uchar*>(bytes.data()), static_cast<int>(bytes.size())));
        ASSERT_EQ(ours.width(), 40);
        ASSERT_EQ(ours.height(), 30);
        EXPECT_EQ(qt.size(), QSize(40, 30));
        EXPECT_NEAR(redOf(ours.pixel(5, 15)), 255, tol);
        EXPECT_NEAR(blueOf(ours.pixel(5, 15)), 0, tol);
        EXPECT_NEAR(blueOf(ours.pixel(35, 15)), 255, tol);
        EXPECT_NEAR(qRed(qt.pixel(5, 15)), 255, tol);
        EXPECT_NEAR(qBlue(qt.pixel(35, 15)), 255, tol);
    }
    // A raster source already in the target format is stored as it is.
    const fs::path gifSource = dir / "fertig.gif";
    writeFileSafely(gifSource.string(), gif);
    EXPECT_EQ(packer::pictureBytesFromSource(gifSource, "GIF"), gif);
}
