#include "app/proliste.h"

#include "app/winfkt.h"
#include "lexicon/globals.h"
#include "platform/codepage.h"
#include "platform/container.h"

#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>
#include <set>

namespace app {

Tproliste::Tproliste(TForm1* haupt, bool zusatztexte) : QDialog(haupt)
{
    setWindowTitle(zusatztexte ? "Zusatztexte" : "Themenliste");
    resize(520, 620);
    auto* lay = new QVBoxLayout(this);
    lay->addWidget(new QLabel(zusatztexte ? QString::fromUtf8("Tabellen und Zusatztexte des Lexikons")
                                          : QString::fromUtf8("Alle Themen mit Werkzeug – Doppelklick öffnet"),
                              this));
    filter_ = new QLineEdit(this);
    filter_->setPlaceholderText("Suchen ...");
    lay->addWidget(filter_);
    liste = new QListWidget(this);
    lay->addWidget(liste);
    QStringList eintraege;
    if (zusatztexte) {
        for (const auto& n : platform::listResources(lexicon::lexikonpfad + "texte.dll", "10"))
            eintraege << QString::fromStdString(n);
    } else {
        std::set<QString> gesehen;
        const auto& z = haupt->katalog().liste();
        for (size_t i = 0; i + 1 < z.size(); i += 2) {
            const QString t = platform::fromCp1252(z[i]);
            if (gesehen.insert(t).second)
                eintraege << t;
        }
        eintraege.sort(Qt::CaseInsensitive);
    }
    liste->addItems(eintraege);
    auto* oeffnen = new QPushButton(QString::fromUtf8("Öffnen"), this);
    lay->addWidget(oeffnen);
    connect(filter_, &QLineEdit::textChanged, this, &Tproliste::filtern);
    auto waehlen = [this]() {
        if (liste->currentItem()) {
            gewaehlt_ = liste->currentItem()->text();
            accept();
        }
    };
    connect(liste, &QListWidget::itemDoubleClicked, this, waehlen);
    connect(oeffnen, &QPushButton::clicked, this, waehlen);
}

void Tproliste::filtern(const QString& text)
{
    for (int i = 0; i < liste->count(); ++i)
        liste->item(i)->setHidden(!liste->item(i)->text().contains(text, Qt::CaseInsensitive));
}

}  // namespace app
