#include "dynamics/ljapunow1.h"

#include "dynamics/chaos_windows.h"
#include "dynamics/chaosbild.h"
#include "kernel/term.h"
#include "platform/toolframe.h"

#include <QColorDialog>
#include <QComboBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPainter>
#include <QPushButton>
#include <QTimer>
#include <QToolButton>
#include <QVBoxLayout>

namespace {

const int kGroessen[][2] = {{64, 48},   {128, 96},  {256, 192},  {480, 360},  {512, 384},
                            {640, 480}, {800, 600}, {1024, 768}, {1200, 900}, {1600, 1200}};

}  // namespace

TLjapunowBild::TLjapunowBild(TFLyapunov* owner) : QWidget(owner), owner_(owner)
{
    setObjectName("PB1");
    setMinimumSize(600, 450);
}

void TLjapunowBild::paintEvent(QPaintEvent*)
{
    QPainter p(this);
    platform::Canvas c(&p);
    owner_->zeichne(c, width(), height());
}

TFLyapunov::TFLyapunov(QWidget* parent, int wahlseite, int wahlpunkt) : QDialog(parent)
{
    FormCreate();
    waehleVorgabe(wahlpunkt >= 0 && wahlpunkt < 15 ? wahlpunkt : 0);
    QTimer::singleShot(0, this, [this] {
        if (map_.breite() == 0) startC();
    });
}

void TFLyapunov::FormCreate()
{
    setWindowTitle("Quorix");
    resize(1008, 710);
    auto* root = new QVBoxLayout(this);
    root->setContentsMargins(6, 6, 6, 6);
    auto* kopf = new QHBoxLayout;
    auto* titel = new QLabel("Ljapunow-Diagramme", this);
    titel->setFont(QFont("DejaVu Sans", 15, QFont::Bold));
    titel->setStyleSheet("color:#000080;");
    kopf->addWidget(titel);
    kopf->addStretch();
    auto paint = [this](platform::Canvas& c, int b, int h) { zeichne(c, b, h); };
    auto knopf = [&](int art, auto slot) {
        auto* b = new QToolButton(this);
        platform::SetToolButton(b, art);
        connect(b, &QToolButton::clicked, this, slot);
        kopf->addWidget(b);
    };
    knopf(3, [this, paint] { platform::CopyPicture(std::max(1, bild_.width()), std::max(1, bild_.height()), paint, this); });
    knopf(4, [this, paint] { platform::SavePicture(std::max(1, bild_.width()), std::max(1, bild_.height()), paint, this); });
    knopf(2, [this, paint] { platform::PrintPicture(std::max(1, bild_.width()), std::max(1, bild_.height()), paint, this); });
    knopf(1, [this] { close(); });
    root->addLayout(kopf);

    auto* haupt = new QHBoxLayout;
    root->addLayout(haupt, 1);
    auto* linksW = new QWidget(this);
    linksW->setFixedWidth(330);
    auto* links = new QVBoxLayout(linksW);
    links->setContentsMargins(0, 0, 0, 0);
    haupt->addWidget(linksW);

    LB1_ = new QListWidget(this);
    LB1_->setObjectName("LB1");
    for (const auto& z : chaos::ljapunowVorgabezeilen()) {
        chaos::LjapunowVorgabe v;
        if (chaos::leseLjapunowVorgabe(z, v)) LB1_->addItem(QString::fromStdString(v.name));
    }
    connect(LB1_, &QListWidget::currentRowChanged, this, [this](int r) {
        if (r >= 0) waehleVorgabe(r);
    });
    links->addWidget(LB1_, 1);

    auto* box = new QGroupBox("Folge und Bereiche", this);
    auto* f = new QFormLayout(box);
    Efolge_ = new QLineEdit(box);
    f->addRow("Folge", Efolge_);
    auto paar = [&](const char* text, QLineEdit** e) {
        auto* h = new QHBoxLayout;
        e[0] = new QLineEdit(box);
        e[1] = new QLineEdit(box);
        h->addWidget(e[0]);
        h->addWidget(new QLabel("bis", box));
        h->addWidget(e[1]);
        f->addRow(text, h);
    };
    paar("a von", Ea_);
    paar("b von", Eb_);
    CBgroesse_ = new QComboBox(box);
    for (const auto& g : kGroessen) CBgroesse_->addItem(QString("%1 x %2").arg(g[0]).arg(g[1]));
    CBgroesse_->setCurrentIndex(2);
    connect(CBgroesse_, &QComboBox::currentIndexChanged, this, [this](int i) { waehleGroesse(i); });
    f->addRow(QString::fromUtf8("Abbildungsgröße"), CBgroesse_);
    CBfarbe_ = new QComboBox(box);
    for (const auto& n : chaos::ljapunowFarbnamen()) CBfarbe_->addItem(QString::fromStdString(n));
    connect(CBfarbe_, &QComboBox::currentIndexChanged, this, [this](int i) { waehleFarben(i); });
    f->addRow("Farbauswahl", CBfarbe_);
    Beinzel_ = new QPushButton("Farbe ...", box);
    connect(Beinzel_, &QPushButton::clicked, this, [this] {
        const QColor c = QColorDialog::getColor(platform::toQColor(einzel_), this, "Einzelfarbe");
        if (!c.isValid()) return;
        einzel_ = platform::fromQColor(c);
        faerben();
    });
    f->addRow("Einzelfarbe", Beinzel_);
    links->addWidget(box);

    auto* knoepfe = new QHBoxLayout;
    Bstart_ = new QPushButton("Start", this);
    Bpause_ = new QPushButton("Pause", this);
    Breset_ = new QPushButton(QString::fromUtf8("Zurücksetzen"), this);
    connect(Bstart_, &QPushButton::clicked, this, [this] { startC(); });
    connect(Bpause_, &QPushButton::clicked, this, [this] { pauseC(); });
    connect(Breset_, &QPushButton::clicked, this, [this] { zuruecksetzenC(); });
    knoepfe->addWidget(Bstart_);
    knoepfe->addWidget(Bpause_);
    knoepfe->addWidget(Breset_);
    links->addLayout(knoepfe);
    Lrest_ = new QLabel("Noch zu rechnen: -", this);
    Lzeit_ = new QLabel("Zeit: -", this);
    links->addWidget(Lrest_);
    links->addWidget(Lzeit_);
    auto* info = new QLabel(QString::fromUtf8(
                                "Für jeden Punkt (a, b) läuft x -> r·x·(1 - x), wobei r der Folge nach a oder b ist. "
                                "Der Ljapunow-Exponent ist der Mittelwert von ln|r·(1 - 2x)|: negativ bei Ordnung "
                                "(hell), positiv bei Chaos (dunkel)."),
                            this);
    info->setWordWrap(true);
    links->addWidget(info);

    PB1_ = new TLjapunowBild(this);
    haupt->addWidget(PB1_, 1);
    Timer1_ = new QTimer(this);
    Timer1_->setInterval(0);
    connect(Timer1_, &QTimer::timeout, this, [this] { Timer1Timer(); });
}

void TFLyapunov::waehleVorgabe(int index)
{
    chaos::LjapunowVorgabe v;
    const auto& z = chaos::ljapunowVorgabezeilen();
    if (index < 0 || index >= static_cast<int>(z.size()) || !chaos::leseLjapunowVorgabe(z[static_cast<std::size_t>(index)], v))
        return;
    if (LB1_->currentRow() != index) {
        const QSignalBlocker sperre(LB1_);
        LB1_->setCurrentRow(index);
    }
    Efolge_->setText(QString::fromStdString(v.folge));
    Ea_[0]->setText(QString::number(v.amin, 'g', 8));
    Ea_[1]->setText(QString::number(v.amax, 'g', 8));
    Eb_[0]->setText(QString::number(v.bmin, 'g', 8));
    Eb_[1]->setText(QString::number(v.bmax, 'g', 8));
    zuruecksetzenC();
}

void TFLyapunov::waehleGroesse(int index)
{
    if (index < 0 || index >= 10) return;
    breite_ = kGroessen[index][0];
    hoehe_ = kGroessen[index][1];
    if (CBgroesse_->currentIndex() != index) CBgroesse_->setCurrentIndex(index);
    zuruecksetzenC();
}

bool TFLyapunov::vorgabeLesen(chaos::LjapunowVorgabe& v)
{
    const std::string folge = Efolge_->text().trimmed().toLower().toStdString();
    auto w = [](QLineEdit* e) { return quorix::ReadTermValue(e->text().toStdString()); };
    v = {LB1_->currentItem() ? LB1_->currentItem()->text().toStdString() : "eigene", folge, w(Ea_[0]), w(Ea_[1]),
         w(Eb_[0]), w(Eb_[1])};
    return !folge.empty() && folge.find_first_not_of("ab") == std::string::npos && v.amin < v.amax && v.bmin < v.bmax;
}

void TFLyapunov::startC()
{
    chaos::LjapunowVorgabe v;
    if (!vorgabeLesen(v)) {
        Lrest_->setText(QString::fromUtf8("Die Folge besteht aus a und b, die Bereiche brauchen von < bis."));
        return;
    }
    map_.starte(v, breite_, hoehe_);
    bild_ = platform::Picture(breite_, hoehe_);
    zeitMs_ = 0;
    pausiert_ = false;
    Bpause_->setText("Pause");
    uhr_.start();
    Timer1_->start();
    anzeigen();
}

void TFLyapunov::pauseC()
{
    if (map_.breite() == 0 || map_.fertig()) return;
    if (pausiert_) {
        pausiert_ = false;
        Bpause_->setText("Pause");
        uhr_.start();
        Timer1_->start();
    } else {
        pausiert_ = true;
        Bpause_->setText("Fortsetzen");
        zeitMs_ += uhr_.elapsed();
        Timer1_->stop();
    }
}

void TFLyapunov::zuruecksetzenC()
{
    Timer1_->stop();
    pausiert_ = false;
    Bpause_->setText("Pause");
    map_ = chaos::TLyapunovLambdaMap{};
    bild_ = platform::Picture();
    zeitMs_ = 0;
    Lrest_->setText("Noch zu rechnen: -");
    Lzeit_->setText("Zeit: -");
    PB1_->update();
}

void TFLyapunov::waehleFarben(int index)
{
    if (index < 0 || index > 5) return;
    farben_ = static_cast<chaos::Ljapunowfarben>(index);
    if (CBfarbe_->currentIndex() != index) CBfarbe_->setCurrentIndex(index);
    faerben();  // from the kept exponents, no new run
}

bool TFLyapunov::rechnet() const { return Timer1_->isActive(); }

void TFLyapunov::Timer1Timer()
{
    // rows for about 40 ms, so the window stays responsive
    QElapsedTimer t;
    t.start();
    bool mehr = true;
    while (mehr && t.elapsed() < 40) mehr = map_.rechne(1);
    if (!mehr) {
        Timer1_->stop();
        zeitMs_ += uhr_.elapsed();
    }
    faerben();
    anzeigen();
}

void TFLyapunov::rechneBisFertig()
{
    if (map_.breite() == 0) startC();
    while (rechnet()) Timer1Timer();
}

void TFLyapunov::faerben()
{
    if (map_.breite() == 0) return;
    chaos::faerbeLjapunow(map_, farben_, einzel_, bild_);
    PB1_->update();
}

void TFLyapunov::anzeigen()
{
    const int rest = map_.hoehe() - map_.fertigeZeilen();
    Lrest_->setText(QString("Noch zu rechnen: %1 Zeilen").arg(rest));
    const qint64 ms = zeitMs_ + (Timer1_->isActive() ? uhr_.elapsed() : 0);
    Lzeit_->setText(QString("Zeit: %1 s").arg(ms / 1000.0, 0, 'f', 1));
}

void TFLyapunov::zeichne(platform::Canvas& c, int breite, int hoehe)
{
    c.setBrushColor(platform::rgb(236, 236, 236));
    c.fillRect(0, 0, breite, hoehe);
    if (bild_.empty()) {
        c.setBrushStyle(platform::BrushStyle::Clear);
        c.setFontSize(11);
        c.textOutW(20, 20, QString::fromUtf8("Vorgabe wählen und „Start“ drücken."));
        return;
    }
    // the picture as large as fits, its shape kept, with the axes' ranges beside it
    const double s = std::min((breite - 80.0) / bild_.width(), (hoehe - 50.0) / bild_.height());
    const int w = static_cast<int>(bild_.width() * s), h = static_cast<int>(bild_.height() * s);
    const int x0 = 70, y0 = 10;
    c.stretchDraw(x0, y0, w, h, bild_);
    c.setPenColor(platform::clBlack);
    c.frameRect(x0 - 1, y0 - 1, x0 + w + 1, y0 + h + 1);
    c.setBrushStyle(platform::BrushStyle::Clear);
    c.setFontName("Verdana");
    c.setFontSize(8);
    const auto& v = map_.vorgabe();
    c.textOutW(x0, y0 + h + 4, QString("a = %1").arg(v.amin, 0, 'g', 8));
    const QString ar = QString("%1").arg(v.amax, 0, 'g', 8);
    c.textOutW(x0 + w - c.textWidthW(ar), y0 + h + 4, ar);
    c.textOutW(4, y0, QString("b = %1").arg(v.bmax, 0, 'g', 6).left(9));
    c.textOutW(4, y0 + h - 14, QString("%1").arg(v.bmin, 0, 'g', 6));
    c.textOutW(x0 + w / 2 - 60, y0 + h + 20, QString::fromStdString(v.name + "  (" + v.folge.substr(0, 24) +
                                                                      (v.folge.size() > 24 ? "..." : "") + ")"));
}

QDialog* createTFLyapunov(QWidget* parent, int wahlseite, int wahlpunkt)
{
    return new TFLyapunov(parent, wahlseite, wahlpunkt);
}
