#include "algebra/numer_commands.h"

#include "algebra/numer.h"

#include <string>

using quorix::Args;

namespace {

int cmdNumerisch(Args a, std::ostream& out, std::ostream& err)
{
    static const char* kAufruf =
        "Aufruf: quorix numerisch THEMA [--option N] EINGABE...  (THEMA 0-39, --liste zeigt die Themen)";
    if (quorix::takeFlag(a, "--liste")) {
        const auto& t = numer::themen();
        for (size_t i = 0; i < t.size(); ++i) {
            out << i << "\t" << t[i].name;
            for (const auto& f : t[i].felder) out << "\t" << f;
            if (!t[i].vorhanden) out << "\t(nicht enthalten)";
            out << "\n";
        }
        return 0;
    }
    std::string opt;
    numer::Eingabe e;
    if (quorix::takeOption(a, "--option", opt)) {
        int64_t o;
        if (!numer::leseGanz(opt, 0, 20, o)) {
            err << kAufruf << "\n";
            return 2;
        }
        e.option = static_cast<int>(o);
    }
    int64_t thema;
    if (a.empty() || !numer::leseGanz(a[0], 0, numer::ThemenAnzahl - 1, thema)) {
        err << kAufruf << "\n";
        return 2;
    }
    const numer::Thema& t = numer::themen()[static_cast<size_t>(thema)];
    if (!t.vorhanden) {
        err << "Thema " << thema << " \"" << t.name << "\" ist nicht enthalten.\n";
        return 2;
    }
    if (e.option < 0 || (e.option > 0 && e.option >= static_cast<int>(t.optionen.size()))) {
        err << "Ungültige Option für \"" << t.name << "\"\n";
        return 2;
    }
    e.felder.assign(a.begin() + 1, a.end());
    // fields left out take the window's defaults
    for (size_t i = e.felder.size(); i < t.vorgabe.size(); ++i) e.felder.push_back(t.vorgabe[i]);
    const numer::Ergebnis r = numer::berechne(static_cast<int>(thema), e);
    for (const auto& z : r.zeilen) (r.fehler ? err : out) << z << "\n";
    return r.fehler ? 1 : 0;
}

}  // namespace

std::vector<quorix::HeadlessCommand> numerCommands()
{
    return {{"numerisch", "numerisch THEMA [--option N] EINGABE... - Tabelle eines Themas der Zahlenwerkstatt",
             cmdNumerisch}};
}
