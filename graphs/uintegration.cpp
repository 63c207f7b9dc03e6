#include "graphs/uintegration.h"

#include "graphs/analysis_plot.h"
#include "graphs/kernelbindung.h"
#include "graphs/uanalysis.h"
#include "kernel/realtostr.h"
#include "kernel/term.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMessageBox>
#include <QPainter>
#include <QPushButton>
#include <QStackedWidget>
#include <QTreeWidget>
#include <QVBoxLayout>

#include <algorithm>
#include <cctype>
#include <cmath>

namespace graphs {

namespace {

QString u(const std::string& s) { return QString::fromUtf8(s.c_str(), static_cast<int>(s.size())); }

std::string termText(const QString& s)
{
    std::string t = s.trimmed().toLatin1().toStdString();
    for (char& c : t)
        c = c == ',' ? '.' : static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
    return t;
}

const char* const kKoerper[] = {"vollständiger Körper", "Körper f(x)", "Körper g(x)",
                                "äußere Hülle",         "innere Hülle", "Differenzkörper"};

}  // namespace

class TIntegralBild : public QWidget {
public:
    explicit TIntegralBild(TFintegra* w) : QWidget(w), w_(w)
    {
        setObjectName("PB1");
        setMinimumSize(300, 250);
    }

protected:
    void paintEvent(QPaintEvent*) override
    {
        QPainter p(this);
        platform::Canvas c(&p);
        w_->zeichnen(c, width(), height());
    }

private:
    TFintegra* w_;
};

TFintegra::TFintegra(QWidget* parent, int wahlseite, int wahlpunkt) : QDialog(parent)
{
    (void)wahlpunkt;
    setWindowTitle("Quorix");
    resize(1008, 710);
    auto* haupt = new QHBoxLayout(this);
    auto* links = new QVBoxLayout;
    auto* titel = new QLabel("Integralrechnung");
    titel->setStyleSheet("font: bold 13pt 'Verdana'; color: navy;");
    links->addWidget(titel);
    links->addLayout(bildknoepfe(
        this, PB1_ = new TIntegralBild(this),
        [this](platform::Canvas& c, int w, int h) { zeichnen(c, w, h); }, [this] { return zeilen_; }));
    RG1_ = new QListWidget;
    RG1_->setObjectName("RG1");
    RG1_->addItem(QString::fromUtf8("Flächen und Volumen"));
    RG1_->addItem(QString::fromUtf8("Körper zeichnen"));
    RG1_->setFixedHeight(2 * 19 + 6);
    links->addWidget(RG1_);

    auto* g = new QGridLayout;
    auto feld = [&](const char* name, const char* label, const char* text, int zeile, int spalte, int breite) {
        g->addWidget(new QLabel(QString::fromUtf8(label)), zeile, spalte);
        auto* e = new QLineEdit(QString::fromUtf8(text));
        e->setObjectName(name);
        g->addWidget(e, zeile, spalte + 1, 1, breite);
        return e;
    };
    Ef_ = feld("Ef", "f(x) =", "X^2", 0, 0, 3);
    Eg_ = feld("Eg", "g(x) =", "X", 1, 0, 3);
    EF_ = feld("EF", "F(x) =", "X^3/3", 2, 0, 3);
    EG_ = feld("EG", "G(x) =", "X^2/2", 3, 0, 3);
    Ea_ = feld("Ea", "a =", "0", 4, 0, 1);
    Eb_ = feld("Eb", "b =", "2", 4, 2, 1);
    Ep_ = feld("Ep", "p =", "1", 5, 0, 1);
    Eq_ = feld("Eq", "q =", "1", 5, 2, 1);
    g->addWidget(new QLabel("Verfahren"), 6, 0);
    CBv_ = new QComboBox;
    CBv_->setObjectName("CBv");
    for (int i = 0; i < kVerfahrenAnzahl; ++i)
        CBv_->addItem(u(verfahrensname(static_cast<Integrationsverfahren>(i))));
    CBv_->setCurrentIndex(static_cast<int>(Integrationsverfahren::Simpson));
    g->addWidget(CBv_, 6, 1, 1, 3);
    En_ = feld("En", "n =", "200", 7, 0, 1);
    links->addLayout(g);
    auto* reihe = new QHBoxLayout;
    auto* B1 = new QPushButton("Berechnen");
    B1->setObjectName("B1");
    B1->setDefault(true);
    auto* S2 = new QPushButton("f, F in Bibliothek");
    S2->setObjectName("S2");
    reihe->addWidget(B1);
    reihe->addWidget(S2);
    links->addLayout(reihe);
    links->addWidget(new QLabel(QString::fromUtf8("Bibliothek f(x) ; F(x) (Klick: übernehmen)")));
    LB3_ = new QListWidget;
    LB3_->setObjectName("LB3");
    links->addWidget(LB3_, 1);
    auto* linkerTeil = new QWidget;
    linkerTeil->setLayout(links);
    linkerTeil->setFixedWidth(355);
    links->setContentsMargins(0, 0, 0, 0);
    haupt->addWidget(linkerTeil);

    auto* rechts = new QVBoxLayout;
    seiten_ = new QStackedWidget;
    {
        LB2_ = new QTreeWidget;
        LB2_->setObjectName("LB2");
        LB2_->setColumnCount(3);
        LB2_->setHeaderHidden(true);
        LB2_->setRootIsDecorated(false);
        LB2_->setAlternatingRowColors(true);
        seiten_->addWidget(LB2_);
        auto* k = new QWidget;
        auto* kl = new QHBoxLayout(k);
        kl->setContentsMargins(0, 0, 0, 0);
        CBk_ = new QComboBox;
        CBk_->setObjectName("CBk");
        for (const char* n : kKoerper)
            CBk_->addItem(QString::fromUtf8(n));
        CBfarbe_ = new QCheckBox("farbige Darstellung");
        CBfarbe_->setChecked(true);
        CBseiten_ = new QCheckBox(QString::fromUtf8("Seitenflächen"));
        CBseiten_->setChecked(true);
        kl->addWidget(CBk_);
        kl->addWidget(CBfarbe_);
        kl->addWidget(CBseiten_);
        kl->addStretch(1);
        seiten_->addWidget(k);
    }
    rechts->addWidget(seiten_, 1);
    rechts->addWidget(PB1_, 2);
    haupt->addLayout(rechts, 1);

    connect(B1, &QPushButton::clicked, this, [this] { berechnen(); });
    connect(S2, &QPushButton::clicked, this, [this] { S2C(); });
    connect(RG1_, &QListWidget::currentRowChanged, this, [this](int r) { RG1C(r); });
    connect(LB3_, &QListWidget::itemClicked, this, [this](QListWidgetItem* i) { S1C(LB3_->row(i)); });
    connect(CBk_, &QComboBox::currentIndexChanged, PB1_, [this] { PB1_->update(); });
    connect(CBfarbe_, &QCheckBox::toggled, PB1_, [this] { PB1_->update(); });
    connect(CBseiten_, &QCheckBox::toggled, PB1_, [this] { PB1_->update(); });

    bibliothek_ = bibliothekLaden("minte");
    for (const std::string& z : bibliothek_)
        LB3_->addItem(QString::fromLatin1(z.c_str()).replace(';', "   ;   "));
    RG1C(wahlseite >= 0 && wahlseite < kSeiten ? wahlseite : 0);
    berechnen();
}

void TFintegra::RG1C(int s)
{
    if (s < 0 || s >= kSeiten)
        return;
    seite_ = s;
    seiten_->setCurrentIndex(s);
    if (RG1_->currentRow() != s)
        RG1_->setCurrentRow(s);
    PB1_->update();
}

void TFintegra::setzeFelder(const QString& f, const QString& g, const QString& F, const QString& G, const QString& a,
                            const QString& b)
{
    Ef_->setText(f);
    Eg_->setText(g);
    EF_->setText(F);
    EG_->setText(G);
    Ea_->setText(a);
    Eb_->setText(b);
}

void TFintegra::setzeVerfahren(Integrationsverfahren v, int n)
{
    CBv_->setCurrentIndex(static_cast<int>(v));
    En_->setText(QString::number(n));
}

Integrationsvorgabe TFintegra::vorgabe(bool& ok)
{
    Integrationsvorgabe v;
    auto zahl = [](QLineEdit* e, double vorgabe) {
        const std::string t = termText(e->text());
        quorix::TermError = 0;
        const double x = t.empty() ? vorgabe : quorix::EvalTerm(t, 1);
        if (t.empty() || quorix::TermError != 0) {
            e->setText(QString::fromStdString(kernel::RealToStr(1, 6, vorgabe)));
            return vorgabe;
        }
        return x;
    };
    v.f = termText(Ef_->text());
    v.g = termText(Eg_->text());
    if (v.g.empty())
        v.g.push_back('0');  // no second function: the x axis
    v.F = termText(EF_->text());
    v.G = termText(EG_->text());
    v.p = zahl(Ep_, 1);
    v.q = zahl(Eq_, 1);
    quorix::TermParamP = v.p;
    quorix::TermParamQ = v.q;
    v.a = zahl(Ea_, 0);
    v.b = zahl(Eb_, 1);
    v.n = std::clamp(static_cast<int>(zahl(En_, 200)), 1, 1000000);
    v.verfahren = static_cast<Integrationsverfahren>(std::max(0, CBv_->currentIndex()));
    ok = !v.f.empty();
    return v;
}

void TFintegra::berechnen()
{
    bool ok = false;
    Integrationsvorgabe v = vorgabe(ok);
    const Integrationsergebnis r = integrationRechnen(v);
    zeilen_ = integrationszeilen(v, r);
    zeilenZeigen(LB2_, zeilen_);
    gerechnet_ = r.fehler.empty();
    if (!r.fehler.empty()) {
        meldungen_ << u(r.fehler);
        if (isVisible())
            QMessageBox::warning(this, "Quorix", u(r.fehler));
    }
    letzte_ = v;
    termAuswerter().setzeParameter(v.p, v.q);
    // the area between the curves, shaded, with the bounds and the intersections marked
    skript_.leeren();
    const bool streifen = v.g == "0" && v.n <= 200 &&
                          (v.verfahren == Integrationsverfahren::RechteckLinks ||
                           v.verfahren == Integrationsverfahren::RechteckRechts ||
                           v.verfahren == Integrationsverfahren::Mittelpunkt);
    if (gerechnet_ && streifen) {
        // the rectangles of the rule itself, with their sum
        skript_.addText("#I");
        skript_.addText(v.f);
        skript_.addReal(v.a);
        skript_.addReal(v.b);
        skript_.addInt(v.n);
        skript_.addInt(v.verfahren == Integrationsverfahren::RechteckLinks    ? 0
                       : v.verfahren == Integrationsverfahren::RechteckRechts ? 1
                                                                               : 2);
    } else if (gerechnet_) {
        skript_.addText("#V");
        skript_.addText(v.f);
        skript_.addText(v.g);
        skript_.addReal(v.a);
        skript_.addReal(v.b);
    }
    if (gerechnet_) {
        skript_.addText("#G");
        skript_.addReal(v.a);
        skript_.addText("#G");
        skript_.addReal(v.b);
        if (!r.teilpunkte.empty()) {
            skript_.addText("#w");
            skript_.addText("rot");
            for (double x : r.teilpunkte) {
                int e = 0;
                skript_.addReal(x);
                skript_.addReal(termfunktion(v.f)(x, e));
            }
            skript_.addText("...");
        }
    }
    PB1_->update();
}

void TFintegra::S1C(int zeile)
{
    if (zeile < 0 || zeile >= static_cast<int>(bibliothek_.size()))
        return;
    std::string f, F;
    if (!integralPaarLesen(bibliothek_[zeile], f, F))
        return;
    Ef_->setText(QString::fromLatin1(f.c_str()));
    EF_->setText(QString::fromLatin1(F.c_str()));
    Eg_->setText("0");
    EG_->setText("0");
    berechnen();
}

void TFintegra::S2C()
{
    const std::string f = termText(Ef_->text()), F = termText(EF_->text());
    if (f.empty() || F.empty() || !pruefeTerm(f, 1).empty() || !pruefeTerm(F, 3).empty())
        return;
    const std::string zeile = f + ";" + F;
    if (std::find(bibliothek_.begin(), bibliothek_.end(), zeile) != bibliothek_.end())
        return;
    bibliothek_.push_back(zeile);
    LB3_->addItem(QString::fromLatin1(zeile.c_str()).replace(';', "   ;   "));
    bibliothekSpeichern("minte", bibliothek_);  // the list is saved on change
}

QStringList TFintegra::zeilen() const
{
    QStringList r;
    for (const std::string& z : zeilen_)
        r << u(z);
    return r;
}

void TFintegra::zeichnen(platform::Canvas& c, int breite, int hoehe)
{
    if (seite_ == 1) {
        koerperZeichnen(c, breite, hoehe);
    } else {
        Bereich b = bildbereich(letzte_.f, letzte_.a, letzte_.b);
        const double rand = std::max(0.5, (letzte_.b - letzte_.a) * 0.15);
        b.xmin = std::min(letzte_.a, letzte_.b) - rand;
        b.xmax = std::max(letzte_.a, letzte_.b) + rand;
        const Bereich bg = bildbereich(letzte_.g, b.xmin, b.xmax);
        b.ymin = std::min(b.ymin, bg.ymin);
        b.ymax = std::max(b.ymax, bg.ymax);
        vorschauZeichnen(c, breite, hoehe, skript_, b);
    }
    c.setPenColor(platform::clSilver);
    c.setBrushStyle(platform::BrushStyle::Clear);
    c.frameRect(0, 0, breite, hoehe);
}

void TFintegra::koerperZeichnen(platform::Canvas& c, int breite, int hoehe)
{
    c.setBrushStyle(platform::BrushStyle::Solid);
    c.setBrushColor(platform::clWhite);
    c.fillRect(0, 0, breite, hoehe);
    if (!gerechnet_)
        return;
    const int art = std::max(0, CBk_->currentIndex());
    const Termfunktion f = termfunktion(letzte_.f), g = termfunktion(letzte_.g);
    double a = std::min(letzte_.a, letzte_.b), b = std::max(letzte_.a, letzte_.b);
    // radii of the two surfaces along the axis
    const int n = 60;
    std::vector<double> ra(n + 1), ri(n + 1);
    double rmax = 1e-9;
    for (int k = 0; k <= n; ++k) {
        const double x = a + (b - a) * k / n;
        int e1 = 0, e2 = 0;
        double rf = std::fabs(f(x, e1)), rg = std::fabs(g(x, e2));
        if (e1 != 0 && e1 != 3)
            rf = 0;
        if (e2 != 0 && e2 != 3)
            rg = 0;
        switch (art) {
        case 1: ra[k] = rf; ri[k] = 0; break;
        case 2: ra[k] = rg; ri[k] = 0; break;
        case 3: ra[k] = std::max(rf, rg); ri[k] = 0; break;
        case 4: ra[k] = std::min(rf, rg); ri[k] = 0; break;
        default: ra[k] = std::max(rf, rg); ri[k] = art == 5 ? std::min(rf, rg) : 0; break;
        }
        rmax = std::max(rmax, std::min(ra[k], 1e6));
    }
    const double sx = (breite - 80) / (b - a > 0 ? b - a : 1);
    const double sy = (hoehe / 2 - 40) / rmax;
    const int x0 = 40, ym = hoehe / 2;
    const bool farbig = CBfarbe_->isChecked();
    // discs from back to front; each as an ellipse seen slightly from the side
    for (int k = 0; k <= n; ++k) {
        const int px = x0 + static_cast<int>((b - a) * k / n * sx);
        const int r = static_cast<int>(std::min(ra[k], 1e6) * sy);
        const int rx = std::max(1, r / 4);
        const int t = 80 + 150 * k / n;
        c.setPenColor(farbig ? platform::rgb(40, 60, t) : platform::clGray);
        c.setBrushColor(farbig ? platform::rgb(t, std::min(255, t + 40), 255) : platform::rgb(t, t, t));
        c.setBrushStyle(CBseiten_->isChecked() ? platform::BrushStyle::Solid : platform::BrushStyle::Clear);
        c.ellipse(px - rx, ym - r, px + rx + 1, ym + r + 1);
        const int ri2 = static_cast<int>(std::min(ri[k], 1e6) * sy);
        if (ri2 > 0) {
            c.setBrushColor(platform::clWhite);
            c.ellipse(px - ri2 / 4, ym - ri2, px + ri2 / 4 + 1, ym + ri2 + 1);
        }
    }
    // the axis
    c.setPenColor(platform::clBlack);
    c.setPenStyle(platform::PenStyle::Dash);
    c.moveTo(10, ym);
    c.lineTo(breite - 10, ym);
    c.setPenStyle(platform::PenStyle::Solid);
    c.setFontName("Verdana");
    c.setFontSize(9);
    c.setFontColor(platform::clNavy);
    c.setBrushStyle(platform::BrushStyle::Clear);
    c.textOutW(10, 8, QString::fromUtf8(kKoerper[art]) + QString::fromUtf8(" – Rotation um die x-Achse von ") +
                          u(kernel::RealToStr(1, 4, a)) + " bis " + u(kernel::RealToStr(1, 4, b)));
}

}  // namespace graphs
