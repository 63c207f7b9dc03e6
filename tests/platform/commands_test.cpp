#include "gui_app.h"
#include "platform/commands.h"
#include "platform/textlist.h"

#include <gtest/gtest.h>

#include <QImageReader>

#include <filesystem>
#include <sstream>

namespace fs = std::filesystem;

namespace {

int runExport(const quorix::Args& args, std::string& out, std::string& err)
{
    for (const auto& c : platform::platformCommands()) {
        if (c.name == "export") {
            std::ostringstream o, e;
            const int code = c.run(args, o, e);
            out = o.str();
            err = e.str();
            return code;
        }
    }
    ADD_FAILURE() << "export missing";
    return -1;
}

}  // namespace

TEST(PlatformCommands, ExportWritesEveryFormat)
{
    ensureGuiApp();
    const fs::path dir = fs::temp_directory_path() / "quorix_export_cmd";
    fs::create_directories(dir);
    for (const char* f : {"bmp", "bmp16", "jpg", "gif", "png", "svg"}) {
        const std::string file = (dir / (std::string("test_") + f)).string();
        std::string out, err;
        ASSERT_EQ(runExport({f, file}, out, err), 0) << err;
        EXPECT_EQ(out, "Abbildung gespeichert: " + file + " (" + f + ", 400 x 300)\n");
        std::string bytes;
        ASSERT_TRUE(platform::readFile(file, bytes));
        if (std::string(f) == "svg") {
            EXPECT_NE(bytes.find("<svg"), std::string::npos);
        } else {
            QImageReader r(QString::fromStdString(file));
            EXPECT_EQ(r.size(), QSize(400, 300)) << f;
        }
    }
    std::string out, err;
    EXPECT_EQ(runExport({"tiff", (dir / "x").string()}, out, err), 2);
    EXPECT_NE(err.find("Aufruf"), std::string::npos);
    EXPECT_EQ(runExport({"png"}, out, err), 2);
    EXPECT_EQ(runExport({"png", (dir / "fehlt" / "x.png").string()}, out, err), 2);
    EXPECT_FALSE(err.empty());
}
