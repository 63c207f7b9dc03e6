#include "platform/commands.h"

#include "platform/toolframe.h"

#include <QGuiApplication>
#include <memory>

namespace platform {

void paintExportTestDrawing(Canvas& c, int width, int height)
{
    // Frame and title.
    c.setPenColor(clBlack);
    c.setPenWidth(1);
    c.setBrushStyle(BrushStyle::Clear);
    c.frameRect(0, 0, width, height);
    c.setFontName("Verdana");
    c.setFontSize(12);
    c.setFontStyle(fsBold);
    c.setFontColor(clNavy);
    c.textOut(10, 6, "Quorix Exporttest \xE4\xF6\xFC\xDF");  // Windows-1252 umlauts
    c.setFontStyle(0);

    // Every pen style, then a wide pen.
    const PenStyle styles[] = {PenStyle::Solid, PenStyle::Dash, PenStyle::Dot, PenStyle::Clear};
    const TColor colors[] = {clBlack, clRed, clBlue, clGreen};
    for (int i = 0; i < 4; ++i) {
        c.setPenStyle(styles[i]);
        c.setPenColor(colors[i]);
        DrawLine(c, 10, 40 + 12 * i, 190, 40 + 12 * i);
    }
    c.setPenStyle(PenStyle::Solid);
    c.setPenColor(rgb(128, 0, 128));
    c.setPenWidth(4);
    DrawLine(c, 10, 100, 190, 100);
    c.setPenWidth(1);

    // Filled shapes, then clear ones.
    c.setPenColor(clBlack);
    c.setBrushColor(clYellow);
    c.rectangle(210, 40, 290, 100);
    c.setBrushColor(clRed);
    c.ellipse(300, 40, 390, 100);
    c.setBrushColor(rgb(0, 160, 0));
    c.polygon({QPoint(210, 200), QPoint(250, 120), QPoint(290, 200)});
    c.setBrushStyle(BrushStyle::Clear);
    c.setPenColor(clBlue);
    c.rectangle(300, 120, 390, 200);
    c.ellipse(310, 130, 380, 190);
    c.polyline({QPoint(10, 200), QPoint(50, 130), QPoint(90, 180), QPoint(130, 120), QPoint(190, 190)});

    // Rotated axis label and a Symbol character.
    c.setFontName("Verdana");
    c.setFontSize(10);
    c.setFontColor(clBlack);
    SetFontAngle(c, 900);
    c.textOut(20, 290, "y-Achse");
    SetFontAngle(c, 0);
    c.setFontName("Symbol");
    c.setFontSize(28);
    c.setFontColor(clRed);
    c.textOut(60, 220, "p");  // pi in the Symbol code page
    c.setFontName("Verdana");
    c.setFontSize(10);
    c.setFontColor(clBlack);
    c.textOut(110, 240, "400 x 300");
}

namespace {

int runExport(quorix::Args args, std::ostream& out, std::ostream& err)
{
    PictureFormat format;
    if (args.size() != 2 || !pictureFormatFromName(args[0], format)) {
        err << "Aufruf: quorix export FORMAT DATEI\nFORMAT: bmp, bmp16, jpg, gif, png oder svg\n";
        return 2;
    }
    // Painting needs a GUI application; headless callers may not have one yet.
    std::unique_ptr<QGuiApplication> app;
    if (!QGuiApplication::instance()) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
        static int argc = 1;
        static char name[] = "quorix";
        static char* argv[] = {name, nullptr};
        app = std::make_unique<QGuiApplication>(argc, argv);
    }
    try {
        writePictureFile(args[1], format, kExportWidth, kExportHeight, paintExportTestDrawing);
    } catch (const std::exception& e) {
        err << e.what() << ".\n";
        return 2;
    }
    out << "Abbildung gespeichert: " << args[1] << " (" << args[0] << ", " << kExportWidth << " x " << kExportHeight
        << ")\n";
    return 0;
}

}  // namespace

std::vector<quorix::HeadlessCommand> platformCommands()
{
    return {
        {"export", "export FORMAT DATEI  Testzeichnung als bmp, bmp16, jpg, gif, png oder svg speichern",
         [](const quorix::Args& a, std::ostream& o, std::ostream& e) { return runExport(a, o, e); }},
    };
}

}  // namespace platform
