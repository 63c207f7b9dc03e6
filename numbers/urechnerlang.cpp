// Trechla window: gathers the operands, calls rechla_core, shows the result and its length.
#include "numbers/urechnerlang.h"
#include "numbers/mp_int.h"
#include "numbers/rechla_core.h"
#include "numbers/windows.h"

#include "platform/canvas.h"
#include "platform/toolframe.h"

#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QGridLayout>
#include <QLabel>
#include <QMenuBar>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSpinBox>
#include <QVBoxLayout>

using namespace numbers;

namespace {
Trechla* g_instance = nullptr;
}

std::function<void(const QString&)> Trechla::showMessage = [](const QString& text) {
    QMessageBox::information(QApplication::activeWindow(), QStringLiteral("Quorix"), text);
};

Trechla* Trechla::instance() { return g_instance; }

QDialog* createTrechla(QWidget* parent)
{
    if (g_instance) {
        g_instance->raise();
        g_instance->activateWindow();
        return g_instance;
    }
    auto* w = new Trechla(parent);
    w->setAttribute(Qt::WA_DeleteOnClose);
    w->setModal(false);
    return w;
}

Trechla::Trechla(QWidget* parent, int /*wahlseite*/, int /*wahlpunkt*/) : QDialog(parent)
{
    g_instance = this;
    mp_init3(a_, b_, erg_);
    setWindowTitle(QStringLiteral("Quorix"));
    resize(1008, 710);
    setFixedSize(1008, 710);

    auto* menu = new QMenuBar(this);
    menu->addAction(QStringLiteral("Ende"), this, &QDialog::close);
    menu->addAction(QStringLiteral("Einfügen"), this, [this] {
        QWidget* f = focusWidget();
        auto* ed = qobject_cast<QPlainTextEdit*>(f);
        (ed && ed != Me1 ? ed : Me2)->setPlainText(QApplication::clipboard()->text().trimmed().toUpper());
    });
    menu->addAction(QStringLiteral("Kopieren"), this, [this] { QApplication::clipboard()->setText(Me1->toPlainText()); });

    auto* root = new QHBoxLayout(this);
    root->setMenuBar(menu);
    root->setContentsMargins(16, 56, 16, 16);
    root->setSpacing(16);

    auto* left = new QVBoxLayout;
    auto feld = [&](const QString& title, QPlainTextEdit*& ed, QLabel*& count, bool readOnly) {
        auto* head = new QHBoxLayout;
        auto* t = new QLabel(title, this);
        QFont bf = t->font();
        bf.setBold(true);
        t->setFont(bf);
        count = new QLabel(QStringLiteral("0 Ziffern"), this);
        head->addWidget(t);
        head->addStretch();
        head->addWidget(count);
        left->addLayout(head);
        ed = new QPlainTextEdit(this);
        ed->setReadOnly(readOnly);
        ed->setFont(QFont(QStringLiteral("DejaVu Sans Mono"), 10));
        ed->setWordWrapMode(QTextOption::WrapAnywhere);
        left->addWidget(ed, readOnly ? 3 : 2);
    };
    feld(QStringLiteral("a"), Me2, L2, false);
    feld(QStringLiteral("b"), Me3, L3, false);
    feld(QStringLiteral("Ergebnis"), Me1, L1, true);
    root->addLayout(left, 3);

    auto* right = new QVBoxLayout;
    auto* baseRow = new QHBoxLayout;
    baseRow->addWidget(new QLabel(QStringLiteral("Basis"), this));
    rx1 = new QSpinBox(this);
    rx1->setRange(2, 16);
    rx1->setValue(10);
    baseRow->addWidget(rx1);
    baseRow->addStretch();
    right->addLayout(baseRow);

    auto* grid = new QGridLayout;
    grid->setSpacing(6);
    struct B { const char* caption; void (Trechla::*handler)(); };
    const B buttons[] = {
        {"a + b", &Trechla::nrpClick},  {"a - b", &Trechla::nrmClick},  {"a · b", &Trechla::d9Click},
        {"a / b", &Trechla::nrdClick},  {"a mod b", &Trechla::d4Click}, {"ggT", &Trechla::d2Click},
        {"kgV", &Trechla::d3Click},     {"a!", &Trechla::d6C},          {"a²", &Trechla::d7C},
        {"Wurzel a", &Trechla::d5C},    {"a^b", &Trechla::d15Click},    {"a#", &Trechla::B1Click},
        {"a über b", &Trechla::B3Click}, {"V(a,b)", &Trechla::B4Click},
    };
    int i = 0;
    for (const B& b : buttons) {
        auto* pb = new QPushButton(QString::fromUtf8(b.caption), this);
        pb->setMinimumHeight(34);
        connect(pb, &QPushButton::clicked, this, b.handler);
        grid->addWidget(pb, i / 2, i % 2);
        buttons_.append(pb);
        ++i;
    }
    right->addLayout(grid);
    right->addSpacing(12);
    const B moves[] = {{"Ergebnis nach a", &Trechla::d8C}, {"Ergebnis nach b", &Trechla::d3C},
                       {"a und b tauschen", &Trechla::B2Click}};
    for (const B& b : moves) {
        auto* pb = new QPushButton(QString::fromUtf8(b.caption), this);
        pb->setMinimumHeight(30);
        connect(pb, &QPushButton::clicked, this, b.handler);
        right->addWidget(pb);
        buttons_.append(pb);
    }
    CB1 = new QCheckBox(QStringLiteral("automatisch nach a"), this);
    right->addWidget(CB1);
    right->addStretch();
    root->addLayout(right, 2);

    connect(Me2, &QPlainTextEdit::textChanged, this, &Trechla::zaehle);
    connect(Me3, &QPlainTextEdit::textChanged, this, &Trechla::zaehle);
    connect(Me1, &QPlainTextEdit::textChanged, this, &Trechla::zaehle);
}

Trechla::~Trechla()
{
    mp_clear3(a_, b_, erg_);
    if (g_instance == this)
        g_instance = nullptr;
}

QPushButton* Trechla::button(const QString& caption) const
{
    for (QPushButton* b : buttons_)
        if (b->text() == caption)
            return b;
    return nullptr;
}

void Trechla::paintEvent(QPaintEvent*)
{
    platform::Canvas c(this);
    platform::DrawToolTitle(c, width(), height(), QStringLiteral("Langarithmetik"), 26, platform::rgb(240, 240, 232));
}

void Trechla::zaehle()
{
    // an overflow text is no number: it counts no digits
    auto n = [](QPlainTextEdit* e) {
        QString t = e->toPlainText().trimmed();
        int k = 0;
        for (QChar ch : t) {
            if ((ch >= QLatin1Char('0') && ch <= QLatin1Char('9')) || (ch >= QLatin1Char('A') && ch <= QLatin1Char('F')))
                ++k;
            else if (ch != QLatin1Char('-')) {
                k = 0;
                break;
            }
        }
        return QStringLiteral("%1 Ziffern").arg(k);
    };
    L1->setText(n(Me1));
    L2->setText(n(Me2));
    L3->setText(n(Me3));
}

bool Trechla::leseOperanden()
{
    int base = rx1->value();
    bool ok = rechlaReadOperand(Me2->toPlainText().trimmed().toStdString(), base, a_);
    if (!ok)
        showMessage(QString::fromUtf8(RechlaBaseMessage));
    bool okb = rechlaReadOperand(Me3->toPlainText().trimmed().toStdString(), base, b_);
    if (!okb && ok)
        showMessage(QString::fromUtf8(RechlaBaseMessage));
    return ok && okb;
}

void Trechla::zeigeErgebnis(const QString& text)
{
    Me1->setPlainText(text);
    if (CB1->isChecked())
        Me2->setPlainText(text);
}

void Trechla::rechne(RechlaOp op)
{
    leseOperanden();
    try {
        std::string over = rechlaOperate(op, a_, b_, erg_);
        if (!over.empty())
            zeigeErgebnis(QString::fromStdString(over));
        else
            zeigeErgebnis(QString::fromStdString(rechlaWrite(erg_, rx1->value())));
    } catch (const MPXError& e) {
        mp_reset_error();
        showMessage(QString::fromStdString(e.what()) + QStringLiteral("."));
    }
}

void Trechla::nrpClick() { rechne(RechlaOp::Add); }
void Trechla::nrmClick() { rechne(RechlaOp::Sub); }
void Trechla::d9Click() { rechne(RechlaOp::Mul); }
void Trechla::nrdClick() { rechne(RechlaOp::Div); }
void Trechla::d4Click() { rechne(RechlaOp::Mod); }
void Trechla::d2Click() { rechne(RechlaOp::Gcd); }
void Trechla::d3Click() { rechne(RechlaOp::Lcm); }
void Trechla::d6C() { rechne(RechlaOp::Fact); }
void Trechla::d7C() { rechne(RechlaOp::Sqr); }
void Trechla::d5C() { rechne(RechlaOp::Sqrt); }
void Trechla::d15Click() { rechne(RechlaOp::Pow); }
void Trechla::B1Click() { rechne(RechlaOp::Primorial); }
void Trechla::B3Click() { rechne(RechlaOp::Binom); }
void Trechla::B4Click() { rechne(RechlaOp::Falling); }
void Trechla::d8C() { Me2->setPlainText(Me1->toPlainText()); }
void Trechla::d3C() { Me3->setPlainText(Me1->toPlainText()); }
void Trechla::B2Click()
{
    QString t = Me2->toPlainText();
    Me2->setPlainText(Me3->toPlainText());
    Me3->setPlainText(t);
}
