#include "app/commands.h"

#include "app/teilprogramm.h"
#include "app/winfkt.h"
#include "app/lint.h"
#include "algebra/commands.h"
#include "algebra/numer_commands.h"
#include "astronomy/commands.h"
#include "crypto/commands.h"
#include "dynamics/chaos_commands.h"
#include "dynamics/commands.h"
#include "games/commands.h"
#include "geometry/commands.h"
#include "geometry/poly_commands.h"
#include "stochastics/commands.h"
#include "graphs/commands.h"
#include "numbers/commands.h"
#include "numbers/factor/factorcommands.h"
#include "kernel/commands.h"
#include "kernel/term.h"
#include "kernel/termcommands.h"
#include "platform/commands.h"
#include "kernel/headless.h"
#include "lexicon/druck.h"
#include "lexicon/einstellungen.h"
#include "lexicon/rtf.h"
#include "lexicon/globals.h"
#include "lexicon/toolcatalog.h"
#include "platform/codepage.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QListWidget>
#include <cstring>
#include <sys/stat.h>
#include <unistd.h>
#include <iostream>
#include <sstream>

namespace app {

namespace {

// Exceptions that no local handler takes reach the one global handler; the program goes on.
class QuorixApplication : public QApplication {
public:
    using QApplication::QApplication;
    bool notify(QObject* receiver, QEvent* e) override
    {
        try {
            return QApplication::notify(receiver, e);
        } catch (const std::exception& ex) {
            myexceptionhandler(ex.what());
        } catch (...) {
            myexceptionhandler("Unbekannter Fehler");
        }
        return false;
    }
};

std::string utf8(const std::string& cp1252)
{
    return platform::cp1252ToUtf8(cp1252);
}

bool groesseLesen(const std::string& s, int& w, int& h)
{
    return std::sscanf(s.c_str(), "%dx%d", &w, &h) == 2 && w > 100 && h > 100 && w < 10000 && h < 10000;
}

void fensterZeigen(TForm1& f, int w, int h)
{
    f.resize(w, h);
    f.show();
    QApplication::processEvents();
    f.anordnen();
}

// --rtf and --pdf: the export and the print walk of the shown page; the print lists its lines.
int seiteAusgeben(TForm1& f, const std::string& rtf, const std::string& pdf, std::ostream& out, std::ostream& err)
{
    const int seite = f.aktseite();
    lexicon::PageStore& store = f.pageStore();
    try {
        if (!rtf.empty()) {
            store.blockFuerSeite(seite);
            const platform::StringList zeilen = lexicon::rtfSeite(store.seitenblock, seite);
            lexicon::rtfDateiSchreiben(rtf, zeilen);
            out << "RTF\t" << rtf << "\t" << zeilen.size() << "\n";
        }
        if (!pdf.empty()) {
            const int L = store.kopfzeile(seite);
            platform::Picture bild;
            lexicon::SeitenbildQuelle q;
            if (lexicon::seitenbildSuchen(store.seitenblock, L, q))
                bild = lexicon::seitenbildLaden(lexicon::bildpfad, q);
            const lexicon::DruckErgebnis erg = lexicon::seiteAlsPdf(pdf, store.seitenblock, L, bild,
                                                                    lexicon::druckEinstellungenVon(lexicon::einstellungen));
            const lexicon::DruckVariablen& v = erg.anfang;
            out << "PDF\t" << pdf << "\t" << erg.zeilen.size() << "\n";
            out << "Druck\txfaktor " << v.xfaktor << "\tyfaktor " << v.yfaktor << "\tdruckzeile " << v.druckzeile
                << "\trand_links " << v.rand_links << "\trand_oben " << v.rand_oben << "\tbildeinzug " << v.bildeinzug
                << "\tbildhoehe " << v.bildhoehe << "\n";
            for (const auto& z : erg.zeilen)
                out << "Druckzeile\t" << z.x << "\t" << z.y << "\t" << utf8(z.text) << "\n";
        }
    } catch (const std::exception& e) {
        err << "Ausgabe nicht möglich: " << e.what() << "\n";
        return 1;
    }
    return 0;
}

int cmdPage(quorix::Args args, std::ostream& out, std::ostream& err)
{
    std::string png, size, rtf, pdf;
    quorix::takeOption(args, "--png", png);
    quorix::takeOption(args, "--rtf", rtf);
    quorix::takeOption(args, "--pdf", pdf);
    const bool mitGroesse = quorix::takeOption(args, "--size", size);
    const bool ganzesFenster = quorix::takeFlag(args, "--window");
    if (args.size() != 1) {
        err << "Aufruf: quorix page STICHWORT|#NUMMER [--png DATEI] [--size BxH] [--window] [--rtf DATEI] [--pdf DATEI]\n";
        return 2;
    }
    int w = 1008, h = 710;
    if (mitGroesse && !groesseLesen(size, w, h)) {
        err << "Ungültige Größe: " << size << "\n";
        return 2;
    }
    TForm1 f(true);
    fensterZeigen(f, w, h + 0);
    bool ok;
    if (args[0].size() > 1 && args[0][0] == '#') {
        char* end = nullptr;
        const long n = std::strtol(args[0].c_str() + 1, &end, 10);
        if (*end || n < 0) {
            err << "Ungültige Seitennummer: " << args[0] << "\n";
            return 2;
        }
        ok = f.seiteWaehlen(static_cast<int>(n));
    } else {
        ok = f.stichwortWaehlen(platform::utf8ToCp1252(args[0]));
    }
    if (!ok) {
        err << "Keine Seite zu \"" << args[0] << "\" gefunden\n";
        return 1;
    }
    QApplication::processEvents();
    out << "Titel\t" << utf8(f.seitentitel()) << "\n";
    for (const auto& l : f.linkfeld())
        out << "Link\t" << l.x1 << "\t" << l.y1 << "\t" << l.x2 << "\t" << utf8(l.text) << "\n";
    // --window: the whole main window with keyword list and side panel, as the user sees it.
    const bool gespeichert = png.empty() || (ganzesFenster ? f.grab().save(QString::fromStdString(png), "PNG")
                                                            : f.seitenbild().savePng(png));
    if (!gespeichert) {
        err << "Bild kann nicht gespeichert werden: " << png << "\n";
        return 1;
    }
    return seiteAusgeben(f, rtf, pdf, out, err);
}

int cmdCatalog(quorix::Args args, std::ostream& out, std::ostream& err)
{
    if (args.size() != 1) {
        err << "Aufruf: quorix catalog TITEL\n";
        return 2;
    }
    TForm1 f(true);
    lexicon::ToolTriple t;
    if (!f.katalog().suche(platform::utf8ToCp1252(args[0]), t))
        return 1;
    out << t.nummer << " " << t.seite << " " << t.punkt << "\n";
    return 0;
}

int cmdKeywords(quorix::Args args, std::ostream& out, std::ostream& err)
{
    if (!args.empty()) {
        err << "Aufruf: quorix keywords\n";
        return 2;
    }
    TForm1 f(true);
    for (const auto& z : f.lb1Zeilen()) {
        const size_t tab = z.find('\t');
        out << utf8(z.substr(0, tab)) << "\t" << (tab == std::string::npos ? "" : z.substr(tab + 1, 5)) << "\n";
    }
    return 0;
}

int cmdTool(quorix::Args args, std::ostream& out, std::ostream& err)
{
    std::string png, page, item;
    quorix::takeOption(args, "--png", png);
    quorix::takeOption(args, "--page", page);
    quorix::takeOption(args, "--item", item);
    if (args.size() != 1 || png.empty()) {
        err << "Aufruf: quorix tool N [--page P] [--item I] --png DATEI\n";
        return 2;
    }
    const int n = std::atoi(args[0].c_str());
    TForm1 f(true);
    fensterZeigen(f, 1008, 710 + f.height() - 710);
    if (n == 0) {
        QApplication::processEvents();
        return f.grab().save(QString::fromStdString(png), "PNG") ? 0 : 1;
    }
    lexicon::werkzeugnummer = n;
    lexicon::wahlseite = page.empty() ? -1 : std::atoi(page.c_str());
    lexicon::wahlpunkt = item.empty() ? -1 : std::atoi(item.c_str());
    bildZiel = png;
    const bool ok = teilprogrammstarten(&f);
    bildZiel.clear();
    if (!ok) {
        err << "Werkzeug " << n << " ist in dieser Ausgabe nicht vorhanden\n";
        return 1;
    }
    (void)out;
    return 0;
}

int cmdPagewalk(quorix::Args args, std::ostream& out, std::ostream& err)
{
    if (!args.empty()) {
        err << "Aufruf: quorix pagewalk\n";
        return 2;
    }
    TForm1 f(true);
    fensterZeigen(f, 1008, f.height());
    f.B2C();
    QElapsedTimer uhr;
    uhr.start();
    const int seiten = f.M766C();
    char buf[32];
    std::snprintf(buf, sizeof buf, "%.3f", uhr.nsecsElapsed() / 1e9);
    out << seiten << "\t" << buf << "\n";
    return 0;
}

int cmdSearch(quorix::Args args, std::ostream& out, std::ostream& err)
{
    if (args.empty() || args.size() > 2) {
        err << "Aufruf: quorix search WORT1 [WORT2]\n";
        return 2;
    }
    TForm1 f(true);
    const auto treffer = f.volltextSuchen(platform::utf8ToCp1252(args[0]),
                                          args.size() > 1 ? platform::utf8ToCp1252(args[1]) : std::string());
    if (treffer.empty()) {
        out << f.meldung(52) << "\n";
        return 1;
    }
    for (const auto& t : treffer)
        out << utf8(t) << "\n";
    out << treffer.size() << " Einträge\n";
    return 0;
}

int cmdSettings(quorix::Args args, std::ostream& out, std::ostream& err)
{
    std::string ini;
    const bool datei = quorix::takeOption(args, "--ini", ini);
    if (!args.empty()) {
        err << "Aufruf: quorix settings [--ini DATEI]\n";
        return 2;
    }
    platform::StringList zeilen;
    if (datei) {
        if (!lexicon::textDateiLesen(ini, zeilen)) {
            err << "Datei nicht gefunden: " << ini << "\n";
            return 1;
        }
    } else {
        TForm1 f(true);  // prepares the paths and the user's copy
        if (!lexicon::textDateiLesen(lexicon::datenpfad + "quorix.ini", zeilen))
            lexicon::textDateiLesen(lexicon::programmpfad + "quorix.ini", zeilen);
    }
    lexicon::Einstellungen e;
    lexicon::einstellungenLesen(e, zeilen);
    for (const auto& z : lexicon::einstellungenSchreiben(e, {}))
        if (z.empty() || z[0] != '[')
            out << utf8(z) << "\n";
    return 0;
}

int cmdLint(quorix::Args args, std::ostream& out, std::ostream& err)
{
    if (!args.empty()) {
        err << "Aufruf: quorix lint\n";
        return 2;
    }
    TForm1 f(true);
    fensterZeigen(f, 1008, f.height());
    f.B2C();
    // An F: term counts as rejected when the interpreter reports a syntax fault at any point.
    lintTermPruefen = [](const std::string& term) {
        std::string t = term;
        while (!t.empty() && t[0] == ' ')
            t.erase(0, 1);
        for (char& c : t)
            c = static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
        for (double x : {0.5, 1.7, -2.3}) {
            quorix::EvalTerm(t, x);
            if (quorix::TermError == 1)
                return false;
        }
        return true;
    };
    const int n = lexikonPruefen(f, out);
    if (n > 0)
        err << n << " Probleme gefunden\n";
    return n > 0 ? 1 : 0;
}

}  // namespace

std::vector<quorix::HeadlessCommand> appCommands()
{
    return {
        {"page", "page STICHWORT|#NUMMER [--png DATEI] [--size BxH] [--window] [--rtf DATEI] [--pdf DATEI]  Seite zeichnen, Links auflisten, als RTF oder PDF ausgeben", cmdPage},
        {"catalog", "catalog TITEL  Werkzeugnummer, Seite und Punkt eines Katalogtitels", cmdCatalog},
        {"keywords", "keywords  die Stichwortliste mit Seitennummern", cmdKeywords},
        {"tool", "tool N [--page P] [--item I] --png DATEI  Bild eines Werkzeugfensters (0: Hauptfenster)", cmdTool},
        {"search", "search WORT1 [WORT2]  Volltextsuche: die Stichwörter der Fundseiten", cmdSearch},
        {"settings", "settings [--ini DATEI]  Einstellungen lesen und so ausgeben, wie sie geschrieben würden", cmdSettings},
        {"lint", "lint  das Lexikon prüfen: tote Links, Werkzeugtitel, Blättern, Seitenhöhe", cmdLint},
        {"pagewalk", "pagewalk  alle Seiten nacheinander zeigen: Seiten und Sekunden", cmdPagewalk},
    };
}

std::vector<quorix::HeadlessCommand> alleBefehle()
{
    std::vector<quorix::HeadlessCommand> alle = appCommands();
    for (auto* satz : {&kernel::kernelCommands, &quorix::termCommands, &platform::platformCommands, &crypto::cryptoCommands,
                       &::astronomyCommands, &::numbersCommands, &graphs::graphsCommands,
                       &::factorCommands, &::gamesCommands, &::dynamicsCommands, &::chaosCommands, &::geometryCommands, &::polyCommands, &::numerCommands, &::algebraCommands, &::stochasticsCommands}) {
        auto mehr = satz();
        alle.insert(alle.end(), mehr.begin(), mehr.end());
    }
    return alle;
}

int runQuorix(int argc, char** argv)
{
    if (argc > 1) {
        // Headless: no display needed.
        qputenv("QT_QPA_PLATFORM", "offscreen");
        if (qEnvironmentVariableIsEmpty("XDG_RUNTIME_DIR")) {
            const QByteArray dir = "/tmp/quorix-runtime-" + QByteArray::number(getuid());
            mkdir(dir.constData(), 0700);
            qputenv("XDG_RUNTIME_DIR", dir);
        }
        // The offscreen platform's notes about window hints mean nothing to a command's user.
        qInstallMessageHandler([](QtMsgType t, const QMessageLogContext&, const QString& m) {
            if (t != QtDebugMsg && t != QtInfoMsg && !m.contains("propagateSizeHints"))
                std::cerr << m.toStdString() << "\n";
        });
        ausnahmenAufKonsole = true;
        QuorixApplication a(argc, argv);
        a.setApplicationName("Quorix");
        const std::string name = argv[1];
        quorix::Args args(argv + 2, argv + argc);
        const auto befehle = alleBefehle();
        if (name == "help" || name == "--help" || name == "-h") {
            std::cout << "Aufruf: quorix [BEFEHL ARGUMENTE...]\nOhne Befehl öffnet sich das Hauptfenster.\n\n";
            for (const auto& b : befehle)
                std::cout << "  " << b.usage << "\n";
            std::cout << "  help  diese Übersicht\n";
            return 0;
        }
        for (const auto& b : befehle) {
            if (b.name == name) {
                try {
                    return b.run(args, std::cout, std::cerr);
                } catch (const std::exception& e) {
                    std::cerr << e.what() << "\n";
                    return 1;
                }
            }
        }
        std::cerr << "Unbekannter Befehl: " << name << " (quorix help listet alle)\n";
        return 2;
    }
    QuorixApplication a(argc, argv);
    a.setApplicationName("Quorix");
    TForm1 f;
    f.show();
    return a.exec();
}

}  // namespace app
