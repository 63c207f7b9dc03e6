// The script commands that read more than a term: derived curves, families, parametric and
// polar curves, areas and sums, sequences, bars, differential equations, tables and marks.
#include "graphs/zeichnen.h"

#include <cmath>
#include <numbers>

namespace graphs {

using platform::Canvas;
using platform::TColor;

void Graphzeichner::ableitung(Canvas& c, const std::string& art, const std::string& term)
{
    const char k = art.empty() ? '1' : art[0];
    if (k >= '1' && k <= '6') {
        static const char* namen[] = {"1.Ableitung", "2.Ableitung", "f(-x)", "-f(x)", "-f(-x)", "f(f(x))"};
        kurve(c, 'A', term, namen[k - '1'], k - '0');
        return;
    }
    if (k == '9' || k == 'A') {
        // third derivative: symbolic steps where the engine can, numerical for the rest
        std::string t = term;
        int numerisch = 3;
        const int symbolisch = k == '9' ? 2 : 1;
        for (int i = 0; i < symbolisch; ++i) {
            const std::string abl = t_.ableitung(t);
            if (abl.empty())
                break;
            t = abl;
            --numerisch;
        }
        if (numerisch <= 2) {
            kurve(c, 'A', t, "3.Ableitung", numerisch);
            return;
        }
        // no symbolic derivative at hand: third difference of the plain term
        const Funktion f = termFunktion(term);
        const double d = 1.0 / a_.xScale;
        auto f3 = [f, d](double x, int& e) {
            int e0 = 0, e1 = 0, e2 = 0, e3 = 0;
            const double v = (f(x + 3 * d, e3) - 3 * f(x + 2 * d, e2) + 3 * f(x + d, e1) - f(x, e0)) / (d * d * d);
            e = fehlerVereinen(fehlerVereinen(e0, e1), fehlerVereinen(e2, e3));
            return v;
        };
        TracerOptionen o;
        o.domainLow = z_.domainLow();
        o.domainHigh = z_.domainHigh();
        o.punktmodus = z_.opt.punktmodus;
        kurveAusSpur(c, 'A', kurveVerfolgen(f3, a_, kaNormal, o), "3.Ableitung");
        return;
    }
    if (k == '7') {
        // antiderivative from 0: Simpson over each pixel step, summed outwards from x = 0
        const Funktion f = termFunktion(term, false);
        const int p0 = -9, p1 = a_.plotWidth + 1;
        std::vector<double> wert(static_cast<size_t>(p1 - p0 + 1), 0.0);
        std::vector<int> fehler(wert.size(), 0);
        long n = 0;
        auto simpson = [&](double u, double v, int& e) {
            int e1 = 0, e2 = 0, e3 = 0;
            const double r = (v - u) / 6 * (f(u, e1) + 4 * f((u + v) / 2, e2) + f(v, e3));
            n += 3;
            e = fehlerVereinen(fehlerVereinen(e1, e2), e3);
            return r;
        };
        // start at the column nearest to 0, or at the left edge when 0 is outside
        const double xs = std::clamp(0.0, a_.xVonPixel(p0), a_.xVonPixel(p1));
        const int ps = std::clamp(static_cast<int>(std::lround(a_.pixelXgenau(xs))), p0, p1);
        int e = 0;
        const size_t is = static_cast<size_t>(ps - p0);
        wert[is] = xs == 0 ? simpson(0, a_.xVonPixel(ps), e) : 0;
        fehler[is] = e == tfDefinition || e == tfSyntax ? e : 0;
        for (size_t i = is + 1; i < wert.size(); ++i) {
            wert[i] = wert[i - 1] + simpson(a_.xVonPixel(p0 + static_cast<int>(i) - 1), a_.xVonPixel(p0 + static_cast<int>(i)), e);
            fehler[i] = e == tfDefinition || e == tfSyntax ? e : 0;
        }
        for (size_t i = is; i-- > 0;) {
            wert[i] = wert[i + 1] - simpson(a_.xVonPixel(p0 + static_cast<int>(i)), a_.xVonPixel(p0 + static_cast<int>(i) + 1), e);
            fehler[i] = e == tfDefinition || e == tfSyntax ? e : 0;
        }
        const Abbildung a = a_;
        auto F = [&, a](double x, int& err) {
            const int i = std::clamp(static_cast<int>(std::lround(a.pixelXgenau(x))) - p0, 0, static_cast<int>(wert.size()) - 1);
            err = fehler[static_cast<size_t>(i)];
            return wert[static_cast<size_t>(i)];
        };
        TracerOptionen o;
        o.domainLow = z_.domainLow();
        o.domainHigh = z_.domainHigh();
        Kurvenspur s = kurveVerfolgen(F, a_, kaNormal, o);
        s.auswertungen = n;
        kurveAusSpur(c, 'A', s, "Stammfunktion zu F1");
        return;
    }
    if (k == '8') {
        // the inverse curve: the graph mirrored at y = x, traced as (f(t), t)
        const Funktion f = termFunktion(term, false);
        auto ident = [](double t, int& e) { e = 0; return t; };
        const double lo = std::min(a_.b.xmin, a_.b.ymin), hi = std::max(a_.b.xmax, a_.b.ymax);
        const double dt = (hi - lo) / (2.0 * std::max(a_.plotWidth, a_.plotHeight));
        kurveAusSpur(c, 'A', parameterkurveVerfolgen(f, ident, lo, hi, dt, a_), "Umkehrkurve zu F1");
    }
}

void Graphzeichner::familie(Canvas& c, const std::string& term)
{
    double von = z_.familieVon, bis = z_.familieBis, schritt = z_.familieSchritt;
    if (argDa()) {
        von = zahl();
        bis = zahl();
        schritt = zahl();
    }
    if (!(schritt > 0))
        schritt = 0.5;
    const double pAlt = t_.parameterP(), q = t_.parameterQ();
    int glieder = 0;
    for (double p = von; p <= bis + schritt * 1e-6 && glieder < 200; p += schritt, ++glieder) {
        t_.setzeParameter(p, q);
        kurve(c, 'S', term, "Y = " + term + "  (p = " + zahlText(1, 2, p) + ")", kaNormal);
    }
    t_.setzeParameter(pAlt, q);
}

void Graphzeichner::parameterkurve(Canvas& c, char b)
{
    std::string terme = arg();
    std::string xt = z_.feldX, yt = z_.feldY;
    const size_t bar = terme.find('|');
    if (bar != std::string::npos) {
        xt = terme.substr(0, bar);
        yt = terme.substr(bar + 1);
    }
    const double t0 = zahl(), t1 = zahl();
    double dt = zahl();
    zahl();
    zahl();
    if (!(dt > 0))
        dt = 0.01;
    if (b == 'n' || z_.opt.dicht)
        dt /= 10;
    pGenutzt_ = pGenutzt_ || nutztParameter(xt, 'P') || nutztParameter(yt, 'P');
    const Kurvenspur s = parameterkurveVerfolgen(termFunktion(xt, false), termFunktion(yt, false), t0, t1, dt, a_,
                                                 b == 'i' || z_.opt.punktmodus);
    kurveAusSpur(c, b, s, "X = " + xt + "   Y = " + yt);
}

void Graphzeichner::polarkurve(Canvas& c, char b)
{
    std::string term = arg();
    if (term.empty())
        term = z_.feldX;
    const double w0 = zahl(), w1 = zahl();
    double dw = zahl();
    const int art = static_cast<int>(zahl());
    zahl();
    if (!(dw > 0))
        dw = 0.01;
    if (z_.opt.dicht)
        dw /= 10;
    const double grad = art == 1 ? std::numbers::pi / 180 : 1.0;
    const double vz = b == 'W' ? -1.0 : 1.0;
    const Funktion r = termFunktion(term, false);
    auto fx = [r, grad, vz](double w, int& e) { return vz * r(w, e) * std::cos(w * grad); };
    auto fy = [r, grad, vz](double w, int& e) { return vz * r(w, e) * std::sin(w * grad); };
    pGenutzt_ = pGenutzt_ || nutztParameter(term, 'P');
    Kurvenspur s = parameterkurveVerfolgen(fx, fy, w0, w1, dw, a_, b == 'p' || z_.opt.punktmodus);
    s.auswertungen /= 2;  // fx and fy share one value of r per angle in spirit; count r once
    kurveAusSpur(c, b, s, b == 'W' ? std::string() : "F(P,W) = " + term);
}

void Graphzeichner::flaeche(Canvas& c, char b)
{
    const std::string t1 = arg();
    const std::string t2 = (b == 'U' || b == 'V') ? arg() : std::string("0");
    double von = a_.b.xmin, bis = a_.b.xmax;
    if (b != 'U') {
        von = zahl();
        bis = zahl();
    }
    if (von > bis)
        std::swap(von, bis);
    const Funktion f = termFunktion(t1), g = termFunktion(t2);
    const int p0 = std::max(-1, a_.pixelX(von)), p1 = std::min(a_.plotWidth + 1, a_.pixelX(bis));
    const TColor farbe = b == '\xDF' ? platform::rgb(255, 220, 150) : platform::rgb(180, 210, 255);
    c.setPenColor(farbe);
    c.setPenWidth(1);
    Kurvenspur s;
    for (int p = p0; p <= p1; ++p) {
        const double x = a_.xVonPixel(p);
        int e1 = 0, e2 = 0;
        const double y1 = f(x, e1), y2 = g(x, e2);
        s.auswertungen += 2;
        if (e1 == tfDefinition || e1 == tfSyntax || e2 == tfDefinition || e2 == tfSyntax)
            continue;
        const int r1 = std::clamp(a_.pixelY(y1), -2, a_.plotHeight + 2);
        const int r2 = std::clamp(a_.pixelY(y2), -2, a_.plotHeight + 2);
        c.moveTo(p, r1);
        c.lineTo(p, r2);
        s.schritte.push_back({Stift::Bewegen, p, r1});
        s.schritte.push_back({Stift::Linie, p, r2});
    }
    protokoll_.push_back({b, {}, farbe, 1, s});
    auswertungen_ += s.auswertungen;
    if (b == 'U' || b == 'V') {
        kurve(c, b, t1, "Y = " + t1, kaNormal);
        kurve(c, b, t2, "Y = " + t2, kaNormal);
    } else {
        kurve(c, b, t1, "Y = " + t1, kaNormal);
    }
    if (b == '\xDF') {
        // the value by Simpson's rule with 200 intervals, finer than the pixel columns
        const int n = 200;
        const double h = (bis - von) / n;
        double s2 = 0;
        for (int i = 0; i <= n; ++i) {
            int e1 = 0, e2 = 0;
            const double x = von + i * h;
            const double d = f(x, e1) - g(x, e2);
            s2 += (i == 0 || i == n ? 1 : i % 2 ? 4 : 2) * d;
        }
        auswertungen_ += 2 * (n + 1);
        label(c, curveCounter_ + 1, "A = " + zahlText(1, 4, s2 * h / 3), platform::clBlack);
    }
}

void Graphzeichner::streifen(Canvas& c, char b)
{
    const std::string term = arg();
    double von = zahl(), bis = zahl();
    int n = static_cast<int>(zahl());
    const int art = argDa() ? static_cast<int>(zahl()) : 0;
    if (n < 1)
        n = 10;
    n = std::min(n, 2000);
    if (von > bis)
        std::swap(von, bis);
    const Funktion f = termFunktion(term, false);
    const double h = (bis - von) / n;
    double summe = 0;
    Kurvenspur s;
    const TColor fuellung = b == '\xE1' ? platform::rgb(200, 240, 200) : b == '\xED' ? platform::rgb(255, 215, 200)
                                                                            : platform::rgb(200, 220, 255);
    for (int i = 0; i < n; ++i) {
        const double u = von + i * h, v = u + h;
        double y = 0;
        int e = 0;
        if (b == 'I') {
            const double x = art == 1 ? v : art == 2 ? (u + v) / 2 : u;
            y = f(x, e);
            ++s.auswertungen;
        } else {
            // lower or upper sum: the least or greatest of eleven samples of the strip
            double lo = 0, hi = 0;
            for (int k = 0; k <= 10; ++k) {
                int ek = 0;
                const double w = f(u + h * k / 10, ek);
                ++s.auswertungen;
                e = fehlerVereinen(e, ek);
                lo = k == 0 ? w : std::min(lo, w);
                hi = k == 0 ? w : std::max(hi, w);
            }
            y = b == '\xE1' ? lo : hi;
        }
        if (e == tfDefinition || e == tfSyntax)
            continue;
        summe += y * h;
        const int x1 = a_.pixelX(u), x2 = a_.pixelX(v);
        const int y0 = std::clamp(a_.pixelY(0), -2, a_.plotHeight + 2);
        const int y1 = std::clamp(a_.pixelY(y), -2, a_.plotHeight + 2);
        c.setPenColor(platform::clGray);
        c.setBrushColor(fuellung);
        c.rectangle(x1, std::min(y0, y1), x2 + 1, std::max(y0, y1) + 1);
        s.schritte.push_back({Stift::Bewegen, x1, y1});
        s.schritte.push_back({Stift::Linie, x2, y1});
    }
    protokoll_.push_back({b, {}, fuellung, 1, s});
    auswertungen_ += s.auswertungen;
    kurve(c, b, term, "Y = " + term, kaNormal);
    const std::string name = b == '\xE1' ? "Untersumme = " : b == '\xED' ? "Obersumme = " : "Streifensumme = ";
    label(c, curveCounter_ + 1, name + zahlText(1, 4, summe), platform::clBlack);
}

void Graphzeichner::folge(Canvas& c, char b)
{
    const std::string term = arg();
    const int k0 = static_cast<int>(zahl()), k1 = static_cast<int>(zahl());
    const std::string grenzText = arg();
    const double eps = zahl();
    const Funktion f = termFunktion(term, false);
    if (eps > 0 && !grenzText.empty()) {
        const double g = t_.feldwert(grenzText);
        const int y1 = a_.pixelY(g + eps), y2 = a_.pixelY(g - eps);
        c.setBrushColor(platform::rgb(200, 240, 200));
        c.fillRect(0, y1, a_.plotWidth, y2 + 1);
        c.setPenColor(platform::rgb(0, 140, 0));
        c.setPenStyle(platform::PenStyle::Dash);
        c.moveTo(0, a_.pixelY(g));
        c.lineTo(a_.plotWidth, a_.pixelY(g));
        c.setPenStyle(platform::PenStyle::Solid);
        c.setFontColor(platform::rgb(0, 120, 0));
        c.setBrushStyle(platform::BrushStyle::Clear);
        c.textOut(a_.plotWidth - c.textWidth("Umgebung") - 10, y1 - c.textHeight("U") - 2, "Umgebung");
    }
    Kurvenspur s;
    ++curveCounter_;
    const TColor farbe = kurvenfarbe(curveCounter_, z_.opt.farbig);
    bool erster = true;
    for (int k = k0; k <= k1 && k - k0 < 100000; ++k) {
        int e = 0;
        const double v = f(k, e);
        ++s.auswertungen;
        if (e == tfDefinition || e == tfSyntax) {
            erster = true;
            continue;
        }
        const int px = a_.pixelX(k), py = a_.pixelY(v);
        s.schritte.push_back({b == 'c' && !erster ? Stift::Linie : Stift::Bewegen, px, py});
        erster = false;
        c.setPenColor(farbe);
        c.moveTo(px - 3, py - 3);
        c.lineTo(px + 4, py + 4);
        c.moveTo(px - 3, py + 3);
        c.lineTo(px + 4, py - 4);
    }
    spurZeichnen(c, s, farbe, stiftbreite(z_.opt.breite));
    auswertungen_ += s.auswertungen;
    label(c, curveCounter_, "Folge " + term, farbe);
    protokoll_.push_back({b, "Folge " + term, farbe, 1, s});
}

void Graphzeichner::balken(Canvas& c)
{
    const int n = std::clamp(static_cast<int>(zahl()), 0, 10000);
    Kurvenspur s;
    for (int k = 1; k <= n; ++k) {
        const double v = zahl();
        const int x1 = a_.pixelX(k - 0.4), x2 = a_.pixelX(k + 0.4);
        const int y0 = a_.pixelY(0), y1 = a_.pixelY(v);
        c.setPenColor(platform::clBlack);
        c.setBrushColor(platform::rgb(120, 160, 230));
        c.rectangle(x1, std::min(y0, y1), x2 + 1, std::max(y0, y1) + 1);
        s.schritte.push_back({Stift::Bewegen, x1, y1});
        s.schritte.push_back({Stift::Linie, x2, y1});
    }
    protokoll_.push_back({'R', {}, platform::rgb(120, 160, 230), 1, s});
}

void Graphzeichner::dgl(Canvas& c)
{
    const std::string text = arg();
    zahlen_.anAnfang();
    Kurvenspur s;
    bool gehoben = true;
    while (zahlen_.hatNoch()) {
        if (zahlen_.naechste() == "...") {
            zahlen_.readText();
            break;
        }
        const double x = zahlen_.readReal();
        if (!zahlen_.hatNoch())
            break;
        const double y = zahlen_.readReal();
        const double px = a_.pixelXgenau(x), py = a_.pixelYgenau(y);
        if (!(std::fabs(px) < 100000 && std::fabs(py) < 100000)) {
            gehoben = true;
            continue;
        }
        s.schritte.push_back({gehoben ? Stift::Bewegen : Stift::Linie, pixelRunden(px), pixelRunden(py)});
        gehoben = false;
    }
    kurveAusSpur(c, 'd', s, "Differenzialgleichung " + text);
}

void Graphzeichner::tabelle(Canvas& c)
{
    const std::string titel = arg();
    const double xf = zahl(), yf = zahl();
    const std::vector<double> nullstellen = zahlenliste();
    c.setFontName("Verdana");
    c.setFontSize(z_.opt.schrift);
    c.setFontColor(platform::clBlack);
    c.setBrushStyle(platform::BrushStyle::Clear);
    const int h = c.textHeight("Xg") + 2;
    std::vector<std::string> zeilen = {titel, "X-Faktor " + zahlText(1, 4, xf), "Y-Faktor " + zahlText(1, 4, yf)};
    if (!nullstellen.empty()) {
        zeilen.push_back("Nullstellen");
        for (double x : nullstellen)
            zeilen.push_back("  x = " + zahlText(1, 4, x));
    }
    int breite = 0;
    for (const auto& z : zeilen)
        breite = std::max(breite, c.textWidth(z));
    const int x0 = a_.plotWidth - breite - 20, y0 = 10;
    c.setPenColor(platform::clGray);
    c.setBrushColor(platform::rgb(255, 255, 235));
    c.rectangle(x0 - 6, y0 - 4, x0 + breite + 6, y0 + h * static_cast<int>(zeilen.size()) + 4);
    c.setBrushStyle(platform::BrushStyle::Clear);
    for (size_t i = 0; i < zeilen.size(); ++i) {
        c.textOut(x0, y0 + h * static_cast<int>(i), zeilen[i]);
        beschriftungen_.push_back({0, zeilen[i], x0, y0 + h * static_cast<int>(i), c.textWidth(zeilen[i]), h});
    }
    for (double x : nullstellen)
        marke(c, 'x', x, 0, platform::clRed, 4);
}

void Graphzeichner::hebbar(Canvas& c, const std::string& term)
{
    kurve(c, 's', term, "Y = " + term, kaNormal);
    const std::vector<double> stellen = zahlenliste();
    const Funktion f = termFunktion(term);
    const TColor farbe = kurvenfarbe(curveCounter_, z_.opt.farbig);
    for (size_t i = 0; i < stellen.size(); ++i) {
        const double x = stellen[i], h = 1e-6 * std::max(1.0, std::fabs(x));
        int e1 = 0, e2 = 0;
        const double y = (f(x - h, e1) + f(x + h, e2)) / 2;
        marke(c, 's', x, y, farbe, 4, false);
        if (i == 0) {
            c.setFontColor(farbe);
            c.setBrushStyle(platform::BrushStyle::Clear);
            c.textOut(a_.pixelX(x) + 8, a_.pixelY(y) + 6, "Hebbare Unstetigkeitsstelle");
        }
    }
}

void Graphzeichner::markenBefehl(Canvas& c, char b)
{
    if (b == '\xFC') {  // ü: x, y, colour
        const double x = zahl(), y = zahl();
        marke(c, b, x, y, farbwort(arg()), 5);
        return;
    }
    if (b == 'm') {
        const std::vector<std::string> terme = textliste();
        for (size_t i = 0; i + 1 < terme.size(); i += 2)
            marke(c, b, t_.feldwert(terme[i]), t_.feldwert(terme[i + 1]), platform::clRed, 4);
        return;
    }
    const TColor farbe = farbwort(arg());
    const std::vector<double> liste = zahlenliste();
    if (b == 'e') {
        std::vector<QPoint> punkte;
        Kurvenspur s;
        for (size_t i = 0; i + 1 < liste.size(); i += 2) {
            punkte.emplace_back(a_.pixelX(liste[i]), a_.pixelY(liste[i + 1]));
            s.schritte.push_back({i == 0 ? Stift::Bewegen : Stift::Linie, punkte.back().x(), punkte.back().y()});
        }
        if (!punkte.empty())
            s.schritte.push_back({Stift::Linie, punkte.front().x(), punkte.front().y()});
        c.setPenColor(farbe);
        c.setPenWidth(2);
        c.setBrushStyle(platform::BrushStyle::Clear);
        c.polygon(punkte);
        c.setPenWidth(1);
        protokoll_.push_back({b, {}, farbe, 2, s});
        return;
    }
    if (b == 'w') {
        for (size_t i = 0; i + 1 < liste.size(); i += 2) {
            marke(c, b, liste[i], liste[i + 1], farbe, 4);
            c.setFontColor(farbe);
            c.setBrushStyle(platform::BrushStyle::Clear);
            c.textOut(a_.pixelX(liste[i]) + 7, a_.pixelY(liste[i + 1]) - 18,
                      "(" + zahlText(1, 2, liste[i]) + " | " + zahlText(1, 2, liste[i + 1]) + ")");
        }
        return;
    }
    // @: on the term of slot F1; M, N: on the curve drawn last
    const std::string term = b == '@' ? t_.funktion(1) : letzterTerm_;
    const Funktion f = termFunktion(term);
    int nr = 0;
    for (double x : liste) {
        int e = 0;
        const double y = f(x, e);
        ++auswertungen_;
        if (e == tfDefinition || e == tfSyntax)
            continue;
        marke(c, b, x, y, farbe, b == '@' ? 5 : 4);
        if (b == 'N') {
            c.setFontColor(farbe);
            c.setBrushStyle(platform::BrushStyle::Clear);
            c.textOut(a_.pixelX(x) + 6, a_.pixelY(y) + 4, std::to_string(++nr));
        }
    }
}

}  // namespace graphs
