#include "geometry/ukonstru.h"

#include "geometry/windows.h"
#include "platform/codepage.h"
#include "platform/container.h"
#include "platform/toolframe.h"

#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QFileDialog>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QInputDialog>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QMouseEvent>
#include <QPainter>
#include <QPushButton>
#include <QStandardPaths>
#include <QSpinBox>
#include <QTabWidget>
#include <QTimer>
#include <QVBoxLayout>
#include <QWheelEvent>

#include <cmath>
#include <filesystem>

using namespace konstru;

namespace {

// the program's texte.dll; tests point it at a container of their own
std::string& textContainer()
{
    static std::string pfad = platform::programContainer("texte.dll");
    return pfad;
}

std::vector<std::string> ladeResource(const char* name) { return platform::loadTextListUtf8(textContainer(), name); }

QString u(const std::string& s) { return QString::fromUtf8(s.c_str(), static_cast<int>(s.size())); }
std::string s8(const QString& s) { return s.trimmed().toUtf8().toStdString(); }

// Mouse drawing actions. Clicks: P a point (hit or new), L a line-like object, X one click
// on a crossing of two objects. A third parameter comes from the angle field.
struct Aktion {
    const char* name;
    int art;
    const char* klicks;
    std::vector<const char*> status;
    bool winkel = false;
};

const char* const kP = "  Punkt mit der Maus anklicken";
const char* const kP2 = "  2.Punkt mit der Maus anklicken";
const char* const kP3 = "  3.Punkt mit der Maus anklicken";
const char* const kP4 = "  4.Punkt mit der Maus anklicken";
const char* const kG = "  Gerade mit der Maus anklicken";

const std::vector<Aktion>& aktionen()
{
    static const std::vector<Aktion> a = {
        {"Punkt", kPunkt, "P", {kP}},
        {"Strecke", kStrecke, "PP", {kP, kP2}},
        {"Gerade", kGerade, "PP", {kP, kP2}},
        {"Strahl", kStrahl, "PP", {kP, "  Zielpunkt mit der Maus anklicken"}},
        {"Vektor", kVektor, "PP", {"  Vektoranfangspunkt mit der Maus anklicken", "  Vektorendpunkt mit der Maus anklicken"}},
        {"Kreis", kKreisPeripherie, "PP", {"  Kreismittelpunkt mit der Maus anklicken", "  Peripheriepunkt mit der Maus anklicken"}},
        {"Kreis durch 3 Punkte", kKreis3, "PPP", {kP, kP2, kP3}},
        {"Kreisbogen", kKreisbogen, "PPP", {kP, kP2, kP3}},
        {"Mittelpunkt", kMittelpunkt, "PP", {kP, kP2}},
        {"Mittelsenkrechte", kMittelsenkrechte, "PP", {kP, kP2}},
        {"Senkrechte", kSenkrechte, "PL", {"  Punkt auf der Senkrechten mit der Maus anklicken", kG}},
        {"Parallele", kParallele, "LP", {kG, "  Punkt auf der Parallelen mit der Maus anklicken"}},
        {"Lot", kLot, "PL", {kP, kG}},
        {"Schnittpunkt", -1, "X", {"  Maus auf Schnittpunkt bewegen und links klicken"}},
        {"Winkelhalbierende", kWinkelhalbierende, "LL", {"  1.Gerade mit der Maus anklicken", "  2.Gerade mit der Maus anklicken"}},
        {"Winkel messen", kWinkelMessen, "PPP", {kP, "  Scheitelpunkt mit der Maus anklicken", "  2.Punkt auf Schenkel mit der Maus anklicken"}},
        {"Winkel antragen", kWinkelpunkt, "PP", {"  Scheitelpunkt mit der Maus anklicken", "Winkel rechts eintragen und anschließend  Punkt mit der Maus anklicken"}, true},
        {"Drehung", kDrehpunkt, "PP", {kP, "  Drehzentrum mit der Maus anklicken"}, true},
        {"Punktspiegelung", kPunktspiegelung, "PP", {kP, kP2}},
        {"Geradenspiegelung", kGeradenspiegelung, "PPP", {kP, "  1.Punkt der Spiegelgeraden mit der Maus anklicken", "  2.Punkt der Spiegelgeraden mit der Maus anklicken"}},
        {"Parallelogramm", kParallelogrammpunkt, "PPP", {kP, kP2, kP3}},
        {"Ellipse", kEllipse, "PP", {kP, kP2}},
        {"Bezierkurve", kBezier, "PPPP", {"2 Endpunkte und 2 Steuerungspunkte anklicken", kP2, kP3, kP4}},
    };
    return a;
}

// Field labels of the input row by kind (after "Bezeichnung"), with defaults.
struct Felder {
    std::vector<const char*> namen;
    std::vector<const char*> vorgabe;
};
Felder felderVon(int art)
{
    switch (art) {
    case kPunkt: return {{"x-Koordinate", "y-Koordinate"}, {"0", "0"}};
    case kStrecke: return {{"Anfangspunkt", "Endpunkt"}, {}};
    case kGerade: case kMittelpunkt: case kMittelsenkrechte: return {{"1.Punkt", "2.Punkt"}, {}};
    case kSenkrechte: case kLot: return {{"Punkt", "Gerade"}, {}};
    case kKreisRadius: return {{"Mittelpunkt", "Radius"}, {"", "1"}};
    case kKreisPeripherie: return {{"Mittelpunkt", "Peripheriepunkt"}, {}};
    case kSchnittpunkt: case kWinkelhalbierende: return {{"1.Gerade", "2.Gerade"}, {}};
    case kGeradeKreis: return {{"Gerade", "Kreis"}, {}};
    case kKreisKreis: return {{"1.Kreis", "2.Kreis"}, {}};
    case kParallele: return {{"Gerade", "Punkt"}, {}};
    case kDrehpunkt: return {{"Punkt", "Drehzentrum", "Drehwinkel °"}, {"", "", "30"}};
    case kKreis3: case kParallelogrammpunkt: return {{"1.Punkt", "2.Punkt", "3.Punkt"}, {}};
    case kKreisbogen: return {{"Anfangspunkt", "Bogenpunkt", "Endpunkt"}, {}};
    case kPunktspiegelung: return {{"Punkt", "Spiegelpunkt"}, {}};
    case kGeradenspiegelung: return {{"Punkt", "Spiegelgerade"}, {}};
    case kStreckeKreis: return {{"Strecke", "Kreis"}, {}};
    case kStrahl: return {{"Anfangspunkt", "Zielpunkt"}, {}};
    case kStift: return {{"Farbe", "Linienart 0-2", "Stiftstärke"}, {"0", "0", "1"}};
    case kStrahlKreis: return {{"Strahl", "Kreis"}, {}};
    case kWinkelMessen: return {{"Punkt auf Schenkel", "Scheitelpunkt", "Punkt auf 2.Schenkel"}, {}};
    case kStreckenpunkt: return {{"Anfangspunkt", "Endpunkt", "Teilverhältnis"}, {"", "", "0.5"}};
    case kKreispunkt: return {{"Kreis", "Winkel °"}, {"", "45"}};
    case kVektor: return {{"Vektoranfangspunkt", "Vektorendpunkt"}, {}};
    case kVerschiebung: return {{"Punkt", "Vektoranfangspunkt", "Vektorendpunkt"}, {}};
    case kKommentar: return {{"Kommentar"}, {""}};
    case kWinkelpunkt: return {{"Scheitelpunkt", "Punkt auf Schenkel", "Winkel °"}, {"", "", "45"}};
    default: return {};
    }
}

// LB2 lists the keyboard kinds; the two mouse-only kinds (ellipse, curve) have no entry.
int artVonEintrag(int index)
{
    if (index < 0) return -1;
    if (index <= kVerschiebung) return index;
    return index == kVerschiebung + 1 ? kKommentar : index == kVerschiebung + 2 ? kWinkelpunkt : -1;
}

bool istPaarArt(int art) { return art == kGeradeKreis || art == kKreisKreis || art == kStreckeKreis || art == kStrahlKreis; }

}  // namespace

// ---------------------------------------------------------------- panel

TKonstruFlaeche::TKonstruFlaeche(Tikonstru* owner) : QWidget(owner), owner_(owner)
{
    setMouseTracking(true);
    setMinimumSize(400, 300);
}

void TKonstruFlaeche::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    platform::Canvas c(&painter);
    owner_->zeichnen(c, width(), height());
}

void TKonstruFlaeche::mousePressEvent(QMouseEvent* e) { owner_->PB1D(e); }
void TKonstruFlaeche::mouseMoveEvent(QMouseEvent* e) { owner_->PB1M(e); }
void TKonstruFlaeche::mouseReleaseEvent(QMouseEvent* e) { owner_->PB1U(e); }
void TKonstruFlaeche::wheelEvent(QWheelEvent* e) { owner_->PB1Wheel(e->angleDelta().y()); }

// ---------------------------------------------------------------- window

void Tikonstru::setzeTextContainer(const std::string& pfad) { textContainer() = pfad; }

QDialog* createTikonstru(QWidget* parent, int wahlseite, int wahlpunkt)
{
    return new Tikonstru(parent, wahlseite, wahlpunkt);
}

Tikonstru::Tikonstru(QWidget* parent, int wahlseite, int wahlpunkt) : QDialog(parent)
{
    (void)wahlpunkt;
    setWindowTitle("Quorix");
    resize(1008, 710);
    beispiele_ = leseBeispiele(ladeResource("konstru"));
    arten_ = ladeResource("konstru2");
    baueOberflaeche();
    Grundeinstellung();
    // a catalogue page opens its example; without one the sheet starts empty
    if (wahlseite >= 1 && wahlseite <= static_cast<int>(beispiele_.size())) C2C(wahlseite - 1);
    Zeichenaktion("Strecke");
}

void Tikonstru::baueOberflaeche()
{
    auto* aussen = new QVBoxLayout(this);
    aussen->setContentsMargins(4, 2, 4, 4);
    aussen->setSpacing(3);
    auto* menue = new QMenuBar(this);
    baueMenue(menue);
    aussen->setMenuBar(menue);

    // toolbar of the most used actions
    auto* leiste = new QHBoxLayout;
    leiste->setSpacing(2);
    for (const char* n : {"Bewegen", "Punkt", "Strecke", "Gerade", "Kreis", "Mittelpunkt", "Mittelsenkrechte",
                          "Senkrechte", "Parallele", "Schnittpunkt", "Winkel messen"}) {
        auto* b = new QPushButton(n);
        b->setCheckable(true);
        b->setStyleSheet("QPushButton { padding: 3px 4px; }");
        b->setAutoDefault(false);
        b->setObjectName(n);
        const QString name = n;
        connect(b, &QPushButton::clicked, this, [this, name] { Zeichenaktion(name == "Bewegen" ? "" : name); });
        schalter_.push_back(b);
        leiste->addWidget(b);
    }
    leiste->addStretch();
    leiste->addWidget(new QLabel("Winkel °"));
    W_ = new QLineEdit("45");
    W_->setFixedWidth(50);
    leiste->addWidget(W_);
    aussen->addLayout(leiste);

    auto* mitte = new QHBoxLayout;
    auto* links = new QVBoxLayout;
    PB1_ = new TKonstruFlaeche(this);
    links->addWidget(PB1_, 1);
    auto* fuss = new QHBoxLayout;
    L1_ = new QLabel;
    L1_->setStyleSheet("QLabel { color: navy; font-weight: bold; }");
    fuss->addWidget(L1_, 1);
    L2_ = new QLabel;
    L2_->setMinimumWidth(150);
    fuss->addWidget(L2_);
    links->addLayout(fuss);
    mitte->addLayout(links, 1);

    auto* panel = new QWidget;
    panel->setFixedWidth(300);
    auto* pv = new QVBoxLayout(panel);
    pv->setContentsMargins(0, 0, 0, 0);
    pv->addWidget(new QLabel("Beispielkonstruktionen"));
    C2_ = new QComboBox;
    C2_->addItem("– Beispiel wählen –");
    for (const Beispiel& b : beispiele_) C2_->addItem(u(b.titel));
    connect(C2_, &QComboBox::activated, this, [this](int i) {
        if (i > 0) C2C(i - 1);
    });
    pv->addWidget(C2_);

    TC_ = new QTabWidget;
    // four tabs side by side in the narrow panel
    TC_->setStyleSheet("QTabBar::tab { padding: 3px 4px; }");
    TC_->setUsesScrollButtons(false);
    TC_->setElideMode(Qt::ElideNone);
    // steps
    auto* seite1 = new QWidget;
    auto* s1 = new QVBoxLayout(seite1);
    s1->setContentsMargins(2, 2, 2, 2);
    LB1_ = new QListWidget;
    LB1_->setObjectName("LB1");
    connect(LB1_, &QListWidget::itemChanged, this, [this](QListWidgetItem* it) {
        if (sperre_) return;
        timerstop();
        const int i = LB1_->row(it);
        if (i >= 0 && i < k_.anzahl()) k_.sichtbar[i] = it->checkState() == Qt::Checked;
        neuZeichnen();
    });
    s1->addWidget(LB1_, 1);
    auto* knoepfe = new QHBoxLayout;
    auto* D2 = new QPushButton("Löschen");
    connect(D2, &QPushButton::clicked, this, [this] { D2C(LB1_->currentRow()); });
    auto* S5 = new QPushButton("Alles löschen");
    connect(S5, &QPushButton::clicked, this, [this] { S5C(); });
    knoepfe->addWidget(D2);
    knoepfe->addWidget(S5);
    s1->addLayout(knoepfe);
    auto* schritte = new QHBoxLayout;
    Einzelschritt_ = new QCheckBox("Einzelschritt");
    connect(Einzelschritt_, &QCheckBox::toggled, this, [this](bool an) {
        einzelschritt_ = an;
        cursor_ = 0;
        neuZeichnen();
    });
    auto* S6 = new QPushButton("◀");
    auto* S9 = new QPushButton("▶");
    S6->setFixedWidth(36);
    S9->setFixedWidth(36);
    connect(S6, &QPushButton::clicked, this, [this] {
        cursor_ = std::max(0, cursor_ - 1);
        if (cursor_ > 0) LB1_->setCurrentRow(cursor_ - 1);
        neuZeichnen();
    });
    connect(S9, &QPushButton::clicked, this, [this] {
        cursor_ = std::min(k_.anzahl(), cursor_ + 1);
        if (cursor_ > 0) LB1_->setCurrentRow(cursor_ - 1);
        neuZeichnen();
    });
    schritte->addWidget(Einzelschritt_);
    schritte->addStretch();
    schritte->addWidget(S6);
    schritte->addWidget(S9);
    s1->addLayout(schritte);
    TC_->addTab(seite1, "Schritte");

    // input row
    auto* seite2 = new QWidget;
    auto* s2 = new QGridLayout(seite2);
    s2->setContentsMargins(4, 4, 4, 4);
    LB2_ = new QComboBox;
    for (const std::string& t : arten_) LB2_->addItem(u(t));
    s2->addWidget(LB2_, 0, 0, 1, 2);
    for (int i = 0; i < 5; ++i) {
        EL_[i] = new QLabel;
        E_[i] = new QLineEdit;
        s2->addWidget(EL_[i], i + 1, 0);
        s2->addWidget(E_[i], i + 1, 1);
    }
    auto* hinzu = new QPushButton("Hinzufügen");
    connect(hinzu, &QPushButton::clicked, this, [this] { Hinzufuegen(); });
    s2->addWidget(hinzu, 6, 1);
    s2->setRowStretch(7, 1);
    connect(LB2_, &QComboBox::currentIndexChanged, this, [this](int i) { C1C(i); });
    TC_->addTab(seite2, "Eingabe");

    Messergebnisse_ = new QListWidget;
    TC_->addTab(Messergebnisse_, "Messergebnisse");

    auto* seite4 = new QWidget;
    auto* s4 = new QGridLayout(seite4);
    s4->setContentsMargins(4, 4, 4, 4);
    s4->addWidget(new QLabel("Veränderbare Punkte"), 0, 0, 1, 2);
    LB3_ = new QListWidget;
    s4->addWidget(LB3_, 1, 0, 1, 2);
    s4->addWidget(new QLabel("Richtung"), 2, 0);
    Richtung_ = new QComboBox;
    Richtung_->addItems({"waagerecht", "senkrecht"});
    s4->addWidget(Richtung_, 2, 1);
    s4->addWidget(new QLabel("Geschwindigkeit"), 3, 0);
    Rx1_ = new QSpinBox;
    Rx1_->setRange(1, 10);
    Rx1_->setValue(10);
    s4->addWidget(Rx1_, 3, 1);
    S10_ = new QPushButton("Start");
    s4->addWidget(S10_, 4, 1);
    TC_->addTab(seite4, "Animation");
    Timer2_ = new QTimer(this);
    Timer2_->setInterval(10);
    connect(Timer2_, &QTimer::timeout, this, [this] { Timer2Timer(); });
    connect(S10_, &QPushButton::clicked, this, [this] { S10C(); });
    connect(Rx1_, &QSpinBox::valueChanged, this, [this](int v) { Timer2_->setInterval(animationsIntervall(v)); });
    pv->addWidget(TC_, 1);
    mitte->addWidget(panel);
    aussen->addLayout(mitte, 1);
    C1C(LB2_->count() > 1 ? 1 : 0);
    LB2_->setCurrentIndex(LB2_->count() > 1 ? 1 : 0);
}

void Tikonstru::baueMenue(QWidget* leiste)
{
    auto* bar = static_cast<QMenuBar*>(leiste);
    QMenu* datei = bar->addMenu("Datei");
    datei->addAction("Konstruktion laden …", this, [this] {
        const QString p = QFileDialog::getOpenFileName(this, "Konstruktion laden", QString(),
                                                       "Konstruktionsdatei (*.dyn)");
        if (!p.isEmpty() && !ladeDatei(p)) meldung("Die Datei enthält keine Konstruktion.");
    });
    datei->addAction("Konstruktion speichern …", this, [this] {
        QString p = QFileDialog::getSaveFileName(this, "Konstruktion speichern", QString(),
                                                 "Konstruktionsdatei (*.dyn)");
        if (p.isEmpty()) return;
        if (!p.endsWith(".dyn", Qt::CaseInsensitive)) p += ".dyn";
        if (!speichereDatei(p)) meldung("Die Konstruktion konnte nicht gespeichert werden.");
    });
    datei->addSeparator();
    auto malen = [this](platform::Canvas& c, int w, int h) { zeichnen(c, w, h); };
    datei->addAction("Abbildung speichern …", this,
                     [this, malen] { platform::SavePicture(PB1_->width(), PB1_->height(), malen, this); });
    datei->addAction("Abbildung kopieren", this,
                     [this, malen] { platform::CopyPicture(PB1_->width(), PB1_->height(), malen, this); });
    datei->addAction("Drucken …", this,
                     [this, malen] { platform::PrintPicture(PB1_->width(), PB1_->height(), malen, this); });
    datei->addSeparator();
    datei->addAction("Schließen", this, [this] { close(); });

    QMenu* akt = bar->addMenu("Zeichenaktion");
    akt->addAction("Punkte bewegen", this, [this] { Zeichenaktion(""); });
    for (const Aktion& a : aktionen()) {
        const QString n = a.name;
        akt->addAction(n, this, [this, n] { Zeichenaktion(n); });
    }

    QMenu* ansicht = bar->addMenu("Darstellung");
    achsenAktion_ = ansicht->addAction("Koordinatenachsen");
    gitterAktion_ = ansicht->addAction("Gitter");
    mmAktion_ = ansicht->addAction("Millimetergitter");
    for (QAction* a : {achsenAktion_, gitterAktion_, mmAktion_}) a->setCheckable(true);
    connect(achsenAktion_, &QAction::toggled, this, [this](bool an) { v_.achsen = an, PB1_->update(); });
    connect(gitterAktion_, &QAction::toggled, this, [this](bool an) { v_.gitter = an, PB1_->update(); });
    connect(mmAktion_, &QAction::toggled, this, [this](bool an) { v_.millimeter = an, PB1_->update(); });
    ansicht->addSeparator();
    ansicht->addAction("Darstellung vergrößern", this, [this] { zoom(1.1); });
    ansicht->addAction("Darstellung verkleinern", this, [this] { zoom(1 / 1.1); });
    ansicht->addAction("Grundeinstellung", this, [this] { Grundeinstellung(); });
}

void Tikonstru::Grundeinstellung()
{
    v_.einheit = 50;
    v_.panX = v_.panY = 0;
    achsenAktion_->setChecked(true);
    gitterAktion_->setChecked(false);
    mmAktion_->setChecked(false);
    PB1_->update();
}

void Tikonstru::zoom(double faktor)
{
    v_.einheit = std::clamp(v_.einheit * faktor, 2.0, 5000.0);
    PB1_->update();
}

Lauf Tikonstru::lauf() const { return k_.rechne(einzelschritt_ ? cursor_ : -1); }

void Tikonstru::zeichnen(platform::Canvas& c, int breite, int hoehe)
{
    zeichneKonstruktion(c, breite, hoehe, lauf(), v_);
}

void Tikonstru::neuZeichnen()
{
    const Lauf l = lauf();
    Messergebnisse_->clear();
    for (std::string m : l.messungen) {
        std::replace(m.begin(), m.end(), '\t', ' ');
        Messergebnisse_->addItem(u(m));
    }
    PB1_->update();
}

void Tikonstru::listeAnzeigen(int auswahl)
{
    sperre_ = true;
    LB1_->clear();
    for (int i = 0; i < k_.anzahl(); ++i) {
        Schritt s;
        QString text = u(k_.zeilen[i]);
        if (zerlege(k_.zeilen[i], s)) {
            std::string p;
            for (std::size_t j = 0; j < s.parameter.size(); ++j) p += (j ? ", " : "") + s.parameter[j];
            text = u(s.wort + " " + (s.name == "." ? std::string() : s.name) + "  (" + p + ")");
        }
        auto* it = new QListWidgetItem(text, LB1_);
        it->setFlags(it->flags() | Qt::ItemIsUserCheckable);
        it->setCheckState(k_.sichtbar[i] ? Qt::Checked : Qt::Unchecked);
    }
    if (auswahl < 0) auswahl = k_.anzahl() - 1;
    veraenderbareZeigen();
    if (auswahl >= 0) LB1_->setCurrentRow(auswahl);
    sperre_ = false;
    neuZeichnen();
}

QStringList Tikonstru::beispielTitel() const
{
    QStringList t;
    for (const Beispiel& b : beispiele_) t << u(b.titel);
    return t;
}

bool Tikonstru::C2C(int index)
{
    if (index < 0 || index >= static_cast<int>(beispiele_.size())) return false;
    timerstop();
    k_.setze(beispiele_[index].zeilen);
    cursor_ = 0;
    C2_->setCurrentIndex(index + 1);
    listeAnzeigen();
    return true;
}

bool Tikonstru::ladeDatei(const QString& pfad)
{
    timerstop();
    if (!k_.lade(s8(pfad))) return false;
    cursor_ = 0;
    listeAnzeigen();
    return true;
}

bool Tikonstru::speichereDatei(const QString& pfad) { return k_.speichere(s8(pfad)); }

void Tikonstru::meldung(const QString& text)
{
    meldung_ = text;
    if (!isVisible()) return;
    // window-modal but not blocking, so the construction stays as it was behind it
    auto* box = new QMessageBox(QMessageBox::Information, "Quorix", text, QMessageBox::Ok, this);
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->open();
}

bool Tikonstru::schrittAnhaengen(const std::string& zeile)
{
    if (!k_.hinzufuegen(zeile)) {
        meldung(u(platform::cp1252ToUtf8(platform::messageText(kMeldungHoechstzahl))));
        return false;
    }
    return true;
}

void Tikonstru::S5C()
{
    if (QMessageBox::question(this, "Quorix", "Konstruktion wirklich löschen?") != QMessageBox::Yes) return;
    k_.leere();
    cursor_ = 0;
    listeAnzeigen();
}

bool Tikonstru::D2C(int index, bool fragen)
{
    if (index < 0 || index >= k_.anzahl()) return false;
    if (fragen && QMessageBox::question(this, "Quorix", "Konstruktionsschritt wirklich löschen?") != QMessageBox::Yes)
        return false;
    const std::string fehler = k_.loesche(index);
    if (!fehler.empty()) {
        meldung(u(fehler));
        return false;
    }
    listeAnzeigen(std::min(index, k_.anzahl() - 1));
    return true;
}

// ---------------------------------------------------------------- input row

void Tikonstru::C1C(int index)
{
    timerstop();
    if (LB2_->currentIndex() != index) LB2_->setCurrentIndex(index);  // comes back here once
    const int art = artVonEintrag(index);
    const Felder f = felderVon(art);
    EL_[0]->setText("Bezeichnung");
    E_[0]->setText(u(k_.naechsterName(art)));
    if (istPaarArt(art)) E_[0]->setText(u(k_.naechstesPaar()));
    E_[0]->setEnabled(std::string(namensAnfang(art)) != ".");
    for (int i = 1; i < 5; ++i) {
        const bool da = i - 1 < static_cast<int>(f.namen.size());
        EL_[i]->setText(da ? f.namen[i - 1] : "");
        E_[i]->setVisible(da);
        E_[i]->setText(da && i - 1 < static_cast<int>(f.vorgabe.size()) ? f.vorgabe[i - 1] : "");
    }
}

void Tikonstru::setzeFeld(int nr, const QString& text)
{
    if (nr >= 0 && nr < 5) E_[nr]->setText(text);
}

QString Tikonstru::feldText(int nr) const { return nr >= 0 && nr < 5 ? E_[nr]->text() : QString(); }

bool Tikonstru::Hinzufuegen()
{
    const int art = artVonEintrag(LB2_->currentIndex());
    if (art < 0) return false;
    const int n = static_cast<int>(felderVon(art).namen.size());
    std::vector<std::string> p;
    for (int i = 1; i <= n; ++i) {
        std::string t = s8(E_[i]->text());
        if (art != kKommentar) std::replace(t.begin(), t.end(), ',', '.');
        if (t.empty()) {
            meldung("Bitte alle Felder ausfüllen.");
            return false;
        }
        p.push_back(t);
    }
    std::string name = std::string(namensAnfang(art)) == "." ? "." : s8(E_[0]->text());
    if (name.empty()) name = istPaarArt(art) ? k_.naechstesPaar() : k_.naechsterName(art);
    if (!schrittAnhaengen(zeile(art, name, p))) return false;
    listeAnzeigen();
    C1C(LB2_->currentIndex());
    return true;
}

// ---------------------------------------------------------------- mouse

bool Tikonstru::Zeichenaktion(const QString& name)
{
    int neu = -1;
    if (!name.isEmpty()) {
        for (std::size_t i = 0; i < aktionen().size() && neu < 0; ++i)
            if (name == aktionen()[i].name) neu = static_cast<int>(i);
        if (neu < 0) return false;
    }
    aktion_ = neu;
    klicks_.clear();
    schalterzurueck();
    zeigeStatus();
    return true;
}

void Tikonstru::schalterzurueck()
{
    const QString aktiv = aktion_ < 0 ? "Bewegen" : aktionen()[aktion_].name;
    for (QPushButton* b : schalter_) b->setChecked(b->objectName() == aktiv);
}

void Tikonstru::zeigeStatus()
{
    if (aktion_ < 0) {
        L1_->setText("  Freie Punkte (rot) mit der Maus ziehen, rechte Maustaste benennt um");
        return;
    }
    const Aktion& a = aktionen()[aktion_];
    L1_->setText(u(a.status[std::min(klicks_.size(), a.status.size() - 1)]));
}

QString Tikonstru::status() const { return L1_->text(); }

std::string Tikonstru::punktBei(QPointF pixel, bool anlegen)
{
    const Lauf l = lauf();
    for (const BenannterPunkt& p : l.punkte) {
        if (p.name == zieht_) continue;
        if (std::fabs(v_.px(p.p.x, PB1_->width()) - pixel.x()) < 5 && std::fabs(v_.py(p.p.y, PB1_->height()) - pixel.y()) < 5)
            return p.name;
    }
    if (!anlegen) return "";
    // a click near the border stays on the sheet
    double x = pixel.x() < 5 ? 10 : pixel.x(), y = pixel.y() < 5 ? 10 : pixel.y();
    const P2 w = v_.welt(x, y, PB1_->width(), PB1_->height());
    const std::string name = k_.naechsterName(kPunkt);
    if (!schrittAnhaengen(zeile(kPunkt, name, {zahlText(w.x), zahlText(w.y)}))) return "";
    return name;
}

std::string Tikonstru::objektBei(QPointF pixel, bool nurLinien, const std::string& ausser)
{
    const Lauf l = lauf();
    const P2 w = v_.welt(pixel.x(), pixel.y(), PB1_->width(), PB1_->height());
    const double fang = 6 / v_.einheit;
    for (const BenannteLinie& g : l.linien) {
        if (g.name == ausser) continue;
        const P2 d{g.b.x - g.a.x, g.b.y - g.a.y};
        double t = ((w.x - g.a.x) * d.x + (w.y - g.a.y) * d.y) / (d.x * d.x + d.y * d.y);
        if (g.form == Form::Strecke || g.form == Form::Vektor) t = std::clamp(t, 0.0, 1.0);
        if (g.form == Form::Strahl) t = std::max(t, 0.0);
        if (std::hypot(g.a.x + t * d.x - w.x, g.a.y + t * d.y - w.y) < fang) return g.name;
    }
    if (nurLinien) return "";
    for (const BenannterKreis& k : l.kreise)
        if (k.name != ausser && std::fabs(std::hypot(w.x - k.m.x, w.y - k.m.y) - k.r) < fang) return k.name;
    return "";
}

void Tikonstru::klickAusfuehren(QPointF pixel)
{
    const Aktion& a = aktionen()[aktion_];
    const char art = a.klicks[klicks_.size()];
    if (art == 'X') {
        const std::string o1 = objektBei(pixel, false);
        const std::string o2 = o1.empty() ? "" : objektBei(pixel, false, o1);
        if (o2.empty()) return;
        const Lauf l = lauf();
        const BenannteLinie* g1 = l.linie(o1);
        const BenannteLinie* g2 = l.linie(o2);
        if (g1 && g2) {
            schrittAnhaengen(zeile(kSchnittpunkt, k_.naechsterName(kSchnittpunkt), {o1, o2}));
        } else if (g1 || g2) {
            const BenannteLinie* g = g1 ? g1 : g2;
            const int typ = g->form == Form::Gerade ? kGeradeKreis : g->form == Form::Strahl ? kStrahlKreis : kStreckeKreis;
            schrittAnhaengen(zeile(typ, k_.naechstesPaar(), {g->name, g1 ? o2 : o1}));
        } else {
            schrittAnhaengen(zeile(kKreisKreis, k_.naechstesPaar(), {o1, o2}));
        }
        aktionFertig();
        return;
    }
    const std::string name = art == 'L' ? objektBei(pixel, true) : punktBei(pixel, true);
    if (name.empty()) return;
    klicks_.push_back(name);
    if (klicks_.size() < std::string(a.klicks).size()) {
        listeAnzeigen();
        zeigeStatus();
        return;
    }
    std::vector<std::string> p = klicks_;
    if (a.winkel) {
        bool ok = false;
        const double w = W_->text().trimmed().replace(',', '.').toDouble(&ok);
        p.push_back(zahlText(ok ? w : 45));
    }
    if (a.art == kPunkt) {
        // the point itself was the step
    } else if (a.art == kGeradenspiegelung) {
        const std::string g = k_.naechsterName(kGerade);
        if (schrittAnhaengen(zeile(kGerade, g, {p[1], p[2]})))
            schrittAnhaengen(zeile(kGeradenspiegelung, k_.naechsterName(kGeradenspiegelung), {p[0], g}));
    } else {
        const std::string n = std::string(namensAnfang(a.art)) == "." ? "." : k_.naechsterName(a.art);
        schrittAnhaengen(zeile(a.art, n, p));
    }
    aktionFertig();
}

void Tikonstru::aktionFertig()
{
    klicks_.clear();
    listeAnzeigen();
    C1C(LB2_->currentIndex());
    zeigeStatus();
}

void Tikonstru::PB1D(QMouseEvent* e)
{
    timerstop();
    const QPointF p = e->position();
    if (e->button() == Qt::RightButton) {
        std::string n = punktBei(p, false);
        if (n.empty()) n = objektBei(p, false);
        if (!n.empty()) umbenennen(n);
        return;
    }
    if (aktion_ >= 0) {
        klickAusfuehren(p);
        return;
    }
    const Lauf l = lauf();
    for (const BenannterPunkt& q : l.punkte)
        if (q.frei && std::fabs(v_.px(q.p.x, PB1_->width()) - p.x()) < 5 &&
            std::fabs(v_.py(q.p.y, PB1_->height()) - p.y()) < 5) {
            zieht_ = q.name;
            v_.markiert = q.name;
            return;
        }
    pant_ = true;
    druck_ = p.toPoint();
}

void Tikonstru::PB1M(QMouseEvent* e)
{
    const QPointF p = e->position();
    const P2 w = v_.welt(p.x(), p.y(), PB1_->width(), PB1_->height());
    L2_->setText(QString("x = %1   y = %2").arg(u(zahlText(std::round(w.x * 100) / 100)), u(zahlText(std::round(w.y * 100) / 100))));
    if (!zieht_.empty()) {
        const double x = p.x() < 5 ? 10 : p.x(), y = p.y() < 5 ? 10 : p.y();
        k_.verschiebe(zieht_, v_.welt(x, y, PB1_->width(), PB1_->height()));
        neuZeichnen();
    } else if (pant_) {
        v_.panX += p.x() - druck_.x();
        v_.panY += p.y() - druck_.y();
        druck_ = p.toPoint();
        PB1_->update();
    }
}

void Tikonstru::PB1U(QMouseEvent*)
{
    if (!zieht_.empty()) listeAnzeigen(LB1_->currentRow());
    zieht_.clear();
    v_.markiert.clear();
    pant_ = false;
    PB1_->update();
}

void Tikonstru::PB1Wheel(int delta)
{
    if (delta != 0) zoom(delta > 0 ? 1.01 : 1 / 1.01);
}

void Tikonstru::umbenennen(const std::string& name)
{
    QInputDialog d(this);
    d.setWindowTitle("Objekt umbenennen");
    d.setLabelText("Neuer Name für " + u(name) + ":");
    d.setTextValue(u(name));
    d.setOkButtonText("Übernehmen");
    d.setCancelButtonText("Abbrechen");
    if (d.exec() != QDialog::Accepted) return;
    if (!k_.umbenennen(name, s8(d.textValue()))) {
        meldung("Der Name ist ungültig oder schon vergeben.");
        return;
    }
    listeAnzeigen(LB1_->currentRow());
}

void Tikonstru::setzeWinkel(const QString& grad) { W_->setText(grad); }

// ---------------------------------------------------------------- animation

void Tikonstru::veraenderbareZeigen()
{
    const QString alt = LB3_->currentItem() ? LB3_->currentItem()->data(Qt::UserRole).toString() : QString();
    LB3_->clear();
    for (const BenannterPunkt& p : k_.rechne().punkte) {
        if (!p.frei) continue;
        auto* it = new QListWidgetItem(u(p.name + "   x = " + zahlText(p.p.x) + "   y = " + zahlText(p.p.y)), LB3_);
        it->setData(Qt::UserRole, u(p.name));
        if (u(p.name) == alt) LB3_->setCurrentItem(it);
    }
}

bool Tikonstru::markiereVeraenderbar(const QString& name)
{
    for (int i = 0; i < LB3_->count(); ++i)
        if (LB3_->item(i)->data(Qt::UserRole).toString() == name) {
            LB3_->setCurrentRow(i);
            return true;
        }
    return false;
}

void Tikonstru::setzeRichtung(bool senkrecht) { Richtung_->setCurrentIndex(senkrecht ? 1 : 0); }

bool Tikonstru::S10C()
{
    if (Timer2_->isActive()) {
        timerstop();
        return false;
    }
    if (!LB3_->currentItem()) {
        if (LB3_->count() == 0) return false;
        LB3_->setCurrentRow(0);
    }
    animRichtung_ = 1;
    Timer2_->setInterval(animationsIntervall(Rx1_->value()));
    Timer2_->start();
    S10_->setText("Stopp");
    return true;
}

void Tikonstru::timerstop()
{
    if (!Timer2_ || !Timer2_->isActive()) return;
    Timer2_->stop();
    S10_->setText("Start");
    listeAnzeigen(LB1_->currentRow());
}

void Tikonstru::Timer2Timer()
{
    if (!LB3_->currentItem()) return timerstop();
    const std::string name = s8(LB3_->currentItem()->data(Qt::UserRole).toString());
    const BenannterPunkt* p = nullptr;
    const Lauf l = k_.rechne();
    p = l.punkt(name);
    if (!p) return timerstop();
    k_.verschiebe(name, animationsSchritt(p->p, animRichtung_, Richtung_->currentIndex() == 1, v_, PB1_->width(),
                                          PB1_->height()));
    neuZeichnen();
}
