#include "lexicon/linkfenster.h"

#include "lexicon/globals.h"
#include "platform/codepage.h"
#include "platform/container.h"
#include "platform/picture.h"

#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTableWidget>
#include <QTimer>
#include <QVBoxLayout>
#include <memory>

namespace lexicon {

namespace {

// The first container that holds the picture wins.
bool bildSuchen(const std::string& name, std::string& bytes, std::string& typ)
{
    static const std::pair<const char*, const char*> orte[] = {
        {"bjpg.dll", "Jpeg"}, {"bjpg2.dll", "Jpeg"}, {"bgif.dll", "GIF"}, {"bgif2.dll", "GIF"},
        {"bygif.dll", "GIF"}, {"bkunst.dll", "Jpeg"}, {"bkunst.dll", "GIF"}, {"bilder.dll", "GIF"}};
    for (const auto& [c, t] : orte) {
        const std::string pfad = bildpfad + c;
        if (platform::hasResource(pfad, t, name)) {
            bytes = platform::readResource(pfad, t, name);
            typ = t;
            return true;
        }
    }
    return false;
}

QPushButton* schliessKnopf(QDialog* d)
{
    auto* b = new QPushButton(QString::fromUtf8("Schließen"), d);
    QObject::connect(b, &QPushButton::clicked, d, &QDialog::accept);
    return b;
}

}  // namespace

Tzusatzbild::Tzusatzbild(const std::string& name, QWidget* parent) : QDialog(parent)
{
    setWindowTitle("Quorix");
    auto* lay = new QVBoxLayout(this);
    auto* bild = new QLabel(this);
    std::string bytes, typ;
    if (bildSuchen(name, bytes, typ))
        bild->setPixmap(QPixmap::fromImage(platform::decodePicture(bytes, typ).image()));
    else
        bild->setText(QString::fromUtf8("Bild nicht gefunden: ") + platform::fromCp1252(name));
    lay->addWidget(bild);
    lay->addWidget(schliessKnopf(this));
}

Tftabelle::Tftabelle(const std::string& name, QWidget* parent) : QDialog(parent)
{
    setWindowTitle("Quorix");
    resize(700, 500);
    auto* lay = new QVBoxLayout(this);
    platform::StringList zeilen;
    for (const char* c : {"textx.dll", "texte.dll"}) {
        if (platform::hasResource(lexikonpfad + c, "10", name)) {
            zeilen = platform::loadTextResource(lexikonpfad + c, "10", name);
            break;
        }
    }
    auto* tab = new QTableWidget(this);
    int spalten = 1;
    std::vector<QStringList> teile;
    for (const auto& z : zeilen) {
        teile.push_back(platform::fromCp1252(z).split('\t'));
        spalten = std::max(spalten, static_cast<int>(teile.back().size()));
    }
    tab->setColumnCount(spalten);
    tab->setRowCount(static_cast<int>(teile.size()));
    for (int r = 0; r < static_cast<int>(teile.size()); ++r)
        for (int c = 0; c < teile[static_cast<size_t>(r)].size(); ++c)
            tab->setItem(r, c, new QTableWidgetItem(teile[static_cast<size_t>(r)][c]));
    tab->horizontalHeader()->setVisible(false);
    tab->resizeColumnsToContents();
    lay->addWidget(tab);
    lay->addWidget(schliessKnopf(this));
}

TGifform::TGifform(const std::string& name, QWidget* parent) : QDialog(parent)
{
    setWindowTitle("Quorix");
    auto* lay = new QVBoxLayout(this);
    auto* bild = new QLabel(this);
    lay->addWidget(bild);
    lay->addWidget(schliessKnopf(this));
    std::string bytes, typ;
    if (!bildSuchen(name, bytes, typ)) {
        bild->setText(QString::fromUtf8("Bild nicht gefunden: ") + platform::fromCp1252(name));
        return;
    }
    auto frames = std::make_shared<std::vector<platform::PictureFrame>>(
        typ == "GIF" ? platform::decodeAnimatedGif(bytes)
                     : std::vector<platform::PictureFrame>{{platform::decodePicture(bytes, typ), 0}});
    bild->setPixmap(QPixmap::fromImage(frames->front().picture.image()));
    if (frames->size() > 1) {
        auto* timer = new QTimer(this);
        auto index = std::make_shared<size_t>(0);
        connect(timer, &QTimer::timeout, this, [=]() {
            *index = (*index + 1) % frames->size();
            bild->setPixmap(QPixmap::fromImage((*frames)[*index].picture.image()));
            timer->setInterval(std::max(20, (*frames)[*index].delayMs));
        });
        timer->start(std::max(20, frames->front().delayMs));
    }
}

}  // namespace lexicon
