#include "dynamics/ugameoflife.h"
#include "dynamics/windows.h"

#include "platform/toolframe.h"

#include <QAction>
#include <QCheckBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QMenuBar>
#include <QMouseEvent>
#include <QPainter>
#include <QPushButton>
#include <QSpinBox>
#include <QStackedWidget>
#include <QTimer>
#include <QVBoxLayout>
#include <algorithm>

namespace dynamics {

namespace {

constexpr int kTitleHeight = 56;  // below the rule of the title
constexpr int kDiagramHeight = 170;
constexpr size_t kMaxHistory = 20000;  // older values are dropped, the diagram keeps its width

const char* simulationTitle(Simulation s)
{
    switch (s) {
    case Simulation::Life: return "Game of Life";
    case Simulation::Donnelly: return "Donnelly-Simulation";
    case Simulation::WaTor: return "Wa-Tor";
    }
    return "";
}

QSpinBox* spin(QWidget* parent, const char* name, int lo, int hi, int value)
{
    auto* s = new QSpinBox(parent);
    s->setObjectName(name);
    s->setRange(lo, hi);
    s->setValue(value);
    return s;
}

}  // namespace

class LifeView : public QWidget {
public:
    explicit LifeView(TForm14* owner) : QWidget(owner), owner_(owner)
    {
        setObjectName("PB1");
        setMinimumSize(300, 300);
        setAttribute(Qt::WA_OpaquePaintEvent);
    }

protected:
    void paintEvent(QPaintEvent*) override
    {
        // squares go to an off-screen picture first, then to the screen in one piece
        const platform::Picture pic = platform::paintPicture(
            width(), height(), [this](platform::Canvas& c, int w, int h) { owner_->PB1P(c, w, h); });
        QPainter p(this);
        p.drawImage(0, 0, pic.image());
    }
    void mousePressEvent(QMouseEvent* ev) override
    {
        owner_->PB1D(ev->pos().x(), ev->pos().y(), width(), height());
    }

private:
    TForm14* owner_;
};

TForm14::TForm14(QWidget* parent, int wahlseite, int wahlpunkt, std::vector<std::string> patternLines)
    : QDialog(parent), wahlseite_(wahlseite), wahlpunkt_(wahlpunkt), life_(60)
{
    if (patternLines.empty()) patternLines = loadPatternLines();
    patterns_ = parsePatterns(patternLines);
    shownPatterns_ = availablePatterns(patterns_);
    FormCreate();
}

TForm14::~TForm14() = default;

void TForm14::FormCreate()
{
    setWindowTitle("Quorix");
    resize(1008, 710);
    auto* haupt = new QHBoxLayout(this);
    haupt->setContentsMargins(6, 4, 6, 6);

    auto* menue = new QMenuBar(this);
    QMenu* sims = menue->addMenu("Simulationen");
    sims->addAction("Game of Life", this, [this] { setSimulation(Simulation::Life); });
    sims->addAction("Donnelly-Simulation", this, [this] { setSimulation(Simulation::Donnelly); });
    sims->addAction("Wa-Tor", this, [this] { setSimulation(Simulation::WaTor); });
    QMenu* steuerung = menue->addMenu("Steuerung");
    simulationAction_ = steuerung->addAction("Simulation", this, [this] { setRunning(!running()); });
    simulationAction_->setCheckable(true);
    steuerung->addAction("Einzelschritt", this, &TForm14::einzelschritt);
    steuerung->addAction("Neustart", this, &TForm14::S15C);
    QMenu* datei = menue->addMenu("Datei");
    auto paint = [this](platform::Canvas& c, int w, int h) { PB1P(c, w, h); };
    datei->addAction("Speichern", this, [this, paint] { platform::SavePicture(PB1_->width(), PB1_->height(), paint, this); });
    datei->addAction("Kopieren", this, [this, paint] { platform::CopyPicture(PB1_->width(), PB1_->height(), paint, this); });
    datei->addAction("Drucken", this, [this, paint] { platform::PrintPicture(PB1_->width(), PB1_->height(), paint, this); });
    datei->addSeparator();
    datei->addAction("Beenden", this, &QDialog::accept);
    haupt->setMenuBar(menue);

    PB1_ = new LifeView(this);
    haupt->addWidget(PB1_, 1);

    auto* rechtsBreite = new QWidget(this);
    rechtsBreite->setFixedWidth(370);
    auto* rechts = new QVBoxLayout(rechtsBreite);
    rechts->setContentsMargins(0, 0, 0, 0);
    haupt->addWidget(rechtsBreite);

    title_ = new QLabel(this);
    title_->setObjectName("titel");
    title_->setStyleSheet("background:#303848; color:white; padding:4px 8px; font-weight:bold; font-size:15px;");
    rechts->addWidget(title_);

    panels_ = new QStackedWidget(this);
    panels_->addWidget(buildLifePanel());
    panels_->addWidget(buildDonnellyPanel());
    panels_->addWidget(buildWaTorPanel());
    rechts->addWidget(panels_, 1);

    auto* feld = new QGroupBox("Spielfeld", this);
    auto* fl = new QGridLayout(feld);
    groesseFeld_ = spin(this, "T1", 0, 999, 60);
    zellFeld_ = spin(this, "Groesse", 0, 99, cellPixels_);
    verzoegerung_ = spin(this, "T2", 0, 5000, 100);
    verzoegerung_->setSuffix(" ms");
    fl->addWidget(new QLabel("Zellen je Seite", this), 0, 0);
    fl->addWidget(groesseFeld_, 0, 1);
    fl->addWidget(new QLabel("Größe", this), 0, 2);
    fl->addWidget(zellFeld_, 0, 3);
    fl->addWidget(new QLabel("Verzögerung", this), 1, 0);
    fl->addWidget(verzoegerung_, 1, 1);
    gitter_ = new QCheckBox("Gitter", this);
    gitter_->setChecked(true);
    fl->addWidget(gitter_, 1, 2);
    diagramm_ = new QCheckBox("Diagramm zeichnen", this);
    diagramm_->setObjectName("diagramm");
    fl->addWidget(diagramm_, 2, 0, 1, 4);
    rechts->addWidget(feld);
    connect(groesseFeld_, &QSpinBox::editingFinished, this, [this] { T1C(); S15C(); });
    connect(zellFeld_, &QSpinBox::editingFinished, this, &TForm14::T1C);
    connect(zellFeld_, &QSpinBox::valueChanged, this, [this] { T1C(); });
    connect(verzoegerung_, &QSpinBox::valueChanged, this, &TForm14::T2C);
    connect(gitter_, &QCheckBox::toggled, PB1_, qOverload<>(&QWidget::update));
    connect(diagramm_, &QCheckBox::toggled, PB1_, qOverload<>(&QWidget::update));

    status_ = new QLabel(this);
    status_->setObjectName("status");
    status_->setStyleSheet("font-weight:bold; padding:3px;");
    status_->setWordWrap(true);
    rechts->addWidget(status_);

    auto* knoepfe = new QHBoxLayout;
    startButton_ = new QPushButton("Start", this);
    startButton_->setObjectName("S1");
    auto* schritt = new QPushButton("Einzelschritt", this);
    auto* neu = new QPushButton("Neustart", this);
    neu->setObjectName("S15");
    auto* ende = new QPushButton("Beenden", this);
    knoepfe->addWidget(startButton_);
    knoepfe->addWidget(schritt);
    knoepfe->addWidget(neu);
    knoepfe->addWidget(ende);
    rechts->addLayout(knoepfe);
    connect(startButton_, &QPushButton::clicked, this, [this] { setRunning(!running()); });
    connect(schritt, &QPushButton::clicked, this, &TForm14::einzelschritt);
    connect(neu, &QPushButton::clicked, this, &TForm14::S15C);
    connect(ende, &QPushButton::clicked, this, &QDialog::accept);

    timer_ = new QTimer(this);
    connect(timer_, &QTimer::timeout, this, &TForm14::tick);
    T2C();

    donnelly_ = std::make_unique<Donnelly>(60, 4, 1);
    wator_ = std::make_unique<WaTor>(waTorSettings(), 1);

    const Simulation start = wahlseite_ >= 0 && wahlseite_ <= 2 ? static_cast<Simulation>(wahlseite_) : Simulation::Life;
    setSimulation(start);
    if (start == Simulation::Life) {
        int row = 0;
        for (size_t k = 0; k < shownPatterns_.size(); ++k)
            if (shownPatterns_[k].number == wahlpunkt_) row = static_cast<int>(k);
        if (!shownPatterns_.empty()) LB1_->setCurrentRow(row);  // loads it through LB1C
    }
}

QWidget* TForm14::buildLifePanel()
{
    auto* w = new QWidget(this);
    auto* l = new QVBoxLayout(w);
    l->setContentsMargins(0, 0, 0, 0);
    l->addWidget(new QLabel("Game of Life - Standardsituationen", w));
    LB1_ = new QListWidget(w);
    LB1_->setObjectName("LB1");
    for (const PatternName& n : shownPatterns_)
        LB1_->addItem(QString::fromUtf8(n.name));
    l->addWidget(LB1_, 1);
    connect(LB1_, &QListWidget::currentRowChanged, this, &TForm14::LB1C);

    auto* regel = new QGroupBox("Regel", w);
    auto* g = new QGridLayout(regel);
    g->setHorizontalSpacing(4);
    g->addWidget(new QLabel("Geburt", w), 0, 0);
    g->addWidget(new QLabel("Tod", w), 1, 0);
    for (int k = 0; k <= 8; ++k) {
        geburt_[k] = new QCheckBox(w);
        geburt_[k]->setObjectName(QString("Geburt%1").arg(k));
        tod_[k] = new QCheckBox(w);
        tod_[k]->setObjectName(QString("Tod%1").arg(k));
        g->addWidget(geburt_[k], 0, k + 1, Qt::AlignHCenter);
        g->addWidget(tod_[k], 1, k + 1, Qt::AlignHCenter);
        connect(geburt_[k], &QCheckBox::toggled, this, &TForm14::readRule);
        connect(tod_[k], &QCheckBox::toggled, this, &TForm14::readRule);
    }
    // the neighbour counts stand under their own boxes
    for (int k = 0; k <= 8; ++k)
        g->addWidget(new QLabel(QString::number(k), w), 2, k + 1, Qt::AlignHCenter);
    g->addWidget(new QLabel("Nachbarn", w), 2, 10);
    auto* grund = new QPushButton("Grundeinstellung", w);
    g->addWidget(grund, 3, 0, 1, 4);
    connect(grund, &QPushButton::clicked, this, &TForm14::grundeinstellung);
    torus_ = new QCheckBox("Torus als Spielfeld", w);
    torus_->setObjectName("torus");
    g->addWidget(torus_, 3, 4, 1, 6);
    connect(torus_, &QCheckBox::toggled, this, [this](bool on) { life_.torus = on; });
    l->addWidget(regel);

    auto* unten = new QHBoxLayout;
    auto* zufall = new QPushButton("Zufallsfeld", w);
    zufall->setObjectName("zufall");
    auto* leeren = new QPushButton("Spielfeld löschen", w);
    unten->addWidget(zufall);
    unten->addWidget(leeren);
    l->addLayout(unten);
    connect(zufall, &QPushButton::clicked, this, [this] {
        // about every third cell alive, in the first kind
        LB1_->setCurrentRow(-1);
        life_.setBoardSize(boardSize());
        std::uniform_int_distribution<int> d(0, 2);
        for (int r = 1; r <= life_.boardSize(); ++r)
            for (int c = 1; c <= life_.boardSize(); ++c)
                if (d(rng_) == 0) life_.setCell(r, c, 1);
        verlauf_.clear();
        record();
        showState();
    });
    connect(leeren, &QPushButton::clicked, this, [this] {
        life_.clear();
        verlauf_.clear();
        record();
        showState();
    });
    grundeinstellung();
    return w;
}

QWidget* TForm14::buildDonnellyPanel()
{
    auto* w = new QGroupBox("Donnelly-Simulation", this);
    auto* g = new QGridLayout(w);
    gruppen_ = spin(w, "gruppen", 0, 99, 4);
    aenderungen_ = spin(w, "aenderungen", -999999, 999999, 2000);
    g->addWidget(new QLabel("Anzahl der Gruppen", w), 0, 0);
    g->addWidget(gruppen_, 0, 1);
    g->addWidget(new QLabel("Anzeige aller", w), 1, 0);
    g->addWidget(aenderungen_, 1, 1);
    g->addWidget(new QLabel("Änderungen", w), 1, 2);
    auto* text = new QLabel(
        "Jede Zelle gehört zu einer Gruppe. In jedem Schritt übernimmt eine zufällige Zelle die Gruppe "
        "eines zufälligen Nachbarn. Am Ende bleibt nur eine Gruppe übrig.",
        w);
    text->setWordWrap(true);
    g->addWidget(text, 2, 0, 1, 3);
    g->setRowStretch(3, 1);
    connect(gruppen_, &QSpinBox::editingFinished, this, &TForm14::S15C);
    return w;
}

QWidget* TForm14::buildWaTorPanel()
{
    auto* w = new QGroupBox("Wa-Tor (Anfangseinstellungen)", this);
    auto* g = new QGridLayout(w);
    fischAnteil_ = spin(w, "fischAnteil", 0, 100, 30);
    haiAnteil_ = spin(w, "haiAnteil", 0, 100, 5);
    fischBrut_ = spin(w, "fischBrut", 1, 200, 3);
    haiBrut_ = spin(w, "haiBrut", 1, 200, 10);
    fasten_ = spin(w, "fasten", 1, 200, 3);
    anzeigeJe_ = spin(w, "anzeigeJe", 1, 1000, 1);
    g->addWidget(new QLabel("Fische           Haie", w), 0, 1, 1, 2);
    g->addWidget(new QLabel("% Anteil", w), 1, 0);
    g->addWidget(fischAnteil_, 1, 1);
    g->addWidget(haiAnteil_, 1, 2);
    g->addWidget(new QLabel("Brutzeit", w), 2, 0);
    g->addWidget(fischBrut_, 2, 1);
    g->addWidget(haiBrut_, 2, 2);
    g->addWidget(new QLabel("Fastenzeit", w), 3, 0);
    g->addWidget(fasten_, 3, 2);
    g->addWidget(new QLabel("Spielstandanzeige je", w), 4, 0);
    g->addWidget(anzeigeJe_, 4, 1);
    g->addWidget(new QLabel("Chrononen", w), 4, 2);
    variante2_ = new QCheckBox("Variante 2", w);
    variante2_->setObjectName("variante2");
    stopAussterben_ = new QCheckBox("Stop bei Aussterben", w);
    stopAussterben_->setObjectName("stopAussterben");
    stopAussterben_->setChecked(true);
    g->addWidget(variante2_, 5, 0);
    g->addWidget(stopAussterben_, 5, 1, 1, 2);
    auto* text = new QLabel(
        "Fische schwimmen zu einem freien Nachbarfeld und vermehren sich nach ihrer Brutzeit. Haie fressen "
        "einen benachbarten Fisch; finden sie in ihrer Fastenzeit keinen, sterben sie.",
        w);
    text->setWordWrap(true);
    g->addWidget(text, 6, 0, 1, 3);
    g->setRowStretch(7, 1);
    connect(variante2_, &QCheckBox::toggled, this, [this] { S15C(); });
    // a changed start setting takes effect at once
    for (QSpinBox* f : {fischAnteil_, haiAnteil_, fischBrut_, haiBrut_, fasten_})
        connect(f, &QSpinBox::editingFinished, this, &TForm14::S15C);
    return w;
}

// ---------------------------------------------------------------- settings

void TForm14::grundeinstellung()
{
    const LifeRule r = LifeRule::standard();
    for (int k = 0; k <= 8; ++k) {
        QSignalBlocker b1(geburt_[k]), b2(tod_[k]);
        geburt_[k]->setChecked(r.geburt[k]);
        tod_[k]->setChecked(r.tod[k]);
    }
    readRule();
}

void TForm14::readRule()
{
    for (int k = 0; k <= 8; ++k) {
        life_.rule.geburt[k] = geburt_[k]->isChecked();
        life_.rule.tod[k] = tod_[k]->isChecked();
    }
}

int TForm14::boardSize() const { return clampBoardSize(groesseFeld_->value()); }

void TForm14::T1C()
{
    // out-of-range entries are forced into range and written back
    const int n = boardSize();
    if (groesseFeld_->value() != n) {
        QSignalBlocker b(groesseFeld_);
        groesseFeld_->setValue(n);
    }
    cellPixels_ = clampCellPixels(zellFeld_->value());
    if (zellFeld_->value() != cellPixels_ && !zellFeld_->hasFocus()) {
        QSignalBlocker b(zellFeld_);
        zellFeld_->setValue(cellPixels_);
    }
    PB1_->update();
}

void TForm14::T2C()
{
    timer_->setInterval(std::max(1, verzoegerung_->value()));
}

WaTorSettings TForm14::waTorSettings() const
{
    WaTorSettings s;
    s.boardSize = boardSize();
    s.fischAnteil = fischAnteil_->value();
    s.haiAnteil = haiAnteil_->value();
    s.fischBrutzeit = fischBrut_->value();
    s.haiBrutzeit = haiBrut_->value();
    s.haiFastenzeit = fasten_->value();
    s.variante2 = variante2_->isChecked();
    return s;
}

// ---------------------------------------------------------------- running

void TForm14::setSimulation(Simulation s)
{
    setRunning(false);
    sim_ = s;
    panels_->setCurrentIndex(static_cast<int>(s));
    title_->setText(simulationTitle(s));
    S15C();
}

QStringList TForm14::patternList() const
{
    QStringList out;
    for (int k = 0; k < LB1_->count(); ++k)
        out << LB1_->item(k)->text();
    return out;
}

void TForm14::LB1C(int row)
{
    if (row < 0 || row >= static_cast<int>(shownPatterns_.size())) return;
    if (sim_ != Simulation::Life) setSimulation(Simulation::Life);
    const LifePattern* p = findPattern(patterns_, std::to_string(shownPatterns_[row].number));
    if (!p) return;
    life_.setBoardSize(boardSize());
    loadPattern(life_, *p);
    verlauf_.clear();
    record();
    showState();
}

void TForm14::S15C()
{
    T1C();
    verlauf_.clear();
    switch (sim_) {
    case Simulation::Life: {
        // the present pattern again, or an empty board when none is chosen
        const int row = LB1_->currentRow();
        if (row >= 0) {
            LB1C(row);
            return;
        }
        life_.setBoardSize(boardSize());
        break;
    }
    case Simulation::Donnelly: {
        int g = gruppen_->value();
        if (g < 2 || g > kKinds - 1) {
            g = std::clamp(g, 2, kKinds - 1);
            gruppen_->setValue(g);
        }
        donnelly_->reset(boardSize(), g);
        donnelly_->torus = true;
        break;
    }
    case Simulation::WaTor:
        wator_->reset(waTorSettings());
        break;
    }
    record();
    showState();
}

void TForm14::setRunning(bool on)
{
    if (!timer_) return;
    if (on)
        timer_->start();
    else
        timer_->stop();
    startButton_->setText(on ? "Stopp" : "Start");
    simulationAction_->setChecked(on);
}

bool TForm14::running() const { return timer_ && timer_->isActive(); }

void TForm14::einzelschritt()
{
    tick();
}

void TForm14::tick()
{
    switch (sim_) {
    case Simulation::Life:
        life_.step();
        break;
    case Simulation::Donnelly: {
        int n = aenderungen_->value();
        if (n < 1) {
            n = 2000;
            aenderungen_->setValue(n);
        }
        donnelly_->runChanges(n);
        if (donnelly_->livingGroups() <= 1) setRunning(false);
        break;
    }
    case Simulation::WaTor:
        for (int k = 0; k < anzeigeJe_->value(); ++k) {
            const bool hadFish = wator_->fische() > 0, hadSharks = wator_->haie() > 0;
            wator_->step();
            // halt at the chronon in which a species died out
            if (stopAussterben_->isChecked() && ((hadSharks && !wator_->haie()) || (hadFish && !wator_->fische()))) {
                setRunning(false);
                break;
            }
        }
        break;
    }
    record();
    showState();
}

void TForm14::record()
{
    std::vector<int> values;
    switch (sim_) {
    case Simulation::Life:
        values.push_back(life_.population());
        break;
    case Simulation::Donnelly:
        for (int g = 1; g <= donnelly_->groups(); ++g)
            values.push_back(donnelly_->counters()[g]);
        break;
    case Simulation::WaTor:
        values = {wator_->fische(), wator_->haie()};
        break;
    }
    verlauf_.resize(values.size());
    for (size_t k = 0; k < values.size(); ++k) {
        if (verlauf_[k].size() >= kMaxHistory) verlauf_[k].erase(verlauf_[k].begin(), verlauf_[k].begin() + kMaxHistory / 2);
        verlauf_[k].push_back(values[k]);
    }
}

QString TForm14::statusText() const
{
    switch (sim_) {
    case Simulation::Life:
        return QString("Generation %1 | Anzahl: %2").arg(life_.generation()).arg(life_.population());
    case Simulation::Donnelly:
        return QString("Wählerwanderungen: %1 | Gruppen: %2").arg(donnelly_->wanderungen()).arg(donnelly_->livingGroups());
    case Simulation::WaTor: {
        const QString ratio = wator_->haie() ? QString::number(double(wator_->fische()) / wator_->haie(), 'f', 2).replace('.', ',') : "-";
        return QString("Chrononen: %1 | Fische: %2 | Haie: %3 | Verhältnis: %4")
            .arg(wator_->chrononen())
            .arg(wator_->fische())
            .arg(wator_->haie())
            .arg(ratio);
    }
    }
    return {};
}

void TForm14::showState()
{
    status_->setText(statusText());
    PB1_->update();
}

// ---------------------------------------------------------------- drawing and mouse

void TForm14::boardGeometry(int width, int height, int& x0, int& y0, int& cell) const
{
    const int n = sim_ == Simulation::Life ? life_.boardSize()
                  : sim_ == Simulation::Donnelly ? donnelly_->boardSize()
                                                  : wator_->boardSize();
    const int room = height - kTitleHeight - 10 - (diagramm_ && diagramm_->isChecked() ? kDiagramHeight + 10 : 0);
    // "Größe" is the wish; a large board on a small window gets smaller squares
    cell = std::max(1, std::min(cellPixels_, std::min(width - 20, room) / n));
    x0 = (width - n * cell) / 2;
    y0 = kTitleHeight + 4;
}

void TForm14::PB1P(platform::Canvas& c, int width, int height) const
{
    const int n = sim_ == Simulation::Life ? life_.boardSize()
                  : sim_ == Simulation::Donnelly ? donnelly_->boardSize()
                                                  : wator_->boardSize();
    platform::DrawToolTitle(c, width, height,
                            QString("%1 – Spielfeld %2 x %3").arg(simulationTitle(sim_)).arg(n).arg(n), 6,
                            platform::rgb(240, 244, 250));
    int x0, y0, cell;
    boardGeometry(width, height, x0, y0, cell);
    const bool grid = gitter_ && gitter_->isChecked();
    switch (sim_) {
    case Simulation::Life:
        drawBoard(c, x0, y0, n, cell, grid, [this](int r, int col) { return kindColor(life_.cell(r, col)); });
        break;
    case Simulation::Donnelly:
        drawBoard(c, x0, y0, n, cell, grid, [this](int r, int col) { return kindColor(donnelly_->cell(r, col)); });
        break;
    case Simulation::WaTor:
        drawBoard(c, x0, y0, n, cell, grid, [this](int r, int col) {
            return wator_->shark(r, col) ? kSharkColor : wator_->fish(r, col) ? kFishColor : platform::rgb(200, 225, 255);
        });
        break;
    }
    if (diagramm_ && diagramm_->isChecked())
        drawDiagram(c, 10, height - kDiagramHeight - 6, width - 20, kDiagramHeight, diagramSeries(),
                    sim_ == Simulation::WaTor ? "Chrononen" : sim_ == Simulation::Life ? "Generationen" : "Anzeigen");
}

std::vector<Series> TForm14::diagramSeries() const
{
    std::vector<Series> out;
    switch (sim_) {
    case Simulation::Life:
        if (!verlauf_.empty()) out.push_back({"Anzahl lebender Zellen", platform::clNavy, verlauf_[0]});
        break;
    case Simulation::Donnelly:
        for (size_t g = 0; g < verlauf_.size(); ++g)
            out.push_back({"Gruppe " + std::to_string(g + 1), kindColor(static_cast<int>(g) + 1), verlauf_[g]});
        break;
    case Simulation::WaTor:
        if (verlauf_.size() == 2) {
            out.push_back({"Fische", kFishColor, verlauf_[0]});
            out.push_back({"Haie", kSharkColor, verlauf_[1]});
        }
        break;
    }
    return out;
}

bool TForm14::cellAt(int x, int y, int width, int height, int& row, int& col) const
{
    int x0, y0, cell;
    boardGeometry(width, height, x0, y0, cell);
    if (x < x0 || y < y0) return false;
    row = (y - y0) / cell + 1;
    col = (x - x0) / cell + 1;
    return row <= life_.boardSize() && col <= life_.boardSize();
}

QRect TForm14::cellRect(int row, int col, int width, int height) const
{
    int x0, y0, cell;
    boardGeometry(width, height, x0, y0, cell);
    return QRect(x0 + (col - 1) * cell, y0 + (row - 1) * cell, cell, cell);
}

void TForm14::PB1D(int x, int y, int width, int height)
{
    if (sim_ != Simulation::Life) return;
    int row, col;
    if (!cellAt(x, y, width, height, row, col)) return;
    life_.toggle(row, col);
    if (!verlauf_.empty() && !verlauf_[0].empty()) verlauf_[0].back() = life_.population();
    showState();
}

QDialog* createTForm14(QWidget* parent, int wahlseite, int wahlpunkt)
{
    return new TForm14(parent, wahlseite, wahlpunkt);
}

}  // namespace dynamics
