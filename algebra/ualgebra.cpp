#include "algebra/ualgebra.h"
#include "algebra/windows.h"

#include "algebra/algebra.h"
#include "algebra/algebrabild.h"
#include "platform/toolframe.h"

#include <QApplication>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPainter>
#include <QPushButton>
#include <QSpinBox>
#include <QVBoxLayout>
#include <QWheelEvent>

#include <algorithm>

namespace algebra {

namespace {

constexpr int kFelder = 10;

QString u(const std::string& s) { return QString::fromUtf8(s.c_str(), static_cast<int>(s.size())); }

}  // namespace

class Ergebnisfeld : public QWidget {
public:
    explicit Ergebnisfeld(TFalgebra* owner) : QWidget(owner), owner_(owner) { setMinimumHeight(260); }

    Bildinhalt inhalt() const
    {
        return {owner_->aktuelleSeite(), owner_->gerechnet_, owner_->zeilen_, "", erste};
    }
    platform::PaintRoutine routine() const
    {
        const Bildinhalt b = inhalt();
        return [b](platform::Canvas& c, int w, int h) { zeichneErgebnis(c, w, h, b); };
    }

    int erste = 0;

protected:
    void wheelEvent(QWheelEvent* ev) override
    {
        const int schritt = ev->angleDelta().y() > 0 ? -5 : 5;
        erste = std::clamp(erste + schritt, 0, std::max(0, static_cast<int>(owner_->zeilen_.size()) - 5));
        update();
    }
    void paintEvent(QPaintEvent*) override
    {
        QPainter painter(this);
        platform::Canvas c(&painter);
        c.setBrushColor(platform::clWhite);
        c.fillRect(0, 0, width(), height());
        zeichneErgebnis(c, width(), height(), inhalt());
    }

private:
    TFalgebra* owner_;
};

TFalgebra::TFalgebra(QWidget* parent, int wahlseite, int wahlpunkt)
    : QDialog(parent), wahlseite_(wahlseite), wahlpunkt_(wahlpunkt)
{
    FormCreate();
}

void TFalgebra::FormCreate()
{
    setWindowTitle("Quorix");
    resize(1008, 710);
    auto* root = new QHBoxLayout(this);

    LB1_ = new QListWidget(this);
    LB1_->setObjectName("LB1");
    LB1_->setFixedWidth(270);
    for (int i = 0; i < seitenzahl; ++i) {
        auto* item = new QListWidgetItem(u(seitennamen()[i]), LB1_);
        if (!seite(i).vorhanden) {
            item->setForeground(Qt::gray);
            item->setToolTip(QString::fromUtf8("In dieser Version noch nicht verfügbar"));
        }
    }
    root->addWidget(LB1_);

    auto* rechts = new QVBoxLayout;
    root->addLayout(rechts, 1);
    hinweis_ = new QLabel(this);
    hinweis_->setObjectName("hinweis");
    hinweis_->setWordWrap(true);
    hinweis_->setStyleSheet("color: #000080;");
    rechts->addWidget(hinweis_);

    auto* gitter = new QGridLayout;
    rechts->addLayout(gitter);
    anzahlText_ = new QLabel("Anzahl der Gleichungen", this);
    anzahl_ = new QSpinBox(this);
    anzahl_->setObjectName("anzahl");
    anzahl_->setRange(1, 10);
    gitter->addWidget(anzahlText_, 0, 0);
    gitter->addWidget(anzahl_, 0, 1, Qt::AlignLeft);
    for (int i = 0; i < kFelder; ++i) {
        auto* t = new QLabel(this);
        t->setMinimumWidth(110);
        auto* e = new QLineEdit(this);
        e->setObjectName(QString("E%1").arg(i + 1));
        // two columns of five fields keep the result panel large
        const int zeile = 1 + i % 5, spalte = (i / 5) * 2;
        gitter->addWidget(t, zeile, spalte);
        gitter->addWidget(e, zeile, spalte + 1);
        titel_.push_back(t);
        E_.push_back(e);
        connect(e, &QLineEdit::returnPressed, this, [this] { S1C(); });
    }
    gitter->setColumnStretch(1, 1);
    gitter->setColumnStretch(3, 1);

    auto* knoepfe = new QHBoxLayout;
    rechts->addLayout(knoepfe);
    auto knopf = [&](const char* name, const char* text) {
        auto* b = new QPushButton(QString::fromUtf8(text), this);
        b->setObjectName(name);
        knoepfe->addWidget(b);
        return b;
    };
    S1_ = knopf("S1", "Berechnung");
    beispiel_ = knopf("beispiel", "Beispiel");
    loeschen_ = knopf("loeschen", "Löschen");
    auto* kopie = knopf("kopie", "Kopieren");
    auto* speichern = knopf("speichern", "Speichern");
    auto* drucken = knopf("drucken", "Drucken");
    knoepfe->addStretch(1);
    auto* ende = knopf("ende", "Beenden");

    PB1_ = new Ergebnisfeld(this);
    PB1_->setObjectName("PB1");
    rechts->addWidget(PB1_, 1);
    status_ = new QLabel(this);
    status_->setObjectName("status");
    rechts->addWidget(status_);

    connect(LB1_, &QListWidget::currentRowChanged, this, [this] { LB1C(); });
    connect(anzahl_, &QSpinBox::valueChanged, this, [this] { FormShow(); });
    connect(S1_, &QPushButton::clicked, this, [this] { S1C(); });
    connect(beispiel_, &QPushButton::clicked, this, [this] { beispielC(); });
    connect(loeschen_, &QPushButton::clicked, this, [this] { loeschenC(); });
    connect(kopie, &QPushButton::clicked, this,
            [this] { platform::CopyPicture(PB1_->width(), PB1_->height(), PB1_->routine(), this); });
    connect(speichern, &QPushButton::clicked, this,
            [this] { platform::SavePicture(PB1_->width(), PB1_->height(), PB1_->routine(), this); });
    connect(drucken, &QPushButton::clicked, this,
            [this] { platform::PrintPicture(PB1_->width(), PB1_->height(), PB1_->routine(), this); });
    connect(ende, &QPushButton::clicked, this, &QDialog::accept);

    const int start = wahlseite_ >= 0 && wahlseite_ < seitenzahl ? wahlseite_ : 0;
    setzeSeite(start);
    if (LB1_->currentRow() == start) LB1C();
    // the standard tasks take the catalogue's item as their task number
    if (start == 12 && wahlpunkt_ >= 0 && wahlpunkt_ < 6) E_[0]->setText(QString::number(wahlpunkt_ + 1));
}

int TFalgebra::aktuelleSeite() const { return LB1_->currentRow() < 0 ? 0 : LB1_->currentRow(); }

void TFalgebra::setzeSeite(int s) { LB1_->setCurrentRow(s); }

void TFalgebra::setzeFeld(int i, const QString& text)
{
    if (i >= 0 && i < kFelder) E_[i]->setText(text);
}

void TFalgebra::LB1C()
{
    if (!bereit_) return;
    const Seite& s = seite(aktuelleSeite());
    for (auto* e : E_) e->clear();
    zeilen_.clear();
    gerechnet_.clear();
    anzahl_->blockSignals(true);
    anzahl_->setMaximum(s.zeilenfelder ? s.maxfelder : 10);  // 10 for Gauss, 9 for the Diophantine page
    anzahl_->setValue(s.zeilenfelder ? static_cast<int>(s.felder.size()) : 1);
    anzahl_->blockSignals(false);
    // a page opens with its example, so that a first press of "Berechnung" shows something
    beispielC();
}

void TFalgebra::FormShow()
{
    const Seite& s = seite(aktuelleSeite());
    hinweis_->setText(s.vorhanden ? u(s.hinweis) : QString());
    anzahlText_->setVisible(s.zeilenfelder);
    anzahl_->setVisible(s.zeilenfelder);
    const int sichtbar = s.zeilenfelder ? anzahl_->value() : static_cast<int>(s.felder.size());
    for (int i = 0; i < kFelder; ++i) {
        const bool an = s.vorhanden && i < sichtbar;
        titel_[i]->setVisible(an);
        E_[i]->setVisible(an);
        if (an)
            titel_[i]->setText(s.zeilenfelder ? QString("Gleichung %1").arg(i + 1) : u(s.felder[i].titel));
    }
    S1_->setEnabled(s.vorhanden);
    beispiel_->setEnabled(s.vorhanden);
    loeschen_->setEnabled(s.vorhanden);
    PB1_->update();
}

std::vector<std::string> TFalgebra::felder() const
{
    const Seite& s = seite(aktuelleSeite());
    const int n = s.zeilenfelder ? anzahl_->value() : static_cast<int>(s.felder.size());
    std::vector<std::string> f;
    for (int i = 0; i < n && i < kFelder; ++i) f.push_back(E_[i]->text().toStdString());
    return f;
}

void TFalgebra::beispielC()
{
    if (!bereit_) return;
    const Seite& s = seite(aktuelleSeite());
    if (s.zeilenfelder) anzahl_->setValue(static_cast<int>(s.felder.size()));
    for (int i = 0; i < kFelder; ++i)
        E_[i]->setText(i < static_cast<int>(s.felder.size()) ? u(s.felder[i].beispiel) : QString());
    zeilen_.clear();
    gerechnet_.clear();
    status_->clear();
    FormShow();
}

void TFalgebra::loeschenC()
{
    if (!bereit_) return;
    for (auto* e : E_) e->clear();
    zeilen_.clear();
    gerechnet_.clear();
    status_->clear();
    PB1_->update();
}

void TFalgebra::S1C()
{
    if (!bereit_) {
        stopp_ = true;  // the second press while a computation runs
        return;
    }
    const int s = aktuelleSeite();
    if (!seite(s).vorhanden) return;
    bereit_ = false;
    stopp_ = false;
    LB1_->setEnabled(false);
    S1_->setText("Stopp");
    struct Kontext {
        TFalgebra* w;
        Abbruch* a;
    };
    Abbruch abbruch;
    Kontext k{this, &abbruch};
    abbruch.ctx = &k;
    abbruch.melden = [](void* ctx, int prozent) {
        auto* k = static_cast<Kontext*>(ctx);
        k->w->status_->setText(QString("Status %1%").arg(prozent));
        QApplication::processEvents();
        if (k->w->stopp_) k->a->gestoppt = true;
    };
    gerechnet_ = felder();
    const Ergebnis e = berechne(s, gerechnet_, &abbruch);
    zeilen_ = e.zeilen;
    PB1_->erste = 0;
    status_->setText(e.eingabefehler ? QString::fromUtf8("Bitte die Eingabe prüfen.")
                                     : (abbruch.gestoppt ? QString("Abbruch") : QString()));
    S1_->setText("Berechnung");
    LB1_->setEnabled(true);
    bereit_ = true;
    PB1_->update();
}

}  // namespace algebra

QDialog* createTFalgebra(QWidget* parent, int wahlseite, int wahlpunkt)
{
    return new algebra::TFalgebra(parent, wahlseite, wahlpunkt);
}
