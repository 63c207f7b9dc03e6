#include "games/beste.h"

#include "games/windows.h"
#include "lexicon/einstellungen.h"
#include "platform/canvas.h"
#include "platform/codepage.h"
#include "platform/toolframe.h"

#include <QCheckBox>
#include <filesystem>
#include <QDate>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QMessageBox>
#include <QPainter>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace {

QString u(const std::string& cp1252) { return QString::fromStdString(platform::cp1252ToUtf8(cp1252)); }
std::string cp(const QString& s) { return platform::utf8ToCp1252(s.toStdString()); }

std::string heute()
{
    return cp(QLocale::system().toString(QDate::currentDate(), QLocale::ShortFormat));
}

constexpr int kKopf = 70;  // height of the drawn title

}  // namespace

TBestenliste::TBestenliste(QWidget* parent, const std::string& spielname, long long neuerwert)
    : QDialog(parent), neuerwert_(neuerwert)
{
    setWindowTitle("Quorix");
    resize(1008, 710);

    // FormCreate: a missing file is an empty list; a bad score raises to the global handler.
    platform::StringList ini;
    platform::readTextFile(games::spieleIniPfad(), ini);
    liste_.laden(ini, spielname);

    auto* aussen = new QVBoxLayout(this);
    aussen->setContentsMargins(20, kKopf + 8, 20, 16);
    auto* h = new QHBoxLayout;
    aussen->addLayout(h, 1);

    LB1_ = new QTreeWidget;
    LB1_->setColumnCount(4);
    LB1_->setHeaderLabels({"Platz", "Punkte", "Spieler", "Datum"});
    LB1_->setRootIsDecorated(false);
    LB1_->setAlternatingRowColors(true);
    LB1_->header()->resizeSection(0, 60);
    LB1_->header()->resizeSection(1, 110);
    LB1_->header()->resizeSection(2, 300);
    h->addWidget(LB1_, 1);

    auto* rechts = new QVBoxLayout;
    rechts->addWidget(new QLabel("Spielername"));
    E1_ = new QLineEdit;
    rechts->addWidget(E1_);
    D3_ = new QPushButton(QString::fromUtf8("Spielername übernehmen"));
    rechts->addWidget(D3_);
    rechts->addSpacing(24);
    CB1_ = new QCheckBox("Bestwert");
    CB1_->setToolTip(QString::fromUtf8("Beim Löschen bleibt der beste Eintrag stehen."));
    rechts->addWidget(CB1_);
    D2_ = new QPushButton(QString::fromUtf8("Löschen"));
    rechts->addWidget(D2_);
    rechts->addStretch();
    D1_ = new QPushButton(QString::fromUtf8("Schließen"));
    rechts->addWidget(D1_);
    auto* rechtsBox = new QWidget;
    rechtsBox->setFixedWidth(240);
    rechtsBox->setLayout(rechts);
    h->addWidget(rechtsBox);

    connect(D1_, &QPushButton::clicked, this, [this] { D1C(); });
    connect(D2_, &QPushButton::clicked, this, [this] {
        const auto antwort = QMessageBox::question(this, "Quorix", QString::fromUtf8("Wirklich löschen?"),
                                                   QMessageBox::Yes | QMessageBox::No, QMessageBox::No);
        D2C(antwort == QMessageBox::Yes);
    });
    connect(D3_, &QPushButton::clicked, this, [this] { D3C(); });
    connect(E1_, &QLineEdit::textEdited, this, [this](const QString& t) { lexicon::einstellungen.spieler = cp(t); });
    listeZeigen();
}

void TBestenliste::listeZeigen()
{
    LB1_->clear();
    int platz = 0;
    for (const std::string& z : liste_.zeilen()) {
        QStringList spalten = u(z).split('\t');
        while (spalten.size() < 3)
            spalten << QString();
        auto* item = new QTreeWidgetItem({QString::number(++platz), spalten[0].trimmed(), spalten[1],
                                          spalten.mid(2).join(' ')});
        item->setTextAlignment(0, Qt::AlignRight | Qt::AlignVCenter);
        item->setTextAlignment(1, Qt::AlignRight | Qt::AlignVCenter);
        LB1_->addTopLevelItem(item);
    }
    if (liste_.neuzeile() >= 0 && liste_.neuzeile() < LB1_->topLevelItemCount()) {
        QTreeWidgetItem* item = LB1_->topLevelItem(liste_.neuzeile());
        LB1_->setCurrentItem(item);
        QFont f = item->font(0);
        f.setBold(true);
        for (int c = 0; c < 4; ++c)
            item->setFont(c, f);
    }
}

QStringList TBestenliste::zeilen() const
{
    QStringList l;
    for (const std::string& z : liste_.zeilen())
        l << u(z);
    return l;
}

void TBestenliste::showEvent(QShowEvent* e)
{
    QDialog::showEvent(e);
    if (!aktiviert_) {
        aktiviert_ = true;
        FormActivate();
    }
}

void TBestenliste::FormActivate()
{
    E1_->setText(u(lexicon::einstellungen.spieler));
    if (neuerwert_ > 0) {
        liste_.eintragen(neuerwert_, lexicon::einstellungen.spieler, heute());
        listeZeigen();
        E1_->setFocus();
        E1_->selectAll();
    }
}

void TBestenliste::setzeSpieler(const QString& name)
{
    E1_->setText(name);
    lexicon::einstellungen.spieler = cp(name);
}

void TBestenliste::D1C()
{
    platform::StringList ini;
    const std::string pfad = games::spieleIniPfad();
    platform::readTextFile(pfad, ini);
    try {
        std::filesystem::create_directories(std::filesystem::path(pfad).parent_path());
        platform::writeTextFile(pfad, liste_.speichern(ini));
    } catch (const std::exception& ex) {
        QMessageBox::warning(this, "Quorix", QString::fromUtf8("Die Bestenliste konnte nicht gespeichert werden: ") +
                                                 QString::fromLocal8Bit(ex.what()) + ".");
    }
    neuerwert_ = 0;
    gespeichert_ = true;
    accept();
}

void TBestenliste::D2C(bool bestaetigt)
{
    if (!bestaetigt)
        return;
    liste_.loeschen(CB1_->isChecked());
    listeZeigen();
}

void TBestenliste::D3C()
{
    lexicon::einstellungen.spieler = cp(E1_->text());
    liste_.nameUebernehmen(lexicon::einstellungen.spieler, heute());
    listeZeigen();
}

void TBestenliste::paintEvent(QPaintEvent* e)
{
    QDialog::paintEvent(e);
    QPainter painter(this);
    platform::Canvas c(&painter);
    platform::DrawToolTitle(c, width(), kKopf, u(liste_.spieltitel()), 22, platform::rgb(240, 240, 232));
}

void bestenlisteZeigen(QWidget* parent, const std::string& spielname, long long neuerwert)
{
    TBestenliste dlg(parent, spielname, neuerwert);
    dlg.exec();
}

QDialog* createTBestenliste(QWidget* parent) { return new TBestenliste(parent); }
