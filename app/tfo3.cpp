#include "app/tfo3.h"

#include "kernel/realtostr.h"
#include "kernel/termlexikon.h"
#include "lexicon/globals.h"
#include "platform/codepage.h"
#include "platform/container.h"

#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

namespace app {

TFo3::TFo3(const std::string& lexikonwert, QWidget* parent) : QDialog(parent)
{
    setWindowTitle("Berechnungen im Lexikon");
    quorix::LexikonCalculation rechnung;
    platform::StringList liste;
    if (lexikonwert.empty() || lexikonwert[0] != '#') {
        try {
            liste = platform::loadTextResource(lexicon::lexikonpfad + "textx.dll", "10",
                                               quorix::lexikonListName(lexikonwert));
        } catch (const std::exception&) {
            // A missing list leaves the window with its message below.
        }
    }
    gueltig_ = quorix::lexikonCalculation(lexikonwert, liste, rechnung);
    auto* g = new QGridLayout(this);
    auto* titel = new QLabel(platform::fromCp1252(gueltig_ ? rechnung.caption : lexikonwert), this);
    QFont f = titel->font();
    f.setBold(true);
    titel->setFont(f);
    g->addWidget(titel, 0, 0, 1, 2);
    const int k = gueltig_ ? static_cast<int>(rechnung.labels.size()) : 0;
    for (int i = 0; i < 4; ++i) {
        E[static_cast<size_t>(i)] = new QLineEdit(this);
        if (i < k) {
            g->addWidget(new QLabel(platform::fromCp1252(rechnung.labels[static_cast<size_t>(i)]), this), i + 1, 0);
            g->addWidget(E[static_cast<size_t>(i)], i + 1, 1);
        } else {
            E[static_cast<size_t>(i)]->hide();
        }
    }
    auto* D2 = new QPushButton("Berechnung", this);
    g->addWidget(D2, 5, 0);
    ergebnis = new QLabel(this);
    ergebnis->setTextInteractionFlags(Qt::TextSelectableByMouse);
    g->addWidget(ergebnis, 5, 1);
    auto* schliessen = new QPushButton(QString::fromUtf8("Schließen"), this);
    g->addWidget(schliessen, 6, 1);
    connect(D2, &QPushButton::clicked, this, &TFo3::D2Click);
    connect(schliessen, &QPushButton::clicked, this, &QDialog::accept);
    if (!gueltig_) {
        D2->setEnabled(false);
        ergebnis->setText(QString::fromUtf8("Diese Berechnung ist nicht vorhanden."));
    }
    formel_ = rechnung.formula;
    setFixedSize(320, quorix::lexikonWindowHeight(k));
}

void TFo3::D2Click()
{
    std::array<std::string, 4> eingaben;
    for (size_t i = 0; i < 4; ++i)
        eingaben[i] = platform::toCp1252(E[i]->text());
    ergebnis->setText(platform::fromCp1252(quorix::lexikonD2(formel_, eingaben, kernel::UseDecimalComma)));
}

}  // namespace app
