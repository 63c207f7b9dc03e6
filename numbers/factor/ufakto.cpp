// Tfaktform window: the number field with its counts, the start/abort button, the result list.
#include "numbers/factor/ufakto.h"
#include "numbers/factor/listsync.h"
#include "numbers/factor/factorwindows.h"
#include "numbers/factor/mp_prime.h"
#include "numbers/factor/ufakto_core.h"
#include "numbers/mp_types.h"
#include "numbers/tvarint.h"

#include "platform/canvas.h"
#include "platform/toolframe.h"

#include <QApplication>
#include <QCloseEvent>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QTimer>
#include <QVBoxLayout>

using namespace numbers;

std::string Tfaktform::uebergabe;

// Yields run the event loop, so the abort button and the progress texts stay alive.
class Tfaktform::Hooks : public FactorHooks {
public:
    explicit Hooks(Tfaktform* w) : w_(w) {}
    bool yield() override
    {
        QApplication::processEvents();
        return aborted;
    }
    void status(const std::string& text) override { w_->LStatus->setText(QString::fromStdString(text)); }
    void linesChanged() override { numbers::syncLines(w_->LB1, lines); }

private:
    Tfaktform* w_;
};

QDialog* createTfaktform(QWidget* parent) { return new Tfaktform(parent); }

Tfaktform::Tfaktform(QWidget* parent, int /*wahlseite*/, int /*wahlpunkt*/) : QDialog(parent)
{
    setWindowTitle(QStringLiteral("Quorix"));
    setFixedSize(1008, 710);
    // the shared prime table is filled when the window is made
    fillPrimeTable(PrimeTableBound);

    auto* root = new QVBoxLayout(this);
    root->setContentsMargins(16, 60, 16, 16);
    auto* row = new QHBoxLayout;
    row->addWidget(new QLabel(QStringLiteral("Zahl"), this));
    E1 = new QLineEdit(this);
    E1->setFont(QFont(QStringLiteral("DejaVu Sans Mono"), 10));
    row->addWidget(E1, 1);
    root->addLayout(row);
    auto* counts = new QHBoxLayout;
    LZiffern = new QLabel(this);
    LBit = new QLabel(this);
    counts->addWidget(LZiffern);
    counts->addSpacing(24);
    counts->addWidget(LBit);
    counts->addStretch();
    d1 = new QPushButton(QStringLiteral("Faktorisieren"), this);
    d2 = new QPushButton(QStringLiteral("Zufallszahl"), this);
    S7 = new QPushButton(QStringLiteral("Ende"), this);
    for (QPushButton* b : {d1, d2, S7}) {
        b->setMinimumSize(130, 30);
        counts->addWidget(b);
    }
    root->addLayout(counts);
    LStatus = new QLabel(this);
    root->addWidget(LStatus);
    LB1 = new QListWidget(this);
    LB1->setFont(QFont(QStringLiteral("DejaVu Sans Mono"), 9));
    root->addWidget(LB1, 1);

    connect(d1, &QPushButton::clicked, this, &Tfaktform::d1C);
    connect(d2, &QPushButton::clicked, this, &Tfaktform::d2C);
    connect(S7, &QPushButton::clicked, this, &Tfaktform::S7C);
    connect(E1, &QLineEdit::textChanged, this, &Tfaktform::E1Change);
    E1->setText(QString(57, QLatin1Char('1')));  // the repunit of 57 ones
}

Tfaktform::~Tfaktform() = default;

void Tfaktform::paintEvent(QPaintEvent*)
{
    platform::Canvas c(this);
    platform::DrawToolTitle(c, width(), height(), QStringLiteral("Faktorisierung mit quadratischem Sieb"), 18, platform::rgb(240, 240, 232));
}

void Tfaktform::E1Change()
{
    QString t = QString::fromStdString(faktformFilter(E1->text().toStdString()));
    if (t != E1->text()) {
        QSignalBlocker block(E1);
        int pos = std::min<int>(E1->cursorPosition(), int(t.size()));
        E1->setText(t);
        E1->setCursorPosition(pos);
    }
    std::string digits;
    for (QChar ch : t)
        if (ch.isDigit())
            digits += char(ch.unicode());
    TVarInt n(digits.empty() ? std::string("0") : digits);
    LZiffern->setText(QStringLiteral("Ziffern: %1").arg(digits.size()));
    LBit->setText(QStringLiteral("Bit: %1").arg(n.bitLength()));
}

void Tfaktform::d2C()
{
    if (!running_)
        E1->setText(QString::fromStdString(faktformRandom()));
}

void Tfaktform::S7C()
{
    if (running_) {
        hooks_->aborted = true;
        return;
    }
    close();
}

void Tfaktform::closeEvent(QCloseEvent* e)
{
    if (running_) {
        hooks_->aborted = true;  // the run ends at its next yield; the window stays
        e->ignore();
        return;
    }
    QDialog::closeEvent(e);
}

void Tfaktform::showEvent(QShowEvent* e)
{
    QDialog::showEvent(e);
    if (!uebergabe.empty() && !running_) {
        fromHandOver_ = true;
        E1->setText(QString::fromStdString(uebergabe));
        QTimer::singleShot(0, this, &Tfaktform::d1C);
    }
}

void Tfaktform::d1C()
{
    if (running_) {
        hooks_->aborted = true;  // a second press only aborts
        return;
    }
    std::string text = E1->text().toStdString();
    bool zero = true;
    for (char c : text)
        if (c >= '1' && c <= '9')
            zero = false;
    if (zero) {
        if (fromHandOver_) {
            fromHandOver_ = false;
            uebergabe.clear();
            accept();
        }
        return;
    }
    Hooks hooks(this);
    for (int i = 0; i < LB1->count(); ++i)
        hooks.lines.push_back(LB1->item(i)->text().toStdString());
    hooks_ = &hooks;
    running_ = true;
    d1->setText(QStringLiteral("Abbruch"));
    FaktformOutcome r;
    try {
        r = faktformRun(text, hooks);
    } catch (const std::exception& ex) {
        mp_reset_error();
        hooks.addLine(std::string(ex.what()) + ".");
        r.aborted = true;
    }
    running_ = false;
    hooks_ = nullptr;
    d1->setText(QStringLiteral("Faktorisieren"));
    LStatus->clear();
    if (fromHandOver_) {
        fromHandOver_ = false;
        uebergabe = r.resultText;
        accept();
    }
}
