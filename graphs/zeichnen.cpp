#include "graphs/zeichnen.h"

#include <cctype>
#include <cmath>
#include <cstdlib>

namespace graphs {

using platform::Canvas;
using platform::TColor;

Graphzeichner::Graphzeichner(PlotZustand& z, Skriptliste& skript, Skriptliste& zahlen, TermAuswerter& t)
    : z_(z), skript_(skript), zahlen_(zahlen), t_(t)
{
}

bool nutztParameter(const std::string& term, char buchstabe)
{
    for (size_t i = 0; i < term.size(); ++i) {
        if (term[i] != buchstabe)
            continue;
        if (buchstabe == 'P' && i + 1 < term.size() && (term[i + 1] == 'I' || term[i + 1] == 'H'))
            continue;
        // P and Q inside a function name (SQRT, EXPP) are no parameters
        const bool vorBuchstabe = i > 0 && std::isalpha(static_cast<unsigned char>(term[i - 1]));
        const bool nachBuchstabe = i + 1 < term.size() && std::isalpha(static_cast<unsigned char>(term[i + 1]));
        if (!vorBuchstabe && !nachBuchstabe)
            return true;
    }
    return false;
}

void Graphzeichner::vorbereiten(int breite, int hoehe) { a_ = Abbildung::aus(z_.bereich, breite, hoehe); }

bool Graphzeichner::argDa() const { return skript_.hatNoch() && skript_.naechste().rfind("#", 0) != 0; }

std::string Graphzeichner::arg() { return argDa() ? skript_.readText() : std::string(); }

double Graphzeichner::zahl()
{
    if (!argDa())
        return 0;
    const std::string s = skript_.readText();
    char* ende = nullptr;
    std::string t = s;
    for (char& ch : t)
        if (ch == ',')
            ch = '.';
    const double v = std::strtod(t.c_str(), &ende);
    if (ende != t.c_str() && *ende == 0)
        return v;
    return t_.feldwert(s);  // a term such as PI/2 is accepted where a number stands
}

std::vector<double> Graphzeichner::zahlenliste()
{
    std::vector<double> r;
    while (argDa() && skript_.naechste() != "...")
        r.push_back(zahl());
    if (argDa())
        skript_.readText();  // the "..."
    return r;
}

std::vector<std::string> Graphzeichner::textliste()
{
    std::vector<std::string> r;
    while (argDa() && skript_.naechste() != "...")
        r.push_back(skript_.readText());
    if (argDa())
        skript_.readText();
    return r;
}

Funktion Graphzeichner::termFunktion(const std::string& term, bool modus)
{
    const int m = modus ? z_.opt.logAchsen : 0;
    TermAuswerter* t = &t_;
    return [t, term, m](double x, int& e) { return t->wertModus(term, m, x, e); };
}

void Graphzeichner::spurZeichnen(Canvas& c, const Kurvenspur& s, TColor farbe, int breite)
{
    c.setPenColor(farbe);
    c.setPenWidth(breite);
    c.setPenStyle(platform::PenStyle::Solid);
    std::vector<QPoint> zug;
    QPoint pos(0, 0);
    auto ausgeben = [&] {
        if (zug.size() >= 2)
            c.polyline(zug);
        zug.clear();
    };
    for (const Stiftschritt& st : s.schritte) {
        switch (st.art) {
        case Stift::Linie:
            if (zug.empty())
                zug.push_back(pos);
            zug.emplace_back(st.x, st.y);
            pos = QPoint(st.x, st.y);
            break;
        case Stift::Bewegen:
            ausgeben();
            pos = QPoint(st.x, st.y);
            break;
        case Stift::Punkt:
            ausgeben();
            if (breite <= 1) {
                c.setPixel(st.x, st.y, farbe);
            } else {
                c.setBrushColor(farbe);
                c.fillRect(st.x - breite / 2, st.y - breite / 2, st.x - breite / 2 + breite, st.y - breite / 2 + breite);
            }
            break;
        }
    }
    ausgeben();
    c.setPenWidth(1);
}

void Graphzeichner::label(Canvas& c, int n, const std::string& text, TColor farbe, int yFest)
{
    if (!z_.opt.terme)
        return;
    const std::string t = z_.opt.nummern ? "[" + std::to_string(n) + "] " + text : text;
    int x = 10, y = yFest;
    if (yFest < 0) {
        const Punkt p = z_.labels[static_cast<size_t>((n - 1) % 30)];
        x = p.x;
        y = p.y + 40;  // the stored tops start above the picture; the text sits below the margin
    }
    c.setFontName("Verdana");
    c.setFontSize(z_.opt.schrift);
    c.setFontColor(farbe);
    c.setBrushStyle(platform::BrushStyle::Clear);
    c.textOut(x, y, t);
    beschriftungen_.push_back({yFest < 0 ? n : 0, t, x, y, c.textWidth(t), c.textHeight(t)});
}

int Graphzeichner::labelAn(int x, int y) const
{
    for (auto it = beschriftungen_.rbegin(); it != beschriftungen_.rend(); ++it)
        if (it->kurve > 0 && x >= it->x && x < it->x + it->w && y >= it->y && y < it->y + it->h)
            return it->kurve;
    return 0;
}

void Graphzeichner::kurveAusSpur(Canvas& c, char b, const Kurvenspur& spur, const std::string& text, int breite,
                                 int labelY)
{
    ++curveCounter_;
    const TColor farbe = kurvenfarbe(curveCounter_, z_.opt.farbig);
    const int w = breite > 0 ? breite : stiftbreite(z_.opt.breite);
    spurZeichnen(c, spur, farbe, w);
    auswertungen_ += spur.auswertungen;
    if (!text.empty())
        label(c, curveCounter_, text, farbe, labelY);
    protokoll_.push_back({b, text, farbe, w, spur});
}

void Graphzeichner::kurve(Canvas& c, char b, const std::string& term, const std::string& text, int art, int breite)
{
    TracerOptionen o;
    o.domainLow = z_.domainLow();
    o.domainHigh = z_.domainHigh();
    o.punktmodus = z_.opt.punktmodus;
    o.logAchsen = z_.opt.logAchsen != 0;
    const Kurvenspur spur = kurveVerfolgen(termFunktion(term), a_, art, o);
    pGenutzt_ = pGenutzt_ || nutztParameter(term, 'P');
    qGenutzt_ = qGenutzt_ || nutztParameter(term, 'Q');
    // kinds 3 to 6 label themselves at a fixed place
    kurveAusSpur(c, b, spur, text, breite, art >= 3 && art <= 6 ? (art + 3) * 14 : -1);
    if (art == kaNormal)
        letzterTerm_ = term;
}

void Graphzeichner::marke(Canvas& c, char b, double x, double y, TColor farbe, int radius, bool gefuellt)
{
    const int px = a_.pixelX(x), py = a_.pixelY(y);
    c.setPenColor(farbe);
    c.setPenWidth(1);
    c.setPenStyle(platform::PenStyle::Solid);
    if (gefuellt)
        c.setBrushColor(farbe);
    else
        c.setBrushColor(platform::clWhite);
    c.ellipse(px - radius, py - radius, px + radius + 1, py + radius + 1);
    Kurvenspur s;
    s.schritte.push_back({Stift::Punkt, px, py});
    protokoll_.push_back({b, {}, farbe, radius, s});
}

void Graphzeichner::linieWelt(Canvas& c, char b, double x1, double y1, double x2, double y2, TColor farbe,
                              int breite, platform::PenStyle stil)
{
    Kurvenspur s;
    s.schritte.push_back({Stift::Bewegen, a_.pixelX(x1), a_.pixelY(y1)});
    s.schritte.push_back({Stift::Linie, a_.pixelX(x2), a_.pixelY(y2)});
    c.setPenColor(farbe);
    c.setPenWidth(breite);
    c.setPenStyle(stil);
    c.moveTo(s.schritte[0].x, s.schritte[0].y);
    c.lineTo(s.schritte[1].x, s.schritte[1].y);
    c.setPenStyle(platform::PenStyle::Solid);
    c.setPenWidth(1);
    protokoll_.push_back({b, {}, farbe, breite, s});
}

void Graphzeichner::baender(Canvas& c)
{
    // H and h lie under the grid, so they are drawn in a pass of their own before it.
    skript_.anAnfang();
    while (skript_.hatNoch()) {
        const std::string kopf = skript_.readText();
        if (kopf.size() < 2 || kopf[0] != '#' || (kopf[1] != 'H' && kopf[1] != 'h'))
            continue;
        const double u = zahl(), v = zahl();
        Kurvenspur s;
        if (kopf[1] == 'H') {
            const int x1 = a_.pixelX(std::min(u, v)), x2 = a_.pixelX(std::max(u, v));
            c.setBrushColor(platform::rgb(255, 255, 170));
            c.fillRect(x1, 0, x2 + 1, a_.plotHeight);
            s.schritte = {{Stift::Bewegen, x1, 0}, {Stift::Linie, x2, a_.plotHeight}};
            protokoll_.push_back({'H', {}, platform::rgb(255, 255, 170), 1, s});
        } else {
            const int y1 = a_.pixelY(std::max(u, v)), y2 = a_.pixelY(std::min(u, v));
            c.setBrushColor(platform::rgb(190, 240, 190));
            c.fillRect(0, y1, a_.plotWidth, y2 + 1);
            s.schritte = {{Stift::Bewegen, 0, y1}, {Stift::Linie, a_.plotWidth, y2}};
            protokoll_.push_back({'h', {}, platform::rgb(190, 240, 190), 1, s});
        }
    }
}

void Graphzeichner::zeichnen(Canvas& c)
{
    skript_.anAnfang();
    while (skript_.hatNoch()) {
        const std::string kopf = skript_.readText();
        if (kopf.size() < 2 || kopf[0] != '#')
            continue;
        befehl(c, kopf[1], kopf);
    }
    parameterText(c);
}

void Graphzeichner::befehl(Canvas& c, char b, const std::string& kopf)
{
    switch (b) {
    case 'F': {
        const std::string term = arg();
        kurve(c, 'F', term, "Y = " + term, kaNormal);
        break;
    }
    case '\xE4': {  // ä
        const std::string term = arg();
        kurve(c, b, term, "Y = " + term, kaNormal, 3);
        break;
    }
    case 's': hebbar(c, arg()); break;
    case 'S': familie(c, arg()); break;
    case 'A': {
        const std::string art = arg();
        ableitung(c, art, arg());
        break;
    }
    case 'G': {
        const double x = zahl();
        linieWelt(c, 'G', x, a_.yVonPixel(a_.plotHeight + 1), x, a_.yVonPixel(-1), platform::clGray, 1,
                  platform::PenStyle::Dash);
        break;
    }
    case 'j': {
        const double y = zahl();
        linieWelt(c, 'j', a_.xVonPixel(-1), y, a_.xVonPixel(a_.plotWidth + 1), y, platform::clGray, 1,
                  platform::PenStyle::Dash);
        break;
    }
    case 'H':
    case 'h':
        zahl();
        zahl();
        break;  // drawn under the grid by baender
    case 'r': {
        const double m = zahl(), n = zahl();
        const double x1 = a_.b.xmin - 1, x2 = a_.b.xmax + 1;
        linieWelt(c, 'r', x1, m * x1 + n, x2, m * x2 + n, platform::clBlue, 3, platform::PenStyle::Solid);
        break;
    }
    case 'v': {
        const double x = zahl(), y = zahl();
        const TColor farbe = platform::clRed;
        linieWelt(c, 'v', 0, 0, x, y, farbe, 2, platform::PenStyle::Solid);
        // arrow head of 12 pixels at the tip
        const double dx = a_.pixelXgenau(x) - a_.originX, dy = a_.pixelYgenau(y) - a_.originY;
        const double l = std::hypot(dx, dy);
        if (l > 0) {
            const double ux = dx / l, uy = dy / l;
            const int tx = a_.pixelX(x), ty = a_.pixelY(y);
            std::vector<QPoint> kopfpunkte = {
                {tx, ty},
                {pixelRunden(tx - 12 * ux + 5 * uy), pixelRunden(ty - 12 * uy - 5 * ux)},
                {pixelRunden(tx - 12 * ux - 5 * uy), pixelRunden(ty - 12 * uy + 5 * ux)}};
            c.setBrushColor(farbe);
            c.setPenColor(farbe);
            c.polygon(kopfpunkte);
        }
        break;
    }
    case 'g':
    case 'y':
    case 'z': {
        const platform::PenStyle stil = b == 'g' ? platform::PenStyle::Solid
                                        : b == 'y' ? platform::PenStyle::Dash
                                                   : platform::PenStyle::Dot;
        for (const Hilfslinie& h : z_.hilfslinien)
            linieWelt(c, b, h.x1, h.y1, h.x2, h.y2, platform::clBlack, 1, stil);
        break;
    }
    case 'u': {
        const std::string t1 = arg(), t2 = arg();
        z_.feldX = t1;
        z_.feldY = t2;
        t_.setzeFunktion(5, t1);
        break;
    }
    case 'K': case 'i': case 'n': case '\xF6': parameterkurve(c, b); break;
    case 'P': case 'W': case 'p': polarkurve(c, b); break;
    case 'U': case 'V': case 'k': case '\xDF': flaeche(c, b); break;
    case 'I': case '\xE1': case '\xED': streifen(c, b); break;
    case 'C': case 'c': folge(c, b); break;
    case 'R': balken(c); break;
    case 'd': dgl(c); break;
    case 'x': tabelle(c); break;
    case '@': case 'M': case 'N': case '\xFC': case 'w': case 'm': case 'e': markenBefehl(c, b); break;
    default: break;  // commands not known are ignored
    }
}

void Graphzeichner::parameterText(Canvas& c)
{
    c.setFontName("Verdana");
    c.setFontSize(z_.opt.schrift);
    c.setFontColor(platform::clBlack);
    c.setBrushStyle(platform::BrushStyle::Clear);
    int y = a_.plotHeight - 2 * (c.textHeight("Xg") + 2) - 4;
    if (pGenutzt_) {
        const std::string t = "Parameter p = " + zahlText(1, 2, t_.parameterP());
        c.textOut(10, y, t);
        beschriftungen_.push_back({0, t, 10, y, c.textWidth(t), c.textHeight(t)});
        y += c.textHeight(t) + 2;
    }
    if (qGenutzt_) {
        const std::string t = "Parameter q = " + zahlText(1, 2, t_.parameterQ());
        c.textOut(10, y, t);
        beschriftungen_.push_back({0, t, 10, y, c.textWidth(t), c.textHeight(t)});
    }
}

void Graphzeichner::komplett(Canvas& c)
{
    protokoll_.clear();
    beschriftungen_.clear();
    curveCounter_ = 0;
    auswertungen_ = 0;
    pGenutzt_ = qGenutzt_ = false;
    letzterTerm_.clear();
    baender(c);
    koordinatensystem(c);
    zeichnen(c);
}

void Graphzeichner::darstellung(platform::Picture& bild)
{
    vorbereiten(bild.width(), bild.height());
    bild.fill(platform::clWhite);
    Canvas c(bild);
    c.painter().setRenderHint(QPainter::Antialiasing, false);
    c.setFontName("Verdana");
    c.setFontSize(z_.opt.schrift);
    komplett(c);
}

}  // namespace graphs
