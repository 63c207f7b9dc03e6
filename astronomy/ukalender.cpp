#include "astronomy/ukalender.h"

#include "astronomy/resources.h"
#include "astronomy/windows.h"
#include "platform/canvas.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDate>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPainter>
#include <QPushButton>
#include <QSpinBox>
#include <QTabWidget>
#include <QTreeWidget>

#include <iterator>
#include <QVBoxLayout>

using namespace astro::kal;

namespace {
constexpr int kLeft = 20, kTop = 60, kCellW = 56, kCellH = 42;

QString u(const std::string& s) { return QString::fromUtf8(s.c_str(), static_cast<int>(s.size())); }

bool parseDatum(const QString& text, Date& d)
{
    const QStringList p = text.trimmed().split('.');
    if (p.size() != 3) return false;
    bool a, b, c;
    d.day = p[0].toInt(&a);
    d.month = p[1].toInt(&b);
    d.year = p[2].toInt(&c);
    return a && b && c && isValidCivil(d);
}

QString datumText(const Date& d) { return QString("%1.%2.%3").arg(d.day).arg(d.month).arg(d.year); }

void fuelle(QTreeWidget* list, const std::vector<std::string>& lines)
{
    list->clear();
    for (const std::string& l : lines) {
        const QString line = u(l);
        const int tab = line.indexOf('\t');
        auto* item = new QTreeWidgetItem(list);
        item->setText(0, tab < 0 ? line : line.left(tab));
        item->setText(1, tab < 0 ? QString() : line.mid(tab + 1).replace('\t', "   "));
        item->setToolTip(1, item->text(1));  // long lines stay readable
    }
}
}  // namespace

// ---------------------------------------------------------------- month sheet

TKalenderBlatt::TKalenderBlatt(TFkalend* owner) : QWidget(owner), owner_(owner)
{
    setMinimumSize(sizeHint());
}

void TKalenderBlatt::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    platform::Canvas c(&painter);
    const Date& d = owner_->gewaehlt();
    c.setBrushColor(platform::rgb(255, 255, 240));
    c.fillRect(0, 0, width(), height());
    c.setFontName("Verdana");
    c.setFontSize(14);
    c.setFontStyle(platform::fsBold);
    c.setFontColor(platform::clNavy);
    c.setBrushStyle(platform::BrushStyle::Clear);
    c.textOutW(kLeft, 14, u(monthName(d.month)) + " " + QString::number(d.year));
    c.setFontSize(10);
    static const char* kopf[] = {"Mo", "Di", "Mi", "Do", "Fr", "Sa", "So"};
    for (int i = 0; i < 7; ++i) {
        c.setFontColor(i == 6 ? platform::clRed : platform::clBlack);
        c.textOut(kLeft + i * kCellW + 18, kTop - 20, kopf[i]);
    }
    c.setPenColor(platform::clSilver);
    const auto rows = monatsblatt(d.year, d.month);
    for (int r = 0; r < 6; ++r)
        for (int col = 0; col < 7; ++col) {
            const int x = kLeft + col * kCellW, y = kTop + r * kCellH;
            const int day = rows[r][col];
            const bool chosen = day == d.day;
            c.setBrushStyle(platform::BrushStyle::Solid);
            c.setBrushColor(chosen ? platform::rgb(255, 220, 120) : platform::clWhite);
            c.setPenColor(platform::clSilver);
            c.rectangle(x, y, x + kCellW - 2, y + kCellH - 2);
            if (day == 0) continue;
            const bool feast = !feiertage({d.year, d.month, day}, owner_->resources()).empty();
            c.setBrushStyle(platform::BrushStyle::Clear);
            c.setFontStyle(chosen ? platform::fsBold : 0);
            c.setFontColor(col == 6 || feast ? platform::clRed : platform::clBlack);
            const std::string t = std::to_string(day);
            c.textOut(x + (kCellW - c.textWidth(t)) / 2, y + 11, t);
        }
    c.setFontStyle(0);
    c.setFontSize(9);
    c.setFontColor(platform::clGray);
    c.setBrushStyle(platform::BrushStyle::Clear);
    c.textOutW(kLeft, kTop + 6 * kCellH + 8, QString::fromUtf8("rot: Sonntag oder Feier-, Gedenktag"));
}

void TKalenderBlatt::mousePressEvent(QMouseEvent* e)
{
    const int col = (e->position().toPoint().x() - kLeft) / kCellW;
    const int row = (e->position().toPoint().y() - kTop) / kCellH;
    if (e->position().x() < kLeft || e->position().y() < kTop || col > 6 || row > 5) return;
    const Date& d = owner_->gewaehlt();
    const int day = monatsblatt(d.year, d.month)[row][col];
    if (day > 0) owner_->setzeDatum({d.year, d.month, day});
}

// ---------------------------------------------------------------- window

TFkalend::TFkalend(QWidget* parent, int wahlseite, int wahlpunkt) : QDialog(parent)
{
    setWindowTitle("Quorix");
    resize(1008, 710);
    res_ = astro::loadKalenderResources();

    tabs_ = new QTabWidget(this);
    auto* outer = new QVBoxLayout(this);
    outer->addWidget(tabs_);

    // page 1: month sheet and calendars
    auto* seite1 = new QWidget;
    auto* h = new QHBoxLayout(seite1);
    auto* links = new QVBoxLayout;
    blatt_ = new TKalenderBlatt(this);
    links->addWidget(blatt_);
    auto* g = new QGridLayout;
    g->addWidget(new QLabel("Tag"), 0, 0);
    g->addWidget(new QLabel("Monat"), 0, 1);
    g->addWidget(new QLabel("Jahr"), 0, 2);
    T0_ = new QSpinBox;
    T0_->setRange(1, 31);
    T1_ = new QComboBox;
    for (int m = 1; m <= 12; ++m) T1_->addItem(u(monthName(m)));
    T2_ = new QSpinBox;
    T2_->setRange(-4712, 9999);
    g->addWidget(T0_, 1, 0);
    g->addWidget(T1_, 1, 1);
    g->addWidget(T2_, 1, 2);
    links->addLayout(g);
    auto* knoepfe = new QHBoxLayout;
    B1_ = new QPushButton(QString::fromUtf8("◀ Tag zurück"));
    B2_ = new QPushButton(QString::fromUtf8("Tag vor ▶"));
    B3_ = new QPushButton("Heutiges Datum");
    knoepfe->addWidget(B1_);
    knoepfe->addWidget(B2_);
    knoepfe->addWidget(B3_);
    links->addLayout(knoepfe);
    CB1_ = new QCheckBox(QString::fromUtf8("zusätzliche Daten anzeigen"));
    CB1_->setChecked(true);
    links->addWidget(CB1_);
    links->addStretch();
    h->addLayout(links);
    LB1_ = new QTreeWidget;
    LB1_->setColumnCount(2);
    LB1_->setHeaderLabels({"Kalender", "Datum"});
    LB1_->setRootIsDecorated(false);
    LB1_->header()->resizeSection(0, 215);
    // the date column grows with its longest line and the list scrolls sideways instead of eliding
    LB1_->header()->setStretchLastSection(false);
    LB1_->header()->setSectionResizeMode(1, QHeaderView::ResizeToContents);
    h->addWidget(LB1_, 1);
    tabs_->addTab(seite1, "Kalender");

    // page 2: difference of two dates
    auto* seite2 = new QWidget;
    auto* v2 = new QVBoxLayout(seite2);
    auto* g2 = new QGridLayout;
    g2->addWidget(new QLabel("1.Datum"), 0, 0);
    g2->addWidget(new QLabel("2.Datum"), 1, 0);
    E1_ = new QLineEdit("1.1.2000");
    E2_ = new QLineEdit;
    g2->addWidget(E1_, 0, 1);
    g2->addWidget(E2_, 1, 1);
    auto* B4 = new QPushButton("Differenz");
    g2->addWidget(B4, 2, 1);
    v2->addLayout(g2);
    LB2_ = new QTreeWidget;
    LB2_->setColumnCount(2);
    LB2_->setHeaderLabels({"", "Ergebnis"});
    LB2_->setRootIsDecorated(false);
    v2->addWidget(LB2_, 1);
    tabs_->addTab(seite2, "Datumsdifferenz");

    connect(B1_, &QPushButton::clicked, this, [this] { B1C(); });
    connect(B2_, &QPushButton::clicked, this, [this] { B2C(); });
    connect(B3_, &QPushButton::clicked, this, [this] { heute(); });
    connect(CB1_, &QCheckBox::toggled, this, [this] { datum(); });
    connect(T0_, &QSpinBox::valueChanged, this, [this] { T1Change(); });
    connect(T1_, &QComboBox::currentIndexChanged, this, [this] { T1Change(); });
    connect(T2_, &QSpinBox::valueChanged, this, [this] { T2Change(); });
    connect(B4, &QPushButton::clicked, this, [this] { differenzC(); });

    markiere_ = wahlseite == 0 ? wahlpunkt : -1;
    heute();
    E2_->setText(datumText(datum_));
    differenzC();
    if (wahlseite == 1) tabs_->setCurrentIndex(1);
}

void TFkalend::setzeDatum(const Date& dIn)
{
    Date d = dIn;
    // a day that the month does not have, or one of the ten dropped days of 1582, is moved on
    if (d.day > daysInMonthCivil(d.year, d.month)) d.day = daysInMonthCivil(d.year, d.month);
    if (d.year == 1582 && d.month == 10 && d.day > 4 && d.day < 15) d.day = 15;
    datum_ = d;
    sperre_ = true;
    T0_->setValue(d.day);
    T1_->setCurrentIndex(d.month - 1);
    T2_->setValue(d.year);
    sperre_ = false;
    datum();
}

void TFkalend::datum()
{
    fuelle(LB1_, kalenderZeilen(datum_, res_, CB1_->isChecked()));
    // the calendar the catalogue chose stays selected from day to day
    static const char* const zeilen[] = {
        "Julianisches Datum", "Modifiziertes Julianisches Datum", "Julianischer Kalender", "Gregorianischer Tag",
        "UNO-Weltkalender", "Römischer Kalender", "Altägyptischer Kalender", "Jüdischer Kalender",
        "Japanischer Kalender", "Chinesischer Kalender", "Islamischer Kalender",
        "Französischer Revolutionskalender", "Iranischer Kalender", "Maya-Kalender", "Azteken-Kalender",
        "Koptischer Kalender", "Äthiopischer Kalender", "Indischer Kalender", "Bahâi-Kalender",
        "Darischer Marskalender", "Ostersonntag"};
    if (markiere_ >= 0 && markiere_ < static_cast<int>(std::size(zeilen))) {
        const auto treffer = LB1_->findItems(u(zeilen[markiere_]), Qt::MatchExactly, 0);
        if (!treffer.isEmpty()) {
            LB1_->setCurrentItem(treffer.front());
            LB1_->scrollToItem(treffer.front());
        }
    }
    blatt_->update();
}

void TFkalend::B1C()
{
    if (datum_.year <= -4712 && datum_.month == 1 && datum_.day == 1) return;
    setzeDatum(civilFromDayNumber(dayNumber(datum_) - 1));
}

void TFkalend::B2C()
{
    if (datum_.year >= 9999 && datum_.month == 12 && datum_.day == 31) return;
    setzeDatum(civilFromDayNumber(dayNumber(datum_) + 1));
}

void TFkalend::T1Change()
{
    if (sperre_) return;
    setzeDatum({datum_.year, T1_->currentIndex() + 1, T0_->value()});
}

void TFkalend::T2Change()
{
    if (sperre_) return;
    setzeDatum({T2_->value(), datum_.month, datum_.day});
}

void TFkalend::heute()
{
    const QDate q = QDate::currentDate();
    setzeDatum({q.year(), q.month(), q.day()});
}

void TFkalend::differenzC()
{
    Date a, b;
    if (!parseDatum(E1_->text(), a) || !parseDatum(E2_->text(), b)) {
        fuelle(LB2_, {"Differenz\tFehler! Datum als Tag.Monat.Jahr eingeben"});
        return;
    }
    fuelle(LB2_, differenz(a, b));
}

QStringList TFkalend::zeilen() const
{
    QStringList out;
    for (int i = 0; i < LB1_->topLevelItemCount(); ++i)
        out << LB1_->topLevelItem(i)->text(0) + "\t" + LB1_->topLevelItem(i)->text(1);
    return out;
}

QDialog* createTFkalend(QWidget* parent, int wahlseite, int wahlpunkt)
{
    return new TFkalend(parent, wahlseite, wahlpunkt);
}

