#include "geometry/konstru.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>

namespace konstru {

namespace {

constexpr double kPi = 3.14159265358979323846;
constexpr double kEps = 1e-12;

const char* const kWoerter[kArtenAnzahl] = {
    "Punkt", "Strecke", "Gerade", "Senkrechte", "Kreis", "Kreis", "MittelPunkt", "Lot", "SchnittPunkt",
    "Winkelhalbierende", "Mittelsenkrechte", "Gerade-Kreis-Punkte", "Kreis-Kreis-Punkte", "Parallele",
    "DrehPunkt", "Kreis", "Kreisbogen", "SpiegelPunkt", "SpiegelPunkt", "Strecke-Kreis-Punkte", "Strahl",
    "Stift", "Strahl-Kreis-Punkte", "Winkel", "StreckenPunkt", "KreisPunkt", "Parallelogrammpunkt",
    "Vektor", "Verschiebung", "Ellipse", "Kommentar", "WinkelPunkt", "Bezier"};

// "" stands for the next free capital letter
const char* const kAnfaenge[kArtenAnzahl] = {
    "", "s", "g", "g", "k", "k", "", "", "S", "g", "g", "S", "S", "g", "", "k", "k", "", "", "S", "g",
    ".", "S", ".", "", "", "", "s", "", "e", ".", "", "b"};

P2 operator+(P2 a, P2 b) { return {a.x + b.x, a.y + b.y}; }
P2 operator-(P2 a, P2 b) { return {a.x - b.x, a.y - b.y}; }
P2 operator*(P2 a, double f) { return {a.x * f, a.y * f}; }
double laenge(P2 a) { return std::hypot(a.x, a.y); }
P2 senkrecht(P2 d) { return {-d.y, d.x}; }

bool zahl(const std::string& s, double& v)
{
    if (s.empty()) return false;
    std::string t = s;
    std::replace(t.begin(), t.end(), ',', '.');
    char* end = nullptr;
    v = std::strtod(t.c_str(), &end);
    return end && *end == '\0' && std::isfinite(v);
}

std::string pktText(P2 p) { return "(" + zahlText(p.x) + " | " + zahlText(p.y) + ")"; }

std::vector<std::string> teile(const std::string& s, char trenner)
{
    std::vector<std::string> t;
    std::string::size_type a = 0;
    for (;;) {
        const auto e = s.find(trenner, a);
        t.push_back(s.substr(a, e == std::string::npos ? std::string::npos : e - a));
        if (e == std::string::npos) break;
        a = e + 1;
    }
    return t;
}

// One run: the tables, the pen and the step being worked on.
class Rechner {
public:
    Lauf l;
    std::uint32_t farbe = 0;
    int stil = 0, breite = 1;
    int nr = 0;
    bool zeigen = true;
    const Schritt* s = nullptr;
    std::vector<std::string> erzeugt;  // names the current step has set

    bool punkt(int i, P2& p) const
    {
        if (i >= static_cast<int>(s->parameter.size())) return false;
        const BenannterPunkt* b = l.punkt(s->parameter[i]);
        if (b) p = b->p;
        return b != nullptr;
    }
    const BenannteLinie* linie(int i) const
    {
        return i < static_cast<int>(s->parameter.size()) ? l.linie(s->parameter[i]) : nullptr;
    }
    const BenannterKreis* kreis(int i) const
    {
        return i < static_cast<int>(s->parameter.size()) ? l.kreis(s->parameter[i]) : nullptr;
    }
    bool wert(int i, double& v) const
    {
        return i < static_cast<int>(s->parameter.size()) && zahl(s->parameter[i], v);
    }

    void zeichne(Form f, std::vector<P2> p, const std::string& name, double r = 0, double w1 = 0,
                 double w2 = 0, bool frei = false)
    {
        if (!zeigen) return;
        Zeichnung z;
        z.form = f;
        z.p = std::move(p);
        z.r = r;
        z.w1 = w1;
        z.w2 = w2;
        z.name = name;
        z.farbe = farbe;
        z.stil = stil;
        z.breite = breite;
        z.schritt = nr;
        z.frei = frei;
        l.zeichnungen.push_back(std::move(z));
    }

    bool neuerPunkt(const std::string& name, P2 p, bool frei = false)
    {
        if (name.empty() || l.punkte.size() >= kMaxPunkte || !std::isfinite(p.x) || !std::isfinite(p.y))
            return false;
        l.punkte.push_back({name, p, nr, frei});
        erzeugt.push_back(name);
        l.messungen.push_back(name + "\t" + s->wort + "\t" + pktText(p));
        zeichne(Form::Punkt, {p}, name, 0, 0, 0, frei);
        return true;
    }

    bool neueLinie(Form f, P2 a, P2 b)
    {
        if (laenge(b - a) < kEps || l.linien.size() >= kMaxLinien) return false;
        l.linien.push_back({s->name, a, b, f, nr});
        erzeugt.push_back(s->name);
        std::string m = s->name + "\t" + s->wort + "\t" + pktText(a) + " " + pktText(b);
        if (f == Form::Strecke || f == Form::Vektor) m += "\tLänge " + zahlText(laenge(b - a));
        l.messungen.push_back(m);
        zeichne(f, {a, b}, s->name);
        return true;
    }

    bool neuerKreis(P2 m, double r, bool bogen = false, double w1 = 0, double w2 = 0, P2 a = {}, P2 e = {})
    {
        if (!(r > kEps) || !std::isfinite(r) || l.kreise.size() >= kMaxKreise) return false;
        l.kreise.push_back({s->name, m, r, nr});
        erzeugt.push_back(s->name);
        l.messungen.push_back(s->name + "\t" + s->wort + "\tM " + pktText(m) + "\tr " + zahlText(r));
        if (bogen)
            zeichne(Form::Bogen, {m, a, e}, s->name, r, w1, w2);
        else
            zeichne(Form::Kreis, {m}, s->name, r);
        return true;
    }

    // Carrier line of a named line-like object and the part of it that counts.
    static bool aufObjekt(const BenannteLinie& g, double t)
    {
        constexpr double tol = 1e-9;
        if (g.form == Form::Strecke || g.form == Form::Vektor) return t >= -tol && t <= 1 + tol;
        if (g.form == Form::Strahl) return t >= -tol;
        return true;
    }

    bool schritt();
    bool schnittLinieKreis();
};

bool Rechner::schnittLinieKreis()
{
    const BenannteLinie* g = linie(0);
    const BenannterKreis* k = kreis(1);
    if (!g || !k) return false;
    double t[2];
    const int n = geradeKreis(g->a, g->b, k->m, k->r, t);
    const std::vector<std::string> namen = namenVon(*s);
    bool etwas = false;
    for (int i = 0; i < n && i < static_cast<int>(namen.size()); ++i)
        if (aufObjekt(*g, t[i])) etwas |= neuerPunkt(namen[i], g->a + (g->b - g->a) * t[i]);
    return etwas;
}

bool Rechner::schritt()
{
    P2 a, b, c, d;
    double v = 0;
    const std::string& name = s->name;
    switch (s->art) {
    case kPunkt:
        if (!wert(0, a.x) || !wert(1, a.y)) return false;
        return neuerPunkt(name, a, true);
    case kStrecke:
        return punkt(0, a) && punkt(1, b) && neueLinie(Form::Strecke, a, b);
    case kGerade:
        return punkt(0, a) && punkt(1, b) && neueLinie(Form::Gerade, a, b);
    case kStrahl:
        return punkt(0, a) && punkt(1, b) && neueLinie(Form::Strahl, a, b);
    case kVektor:
        return punkt(0, a) && punkt(1, b) && neueLinie(Form::Vektor, a, b);
    case kSenkrechte: {
        const BenannteLinie* g = linie(1);
        return punkt(0, a) && g && neueLinie(Form::Gerade, a, a + senkrecht(g->b - g->a));
    }
    case kParallele: {
        const BenannteLinie* g = linie(0);
        return g && punkt(1, a) && neueLinie(Form::Gerade, a, a + (g->b - g->a));
    }
    case kMittelsenkrechte:
        if (!punkt(0, a) || !punkt(1, b)) return false;
        c = (a + b) * 0.5;
        return neueLinie(Form::Gerade, c, c + senkrecht(b - a));
    case kWinkelhalbierende: {
        const BenannteLinie* g = linie(0);
        const BenannteLinie* h = linie(1);
        double t, u;
        if (!g || !h || !schnittGeraden(g->a, g->b, h->a, h->b, c, t, u)) return false;
        const P2 e1 = (g->b - g->a) * (1 / laenge(g->b - g->a));
        const P2 e2 = (h->b - h->a) * (1 / laenge(h->b - h->a));
        return neueLinie(Form::Gerade, c, c + e1 + e2);
    }
    case kKreisRadius:
        return punkt(0, a) && wert(1, v) && neuerKreis(a, v);
    case kKreisPeripherie:
        return punkt(0, a) && punkt(1, b) && neuerKreis(a, laenge(b - a));
    case kKreis3:
        return punkt(0, a) && punkt(1, b) && punkt(2, c) && kreisDurch3(a, b, c, d, v) && neuerKreis(d, v);
    case kKreisbogen: {
        if (!punkt(0, a) || !punkt(1, b) || !punkt(2, c) || !kreisDurch3(a, b, c, d, v)) return false;
        auto winkel = [&](P2 p) { return std::atan2(p.y - d.y, p.x - d.x) * 180 / kPi; };
        auto norm = [](double w) { return std::fmod(std::fmod(w, 360) + 360, 360); };
        const double w0 = winkel(a);
        double weite = norm(winkel(c) - w0);
        if (norm(winkel(b) - w0) > weite) weite -= 360;  // the arc runs clockwise through b
        return neuerKreis(d, v, true, w0, weite, a, c);
    }
    case kEllipse:
        if (!punkt(0, a) || !punkt(1, b)) return false;
        if (std::fabs(b.x - a.x) < kEps || std::fabs(b.y - a.y) < kEps) return false;
        l.messungen.push_back(name + "\tEllipse\tM " + pktText(a) + "\ta " + zahlText(std::fabs(b.x - a.x)) +
                              "\tb " + zahlText(std::fabs(b.y - a.y)));
        erzeugt.push_back(name);
        zeichne(Form::Ellipse, {a}, name, std::fabs(b.x - a.x), 0, 0);
        if (zeigen) l.zeichnungen.back().r2 = std::fabs(b.y - a.y);
        return true;
    case kBezier: {
        if (!punkt(0, a) || !punkt(1, d) || !punkt(2, b) || !punkt(3, c)) return false;
        std::vector<P2> kurve;
        for (int i = 0; i <= 64; ++i) {
            const double t = i / 64.0, m = 1 - t;
            kurve.push_back(a * (m * m * m) + b * (3 * m * m * t) + c * (3 * m * t * t) + d * (t * t * t));
        }
        l.messungen.push_back(name + "\tBezier\t" + pktText(a) + " " + pktText(d));
        erzeugt.push_back(name);
        zeichne(Form::Kurve, std::move(kurve), name);
        return true;
    }
    case kMittelpunkt:
        return punkt(0, a) && punkt(1, b) && neuerPunkt(name, (a + b) * 0.5);
    case kLot: {
        const BenannteLinie* g = linie(1);
        if (!punkt(0, a) || !g) return false;
        b = lotfuss(a, g->a, g->b);
        if (laenge(b - a) > kEps) zeichne(Form::Strecke, {a, b}, "");
        return neuerPunkt(name, b);
    }
    case kSchnittpunkt: {
        const BenannteLinie* g = linie(0);
        const BenannteLinie* h = linie(1);
        double t, u;
        if (!g || !h || !schnittGeraden(g->a, g->b, h->a, h->b, c, t, u)) return false;
        if (!aufObjekt(*g, t) || !aufObjekt(*h, u)) return false;
        return neuerPunkt(name, c);
    }
    case kGeradeKreis:
    case kStreckeKreis:
    case kStrahlKreis:
        return schnittLinieKreis();
    case kKreisKreis: {
        const BenannterKreis* k1 = kreis(0);
        const BenannterKreis* k2 = kreis(1);
        if (!k1 || !k2) return false;
        P2 p[2];
        const int n = kreisKreis(k1->m, k1->r, k2->m, k2->r, p);
        const std::vector<std::string> namen = namenVon(*s);
        bool etwas = false;
        for (int i = 0; i < n && i < static_cast<int>(namen.size()); ++i) etwas |= neuerPunkt(namen[i], p[i]);
        return etwas;
    }
    case kDrehpunkt:
        return punkt(0, a) && punkt(1, b) && wert(2, v) && neuerPunkt(name, drehe(a, b, v));
    case kWinkelpunkt:
        if (!punkt(0, a) || !punkt(1, b) || !wert(2, v)) return false;
        c = drehe(b, a, v);
        if (laenge(c - a) > kEps) zeichne(Form::Strahl, {a, c}, "");
        return neuerPunkt(name, c);
    case kPunktspiegelung:
        return punkt(0, a) && punkt(1, b) && neuerPunkt(name, b * 2 - a);
    case kGeradenspiegelung: {
        const BenannteLinie* g = linie(1);
        return punkt(0, a) && g && neuerPunkt(name, lotfuss(a, g->a, g->b) * 2 - a);
    }
    case kStreckenpunkt:
        return punkt(0, a) && punkt(1, b) && wert(2, v) && neuerPunkt(name, a + (b - a) * v);
    case kKreispunkt: {
        const BenannterKreis* k = kreis(0);
        if (!k || !wert(1, v)) return false;
        return neuerPunkt(name, k->m + P2{std::cos(v * kPi / 180), std::sin(v * kPi / 180)} * k->r);
    }
    case kParallelogrammpunkt:
        return punkt(0, a) && punkt(1, b) && punkt(2, c) && neuerPunkt(name, a + c - b);
    case kVerschiebung:
        return punkt(0, a) && punkt(1, b) && punkt(2, c) && neuerPunkt(name, a + c - b);
    case kWinkelMessen: {
        if (!punkt(0, a) || !punkt(1, b) || !punkt(2, c)) return false;
        const P2 u = a - b, w = c - b;
        if (laenge(u) < kEps || laenge(w) < kEps) return false;
        const double grad = std::acos(std::clamp((u.x * w.x + u.y * w.y) / (laenge(u) * laenge(w)), -1.0, 1.0)) *
                            180 / kPi;
        const std::string n = s->parameter[0] + s->parameter[1] + s->parameter[2];
        l.messungen.push_back(n + "\tWinkel\t" + zahlText(grad) + "°");
        // the arc runs counter-clockwise from the smaller direction angle
        const double wu = std::atan2(u.y, u.x) * 180 / kPi, ww = std::atan2(w.y, w.x) * 180 / kPi;
        double weite = std::fmod(ww - wu + 720, 360);
        const double start = weite <= 180 ? wu : ww;
        weite = weite <= 180 ? weite : 360 - weite;
        zeichne(Form::Winkel, {b}, zahlText(std::round(grad * 10) / 10) + "°", 0, start, weite);
        return true;
    }
    case kStift: {
        double f = 0, st = 0, br = 1;
        if (!wert(0, f)) return false;
        wert(1, st);
        wert(2, br);
        farbe = static_cast<std::uint32_t>(std::clamp(f, 0.0, 16777215.0));
        stil = std::clamp(static_cast<int>(st), 0, 2);
        breite = std::clamp(static_cast<int>(br), 1, 10);
        return true;
    }
    case kKommentar: {
        std::string text;
        for (std::size_t i = 0; i < s->parameter.size(); ++i) text += (i ? "|" : "") + s->parameter[i];
        l.kommentare.push_back(text);
        if (zeigen) zeichne(Form::Text, {}, text);
        return true;
    }
    default:
        return false;
    }
}

}  // namespace

char artZeichen(int art) { return static_cast<char>('0' + art); }
const char* artWort(int art) { return art >= 0 && art < kArtenAnzahl ? kWoerter[art] : ""; }
const char* namensAnfang(int art) { return art >= 0 && art < kArtenAnzahl ? kAnfaenge[art] : ""; }

std::string zahlText(double v)
{
    if (std::fabs(v) < 5e-5) v = 0;  // no "-0"
    char b[64];
    std::snprintf(b, sizeof b, "%.4f", v);
    std::string t = b;
    while (!t.empty() && t.back() == '0') t.pop_back();
    if (!t.empty() && t.back() == '.') t.pop_back();
    return t;
}

bool zerlege(const std::string& z, Schritt& s)
{
    std::string zeile = z;
    while (!zeile.empty() && (zeile.back() == '\r' || zeile.back() == '\n' || zeile.back() == ' ')) zeile.pop_back();
    const std::vector<std::string> teil = teile(zeile, '\t');
    if (teil.size() != 3 || teil[2].size() != 1) return false;
    s.art = teil[2][0] - '0';
    if (s.art < 0 || s.art >= kArtenAnzahl) return false;
    const auto blank = teil[0].find(' ');
    if (blank == std::string::npos) return false;
    s.wort = teil[0].substr(0, blank);
    s.name = teil[0].substr(blank + 1);
    if (s.name.empty()) return false;
    s.parameter = teil[1].empty() ? std::vector<std::string>{} : teile(teil[1], '|');
    return true;
}

std::string zeile(int art, const std::string& name, const std::vector<std::string>& parameter)
{
    std::string z = std::string(artWort(art)) + " " + name + "\t";
    for (std::size_t i = 0; i < parameter.size(); ++i) z += (i ? "|" : "") + parameter[i];
    return z + "\t" + artZeichen(art);
}

std::vector<std::string> namenVon(const Schritt& s)
{
    if (s.name == ".") return {};
    return teile(s.name, ',');
}

const BenannterPunkt* Lauf::punkt(const std::string& name) const
{
    for (auto it = punkte.rbegin(); it != punkte.rend(); ++it)
        if (it->name == name) return &*it;
    return nullptr;
}
const BenannteLinie* Lauf::linie(const std::string& name) const
{
    for (auto it = linien.rbegin(); it != linien.rend(); ++it)
        if (it->name == name) return &*it;
    return nullptr;
}
const BenannterKreis* Lauf::kreis(const std::string& name) const
{
    for (auto it = kreise.rbegin(); it != kreise.rend(); ++it)
        if (it->name == name) return &*it;
    return nullptr;
}

Lauf fuehreAus(const std::vector<std::string>& zeilen, const std::vector<bool>& sichtbar, int bis)
{
    Rechner r;
    const int n = bis < 0 ? static_cast<int>(zeilen.size()) : std::min<int>(bis, static_cast<int>(zeilen.size()));
    for (int i = 0; i < n; ++i) {
        Schritt s;
        r.nr = i;
        r.zeigen = i >= static_cast<int>(sichtbar.size()) || sichtbar[i];
        if (!zerlege(zeilen[i], s)) {
            r.l.leer.push_back(i);
            continue;
        }
        r.s = &s;
        r.erzeugt.clear();
        if (!r.schritt()) r.l.leer.push_back(i);
        for (const std::string& name : namenVon(s))
            if (std::find(r.erzeugt.begin(), r.erzeugt.end(), name) == r.erzeugt.end())
                r.l.messungen.push_back(name + "\t" + s.wort + "\tnicht definiert");
    }
    return std::move(r.l);
}

// ---------------------------------------------------------------- plane helpers

bool schnittGeraden(P2 a1, P2 a2, P2 b1, P2 b2, P2& s, double& t, double& u)
{
    const P2 d = a2 - a1, e = b2 - b1, f = b1 - a1;
    const double det = d.x * e.y - d.y * e.x;
    const double massstab = laenge(d) * laenge(e);
    if (massstab < kEps || std::fabs(det) < 1e-12 * massstab) return false;
    t = (f.x * e.y - f.y * e.x) / det;
    u = (f.x * d.y - f.y * d.x) / det;
    s = a1 + d * t;
    return true;
}

P2 lotfuss(P2 p, P2 a, P2 b)
{
    const P2 d = b - a;
    const double q = d.x * d.x + d.y * d.y;
    if (q < kEps) return a;
    return a + d * (((p.x - a.x) * d.x + (p.y - a.y) * d.y) / q);
}

P2 drehe(P2 p, P2 z, double grad)
{
    const double w = grad * kPi / 180, c = std::cos(w), s = std::sin(w);
    const P2 d = p - z;
    return {z.x + c * d.x - s * d.y, z.y + s * d.x + c * d.y};
}

int geradeKreis(P2 a, P2 b, P2 m, double r, double t[2])
{
    const P2 d = b - a, f = a - m;
    const double A = d.x * d.x + d.y * d.y;
    if (A < kEps) return 0;
    const double B = 2 * (f.x * d.x + f.y * d.y);
    const double C = f.x * f.x + f.y * f.y - r * r;
    double disk = B * B - 4 * A * C;
    // a line that touches within rounding counts as a tangent
    if (disk < 0 && disk > -1e-9 * std::max(1.0, B * B)) disk = 0;
    if (disk < 0) return 0;
    const double w = std::sqrt(disk);
    t[0] = (-B - w) / (2 * A);
    t[1] = (-B + w) / (2 * A);
    return 2;
}

int kreisKreis(P2 m1, double r1, P2 m2, double r2, P2 s[2])
{
    const P2 d = m2 - m1;
    const double abst = laenge(d);
    if (abst < kEps) return 0;
    const double a = (r1 * r1 - r2 * r2 + abst * abst) / (2 * abst);
    double h2 = r1 * r1 - a * a;
    if (h2 < 0 && h2 > -1e-9 * r1 * r1) h2 = 0;
    if (h2 < 0) return 0;
    const P2 e = d * (1 / abst);
    const P2 fuss = m1 + e * a;
    const P2 n = senkrecht(e) * std::sqrt(h2);
    s[0] = fuss + n;
    s[1] = fuss - n;
    return 2;
}

bool kreisDurch3(P2 a, P2 b, P2 c, P2& m, double& r)
{
    const double d = 2 * (a.x * (b.y - c.y) + b.x * (c.y - a.y) + c.x * (a.y - b.y));
    const double gross = std::max({laenge(b - a), laenge(c - b), laenge(a - c)});
    if (gross < kEps || std::fabs(d) < 1e-12 * gross * gross) return false;
    const double qa = a.x * a.x + a.y * a.y, qb = b.x * b.x + b.y * b.y, qc = c.x * c.x + c.y * c.y;
    m = {(qa * (b.y - c.y) + qb * (c.y - a.y) + qc * (a.y - b.y)) / d,
         (qa * (c.x - b.x) + qb * (a.x - c.x) + qc * (b.x - a.x)) / d};
    r = laenge(a - m);
    return true;
}

}  // namespace konstru
