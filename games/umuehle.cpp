#include "games/umuehle.h"

#include "games/windows.h"
#include "platform/toolframe.h"

#include <QApplication>
#include <QButtonGroup>
#include <QDateTime>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QListWidget>
#include <QMouseEvent>
#include <QPainter>
#include <QPushButton>
#include <QRadioButton>
#include <QSpinBox>
#include <QTimer>
#include <QToolButton>
#include <QCheckBox>
#include <QElapsedTimer>
#include <QVBoxLayout>

using namespace muehle;
using platform::rgb;

namespace {

constexpr int kKopf = 60;   // the drawn title above the board
constexpr int kBrett = 520;

QString u8(const std::string& s) { return QString::fromUtf8(s.c_str()); }

// A quiet wood grain of 125 x 125 pixels, made once, which the board is tiled with.
const platform::Picture& holzkachel()
{
    static const platform::Picture kachel = [] {
        platform::Picture p(125, 125);
        for (int y = 0; y < 125; ++y) {
            auto* zeile = p.scanLine(y);
            for (int x = 0; x < 125; ++x) {
                const int welle = ((x * 7 + (y * y) / 40 + (x * y) / 90) % 23);
                const int r = 222 - welle / 2, g = 190 - welle / 2, b = 140 - welle / 3;
                zeile[x] = 0xFF000000u | (static_cast<unsigned>(r) << 16) | (static_cast<unsigned>(g) << 8) |
                           static_cast<unsigned>(b);
            }
        }
        return p;
    }();
    return kachel;
}

void stein(platform::Canvas& c, int x, int y, int spieler)
{
    c.setPenWidth(2);
    c.setBrushStyle(platform::BrushStyle::Solid);
    if (spieler == 2) {
        c.setBrushColor(rgb(0, 0, 0x80));
        c.setPenColor(platform::clSilver);
    } else {
        c.setBrushColor(platform::clWhite);
        c.setPenColor(platform::clGray);
    }
    c.ellipse(x - 20, y - 20, x + 21, y + 21);
    c.setBrushStyle(platform::BrushStyle::Clear);
    c.ellipse(x - 15, y - 15, x + 16, y + 16);
}

}  // namespace

void muehleZeichnen(platform::Canvas& c, const MuehleBild& bild)
{
    const auto& kachel = holzkachel();
    for (int y = 0; y < kBrett; y += 125)
        for (int x = 0; x < kBrett; x += 125)
            c.draw(x, y, kachel);
    c.setPenColor(platform::clBlack);
    c.setPenWidth(4);
    c.setPenStyle(platform::PenStyle::Solid);
    c.setBrushStyle(platform::BrushStyle::Clear);
    for (int i = 0; i < 3; ++i)
        c.frameRect(40 + 60 * i, 40 + 60 * i, 480 - 60 * i, 480 - 60 * i);
    const int speichen[4][4] = {{258, 40, 258, 160}, {258, 360, 258, 480}, {40, 258, 160, 258}, {360, 258, 480, 258}};
    for (const auto& s : speichen) {
        c.moveTo(s[0], s[1]);
        c.lineTo(s[2], s[3]);
    }
    c.setPenWidth(1);
    c.setBrushStyle(platform::BrushStyle::Solid);
    c.setBrushColor(platform::clWhite);
    for (int p = 0; p < kPunkte; ++p)
        c.ellipse(kPunktX[p] - 10, kPunktY[p] - 10, kPunktX[p] + 11, kPunktY[p] + 11);

    // Letters above and below, digits left and right.
    c.setBrushStyle(platform::BrushStyle::Clear);
    c.setFontName("Verdana");
    c.setFontSize(9);
    c.setFontStyle(0);
    c.setFontColor(platform::clBlack);
    const int spalten[7] = {40, 100, 160, 258, 360, 420, 480};
    for (int i = 0; i < 7; ++i) {
        const std::string b(1, static_cast<char>('A' + i));
        const int w = c.textWidth(b);
        c.textOut(spalten[i] - w / 2, 6, b);
        c.textOut(spalten[i] - w / 2, 500, b);
        const std::string z(1, static_cast<char>('7' - i));
        const int h = c.textHeight(z);
        c.textOut(10, spalten[i] - h / 2, z);
        c.textOut(500, spalten[i] - h / 2, z);
    }

    for (int p = 0; p < kPunkte; ++p)
        if (bild.stellung.brett[p] && p != bild.gehoben)
            stein(c, kPunktX[p], kPunktY[p], bild.stellung.brett[p]);

    const Zug& z = bild.letzter;
    if (z.nach != kKein && bild.vorgemerkt < 0) {
        c.setPenColor(platform::clBlue);
        c.setPenWidth(2);
        c.setBrushStyle(platform::BrushStyle::Clear);
        c.ellipse(kPunktX[z.nach] - 22, kPunktY[z.nach] - 22, kPunktX[z.nach] + 23, kPunktY[z.nach] + 23);
    }
    if (z.schlag != kKein && bild.vorgemerkt < 0) {
        const int x = kPunktX[z.schlag], y = kPunktY[z.schlag];
        c.setPenColor(platform::clRed);
        c.setPenWidth(2);
        c.moveTo(x - 12, y - 12);
        c.lineTo(x + 12, y + 12);
        c.moveTo(x + 12, y - 12);
        c.lineTo(x - 12, y + 12);
    }
    if (bild.gehoben >= 0)
        stein(c, bild.hand.x(), bild.hand.y(), bild.stellung.brett[bild.gehoben]);
}

// ---------------------------------------------------------------- board

TMuehleBrett::TMuehleBrett(Tfmuehle* owner) : QWidget(owner), owner_(owner)
{
    setFixedSize(kBrett, kBrett);
    setMouseTracking(false);
}

void TMuehleBrett::paintEvent(QPaintEvent*)
{
    // Drawn off-screen first and copied, so a dragged stone never flickers.
    platform::Picture bild(kBrett, kBrett);
    {
        platform::Canvas c(bild);
        muehleZeichnen(c, owner_->bild());
    }
    QPainter painter(this);
    platform::Canvas c(&painter);
    c.draw(0, 0, bild);
}

void TMuehleBrett::mousePressEvent(QMouseEvent* e) { owner_->Pb1MD(e->position().toPoint()); }
void TMuehleBrett::mouseMoveEvent(QMouseEvent* e) { owner_->Pb1MM(e->position().toPoint()); }
void TMuehleBrett::mouseReleaseEvent(QMouseEvent* e) { owner_->Pb1MU(e->position().toPoint()); }

// ---------------------------------------------------------------- window

Tfmuehle::Tfmuehle(QWidget* parent, int wahlseite, int wahlpunkt) : QDialog(parent)
{
    (void)wahlseite;
    (void)wahlpunkt;
    setWindowTitle("Quorix");
    resize(1008, 710);

    auto* aussen = new QHBoxLayout(this);
    aussen->setContentsMargins(16, kKopf + 10, 16, 12);
    aussen->setSpacing(20);
    auto* links = new QVBoxLayout;
    PB1_ = new TMuehleBrett(this);
    links->addWidget(PB1_);
    zugAnzeige_ = new QLabel;
    zugAnzeige_->setStyleSheet("font-size: 13pt; color: #000080;");
    links->addWidget(zugAnzeige_);
    auto* hilfe = new QLabel(QString::fromUtf8(
        "Setzen: freien Punkt anklicken. Ziehen und Springen: eigenen Stein mit der Maus auf einen "
        "freien Punkt ziehen. Nach einer Mühle den Stein anklicken, der geschlagen wird."));
    hilfe->setWordWrap(true);
    hilfe->setMaximumWidth(kBrett);
    hilfe->setStyleSheet("color: #505050;");
    links->addWidget(hilfe);
    links->addStretch();
    aussen->addLayout(links);

    auto* rechts = new QVBoxLayout;
    auto* knoepfe = new QHBoxLayout;
    D1_ = new QPushButton("Spielstart");
    D2_ = new QPushButton("Abbruch");
    D3_ = new QPushButton(QString::fromUtf8("Zurück"));
    knoepfe->addWidget(D1_);
    knoepfe->addWidget(D2_);
    knoepfe->addWidget(D3_);
    rechts->addLayout(knoepfe);

    auto* variante = new QGroupBox("Spielvariante");
    auto* vl = new QVBoxLayout(variante);
    RG1_ = new QButtonGroup(this);
    const char* items[3] = {"Spieler beginnt", "Computer beginnt", "Spieler gegen Spieler"};
    for (int i = 0; i < 3; ++i) {
        auto* rb = new QRadioButton(items[i]);
        RG1_->addButton(rb, i);
        vl->addWidget(rb);
    }
    RG1_->button(0)->setChecked(true);
    auto* staerke = new QHBoxLayout;
    staerke->addWidget(new QLabel(QString::fromUtf8("Spielstärke")));
    rx1_ = new QSpinBox;
    rx1_->setRange(1, 6);
    rx1_->setValue(3);
    staerke->addWidget(rx1_);
    staerke->addStretch();
    vl->addLayout(staerke);
    testausgabe_ = new QCheckBox("Testausgabe");
    testausgabe_->setToolTip(QString::fromUtf8("Die Suche schreibt ihre Bewertungen in die Liste der Spielzüge."));
    vl->addWidget(testausgabe_);
    rechts->addWidget(variante);

    auto* stand = new QGroupBox("Spielstand");
    auto* g = new QGridLayout(stand);
    g->addWidget(new QLabel("Zugzahl"), 0, 0);
    zugzahl_ = new QLabel("1");
    g->addWidget(zugzahl_, 0, 1);
    for (int p = 1; p <= 2; ++p) {
        name_[p] = new QLabel;
        name_[p]->setStyleSheet(p == 2 ? "font-weight: bold; color: #000080;" : "font-weight: bold;");
        steine_[p] = new QLabel;
        phase_[p] = new QLabel;
        vorrat_[p] = new QLabel;
        g->addWidget(name_[p], p, 0);
        g->addWidget(steine_[p], p, 1);
        g->addWidget(phase_[p], p, 2);
        g->addWidget(vorrat_[p], p, 3);
    }
    status_ = new QLabel(QString::fromUtf8("Ein Klick auf das Brett oder »Spielstart« beginnt ein Spiel."));
    status_->setWordWrap(true);
    status_->setStyleSheet("font-size: 12pt; font-weight: bold; color: #800000;");
    g->addWidget(status_, 3, 0, 1, 4);
    rechts->addWidget(stand);

    auto* zuege = new QGroupBox(QString::fromUtf8("Spielzüge"));
    auto* zl = new QVBoxLayout(zuege);
    LB1_ = new QListWidget;
    QFont mono("DejaVu Sans Mono");
    mono.setPointSize(10);
    LB1_->setFont(mono);
    zl->addWidget(LB1_);
    rechts->addWidget(zuege, 1);
    aussen->addLayout(rechts, 1);

    // Close, print, copy and save the board from the title band.
    const int arten[4] = {4, 3, 2, 1};
    for (int i = 0; i < 4; ++i) {
        auto* b = new QToolButton(this);
        platform::SetToolButton(b, arten[i]);
        b->setGeometry(1008 - 16 - 36 * (i + 1), 10, 32, 32);
        b->setAutoRaise(true);
        const auto malen = [this](platform::Canvas& c, int, int) { muehleZeichnen(c, bild()); };
        switch (arten[i]) {
        case 1: connect(b, &QToolButton::clicked, this, [this] { reject(); }); break;
        case 2: connect(b, &QToolButton::clicked, this, [this, malen] { platform::PrintPicture(kBrett, kBrett, malen, this); }); break;
        case 3: connect(b, &QToolButton::clicked, this, [this, malen] { platform::CopyPicture(kBrett, kBrett, malen, this); }); break;
        default: connect(b, &QToolButton::clicked, this, [this, malen] { platform::SavePicture(kBrett, kBrett, malen, this); }); break;
        }
    }

    connect(D1_, &QPushButton::clicked, this, [this] { D1C(); });
    connect(D2_, &QPushButton::clicked, this, [this] { D2C(); });
    connect(D3_, &QPushButton::clicked, this, [this] { D3C(); });
    connect(RG1_, &QButtonGroup::idClicked, this, [this](int id) { variante_ = id; });  // RG1C
    connect(rx1_, &QSpinBox::valueChanged, this, [this](int v) { suchtiefe_ = v; });   // Rx1C
    spiel_.start(Variante::SpielerBeginnt);
    // Before the first game the board stands empty and nothing runs.
    spiel_.abbrechen();
    anzeigen();
    status_->setText(QString::fromUtf8("Ein Klick auf das Brett oder »Spielstart« beginnt ein Spiel."));
}

MuehleBild Tfmuehle::bild() const
{
    MuehleBild b;
    b.stellung = spiel_.stellung();
    b.letzter = spiel_.letzterZug();
    b.gehoben = gehoben_;
    b.hand = hand_;
    if (schlagmodus_ && vorgemerkt_ >= 0) {
        // the stone already stands on its target while the capture is chosen
        if (vorgemerktVon_ != kKein)
            b.stellung.brett[vorgemerktVon_] = 0;
        b.stellung.brett[vorgemerkt_] = static_cast<std::uint8_t>(spiel_.anDerReihe());
        b.vorgemerkt = vorgemerkt_;
    }
    return b;
}

QString Tfmuehle::status() const { return status_->text(); }

QStringList Tfmuehle::spielzuege() const
{
    QStringList l;
    for (int i = 0; i < LB1_->count(); ++i)
        l << LB1_->item(i)->text();
    return l;
}

void Tfmuehle::setzeVariante(int item)
{
    RG1_->button(item)->setChecked(true);
    variante_ = item;
}

void Tfmuehle::setzeTestausgabe(bool an) { testausgabe_->setChecked(an); }

void Tfmuehle::setzeTiefe(int tiefe) { rx1_->setValue(tiefe); }

void Tfmuehle::anzeigen()
{
    const Stellung& s = spiel_.stellung();
    for (int p = 1; p <= 2; ++p) {
        name_[p]->setText(u8(spiel_.name(p)));
        steine_[p]->setText(u8(Muehlespiel::steineText(s.spieler[p].steine)));
        phase_[p]->setText(Muehlespiel::phasenwort(s.spieler[p].phase));
        // the reserve only matters while placing
        vorrat_[p]->setText(s.spieler[p].phase == Setzen ? QString("Vorrat %1").arg(s.spieler[p].vorrat) : QString());
    }
    zugzahl_->setText(QString::number(spiel_.zugzahl()));
    LB1_->clear();
    for (const std::string& z : spiel_.spielzuege())
        LB1_->addItem(u8(z));
    LB1_->scrollToBottom();
    PB1_->update();
}

void Tfmuehle::D1C()
{
    schlagmodus_ = false;
    gehoben_ = -1;
    vorgemerkt_ = -1;
    spiel_.start(static_cast<Variante>(variante_));
    zugAnzeige_->clear();
    anzeigen();
    status_->setText(u8(spiel_.amZugText()));
    if (spiel_.computerAmZug())
        Computerzug();
}

void Tfmuehle::D2C()
{
    if (spiel_.abbrechen()) {
        schlagmodus_ = false;
        gehoben_ = -1;
        status_->setText("Remis!");
        PB1_->update();
    }
}

void Tfmuehle::D3C()
{
    if (rechnet_ || !spiel_.zurueck())
        return;
    schlagmodus_ = false;
    gehoben_ = -1;
    vorgemerkt_ = -1;
    zugAnzeige_->clear();
    anzeigen();
    status_->setText(u8(spiel_.amZugText()));
    if (spiel_.computerAmZug())
        Computerzug();
}

void Tfmuehle::Computerzug()
{
    if (!spiel_.computerAmZug() || rechnet_)
        return;
    rechnet_ = true;
    status_->setText("PC denkt Nach!");
    status_->repaint();
    const int tiefe = suchtiefe_;  // the spin edit doesn't reach a search under way
    QApplication::setOverrideCursor(Qt::WaitCursor);
    Suche suche;
    suche.testausgabe = testausgabe_->isChecked();
    QElapsedTimer uhr;
    uhr.start();
    const Entscheidung e = spiel_.computerZiehen(tiefe, suche);
    const double sekunden = uhr.elapsed() / 1000.0;
    QApplication::restoreOverrideCursor();
    rechnet_ = false;
    if (e.gefunden) {
        zugAnzeige_->setText("Computer " + u8(zugText(e.zug)));
        nachZug(e.zug.schlag != kKein);
    }
    if (suche.testausgabe) {
        // The trace stands under the protocol until the next move rebuilds the list.
        for (const std::string& z : suche.ausgabe)
            LB1_->addItem(u8(z));
        if (!e.sofortsieg)
            LB1_->addItem(QString::asprintf("Rechenzeit: %0.2f Sek.", sekunden));
        LB1_->addItem(QString("%1 Stellungen").arg(suche.stellungen));
        LB1_->scrollToBottom();
    }
}

void Tfmuehle::ausfuehren(const Zug& z)
{
    schlagmodus_ = false;
    gehoben_ = -1;
    vorgemerkt_ = -1;
    const std::string wer = spiel_.anDerReihe() == 1 ? "Spieler " : spiel_.zweiSpieler() ? "Spieler " : "Computer ";
    if (!spiel_.ziehe(z)) {
        PB1_->update();
        return;
    }
    zugAnzeige_->setText(u8(wer + zugText(z)));
    nachZug(z.schlag != kKein);
}

void Tfmuehle::nachZug(bool geschlagen)
{
    anzeigen();
    if (!spiel_.laeuft()) {
        status_->setText(u8(spiel_.ergebnis()) + "\nSpielende!");
        return;
    }
    status_->setText(u8(spiel_.amZugText()));
    if (spiel_.computerAmZug()) {
        // A capture stays in view for a second before the computer answers.
        QTimer::singleShot(geschlagen ? 1000 : 30, this, [this] {
            zugAnzeige_->clear();
            Computerzug();
        });
    }
}

int Tfmuehle::treffer(QPoint p, int radius) const
{
    for (int q = 0; q < kPunkte; ++q)
        if (std::abs(p.x() - kPunktX[q]) <= radius && std::abs(p.y() - kPunktY[q]) <= radius)
            return q;
    return -1;
}

void Tfmuehle::Pb1MD(QPoint p)
{
    if (!spiel_.laeuft()) {
        D1C();
        if (!spiel_.laeuft() || spiel_.computerAmZug())
            return;
    }
    if (rechnet_)
        return;
    if (spiel_.computerAmZug()) {
        status_->setText("Nicht am Zug!");
        return;
    }
    const int wer = spiel_.anDerReihe();
    const bool setzen = spiel_.stellung().spieler[wer].phase == Setzen;
    const int radius = setzen ? 20 : 30;
    const int q = treffer(p, radius);
    if (q < 0)
        return;
    if (schlagmodus_) {
        for (const Zug& z : gemerkt_)
            if (z.schlag == q) {
                ausfuehren(z);
                return;
            }
        return;
    }
    const Zugliste legal = spiel_.legaleZuege();
    if (setzen) {
        Zugliste hier;
        for (const Zug& z : legal)
            if (z.nach == q)
                hier.push_back(z);
        if (hier.empty())
            return;
        if (hier.front().schlag == kKein) {
            ausfuehren(hier.front());
            return;
        }
        gemerkt_ = hier;
        schlagmodus_ = true;
        vorgemerkt_ = q;
        vorgemerktVon_ = kKein;
        status_->setText(u8(spiel_.name(wer) + " schlägt!"));
        PB1_->update();
        return;
    }
    // Moving and jumping: the stone is taken up and dragged.
    if (spiel_.stellung().brett[q] != wer)
        return;
    for (const Zug& z : legal)
        if (z.von == q) {
            gehoben_ = q;
            hand_ = p;
            PB1_->update();
            return;
        }
}

void Tfmuehle::Pb1MM(QPoint p)
{
    if (gehoben_ < 0)
        return;
    hand_ = p;
    PB1_->update();
}

void Tfmuehle::Pb1MU(QPoint p)
{
    if (gehoben_ < 0)
        return;
    const int von = gehoben_;
    gehoben_ = -1;
    // Pb1DO: a drop counts within 20 pixels of a legal target of this stone.
    const int q = treffer(p, 20);
    Zugliste hier;
    if (q >= 0)
        for (const Zug& z : spiel_.legaleZuege())
            if (z.von == von && z.nach == q)
                hier.push_back(z);
    if (hier.empty()) {  // Pb1ED: the stone goes back
        PB1_->update();
        return;
    }
    if (hier.front().schlag == kKein) {  // Pb1DD
        ausfuehren(hier.front());
        return;
    }
    gemerkt_ = hier;
    schlagmodus_ = true;
    vorgemerkt_ = q;
    vorgemerktVon_ = von;
    status_->setText(u8(spiel_.name(spiel_.anDerReihe()) + " schlägt!"));
    PB1_->update();
}

void Tfmuehle::paintEvent(QPaintEvent* e)
{
    QDialog::paintEvent(e);
    QPainter painter(this);
    platform::Canvas c(&painter);
    platform::DrawToolTitle(c, width(), kKopf, QString::fromUtf8("Mühle"), 14, rgb(240, 240, 232));
}

QDialog* createTfmuehle(QWidget* parent) { return new Tfmuehle(parent); }
