#include "graphs/uanalysis.h"

#include "graphs/graph.h"
#include "graphs/integration.h"
#include "graphs/kernelbindung.h"
#include "graphs/zeichnen.h"
#include "kernel/realtostr.h"
#include "kernel/term.h"
#include "kernel/termderiv.h"
#include "lexicon/globals.h"
#include "platform/container.h"
#include "platform/toolframe.h"

#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QCoreApplication>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QHeaderView>
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
#include <functional>

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

const char* const kSeitenNamen[TFAnalysis::kSeiten] = {"Funktionsdarstellung", "Wertetabelle", "Funktionsdiskussion",
                                                       "Integration", "Tangente und Normale"};

}  // namespace

// ---------------------------------------------------------------- shared helpers

platform::StringList bibliothekLaden(const std::string& name)
{
    platform::StringList l;
    if (!lexicon::datenpfad.empty() && platform::LoadCompressedList(l, lexicon::datenpfad + name + ".c00"))
        return l;
    // no user copy yet: the factory copy beside the program
    const std::string dir = QCoreApplication::applicationDirPath().toStdString();
    for (const std::string& c : {lexicon::lexikonpfad + "tinit.dll", dir + "/000/tinit.dll", dir + "/../000/tinit.dll"}) {
        try {
            l = platform::splitLines(platform::zlibInflate(platform::readResource(c, "10", name)));
            return l;
        } catch (const std::exception&) {
            // try the next place
        }
    }
    return {};
}

bool bibliothekSpeichern(const std::string& name, const platform::StringList& liste)
{
    if (lexicon::datenpfad.empty())
        return false;
    try {
        platform::SaveCompressedList(liste, lexicon::datenpfad + name + ".c00");
        return true;
    } catch (const std::exception&) {
        return false;
    }
}

void zeilenZeigen(QTreeWidget* liste, const std::vector<std::string>& zeilen)
{
    liste->clear();
    for (const std::string& z : zeilen) {
        auto* item = new QTreeWidgetItem(liste);
        const QStringList teile = u(z).split('\t');
        for (int i = 0; i < teile.size() && i < liste->columnCount(); ++i)
            item->setText(i, teile[i]);
        item->setToolTip(0, u(z).replace('\t', "  "));
    }
    for (int i = 0; i < liste->columnCount(); ++i)
        liste->resizeColumnToContents(i);
}

void vorschauZeichnen(platform::Canvas& c, int breite, int hoehe, Skriptliste& skript, const Bereich& b)
{
    PlotZustand z;
    z.bereich = b;
    z.opt.schrift = 8;
    Skriptliste zahlen;
    Graphzeichner g(z, skript, zahlen, termAuswerter());
    g.vorbereiten(breite, hoehe);
    c.setBrushStyle(platform::BrushStyle::Solid);
    c.setBrushColor(platform::clWhite);
    c.fillRect(0, 0, breite, hoehe);
    c.setFontName("Verdana");
    c.setFontSize(8);
    g.komplett(c);
}

QHBoxLayout* bildknoepfe(QWidget* owner, QWidget* bild, const platform::PaintRoutine& paint,
                         const std::function<std::vector<std::string>()>& liste)
{
    auto* reihe = new QHBoxLayout;
    const int arten[] = {2, 3, 4};
    for (int art : arten) {
        auto* b = new QPushButton;
        b->setObjectName(QString("TB%1").arg(art));
        platform::SetToolButton(b, art);
        b->setFixedSize(34, 30);
        QObject::connect(b, &QPushButton::clicked, owner, [=] {
            const int w = bild->width(), h = bild->height();
            if (art == 2)
                platform::PrintPicture(w, h, paint, owner);
            else if (art == 3)
                platform::CopyPicture(w, h, paint, owner);
            else
                platform::SavePicture(w, h, paint, owner);
        });
        reihe->addWidget(b);
    }
    auto* text = new QPushButton("Liste kopieren");
    text->setObjectName("TBliste");
    QObject::connect(text, &QPushButton::clicked, owner, [=] {
        QString t;
        for (const std::string& z : liste())
            t += QString::fromUtf8(z.c_str()) + "\n";
        QApplication::clipboard()->setText(t);
    });
    reihe->addWidget(text);
    reihe->addStretch(1);
    return reihe;
}

// ---------------------------------------------------------------- small plot

class TAnalyseBild : public QWidget {
public:
    explicit TAnalyseBild(TFAnalysis* w) : QWidget(w), w_(w)
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
    TFAnalysis* w_;
};

// ---------------------------------------------------------------- window

TFAnalysis::TFAnalysis(QWidget* parent, int wahlseite, int wahlpunkt) : QDialog(parent)
{
    (void)wahlpunkt;
    setWindowTitle("Quorix");
    resize(1008, 710);
    auto* haupt = new QHBoxLayout(this);

    // left: sub-programs, terms, parameters, library
    auto* links = new QVBoxLayout;
    titel_ = new QLabel(QString::fromUtf8("Funktionsuntersuchung"));
    titel_->setWordWrap(true);
    titel_->setStyleSheet("font: bold 13pt 'Verdana'; color: navy;");
    links->addWidget(titel_);
    links->addLayout(bildknoepfe(
        this, PB1_ = new TAnalyseBild(this),
        [this](platform::Canvas& c, int w, int h) { zeichnen(c, w, h); }, [this] { return zeilen_; }));
    links->addWidget(new QLabel("Teilprogramme"));
    RG1_ = new QListWidget;
    RG1_->setObjectName("RG1");
    for (const char* n : kSeitenNamen)
        RG1_->addItem(u(n));
    RG1_->setFixedHeight(5 * 19 + 6);
    links->addWidget(RG1_);
    auto* felder = new QGridLayout;
    for (int i = 0; i < 6; ++i) {
        cc_[i] = new QCheckBox(QString("Funktion %1: y =").arg(i + 1));
        cc_[i]->setObjectName(QString("cc%1").arg(i + 1));
        cc_[i]->setChecked(true);
        E_[i] = new QLineEdit;
        E_[i]->setObjectName(QString("E%1").arg(i + 1));
        felder->addWidget(cc_[i], i, 0);
        felder->addWidget(E_[i], i, 1, 1, 3);
    }
    auto feld = [&](const char* name, const char* text, int zeile, int spalte) {
        auto* e = new QLineEdit(text);
        e->setObjectName(name);
        e->setMaximumWidth(80);
        felder->addWidget(e, zeile, spalte);
        return e;
    };
    felder->addWidget(new QLabel("Parameter P"), 6, 0);
    EP_ = feld("EP", "1", 6, 1);
    felder->addWidget(new QLabel("Q"), 6, 2);
    EQ_ = feld("EQ", "3", 6, 3);
    felder->addWidget(new QLabel("Parameter R"), 7, 0);
    ER_ = feld("ER", "0,5", 7, 1);
    felder->addWidget(new QLabel("Intervall von"), 8, 0);
    Evon_ = feld("Evon", "-10", 8, 1);
    felder->addWidget(new QLabel("bis"), 8, 2);
    Ebis_ = feld("Ebis", "10", 8, 3);
    felder->addWidget(new QLabel("Schrittweite"), 9, 0);
    Eschritt_ = feld("Eschritt", "1", 9, 1);
    felder->addWidget(new QLabel("Stelle x"), 9, 2);
    Estelle_ = feld("Estelle", "1", 9, 3);
    links->addLayout(felder);
    links->addWidget(new QLabel("Funktionsbibliothek (Klick: Term übernehmen)"));
    LB3_ = new QListWidget;
    LB3_->setObjectName("LB3");
    links->addWidget(LB3_, 1);
    auto* linkerTeil = new QWidget;
    linkerTeil->setLayout(links);
    linkerTeil->setFixedWidth(355);
    links->setContentsMargins(0, 0, 0, 0);
    haupt->addWidget(linkerTeil);

    // right: the buttons of the page, the result list and the small plot
    auto* rechts = new QVBoxLayout;
    seiten_ = new QStackedWidget;
    auto knopf = [](const char* name, const char* text, std::function<void()> f, QWidget* eltern) {
        auto* b = new QPushButton(QString::fromUtf8(text), eltern);
        b->setObjectName(name);
        QObject::connect(b, &QPushButton::clicked, eltern, f);
        return b;
    };
    {
        auto* s = new QWidget;
        auto* g = new QGridLayout(s);
        g->setContentsMargins(0, 0, 0, 0);
        g->setVerticalSpacing(1);
        for (int i = 0; i < kPlotoptionen; ++i) {
            opt_[i] = new QCheckBox(u(kPlotoptionText[i]));
            opt_[i]->setObjectName(QString("CO%1").arg(i));
            g->addWidget(opt_[i], i % 6, i / 6);
        }
        opt_[19]->setChecked(true);
        g->addWidget(knopf("B1", "Zeichnen", [this] { B1C(); }, s), 6, 0);
        seiten_->addWidget(s);
    }
    auto seite = [&](std::vector<QPushButton*> knoepfe, const char* hinweis) {
        auto* s = new QWidget;
        auto* l = new QVBoxLayout(s);
        l->setContentsMargins(0, 0, 0, 0);
        auto* reihe = new QHBoxLayout;
        for (QPushButton* b : knoepfe) {
            b->setParent(s);
            reihe->addWidget(b);
        }
        reihe->addStretch(1);
        l->addLayout(reihe);
        auto* h = new QLabel(QString::fromUtf8(hinweis));
        h->setWordWrap(true);
        h->setStyleSheet("color: #404040;");
        l->addWidget(h);
        l->addStretch(1);
        seiten_->addWidget(s);
    };
    seite({knopf("S12", "Wertetabelle", [this] { S12C(); }, this)},
          "Werte von f1, ihrer 1. und 2. Ableitung und einer Stammfunktion im Intervall mit der Schrittweite.");
    seite({knopf("D7", "Funktionsdiskussion", [this] { D7C(); }, this),
           knopf("D8", "Schnittpunkte f1 und f2", [this] { D8C(); }, this)},
          "Nullstellen, Extrem- und Wendepunkte von f1 im Intervall (1000 Schritte), Symmetrie und Verhalten im "
          "Unendlichen.");
    seite({knopf("B3", "Integration", [this] { integrationC(); }, this)},
          "Integral von f1 über das Intervall mit allen Verfahren; n ist die Anzahl der Streifen (Feld Schrittweite "
          "als Anzahl).");
    seite({knopf("B4", "Tangente und Normale", [this] { B4C(); }, this),
           knopf("B5", "Tangenten von P(P|Q)", [this] { vonPunktC(false); }, this),
           knopf("B6", "Normalen von P(P|Q)", [this] { vonPunktC(true); }, this)},
          "Tangente und Normale an f1 an der Stelle x; Tangenten und Normalen vom Punkt (P|Q) an f1.");
    seiten_->setFixedHeight(150);
    rechts->addWidget(seiten_);
    LB2_ = new QTreeWidget;
    LB2_->setObjectName("LB2");
    LB2_->setColumnCount(5);
    LB2_->setHeaderHidden(true);
    LB2_->setRootIsDecorated(false);
    LB2_->setAlternatingRowColors(true);
    rechts->addWidget(LB2_, 1);
    rechts->addWidget(PB1_, 1);
    haupt->addLayout(rechts, 1);

    connect(RG1_, &QListWidget::currentRowChanged, this, [this](int r) { seiteWaehlen(r); });
    connect(LB3_, &QListWidget::itemClicked, this, [this](QListWidgetItem* i) { bibliothekKlick(LB3_->row(i)); });

    // FormCreate: the library and the antiderivative pairs
    bibliothek_ = bibliothekLaden("mbib");
    stammliste_ = bibliothekLaden("minte");
    for (size_t i = 0; i < bibliothek_.size(); ++i)
        LB3_->addItem(QString("[%1] ").arg(i + 1) + QString::fromLatin1(bibliothek_[i].c_str()));
    E_[0]->setText("X^3-3*X");
    E_[1]->setText("EXP(-X^2)");
    vorschauMitFunktion(nullptr);
    seiteWaehlen(wahlseite >= 0 && wahlseite < kSeiten ? wahlseite : 0);
}

void TFAnalysis::seiteWaehlen(int s)
{
    if (s < 0 || s >= kSeiten)
        return;
    seite_ = s;
    seiten_->setCurrentIndex(s);
    LB2_->setVisible(s != 0);  // the plot page has no list: the picture takes its place
    if (RG1_->currentRow() != s)
        RG1_->setCurrentRow(s);
    titel_->setText(QString::fromUtf8("Funktionsuntersuchung – ") + u(kSeitenNamen[s]));
}

void TFAnalysis::setzeTerm(int feld, const QString& t)
{
    if (feld >= 1 && feld <= 6)
        E_[feld - 1]->setText(t);
}

QString TFAnalysis::term(int feld) const { return feld >= 1 && feld <= 6 ? E_[feld - 1]->text() : QString(); }

double TFAnalysis::feldwert(QLineEdit* e, double vorgabe)
{
    const std::string t = termText(e->text());
    quorix::TermError = 0;
    const double v = t.empty() ? vorgabe : quorix::EvalTerm(t, 1);
    if (t.empty() || quorix::TermError != 0) {
        // a wrong number is replaced and written back
        e->setText(QString::fromStdString(kernel::RealToStr(1, 6, vorgabe)));
        return vorgabe;
    }
    return v;
}

void TFAnalysis::parameterLesen()
{
    p_ = feldwert(EP_, 1);
    q_ = feldwert(EQ_, 3);
    r_ = feldwert(ER_, 0.5);
    von_ = feldwert(Evon_, -10);
    bis_ = feldwert(Ebis_, 10);
    if (von_ == bis_) {
        bis_ = von_ + 10;
        Ebis_->setText(QString::number(bis_));
    }
    schritt_ = feldwert(Eschritt_, 1);
    stelle_ = feldwert(Estelle_, 1);
    quorix::TermParamP = p_;
    quorix::TermParamQ = q_;
    quorix::TermParamR = r_;
    termAuswerter().setzeParameter(p_, q_);
    // field 1 and its derivative can be called as F1 and F2 from the other fields
    const std::string f1 = termText(E_[0]->text());
    quorix::TermFunctionSlots[0] = f1;
    quorix::TermFunctionSlots[1] = f1.empty() ? std::string() : quorix::DerivativeTermNice(f1);
}

bool TFAnalysis::termHolen(int feld, std::string& t)
{
    t = termText(E_[feld - 1]->text());
    const std::string m = pruefeTerm(t, feld);
    if (m.empty())
        return true;
    meldungen_ << u(m);
    if (isVisible())
        QMessageBox::warning(this, "Quorix", u(m));
    return false;
}

void TFAnalysis::ergebnis(const std::vector<std::string>& z)
{
    zeilen_ = z;
    zeilenZeigen(LB2_, z);
}

QStringList TFAnalysis::zeilen() const
{
    QStringList r;
    for (const std::string& z : zeilen_)
        r << u(z);
    return r;
}

void TFAnalysis::vorschauMitFunktion(const Diskussion* d)
{
    std::array<std::string, 6> terme;
    for (int i = 0; i < 6; ++i)
        terme[i] = termText(E_[i]->text());
    Plotwahl w;
    for (int i = 0; i < 6; ++i)
        w.feld[i] = cc_[i]->isChecked();
    for (int i = 0; i < kPlotoptionen; ++i)
        w.option[i] = opt_[i]->isChecked();
    quorix::TermError = 0;
    plotSkriptSchreiben(vorschau_, terme, w, p_, q_, r_, d);
    double von = std::min(von_, bis_), bis = std::max(von_, bis_);
    if (d) {
        // show the found points, not only the large values at the interval's ends
        std::vector<double> xs = d->nullstellen;
        for (const Extrempunkt& e : d->extrema)
            xs.push_back(e.x);
        for (const Kurvenpunkt& k : d->wendepunkte)
            xs.push_back(k.x);
        if (!xs.empty()) {
            const auto [lo, hi] = std::minmax_element(xs.begin(), xs.end());
            const double weite = std::max(*hi - *lo, 2.0);
            von = std::max(von, *lo - 0.4 * weite);
            bis = std::min(bis, *hi + 0.4 * weite);
        }
    }
    bereich_ = bildbereich(terme[0], von, bis);
    PB1_->update();
}

void TFAnalysis::zeichnen(platform::Canvas& c, int breite, int hoehe)
{
    vorschauZeichnen(c, breite, hoehe, vorschau_, bereich_);
    c.setPenColor(platform::clSilver);
    c.setBrushStyle(platform::BrushStyle::Clear);
    c.frameRect(0, 0, breite, hoehe);
}

void TFAnalysis::B1C(bool zeigen)
{
    parameterLesen();
    std::string t;
    if (!termText(E_[0]->text()).empty() && !termHolen(1, t))
        return;
    Diskussion d;
    if (opt_[19]->isChecked() && !t.empty()) {
        Diskussionsvorgabe v{t, von_, bis_, 1000, p_, q_, r_};
        d = diskutieren(v, stammliste_);
    }
    vorschauMitFunktion(t.empty() ? nullptr : &d);
    // the plotter draws the same script over the same range
    graphScript() = vorschau_;
    graphScript().anAnfang();
    plotZustand().bereich = bereich_;
    if (zeigen) {
        TFGraph g(this);
        g.exec();
    }
}

void TFAnalysis::S12C()
{
    parameterLesen();
    std::string t;
    if (!termHolen(1, t))
        return;
    double schritt = schritt_;
    if (!(schritt > 0) || (bis_ - von_) / schritt > 10000)
        schritt = (bis_ - von_) / 20;
    ergebnis(wertetabelle(t, std::min(von_, bis_), std::max(von_, bis_), std::fabs(schritt),
                          stammfunktionSuchen(t, stammliste_)));
    vorschauMitFunktion(nullptr);
}

void TFAnalysis::D7C()
{
    parameterLesen();
    std::string t;
    if (!termHolen(1, t))
        return;
    Diskussionsvorgabe v{t, von_, bis_, 1000, p_, q_, r_};
    const Diskussion d = diskutieren(v, stammliste_);
    std::vector<std::string> z = diskussionszeilen(v, d);
    // with a second function the intersections follow
    const std::string g = termText(E_[1]->text());
    if (!g.empty() && pruefeTerm(g, 2).empty()) {
        const auto s = schnittzeilen(t, g, 1, 2, schnittpunkte(t, g, von_, bis_));
        z.insert(z.end(), s.begin(), s.end());
    }
    ergebnis(z);
    vorschauMitFunktion(&d);
}

void TFAnalysis::D8C()
{
    parameterLesen();
    std::string f, g;
    if (!termHolen(1, f) || !termHolen(2, g))
        return;
    ergebnis(schnittzeilen(f, g, 1, 2, schnittpunkte(f, g, von_, bis_)));
    vorschauMitFunktion(nullptr);
}

void TFAnalysis::integrationC()
{
    parameterLesen();
    std::string t;
    if (!termHolen(1, t))
        return;
    int n = static_cast<int>(std::lround(std::fabs(schritt_)));
    if (n < 2)
        n = 100;
    ergebnis(verfahrensvergleich(t, stammfunktionSuchen(t, stammliste_), von_, bis_, std::min(n, 100000)));
    vorschauMitFunktion(nullptr);
    // the area under f1 over the interval, shaded
    vorschau_.addText("#k");
    vorschau_.addText(t);
    vorschau_.addReal(von_);
    vorschau_.addReal(bis_);
    PB1_->update();
}

void TFAnalysis::B4C()
{
    parameterLesen();
    std::string t;
    if (!termHolen(1, t))
        return;
    const TangenteNormale tn = tangenteNormale(t, stelle_);
    ergebnis(tangentenzeilen(tn));
    vorschauMitFunktion(nullptr);
    // the neighbourhood of the point, where tangent and normal can be told apart
    bereich_ = bildbereich(t, stelle_ - 3, stelle_ + 3);
    if (tn.definiert) {
        vorschau_.addText("#r");
        vorschau_.addReal(tn.tangenteM);
        vorschau_.addReal(tn.tangenteN);
        vorschau_.addText(tn.normaleSenkrecht ? "#G" : "#F");
        if (tn.normaleSenkrecht)
            vorschau_.addReal(tn.x0);
        else
            vorschau_.addText(kernel::RealToStrDot(1, 10, tn.normaleM) + "*X+(" +
                              kernel::RealToStrDot(1, 10, tn.normaleN) + ")");
        vorschau_.addText("#\xFC");
        vorschau_.addReal(tn.x0);
        vorschau_.addReal(tn.y0);
        vorschau_.addText("rot");
    }
    PB1_->update();
}

void TFAnalysis::vonPunktC(bool normale)
{
    parameterLesen();
    std::string t;
    if (!termHolen(1, t))
        return;
    ergebnis(tangentenVonPunktZeilen(t, p_, q_, von_, bis_, normale));
    vorschauMitFunktion(nullptr);
    vorschau_.addText("#\xFC");
    vorschau_.addReal(p_);
    vorschau_.addReal(q_);
    vorschau_.addText("blau");
    PB1_->update();
}

void TFAnalysis::bibliothekKlick(int zeile)
{
    if (zeile < 0 || zeile >= static_cast<int>(bibliothek_.size()))
        return;
    // the term goes to the first free field; with none free, to field 1
    int ziel = 0;
    for (int i = 0; i < 6; ++i)
        if (E_[i]->text().trimmed().isEmpty()) {
            ziel = i;
            break;
        }
    E_[ziel]->setText(QString::fromLatin1(bibliothek_[zeile].c_str()));
}

}  // namespace graphs
