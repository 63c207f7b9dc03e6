#include "stochastics/uzufall.h"

#include "platform/codepage.h"
#include "platform/toolframe.h"
#include "stochastics/uzeichnung.h"
#include "stochastics/windows.h"

#include <QApplication>
#include <QComboBox>
#include <QDateTime>
#include <QDir>
#include <QStandardPaths>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMessageBox>
#include <QPainter>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QStackedWidget>
#include <QTreeWidget>
#include <QVBoxLayout>

using namespace zufall;

namespace {
QString u(const std::string& s) { return QString::fromUtf8(s.c_str(), static_cast<int>(s.size())); }
std::string s8(const QString& s) { return s.toUtf8().toStdString(); }

constexpr int kMarkowSeite = 9;

// The user's last transition matrix lives in the data folder.
std::string markowDatei()
{
    const QString dir = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) + "/Quorix";
    QDir().mkpath(dir);
    return s8(dir + "/markov.txt");
}
}  // namespace

// ---------------------------------------------------------------- drawing panel

TZeichenflaeche::TZeichenflaeche(TForm17* owner) : QWidget(owner), owner_(owner) { setMinimumSize(300, 250); }

void TZeichenflaeche::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    platform::Canvas c(&painter);
    owner_->zeichne(c, width(), height());
}

// ---------------------------------------------------------------- window

TForm17::TForm17(QWidget* parent, int wahlseite, int wahlpunkt)
    : QDialog(parent), zufall_(static_cast<std::uint64_t>(QDateTime::currentMSecsSinceEpoch()))
{
    setWindowTitle("Quorix");
    resize(1008, 710);

    auto* haupt = new QHBoxLayout(this);
    LB1_ = new QListWidget;
    LB1_->setFixedWidth(262);
    for (const Seite& s : seiten()) {
        auto* item = new QListWidgetItem(u(s.titel));
        LB1_->addItem(item);
        // the pages without a list text are reached through the catalogue only
        item->setHidden(s.titel.empty());
    }
    haupt->addWidget(LB1_);

    // the heading spans the inputs and the drawing
    auto* rechtsAussen = new QVBoxLayout;
    L1_ = new QLabel;
    L1_->setStyleSheet("font-weight: bold; color: navy; font-size: 13pt;");
    rechtsAussen->addWidget(L1_);
    auto* spalten = new QHBoxLayout;
    rechtsAussen->addLayout(spalten, 1);
    haupt->addLayout(rechtsAussen, 1);
    auto* links = new QVBoxLayout;
    links->setContentsMargins(0, 0, 0, 0);
    eingabe_ = new QStackedWidget;
    seiten_.resize(seiten().size());
    for (int i = 0; i < static_cast<int>(seiten().size()); ++i) baueSeite(i);
    links->addWidget(eingabe_);
    auto* knoepfe = new QHBoxLayout;
    B1_ = new QPushButton("Berechnung");
    B1_->setDefault(true);
    B1_->setMinimumWidth(150);
    knoepfe->addWidget(B1_);
    L2_ = new QLabel;
    knoepfe->addWidget(L2_, 1);
    links->addLayout(knoepfe);
    auto* laden = new QPushButton("Daten laden");
    auto* sichern = new QPushButton("Daten speichern");
    connect(laden, &QPushButton::clicked, this, [this] { datenLaden(); });
    connect(sichern, &QPushButton::clicked, this, [this] { datenSpeichern(); });
    LB2_ = new QTreeWidget;
    LB2_->setColumnCount(6);
    LB2_->setHeaderHidden(true);
    LB2_->setRootIsDecorated(false);
    // the stretched last section lets lines without columns run over the full width
    LB2_->header()->setStretchLastSection(true);
    LB2_->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    links->addWidget(LB2_, 1);
    auto* datenknoepfe = new QHBoxLayout;
    datenknoepfe->addWidget(laden);
    datenknoepfe->addWidget(sichern);
    links->addLayout(datenknoepfe);
    auto* linksW = new QWidget;
    linksW->setLayout(links);
    linksW->setFixedWidth(330);
    spalten->addWidget(linksW);

    auto* rechts = new QVBoxLayout;
    PB1_ = new TZeichenflaeche(this);
    rechts->addWidget(PB1_, 1);
    auto* bildknoepfe = new QHBoxLayout;
    B2_ = new QPushButton("Abbildung speichern");
    B3_ = new QPushButton("Abbildung kopieren");
    auto* B4 = new QPushButton("Ergebnisse speichern");
    bildknoepfe->addWidget(B2_);
    bildknoepfe->addWidget(B3_);
    bildknoepfe->addWidget(B4);
    rechts->addLayout(bildknoepfe);
    spalten->addLayout(rechts, 1);

    auto paint = [this](platform::Canvas& c, int w, int h) { zeichne(c, w, h); };
    connect(B1_, &QPushButton::clicked, this, [this] { B1C(); });
    connect(B2_, &QPushButton::clicked, this, [this, paint] { platform::SavePicture(PB1_->width(), PB1_->height(), paint, this); });
    connect(B3_, &QPushButton::clicked, this, [this, paint] { platform::CopyPicture(PB1_->width(), PB1_->height(), paint, this); });
    connect(B4, &QPushButton::clicked, this, [this] { speichern(); });
    connect(LB1_, &QListWidget::currentRowChanged, this, [this](int r) {
        if (r >= 0 && r != seite_) waehleSeite(r);
    });

    platform::StringList matrix;
    if (platform::readTextFile(markowDatei(), matrix) && !matrix.empty()) {
        QString text;
        for (const auto& z : matrix) text += u(platform::cp1252ToUtf8(z)) + "\n";
        qobject_cast<QPlainTextEdit*>(seiten_[kMarkowSeite].felder[0])->setPlainText(text.trimmed());
    }

    waehleSeite(wahlseite >= 0 && wahlseite < kSeitenAnzahl ? wahlseite : 0, wahlpunkt);
}

void TForm17::baueSeite(int nr)
{
    const Seite& s = seiten()[nr];
    auto& w = seiten_[nr];
    w.panel = new QWidget;
    auto* spalte = new QVBoxLayout(w.panel);
    spalte->setContentsMargins(0, 0, 0, 0);
    auto* form = new QFormLayout;
    spalte->addLayout(form);
    spalte->addStretch(1);
    form->setContentsMargins(0, 0, 0, 0);
    form->setRowWrapPolicy(QFormLayout::DontWrapRows);
    for (int f = 0; f < static_cast<int>(s.felder.size()); ++f) {
        const Feld& feld = s.felder[f];
        auto* label = new QLabel(u(feld.name));
        label->setWordWrap(feld.art == Feld::Text);
        QWidget* widget = nullptr;
        if (feld.art == Feld::Auswahl) {
            auto* cb = new QComboBox;
            for (const auto& e : feld.liste) cb->addItem(u(e));
            cb->setCurrentIndex(std::atoi(feld.vorgabe.c_str()));
            connect(cb, &QComboBox::currentIndexChanged, this, [this, nr, f](int i) {
                if (f == 0 && seiten()[nr].feldnamen) artGeaendert(nr);
                if (seiten()[nr].felder[f].beispiel) beispielGewaehlt(nr, f, i);
            });
            widget = cb;
        } else if (feld.art == Feld::Text) {
            auto* te = new QPlainTextEdit(u(feld.vorgabe));
            te->setFixedHeight(feld.name.find("Übergang") != std::string::npos ? 70 : 46);
            widget = te;
        } else {
            auto* le = new QLineEdit(u(feld.vorgabe));
            connect(le, &QLineEdit::returnPressed, this, [this] { B1C(); });
            widget = le;
        }
        w.labels.push_back(label);
        w.felder.push_back(widget);
        if (feld.art == Feld::Text) {
            form->addRow(label);
            form->addRow(widget);
        } else {
            form->addRow(label, widget);
        }
    }
    eingabe_->addWidget(w.panel);
    if (s.feldnamen) artGeaendert(nr);
}

void TForm17::artGeaendert(int nr)
{
    auto& w = seiten_[nr];
    const int art = qobject_cast<QComboBox*>(w.felder[0])->currentIndex();
    const auto namen = seiten()[nr].feldnamen(art);
    for (size_t i = 0; i < namen.size() && i + 1 < w.felder.size(); ++i) {
        w.labels[i + 1]->setText(u(namen[i]));
        w.labels[i + 1]->setVisible(!namen[i].empty());
        w.felder[i + 1]->setVisible(!namen[i].empty());
    }
}

void TForm17::beispielGewaehlt(int nr, int feld, int index)
{
    const Seite& s = seiten()[nr];
    if (!s.beispieltexte || index <= 0) return;
    const auto texte = s.beispieltexte(index);
    size_t t = 0;
    for (size_t f = feld + 1; f < s.felder.size() && t < texte.size(); ++f)
        if (s.felder[f].art == Feld::Text)
            qobject_cast<QPlainTextEdit*>(seiten_[nr].felder[f])->setPlainText(u(texte[t++]));
}

void TForm17::waehleSeite(int nr, int punkt)
{
    if (laeuft_) return;
    seite_ = std::clamp(nr, 0, kSeitenAnzahl - 1);
    const Seite& s = seiten()[seite_];
    LB1_->blockSignals(true);
    LB1_->setCurrentRow(seite_);
    LB1_->blockSignals(false);
    eingabe_->setCurrentIndex(seite_);
    L1_->setText(u(s.ueberschrift));
    B1_->setText(u(s.knopf));
    L2_->clear();
    // the catalogue's item chooses the entry of the page's first list
    if (punkt >= 0)
        for (size_t f = 0; f < s.felder.size(); ++f)
            if (s.felder[f].art == Feld::Auswahl) {
                auto* cb = qobject_cast<QComboBox*>(seiten_[seite_].felder[f]);
                if (punkt < cb->count()) cb->setCurrentIndex(punkt);
                break;
            }
    LB2_->clear();
    bild_ = {};
    PB1_->update();
    // a page that only calculates shows its result at once; simulations wait for their button
    if (!s.simulation) B1C();
}

void TForm17::setzeFeld(int feld, const QString& text)
{
    QWidget* w = seiten_[seite_].felder.at(feld);
    if (auto* le = qobject_cast<QLineEdit*>(w)) le->setText(text);
    else if (auto* te = qobject_cast<QPlainTextEdit*>(w)) te->setPlainText(text);
    else if (auto* cb = qobject_cast<QComboBox*>(w)) cb->setCurrentIndex(text.toInt());
}

Eingaben TForm17::eingaben(int nr) const
{
    Eingaben e;
    for (QWidget* w : seiten_[nr].felder) {
        if (auto* le = qobject_cast<QLineEdit*>(w)) e.push_back(s8(le->text()));
        else if (auto* te = qobject_cast<QPlainTextEdit*>(w)) e.push_back(s8(te->toPlainText()));
        else if (auto* cb = qobject_cast<QComboBox*>(w)) e.push_back(std::to_string(cb->currentIndex()));
    }
    return e;
}

void TForm17::B1C()
{
    if (laeuft_) {
        stopp_ = true;  // the second press ends the run at its next yield
        return;
    }
    const Seite& s = seiten()[seite_];
    Fortschritt f;
    if (s.simulation) {
        laeuft_ = true;
        stopp_ = false;
        B1_->setText("Abbruch");
        LB1_->setEnabled(false);
        L2_->setText("0 %");
        f = [this](int prozent) {
            L2_->setText(QString::number(prozent) + " %");
            QApplication::processEvents();
            return !stopp_;
        };
    }
    const Eingaben ein = eingaben(seite_);
    const Ergebnis e = s.rechne(ein, zufall_, f);
    if (seite_ == kMarkowSeite && markowAusText(ein[0]).fehler.empty()) {
        platform::StringList liste;
        for (const QString& z : u(ein[0]).split('\n')) liste.push_back(platform::utf8ToCp1252(s8(z)));
        try {
            platform::writeTextFile(markowDatei(), liste);
        } catch (...) {
            // a read-only data folder only costs the remembered matrix
        }
    }
    if (s.simulation) {
        laeuft_ = false;
        B1_->setText(u(s.knopf));
        LB1_->setEnabled(true);
        L2_->setText(e.abgebrochen ? "abgebrochen" : "100 %");
    }
    zeigeErgebnis(e);
}

void TForm17::zeigeErgebnis(const Ergebnis& e)
{
    LB2_->clear();
    for (const auto& z : e.zeilen) {
        const QStringList teile = u(z).split('\t');
        auto* item = new QTreeWidgetItem(LB2_);
        for (int i = 0; i < teile.size() && i < 6; ++i) item->setText(i, teile[i]);
        item->setToolTip(0, u(z).replace('\t', "   "));
        // a line without columns (sentence, heading) runs over the whole width
        if (teile.size() == 1) item->setFirstColumnSpanned(true);
    }
    bild_ = e.bild;
    PB1_->update();
}

QStringList TForm17::zeilen() const
{
    QStringList l;
    for (int i = 0; i < LB2_->topLevelItemCount(); ++i) {
        QStringList teile;
        const auto* item = LB2_->topLevelItem(i);
        for (int c = 0; c < 6; ++c) teile << item->text(c);
        while (teile.size() > 1 && teile.back().isEmpty()) teile.removeLast();
        l << teile.join('\t');
    }
    return l;
}

void TForm17::zeichne(platform::Canvas& c, int breite, int hoehe) const { zeichneDiagramm(c, breite, hoehe, bild_); }

void TForm17::datenSpeichern()
{
    platform::StringList liste;
    for (const auto& z : datenSchreiben(seite_, eingaben(seite_))) liste.push_back(platform::utf8ToCp1252(z));
    platform::SaveTextFile(liste, this);
}

void TForm17::datenLaden()
{
    platform::StringList liste;
    if (!platform::LoadTextFile(liste, this)) return;
    for (auto& z : liste) z = platform::cp1252ToUtf8(z);
    Eingaben e = eingaben(seite_);
    if (!datenLesen(seite_, liste, e)) {
        QMessageBox::information(this, "Quorix", "Die Datei enthält keine Daten dieser Seite.");
        return;
    }
    setzeEingaben(e);
}

void TForm17::setzeEingaben(const Eingaben& e)
{
    for (size_t i = 0; i < e.size() && i < seiten_[seite_].felder.size(); ++i) setzeFeld(static_cast<int>(i), u(e[i]));
}

void TForm17::speichern()
{
    platform::StringList liste;
    for (const QString& z : zeilen()) liste.push_back(platform::utf8ToCp1252(s8(z)));
    platform::SaveTextFile(liste, this);
}

QDialog* createTForm17(QWidget* parent, int wahlseite, int wahlpunkt) { return new TForm17(parent, wahlseite, wahlpunkt); }
