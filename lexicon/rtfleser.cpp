#include "lexicon/rtfleser.h"

#include "lexicon/rtf.h"
#include "platform/codepage.h"

#include <QString>
#include <algorithm>
#include <cctype>
#include <map>

namespace lexicon {

std::string RtfAbsatz::text() const
{
    std::string s;
    for (const auto& l : laeufe)
        s += l.text;
    return s;
}

namespace {

struct Zustand {
    bool fett = false;
    bool kursiv = false;
    int farbe = 0;
    RtfHoehe hoehe = RtfHoehe::normal;
    int font = 0;
    enum { text, farbtabelle, fonttabelle, ueberspringen } ziel = text;
};

class Leser {
public:
    explicit Leser(const std::string& r) : r_(r) {}

    RtfDokument lesen()
    {
        RtfDokument d;
        d.absaetze.emplace_back();
        doc_ = &d;
        int tiefe = 0;
        bool negativ = false;
        while (i_ < r_.size()) {
            const char c = r_[i_++];
            if (c == '{') {
                stapel_.push_back(z_);
                ++tiefe;
            } else if (c == '}') {
                if (z_.ziel == Zustand::farbtabelle && farbeOffen_)
                    farbeAbschliessen();
                if (stapel_.empty()) {
                    negativ = true;
                } else {
                    z_ = stapel_.back();
                    stapel_.pop_back();
                }
                --tiefe;
            } else if (c == '\\') {
                steuerung();
            } else if (c == '\r' || c == '\n') {
                // line ends of the file carry no meaning
            } else if (z_.ziel == Zustand::farbtabelle) {
                if (c == ';')
                    farbeAbschliessen();
            } else if (z_.ziel == Zustand::fonttabelle || z_.ziel == Zustand::ueberspringen) {
                // names of fonts and other destinations are not text
            } else {
                zeichen(static_cast<unsigned char>(c));
            }
        }
        d.gueltig = !negativ && tiefe == 0 && r_.rfind("{\\rtf", 0) == 0;
        return d;
    }

private:
    void farbeAbschliessen()
    {
        farben_.push_back(farbeOffen_ ? platform::rgb(rot_, gruen_, blau_) : platform::clBlack);
        rot_ = gruen_ = blau_ = 0;
        farbeOffen_ = false;
    }

    void zeichen(unsigned char b)
    {
        RtfLauf l;
        l.fett = z_.fett;
        l.kursiv = z_.kursiv;
        l.farbe = (z_.farbe > 0 && z_.farbe < static_cast<int>(farben_.size())) ? farben_[static_cast<size_t>(z_.farbe)]
                                                                                : platform::clBlack;
        l.hoehe = z_.hoehe;
        l.symbol = symbolFonts_.count(z_.font) > 0;
        if (l.symbol)
            l.text = QString(platform::symbolToUnicode(b)).toStdString();
        else
            l.text = platform::cp1252ToUtf8(std::string(1, static_cast<char>(b)));
        anhaengen(l);
    }

    void anhaengen(const RtfLauf& l)
    {
        auto& laeufe = doc_->absaetze.back().laeufe;
        if (!laeufe.empty() && laeufe.back().gleichesFormat(l))
            laeufe.back().text += l.text;
        else
            laeufe.push_back(l);
    }

    void steuerung()
    {
        if (i_ >= r_.size())
            return;
        const char c = r_[i_];
        if (!std::isalpha(static_cast<unsigned char>(c))) {
            ++i_;
            if (c == '\'') {
                const std::string hex = r_.substr(i_, 2);
                i_ += hex.size();
                const int b = static_cast<int>(std::strtol(hex.c_str(), nullptr, 16));
                if (z_.ziel == Zustand::text)
                    zeichen(static_cast<unsigned char>(b));
            } else if (c == '*') {
                z_.ziel = Zustand::ueberspringen;
            } else if (c == '~') {
                if (z_.ziel == Zustand::text)
                    zeichen(0xA0);
            } else if (c == '\\' || c == '{' || c == '}') {
                if (z_.ziel == Zustand::text)
                    zeichen(static_cast<unsigned char>(c));
            }
            return;
        }
        std::string wort;
        while (i_ < r_.size() && std::isalpha(static_cast<unsigned char>(r_[i_])))
            wort += r_[i_++];
        bool mitZahl = false;
        int zahl = 0;
        size_t start = i_;
        if (i_ < r_.size() && (r_[i_] == '-' || std::isdigit(static_cast<unsigned char>(r_[i_])))) {
            ++i_;
            while (i_ < r_.size() && std::isdigit(static_cast<unsigned char>(r_[i_])))
                ++i_;
            zahl = static_cast<int>(std::strtol(r_.substr(start, i_ - start).c_str(), nullptr, 10));
            mitZahl = true;
        }
        if (i_ < r_.size() && r_[i_] == ' ')
            ++i_;
        wortAusfuehren(wort, mitZahl, zahl);
    }

    void wortAusfuehren(const std::string& w, bool mitZahl, int n)
    {
        if (w == "fonttbl") { z_.ziel = Zustand::fonttabelle; return; }
        if (w == "colortbl") { z_.ziel = Zustand::farbtabelle; return; }
        if (w == "stylesheet" || w == "info" || w == "pict" || w == "header" || w == "footer") {
            z_.ziel = Zustand::ueberspringen;
            return;
        }
        if (z_.ziel == Zustand::farbtabelle) {
            if (w == "red") { rot_ = n; farbeOffen_ = true; }
            else if (w == "green") { gruen_ = n; farbeOffen_ = true; }
            else if (w == "blue") { blau_ = n; farbeOffen_ = true; }
            return;
        }
        if (z_.ziel == Zustand::fonttabelle) {
            if (w == "f") fontNummer_ = n;
            else if (w == "fcharset" && n == 2) symbolFonts_[fontNummer_] = true;
            return;
        }
        if (z_.ziel != Zustand::text)
            return;
        const bool an = !mitZahl || n != 0;
        if (w == "par") doc_->absaetze.emplace_back();
        else if (w == "tab") zeichen('\t');
        else if (w == "b") z_.fett = an;
        else if (w == "i") z_.kursiv = an;
        else if (w == "cf") z_.farbe = n;
        else if (w == "f") z_.font = n;
        else if (w == "super") z_.hoehe = RtfHoehe::hoch;
        else if (w == "sub") z_.hoehe = RtfHoehe::tief;
        else if (w == "nosupersub") z_.hoehe = RtfHoehe::normal;
        else if (w == "plain") { z_.fett = z_.kursiv = false; z_.hoehe = RtfHoehe::normal; z_.font = 0; }
    }

    const std::string& r_;
    size_t i_ = 0;
    RtfDokument* doc_ = nullptr;
    Zustand z_;
    std::vector<Zustand> stapel_;
    std::vector<platform::TColor> farben_;
    std::map<int, bool> symbolFonts_;
    int fontNummer_ = 0;
    int rot_ = 0, gruen_ = 0, blau_ = 0;
    bool farbeOffen_ = false;
};

std::string textSchreiben(const std::string& utf8, bool symbol)
{
    static const std::map<char16_t, unsigned char> symbolBytes = [] {
        std::map<char16_t, unsigned char> m;
        for (int b = 255; b >= 32; --b)
            m[platform::symbolToUnicode(static_cast<unsigned char>(b)).unicode()] = static_cast<unsigned char>(b);
        return m;
    }();
    std::string bytes;
    if (symbol) {
        for (QChar q : QString::fromStdString(utf8)) {
            auto it = symbolBytes.find(q.unicode());
            bytes += it != symbolBytes.end() ? static_cast<char>(it->second) : '?';
        }
    } else {
        bytes = platform::utf8ToCp1252(utf8);
    }
    std::string r;
    for (char c : bytes) {
        if (c == '\\' || c == '{' || c == '}') {
            r += '\\';
            r += c;
        } else if (c == '\t') {
            r += "\\tab ";
        } else if (c == '\n' || c == '\r') {
            r += "\\line ";
        } else {
            r += c;
        }
    }
    return rtfAchtBit(r);
}

}  // namespace

RtfDokument rtfLesen(const std::string& rtf)
{
    return Leser(rtf).lesen();
}

std::string rtfSchreiben(const RtfDokument& d)
{
    // The colour table: the export's blue and red first, then whatever else the text holds.
    std::vector<platform::TColor> farben = {platform::rgb(0, 0, 255), platform::rgb(255, 0, 0)};
    for (const auto& a : d.absaetze)
        for (const auto& l : a.laeufe)
            if (l.farbe != platform::clBlack && std::find(farben.begin(), farben.end(), l.farbe) == farben.end())
                farben.push_back(l.farbe);
    std::string aus = "{\\rtf1\\ansi\\ansicpg1252\\deff0\\deflang1031\r\n"
                      "{\\fonttbl{\\f0\\fnil\\fcharset0 Verdana;}\r\n"
                      "{\\f1\\fnil\\fcharset2 Symbol;}{\\f2\\froman\\fprq2\\fcharset0 Times New Roman;}}\r\n"
                      "{\\colortbl ;";
    for (platform::TColor f : farben)
        aus += "\\red" + std::to_string(platform::redOf(f)) + "\\green" + std::to_string(platform::greenOf(f)) +
               "\\blue" + std::to_string(platform::blueOf(f)) + ";";
    aus += "}\r\n\\viewkind4\\uc1\\pard\\f0\\fs20\r\n";
    RtfLauf z;  // the state the reader is in
    for (size_t k = 0; k < d.absaetze.size(); ++k) {
        std::string zeile;
        for (const auto& l : d.absaetze[k].laeufe) {
            if (l.fett != z.fett)
                zeile += l.fett ? "\\b " : "\\b0 ";
            if (l.kursiv != z.kursiv)
                zeile += l.kursiv ? "\\i " : "\\i0 ";
            if (l.farbe != z.farbe) {
                const auto it = std::find(farben.begin(), farben.end(), l.farbe);
                const long n = l.farbe == platform::clBlack ? 0 : (it - farben.begin()) + 1;
                zeile += "\\cf" + std::to_string(n) + " ";
            }
            if (l.hoehe != z.hoehe)
                zeile += l.hoehe == RtfHoehe::hoch ? "\\super " : l.hoehe == RtfHoehe::tief ? "\\sub " : "\\nosupersub ";
            if (l.symbol != z.symbol)
                zeile += l.symbol ? "\\f1 " : "\\f0 ";
            z = l;
            zeile += textSchreiben(l.text, l.symbol);
        }
        if (k + 1 < d.absaetze.size())
            zeile += "\\par ";
        aus += zeile + "\r\n";
    }
    aus += "}\r\n";
    return aus;
}

}  // namespace lexicon
