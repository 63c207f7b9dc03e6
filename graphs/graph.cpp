#include "graphs/graph.h"

#include "lexicon/einstellungen.h"
#include "platform/codepage.h"

#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QFileDialog>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QMessageBox>
#include <QMouseEvent>
#include <QPainter>
#include <QPrintDialog>
#include <QPrinter>
#include <QPushButton>
#include <QSpinBox>
#include <QSvgGenerator>
#include <QTimer>
#include <QVBoxLayout>
#include <QWheelEvent>

#include <cmath>

namespace graphs {

namespace {

enum Box {
    bAchsen, bRahmen, bRaster, bMm, bWinkel, bBogen, bQuadranten, bTerme, bNummern, bAuto, bFarbig,
    bPunkt, bDicht, bLogX, bLogY, bDefinition, bFrei, bAnzahl
};

// Field slots in E_: the field En sits at E_[n].
constexpr int eLow = 3, eHigh = 4, eXmin = 6, eXmax = 7, eYmin = 8, eYmax = 9, eXE = 10, eYE = 11, eP = 12,
              eQ = 13, eSchritt = 14, eScharVon = 15, eScharBis = 16, eScharSchritt = 17;

QString q(const std::string& cp1252) { return platform::fromCp1252(cp1252); }
std::string cp(const QString& s) { return platform::toCp1252(s); }

std::string gross(const QString& s) { return cp(s.toUpper()); }

}  // namespace

// The paint box PB1: shows the off-screen picture and hands the mouse to the window.
class Zeichenflaeche : public QWidget {
public:
    explicit Zeichenflaeche(TFGraph* w) : QWidget(w), w_(w)
    {
        setObjectName("PB1");
        setMouseTracking(true);
        setMinimumSize(200, 150);
    }

protected:
    void paintEvent(QPaintEvent*) override
    {
        QPainter p(this);
        p.drawImage(0, 0, w_->bild().image());
    }
    void resizeEvent(QResizeEvent*) override { w_->Darstellung(); }
    void mousePressEvent(QMouseEvent* e) override { w_->PB1MD(e->position().toPoint().x(), e->position().toPoint().y()); }
    void mouseMoveEvent(QMouseEvent* e) override
    {
        w_->PB1MM(e->position().toPoint().x(), e->position().toPoint().y(), e->buttons() & Qt::LeftButton);
    }
    void mouseReleaseEvent(QMouseEvent* e) override
    {
        w_->PB1MU(e->position().toPoint().x(), e->position().toPoint().y());
    }
    void wheelEvent(QWheelEvent* e) override
    {
        const int stufen = e->angleDelta().y() / 120;
        if (stufen != 0)
            w_->PB1Rad(stufen);
    }

private:
    TFGraph* w_;
};

TFGraph::TFGraph(QWidget* parent, int, int)
    : QDialog(parent), z_(plotZustand()), zeichner_(z_, graphScript(), graphNumbers(), termAuswerter())
{
    FormCreate();
}

TFGraph::~TFGraph() = default;

QLineEdit* TFGraph::feld(const char* name, const QString& text, int breite)
{
    auto* e = new QLineEdit(text, this);
    e->setObjectName(name);
    e->setFixedWidth(breite);
    connect(e, &QLineEdit::returnPressed, this, &TFGraph::D1C);
    return e;
}

void TFGraph::FormCreate()
{
    setWindowTitle(QString::fromUtf8("Grafische Darstellung"));
    resize(1008, 710);
    meldung = [this](int) { QMessageBox::information(this, "Quorix", "Allgemeiner Fehler"); };

    auto* haupt = new QHBoxLayout(this);
    haupt->setContentsMargins(4, 4, 4, 4);
    auto* links = new QVBoxLayout;
    auto* menue = new QMenuBar(this);
    QMenu* ansicht = menue->addMenu("Ansicht");
    ansicht->addAction(QString::fromUtf8("Darstellungsintervall verkleinern"), this, [this] { zoomen(true, 0.1); });
    ansicht->addAction(QString::fromUtf8("Darstellungsintervall vergrößern"), this, [this] { zoomen(false, 0.1); });
    ansicht->addAction("Grundeinstellung", this, &TFGraph::S13C);
    ansicht->addAction(QString::fromUtf8("y-Auflösung anpassen"), this, &TFGraph::S31C);
    QMenu* datei = menue->addMenu("Datei");
    datei->addAction("Speichern", this, &TFGraph::speichern);
    datei->addAction("Kopieren", this, &TFGraph::kopieren);
    datei->addAction("Drucken", this, &TFGraph::drucken);
    haupt->setMenuBar(menue);
    PB1_ = new Zeichenflaeche(this);
    PB1_->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    links->addWidget(PB1_, 1);
    status_ = new QLabel(" ", this);
    status_->setObjectName("status");
    links->addWidget(status_);
    haupt->addLayout(links, 1);

    auto* rechts = new QVBoxLayout;
    rechts->setSpacing(3);
    auto* g = new QGridLayout;
    g->setSpacing(3);
    int zeile = 0;
    g->addWidget(new QLabel("Y =", this), zeile, 0);
    E1_ = feld("E1", QString(), 170);
    g->addWidget(E1_, zeile++, 1, 1, 3);
    g->addWidget(new QLabel("X(t) =", this), zeile, 0);
    EX_ = feld("EX", QString(), 170);
    g->addWidget(EX_, zeile++, 1, 1, 3);
    g->addWidget(new QLabel("Y(t) =", this), zeile, 0);
    EY_ = feld("EY", QString(), 170);
    g->addWidget(EY_, zeile++, 1, 1, 3);
    auto paar = [&](const char* l1, int i1, const char* l2, int i2) {
        g->addWidget(new QLabel(QString::fromUtf8(l1), this), zeile, 0);
        E_[i1] = feld(("E" + std::to_string(i1)).c_str(), QString(), 60);
        g->addWidget(E_[i1], zeile, 1);
        g->addWidget(new QLabel(QString::fromUtf8(l2), this), zeile, 2);
        E_[i2] = feld(("E" + std::to_string(i2)).c_str(), QString(), 60);
        g->addWidget(E_[i2], zeile++, 3);
    };
    paar("xmin", eXmin, "xmax", eXmax);
    paar("ymin", eYmin, "ymax", eYmax);
    paar("x-Einh.", eXE, "y-Einh.", eYE);
    paar("P", eP, "Q", eQ);
    g->addWidget(new QLabel("Schritt", this), zeile, 0);
    E_[eSchritt] = feld("E14", QString(), 60);
    g->addWidget(E_[eSchritt], zeile, 1);
    g->addWidget(new QLabel("Scharschr.", this), zeile, 2);
    E_[eScharSchritt] = feld("E17", QString(), 60);
    g->addWidget(E_[eScharSchritt], zeile++, 3);
    paar("Schar von", eScharVon, "bis", eScharBis);
    g->addWidget(new QLabel("Def. von", this), zeile, 0);
    E_[eLow] = feld("E3", QString(), 60);
    g->addWidget(E_[eLow], zeile, 1);
    g->addWidget(new QLabel("bis", this), zeile, 2);
    E_[eHigh] = feld("E4", QString(), 60);
    g->addWidget(E_[eHigh], zeile++, 3);
    rechts->addLayout(g);

    auto knopf = [&](const char* name, const char* text, auto slot) {
        auto* b = new QPushButton(QString::fromUtf8(text), this);
        b->setObjectName(name);
        b->setAutoDefault(false);
        connect(b, &QPushButton::clicked, this, slot);
        return b;
    };
    auto* D1 = knopf("D1", "Zeichnen", [this] { D1C(); });
    D1->setDefault(false);
    rechts->addWidget(D1);
    auto* pfeile = new QGridLayout;
    pfeile->setSpacing(2);
    pfeile->addWidget(knopf("S5", "\xE2\x86\x90", [this] { verschieben(-1, 0); }), 1, 0);
    pfeile->addWidget(knopf("S4", "\xE2\x86\x92", [this] { verschieben(1, 0); }), 1, 2);
    pfeile->addWidget(knopf("S6", "\xE2\x86\x91", [this] { verschieben(0, 1); }), 0, 1);
    pfeile->addWidget(knopf("S7", "\xE2\x86\x93", [this] { verschieben(0, -1); }), 2, 1);
    pfeile->addWidget(knopf("S8", "+", [this] { zoomen(true, 0.1); }), 0, 3);
    pfeile->addWidget(knopf("S9", "\xE2\x88\x92", [this] { zoomen(false, 0.1); }), 2, 3);
    rechts->addLayout(pfeile);
    auto* grund = new QHBoxLayout;
    grund->addWidget(knopf("S13", "Grundeinstellung", [this] { S13C(); }));
    grund->addWidget(knopf("S31", "y-Aufl\xC3\xB6sung anpassen", [this] { S31C(); }));
    rechts->addLayout(grund);

    static const char* boxNamen[bAnzahl][2] = {
        {"CAchsen", "Achsen"}, {"CRahmen", "Koordinatenrahmen"}, {"CRaster", "Raster"}, {"CMm", "mm"},
        {"CWinkel", "Winkel"}, {"CBogen", "Bogenma\xC3\x9F"}, {"CQuadranten", "farbige Quadranten"},
        {"C9", "Terme"}, {"C13", "Nummern"}, {"CB2", "automat.Einheiten"}, {"CFarbig", "farbige Funktionen"},
        {"CPunkt", "Punktmodus"}, {"CDicht", "dichte Darstellung"}, {"CLogX", "log. x-Achse"},
        {"CLogY", "log. y-Achse"}, {"CDef", "Definitionsbereich"},
        {"S19", "Freie Parameter\xC3\xA4nderung durch Mausbewegung"}};
    auto* boxen = new QGridLayout;
    boxen->setSpacing(1);
    for (int i = 0; i < bAnzahl; ++i) {
        C_[i] = new QCheckBox(QString::fromUtf8(boxNamen[i][1]), this);
        C_[i]->setObjectName(boxNamen[i][0]);
        if (i == bFrei)
            boxen->addWidget(C_[i], (i + 1) / 2 + 1, 0, 1, 2);
        else
            boxen->addWidget(C_[i], i / 2, i % 2);
        connect(C_[i], &QCheckBox::toggled, this, [this, i](bool an) {
            if (i == bFrei)
                freiAn_ = an;
            Darstellung();
        });
    }
    C_[bFrei]->setText(QString::fromUtf8("Freie Parameteränderung\ndurch Mausbewegung"));
    rechts->addLayout(boxen);
    auto* breite = new QHBoxLayout;
    breite->addWidget(new QLabel("Breite", this));
    TB4_ = new QSpinBox(this);
    TB4_->setObjectName("TB4");
    TB4_->setRange(-1, 12);
    TB4_->setValue(1);
    connect(TB4_, &QSpinBox::valueChanged, this, [this] { Darstellung(); });
    breite->addWidget(TB4_);
    P16_ = new QLabel(" p=", this);
    P16_->setObjectName("P16");
    breite->addWidget(P16_, 1);
    rechts->addLayout(breite);

    auto* anim = new QHBoxLayout;
    B1_ = knopf("B1", "Animation", [this] { animationUmschalten(); });
    B1_->setToolTip("Animationsstart und -stopp");
    anim->addWidget(B1_);
    auto* vor = knopf("BVor", "\xE2\x96\xB6", [this] { z_.animationSign = 1; });
    vor->setToolTip(QString::fromUtf8("Animation vorwärts"));
    auto* rueck = knopf("BRueck", "\xE2\x97\x80", [this] { z_.animationSign = -1; });
    rueck->setToolTip(QString::fromUtf8("Animation rückwärts"));
    auto* plus = knopf("BPlus", "P+", [this] { parameterAendern(z_.animationStep); });
    plus->setToolTip(QString::fromUtf8("Parameter P erhöhen"));
    auto* minus = knopf("BMinus", "P\xE2\x88\x92", [this] { parameterAendern(-z_.animationStep); });
    minus->setToolTip(QString::fromUtf8("Parameter P verringern"));
    for (QPushButton* b : {rueck, vor, minus, plus}) {
        b->setFixedWidth(34);
        anim->addWidget(b);
    }
    rechts->addLayout(anim);
    auto* ablage = new QHBoxLayout;
    ablage->addWidget(knopf("BSpeichern", "Speichern", [this] { speichern(); }));
    ablage->addWidget(knopf("BKopieren", "Kopieren", [this] { kopieren(); }));
    ablage->addWidget(knopf("BDrucken", "Drucken", [this] { drucken(); }));
    ablage->addWidget(knopf("BEnde", "Beenden", [this] { close(); }));
    rechts->addLayout(ablage);
    rechts->addStretch(1);
    haupt->addLayout(rechts);

    Timer1_ = new QTimer(this);
    Timer1_->setInterval(50);
    connect(Timer1_, &QTimer::timeout, this, &TFGraph::animationsschritt);

    // option boxes from the settings
    const lexicon::Einstellungen& s = lexicon::einstellungen;
    z_.opt.raster = s.raster;
    z_.opt.achsenbreit = s.achsenbreit;
    z_.opt.schrift = s.grafikSchrift > 0 ? s.grafikSchrift : 10;
    setzeDezimalkomma(s.komma);
    felderSchreiben();
    termfeldAusSkript();
}

void TFGraph::felderSchreiben()
{
    auto setze = [](QLineEdit* e, double v, int stellen = 4) { e->setText(q(zahlText(1, stellen, v))); };
    setze(E_[eXmin], z_.bereich.xmin);
    setze(E_[eXmax], z_.bereich.xmax);
    setze(E_[eYmin], z_.bereich.ymin);
    setze(E_[eYmax], z_.bereich.ymax);
    setze(E_[eXE], z_.xE);
    setze(E_[eYE], z_.yE);
    setze(E_[eP], termAuswerter().parameterP(), 3);
    setze(E_[eQ], termAuswerter().parameterQ(), 3);
    setze(E_[eSchritt], z_.animationStep);
    setze(E_[eScharVon], z_.familieVon);
    setze(E_[eScharBis], z_.familieBis);
    setze(E_[eScharSchritt], z_.familieSchritt);
    setze(E_[eLow], z_.feldDomainLow);
    setze(E_[eHigh], z_.feldDomainHigh);
    EX_->setText(q(z_.feldX));
    EY_->setText(q(z_.feldY));
    const PlotOptionen& o = z_.opt;
    const bool werte[bAnzahl] = {o.achsen, o.rahmen, o.raster, o.mm, o.winkel, o.bogenmass, o.quadranten,
                                 o.terme, o.nummern, o.autoEinheiten, o.farbig, o.punktmodus, o.dicht,
                                 (o.logAchsen & 1) != 0, (o.logAchsen & 2) != 0, o.definitionsbereich, freiAn_};
    for (int i = 0; i < bAnzahl; ++i) {
        const QSignalBlocker sperre(C_[i]);
        C_[i]->setChecked(werte[i]);
    }
    const QSignalBlocker sperre(TB4_);
    TB4_->setValue(o.breite);
}

void TFGraph::optionenLesen()
{
    PlotOptionen& o = z_.opt;
    o.achsen = C_[bAchsen]->isChecked();
    o.rahmen = C_[bRahmen]->isChecked();
    o.raster = C_[bRaster]->isChecked();
    o.mm = C_[bMm]->isChecked();
    o.winkel = C_[bWinkel]->isChecked();
    o.bogenmass = C_[bBogen]->isChecked();
    o.quadranten = C_[bQuadranten]->isChecked();
    o.terme = C_[bTerme]->isChecked();
    o.nummern = C_[bNummern]->isChecked();
    o.autoEinheiten = C_[bAuto]->isChecked();
    o.farbig = C_[bFarbig]->isChecked();
    o.punktmodus = C_[bPunkt]->isChecked();
    o.dicht = C_[bDicht]->isChecked();
    o.logAchsen = (C_[bLogX]->isChecked() ? 1 : 0) | (C_[bLogY]->isChecked() ? 2 : 0);
    o.definitionsbereich = C_[bDefinition]->isChecked();
    o.breite = TB4_->value();
    z_.feldX = gross(EX_->text());
    z_.feldY = gross(EY_->text());
}

void TFGraph::termfeldAusSkript()
{
    std::string t;
    const auto& zeilen = graphScript().zeilen;
    for (size_t i = 0; i + 1 < zeilen.size(); ++i)
        if (zeilen[i] == "#F") {
            if (!t.empty())
                t += ";";
            t += zeilen[i + 1];
        }
    termfeldStand_ = t;
    E1_->setText(q(t));
}

void TFGraph::skriptAusTermfeld()
{
    const std::string neu = gross(E1_->text());
    if (neu == termfeldStand_)
        return;
    // the user's functions replace the script's plain functions; other commands stay
    Skriptliste& s = graphScript();
    std::vector<std::string> rest;
    for (size_t i = 0; i < s.zeilen.size(); ++i) {
        if (s.zeilen[i] == "#F") {
            ++i;
            continue;
        }
        rest.push_back(s.zeilen[i]);
    }
    s.leeren();
    size_t start = 0;
    while (start <= neu.size()) {
        const size_t semi = neu.find(';', start);
        const std::string term = neu.substr(start, semi == std::string::npos ? std::string::npos : semi - start);
        if (term.find_first_not_of(' ') != std::string::npos)
            s.addFunktion(term);
        if (semi == std::string::npos)
            break;
        start = semi + 1;
    }
    for (const std::string& z : rest)
        s.addText(z);
    termfeldStand_ = neu;
}

void TFGraph::Darstellung()
{
    if (!PB1_)
        return;
    optionenLesen();
    const QSize g = PB1_->size();
    if (bild_.width() != g.width() || bild_.height() != g.height())
        bild_.setSize(std::max(1, g.width()), std::max(1, g.height()));
    zeichner_.darstellung(bild_);
    P16_->setText(q(" p=" + zahlText(1, 2, termAuswerter().parameterP())));
    if (z_.opt.autoEinheiten) {
        E_[eXE]->setText(q(zahlText(1, 4, zeichner_.xEinheit())));
        E_[eYE]->setText(q(zahlText(1, 4, zeichner_.yEinheit())));
    }
    PB1_->update();
}

void TFGraph::D1C()
{
    TermAuswerter& t = termAuswerter();
    Bereich b;
    b.xmin = t.feldwert(cp(E_[eXmin]->text()));
    b.xmax = t.feldwert(cp(E_[eXmax]->text()));
    b.ymin = t.feldwert(cp(E_[eYmin]->text()));
    b.ymax = t.feldwert(cp(E_[eYmax]->text()));
    z_.bereich = bereichKorrigieren(b);
    if (!C_[bAuto]->isChecked()) {
        z_.xE = einheitKorrigieren(t.feldwert(cp(E_[eXE]->text())));
        z_.yE = einheitKorrigieren(t.feldwert(cp(E_[eYE]->text())));
    }
    z_.feldDomainLow = t.feldwert(cp(E_[eLow]->text()));
    z_.feldDomainHigh = t.feldwert(cp(E_[eHigh]->text()));
    if (z_.feldDomainHigh <= z_.feldDomainLow) {
        z_.feldDomainLow = -1000;
        z_.feldDomainHigh = 1000;
    }
    t.setzeParameter(t.feldwert(cp(E_[eP]->text())), t.feldwert(cp(E_[eQ]->text())));
    const double schritt = t.feldwert(cp(E_[eSchritt]->text()));
    z_.animationStep = schritt != 0 ? schritt : 0.1;
    z_.familieVon = t.feldwert(cp(E_[eScharVon]->text()));
    z_.familieBis = t.feldwert(cp(E_[eScharBis]->text()));
    z_.familieSchritt = t.feldwert(cp(E_[eScharSchritt]->text()));
    if (!(z_.familieSchritt > 0))
        z_.familieSchritt = 0.5;  // the family step of a script is 0.5 when not positive
    skriptAusTermfeld();
    felderSchreiben();
    Darstellung();
}

void TFGraph::verschieben(int dx, int dy)
{
    z_.bereich = graphs::verschieben(z_.bereich, dx, dy);
    felderSchreiben();
    Darstellung();
}

void TFGraph::zoomen(bool hinein, double anteil)
{
    const bool ok = hinein ? verkleinern(z_.bereich, anteil) : vergroessern(z_.bereich, anteil);
    if (!ok) {
        if (hinein && anteil >= 0.1 && meldung)
            meldung(36);
        return;
    }
    felderSchreiben();
    Darstellung();
}

void TFGraph::S13C()
{
    const int w = PB1_->width() + 1, h = PB1_->height() + 1;
    z_.bereich = grundeinstellung(w, h, lexicon::einstellungen.maxfenster);
    felderSchreiben();
    Darstellung();
}

void TFGraph::S31C()
{
    z_.bereich = yAufloesungAnpassen(z_.bereich, PB1_->width() + 1, PB1_->height() + 1);
    felderSchreiben();
    Darstellung();
}

bool TFGraph::animationLaeuft() const { return Timer1_->isActive(); }

void TFGraph::animationUmschalten()
{
    if (Timer1_->isActive()) {
        Timer1_->stop();
        B1_->setText("Animation");
    } else {
        Timer1_->start();
        B1_->setText("Stopp");
    }
}

void TFGraph::animationsschritt() { parameterAendern(z_.animationStep * z_.animationSign); }

void TFGraph::parameterAendern(double delta)
{
    TermAuswerter& t = termAuswerter();
    t.setzeParameter(t.parameterP() + delta, t.parameterQ());
    E_[eP]->setText(q(zahlText(1, 3, t.parameterP())));
    Darstellung();
}

QString TFGraph::statustext() const { return status_->text(); }

void TFGraph::PB1MD(int x, int y)
{
    mausX_ = x;
    mausY_ = y;
    gezogen_ = false;
    ziehLabel_ = zeichner_.labelAn(x, y);
    const Abbildung& a = zeichner_.abbildung();
    status_->setText(q(zahlText(1, 4, a.xVonPixel(x)) + " | " + zahlText(1, 4, a.yVonPixel(y))));
}

void TFGraph::PB1MM(int x, int y, bool gedrueckt)
{
    const Abbildung& a = zeichner_.abbildung();
    if (gedrueckt && ziehLabel_ > 0) {
        Punkt& p = z_.labels[static_cast<size_t>((ziehLabel_ - 1) % 30)];
        p.x += x - mausX_;
        p.y += y - mausY_;
        mausX_ = x;
        mausY_ = y;
        gezogen_ = true;
        Darstellung();
        return;
    }
    if (freiAn_) {
        termAuswerter().setzeParameter(a.xVonPixel(x), a.yVonPixel(y));
        E_[eP]->setText(q(zahlText(1, 3, termAuswerter().parameterP())));
        E_[eQ]->setText(q(zahlText(1, 3, termAuswerter().parameterQ())));
        Darstellung();
        return;
    }
    status_->setText(q(zahlText(1, 4, a.xVonPixel(x)) + " ; " + zahlText(1, 4, a.yVonPixel(y))));
}

void TFGraph::PB1MU(int, int)
{
    ziehLabel_ = 0;
}

void TFGraph::PB1Rad(int stufen)
{
    // wheel down zooms in, up zooms out, a hundredth at each end per step
    for (int i = 0; i < std::abs(stufen); ++i) {
        const bool ok = stufen < 0 ? verkleinern(z_.bereich, 0.01) : vergroessern(z_.bereich, 0.01);
        if (!ok)
            break;
    }
    felderSchreiben();
    Darstellung();
}

bool TFGraph::speichernAls(const QString& datei)
{
    const QString klein = datei.toLower();
    if (klein.endsWith(".svg")) {
        QSvgGenerator svg;
        svg.setFileName(datei);
        svg.setSize(QSize(bild_.width(), bild_.height()));
        svg.setViewBox(QRect(0, 0, bild_.width(), bild_.height()));
        svg.setTitle("Grafische Darstellung");
        platform::Canvas c(&svg);
        c.setBrushColor(platform::clWhite);
        c.fillRect(0, 0, bild_.width(), bild_.height());
        zeichner_.komplett(c);
        return true;
    }
    if (klein.endsWith(".jpg") || klein.endsWith(".jpeg"))
        return bild_.image().save(datei, "JPG", 100);
    if (klein.endsWith(".bmp"))
        return bild_.image().convertToFormat(QImage::Format_RGB888).save(datei, "BMP");
    return bild_.image().save(datei, "PNG");
}

void TFGraph::speichern()
{
    const QString datei = QFileDialog::getSaveFileName(
        this, "Abbildung speichern", QString(),
        "PNG-Abbildung (*.png);;Abbildung (*.bmp);;Abbildung (*.jpg);;Vektorgrafik (*.svg)");
    if (datei.isEmpty())
        return;
    if (!speichernAls(datei))
        QMessageBox::warning(this, "Quorix", "Die Abbildung konnte nicht gespeichert werden.");
}

void TFGraph::kopieren() { QApplication::clipboard()->setImage(bild_.image()); }

void TFGraph::drucken()
{
    QPrinter drucker(QPrinter::HighResolution);
    QPrintDialog dlg(&drucker, this);
    if (dlg.exec() != QDialog::Accepted)
        return;
    QPainter p(&drucker);
    const QRect seite = p.viewport();
    const double f = std::min(seite.width() / double(bild_.width()), seite.height() / double(bild_.height()));
    p.scale(f, f);
    platform::Canvas c(&p);
    zeichner_.komplett(c);
}

void TFGraph::FormShow()
{
    z_.labelsZuruecksetzen();
    const lexicon::Einstellungen& s = lexicon::einstellungen;
    z_.opt.raster = s.raster;
    z_.opt.achsenbreit = s.achsenbreit;
    felderSchreiben();
    termfeldAusSkript();
}

void TFGraph::showEvent(QShowEvent* e)
{
    QDialog::showEvent(e);
    FormShow();
    Darstellung();
}

void TFGraph::hideEvent(QHideEvent* e)
{
    // closing stops the animation
    Timer1_->stop();
    B1_->setText("Animation");
    QDialog::hideEvent(e);
}

void TFGraph::changeEvent(QEvent* e)
{
    if (e->type() == QEvent::ActivationChange && !isActiveWindow() && Timer1_->isActive()) {
        Timer1_->stop();
        B1_->setText("Animation");
    }
    QDialog::changeEvent(e);
}

void TFGraph::resizeEvent(QResizeEvent* e) { QDialog::resizeEvent(e); }

}  // namespace graphs
