#include "geometry/udreieck.h"

#include "geometry/windows.h"
#include "kernel/numeric.h"
#include "kernel/realtostr.h"
#include "kernel/term.h"
#include "platform/codepage.h"
#include "platform/container.h"
#include "platform/toolframe.h"

#include <QAction>
#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QFileDialog>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QMenuBar>
#include <QMouseEvent>
#include <QPainter>
#include <QPushButton>
#include <QRadioButton>
#include <QSlider>
#include <QStackedWidget>
#include <QStandardPaths>
#include <QTabWidget>
#include <QTimer>
#include <QTreeWidget>
#include <QVBoxLayout>
#include <QWheelEvent>

#include <cmath>
#include <filesystem>

using kernel::SafeRound;

namespace {

// the program's texte.dll; tests point it at a container of their own
std::string& textContainer()
{
    static std::string pfad = platform::programContainer("texte.dll");
    return pfad;
}

std::vector<std::string> ladeResource(const char* name) { return platform::loadTextListUtf8(textContainer(), name); }

QString u(const std::string& s) { return QString::fromUtf8(s.c_str(), static_cast<int>(s.size())); }
std::string s8(const QString& s) { return s.toUtf8().toStdString(); }
std::string kurz(double v) { return kernel::RealToStr(1, 4, v); }

// Default vertices in pixels of the original panel (A 290|190, B 220|420, C 560|420) taken as
// units about the centre of a 740 x 560 panel.
constexpr std::array<double, 6> kGrundEcken = {-0.8, 0.9, -1.5, -1.4, 1.9, -1.4};

}  // namespace

// ---------------------------------------------------------------- panel

TDreieckFlaeche::TDreieckFlaeche(TxDreieck* owner) : QWidget(owner), owner_(owner)
{
    setMouseTracking(true);
    setMinimumSize(400, 300);
}

void TDreieckFlaeche::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    platform::Canvas c(&painter);
    owner_->zeichne(c, width(), height());
}

void TDreieckFlaeche::mousePressEvent(QMouseEvent* e) { owner_->PB1MD(e); }
void TDreieckFlaeche::mouseMoveEvent(QMouseEvent* e) { owner_->PB1MM(e); }
void TDreieckFlaeche::mouseReleaseEvent(QMouseEvent*) { owner_->PB1MU(); }
void TDreieckFlaeche::wheelEvent(QWheelEvent* e) { owner_->PB1Wheel(e->angleDelta().y()); }

// ---------------------------------------------------------------- window

void TxDreieck::setzeTextContainer(const std::string& pfad) { textContainer() = pfad; }

TxDreieck::TxDreieck(QWidget* parent, int wahlseite, int wahlpunkt) : QDialog(parent)
{
    (void)wahlpunkt;
    setWindowTitle("Quorix");
    resize(1008, 710);
    ladeListen();
    baueOberflaeche();
    Grundeinstellung();
    if (wahlseite >= 1 && wahlseite <= themenAnzahl()) M31C(u(themen_[wahlseite - 1].titel));
}

void TxDreieck::ladeListen()
{
    listen_ = geo::leseObjektlisten(ladeResource("xdreieck"));
    themen_ = geo::leseThemen(ladeResource("wdreieck"));
    if (listen_.alle().empty()) {
        // without the resource file every object still stays reachable in one list
        listen_.titel[0] = "Objekte";
        listen_.namen[0] = geo::bekannteObjekte();
    }
}

void TxDreieck::baueOberflaeche()
{
    auto* aussen = new QVBoxLayout(this);
    aussen->setContentsMargins(4, 2, 4, 4);
    aussen->setSpacing(3);
    auto* menue = new QMenuBar(this);
    baueMenue(menue);
    aussen->setMenuBar(menue);

    // vertex fields
    auto* kopf = new QHBoxLayout;
    const char* namen[6] = {"Ax", "Ay", "Bx", "By", "Cx", "Cy"};
    for (int i = 0; i < 6; ++i) {
        kopf->addWidget(new QLabel(namen[i]));
        E_[i] = new QLineEdit;
        E_[i]->setMaximumWidth(70);
        E_[i]->setObjectName(QString("E%1").arg(i + 1));
        kopf->addWidget(E_[i]);
        connect(E_[i], &QLineEdit::editingFinished, this, [this, i] { E1Exit(i); });
    }
    kopf->addSpacing(12);
    R1_ = new QRadioButton("Zeichnung");
    R2_ = new QRadioButton("Ergebnisse");
    R1_->setChecked(true);
    kopf->addWidget(R1_);
    kopf->addWidget(R2_);
    kopf->addStretch();
    auto* S8 = new QPushButton("Objektauswahl");
    kopf->addWidget(S8);
    aussen->addLayout(kopf);

    // drawing or results, and the object panel
    auto* mitte = new QHBoxLayout;
    seiten_ = new QStackedWidget;
    PB1_ = new TDreieckFlaeche(this);
    seiten_->addWidget(PB1_);
    auto* ergebnisSeite = new QWidget;
    auto* ev = new QVBoxLayout(ergebnisSeite);
    ev->setContentsMargins(0, 0, 0, 0);
    LB1_ = new QTreeWidget;
    LB1_->setColumnCount(2);
    LB1_->setHeaderLabels({"Größe", "Wert"});
    LB1_->setRootIsDecorated(false);
    LB1_->header()->resizeSection(0, 330);
    ev->addWidget(LB1_);
    anzahl_ = new QLabel;
    ev->addWidget(anzahl_);
    seiten_->addWidget(ergebnisSeite);
    mitte->addWidget(seiten_, 1);

    panel_ = new QWidget;
    panel_->setFixedWidth(240);
    auto* pv = new QVBoxLayout(panel_);
    pv->setContentsMargins(0, 0, 0, 0);
    C1_ = new QCheckBox("alle Objekte");
    pv->addWidget(C1_);
    TC_ = new QTabWidget;
    // four tabs side by side in the narrow panel
    TC_->setStyleSheet("QTabBar::tab { padding: 3px 5px; }");
    TC_->setUsesScrollButtons(false);
    TC_->setElideMode(Qt::ElideNone);
    for (int k = 0; k < geo::Objektlisten::kAnzahl; ++k) {
        CL_[k] = new QListWidget;
        for (const std::string& n : listen_.namen[k]) {
            auto* it = new QListWidgetItem(u(n), CL_[k]);
            it->setFlags(it->flags() | Qt::ItemIsUserCheckable);
            it->setCheckState(Qt::Unchecked);
        }
        if (!listen_.namen[k].empty()) TC_->addTab(CL_[k], u(listen_.titel[k]));
        connect(CL_[k], &QListWidget::itemChanged, this, [this](QListWidgetItem* it) {
            if (sperre_) return;
            // the same name may stand in two lists: keep them alike
            setzeObjekt(it->text(), it->checkState() == Qt::Checked);
        });
    }
    pv->addWidget(TC_, 1);
    mitte->addWidget(panel_);
    aussen->addLayout(mitte, 1);

    // status, arrows and simulation
    auto* fuss = new QHBoxLayout;
    L12_ = new QLabel;
    L12_->setMinimumWidth(220);
    fuss->addWidget(L12_, 1);
    const struct { const char* t; int dx, dy; } pfeile[] = {{"◀", -50, 0}, {"▲", 0, -50}, {"▼", 0, 50}, {"▶", 50, 0}};
    for (const auto& p : pfeile) {
        auto* b = new QPushButton(QString::fromUtf8(p.t));
        b->setFixedWidth(30);
        const int dx = p.dx, dy = p.dy;
        connect(b, &QPushButton::clicked, this, [this, dx, dy] {
            panX_ += dx;
            panY_ += dy;
            PB1_->update();
        });
        fuss->addWidget(b);
    }
    fuss->addSpacing(10);
    auto* gruppe = new QButtonGroup(this);
    for (int i = 0; i < 3; ++i) {
        RG1_[i] = new QRadioButton(QString(QChar('A' + i)));
        gruppe->addButton(RG1_[i]);
        fuss->addWidget(RG1_[i]);
    }
    RG1_[0]->setChecked(true);
    cb1_ = new QComboBox;
    cb1_->addItems({"waagerecht", "senkrecht", "um Ursprung", "Richtung AB"});
    fuss->addWidget(cb1_);
    Rx1_ = new QSlider(Qt::Horizontal);
    Rx1_->setRange(1, 80);
    Rx1_->setValue(70);
    Rx1_->setFixedWidth(80);
    Rx1_->setToolTip("Geschwindigkeit");
    fuss->addWidget(Rx1_);
    S15_ = new QPushButton("Simulation");
    fuss->addWidget(S15_);
    aussen->addLayout(fuss);

    Timer1_ = new QTimer(this);
    Timer1_->setInterval(10);
    connect(Timer1_, &QTimer::timeout, this, [this] { Timer1Timer(); });
    connect(Rx1_, &QSlider::valueChanged, this, [this](int v) { Timer1_->setInterval(81 - v); });
    connect(cb1_, &QComboBox::currentIndexChanged, this, [this] {
        const QPointF a = pixel(0), b = pixel(1);
        const double l = std::hypot(b.x() - a.x(), b.y() - a.y());
        simAB_ = l == 0 ? QPointF(0, 0) : QPointF((b.x() - a.x()) / l, (b.y() - a.y()) / l);
    });
    connect(S15_, &QPushButton::clicked, this, [this] { S15C(); });
    connect(S8, &QPushButton::clicked, this, [this] { S8C(); });
    connect(C1_, &QCheckBox::toggled, this, [this](bool an) { C1C(an); });
    connect(R1_, &QRadioButton::toggled, this, [this](bool an) {
        if (an) seiten_->setCurrentIndex(0);
    });
    connect(R2_, &QRadioButton::toggled, this, [this](bool an) {
        if (an) R2C();
        else stoppe();
    });
}

void TxDreieck::baueMenue(QWidget* leiste)
{
    auto* bar = static_cast<QMenuBar*>(leiste);
    QMenu* datei = bar->addMenu("Datei");
    datei->addAction("Dreieck laden …", this, [this] { ladeDatei(); });
    datei->addAction("Dreieck speichern …", this, [this] { speichereDatei(); });
    datei->addSeparator();
    auto malen = [this](platform::Canvas& c, int w, int h) { zeichne(c, w, h); };
    datei->addAction("Abbildung speichern …", this,
                     [this, malen] { platform::SavePicture(PB1_->width(), PB1_->height(), malen, this); });
    datei->addAction("Abbildung kopieren", this,
                     [this, malen] { platform::CopyPicture(PB1_->width(), PB1_->height(), malen, this); });
    datei->addAction("Drucken …", this,
                     [this, malen] { platform::PrintPicture(PB1_->width(), PB1_->height(), malen, this); });
    datei->addSeparator();
    datei->addAction("Schließen", this, [this] { close(); });

    QMenu* themen = bar->addMenu("Themen");
    for (size_t i = 0; i < themen_.size(); ++i) {
        QAction* a = themen->addAction(u(themen_[i].titel));
        a->setObjectName(QString("M%1").arg(i + 31));  // page p selects the item M(p + 30)
        connect(a, &QAction::triggered, this, [this, a] { M31C(a->text()); });
    }

    QMenu* ansicht = bar->addMenu("Ansicht");
    achsenAktion_ = ansicht->addAction("Koordinatenachsen");
    gitterAktion_ = ansicht->addAction("Gitter");
    mmAktion_ = ansicht->addAction("Millimetergitter");
    triAktion_ = ansicht->addAction("trilineare Koordinaten");
    for (QAction* a : {achsenAktion_, gitterAktion_, mmAktion_, triAktion_}) a->setCheckable(true);
    connect(achsenAktion_, &QAction::toggled, this, [this](bool an) { achsen_ = an, PB1_->update(); });
    connect(gitterAktion_, &QAction::toggled, this, [this](bool an) {
        gitter_ = an;
        if (an) mmAktion_->setChecked(false);  // the two grids exclude each other
        PB1_->update();
    });
    connect(mmAktion_, &QAction::toggled, this, [this](bool an) {
        mmgitter_ = an;
        if (an) gitterAktion_->setChecked(false);
        PB1_->update();
    });
    connect(triAktion_, &QAction::toggled, this, [this](bool an) { trilinear_ = an, PB1_->update(); });
    ansicht->addSeparator();
    ansicht->addAction("Intervall vergrößern", this, [this] { zoom(0.1); });
    ansicht->addAction("Intervall verkleinern", this, [this] { zoom(-0.1); });
    ansicht->addAction("Grundeinstellung", this, [this] { Grundeinstellung(); });

    QMenu* sim = bar->addMenu("Simulation");
    sim->addAction("Start / Stopp", this, [this] { S15C(); });
}

void TxDreieck::Grundeinstellung()
{
    stoppe();
    faktor_ = 1;
    panX_ = panY_ = 0;
    achsenAktion_->setChecked(true);
    gitterAktion_->setChecked(false);
    mmAktion_->setChecked(false);
    triAktion_->setChecked(false);
    ecke_ = kGrundEcken;
    zeigeFelder();
    sperre_ = true;
    for (QListWidget* l : CL_)
        for (int i = 0; i < l->count(); ++i) {
            const std::string n = s8(l->item(i)->text());
            l->item(i)->setCheckState(geo::grundauswahl().count(n) ? Qt::Checked : Qt::Unchecked);
        }
    sperre_ = false;
    PB1_->update();
}

void TxDreieck::zeigeFelder()
{
    for (int i = 0; i < 6; ++i) E_[i]->setText(u(kurz(ecke_[i])));
}

void TxDreieck::E1Exit(int i)
{
    const std::string text = platform::utf8ToCp1252(s8(E_[i]->text()));
    const double v = quorix::ReadTermValue(text);
    if (quorix::TermError == 0 && std::isfinite(v) && std::fabs(v) < 1e6) ecke_[i] = v;
    E_[i]->setText(u(kurz(ecke_[i])));  // a wrong entry is replaced by the old value
    PB1_->update();
}

void TxDreieck::setzeEcken(const std::array<double, 6>& k)
{
    ecke_ = k;
    zeigeFelder();
    PB1_->update();
}

QPointF TxDreieck::pixel(int ecke) const
{
    const double e = 100 * faktor_;
    return {ecke_[2 * ecke] * e + x0_, y0_ - ecke_[2 * ecke + 1] * e};
}

geo::Auswahl TxDreieck::auswahl() const
{
    geo::Auswahl a;
    for (QListWidget* l : CL_)
        for (int i = 0; i < l->count(); ++i)
            if (l->item(i)->checkState() == Qt::Checked) a.insert(s8(l->item(i)->text()));
    return a;
}

void TxDreieck::setzeObjekt(const QString& name, bool an)
{
    sperre_ = true;
    for (QListWidget* l : CL_)
        for (QListWidgetItem* it : l->findItems(name, Qt::MatchExactly)) it->setCheckState(an ? Qt::Checked : Qt::Unchecked);
    sperre_ = false;
    PB1_->update();
}

// ---------------------------------------------------------------- painting

void TxDreieck::zeichne(platform::Canvas& c, int breite, int hoehe)
{
    using namespace platform;
    c.setBrushStyle(BrushStyle::Solid);
    c.setBrushColor(clWhite);
    c.setPenStyle(PenStyle::Clear);
    c.fillRect(0, 0, breite, hoehe);
    c.setPenStyle(PenStyle::Solid);
    c.setFontName("Verdana");
    c.setFontSize(9);
    x0_ = breite / 2 + panX_;
    y0_ = hoehe / 2 + panY_;
    const double e = 100 * faktor_;
    const int ox = SafeRound(x0_), oy = SafeRound(y0_);

    // grids and axes
    if (gitter_ || mmgitter_) {
        const double schritt = mmgitter_ ? e / 10 : e / 2;
        for (int k = -int(x0_ / schritt) - 1; ox + k * schritt < breite; ++k) {
            const bool ganz = mmgitter_ && k % 10 == 0;
            c.setPenColor(ganz ? rgb(200, 215, 235) : rgb(230, 236, 245));
            DrawLine(c, SafeRound(ox + k * schritt), 0, SafeRound(ox + k * schritt), hoehe);
        }
        for (int k = -int(y0_ / schritt) - 1; oy + k * schritt < hoehe; ++k) {
            const bool ganz = mmgitter_ && k % 10 == 0;
            c.setPenColor(ganz ? rgb(200, 215, 235) : rgb(230, 236, 245));
            DrawLine(c, 0, SafeRound(oy + k * schritt), breite, SafeRound(oy + k * schritt));
        }
    }
    if (achsen_) {
        c.setPenColor(clGray);
        DrawLine(c, 0, oy, breite, oy);
        DrawLine(c, ox, 0, ox, hoehe);
        c.setFontColor(clGray);
        for (int k = -int(x0_ / e) - 1; ox + k * e < breite; ++k) {
            const int x = SafeRound(ox + k * e);
            DrawLine(c, x, oy - 3, x, oy + 4);
            if (k != 0) c.textOut(x - 4, oy + 5, std::to_string(k));
        }
        for (int k = -int(y0_ / e) - 1; oy + k * e < hoehe; ++k) {
            const int y = SafeRound(oy + k * e);
            DrawLine(c, ox - 3, y, ox + 4, y);
            if (k != 0) c.textOut(ox + 6, y - 7, std::to_string(-k));
        }
    }

    // the scene
    geo::PointTable tab;
    for (int i = 0; i < 3; ++i) {
        const QPointF p = pixel(i);
        tab.setze(geo::nA + i, {p.x(), p.y()});
    }
    geo::Ansicht v;
    v.x0 = x0_;
    v.y0 = y0_;
    v.faktor = faktor_;
    v.breite = breite;
    v.hoehe = hoehe;
    v.trilinear = trilinear_;
    v.ergebnisse = false;  // the drawing needs no lines; the results page asks for them
    const geo::Szene szene = geo::berechneDreieck(tab, auswahl(), v);
    for (const geo::Element& el : szene.elemente) {
        c.setPenColor(el.farbe);
        c.setPenStyle(el.gestrichelt ? PenStyle::Dash : PenStyle::Solid);
        switch (el.art) {
        case geo::Element::Flaeche: {
            std::vector<QPoint> pts;
            for (const geo::Pkt& p : el.p) pts.emplace_back(SafeRound(p.x), SafeRound(p.y));
            c.setPenStyle(PenStyle::Clear);
            c.setBrushStyle(BrushStyle::Solid);
            c.setBrushColor(el.farbe);
            c.polygon(pts);
            break;
        }
        case geo::Element::Strecke:
            DrawLine(c, SafeRound(el.p[0].x), SafeRound(el.p[0].y), SafeRound(el.p[1].x), SafeRound(el.p[1].y));
            break;
        case geo::Element::Kreis: {
            c.setBrushStyle(BrushStyle::Clear);
            const int x = SafeRound(el.p[0].x), y = SafeRound(el.p[0].y), r = SafeRound(el.r);
            c.ellipse(x - r, y - r, x + r + 1, y + r + 1);
            break;
        }
        case geo::Element::Kurve: {
            std::vector<QPoint> pts;
            for (const geo::Pkt& p : el.p)
                if (p.x > -200 && p.y > -200 && p.x < breite + 200 && p.y < hoehe + 200)
                    pts.emplace_back(SafeRound(p.x), SafeRound(p.y));
            c.polyline(pts);
            break;
        }
        case geo::Element::Pixel:
            for (const geo::Pkt& p : el.p)
                if (p.x >= 0 && p.y >= 0 && p.x < breite && p.y < hoehe) {
                    c.setPixel(SafeRound(p.x), SafeRound(p.y), el.farbe);
                    c.setPixel(SafeRound(p.x) + 1, SafeRound(p.y), el.farbe);
                }
            break;
        case geo::Element::Punkt: {
            const int x = SafeRound(el.p[0].x), y = SafeRound(el.p[0].y);
            if (el.r >= 0) {
                c.setBrushStyle(BrushStyle::Solid);
                c.setBrushColor(0xFFFF);
                c.ellipse(x - 4, y - 4, x + 5, y + 5);
            }
            if (!el.text.empty()) {
                c.setFontColor(el.farbe);
                c.setBrushStyle(BrushStyle::Clear);
                c.textOutW(x + 4, y + 4, u(el.text));
            }
            break;
        }
        }
    }
    c.setPenStyle(PenStyle::Solid);
    c.setFontColor(clNavy);
    c.setBrushStyle(BrushStyle::Clear);
    c.textOutW(8, 6, "Streckungsfaktor " + u(kernel::RealToStr(1, 3, faktor_)));
    if (szene.entartet) {
        c.setFontColor(clRed);
        c.textOutW(8, 24, QString::fromUtf8("Das Dreieck ist entartet."));
    }
}

// ---------------------------------------------------------------- results and lists

QStringList TxDreieck::ergebnisse()
{
    stoppe();
    faktor_ = 1;
    panX_ = panY_ = 0;
    const int w = PB1_->width() > 0 ? PB1_->width() : 740, h = PB1_->height() > 0 ? PB1_->height() : 560;
    platform::Picture bild = platform::paintPicture(w, h, [this](platform::Canvas& c, int bw, int bh) { zeichne(c, bw, bh); });
    (void)bild;
    // the same computation as the paint, for the list
    geo::PointTable tab;
    for (int i = 0; i < 3; ++i) tab.setze(geo::nA + i, {pixel(i).x(), pixel(i).y()});
    geo::Ansicht v;
    v.x0 = x0_;
    v.y0 = y0_;
    v.breite = w;
    v.hoehe = h;
    v.trilinear = trilinear_;
    const geo::Szene s = geo::berechneDreieck(tab, auswahl(), v);
    QStringList zeilen;
    LB1_->clear();
    for (const std::string& z : s.zeilen) {
        const QString line = u(z);
        zeilen << line;
        const int tab = line.indexOf('\t');
        auto* it = new QTreeWidgetItem(LB1_);
        it->setText(0, tab < 0 ? line : line.left(tab));
        if (tab >= 0) it->setText(1, line.mid(tab + 1));
        if (tab < 0) {
            QFont f = it->font(0);
            f.setBold(true);
            it->setFont(0, f);
        }
    }
    anzahl_->setText(QString::number(zeilen.size()) + " Einträge");
    return zeilen;
}

void TxDreieck::R2C()
{
    ergebnisse();
    seiten_->setCurrentIndex(1);
}

void TxDreieck::C1C(bool an)
{
    sperre_ = true;
    for (int k = 0; k < geo::Objektlisten::kAnzahl; ++k)
        for (int i = 0; i < CL_[k]->count(); ++i) {
            if (k == 0 && i < 7) continue;  // vertices, sides and the fill stay as they are
            CL_[k]->item(i)->setCheckState(an ? Qt::Checked : Qt::Unchecked);
        }
    sperre_ = false;
    PB1_->update();
}

void TxDreieck::S8C() { panel_->setVisible(!panel_->isVisible()); }

bool TxDreieck::M31C(const QString& caption)
{
    const geo::Thema* t = geo::findeThema(themen_, s8(caption));
    if (!t) return false;
    stoppe();
    sperre_ = true;
    for (QListWidget* l : CL_)
        for (int i = 0; i < l->count(); ++i) l->item(i)->setCheckState(Qt::Unchecked);
    sperre_ = false;
    for (int i = 0; i < 6; ++i) {
        const double v = quorix::ReadTermValue(platform::utf8ToCp1252(t->koordinaten[i]));
        ecke_[i] = quorix::TermError == 0 ? v : kGrundEcken[i];
    }
    zeigeFelder();
    for (const std::string& n : t->objekte) setzeObjekt(u(n), true);
    panX_ = panY_ = 0;
    PB1_->update();
    return true;
}

// ---------------------------------------------------------------- mouse, zoom, simulation

void TxDreieck::PB1MD(QMouseEvent* e)
{
    if (e->button() != Qt::LeftButton) return;
    const QPointF p = e->position();
    zieht_ = -1;
    for (int i = 0; i < 3 && zieht_ < 0; ++i) {
        const QPointF q = pixel(i);
        if (std::fabs(p.x() - q.x()) < 5 && std::fabs(p.y() - q.y()) < 5) zieht_ = i;
    }
    pant_ = zieht_ < 0;
    druck_ = e->position().toPoint();
}

void TxDreieck::PB1MM(QMouseEvent* e)
{
    const QPointF p = e->position();
    const double ein = 100 * faktor_;
    if (zieht_ >= 0) {
        ecke_[2 * zieht_] = (p.x() - x0_) / ein;
        ecke_[2 * zieht_ + 1] = (y0_ - p.y()) / ein;
        zeigeFelder();
        PB1_->update();
        return;
    }
    if (pant_) {
        panX_ += e->position().toPoint().x() - druck_.x();
        panY_ += e->position().toPoint().y() - druck_.y();
        druck_ = e->position().toPoint();
        PB1_->update();
        return;
    }
    QString text = "P(" + u(kurz((p.x() - x0_) / ein)) + " | " + u(kurz((y0_ - p.y()) / ein)) + ")";
    if (trilinear_) {
        std::string tri;
        if (geo::trilinearText({p.x(), p.y()}, {pixel(0).x(), pixel(0).y()}, {pixel(1).x(), pixel(1).y()},
                               {pixel(2).x(), pixel(2).y()}, tri))
            text += " trilinear" + u(tri);
    }
    L12_->setText(text);
}

void TxDreieck::PB1MU()
{
    zieht_ = -1;
    pant_ = false;
}

void TxDreieck::PB1Wheel(int delta)
{
    if (delta < 0) zoom(0.02);
    else if (delta > 0) zoom(-0.02);
}

void TxDreieck::zoom(double delta)
{
    stoppe();
    faktor_ += delta;
    if (faktor_ < 0.2) faktor_ = 0.2;
    PB1_->update();
}

void TxDreieck::stoppe()
{
    if (Timer1_ && Timer1_->isActive()) Timer1_->stop();
    if (S15_) S15_->setText("Simulation");
}

void TxDreieck::S15C()
{
    if (Timer1_->isActive()) {
        stoppe();
        return;
    }
    Timer1_->setInterval(81 - Rx1_->value());
    Timer1_->start();
    S15_->setText("Stopp");
}

void TxDreieck::Timer1Timer()
{
    int k = 0;
    for (int i = 0; i < 3; ++i)
        if (RG1_[i]->isChecked()) k = i;
    QPointF p = pixel(k);
    const int w = PB1_->width(), h = PB1_->height();
    switch (cb1_->currentIndex()) {
    case 0:
        p.rx() += simRichtung_;
        if (p.x() <= 0 || p.x() >= w) simRichtung_ = -simRichtung_;
        break;
    case 1:
        p.ry() += simRichtung_;
        if (p.y() <= 0 || p.y() >= h) simRichtung_ = -simRichtung_;
        break;
    case 2: {
        const double r = std::hypot(p.x() - x0_, p.y() - y0_);
        const double phi = std::atan2(p.y() - y0_, p.x() - x0_) + 0.01;
        p = {x0_ + r * std::cos(phi), y0_ + r * std::sin(phi)};
        break;
    }
    default:
        p += simAB_ * simRichtung_;
        if (p.x() <= 0 || p.x() >= w || p.y() <= 0 || p.y() >= h) simRichtung_ = -simRichtung_;
        break;
    }
    const double ein = 100 * faktor_;
    ecke_[2 * k] = (p.x() - x0_) / ein;
    ecke_[2 * k + 1] = (y0_ - p.y()) / ein;
    zeigeFelder();
    PB1_->update();
}

// ---------------------------------------------------------------- files

void TxDreieck::ladeDatei()
{
    stoppe();
    const QString pfad = QFileDialog::getOpenFileName(this, "Dreieck laden",
                                                      QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation),
                                                      "Dreiecksdatei (*.dre)");
    if (pfad.isEmpty()) return;
    platform::StringList roh;
    if (!platform::readTextFile(s8(pfad), roh)) return;
    std::vector<std::string> zeilen;
    for (const std::string& z : roh) zeilen.push_back(platform::cp1252ToUtf8(z));
    geo::DreDaten d;
    if (!geo::leseDre(zeilen, d)) return;
    sperre_ = true;
    for (QListWidget* l : CL_)
        for (int i = 0; i < l->count(); ++i) l->item(i)->setCheckState(Qt::Unchecked);
    sperre_ = false;
    for (int i = 0; i < 6; ++i) {
        E_[i]->setText(u(d.felder[i]));
        E1Exit(i);
    }
    // unknown names are passed over
    for (const auto& block : d.an)
        for (const std::string& n : block) setzeObjekt(u(n), true);
    panX_ = panY_ = 0;
    PB1_->update();
}

void TxDreieck::speichereDatei()
{
    QString pfad = QFileDialog::getSaveFileName(this, "Dreieck speichern",
                                                QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation),
                                                "Dreiecksdatei (*.dre)");
    if (pfad.isEmpty()) return;
    if (!pfad.endsWith(".dre")) pfad += ".dre";
    geo::DreDaten d;
    for (int i = 0; i < 6; ++i) d.felder[i] = s8(E_[i]->text());
    for (int k = 0; k < geo::Objektlisten::kAnzahl; ++k)
        for (int i = 0; i < CL_[k]->count(); ++i)
            if (CL_[k]->item(i)->checkState() == Qt::Checked) d.an[k].push_back(s8(CL_[k]->item(i)->text()));
    platform::StringList aus;
    for (const std::string& z : geo::schreibeDre(d)) aus.push_back(platform::utf8ToCp1252(z));
    platform::writeTextFile(s8(pfad), aus);
}

QDialog* createTxDreieck(QWidget* parent, int wahlseite, int wahlpunkt)
{
    return new TxDreieck(parent, wahlseite, wahlpunkt);
}
