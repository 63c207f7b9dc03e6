#include "geometry/konstrubefehl.h"

#include "geometry/konstrubild.h"
#include "geometry/konstruliste.h"
#include "platform/toolframe.h"

const char* const kKonstruktionAufruf = "Aufruf: quorix konstruktion DATEI [--png BILD]";

int konstruktionsBefehl(const quorix::Args& args, std::ostream& out, std::ostream& err)
{
    quorix::Args a = args;
    std::string bild;
    const bool mitBild = quorix::takeOption(a, "--png", bild);
    if (a.size() != 1 || a[0].empty() || a[0][0] == '-') {
        err << kKonstruktionAufruf << "\n";
        return 2;
    }
    konstru::Konstruktion k;
    if (!k.lade(a[0])) {
        err << "Die Datei " << a[0] << " enthält keine Konstruktion oder kann nicht gelesen werden.\n";
        return 1;
    }
    const konstru::Lauf lauf = k.rechne();
    for (const std::string& z : lauf.messungen) out << z << "\n";
    for (const std::string& z : lauf.kommentare) out << "Kommentar\t" << z << "\n";
    if (mitBild) {
        try {
            const konstru::Ansicht v;
            platform::writePictureFile(bild, platform::PictureFormat::Png, 760, 620,
                                       [&](platform::Canvas& c, int b, int h) { konstru::zeichneKonstruktion(c, b, h, lauf, v); });
        } catch (const std::exception& e) {
            err << "Das Bild kann nicht gespeichert werden: " << e.what() << "\n";
            return 2;
        }
    }
    return 0;
}
