#include "app/trtfform.h"

#include "lexicon/rtf.h"
#include "platform/textlist.h"
#include "platform/toolframe.h"

#include <QApplication>
#include <QClipboard>
#include <QFileDialog>
#include <QHBoxLayout>
#include <QLabel>
#include <QMenuBar>
#include <QMessageBox>
#include <QMimeData>
#include <QPainter>
#include <QPixmap>
#include <QPushButton>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextEdit>
#include <QVBoxLayout>

namespace app {

namespace {

// Marks characters set in the Symbol font, so that saving writes them back as Symbol bytes.
constexpr int kSymbolEigenschaft = QTextFormat::UserProperty + 1;

const platform::TColor kKopfGrund = platform::rgb(240, 243, 248);

class Kopf : public QWidget {
public:
    Kopf(Trtfform* form, QWidget* parent) : QWidget(parent), form_(form) { setFixedHeight(58); }

protected:
    void paintEvent(QPaintEvent*) override
    {
        platform::Canvas c(this);
        form_->kopfMalen(c, width(), height());
    }

private:
    Trtfform* form_;
};

QPushButton* knopf(QWidget* parent, const QString& text, const QString& hinweis)
{
    auto* b = new QPushButton(text, parent);
    b->setToolTip(hinweis);
    b->setFont(QFont(platform::mapFontFamily("Verdana"), 9));
    b->setMinimumHeight(28);
    b->setMinimumWidth(b->sizeHint().width() + 16);
    return b;
}

}  // namespace

Trtfform::Trtfform(QWidget* parent, std::string rtfPfad, platform::Picture bild, QString seitentitel)
    : QDialog(parent), pfad_(rtfPfad.empty() ? lexicon::rtfDateiname() : std::move(rtfPfad)), bild_(std::move(bild)),
      seitentitel_(std::move(seitentitel))
{
    setObjectName(QStringLiteral("Trtfform"));
    setWindowTitle(QStringLiteral("Quorix"));
    resize(1008, 710);

    auto* haupt = new QVBoxLayout(this);
    haupt->setContentsMargins(0, 0, 0, 0);
    haupt->setSpacing(0);

    auto* menue = new QMenuBar(this);
    QMenu* datei = menue->addMenu(QStringLiteral("&Datei"));
    datei->addAction(QStringLiteral("Abbildung kopieren"), this, &Trtfform::abbildungKopieren)
        ->setEnabled(!bild_.empty());
    datei->addAction(QStringLiteral("Alles auswählen"), this, [this] { R1->selectAll(); });
    datei->addAction(QStringLiteral("RTF-Datei speichern"), this, &Trtfform::rtfDateiSpeichern);
    datei->addSeparator();
    datei->addAction(QStringLiteral("Schließen"), this, &QDialog::accept);
    haupt->setMenuBar(menue);

    auto* kopf = new Kopf(this, this);
    auto* knoepfe = new QHBoxLayout(kopf);
    knoepfe->setContentsMargins(16, 8, 16, 14);
    knoepfe->addStretch(1);
    auto* kopieren = knopf(kopf, QStringLiteral("Text kopieren"), QStringLiteral("Den ganzen Text in die Zwischenablage"));
    auto* groesser = knopf(kopf, QStringLiteral("Schrift +"), QStringLiteral("Schrift vergrößern"));
    auto* kleiner = knopf(kopf, QStringLiteral("Schrift −"), QStringLiteral("Schrift verkleinern"));
    auto* schliessen = knopf(kopf, QStringLiteral("Schließen"), QStringLiteral("Fenster schließen"));
    for (auto* b : {kopieren, groesser, kleiner, schliessen})
        knoepfe->addWidget(b);
    connect(kopieren, &QPushButton::clicked, this, &Trtfform::textKopieren);
    connect(groesser, &QPushButton::clicked, this, [this] { schriftAendern(1); });
    connect(kleiner, &QPushButton::clicked, this, [this] { schriftAendern(-1); });
    connect(schliessen, &QPushButton::clicked, this, &QDialog::accept);
    haupt->addWidget(kopf);

    auto* zeile = new QHBoxLayout;
    zeile->setContentsMargins(0, 0, 0, 0);
    zeile->setSpacing(0);
    P4 = new QWidget(this);
    P4->setAutoFillBackground(true);
    QPalette pal = P4->palette();
    pal.setColor(QPalette::Window, Qt::white);
    P4->setPalette(pal);
    auto* p4Layout = new QVBoxLayout(P4);
    p4Layout->setContentsMargins(6, 10, 6, 6);
    I1 = new QLabel(P4);
    I1->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    p4Layout->addWidget(I1);
    p4Layout->addStretch(1);
    if (!bild_.empty()) {
        I1->setPixmap(QPixmap::fromImage(bild_.image()));
        P4->setFixedWidth(bild_.width() + 12);
    } else {
        I1->hide();
        P4->setFixedWidth(4);
    }
    zeile->addWidget(P4);

    R1 = new QTextEdit(this);
    R1->setAcceptRichText(true);
    R1->setFrameShape(QFrame::NoFrame);
    QFont grund(platform::mapFontFamily("Verdana"));
    grund.setPointSize(10);
    R1->document()->setDefaultFont(grund);
    R1->setTabStopDistance(48);
    R1->document()->setDocumentMargin(12);
    zeile->addWidget(R1, 1);
    haupt->addLayout(zeile, 1);

    status_ = new QLabel(this);
    status_->setContentsMargins(12, 4, 12, 4);
    status_->setFont(QFont(platform::mapFontFamily("Verdana"), 8));
    haupt->addWidget(status_);
}

void Trtfform::kopfMalen(platform::Canvas& c, int breite, int hoehe)
{
    QString titel = QStringLiteral("Lexikonseite als Text");
    if (!seitentitel_.isEmpty())
        titel += QStringLiteral(": ") + seitentitel_;
    platform::DrawToolTitle(c, breite, hoehe, titel, 14, kKopfGrund);
}

int Trtfform::p4Breite() const
{
    return P4->width() > 0 && P4->isVisible() ? P4->width() : P4->minimumWidth();
}

void Trtfform::showEvent(QShowEvent* e)
{
    QDialog::showEvent(e);
    if (!geladen_)
        laden();
}

void Trtfform::laden()
{
    geladen_ = true;
    R1->clear();
    std::string daten;
    if (!platform::readFile(pfad_, daten)) {
        status_->setText(QStringLiteral("Die Datei %1 fehlt.").arg(QString::fromStdString(pfad_)));
        return;
    }
    const lexicon::RtfDokument d = lexicon::rtfLesen(daten);
    if (!d.gueltig)
        status_->setText(QStringLiteral("Die Datei ist kein vollständiger RTF-Text."));
    QTextCursor cur(R1->document());
    for (size_t i = 0; i < d.absaetze.size(); ++i) {
        if (i > 0)
            cur.insertBlock();
        for (const auto& l : d.absaetze[i].laeufe) {
            QTextCharFormat f;
            f.setFontWeight(l.fett ? QFont::Bold : QFont::Normal);
            f.setFontItalic(l.kursiv);
            f.setForeground(platform::toQColor(l.farbe));
            f.setVerticalAlignment(l.hoehe == lexicon::RtfHoehe::hoch   ? QTextCharFormat::AlignSuperScript
                                   : l.hoehe == lexicon::RtfHoehe::tief ? QTextCharFormat::AlignSubScript
                                                                        : QTextCharFormat::AlignNormal);
            if (l.symbol)
                f.setProperty(kSymbolEigenschaft, true);
            cur.insertText(QString::fromStdString(l.text), f);
        }
    }
    R1->moveCursor(QTextCursor::Start);
    if (d.gueltig)
        status_->setText(QStringLiteral("%1 Absätze – der Text kann bearbeitet, kopiert und als RTF-Datei gespeichert werden.")
                             .arg(d.absaetze.size()));
}

lexicon::RtfDokument Trtfform::dokument() const
{
    lexicon::RtfDokument d;
    d.gueltig = true;
    for (QTextBlock b = R1->document()->begin(); b.isValid(); b = b.next()) {
        lexicon::RtfAbsatz a;
        for (auto it = b.begin(); !it.atEnd(); ++it) {
            const QTextFragment fr = it.fragment();
            if (!fr.isValid())
                continue;
            const QTextCharFormat f = fr.charFormat();
            lexicon::RtfLauf l;
            l.text = fr.text().replace(QChar::LineSeparator, QLatin1Char('\n')).toStdString();
            l.fett = f.fontWeight() >= QFont::Bold;
            l.kursiv = f.fontItalic();
            l.farbe = f.foreground().style() == Qt::NoBrush ? platform::clBlack
                                                             : platform::fromQColor(f.foreground().color());
            l.hoehe = f.verticalAlignment() == QTextCharFormat::AlignSuperScript ? lexicon::RtfHoehe::hoch
                      : f.verticalAlignment() == QTextCharFormat::AlignSubScript ? lexicon::RtfHoehe::tief
                                                                                 : lexicon::RtfHoehe::normal;
            l.symbol = f.boolProperty(kSymbolEigenschaft);
            if (!a.laeufe.empty() && a.laeufe.back().gleichesFormat(l))
                a.laeufe.back().text += l.text;
            else
                a.laeufe.push_back(l);
        }
        d.absaetze.push_back(std::move(a));
    }
    return d;
}

bool Trtfform::rtfSpeichern(const std::string& pfad) const
{
    try {
        platform::writeFileSafely(pfad, lexicon::rtfSchreiben(dokument()));
    } catch (const std::exception&) {
        return false;
    }
    return true;
}

void Trtfform::textKopieren()
{
    auto* mime = new QMimeData;
    mime->setText(R1->toPlainText());
    mime->setHtml(R1->document()->toHtml());
    const QByteArray rtf = QByteArray::fromStdString(lexicon::rtfSchreiben(dokument()));
    mime->setData(QStringLiteral("text/rtf"), rtf);
    mime->setData(QStringLiteral("application/rtf"), rtf);
    QApplication::clipboard()->setMimeData(mime);
    status_->setText(QStringLiteral("Der Text steht in der Zwischenablage."));
}

void Trtfform::abbildungKopieren()
{
    if (bild_.empty())
        return;
    QApplication::clipboard()->setImage(bild_.image());
    status_->setText(QStringLiteral("Die Abbildung steht in der Zwischenablage."));
}

void Trtfform::rtfDateiSpeichern()
{
    QFileDialog dlg(this, QStringLiteral("RTF-Datei speichern"));
    dlg.setAcceptMode(QFileDialog::AcceptSave);
    dlg.setNameFilter(QStringLiteral("RTF-Datei (*.rtf)"));
    dlg.setDefaultSuffix(QStringLiteral("rtf"));
    if (dlg.exec() != QDialog::Accepted || dlg.selectedFiles().isEmpty())
        return;
    if (!rtfSpeichern(dlg.selectedFiles().first().toStdString()))
        QMessageBox::warning(this, QStringLiteral("Quorix"), QStringLiteral("Die Datei kann nicht gespeichert werden."));
}

void Trtfform::schriftAendern(int schritte)
{
    // Between 6 and 24 points, from the base of 10.
    const int neu = std::clamp(zoom_ + schritte, -4, 14);
    if (neu == zoom_)
        return;
    R1->zoomIn(neu - zoom_);
    zoom_ = neu;
}

QDialog* createTrtfform(QWidget* parent)
{
    return new Trtfform(parent);
}

}  // namespace app
