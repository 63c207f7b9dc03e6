// TOpBox window: reads X, Y and the digit count, runs opbox_core, shows the result.
#include "numbers/bigfloat.h"
#include "numbers/opbox_core.h"
#include "numbers/tbigfloat.h"
#include "numbers/windows.h"

#include "platform/canvas.h"
#include "platform/toolframe.h"

#include <QApplication>
#include <QClipboard>
#include <QGridLayout>
#include <QLabel>
#include <QMenuBar>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSpinBox>

QDialog* createTOpBox(QWidget* parent) { return new TOpBox(parent); }

TOpBox::TOpBox(QWidget* parent, int /*wahlseite*/, int /*wahlpunkt*/) : QDialog(parent)
{
    setWindowTitle(QStringLiteral("Quorix"));
    setFixedSize(1008, 710);

    auto* menu = new QMenuBar(this);
    menu->addAction(QStringLiteral("Beenden"), this, &QDialog::close);
    menu->addAction(QStringLiteral("Kopieren"), this, [this] { QApplication::clipboard()->setText(ER->toPlainText()); });
    menu->addAction(QStringLiteral("?"), this, [this] {
        QMessageBox::information(this, QStringLiteral("Quorix"),
                                 QStringLiteral("Fließkommaberechnung mit 10 bis 4000 Ziffern.\n"
                                                "Zahlen mit Dezimalkomma oder -punkt, auch mit Exponent (z. B. 1,5E-20).\n"
                                                "Das Ergebnis kann nach X oder Y übernommen werden."));
    });

    auto* root = new QGridLayout(this);
    root->setMenuBar(menu);
    root->setContentsMargins(16, 56, 16, 16);
    root->setHorizontalSpacing(12);
    root->setVerticalSpacing(8);

    auto label = [this](const QString& t) {
        auto* l = new QLabel(t, this);
        QFont f = l->font();
        f.setBold(true);
        l->setFont(f);
        return l;
    };
    auto editor = [this](bool ro) {
        auto* e = new QPlainTextEdit(this);
        e->setReadOnly(ro);
        e->setFont(QFont(QStringLiteral("DejaVu Sans Mono"), 10));
        e->setWordWrapMode(QTextOption::WrapAnywhere);
        return e;
    };
    EX = editor(false);
    EY = editor(false);
    ER = editor(true);
    EX->setPlainText(QStringLiteral("2,718281828"));
    EY->setPlainText(QStringLiteral("3,141592653"));
    root->addWidget(label(QStringLiteral("X =")), 0, 0, Qt::AlignTop);
    root->addWidget(EX, 0, 1);
    root->addWidget(label(QStringLiteral("Y =")), 1, 0, Qt::AlignTop);
    root->addWidget(EY, 1, 1);
    root->addWidget(label(QStringLiteral("Ergebnis")), 2, 0, Qt::AlignTop);
    root->addWidget(ER, 2, 1);
    root->setRowStretch(0, 2);
    root->setRowStretch(1, 2);
    root->setRowStretch(2, 5);
    root->setColumnStretch(1, 3);

    auto* side = new QGridLayout;
    side->setSpacing(6);
    auto* szRow = new QHBoxLayout;
    szRow->addWidget(new QLabel(QStringLiteral("Ziffernzahl"), this));
    SZ = new QSpinBox(this);
    SZ->setRange(numbers::OpBoxMinDigits, numbers::OpBoxMaxDigits);
    SZ->setValue(numbers::OpBoxDefaultDigits);
    szRow->addWidget(SZ);
    side->addLayout(szRow, 0, 0, 1, 2);
    struct B { const char* caption; const char* op; };
    // "p" is π: the caption is drawn in the Symbol code page
    const B ops[] = {{"x + y", "add"}, {"x - y", "sub"}, {"x · y", "mul"},       {"x / y", "div"},
                     {"x²", "sqr"},    {"Wurzel x", "sqrt"}, {"1 / x", "inv"},   {"x ^ y", "pow"},
                     {"ln x", "ln"},   {"lg x", "lg"},   {"exp x", "exp"},       {"π", "pi"},
                     {"x^(1/y)", "root"}, {"log(y) x", "log"}};
    int i = 0;
    for (const B& b : ops) {
        auto* pb = new QPushButton(QString::fromUtf8(b.caption), this);
        pb->setMinimumHeight(34);
        std::string op = b.op;
        connect(pb, &QPushButton::clicked, this, [this, op] { rechne(op); });
        side->addWidget(pb, 1 + i / 2, i % 2);
        buttons_.append(pb);
        ++i;
    }
    auto* toX = new QPushButton(QStringLiteral("Ergebnis nach x"), this);
    auto* toY = new QPushButton(QStringLiteral("Ergebnis nach y"), this);
    connect(toX, &QPushButton::clicked, this, [this] {
        if (!ER->toPlainText().isEmpty())
            EX->setPlainText(ER->toPlainText());
    });
    connect(toY, &QPushButton::clicked, this, [this] {
        if (!ER->toPlainText().isEmpty())
            EY->setPlainText(ER->toPlainText());
    });
    buttons_.append(toX);
    buttons_.append(toY);
    side->addWidget(toX, 2 + i / 2, 0, 1, 2);
    side->addWidget(toY, 3 + i / 2, 0, 1, 2);
    LS = new QLabel(this);
    side->addWidget(LS, 4 + i / 2, 0, 1, 2);
    side->setRowStretch(5 + i / 2, 1);
    root->addLayout(side, 0, 2, 3, 1);
    root->setColumnStretch(2, 1);
}

QPushButton* TOpBox::button(const QString& caption) const
{
    for (QPushButton* b : buttons_)
        if (b->text() == caption)
            return b;
    return nullptr;
}

void TOpBox::rechne(const std::string& op)
{
    if (busy_)
        return;
    busy_ = true;
    LS->setText(QStringLiteral("Berechnung läuft ..."));
    QApplication::setOverrideCursor(Qt::WaitCursor);
    QApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    // long products and divisions of the number classes keep the window painted
    numbers::tintegerYield = [] { QApplication::processEvents(QEventLoop::ExcludeUserInputEvents); };
    numbers::OpBoxResult r = numbers::opboxCompute(op, EX->toPlainText().toStdString(),
                                                   EY->toPlainText().toStdString(), SZ->value());
    numbers::tintegerYield = nullptr;
    QApplication::restoreOverrideCursor();
    busy_ = false;
    if (r.ok) {
        ER->setPlainText(QString::fromStdString(r.text));
        LS->clear();
    } else {
        ER->setPlainText(QStringLiteral("****"));
        LS->setText(QString::fromStdString(r.text));
    }
}

void TOpBox::paintEvent(QPaintEvent*)
{
    platform::Canvas c(this);
    platform::DrawToolTitle(c, width(), height(), QStringLiteral("Fließkommaberechnung"), 26, platform::rgb(236, 240, 248));
}
