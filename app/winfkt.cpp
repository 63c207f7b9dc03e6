#include "app/winfkt.h"

#include "app/builtin.h"
#include "app/einstellungen.h"
#include "app/teilprogramm.h"
#include "app/proliste.h"
#include "app/tfo3.h"
#include "app/trtfform.h"
#include "app/usuche.h"
#include "kernel/term.h"
#include "kernel/termderiv.h"
#include "graphs/windows.h"
#include "lexicon/suche.h"
#include "lexicon/datenpfad.h"
#include "lexicon/druck.h"
#include "lexicon/rtf.h"
#include "lexicon/einstellungen.h"
#include "lexicon/globals.h"
#include "lexicon/keywordorder.h"
#include "lexicon/linkfenster.h"
#include "lexicon/linkroute.h"
#include "lexicon/seitenrechner.h"
#include "platform/codepage.h"
#include "platform/container.h"
#include "platform/toolframe.h"
#include "kernel/realtostr.h"

#include <QApplication>
#include <QClipboard>
#include <QCloseEvent>
#include <QDesktopServices>
#include <QElapsedTimer>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenuBar>
#include <QMessageBox>
#include <QPainter>
#include <QPrintDialog>
#include <QPrinter>
#include <QPushButton>
#include <QScreen>
#include <QShortcut>
#include <QUrl>
#include <algorithm>
#include <cstdio>
#include <iostream>
#include <memory>

namespace app {

using lexicon::einstellungen;
using platform::fromCp1252;

bool ausnahmenAufKonsole = false;

void myexceptionhandler(const std::string& text)
{
    std::string t = text;
    if (t.empty() || t.back() != '.')
        t += '.';
    if (ausnahmenAufKonsole || QApplication::platformName() == "offscreen") {
        std::cerr << t << "\n";
        return;
    }
    QMessageBox::critical(nullptr, "Quorix", QString::fromStdString(t));
}

namespace {

const char* kTitelGross = "Quorix";
const char* kUntertitel = "Lexikon der Mathematik";
const char* kMotto = "Lesen, anschauen, rechnen \xE2\x80\x93 an einem Ort";

int spaltenbreite(bool gross) { return gross ? 280 : 200; }

QString ohneUnd(QString s)
{
    s.remove('&');
    return s;
}

constexpr int kP1Hoehe = 36;
constexpr int kP6Hoehe = 32;

QPushButton* knopf(QWidget* p, const char* text, const char* hinweis = nullptr)
{
    auto* b = new QPushButton(QString::fromUtf8(text), p);
    if (hinweis)
        b->setToolTip(QString::fromUtf8(hinweis));
    b->setFocusPolicy(Qt::NoFocus);
    return b;
}

}  // namespace

PaintBox::PaintBox(TForm1* form, QWidget* parent) : QWidget(parent), form_(form)
{
    setMouseTracking(true);
    setAttribute(Qt::WA_OpaquePaintEvent);
}

void PaintBox::paintEvent(QPaintEvent*)
{
    if (!form_->startbildOffen() &&
        (form_->seitenbild().width() != width() || form_->seitenbild().height() != height()))
        form_->LB1C();
    QPainter p(this);
    p.fillRect(rect(), Qt::white);
    p.drawImage(0, 0, form_->seitenbild().image());
}

void PaintBox::mouseMoveEvent(QMouseEvent* e)
{
    form_->PB1M(static_cast<int>(e->position().x()), static_cast<int>(e->position().y()));
}

void PaintBox::mousePressEvent(QMouseEvent* e)
{
    if (e->button() == Qt::LeftButton)
        form_->PB1D(static_cast<int>(e->position().x()), static_cast<int>(e->position().y()));
}

TForm1::TForm1(bool headless, QWidget* parent) : QMainWindow(parent)
{
    FormCreate(headless);
}

TForm1::~TForm1()
{
    FormDestroy();
}

void TForm1::FormCreate(bool headless)
{
    headless_ = headless;
    // 1. Paths and the user's data folder
    const char* home = std::getenv("QUORIX_HOME");
    lexicon::pfadeSetzen(home && *home ? std::string(home)
                                       : QCoreApplication::applicationDirPath().toStdString());
    lexicon::datenpfad = lexicon::datenpfadVorbereiten(
        lexicon::anwendungsdatenOrdner(), lexicon::programmpfad, lexicon::lexikonpfad, [this]() {
            if (headless_)
                return true;
            return QMessageBox::question(nullptr, "Quorix",
                                         QString::fromUtf8("Sollen selbst erstellte Formeln und andere ergänzte "
                                                           "Informationen bei der Installation einer neueren "
                                                           "Version übernommen werden?"),
                                         QMessageBox::Yes | QMessageBox::No) == QMessageBox::Yes;
        });
    store_.setLexikonpfad(lexicon::lexikonpfad);

    // 2./3. State and settings: defaults, then quorix.ini over them
    einstellungen = lexicon::Einstellungen{};
    platform::StringList ini;
    if (!lexicon::textDateiLesen(lexicon::datenpfad + "quorix.ini", ini) &&
        !lexicon::textDateiLesen(lexicon::programmpfad + "quorix.ini", ini))
        myexceptionhandler("Datei nicht gefunden: quorix.ini");
    lexicon::einstellungenLesen(einstellungen, ini);
    kernel::UseDecimalComma = einstellungen.komma;
    // Every numeric field reads terms; the rewrite list tidies derivatives.
    lexicon::feldWertLesen = [](const std::string& s, bool& ok) {
        const double v = quorix::ReadTermValue(s);
        ok = true;
        return v;
    };
    try {
        quorix::SetTermRewriteList(platform::loadTextResource(lexicon::lexikonpfad + "texte.dll", "10", "wverein"));
    } catch (const std::exception&) {
        quorix::SetTermRewriteList({});
    }
    platform::setTextResourceFile(lexicon::lexikonpfad + "textx.dll");
    platform::setPictureDirectory(lexicon::bildpfad);

    // 4. Caption
    setWindowTitle("Quorix");

    // 5. Use counts
    platform::StringList zaehler;
    if (platform::LoadCompressedList(zaehler, lexicon::datenpfad + "mfavor.c00"))
        for (size_t i = 0; i < zaehler.size() && i < menuzaehler_.size(); ++i)
            menuzaehler_[i] = static_cast<short>(std::atoi(zaehler[i].c_str()));

    // The window and its regions
    zentrale_ = new QWidget(this);
    zentrale_->setAutoFillBackground(true);
    QPalette pal = zentrale_->palette();
    pal.setColor(QPalette::Window, Qt::white);
    zentrale_->setPalette(pal);
    setCentralWidget(zentrale_);

    P1 = new QWidget(zentrale_);
    auto* p1lay = new QHBoxLayout(P1);
    p1lay->setContentsMargins(4, 2, 4, 2);
    auto* S12 = knopf(P1, "Themen");
    auto* S1 = knopf(P1, "Lexikon");
    auto* S11 = knopf(P1, "Stichwortliste");
    auto* S23 = knopf(P1, "Suche");
    for (auto* b : {S12, S1, S11, S23})
        p1lay->addWidget(b);
    p1lay->addStretch();
    connect(S1, &QPushButton::clicked, this, [this]() {
        if (p3Offen_)
            B2C();
        else if (LB1->currentRow() >= 0)
            LB1C();
    });
    connect(S23, &QPushButton::clicked, this, &TForm1::Su1C);
    connect(S12, &QPushButton::clicked, this, [this]() { S12C(false); });
    connect(S11, &QPushButton::clicked, this, [this]() {
        if (p3Offen_)
            B2C();
        p7Breite_ = p7Breite_ ? 0 : spaltenbreite(grossmodus_);
        anordnen();
    });

    P7 = new QWidget(zentrale_);
    LB1 = new QListWidget(P7);
    auto* p7lay = new QVBoxLayout(P7);
    p7lay->setContentsMargins(0, 0, 0, 0);
    p7lay->addWidget(LB1);
    LB1->installEventFilter(this);

    P5 = new QWidget(zentrale_);
    P6 = new QWidget(P5);
    P6->setAutoFillBackground(true);
    QPalette p6pal = P6->palette();
    p6pal.setColor(QPalette::Window, QColor(230, 236, 248));
    P6->setPalette(p6pal);
    auto* p6lay = new QHBoxLayout(P6);
    p6lay->setContentsMargins(6, 2, 6, 2);
    titelLabel_ = new QLabel(P6);
    QFont tf = titelLabel_->font();
    tf.setBold(true);
    tf.setPointSize(11);
    titelLabel_->setFont(tf);
    p6lay->addWidget(titelLabel_, 1);
    auto* S28 = knopf(P6, "Kopieren", "Text der Seite kopieren");
    auto* S3 = knopf(P6, "Drucken", "Lexikonseite drucken");
    auto* S21 = knopf(P6, "\xE2\x86\x91", "Vorhergehendes Schlagwort");
    auto* S7 = knopf(P6, "\xE2\x86\x93", "N\xC3\xA4" "chstes Schlagwort");
    auto* S19 = knopf(P6, "\xE2\x97\x80", "Thema zur\xC3\xBC" "ckbl\xC3\xA4ttern");
    auto* S20 = knopf(P6, "\xE2\x96\xB6", "Thema weiterbl\xC3\xA4ttern");
    auto* s27 = knopf(P6, "\xE2\x86\xA9", "Letztes Thema");
    for (auto* b : {S28, S3, S21, S7, S19, S20, s27}) {
        // The title keeps the room; the arrows are small square buttons.
        if (b != S28 && b != S3)
            b->setFixedWidth(34);
        b->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
        p6lay->addWidget(b);
    }
    titelLabel_->setMinimumWidth(120);
    connect(S19, &QPushButton::clicked, this, &TForm1::S2C);
    connect(S20, &QPushButton::clicked, this, &TForm1::S1C);
    connect(s27, &QPushButton::clicked, this, &TForm1::T1C);
    connect(S7, &QPushButton::clicked, this, &TForm1::R1C);
    connect(S21, &QPushButton::clicked, this, &TForm1::H1C);
    connect(S28, &QPushButton::clicked, this, &TForm1::S28C);
    connect(S3, &QPushButton::clicked, this, &TForm1::Dr1C);
    PBox1 = new PaintBox(this, P5);

    // Side panel P12 with the page calculator
    P12 = new QWidget(zentrale_);
    P12->setAutoFillBackground(true);
    QPalette p12pal = P12->palette();
    p12pal.setColor(QPalette::Window, QColor(240, 240, 232));
    P12->setPalette(p12pal);
    P14 = new QWidget(P12);
    P14->setGeometry(0, 0, 264, 190);
    L10 = new QLabel(P14);
    L10->setGeometry(8, 6, 250, 20);
    L10->setWordWrap(true);
    QFont lf = L10->font();
    lf.setBold(true);
    L10->setFont(lf);
    L2 = new QLabel(P14);
    L2->setGeometry(8, 36, 110, 22);
    Ed1 = new QLineEdit(P14);
    Ed1->setGeometry(120, 36, 121, 22);
    L3 = new QLabel(P14);
    L3->setGeometry(8, 64, 110, 22);
    Ed2 = new QLineEdit(P14);
    Ed2->setGeometry(120, 64, 121, 22);
    L12 = new QLabel(P14);
    L12->setGeometry(8, 92, 110, 22);
    ed3 = new QLineEdit(P14);
    ed3->setGeometry(120, 92, 121, 22);
    D2 = new QPushButton("Berechnung", P14);
    D2->setGeometry(120, 122, 121, 26);
    connect(D2, &QPushButton::clicked, this, &TForm1::B1C);
    L11 = new QLabel("Ergebnis", P14);
    L11->setGeometry(8, 160, 120, 20);
    L6 = new QLabel(P14);
    L6->setGeometry(140, 160, 110, 20);
    LB3 = new QListWidget(P12);

    // Start picture P3 covering everything
    P3 = new QWidget(zentrale_);
    I2 = new QLabel(P3);
    I2->setScaledContents(true);
    Rx2 = new QLabel(QString::fromUtf8(kTitelGross), P3);
    Rx1 = new QLabel(QString::fromUtf8(kTitelGross), P3);
    L4 = new QLabel(QString::fromUtf8(kUntertitel), P3);
    L5 = new QLabel(QString::fromUtf8(kMotto), P3);
    QFont big("DejaVu Sans");
    big.setPixelSize(72);
    big.setBold(true);
    Rx1->setFont(big);
    Rx2->setFont(big);
    Rx1->setStyleSheet("color: #1d3f8f; background: transparent;");
    Rx2->setStyleSheet("color: rgba(255,255,255,200); background: transparent;");
    QFont mid("DejaVu Sans");
    mid.setPixelSize(26);
    L4->setFont(mid);
    L4->setStyleSheet("color: #1d3f8f; background: transparent;");
    QFont small("DejaVu Sans");
    small.setPixelSize(18);
    small.setItalic(true);
    L5->setFont(small);
    L5->setStyleSheet("color: #303030; background: transparent;");
    for (auto* l : {Rx1, Rx2, L4, L5})
        l->adjustSize();
    P3->installEventFilter(this);

    menueAufbauen();
    if (!zaehler.empty())
        favoritensetzen();

    // 6.-9. Screen, start picture, size
    startbildLaden();
    QScreen* screen = QApplication::primaryScreen();
    const QSize bild = screen ? screen->size() : QSize(1920, 1080);
    grossmodus_ = bild.width() >= 1280;
    resize(1008, 710 + menuBar()->sizeHint().height());
    if (!headless && bild.height() <= 800)
        setWindowState(Qt::WindowMaximized);
    bildBreite = width();
    bildHoehe = height();

    // 10. Marker bitmaps
    linkbilderErzeugen();

    // 11. Keyword list
    lb1Zeilen_ = store_.stichwortliste();
    stichworte_.reserve(lb1Zeilen_.size());
    LB1->setUniformItemSizes(true);
    QFont lbFont = LB1->font();
    lbFont.setPointSize(einstellungen.listboxschrift + 1);
    LB1->setFont(lbFont);
    for (const auto& z : lb1Zeilen_) {
        stichworte_.push_back(lexicon::stichwortText(z));
        LB1->addItem(fromCp1252(stichworte_.back()));
    }
    connect(LB1, &QListWidget::currentRowChanged, this, [this](int) {
        if (!malt_)
            LB1C();
    });

    // 12. Catalogue
    const auto cat = builtin::resource("txtueber");
    katalog_ = lexicon::ToolCatalog(platform::splitLines(platform::zlibInflate(std::string(cat))));

    // 13. Initial selection, regions
    if (einstellungen.lexikonseite >= 0 && einstellungen.lexikonseite < LB1->count()) {
        malt_ = true;
        LB1->setCurrentRow(einstellungen.lexikonseite);
        malt_ = false;
    }
    p3Offen_ = true;
    p12Breite_ = 0;
    p7Breite_ = 0;
    lexicon::wahlseite = -1;

    // Keys of the navigation table
    auto kurz = [this](const QKeySequence& k, void (TForm1::*f)()) {
        auto* s = new QShortcut(k, this);
        connect(s, &QShortcut::activated, this, f);
    };
    kurz(QKeySequence(Qt::CTRL | Qt::Key_Left), &TForm1::S2C);
    kurz(QKeySequence(Qt::CTRL | Qt::Key_Right), &TForm1::S1C);
    kurz(QKeySequence(Qt::SHIFT | Qt::Key_Left), &TForm1::M451Click);
    kurz(QKeySequence(Qt::SHIFT | Qt::Key_Right), &TForm1::plus1C);
    kurz(QKeySequence(Qt::CTRL | Qt::Key_Backspace), &TForm1::T1C);
    auto* walk = new QShortcut(QKeySequence(Qt::CTRL | Qt::ALT | Qt::Key_S), this);
    connect(walk, &QShortcut::activated, this, [this]() { M766C(); });

    // 14.
    if (einstellungen.maxfenster)
        setWindowState(Qt::WindowMaximized);
    anordnen();
}

void TForm1::FormDestroy()
{
    aktuellspeichern();
    sucheoffen_ = false;
}

void TForm1::aktuellspeichern()
{
    // Settings and use counts go back to the user's folder, written safely.
    try {
        if (!lexicon::datenpfad.empty() && lexicon::datenpfad != lexicon::lexikonpfad) {
            platform::StringList ini;
            const std::string pfad = lexicon::datenpfad + "quorix.ini";
            lexicon::textDateiLesen(pfad, ini);
            einstellungen.lexikonseite = LB1 ? std::max(0, LB1->currentRow()) : 0;
            if (LB1)
                einstellungen.listboxschrift = std::max(8, LB1->font().pointSize() - 1);
            einstellungen.maxfenster = isMaximized();
            platform::writeFileSafely(pfad, platform::joinLines(lexicon::einstellungenSchreiben(einstellungen, ini)));
            platform::StringList zaehler;
            for (short z : menuzaehler_)
                zaehler.push_back(std::to_string(z));
            platform::SaveCompressedList(zaehler, lexicon::datenpfad + "mfavor.c00");
        }
    } catch (const std::exception& e) {
        std::cerr << e.what() << "\n";
    }
}

void TForm1::menueAufbauen()
{
    const auto roh = builtin::resource("menu");
    const platform::StringList zeilen = platform::splitLines(platform::zlibInflate(std::string(roh)));
    std::map<std::string, std::function<void()>> handler = {
        {"S3C", [this]() { S3C(); }},
        {"S41C", [this]() { S41C(); }},
        {"S12C", [this]() { S12C(false); }},
        {"S12CZ", [this]() { S12C(true); }},
        {"Su1C", [this]() { Su1C(); }},
        {"Le1C", [this]() { Le1C(); }},
        {"Ein1Click", [this]() { Ein1Click(); }},
        {"M766C", [this]() { M766C(); }},
        {"S1C", [this]() { S1C(); }},
        {"S2C", [this]() { S2C(); }},
        {"T1C", [this]() { T1C(); }},
        {"B2C", [this]() { B2C(); }},
        {"S28C", [this]() { S28C(); }},
        {"Dr1C", [this]() { Dr1C(); }},
        {"N769Click", []() { QDesktopServices::openUrl(QUrl("https://quorix.example.org")); }},
        {"M233C", []() {
             QDesktopServices::openUrl(QUrl::fromLocalFile(QString::fromStdString(lexicon::lexikonpfad + "handbuch.pdf")));
         }},
        {"infoc", [this]() {
             QMessageBox::about(this, "Quorix",
                                QString::fromUtf8("Quorix – Lexikon der Mathematik\nVersion %1")
                                    .arg(QString::fromUtf8(QUORIX_VERSION_TEXT)));
         }},
    };
    std::vector<std::pair<int, QMenu*>> stapel;  // indent level -> menu
    std::vector<std::string> namen;
    for (size_t i = 0; i < zeilen.size(); ++i) {
        const std::string& roh2 = zeilen[i];
        if (roh2.empty() || roh2.rfind("//", 0) == 0)
            continue;
        size_t einzug = 0;
        while (einzug < roh2.size() && roh2[einzug] == ' ')
            ++einzug;
        const int ebene = static_cast<int>(einzug / 2);
        const std::string rest = roh2.substr(einzug);
        const QStringList teile = fromCp1252(rest).split('\t');
        const std::string name = teile.value(0).toStdString();
        const QString caption = teile.value(1);
        while (!stapel.empty() && stapel.back().first >= ebene)
            stapel.pop_back();
        QMenu* eltern = stapel.empty() ? nullptr : stapel.back().second;
        if (name == "-") {
            if (eltern)
                eltern->addSeparator();
            continue;
        }
        // A line followed by a deeper one opens a submenu.
        bool hatKinder = false;
        for (size_t j = i + 1; j < zeilen.size(); ++j) {
            if (zeilen[j].empty() || zeilen[j].rfind("//", 0) == 0)
                continue;
            size_t e2 = 0;
            while (e2 < zeilen[j].size() && zeilen[j][e2] == ' ')
                ++e2;
            hatKinder = static_cast<int>(e2 / 2) > ebene;
            break;
        }
        if (hatKinder) {
            QMenu* m = eltern ? eltern->addMenu(caption) : menuBar()->addMenu(caption);
            m->setObjectName(QString::fromStdString(name));
            stapel.emplace_back(ebene, m);
            continue;
        }
        QAction* a = eltern ? eltern->addAction(caption) : menuBar()->addAction(caption);
        a->setObjectName(QString::fromStdString(name));
        if (teile.size() > 2)
            a->setShortcut(QKeySequence(teile.value(2)));
        menuePunkte_[name] = a;
        if (name.size() > 1 && name[0] == 'M' && std::all_of(name.begin() + 1, name.end(), ::isdigit)) {
            const int nr = std::atoi(name.c_str() + 1);
            QString ohne = caption;
            ohne.remove('&');
            menueTitel_[nr] = ohne;
            connect(a, &QAction::triggered, this, [this, nr, caption]() { _M(nr, caption); });
        } else if (name.rfind("XM", 0) == 0) {
            a->setVisible(false);  // favourites: filled from the use counts
        } else if (ohneUnd(caption) == QString::fromUtf8("Favoriten löschen")) {
            connect(a, &QAction::triggered, this, [this]() { favoritenLoeschen(); });
        } else if (name == "S12C" && ohneUnd(caption) == "Zusatztexte") {
            connect(a, &QAction::triggered, this, [this]() { S12C(true); });
        } else if (auto it = handler.find(name); it != handler.end()) {
            auto f = it->second;
            connect(a, &QAction::triggered, this, [f]() { f(); });
        }
    }
}

void TForm1::startbildLaden()
{
    try {
        I2->setPixmap(QPixmap::fromImage(bildLaden("bwfkt.dll", "Jpeg", "aa").image()));
    } catch (const std::exception& e) {
        myexceptionhandler(e.what());
    }
}

platform::Picture TForm1::bildLaden(const std::string& container, const std::string& typ, const std::string& name)
{
    return platform::decodePicture(platform::readResource(lexicon::bildpfad + container, typ, name), typ);
}

void TForm1::linkbilderErzeugen()
{
    // The five markers (F, G, B, V, R), drawn once; 16 x 16 like the original bitmaps.
    const char* zeichen[5] = {"f", "G", "=", "\xE2\x96\xB6", "\xE2\x97\x80"};
    const QColor farben[5] = {QColor(0, 110, 0), QColor(150, 60, 0), QColor(0, 0, 160), QColor(0, 0, 128),
                              QColor(0, 0, 128)};
    for (int i = 0; i < 5; ++i) {
        QImage img(16, 16, QImage::Format_RGB32);
        img.fill(Qt::white);
        QPainter p(&img);
        p.setRenderHint(QPainter::Antialiasing);
        p.setPen(QPen(farben[i], 1));
        p.setBrush(QColor(235, 240, 255));
        p.drawRoundedRect(QRectF(0.5, 0.5, 15, 15), 3, 3);
        QFont f("DejaVu Sans");
        f.setPixelSize(i == 0 ? 13 : 10);
        f.setBold(true);
        f.setItalic(i == 0);
        p.setFont(f);
        p.drawText(QRect(0, 0, 16, 16), Qt::AlignCenter, QString::fromUtf8(zeichen[i]));
        p.end();
        linkbild_[static_cast<size_t>(i)] = platform::Picture(img);
    }
}

void TForm1::anordnen()
{
    if (!zentrale_)
        return;
    const int w = zentrale_->width();
    const int h = zentrale_->height();
    P1->setGeometry(0, 0, w, kP1Hoehe);
    const int oben = kP1Hoehe;
    P7->setGeometry(0, oben, p7Breite_, h - oben);
    P7->setVisible(p7Breite_ > 0);
    P12->setGeometry(w - p12Breite_, oben, p12Breite_, h - oben);
    P12->setVisible(p12Breite_ > 0);
    LB3->setGeometry(0, 192, p12Breite_, std::max(0, h - oben - 192));
    const int p5w = std::max(0, w - p7Breite_ - p12Breite_);
    P5->setGeometry(p7Breite_, oben, p5w, h - oben);
    P6->setGeometry(0, 0, p5w, kP6Hoehe);
    PBox1->setGeometry(0, kP6Hoehe, p5w, std::max(0, h - oben - kP6Hoehe));
    if (p3Offen_) {
        P3->setGeometry(0, 0, w, h);
        P3->show();
        P3->raise();
        I2->setGeometry(0, 0, w, h);
        // Title labels as the resize rule places them
        const int hoehe = height();
        int top1 = 146, top2 = 149, top5 = 480;
        if (hoehe >= 850) {
            top1 = static_cast<int>(std::lround(hoehe * 146.0 / 680));
            top2 = top1 + 3;
            top5 = hoehe * 480 / 750;
        }
        Rx1->move(Rx1->x(), top1);
        Rx2->move(Rx2->x(), top2);
        L4->move(L4->x(), top1 + 62 + 30);
        L5->move(L5->x(), top5);
        labelposition((w - 1024) / 2);
    } else {
        P3->hide();
    }
}

void TForm1::labelposition(int dx)
{
    Rx1->move(dx + 120, Rx1->y());
    Rx2->move(dx + 123, Rx2->y());
    L4->move(dx + 122, L4->y());
    L5->move(dx + 360, L5->y());
}

void TForm1::resizeEvent(QResizeEvent* e)
{
    QMainWindow::resizeEvent(e);
    bildBreite = width();
    bildHoehe = height();
    grossmodus_ = width() >= 1280;
    anordnen();
}

void TForm1::closeEvent(QCloseEvent* e)
{
    if (zeitaufwaendig_) {
        zeitaufwaendig_ = false;
        e->ignore();
        return;
    }
    QMainWindow::closeEvent(e);
}

bool TForm1::eventFilter(QObject* obj, QEvent* ev)
{
    if (obj == LB1 && ev->type() == QEvent::KeyPress) {
        auto* k = static_cast<QKeyEvent*>(ev);
        if (k->modifiers() == Qt::NoModifier || k->modifiers() == Qt::KeypadModifier) {
            if (k->key() == Qt::Key_Left) { S2C(); return true; }
            if (k->key() == Qt::Key_Right) { S1C(); return true; }
            if (k->key() == Qt::Key_Return || k->key() == Qt::Key_Enter) { E1C(); return true; }
        }
    }
    if (obj == P3 && ev->type() == QEvent::MouseButtonPress) {
        B2C();
        return true;
    }
    return QMainWindow::eventFilter(obj, ev);
}

void TForm1::B2C()
{
    if (p3Offen_) {
        zeitaufwaendig_ = false;
        menuBar()->setEnabled(true);
        p3Offen_ = false;
        I2->clear();
        if (p7Breite_ == 0)
            p7Breite_ = spaltenbreite(grossmodus_);
        anordnen();
        if (!malt_ && LB1->currentRow() >= 0)
            LB1C();
    } else {
        menuBar()->setEnabled(false);
        startbildLaden();
        p3Offen_ = true;
        p7Breite_ = 0;
        anordnen();
    }
}

void TForm1::LB1C()
{
    if (malt_ || LB1->currentRow() < 0)
        return;
    malt_ = true;
    struct Ende {
        bool& f;
        ~Ende() { f = false; }
    } ende{malt_};
    try {
        if (p3Offen_) {
            malt_ = false;
            B2C();  // paints itself
            return;
        }
        const int breite = std::max(1, PBox1->width());
        const int hoehe = std::max(1, PBox1->height());
        if (breite != letzteBreite_ || seitenbild_.height() != hoehe) {
            seitenbild_.setSize(breite, hoehe);
            letzteBreite_ = breite;
        }
        seitenbild_.fill(platform::clWhite);
        bildseite_ = false;
        const int idx = LB1->currentRow();
        if (idx != letzterindex_) {
            verlauf_.push_back(std::to_string(idx));
            letzterindex_ = idx;
        }
        aktseite_ = lexicon::seitennummerAusStichwort(lb1Zeilen_[static_cast<size_t>(idx)]);
        const int L = store_.kopfzeile(aktseite_);
        lexicon::SeitenErgebnis erg;
        {
            platform::Canvas c(seitenbild_);
            lexicon::SeitenEinstellungen se{einstellungen.schrift, einstellungen.lexikonschrift, einstellungen.querv};
            lexicon::SeitenMaler maler(c, se, linkbild_, [this](const std::string& ct, const std::string& t,
                                                                 const std::string& n) { return bildLaden(ct, t, n); });
            lexicon::SuchMarke marke;
            marke.aktiv = sucheoffen_;
            marke.wort1 = suchwort1_;
            marke.wort2 = suchwort2_;
            erg = maler.maleSeite(store_.seitenblock, L, breite, p12Breite_ == 264, marke);
        }
        titel_ = erg.titel;
        seitenEnde_ = erg.yEnde;
        titelLabel_->setText(fromCp1252(titel_));
        linkfeld_ = erg.links;
        bildseite_ = erg.bildseite;
        if (erg.interaktiv.vorhanden) {
            if (p12Breite_ == 0) {
                p12Breite_ = 264;
                anordnen();
                malt_ = false;
                LB1C();
                return;
            }
            LB3->hide();
            seitenleisteEinrichten(erg.interaktiv);
        } else if (p12Breite_ == 264) {
            p12Breite_ = 0;
            anordnen();
            malt_ = false;
            LB1C();
            return;
        }
        letzteseite_ = aktseite_;
        PBox1->update();
    } catch (const std::exception& e) {
        myexceptionhandler(e.what());
    }
}

void TForm1::seitenleisteEinrichten(const lexicon::InteraktiverTeil& teil)
{
    const bool neu = aktivnummer_ != teil.aktivnummer;
    aktivnummer_ = teil.aktivnummer;
    l10Text_ = teil.l10;
    L10->setText(fromCp1252(teil.l10));
    L2->setText(fromCp1252(teil.l2));
    L3->setText(fromCp1252(teil.l3));
    Ed2->setVisible(!teil.l3.empty());
    lexicon::SeitenrechnerFelder f;
    f.ed1 = platform::toCp1252(Ed1->text());
    f.ed2 = platform::toCp1252(Ed2->text());
    lexicon::seitenrechnerVorbereiten(aktivnummer_, f);
    if (neu) {
        Ed1->setText(fromCp1252(f.ed1));
        Ed2->setText(fromCp1252(f.ed2));
    }
    L12->setText(fromCp1252(f.l12));
    ed3->setVisible(!f.l12.empty());
    if (f.ed1Breit)
        Ed1->setGeometry(20, 36, 221, 22);
    else
        Ed1->setGeometry(120, 36, 121, 22);
}

void TForm1::B1C()
{
    if (zeitaufwaendig_) {
        zeitaufwaendig_ = false;
        return;
    }
    zeitaufwaendig_ = true;
    D2->setText("Abbruch");
    QApplication::setOverrideCursor(Qt::WaitCursor);
    LB3->show();
    LB3->clear();
    lexicon::SeitenrechnerRahmen r;
    r.ed1 = platform::toCp1252(Ed1->text());
    r.ed2 = platform::toCp1252(Ed2->text());
    r.ed3 = platform::toCp1252(ed3->text());
    r.l10 = l10Text_;
    r.zeitaufwaendig = &zeitaufwaendig_;
    r.nachrichtenschleife = []() { QApplication::processEvents(); };
    QElapsedTimer uhr;
    uhr.start();
    try {
        if (!lexicon::seitenrechnerStarten(aktivnummer_, r))
            r.zeilen.push_back("Dieser Rechner ist noch nicht verf\xFC" "gbar");
    } catch (const std::exception& e) {
        myexceptionhandler(e.what());
    }
    const double ms = uhr.nsecsElapsed() / 1e6;
    L6->setText(ms > 1000 ? QString::number(ms / 1000, 'f', 1) + " s" : QString::number(ms, 'f', 1) + " ms");
    Ed1->setText(fromCp1252(r.ed1));
    Ed2->setText(fromCp1252(r.ed2));
    ed3->setText(fromCp1252(r.ed3));
    for (const auto& z : r.zeilen) {
        QString t = fromCp1252(z);
        t.replace('\t', "    ");
        LB3->addItem(t);
    }
    zeitaufwaendig_ = false;
    QApplication::restoreOverrideCursor();
    D2->setText("Berechnung");
}

QStringList TForm1::seitenrechnerZeilen() const
{
    QStringList l;
    for (int i = 0; i < LB3->count(); ++i)
        l << LB3->item(i)->text();
    return l;
}

void TForm1::seitenrechnerFelder(const QString& a, const QString& b, const QString& c)
{
    Ed1->setText(a);
    Ed2->setText(b);
    ed3->setText(c);
}

void TForm1::NeueSeite()
{
    try {
        const int n = letzteseite_;
        const int L = store_.kopfzeile(n);
        if (L <= 0)
            return;
        const size_t z = static_cast<size_t>(L) + 2;
        if (z >= store_.seitenblock.size())
            return;
        const std::string& zeile = store_.seitenblock[z];
        if (zeile.rfind("\xA7", 0) != 0)
            return;
        stichwortSuchenUndZeigen(zeile.substr(1, 65));
    } catch (const std::exception& e) {
        myexceptionhandler(e.what());
    }
}

void TForm1::PB1M(int x, int y)
{
    if (linkfeld_.empty()) {
        PBox1->setCursor(Qt::ArrowCursor);
        return;
    }
    PBox1->setCursor(lexicon::linkAnPunkt(linkfeld_, x, y) >= 0 ? Qt::PointingHandCursor : Qt::ArrowCursor);
}

void TForm1::PB1D(int x, int y)
{
    using lexicon::KlickAktion;
    try {
        const KlickAktion a = lexicon::klickAuswerten(linkfeld_, x, y, lb1Zeilen_, katalog_);
        letzteAktion_.clear();
        if (!a.url.empty()) {
            letzteAktion_ = "url:" + a.url;
            if (!headless_)
                QDesktopServices::openUrl(QUrl(fromCp1252(a.url)));
        }
        if (a.art == KlickAktion::Nichts)
            return;
        PBox1->setCursor(Qt::ArrowCursor);
        switch (a.art) {
        case KlickAktion::Stichwort:
            letzteAktion_ = "stichwort:" + std::to_string(a.index);
            zeileZeigen(a.index);
            break;
        case KlickAktion::Werkzeug: {
            letzteAktion_ = "werkzeug:" + std::to_string(a.werkzeug.nummer);
            lexicon::werkzeugnummer = a.werkzeug.nummer;
            lexicon::wahlseite = a.werkzeug.seite;
            lexicon::wahlpunkt = a.werkzeug.punkt;
            lexicon::werkzeugtitel = a.text;
            const QString key = fromCp1252(a.text);
            for (int m = 1; m <= 805; ++m) {
                auto it = menueTitel_.find(m);
                if (it != menueTitel_.end() && it->second == key) {
                    ++menuzaehler_[static_cast<size_t>(m)];
                    break;
                }
            }
            teilprogrammstarten(this);
            LB1C();
            break;
        }
        case KlickAktion::Funktionsplot: {
            letzteAktion_ = "plot:" + a.wert;
            // The plotter reads the plot list when it opens; it joins with its own tool.
            lexicon::PlotAuftrag p = lexicon::plotAuftragAusWert(a.wert);
            if (p.flaeche) {
                lexicon::werkzeugnummer = 89;  // the surface tool reads flaechenname
                teilprogrammstarten(this);
            } else if (!headless_) {
                graphs::plotAuftragOeffnen(p, this);
            }
            NeueSeite();
            break;
        }
        case KlickAktion::Zusatzbild: {
            letzteAktion_ = "zusatzbild:" + a.wert;
            if (!headless_) {
                lexicon::Tzusatzbild d(a.wert, this);
                d.exec();
            }
            NeueSeite();
            break;
        }
        case KlickAktion::Tabelle: {
            letzteAktion_ = "tabelle:" + a.wert;
            if (!headless_) {
                lexicon::Tftabelle d(a.wert, this);
                d.exec();
            }
            NeueSeite();
            break;
        }
        case KlickAktion::Pdf: {
            letzteAktion_ = "pdf:" + a.wert;
            const std::string ziel = lexicon::datenpfad + a.wert + ".pdf";
            std::remove(ziel.c_str());
            platform::writeFileSafely(ziel, platform::readResource(lexicon::lexikonpfad + "tpdf.dll", "10", a.wert));
            if (!headless_)
                QDesktopServices::openUrl(QUrl::fromLocalFile(QString::fromStdString(ziel)));
            NeueSeite();
            break;
        }
        case KlickAktion::GifFenster: {
            letzteAktion_ = "gif:" + a.wert;
            if (!headless_) {
                lexicon::TGifform d(a.wert, this);
                d.exec();
            }
            NeueSeite();
            break;
        }
        case KlickAktion::Begleitprogramm:
            letzteAktion_ = "begleit:" + a.wert;  // companion programs are not part of this build
            NeueSeite();
            break;
        case KlickAktion::Weiter:
            letzteAktion_ = "weiter";
            letzteseite_ += 1;
            NeueSeite();
            break;
        case KlickAktion::Zurueck:
            letzteAktion_ = "zurueck";
            letzteseite_ = std::max(0, letzteseite_ - 1);
            NeueSeite();
            break;
        case KlickAktion::Lexikonrechnung: {
            letzteAktion_ = "rechnung:" + a.wert;
            if (!headless_) {
                const auto& l = linkfeld_[static_cast<size_t>(a.linkIndex)];
                TFo3 d(a.wert, this);
                d.move(PBox1->mapToGlobal(QPoint(l.x1, l.y1 + 24)));
                d.exec();
            }
            LB1C();
            break;
        }
        case KlickAktion::Nichts:
            break;
        }
    } catch (const std::exception& e) {
        myexceptionhandler(e.what());
    }
}

void TForm1::S1C()
{
    if (p3Offen_)
        B2C();
    letzteseite_ += 1;
    NeueSeite();
}

void TForm1::S2C()
{
    if (p3Offen_)
        B2C();
    letzteseite_ = std::max(0, letzteseite_ - 1);
    NeueSeite();
}

void TForm1::M451Click()
{
    if (p3Offen_)
        B2C();
    letzteseite_ = std::max(0, letzteseite_ - 10);
    NeueSeite();
}

void TForm1::plus1C()
{
    if (p3Offen_)
        B2C();
    letzteseite_ += 10;
    NeueSeite();
}

void TForm1::T1C()
{
    if (verlauf_.size() <= 1)
        return;
    malt_ = true;
    LB1->setCurrentRow(std::atoi(verlauf_[verlauf_.size() - 2].c_str()));
    malt_ = false;
    verlauf_.pop_back();
    // The second deletion is uneven on purpose: the history shrinks as it is walked back.
    if (verlauf_.size() > 2)
        verlauf_.pop_back();
    letzterindex_ = std::atoi(verlauf_.back().c_str());
    LB1C();
}

void TForm1::R1C()
{
    const int i = LB1->currentRow();
    if (i + 1 < LB1->count()) {
        zeileZeigen(i + 1);
    }
}

void TForm1::H1C()
{
    const int i = LB1->currentRow();
    if (i > 0) {
        zeileZeigen(i - 1);
    }
}

void TForm1::E1C()
{
    if (p12Breite_ == 264)
        B1C();
}

int TForm1::M766C()
{
    QElapsedTimer uhr;
    uhr.start();
    int seiten = 0;
    try {
        const int letzter = store_.letzterBlock();
        store_.ladeblock("t" + std::to_string(letzter));
        store_.blocknummer = letzter;
        int k = 99;
        for (int i = 1; i < 100 && i < static_cast<int>(store_.seitenblock.size()); ++i) {
            if (store_.seitenblock[static_cast<size_t>(i)] == store_.seitenblock[static_cast<size_t>(i) - 1]) {
                k = i;
                break;
            }
        }
        const int ende = (letzter - 1) * 100 + k;
        for (int n = 0; n <= ende; ++n) {
            letzteseite_ = n;
            NeueSeite();
            ++seiten;
            if (n % 100 == 0)
                QApplication::processEvents();
        }
    } catch (const std::exception& e) {
        myexceptionhandler(e.what());
    }
    const double s = uhr.nsecsElapsed() / 1e9;
    setWindowTitle(QString::number(s, 'f', 3) + " s");
    verlauf_.assign(1, "0");
    return seiten;
}

void TForm1::S3C()
{
    if (zeitaufwaendig_) {
        zeitaufwaendig_ = false;
        return;
    }
    close();
}

void TForm1::_M(int nummer, const QString& caption)
{
    if (nummer >= 0 && nummer < static_cast<int>(menuzaehler_.size()))
        ++menuzaehler_[static_cast<size_t>(nummer)];
    QString ohne = caption;
    ohne.remove('&');
    lexicon::werkzeugtitel = platform::toCp1252(ohne);
    xmenu(lexicon::werkzeugtitel);
}

void TForm1::xmenu(const std::string& titel)
{
    lexicon::wahlseite = -1;
    lexicon::wahlpunkt = -1;
    try {
        lexicon::ToolTriple t;
        if (!katalog_.suche(titel, t))
            return;
        lexicon::werkzeugnummer = t.nummer;
        lexicon::wahlseite = t.seite;
        lexicon::wahlpunkt = t.punkt;
        teilprogrammstarten(this);
        if (!p3Offen_)
            LB1C();
    } catch (const std::exception& e) {
        myexceptionhandler(e.what());
    }
}

void TForm1::lexikonsichtbar(bool an)
{
    for (const char* n : {"Dr1C", "S28C"})
        if (auto it = menuePunkte_.find(n); it != menuePunkte_.end())
            it->second->setEnabled(an);
    LB1->setFocus();
}

bool TForm1::stichwortWaehlen(const std::string& stichwort)
{
    for (size_t i = 0; i < stichworte_.size(); ++i) {
        if (stichworte_[i] == stichwort) {
            zeileZeigen(static_cast<int>(i));
            return true;
        }
    }
    return false;
}

bool TForm1::seiteWaehlen(int seite)
{
    if (p3Offen_)
        B2C();
    letzteseite_ = seite;
    const int vorher = LB1->currentRow();
    const std::string alt = titel_;
    NeueSeite();
    return aktseite_ == seite && (LB1->currentRow() != vorher || titel_ != alt || aktseite_ == seite);
}

}  // namespace app

namespace app {

void TForm1::Su1C()
{
    if (sucheoffen_ && suche_) {
        suche_->setWindowState(suche_->windowState() & ~Qt::WindowMinimized);
        suche_->show();
        suche_->raise();
        suche_->activateWindow();
        return;
    }
    suche_ = new Tfsuche(this);
    sucheoffen_ = true;
    suche_->show();
}

void TForm1::S41C()
{
    Su1C();
    suche_->B2Click();
}

void TForm1::Le1C()
{
    Su1C();
    suche_->B3Click();
}

void TForm1::Ein1Click()
{
    TForm33 d([this]() {
        letzteBreite_ = -1;
        LB1C();
    }, this);
    d.exec();
    if (!p3Offen_)
        LB1C();
}

std::vector<std::string> TForm1::volltextSuchen(const std::string& w1, const std::string& w2,
                                                const std::function<void(int, int)>& fortschritt)
{
    if (w1 != suchwort1_)
        suchwort1_ = w1;
    suchwort2_ = w2;
    zeitaufwaendig_ = true;
    lexicon::SuchAuftrag a;
    a.wort1 = w1;
    a.wort2 = w2;
    a.bloecke = store_.letzterBlock();
    std::vector<std::string> treffer;
    std::unique_ptr<platform::ContainerReader> leser;  // one opening for all blocks
    try {
        leser = std::make_unique<platform::ContainerReader>(lexicon::lexikonpfad + "tlexikon.dll");
    } catch (const std::exception& e) {
        myexceptionhandler(e.what());
        zeitaufwaendig_ = false;
        return treffer;
    }
    a.blockText = [&leser](int b) { return platform::zlibInflate(leser->read("10", "t" + std::to_string(b))); };
    a.laeuft = [this]() { return zeitaufwaendig_; };
    a.fortschritt = fortschritt;
    try {
        treffer = lexicon::volltextSuche(a);
    } catch (const std::exception& e) {
        myexceptionhandler(e.what());
    }
    zeitaufwaendig_ = false;
    if (!p3Offen_ && LB1->currentRow() >= 0)
        LB1C();  // the words now stand marked
    return treffer;
}

std::string TForm1::aktuellesStichwort() const
{
    const int i = LB1->currentRow();
    return i >= 0 ? stichworte_[static_cast<size_t>(i)] : std::string();
}

void TForm1::stichwortSuchenUndZeigen(const std::string& text)
{
    auto it = std::lower_bound(stichworte_.begin(), stichworte_.end(), text, lexicon::keywordLess);
    int pos = static_cast<int>(it - stichworte_.begin());
    if (pos >= LB1->count())
        pos = LB1->count() - 1;
    if (pos >= 0)
        zeileZeigen(pos);
}

void TForm1::zeileZeigen(int zeile)
{
    // Selecting must not paint through the list's signal: LB1C paints once, here.
    malt_ = true;
    LB1->setCurrentRow(zeile);
    malt_ = false;
    LB1C();
}

std::string TForm1::meldung(int nummer) const
{
    return platform::cp1252ToUtf8(platform::messageText(nummer));
}

QAction* TForm1::menuePunkt(const std::string& name) const
{
    auto it = menuePunkte_.find(name);
    return it == menuePunkte_.end() ? nullptr : it->second;
}

void TForm1::favoritensetzen()
{
    const auto f = lexicon::favoritenSortieren(menuzaehler_);
    for (int r = 1; r <= 20; ++r) {
        QAction* a = menuePunkt("XM" + std::to_string(r));
        if (!a)
            continue;
        const auto& [zahl, nummer] = f[static_cast<size_t>(r) - 1];
        auto titel = menueTitel_.find(nummer);
        if (zahl > 0 && titel != menueTitel_.end()) {
            a->setText(QString::number(r) + ") " + titel->second + " : " + QString::number(zahl));
            a->disconnect();
            const int nr = nummer;
            const QString caption = titel->second;
            connect(a, &QAction::triggered, this, [this, nr, caption]() { _M(nr, caption); });
            a->setVisible(true);
        } else {
            a->setVisible(false);
        }
    }
}

void TForm1::favoritenLoeschen()
{
    std::fill(menuzaehler_.begin(), menuzaehler_.end(), 0);
    favoritensetzen();
}

}  // namespace app

namespace app {

void TForm1::S12C(bool zusatztexte)
{
    Tproliste d(this, zusatztexte);
    if (d.exec() != QDialog::Accepted || d.gewaehlt().isEmpty())
        return;
    if (zusatztexte) {
        lexicon::Tftabelle t(d.gewaehlt().toStdString(), this);
        t.exec();
        return;
    }
    lexicon::werkzeugtitel = platform::toCp1252(d.gewaehlt());
    xmenu(lexicon::werkzeugtitel);
}

}  // namespace app

namespace app {

// The page as RTF text in its own window; the export file lives only while the window is open.
void TForm1::S28C()
{
    const int idx = LB1->currentRow();
    if (idx < 0 || idx >= static_cast<int>(lb1Zeilen_.size()))
        return;
    try {
        const int seite = lexicon::seitennummerAusStichwort(lb1Zeilen_[static_cast<size_t>(idx)]);
        const int L = store_.kopfzeile(seite);  // loads the block
        const std::string pfad = lexicon::rtfDateiname();
        lexicon::rtfDateiSchreiben(pfad, lexicon::rtfSeite(store_.seitenblock, seite));
        letzteseite_ = aktseite_;
        platform::Picture bild;
        lexicon::SeitenbildQuelle q;
        if (bildseite_ && lexicon::seitenbildSuchen(store_.seitenblock, L, q))
            bild = bildLaden(q.container, q.typ, q.name);
        letzteAktion_ = "Trtfform";
        if (!headless_) {
            Trtfform f(this, pfad, bild, fromCp1252(titel_));
            f.exec();
            std::remove(pfad.c_str());
        }
    } catch (const std::exception& e) {
        myexceptionhandler(e.what());
    }
}

// The page walked once more onto the printer: one page, one sheet.
void TForm1::Dr1C()
{
    const int idx = LB1->currentRow();
    if (idx < 0 || idx >= static_cast<int>(lb1Zeilen_.size()))
        return;
    try {
        const int seite = lexicon::seitennummerAusStichwort(lb1Zeilen_[static_cast<size_t>(idx)]);
        const int L = store_.kopfzeile(seite);
        platform::Picture bild;
        lexicon::SeitenbildQuelle q;
        if (bildseite_ && lexicon::seitenbildSuchen(store_.seitenblock, L, q))
            bild = bildLaden(q.container, q.typ, q.name);
        QPrinter printer(QPrinter::HighResolution);
        QPrintDialog dlg(&printer, this);
        dlg.setWindowTitle(QStringLiteral("Drucken"));
        if (dlg.exec() != QDialog::Accepted)
            return;
        lexicon::seiteDrucken(printer, store_.seitenblock, L, bild, lexicon::druckEinstellungenVon(lexicon::einstellungen));
        letzteseite_ = aktseite_;
    } catch (const std::exception& e) {
        myexceptionhandler(e.what());
    }
}

}  // namespace app
