#include "app/usuche.h"

#include "app/winfkt.h"
#include "lexicon/einstellungen.h"
#include "lexicon/globals.h"
#include "lexicon/suche.h"
#include "platform/codepage.h"
#include "platform/container.h"

#include <QApplication>
#include <QCloseEvent>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMessageBox>
#include <QProgressBar>
#include <QPushButton>

namespace app {

using platform::fromCp1252;
using platform::toCp1252;

Tfsuche::Tfsuche(TForm1* haupt) : QDialog(haupt), haupt_(haupt)
{
    setWindowTitle("Lexikon (Stichwortliste, Suche)");
    setModal(false);
    resize(320, 560);
    auto* g = new QGridLayout(this);
    g->addWidget(new QLabel("1.Suchwort", this), 0, 0);
    E3 = new QLineEdit(this);
    g->addWidget(E3, 0, 1);
    g->addWidget(new QLabel("2.Suchwort", this), 1, 0);
    Ed4 = new QLineEdit(this);
    g->addWidget(Ed4, 1, 1);
    B1 = new QPushButton("Suche", this);
    g->addWidget(B1, 2, 0, 1, 2);
    fortschritt_ = new QProgressBar(this);
    fortschritt_->setVisible(false);
    g->addWidget(fortschritt_, 3, 0, 1, 2);
    LB4 = new QListWidget(this);
    g->addWidget(LB4, 4, 0, 1, 2);
    L1 = new QLabel(this);
    g->addWidget(L1, 5, 0, 1, 2);
    B2 = new QPushButton("Stichwortliste", this);
    B3 = new QPushButton("Lesezeichen", this);
    g->addWidget(B2, 6, 0);
    g->addWidget(B3, 6, 1);
    S6 = new QPushButton("Lesezeichen aufnehmen", this);
    S25 = new QPushButton(QString::fromUtf8("Lesezeichen löschen"), this);
    g->addWidget(S6, 7, 0);
    g->addWidget(S25, 7, 1);
    S6->hide();
    S25->hide();
    connect(B1, &QPushButton::clicked, this, &Tfsuche::S26Click);
    connect(E3, &QLineEdit::returnPressed, this, &Tfsuche::S26Click);
    connect(B2, &QPushButton::clicked, this, &Tfsuche::B2Click);
    connect(B3, &QPushButton::clicked, this, &Tfsuche::B3Click);
    connect(S6, &QPushButton::clicked, this, &Tfsuche::S6Click);
    connect(S25, &QPushButton::clicked, this, &Tfsuche::S25Click);
    connect(LB4, &QListWidget::itemClicked, this, [this]() { LB4Click(); });
    move(lexicon::einstellungen.sucheX, lexicon::einstellungen.sucheY);
}

void Tfsuche::S26Click()
{
    if (haupt_->sucheLaeuft()) {
        haupt_->sucheStoppen();  // a second press stops between blocks
        return;
    }
    if (E3->text().isEmpty()) {
        B2Click();
        return;
    }
    S6->hide();
    S25->hide();
    B2->hide();
    B3->hide();
    B1->setText("Abbruch");
    fortschritt_->setVisible(true);
    LB4->clear();
    QApplication::processEvents();
    const auto treffer = haupt_->volltextSuchen(toCp1252(E3->text()), toCp1252(Ed4->text()),
                                                [this](int block, int bloecke) {
                                                    fortschritt_->setMaximum(bloecke);
                                                    fortschritt_->setValue(block);
                                                    QApplication::processEvents();
                                                });
    for (const auto& t : treffer)
        LB4->addItem(fromCp1252(t));
    fortschritt_->setVisible(false);
    B1->setText("Suche");
    if (LB4->count() == 0)
        QMessageBox::information(this, "Quorix", QString::fromStdString(haupt_->meldung(52)));
    else
        L1->setText(QString::number(LB4->count()) + QString::fromUtf8(" Einträge"));
    B2->show();
    B3->show();
}

void Tfsuche::B2Click()
{
    S6->hide();
    S25->hide();
    LB4->clear();
    for (const auto& w : haupt_->stichwortListe())
        LB4->addItem(fromCp1252(w));
    L1->setText(QString::number(LB4->count()) + QString::fromUtf8(" Einträge"));
}

void Tfsuche::B3Click()
{
    S6->show();
    S25->show();
    LB4->clear();
    platform::StringList ini;
    lexicon::textDateiLesen(lexicon::datenpfad + "quorix.ini", ini);
    for (const auto& w : lexicon::lesezeichenLesen(ini))
        LB4->addItem(fromCp1252(w));
    L1->setText(QString::number(LB4->count()) + QString::fromUtf8(" Einträge"));
}

void Tfsuche::S6Click()
{
    std::string w = haupt_->aktuellesStichwort();
    while (!w.empty() && w.back() == ' ')
        w.pop_back();
    if (w.empty())
        return;
    const QString q = fromCp1252(w);
    if (LB4->findItems(q, Qt::MatchExactly | Qt::MatchCaseSensitive).isEmpty())
        LB4->addItem(q);
    const std::string pfad = lexicon::datenpfad + "quorix.ini";
    platform::StringList ini;
    if (!lexicon::textDateiLesen(pfad, ini))
        return;
    platform::StringList liste;
    for (int i = 0; i < LB4->count(); ++i)
        liste.push_back(toCp1252(LB4->item(i)->text()));
    lexicon::lesezeichenSchreiben(ini, liste);
    platform::writeFileSafely(pfad, platform::joinLines(ini));
}

void Tfsuche::S25Click()
{
    const int i = LB4->currentRow();
    if (i < 0)
        return;
    delete LB4->takeItem(i);
    const std::string pfad = lexicon::datenpfad + "quorix.ini";
    platform::StringList ini;
    if (!lexicon::textDateiLesen(pfad, ini))
        return;
    platform::StringList liste;
    for (int k = 0; k < LB4->count(); ++k)
        liste.push_back(toCp1252(LB4->item(k)->text()));
    lexicon::lesezeichenSchreiben(ini, liste, static_cast<int>(liste.size()));
    platform::writeFileSafely(pfad, platform::joinLines(ini));
}

void Tfsuche::LB4Click()
{
    if (LB4->currentItem())
        haupt_->stichwortSuchenUndZeigen(toCp1252(LB4->currentItem()->text()));
}

void Tfsuche::closeEvent(QCloseEvent* e)
{
    lexicon::einstellungen.sucheX = x();
    lexicon::einstellungen.sucheY = y();
    hide();
    e->ignore();  // the window stays alive; the search mark goes on working
}

void Tfsuche::moveEvent(QMoveEvent* e)
{
    QDialog::moveEvent(e);
    lexicon::einstellungen.sucheX = x();
    lexicon::einstellungen.sucheY = y();
}

}  // namespace app
