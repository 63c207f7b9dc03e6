#include "dynamics/uchaos.h"

#include "dynamics/chaos_windows.h"
#include "dynamics/chaosbild.h"
#include "kernel/term.h"
#include "platform/toolframe.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QElapsedTimer>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMouseEvent>
#include <QPainter>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSpinBox>
#include <QTimer>
#include <QToolButton>
#include <QVBoxLayout>
#include <cmath>

namespace {

QString zahlText(double v)
{
    QString s = QString::number(v, 'g', 8);
    return s;
}

double feldwert(QLineEdit* e) { return quorix::ReadTermValue(e->text().toStdString()); }

}  // namespace

// ---- PB1

TChaosBild::TChaosBild(TFchaos* owner) : QWidget(owner), owner_(owner)
{
    setObjectName("PB1");
    setMinimumSize(640, 560);
    setCursor(Qt::CrossCursor);
}

void TChaosBild::paintEvent(QPaintEvent*)
{
    QPainter p(this);
    platform::Canvas c(&p);
    owner_->zeichne(c, width(), height());
    if (owner_->ziehen_) {
        c.setPenColor(platform::clWhite);
        c.setPenStyle(platform::PenStyle::Dot);
        const QRect r = QRect(owner_->zugStart_, owner_->zugEnde_).normalized();
        c.frameRect(r.left(), r.top(), r.right(), r.bottom());
    }
}

void TChaosBild::mousePressEvent(QMouseEvent* e)
{
    if (owner_->laeuft_ || e->button() != Qt::LeftButton) return;
    owner_->ziehen_ = true;
    owner_->zugStart_ = owner_->zugEnde_ = e->pos();
}

void TChaosBild::mouseMoveEvent(QMouseEvent* e)
{
    if (!owner_->ziehen_) return;
    owner_->zugEnde_ = e->pos();
    update();
}

void TChaosBild::mouseReleaseEvent(QMouseEvent* e)
{
    if (!owner_->ziehen_) return;
    owner_->ziehen_ = false;
    if (owner_->zoom(owner_->zugStart_, e->pos())) owner_->d1c();
    update();
}

// ---- TFchaos

TFchaos::TFchaos(QWidget* parent, int wahlseite, int wahlpunkt) : QDialog(parent)
{
    FormCreate();
    ladeObjekte(chaos::ladeChaosText());
    if (wahlseite >= 0 && wahlseite < 7) waehleTyp(wahlseite);
    if (wahlpunkt >= 0) waehleObjekt(wahlpunkt);
    // the chosen object is drawn once the window is open, unless something was drawn already
    QTimer::singleShot(0, this, [this] {
        if (!laeuft_ && werte_.breite == 0) d1c();
    });
}

void TFchaos::FormCreate()
{
    setWindowTitle("Quorix");
    resize(1008, 710);
    auto* root = new QVBoxLayout(this);
    root->setContentsMargins(6, 6, 6, 6);
    root->setSpacing(4);

    auto* kopf = new QHBoxLayout;
    auto* titel = new QLabel("Chaos und Fraktale", this);
    QFont tf("DejaVu Sans", 15, QFont::Bold);
    titel->setFont(tf);
    titel->setStyleSheet("color:#000080;");
    kopf->addWidget(titel);
    kopf->addStretch();
    auto knopf = [&](int art, auto slot) {
        auto* b = new QToolButton(this);
        platform::SetToolButton(b, art);
        connect(b, &QToolButton::clicked, this, slot);
        kopf->addWidget(b);
    };
    knopf(3, [this] { kopieren(); });
    knopf(4, [this] { speichern(); });
    knopf(2, [this] { drucken(); });
    knopf(1, [this] { close(); });
    root->addLayout(kopf);

    auto* haupt = new QHBoxLayout;
    root->addLayout(haupt, 1);
    auto* links = new QVBoxLayout;
    links->setSpacing(3);
    auto* linksW = new QWidget(this);
    linksW->setLayout(links);
    linksW->setFixedWidth(330);
    links->setContentsMargins(0, 0, 0, 0);
    haupt->addWidget(linksW);

    auto* typBox = new QGroupBox("Fraktal-Typ", this);
    auto* tg = new QGridLayout(typBox);
    tg->setContentsMargins(6, 2, 6, 2);
    tg->setVerticalSpacing(0);
    const auto& namen = chaos::fraktaltypnamen();
    for (int i = 0; i < 7; ++i) {
        typKnopf_[i] = new QRadioButton(QString::fromStdString(namen[static_cast<std::size_t>(i)]), typBox);
        tg->addWidget(typKnopf_[i], i / 2, i % 2);
        connect(typKnopf_[i], &QRadioButton::clicked, this, [this, i] { waehleTyp(i); });
    }
    links->addWidget(typBox);

    LB1_ = new QListWidget(this);
    LB1_->setObjectName("LB1");
    LB1_->setMinimumHeight(120);
    connect(LB1_, &QListWidget::currentRowChanged, this, [this](int r) {
        if (r >= 0) neuwert();
    });
    links->addWidget(LB1_, 2);

    auto* par = new QGroupBox("Parameter", this);
    auto* pg = new QGridLayout(par);
    pg->setContentsMargins(6, 2, 6, 2);
    pg->setVerticalSpacing(2);
    const char* bereich[4] = {"x min", "x max", "y min", "y max"};
    for (int i = 0; i < 4; ++i) {
        pg->addWidget(new QLabel(bereich[i], par), i / 2, (i % 2) * 2);
        Ex_[i] = new QLineEdit(par);
        pg->addWidget(Ex_[i], i / 2, (i % 2) * 2 + 1);
    }
    pg->addWidget(new QLabel("Iteration", par), 2, 0);
    E4_ = new QSpinBox(par);
    E4_->setRange(1, 100000);
    pg->addWidget(E4_, 2, 1);
    pg->addWidget(new QLabel("Farbfaktor", par), 2, 2);
    Efaktor_ = new QLineEdit(par);
    pg->addWidget(Efaktor_, 2, 3);
    Lc_ = new QLabel("c = a + bi", par);
    pg->addWidget(Lc_, 3, 0);
    Eca_ = new QLineEdit(par);
    Ecb_ = new QLineEdit(par);
    pg->addWidget(Eca_, 3, 1);
    pg->addWidget(Ecb_, 3, 3);
    for (int i = 0; i < 3; ++i) {
        Lpar_[i] = new QLabel(par);
        Epar_[i] = new QLineEdit(par);
        pg->addWidget(Lpar_[i], 4 + i / 2, (i % 2) * 2);
        pg->addWidget(Epar_[i], 4 + i / 2, (i % 2) * 2 + 1);
    }
    L6_ = new QLabel("Tiefe", par);
    L6_->setMinimumWidth(60);
    E6_ = new QSpinBox(par);
    E6_->setRange(0, 100000);
    pg->addWidget(L6_, 6, 0);
    pg->addWidget(E6_, 6, 1);
    L3_ = new QLabel("Punkte", par);
    E3_ = new QLineEdit(par);
    pg->addWidget(L3_, 6, 2);
    pg->addWidget(E3_, 6, 3);
    links->addWidget(par);

    ifsPanel_ = new QWidget(this);
    auto* ig = new QGridLayout(ifsPanel_);
    ig->setContentsMargins(0, 0, 0, 0);
    CBabbildung_ = new QComboBox(ifsPanel_);
    for (int i = 1; i <= 8; ++i) CBabbildung_->addItem(QString("Abbildung %1").arg(i));
    CBabbildung_->addItem("alle Abbildungen");
    CBmodus_ = new QComboBox(ifsPanel_);
    CBmodus_->addItems({"XOR", "AND", "OR", "NOR"});
    ig->addWidget(CBabbildung_, 0, 0);
    ig->addWidget(CBmodus_, 0, 1);
    ig->addWidget(new QLabel("Attraktor-Code: a b c d e f p je Zeile", ifsPanel_), 1, 0, 1, 2);
    Mcode_ = new QPlainTextEdit(ifsPanel_);
    Mcode_->setFixedHeight(64);
    Mcode_->setFont(QFont("DejaVu Sans Mono", 8));
    ig->addWidget(Mcode_, 2, 0, 1, 2);
    links->addWidget(ifsPanel_);

    auto* farbe = new QHBoxLayout;
    CBpalette_ = new QComboBox(this);
    for (const auto& n : chaos::palettennamen()) CBpalette_->addItem(QString::fromStdString(n));
    connect(CBpalette_, &QComboBox::currentTextChanged, this, [this](const QString& n) {
        e_.palette = n.toStdString();
        palette_ = chaos::palette(e_.palette);
        faerben();
    });
    CBinnen_ = new QCheckBox("Innenfärbung", this);
    CBrotation_ = new QCheckBox("Farbrotation", this);
    connect(CBrotation_, &QCheckBox::toggled, this, [this](bool an) {
        if (an) Timer1_->start(60);
        else Timer1_->stop();
    });
    farbe->addWidget(CBpalette_);
    farbe->addWidget(CBinnen_);
    farbe->addWidget(CBrotation_);
    links->addLayout(farbe);

    auto* knoepfe = new QHBoxLayout;
    D1_ = new QPushButton("Darstellung", this);
    D1_->setObjectName("D1");
    D1_->setDefault(true);
    D1_->setMinimumWidth(96);
    connect(D1_, &QPushButton::clicked, this, [this] { d1c(); });
    knoepfe->addWidget(D1_);
    auto pfeil = [&](const char* text, const char* hinweis, auto slot) {
        auto* b = new QPushButton(QString::fromUtf8(text), this);
        b->setFixedWidth(26);
        b->setToolTip(QString::fromUtf8(hinweis));
        connect(b, &QPushButton::clicked, this, slot);
        knoepfe->addWidget(b);
    };
    pfeil("←", "nach links", [this] { S4C(); });
    pfeil("→", "nach rechts", [this] { S5C(); });
    pfeil("↑", "nach oben", [this] { S6C(); });
    pfeil("↓", "nach unten", [this] { S7C(); });
    auto* s8 = new QPushButton("merken", this);
    s8->setFixedWidth(62);
    s8->setToolTip("Ausschnitt speichern");
    connect(s8, &QPushButton::clicked, this, [this] { S8C(); });
    auto* s9 = new QPushButton("zurück", this);
    s9->setFixedWidth(62);
    s9->setToolTip("gespeicherten Ausschnitt laden");
    connect(s9, &QPushButton::clicked, this, [this] { S9Click(); });
    knoepfe->addWidget(s8);
    knoepfe->addWidget(s9);
    links->addLayout(knoepfe);

    M2_ = new QPlainTextEdit(this);
    M2_->setObjectName("M2");
    M2_->setReadOnly(true);
    M2_->setMinimumHeight(60);
    links->addWidget(M2_, 1);

    auto* rechts = new QVBoxLayout;
    PB1_ = new TChaosBild(this);
    rechts->addWidget(PB1_, 1);
    auto* fuss = new QHBoxLayout;
    Lergebnis_ = new QLabel(this);
    Lzeit_ = new QLabel("0.0 ms", this);
    Lzeit_->setMinimumWidth(90);
    Lzeit_->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    fuss->addWidget(Lergebnis_, 1);
    fuss->addWidget(Lzeit_);
    rechts->addLayout(fuss);
    haupt->addLayout(rechts, 1);

    Timer1_ = new QTimer(this);
    connect(Timer1_, &QTimer::timeout, this, [this] { Timer1Timer(); });
    typKnopf_[0]->setChecked(true);
}

void TFchaos::ladeObjekte(const std::vector<std::string>& zeilen)
{
    objekte_ = chaos::leseChaosText(zeilen);
    waehleTyp(typ_);
}

int TFchaos::objektzahl() const { return static_cast<int>(liste_.size()); }

void TFchaos::waehleTyp(int typ)
{
    typ_ = std::clamp(typ, 0, 6);
    typKnopf_[typ_]->setChecked(true);
    liste_ = chaos::objekteDesTyps(objekte_, typ_);
    const QSignalBlocker sperre(LB1_);
    LB1_->clear();
    for (const auto* o : liste_) LB1_->addItem(QString::fromStdString(o->name));
    if (!liste_.empty()) {
        LB1_->setCurrentRow(0);
        neuwert();
    } else {
        // without the list the classical sets and the diagram still work
        e_ = chaos::Einstellung{};
        e_.typ = typ_;
        if (typ_ == chaos::Julia) e_.ca = -0.123, e_.cb = 0.745, e_.ansicht = {-1.6, 1.6, -1.2, 1.2};
        if (typ_ == chaos::Feigenbaum) e_.ansicht = {2.8, 4.0, 0, 1}, e_.schritt = 300, e_.palette = "feuer";
        M2_->setPlainText("Die Objektliste CHAOS fehlt.");
        felderSchreiben();
    }
}

void TFchaos::waehleObjekt(int index)
{
    if (index >= 0 && index < LB1_->count()) LB1_->setCurrentRow(index);
}

void TFchaos::neuwert()
{
    const int r = LB1_->currentRow();
    if (r < 0 || r >= static_cast<int>(liste_.size())) return;
    if (laeuft_) stopp_ = true;  // a new object ends the running picture
    const chaos::ChaosObjekt& o = *liste_[static_cast<std::size_t>(r)];
    e_ = chaos::einstellungAus(o);
    QStringList text;
    for (const auto& z : o.beschreibung) text << QString::fromStdString(z);
    M2_->setPlainText(text.join('\n'));
    felderSchreiben();
}

void TFchaos::felderSchreiben()
{
    const double b[4] = {e_.ansicht.xmin, e_.ansicht.xmax, e_.ansicht.ymin, e_.ansicht.ymax};
    for (int i = 0; i < 4; ++i) Ex_[i]->setText(zahlText(b[i]));
    E4_->setRange(std::max(1, e_.iterMin), std::max(e_.iterMin + 1, e_.iterMax));
    E4_->setValue(e_.iterationen);
    Efaktor_->setText(zahlText(e_.farbfaktor));
    Eca_->setText(zahlText(e_.ca));
    Ecb_->setText(zahlText(e_.cb));
    const bool flucht = e_.typ == chaos::Mandelbrot || e_.typ == chaos::Julia;
    Lc_->setVisible(e_.typ == chaos::Julia);
    Eca_->setVisible(e_.typ == chaos::Julia);
    Ecb_->setVisible(e_.typ == chaos::Julia);
    Efaktor_->setEnabled(flucht);
    CBinnen_->setEnabled(flucht);
    E4_->setEnabled(flucht || e_.typ == chaos::Feigenbaum);
    for (int i = 0; i < 3; ++i) {
        const bool da = i < static_cast<int>(e_.parameter.size());
        Lpar_[i]->setVisible(da);
        Epar_[i]->setVisible(da);
        if (da) {
            Lpar_[i]->setText(QString::fromStdString(e_.parameter[static_cast<std::size_t>(i)].beschriftung));
            Epar_[i]->setText(zahlText(e_.parameter[static_cast<std::size_t>(i)].wert));
        }
    }
    const bool schritt = e_.typ == chaos::Kreisfraktale || e_.typ == chaos::Feigenbaum;
    L6_->setVisible(schritt);
    E6_->setVisible(schritt);
    L6_->setText(e_.typ == chaos::Feigenbaum ? "Vorlauf" : "Tiefe");
    E6_->setRange(0, e_.typ == chaos::Kreisfraktale ? 8 : 100000);
    E6_->setValue(e_.schritt);
    const bool punkte = e_.typ == chaos::IfsEditor || e_.typ == chaos::Simulationen || e_.typ == chaos::IterativeSysteme;
    L3_->setVisible(punkte);
    E3_->setVisible(punkte);
    E3_->setText(QString::number(e_.punkte));
    ifsPanel_->setVisible(e_.typ == chaos::IfsEditor || e_.typ == chaos::IterativeSysteme);
    CBabbildung_->setVisible(e_.typ == chaos::IfsEditor);
    CBmodus_->setVisible(e_.typ == chaos::IfsEditor);
    CBabbildung_->setCurrentIndex(8);
    CBmodus_->setCurrentIndex(std::max(0, CBmodus_->findText(e_.modus == chaos::Zeichenmodus::XOR   ? "XOR"
                                                             : e_.modus == chaos::Zeichenmodus::AND ? "AND"
                                                             : e_.modus == chaos::Zeichenmodus::NOR ? "NOR"
                                                                                                     : "OR")));
    QStringList code;
    for (const auto& z : e_.code) code << QString::fromStdString(z);
    Mcode_->setPlainText(code.join('\n'));
    const QSignalBlocker sperre(CBpalette_);
    CBpalette_->setCurrentText(QString::fromStdString(e_.palette));
    palette_ = chaos::palette(e_.palette);
    CBinnen_->setChecked(e_.innenfaerbung);
}

void TFchaos::felderLesen()
{
    // a bad term reads as 0; an empty or reversed range keeps the old one
    const double b[4] = {feldwert(Ex_[0]), feldwert(Ex_[1]), feldwert(Ex_[2]), feldwert(Ex_[3])};
    if (b[0] < b[1]) e_.ansicht.xmin = b[0], e_.ansicht.xmax = b[1];
    if (b[2] < b[3]) e_.ansicht.ymin = b[2], e_.ansicht.ymax = b[3];
    e_.iterationen = E4_->value();
    e_.farbfaktor = feldwert(Efaktor_);
    e_.ca = feldwert(Eca_);
    e_.cb = feldwert(Ecb_);
    for (int i = 0; i < static_cast<int>(e_.parameter.size()) && i < 3; ++i)
        e_.parameter[static_cast<std::size_t>(i)].wert = feldwert(Epar_[i]);
    e_.schritt = E6_->value();
    const double p = feldwert(E3_);
    e_.punkte = p >= 1 ? static_cast<long long>(std::min(p, 1e10)) : e_.punkte;
    e_.innenfaerbung = CBinnen_->isChecked();
    e_.modus = chaos::zeichenmodusAusText(CBmodus_->currentText().toStdString());
    e_.nurAbbildung = CBabbildung_->currentIndex() == 8 ? -1 : CBabbildung_->currentIndex();
    if (e_.typ == chaos::IfsEditor || e_.typ == chaos::IterativeSysteme) {
        e_.code.clear();
        for (const QString& z : Mcode_->toPlainText().split('\n'))
            if (!z.trimmed().isEmpty()) e_.code.push_back(z.trimmed().toStdString());
    }
    felderSchreiben();
}

void TFchaos::d1c()
{
    if (laeuft_) {
        stopp_ = true;
        return;
    }
    felderLesen();
    laeuft_ = true;
    stopp_ = false;
    D1_->setText("Stopp");
    const int b = std::max(16, PB1_->width()), h = std::max(16, PB1_->height());
    // the diagram plots r against x; every other picture keeps its shapes undistorted
    if (e_.typ != chaos::Feigenbaum) {
        e_.ansicht = chaos::gleicheEinheiten(e_.ansicht, b, h);
        felderSchreiben();
    }
    QElapsedTimer uhr, anzeige;
    uhr.start();
    anzeige.start();
    ++e_.keim;
    // a copy: the list stays usable while the picture grows, and may change e_
    const chaos::Einstellung lauf = e_;
    chaos::Ansicht benutzt = lauf.ansicht;
    const bool ok = chaos::zeichneChaos(lauf, b, h, werte_, zeilen_, [&](int promille) {
        if (anzeige.elapsed() > 300) {
            // show what is done so far and let "Stopp" be pressed
            anzeige.restart();
            faerben();
            Lzeit_->setText(QString("%1 %").arg(promille / 10));
            QApplication::processEvents();
        }
        return !stopp_;
    }, &benutzt);
    if (ok) {
        e_.ansicht = benutzt;
        felderSchreiben();
    }
    zeitMs_ = static_cast<double>(uhr.nsecsElapsed()) / 1e6;
    laeuft_ = false;
    D1_->setText("Darstellung");
    QStringList z;
    for (const auto& s : zeilen_) z << QString::fromStdString(s).replace('\t', ' ');
    Lergebnis_->setText(z.join("   ") + (ok ? "" : "   (abgebrochen)"));
    Lzeit_->setText(QString::number(zeitMs_, 'f', 1) + " ms");
    faerben();
}

QStringList TFchaos::ergebnis() const
{
    QStringList z;
    for (const auto& s : zeilen_) z << QString::fromStdString(s);
    return z;
}

void TFchaos::faerben()
{
    if (werte_.breite == 0) {
        PB1_->update();
        return;
    }
    chaos::faerbe(werte_, chaos::rotiere(palette_, rotation_), bild_);
    PB1_->update();
}

void TFchaos::zeichne(platform::Canvas& c, int breite, int hoehe)
{
    c.setBrushColor(platform::rgb(32, 32, 40));
    c.fillRect(0, 0, breite, hoehe);
    if (!bild_.empty()) {
        if (bild_.width() == breite && bild_.height() == hoehe) c.draw(0, 0, bild_);
        else c.stretchDraw(0, 0, breite, hoehe, bild_);
    } else {
        c.setFontColor(platform::clWhite);
        c.setFontSize(11);
        c.setBrushStyle(platform::BrushStyle::Clear);
        c.textOutW(20, 20, QString::fromUtf8("Objekt wählen und „Darstellung“ drücken."));
    }
    if (e_.typ == chaos::Feigenbaum && !bild_.empty()) {
        // r runs along the x axis, the values x of the orbit up the y axis
        c.setBrushStyle(platform::BrushStyle::Clear);
        c.setFontName("Verdana");
        c.setFontSize(11);
        c.setFontStyle(platform::fsBold);
        c.setFontColor(platform::clWhite);
        c.textOut(breite - 18, hoehe - 36, "x");
        c.textOut(6, 4, "y");
        c.setFontStyle(0);
    }
    // the view's corners, small in a corner of the picture
    c.setBrushStyle(platform::BrushStyle::Clear);
    c.setFontName("Verdana");
    c.setFontSize(8);
    c.setFontColor(platform::clWhite);
    const QString ecke = QString("x: %1 bis %2   y: %3 bis %4")
                             .arg(zahlText(e_.ansicht.xmin), zahlText(e_.ansicht.xmax), zahlText(e_.ansicht.ymin),
                                  zahlText(e_.ansicht.ymax));
    c.setBrushColor(platform::rgb(0, 0, 0));
    c.setBrushStyle(platform::BrushStyle::Solid);
    const int tb = c.textWidthW(ecke) + 8;
    c.fillRect(0, hoehe - 16, tb, hoehe);
    c.setBrushStyle(platform::BrushStyle::Clear);
    c.textOutW(4, hoehe - 15, ecke);
}

bool TFchaos::zoom(QPoint von, QPoint bis)
{
    chaos::Ansicht neu;
    const int b = werte_.breite ? werte_.breite : PB1_->width(), h = werte_.hoehe ? werte_.hoehe : PB1_->height();
    if (!chaos::zoomAnsicht(e_.ansicht, b, h, von.x(), von.y(), bis.x(), bis.y(), neu)) return false;
    gemerkt_.push_back(e_.ansicht);
    e_.ansicht = neu;
    felderSchreiben();
    return true;
}

void TFchaos::schiebe(double dx, double dy)
{
    felderLesen();
    e_.ansicht = chaos::verschiebe(e_.ansicht, dx, dy);
    felderSchreiben();
    d1c();
}

void TFchaos::S8C()
{
    felderLesen();
    gemerkt_.push_back(e_.ansicht);
}

void TFchaos::S9Click()
{
    if (gemerkt_.empty()) return;
    e_.ansicht = gemerkt_.back();
    gemerkt_.pop_back();
    felderSchreiben();
    d1c();
}

void TFchaos::Timer1Timer()
{
    rotation_ = (rotation_ + 3) % 255;
    faerben();
}

void TFchaos::speichern()
{
    platform::SavePicture(PB1_->width(), PB1_->height(), [this](platform::Canvas& c, int b, int h) { zeichne(c, b, h); }, this);
}

void TFchaos::kopieren()
{
    platform::CopyPicture(PB1_->width(), PB1_->height(), [this](platform::Canvas& c, int b, int h) { zeichne(c, b, h); }, this);
}

void TFchaos::drucken()
{
    platform::PrintPicture(PB1_->width(), PB1_->height(), [this](platform::Canvas& c, int b, int h) { zeichne(c, b, h); }, this);
}

QDialog* createTFchaos(QWidget* parent, int wahlseite, int wahlpunkt)
{
    return new TFchaos(parent, wahlseite, wahlpunkt);
}
