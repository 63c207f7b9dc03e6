#include "dynamics/uabbildungen.h"

#include "dynamics/chaos_windows.h"
#include "dynamics/chaosbild.h"
#include "dynamics/fraktalpalette.h"
#include "platform/canvas.h"
#include "platform/toolframe.h"

#include <QCheckBox>
#include <QFileDialog>
#include <QHBoxLayout>
#include <QImageReader>
#include <QLabel>
#include <QListWidget>
#include <QPainter>
#include <QPushButton>
#include <QSpinBox>
#include <QTimer>
#include <QToolButton>
#include <QVBoxLayout>

namespace {

const QString kFraktal = QStringLiteral("Fraktal: ");

}  // namespace

TDiaBild::TDiaBild(TFabbild* owner) : QWidget(owner), owner_(owner)
{
    setObjectName("PB1");
    setMinimumSize(480, 360);
}

void TDiaBild::paintEvent(QPaintEvent*)
{
    QPainter p(this);
    platform::Canvas c(&p);
    c.setBrushColor(platform::clBlack);
    c.fillRect(0, 0, width(), height());
    const platform::Picture& b = owner_->bild_;
    c.setBrushStyle(platform::BrushStyle::Clear);
    c.setFontColor(platform::clWhite);
    if (b.empty()) {
        c.setFontSize(11);
        c.textOutW(20, 20, owner_->fehler_.isEmpty() ? QString::fromUtf8("Die Bildliste ist leer.") : owner_->fehler_);
        return;
    }
    const double s = std::min(double(width()) / b.width(), double(height()) / b.height());
    const int w = static_cast<int>(b.width() * s), h = static_cast<int>(b.height() * s);
    c.stretchDraw((width() - w) / 2, (height() - h) / 2, w, h, b);
}

void TDiaBild::mouseDoubleClickEvent(QMouseEvent*) { owner_->vollbild(!owner_->isFullScreen()); }

TFabbild::TFabbild(QWidget* parent, int, int) : QDialog(parent)
{
    FormCreate();
    ladeObjekte(chaos::ladeChaosText());
}

void TFabbild::FormCreate()
{
    setWindowTitle("Quorix");
    resize(1008, 710);
    auto* root = new QHBoxLayout(this);
    root->setContentsMargins(6, 6, 6, 6);
    steuerung_ = new QWidget(this);
    steuerung_->setFixedWidth(280);
    auto* links = new QVBoxLayout(steuerung_);
    links->setContentsMargins(0, 0, 0, 0);
    auto* titel = new QLabel("Bildliste", steuerung_);
    titel->setFont(QFont("DejaVu Sans", 13, QFont::Bold));
    titel->setStyleSheet("color:#000080;");
    links->addWidget(titel);
    LB1_ = new QListWidget(steuerung_);
    LB1_->setObjectName("LB1");
    connect(LB1_, &QListWidget::currentRowChanged, this, [this](int r) {
        if (r >= 0) laden(LB1_->item(r)->text());
    });
    links->addWidget(LB1_, 1);
    auto* dazu = new QPushButton(QString::fromUtf8("Bilder hinzufügen ..."), steuerung_);
    connect(dazu, &QPushButton::clicked, this, [this] {
        const QStringList f = QFileDialog::getOpenFileNames(this, "Bilder laden", QString(),
                                                            "Abbildung (*.png *.jpg *.jpeg *.bmp *.gif)");
        if (!f.isEmpty()) LB1_->addItems(f);
    });
    links->addWidget(dazu);
    auto* iv = new QHBoxLayout;
    iv->addWidget(new QLabel("Intervall in s", steuerung_));
    SEintervall_ = new QSpinBox(steuerung_);
    SEintervall_->setRange(1, 600);
    SEintervall_->setValue(4);
    iv->addWidget(SEintervall_);
    links->addLayout(iv);
    Blauf_ = new QPushButton("Start", steuerung_);
    connect(Blauf_, &QPushButton::clicked, this, [this] {
        if (Timer1_->isActive()) {
            Timer1_->stop();
            Blauf_->setText("Start");
        } else {
            Timer1_->start(SEintervall_->value() * 1000);
            Blauf_->setText("Stopp");
        }
    });
    connect(SEintervall_, &QSpinBox::valueChanged, this, [this](int s) {
        if (Timer1_->isActive()) Timer1_->start(s * 1000);
    });
    links->addWidget(Blauf_);
    auto* nav = new QHBoxLayout;
    auto* zurueck = new QPushButton("vorhergehendes Bild", steuerung_);
    auto* vor = new QPushButton(QString::fromUtf8("nächstes Bild"), steuerung_);
    connect(zurueck, &QPushButton::clicked, this, [this] { vorhergehendes(); });
    connect(vor, &QPushButton::clicked, this, [this] { naechstes(); });
    nav->addWidget(zurueck);
    nav->addWidget(vor);
    links->addLayout(nav);
    CBvoll_ = new QCheckBox("Vollbildmodus", steuerung_);
    connect(CBvoll_, &QCheckBox::toggled, this, [this](bool an) { vollbild(an); });
    links->addWidget(CBvoll_);
    Lname_ = new QLabel(steuerung_);
    Lname_->setWordWrap(true);
    links->addWidget(Lname_);
    auto* ende = new QToolButton(steuerung_);
    platform::SetToolButton(ende, 1);
    connect(ende, &QToolButton::clicked, this, [this] { close(); });
    links->addWidget(ende);
    root->addWidget(steuerung_);
    PB1_ = new TDiaBild(this);
    root->addWidget(PB1_, 1);
    Timer1_ = new QTimer(this);
    connect(Timer1_, &QTimer::timeout, this, [this] { naechstes(); });
}

void TFabbild::ladeObjekte(const std::vector<std::string>& zeilen)
{
    objekte_ = chaos::leseChaosText(zeilen);
    if (LB1_->count() > 0) return;
    // a first show out of the box: some escape-time sets and attractors of the list
    QStringList l;
    for (const auto& o : objekte_)
        if (o.typ() != chaos::Simulationen && o.typ() != chaos::Kreisfraktale && l.size() < 40 &&
            (o.nummer % 100) < 6)
            l << kFraktal + QString::fromStdString(o.name);
    setzeBildliste(l);
}

void TFabbild::setzeBildliste(const QStringList& eintraege)
{
    LB1_->clear();
    LB1_->addItems(eintraege);
    if (!eintraege.isEmpty()) zeige(0);
}

int TFabbild::anzahl() const { return LB1_->count(); }
int TFabbild::aktuell() const { return LB1_->currentRow(); }

void TFabbild::zeige(int index)
{
    const int n = LB1_->count();
    if (n == 0) return;
    LB1_->setCurrentRow(((index % n) + n) % n);
}

void TFabbild::naechstes() { zeige(aktuell() + 1); }
void TFabbild::vorhergehendes() { zeige(aktuell() - 1); }

void TFabbild::vollbild(bool an)
{
    steuerung_->setVisible(!an);
    if (an) showFullScreen();
    else showNormal();
    if (CBvoll_->isChecked() != an) {
        const QSignalBlocker sperre(CBvoll_);
        CBvoll_->setChecked(an);
    }
}

void TFabbild::laden(const QString& eintrag)
{
    fehler_.clear();
    bild_ = platform::Picture();
    if (eintrag.startsWith(kFraktal)) {
        const std::string name = eintrag.mid(kFraktal.size()).toStdString();
        const chaos::ChaosObjekt* o = chaos::findeObjekt(objekte_, name);
        if (!o) {
            fehler_ = "Das Fraktal " + eintrag.mid(kFraktal.size()) + " fehlt in der Objektliste.";
        } else {
            chaos::Einstellung e = chaos::einstellungAus(*o);
            const int b = 640, h = 480;
            if (e.typ != chaos::Feigenbaum) e.ansicht = chaos::gleicheEinheiten(e.ansicht, b, h);
            chaos::Werteraster r;
            std::vector<std::string> zeilen;
            chaos::zeichneChaos(e, b, h, r, zeilen);
            bild_ = platform::Picture(b, h);
            chaos::faerbe(r, chaos::palette(e.palette), bild_);
        }
    } else {
        QImageReader leser(eintrag);
        const QImage img = leser.read();
        if (img.isNull()) fehler_ = "Das Bild " + eintrag + " kann nicht gelesen werden.";
        else bild_ = platform::Picture(img.convertToFormat(QImage::Format_RGB32));
    }
    Lname_->setText(QString("%1 von %2: %3").arg(aktuell() + 1).arg(anzahl()).arg(eintrag));
    PB1_->update();
}

QDialog* createTFabbild(QWidget* parent, int wahlseite, int wahlpunkt)
{
    return new TFabbild(parent, wahlseite, wahlpunkt);
}
