#include "geometry/upolyeder.h"

#include "geometry/poly_windows.h"
#include "geometry/polyederdaten.h"
#include "kernel/realtostr.h"
#include "platform/toolframe.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QDoubleSpinBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QMouseEvent>
#include <QPainter>
#include <QPushButton>
#include <QRadioButton>
#include <QSpinBox>
#include <QTimer>
#include <QToolButton>
#include <QVBoxLayout>

#include <algorithm>
#include <cmath>

namespace {

std::string& textContainer()
{
    static std::string pfad;
    return pfad;
}

const char* const kSchalter[] = {"Kantenmodell",         "verdeckte Kanten",     "farbige Flächen",
                                 "bunte Flächen",        "Zweitafel-Projektion", "Dreitafel-Projektion",
                                 "Koordinatentabelle",   "Punkte hervorheben",   "Rotation",
                                 "stetige Verformung"};
enum { sKanten, sVerdeckt, sFarbig, sBunt, sZwei, sDrei, sTabelle, sPunkte, sRotation, sVerformung };

std::string zahl(double x) { return kernel::RealToStr(1, 4, x); }

}  // namespace

// ---- panel

TPolyFlaeche::TPolyFlaeche(TFpoly* owner) : QWidget(owner), owner_(owner)
{
    setMouseTracking(false);
    setCursor(Qt::OpenHandCursor);
}

void TPolyFlaeche::paintEvent(QPaintEvent*)
{
    platform::Canvas c(this);
    owner_->zeichne(c, width(), height());
}

void TPolyFlaeche::mousePressEvent(QMouseEvent* e) { owner_->PB1MD(e); }
void TPolyFlaeche::mouseMoveEvent(QMouseEvent* e) { owner_->PB1MM(e); }
void TPolyFlaeche::mouseReleaseEvent(QMouseEvent*) { owner_->PB1MU(); }

// ---- window

void TFpoly::setzeTextContainer(const std::string& pfad) { textContainer() = pfad; }

TFpoly::TFpoly(QWidget* parent, int wahlseite, int wahlpunkt) : QDialog(parent)
{
    setWindowTitle("Quorix");
    setFixedSize(1008, 710);
    daten_ = poly::ladeKoerperDaten(textContainer().empty() ? poly::standardTextContainer() : textContainer());
    Timer1_ = new QTimer(this);
    Timer1_->setInterval(50);
    connect(Timer1_, &QTimer::timeout, this, &TFpoly::Timer1Timer);
    baueOberflaeche();
    const int art = wahlseite >= 0 && wahlseite <= 5 ? wahlseite : 0;
    polyederart_->button(art)->setChecked(true);
    artGewaehlt(art);
    if (wahlpunkt >= 0 && wahlpunkt < LB1_->count()) LB1_->setCurrentRow(wahlpunkt);
}

void TFpoly::baueOberflaeche()
{
    PB1_ = new TPolyFlaeche(this);
    auto* haupt = new QHBoxLayout(this);
    haupt->setContentsMargins(6, 6, 6, 6);
    auto* links = new QVBoxLayout;
    links->setSpacing(4);
    haupt->addLayout(links);
    auto* leiste = new QHBoxLayout;
    links->addLayout(leiste);
    auto malen = [this](platform::Canvas& c, int w, int h) { zeichne(c, w, h); };
    const int arten[] = {1, 2, 3, 4, 11};
    for (int kind : arten) {
        auto* b = new QToolButton(this);
        platform::SetToolButton(b, kind);
        leiste->addWidget(b);
        connect(b, &QToolButton::clicked, this, [this, kind, malen] {
            const int w = PB1_->width(), h = PB1_->height();
            switch (kind) {
            case 1: close(); break;
            case 2: platform::PrintPicture(w, h, malen, this); break;
            case 3: platform::CopyPicture(w, h, malen, this); break;
            case 4: platform::SavePicture(w, h, malen, this); break;
            case 11: Grundeinstellung(); break;
            }
        });
    }
    leiste->addStretch();

    auto* gruppe = new QGroupBox("Polyederart", this);
    auto* gg = new QGridLayout(gruppe);
    gg->setContentsMargins(6, 4, 6, 4);
    gg->setVerticalSpacing(1);
    polyederart_ = new QButtonGroup(this);
    for (int i = 0; i < 6; ++i) {
        auto* r = new QRadioButton(QString::fromUtf8(poly::artNamen()[i].c_str()), gruppe);
        polyederart_->addButton(r, i);
        gg->addWidget(r, i, 0);
    }
    connect(polyederart_, &QButtonGroup::idClicked, this, &TFpoly::artGewaehlt);
    links->addWidget(gruppe);

    links->addWidget(new QLabel(QString::fromUtf8("Körper"), this));
    LB1_ = new QListWidget(this);
    LB1_->setFixedHeight(150);
    connect(LB1_, &QListWidget::currentRowChanged, this, [this](int) {
        if (!sperre_) neuwert();
    });
    links->addWidget(LB1_);

    auto* werte = new QGridLayout;
    werte->setVerticalSpacing(2);
    const char* winkel[] = {"x-Drehwinkel", "y-Drehwinkel", "z-Drehwinkel"};
    for (int i = 0; i < 3; ++i) {
        drehwinkel_[i] = new QSpinBox(this);
        drehwinkel_[i]->setRange(-15, 15);
        drehwinkel_[i]->setValue(i == 0 ? 1 : 0);
        werte->addWidget(new QLabel(winkel[i], this), i, 0);
        werte->addWidget(drehwinkel_[i], i, 1);
    }
    bildgroesse_ = new QSpinBox(this);
    bildgroesse_->setRange(40, 330);
    bildgroesse_->setValue(230);
    werte->addWidget(new QLabel(QString::fromUtf8("Bildgröße"), this), 3, 0);
    werte->addWidget(bildgroesse_, 3, 1);
    abstumpfung_ = new QDoubleSpinBox(this);
    abstumpfung_->setRange(0, 0.5);
    abstumpfung_->setSingleStep(0.01);
    abstumpfung_->setDecimals(2);
    abstumpfung_->setValue(0.33);
    werte->addWidget(new QLabel("Abstumpfung", this), 4, 0);
    werte->addWidget(abstumpfung_, 4, 1);
    links->addLayout(werte);
    connect(bildgroesse_, &QSpinBox::valueChanged, this, [this] { B1C(); });
    connect(abstumpfung_, &QDoubleSpinBox::valueChanged, this, [this] {
        if (sperre_) return;
        verformung_ = abstumpfung_->value();
        B1C();
    });

    auto* schalter = new QGridLayout;
    schalter->setVerticalSpacing(1);
    for (int i = 0; i < 10; ++i) {
        auto* c = new QCheckBox(QString::fromUtf8(kSchalter[i]), this);
        schalter_.push_back(c);
        schalter->addWidget(c, i, 0);
        connect(c, &QCheckBox::toggled, this, [this, i](bool an) {
            if (i == sRotation) {
                if (an) Timer1_->start();
                else Timer1_->stop();
            }
            if (i == sZwei && an) schalter_[sDrei]->setChecked(false);
            if (i == sDrei && an) schalter_[sZwei]->setChecked(false);
            PB1_->update();
        });
    }
    schalter_[sKanten]->setChecked(true);
    schalter_[sBunt]->setChecked(true);
    links->addLayout(schalter);
    links->addStretch();

    haupt->addWidget(PB1_, 1);
}

void TFpoly::artGewaehlt(int art)
{
    art_ = art;
    sperre_ = true;
    LB1_->clear();
    for (const std::string& n : poly::koerperNamen(daten_, art)) LB1_->addItem(QString::fromUtf8(n.c_str()));
    sperre_ = false;
    if (LB1_->count() > 0) LB1_->setCurrentRow(0);
    neuwert();
}

QStringList TFpoly::namen() const
{
    QStringList r;
    for (int i = 0; i < LB1_->count(); ++i) r << LB1_->item(i)->text();
    return r;
}

bool TFpoly::waehle(int art, const QString& name)
{
    if (art < 0 || art > 5) return false;
    const auto liste = poly::koerperNamen(daten_, art);
    if (std::find(liste.begin(), liste.end(), name.toStdString()) == liste.end()) return false;
    polyederart_->button(art)->setChecked(true);
    if (art != art_) artGewaehlt(art);
    const auto treffer = LB1_->findItems(name, Qt::MatchExactly);
    if (treffer.isEmpty()) return false;
    LB1_->setCurrentItem(treffer.front());
    return true;
}

void TFpoly::setzeOption(const QString& text, bool an)
{
    for (QCheckBox* c : schalter_)
        if (c->text() == text) c->setChecked(an);
}

void TFpoly::neuwert()
{
    if (!poly::leseKoerper(daten_, art_, LB1_->currentRow(), basis_)) basis_ = poly::Koerper{};
    verformung_ = abstumpfung_->value();
    Grundeinstellung();
}

void TFpoly::Grundeinstellung()
{
    summe_ = {0, 0, 0};
    lage_ = poly::Koerper{};
    lage_.ecken = {{1, 0, 0}, {0, 1, 0}, {0, 0, 1}};
    // stand the solid upright (data z up) and look at it a little from above
    poly::drehen(lage_, 0, 105, 20);
    B1C();
}

void TFpoly::B1C()
{
    if (basis_.ecken.empty()) {
        form_ = koerper_ = poly::Koerper{};
        if (PB1_) PB1_->update();
        return;
    }
    if (art_ == poly::Abstumpfungen) form_ = poly::abstumpfen(basis_, verformung_);
    else if (art_ == poly::Sternkoerper) form_ = poly::sternkoerper(basis_, verformung_);
    else form_ = basis_;
    form_.name = basis_.name;
    koerper_ = form_;
    poly::skaliere(koerper_, bildgroesse_->value());
    const auto& e = lage_.ecken;
    for (poly::Punkt& p : koerper_.ecken)
        p = {p.x * e[0].x + p.y * e[1].x + p.z * e[2].x, p.x * e[0].y + p.y * e[1].y + p.z * e[2].y,
             p.x * e[0].z + p.y * e[1].z + p.z * e[2].z};
    poly::berechneMitten(koerper_);
    PB1_->update();
}

void TFpoly::drehen(double a, double b, double c)
{
    poly::drehen(koerper_, a, b, c);
    poly::drehen(lage_, a, b, c);
    PB1_->update();
}

void TFpoly::Timer1Timer()
{
    const double s[3] = {double(drehwinkel_[0]->value()), double(drehwinkel_[1]->value()),
                         double(drehwinkel_[2]->value())};
    for (int i = 0; i < 3; ++i) summe_[i] = std::fmod(summe_[i] + s[i], 360.0);
    if (schalter_[sVerformung]->isChecked() && (art_ == poly::Abstumpfungen || art_ == poly::Sternkoerper)) {
        verformung_ += verformungSchritt_;
        if (verformung_ >= 0.5 || verformung_ <= 0) {
            verformung_ = std::clamp(verformung_, 0.0, 0.5);
            verformungSchritt_ = -verformungSchritt_;
        }
        sperre_ = true;
        abstumpfung_->setValue(verformung_);
        sperre_ = false;
        B1C();
    }
    if (s[0] != 0 || s[1] != 0 || s[2] != 0) drehen(s[0], s[1], s[2]);
    PB1_->update();
}

void TFpoly::PB1MD(QMouseEvent* e)
{
    zieht_ = true;
    druck_ = e->position().toPoint();
    PB1_->setCursor(Qt::ClosedHandCursor);
}

void TFpoly::PB1MM(QMouseEvent* e)
{
    if (!zieht_) return;
    const QPoint p = e->position().toPoint();
    const QPoint d = p - druck_;
    druck_ = p;
    // sideways turns about the vertical, up and down about the horizontal screen axis
    drehen(-d.x() * 0.5, -d.y() * 0.5, 0);
}

void TFpoly::PB1MU()
{
    zieht_ = false;
    PB1_->setCursor(Qt::OpenHandCursor);
}

poly::Darstellung TFpoly::darstellung() const
{
    poly::Darstellung d;
    d.kantenmodell = schalter_[sKanten]->isChecked();
    d.verdeckteKanten = schalter_[sVerdeckt]->isChecked();
    d.farbigeFlaechen = schalter_[sFarbig]->isChecked();
    d.bunteFlaechen = schalter_[sBunt]->isChecked();
    d.zweitafel = schalter_[sZwei]->isChecked();
    d.dreitafel = schalter_[sDrei]->isChecked();
    d.koordinatentabelle = schalter_[sTabelle]->isChecked();
    d.punkteHervorheben = schalter_[sPunkte]->isChecked();
    if (!form_.ecken.empty()) d.tabellenFaktor = poly::umkugelradius(form_) / bildgroesse_->value();
    if (LB1_->currentItem()) d.titel = LB1_->currentItem()->text().toStdString();
    if (art_ == poly::Abstumpfungen || art_ == poly::Sternkoerper)
        d.titel += "  (" + kernel::RealToStr(1, 2, verformung_) + ")";
    if (!form_.ecken.empty()) {
        const size_t e = form_.ecken.size(), k = poly::kanten(form_).size(), f = form_.flaechen.size();
        double lo, hi;
        poly::kantenlaengen(form_, lo, hi);
        d.unterzeile = "Ecken " + std::to_string(e) + ", Kanten " + std::to_string(k) + ", Flächen " +
                       std::to_string(f) + "   e − k + f = " + std::to_string(long(e) - long(k) + long(f)) +
                       "   Drehung " + kernel::RealToStr(1, 0, summe_[0]) + "°, " +
                       kernel::RealToStr(1, 0, summe_[1]) + "°, " + kernel::RealToStr(1, 0, summe_[2]) + "°";
        d.unterzeile2 = "Volumen " + zahl(poly::volumen(form_)) + "   Oberfläche " + zahl(poly::oberflaeche(form_)) +
                        (std::fabs(hi - lo) < 1e-9 ? "   bei Kantenlänge " + zahl(lo) : "");
    }
    return d;
}

void TFpoly::zeichne(platform::Canvas& c, int breite, int hoehe)
{
    if (koerper_.ecken.empty()) {
        platform::DrawToolTitle(c, breite, hoehe, QString::fromUtf8("Körper"), 14, platform::clWhite);
        c.setFontName("Verdana");
        c.setFontSize(10);
        c.textOutW(16, 70, QString::fromUtf8("Zu diesem Eintrag sind keine Eckpunkte vorhanden."));
        return;
    }
    poly::zeichnePolyeder(c, breite, hoehe, koerper_, darstellung());
}

QDialog* createTFpoly(QWidget* parent, int wahlseite, int wahlpunkt)
{
    return new TFpoly(parent, wahlseite, wahlpunkt);
}
