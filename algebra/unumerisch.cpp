#include "algebra/unumerisch.h"

#include "algebra/numer.h"
#include "algebra/numer_windows.h"
#include "platform/canvas.h"
#include "platform/toolframe.h"

#include <QButtonGroup>
#include <QClipboard>
#include <QGuiApplication>
#include <QCoreApplication>
#include <QElapsedTimer>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPainter>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTabWidget>
#include <QTreeWidget>
#include <QVBoxLayout>

#include <algorithm>

namespace {
QString u(const std::string& s) { return QString::fromUtf8(s.c_str(), static_cast<int>(s.size())); }
std::string s8(const QString& s) { return s.toUtf8().toStdString(); }
}  // namespace

// The head of the window: the topic's name drawn through the canvas.
class TNumerKopf : public QWidget {
public:
    explicit TNumerKopf(TFnumer* owner) : QWidget(owner), owner_(owner) { setFixedHeight(44); }

protected:
    void paintEvent(QPaintEvent*) override
    {
        QPainter painter(this);
        platform::Canvas c(&painter);
        const auto& t = numer::themen()[static_cast<size_t>(owner_->thema())];
        platform::DrawToolTitle(c, width(), height(), u(t.name), 8, platform::rgb(240, 244, 250));
    }

private:
    TFnumer* owner_;
};

TFnumer::TFnumer(QWidget* parent, int wahlseite, int wahlpunkt) : QDialog(parent)
{
    setWindowTitle("Quorix");
    resize(1008, 710);
    auto* haupt = new QHBoxLayout(this);

    LB1_ = new QListWidget;
    LB1_->setFixedWidth(290);
    const auto& t = numer::themen();
    for (size_t i = 0; i < t.size(); ++i) {
        auto* item = new QListWidgetItem(u(t[i].name), LB1_);
        if (!t[i].vorhanden) {
            item->setFlags(Qt::NoItemFlags);  // not offered in this build
            item->setToolTip("In dieser Ausgabe nicht enthalten");
        }
    }
    haupt->addWidget(LB1_);

    auto* rechts = new QVBoxLayout;
    kopf_ = new TNumerKopf(this);
    rechts->addWidget(kopf_);
    auto* eingabe = new QGridLayout;
    for (int i = 0; i < 4; ++i) {
        L_[i] = new QLabel;
        E_[i] = new QLineEdit;
        eingabe->addWidget(L_[i], i / 2, (i % 2) * 2);
        eingabe->addWidget(E_[i], i / 2, (i % 2) * 2 + 1);
        connect(E_[i], &QLineEdit::returnPressed, this, [this] { B1C(); });
    }
    rechts->addLayout(eingabe);
    auto* optionen = new QGridLayout;
    RBG_ = new QButtonGroup(this);
    for (int i = 0; i < 12; ++i) {
        RB_[i] = new QRadioButton;
        RBG_->addButton(RB_[i], i);
        optionen->addWidget(RB_[i], i / 3, i % 3);
    }
    connect(RBG_, &QButtonGroup::idClicked, this, [this] { RB1C(); });
    rechts->addLayout(optionen);
    auto* start = new QHBoxLayout;
    B1_ = new QPushButton("Berechnung");
    B1_->setMinimumWidth(140);
    B1_->setDefault(true);
    L9_ = new QLabel("0 %");
    auto* B2 = new QPushButton("Kopieren");
    B2->setToolTip("Ergebnisliste in die Zwischenablage kopieren");
    start->addWidget(B1_);
    start->addWidget(L9_);
    start->addStretch();
    start->addWidget(B2);
    connect(B2, &QPushButton::clicked, this, [this] { QGuiApplication::clipboard()->setText(zeilen_.join('\n')); });
    rechts->addLayout(start);

    tabs_ = new QTabWidget;
    LB2_ = new QTreeWidget;
    LB2_->setRootIsDecorated(false);
    LB2_->setAlternatingRowColors(true);
    LB2_->header()->setStretchLastSection(false);
    LB2_->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    M1_ = new QPlainTextEdit;
    M1_->setReadOnly(true);
    M1_->setLineWrapMode(QPlainTextEdit::NoWrap);
    tabs_->addTab(LB2_, "Tabelle");
    tabs_->addTab(M1_, "Text");
    rechts->addWidget(tabs_, 1);
    haupt->addLayout(rechts, 1);

    connect(B1_, &QPushButton::clicked, this, [this] { B1C(); });
    connect(LB1_, &QListWidget::currentRowChanged, this, [this](int r) {
        if (r >= 0 && !laeuft_) setzeThema(r);
    });
    (void)wahlpunkt;
    // the catalogue's page field names the topic
    setzeThema(wahlseite >= 0 && wahlseite < numer::ThemenAnzahl && t[wahlseite].vorhanden ? wahlseite : 28);
    if (wahlpunkt >= 0 && wahlpunkt < static_cast<int>(t[thema_].optionen.size())) setzeOption(wahlpunkt);
}

void TFnumer::setzeThema(int thema)
{
    if (thema < 0 || thema >= numer::ThemenAnzahl || !numer::themen()[thema].vorhanden) return;
    thema_ = thema;
    if (LB1_->currentRow() != thema) LB1_->setCurrentRow(thema);
    neuwert();
}

void TFnumer::neuwert()
{
    const auto& t = numer::themen()[static_cast<size_t>(thema_)];
    for (size_t i = 0; i < 4; ++i) {
        const bool da = i < t.felder.size();
        L_[i]->setVisible(da);
        E_[i]->setVisible(da);
        L_[i]->setText(da ? u(t.felder[i]) : QString());
        E_[i]->setText(i < t.vorgabe.size() ? u(t.vorgabe[i]) : QString());
    }
    for (size_t i = 0; i < RB_.size(); ++i) {
        const bool da = i < t.optionen.size();
        RB_[i]->setVisible(da);
        if (da) RB_[i]->setText(u(t.optionen[i]));
    }
    if (!t.optionen.empty()) RB_[0]->setChecked(true);
    L9_->setText("0 %");
    LB2_->clear();
    M1_->clear();
    zeilen_.clear();
    RB1C();
    kopf_->update();
}

void TFnumer::RB1C()
{
    const auto& t = numer::themen()[static_cast<size_t>(thema_)];
    QStringList koepfe = u(t.spalten).split('\t');
    if (thema_ == 16) {
        const int o = RBG_->checkedId();
        koepfe = o == 2 ? QStringList{"Basis", "Darstellung"}
                        : QStringList{"Index         ", o == 1 ? "Lucas-Zahlen" : "Fibonacci-Zahlen"};
        L_[0]->setText(o == 2 ? "Zahl" : "Index von");
        L_[1]->setText(o == 2 ? "zur Basis" : "bis");
        if (o == 2 && E_[0]->text() == "0") E_[0]->setText("255"), E_[1]->setText("10");
    }
    if (thema_ == 28 && RBG_->checkedId() >= 0) {
        koepfe = QStringList{RB_[RBG_->checkedId()]->text()};
        // the n-th prime and the count take one number n
        const bool einzeln = RBG_->checkedId() >= 9;
        L_[0]->setText(einzeln ? "n" : "von");
        L_[1]->setVisible(!einzeln);
        E_[1]->setVisible(!einzeln);
    }
    LB2_->setColumnCount(koepfe.size());
    LB2_->setHeaderLabels(koepfe);
}

void TFnumer::setzeFeld(int i, const QString& text)
{
    if (i >= 0 && i < 4) E_[i]->setText(text);
}

void TFnumer::setzeOption(int i)
{
    if (i >= 0 && i < static_cast<int>(RB_.size())) RB_[i]->setChecked(true);
    RB1C();
}

void TFnumer::B1C()
{
    if (laeuft_) {
        abbruch_ = true;
        return;
    }
    numer::Eingabe e;
    const auto& t = numer::themen()[static_cast<size_t>(thema_)];
    for (size_t i = 0; i < t.felder.size(); ++i) e.felder.push_back(s8(E_[i]->text()));
    e.option = std::max(0, RBG_->checkedId());
    laeuft_ = true;
    abbruch_ = false;
    B1_->setText("Abbruch");
    LB1_->setEnabled(false);
    QElapsedTimer uhr;
    uhr.start();
    const auto r = numer::berechne(thema_, e, [&](int prozent) {
        // yield to the message loop now and then so "Abbruch" can be pressed
        if (uhr.elapsed() > 50) {
            L9_->setText(QString::number(prozent) + " %");
            QCoreApplication::processEvents();
            uhr.restart();
        }
        return !abbruch_;
    });
    laeuft_ = false;
    B1_->setText("Berechnung");
    LB1_->setEnabled(true);
    L9_->setText(r.abgebrochen ? QString("abgebrochen") : QString("100 %"));

    zeilen_.clear();
    LB2_->clear();
    QList<QTreeWidgetItem*> items;
    for (const auto& z : r.zeilen) {
        const QString zeile = u(z);
        zeilen_ << zeile;
        auto* item = new QTreeWidgetItem(zeile.split('\t'));
        if (r.fehler) item->setForeground(0, Qt::red);
        items << item;
    }
    // rows may have more columns than the topic names
    int spalten = LB2_->columnCount();
    for (auto* item : items) spalten = std::max(spalten, item->columnCount());
    if (spalten > LB2_->columnCount()) {
        QStringList koepfe;
        for (int i = 0; i < spalten; ++i) koepfe << (i < LB2_->columnCount() ? LB2_->headerItem()->text(i) : QString());
        LB2_->setHeaderLabels(koepfe);
    }
    LB2_->addTopLevelItems(items);
    M1_->setPlainText(zeilen_.join('\n'));
}

QStringList TFnumer::zeilen() const { return zeilen_; }
QString TFnumer::fortschritt() const { return L9_->text(); }

QDialog* createTFnumer(QWidget* parent, int wahlseite, int wahlpunkt) { return new TFnumer(parent, wahlseite, wahlpunkt); }
