#include "app/einstellungen.h"

#include "lexicon/einstellungen.h"
#include "kernel/realtostr.h"
#include "lexicon/globals.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFontDatabase>
#include <QFontDialog>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QPrintDialog>
#include <QPrinter>
#include <QPushButton>
#include <cmath>

namespace app {

using lexicon::einstellungen;

int randAusZentimeter(const QString& text, int alt)
{
    QString t = text.trimmed();
    t.replace(',', '.');
    bool ok = false;
    const double cm = t.toDouble(&ok);
    if (!ok || cm < 0 || cm > 10)
        return alt;
    return static_cast<int>(std::lround(cm * 10));
}

int druckSchriftgroesse(const QString& text)
{
    bool ok = false;
    const int v = text.trimmed().toInt(&ok);
    return ok && v >= 5 && v <= 16 ? v : 9;
}

namespace {

// PB1: a small sheet with its margins, redrawn on every change.
class Vorschau : public QWidget {
public:
    Vorschau(TForm33* dlg, QWidget* parent) : QWidget(parent), dlg_(dlg) { setMinimumSize(150, 200); }

protected:
    void paintEvent(QPaintEvent*) override
    {
        QPainter p(this);
        p.fillRect(rect(), QColor(210, 210, 210));
        const double hoehe = height() - 20.0;
        const double breite = hoehe * 210.0 / 297.0;
        const QRectF blatt((width() - breite) / 2, 10, breite, hoehe);
        p.fillRect(blatt, Qt::white);
        p.setPen(Qt::black);
        p.drawRect(blatt);
        const double mm = breite / 210.0;
        auto rand = [&](QLineEdit* e) { return randAusZentimeter(e->text(), 25) * mm; };
        const QRectF text = blatt.adjusted(rand(dlg_->T1), rand(dlg_->T3), -rand(dlg_->T2), -rand(dlg_->T4));
        p.setPen(QPen(QColor(0, 0, 160), 1, Qt::DashLine));
        p.drawRect(text);
        p.setPen(QColor(120, 120, 120));
        for (double y = text.top() + 6; y < text.bottom() - 2; y += 6)
            p.drawLine(QPointF(text.left() + 4, y), QPointF(text.right() - 4, y));
    }

private:
    TForm33* dlg_;
};

QString cm(int zehntel)
{
    return QString::number(zehntel / 10.0, 'f', 1).replace('.', ',');
}

}  // namespace

TForm33::TForm33(std::function<void()> seiteNeuMalen, QWidget* parent)
    : QDialog(parent), seiteNeuMalen_(std::move(seiteNeuMalen))
{
    setWindowTitle("Einstellungen");
    auto* g = new QGridLayout(this);
    auto* raender = new QGroupBox(QString::fromUtf8("Seitenränder in cm"), this);
    auto* rg = new QGridLayout(raender);
    T1 = new QLineEdit(cm(einstellungen.linksDruck), raender);
    T2 = new QLineEdit(cm(einstellungen.rechtsDruck), raender);
    T3 = new QLineEdit(cm(einstellungen.obenDruck), raender);
    T4 = new QLineEdit(cm(einstellungen.untenDruck), raender);
    const char* namen[] = {"links", "rechts", "oben", "unten"};
    QLineEdit* felder[] = {T1, T2, T3, T4};
    for (int i = 0; i < 4; ++i) {
        rg->addWidget(new QLabel(namen[i], raender), i, 0);
        rg->addWidget(felder[i], i, 1);
    }
    g->addWidget(raender, 0, 0);
    PB1 = new Vorschau(this, this);
    g->addWidget(PB1, 0, 1, 3, 1);
    for (auto* f : felder)
        connect(f, &QLineEdit::textChanged, PB1, qOverload<>(&QWidget::update));

    auto* druck = new QGroupBox("Druck", this);
    auto* dg = new QGridLayout(druck);
    dg->addWidget(new QLabel(QString::fromUtf8("Schriftgröße"), druck), 0, 0);
    T5 = new QLineEdit(QString::number(einstellungen.druckfontsize), druck);
    dg->addWidget(T5, 0, 1);
    dg->addWidget(new QLabel("Schriftart", druck), 1, 0);
    C1 = new QComboBox(druck);
    C1->addItems(QFontDatabase::families());
    C1->setCurrentText(QString::fromStdString(einstellungen.druckschrift));
    dg->addWidget(C1, 1, 1);
    CB1 = new QCheckBox("Fenster senkrecht drucken", druck);
    CB1->setChecked(einstellungen.fDruck);
    dg->addWidget(CB1, 2, 0, 1, 2);
    auto* D5 = new QPushButton("Druckerauswahl", druck);
    dg->addWidget(D5, 3, 0, 1, 2);
    connect(D5, &QPushButton::clicked, this, [this]() {
        QPrinter drucker;
        QPrintDialog d(&drucker, this);
        if (d.exec() == QDialog::Accepted)
            einstellungen.drucker = drucker.printerName().toStdString();
    });
    g->addWidget(druck, 1, 0);

    auto* anzeige = new QGroupBox("Anzeige", this);
    auto* ag = new QGridLayout(anzeige);
    cb4 = new QCheckBox("Dezimalkommazahlen", anzeige);
    cb4->setChecked(einstellungen.komma);
    CB3 = new QCheckBox("Querverweise hervorheben", anzeige);
    CB3->setChecked(einstellungen.querv);
    auto* D4 = new QPushButton("Lexikon", anzeige);
    ag->addWidget(cb4, 0, 0);
    ag->addWidget(CB3, 1, 0);
    ag->addWidget(D4, 2, 0);
    connect(D4, &QPushButton::clicked, this, [this]() {
        bool ok = false;
        QFont start(QString::fromStdString(einstellungen.schrift));
        start.setPointSize(einstellungen.lexikonschrift);
        const QFont f = QFontDialog::getFont(&ok, start, this, "Lexikon");
        if (!ok)
            return;
        // The page changes at once; Abbruch doesn't undo this one.
        einstellungen.schrift = f.family().toStdString();
        einstellungen.lexikonschrift = std::max(6, f.pointSize());
        if (seiteNeuMalen_)
            seiteNeuMalen_();
    });
    g->addWidget(anzeige, 2, 0);

    g->addWidget(new QLabel("Nutzerdatenverzeichnis", this), 3, 0);
    auto* L7 = new QLabel(QString::fromStdString(lexicon::datenpfad), this);
    L7->setTextInteractionFlags(Qt::TextSelectableByMouse);
    g->addWidget(L7, 3, 1);

    auto* D2 = new QPushButton(QString::fromUtf8("Änderungen speichern"), this);
    auto* D1 = new QPushButton("Abbruch", this);
    g->addWidget(D2, 4, 0);
    g->addWidget(D1, 4, 1);
    connect(D2, &QPushButton::clicked, this, &TForm33::D2Click);
    connect(D1, &QPushButton::clicked, this, &QDialog::reject);
}

void TForm33::D2Click()
{
    einstellungen.linksDruck = randAusZentimeter(T1->text(), einstellungen.linksDruck);
    einstellungen.rechtsDruck = randAusZentimeter(T2->text(), einstellungen.rechtsDruck);
    einstellungen.obenDruck = randAusZentimeter(T3->text(), einstellungen.obenDruck);
    einstellungen.untenDruck = randAusZentimeter(T4->text(), einstellungen.untenDruck);
    einstellungen.druckfontsize = druckSchriftgroesse(T5->text());
    einstellungen.druckschrift = C1->currentText().toStdString();
    einstellungen.fDruck = CB1->isChecked();
    einstellungen.komma = cb4->isChecked();
    kernel::UseDecimalComma = einstellungen.komma;
    einstellungen.querv = CB3->isChecked();
    accept();
}

}  // namespace app
