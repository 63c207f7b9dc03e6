// Tfphase window: number or formula, the limits, the two switches, the start/abort button and
// the result list; long rests go to a modal Tfaktform.
#include "numbers/factor/uphase.h"
#include "numbers/factor/listsync.h"
#include "numbers/factor/factorwindows.h"
#include "numbers/factor/ufakto.h"
#include "numbers/mp_types.h"

#include "platform/canvas.h"
#include "platform/toolframe.h"

#include <QApplication>
#include <QCheckBox>
#include <QCloseEvent>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMessageBox>
#include <QPushButton>
#include <QVBoxLayout>

#include <cstdio>

using namespace numbers;

std::function<void(const QString&)> Tfphase::showMessage = [](const QString& text) {
    QMessageBox::information(QApplication::activeWindow(), QStringLiteral("Quorix"), text);
};

class Tfphase::Hooks : public PhaseHooks {
public:
    explicit Hooks(Tfphase* w) : w_(w), t0_(factorNowMs()) {}
    bool yield() override
    {
        showTime();
        QApplication::processEvents();
        return aborted;
    }
    void rhoGroup(int32_t groups, double) override
    {
        w_->LGruppen->setText(QStringLiteral("Gruppen: %1").arg(groups));
    }
    void status(const std::string& text) override { w_->LStatus->setText(QString::fromStdString(text)); }
    void linesChanged() override { numbers::syncLines(w_->LB1, lines); }
    std::string faktform(const std::string& digits) override
    {
        // the sieve window opens modal with the number and hands its result text back
        Tfaktform::uebergabe = digits;
        Tfaktform f(w_);
        f.exec();
        std::string r = Tfaktform::uebergabe;
        Tfaktform::uebergabe.clear();
        return r;
    }
    void showTime()
    {
        w_->LZeit->setText(QString::fromStdString("Zeit: " + factorTimeText(factorNowMs() - t0_)));
    }

private:
    Tfphase* w_;
    double t0_;
};

QDialog* createTfphase(QWidget* parent) { return new Tfphase(parent); }

Tfphase::Tfphase(QWidget* parent, int /*wahlseite*/, int /*wahlpunkt*/) : QDialog(parent)
{
    setWindowTitle(QStringLiteral("Quorix"));
    setFixedSize(1008, 710);

    auto* root = new QVBoxLayout(this);
    root->setContentsMargins(16, 60, 16, 16);
    auto* grid = new QGridLayout;
    grid->addWidget(new QLabel(QStringLiteral("Zahl oder Formel"), this), 0, 0);
    E8 = new QLineEdit(this);
    E8->setFont(QFont(QStringLiteral("DejaVu Sans Mono"), 10));
    E8->setText(QStringLiteral("M(67)"));
    grid->addWidget(E8, 0, 1, 1, 4);
    grid->addWidget(new QLabel(QStringLiteral("Gruppen Pollard-Rho"), this), 1, 0);
    E15 = new QLineEdit(QStringLiteral("1200"), this);
    E15->setMaximumWidth(80);
    grid->addWidget(E15, 1, 1);
    CB9 = new QCheckBox(QStringLiteral("nur Faktoren ausgeben"), this);
    grid->addWidget(CB9, 1, 2);
    // the digit field sits in the gap of the check box's caption
    Cb14 = new QCheckBox(QStringLiteral("MPQS-Faktorisierung sofort bei weniger als              Stellen "), this);
    grid->addWidget(Cb14, 2, 0, 1, 3);
    E11 = new QLineEdit(QStringLiteral("50"), Cb14);
    E11->setFixedWidth(44);
    CheckBox1 = new QCheckBox(QStringLiteral("Produktprobe"), this);
    CheckBox1->hide();
    d26 = new QPushButton(QStringLiteral("Faktorisieren"), this);
    d26->setMinimumSize(140, 30);
    grid->addWidget(d26, 2, 4);
    grid->setColumnStretch(3, 1);
    root->addLayout(grid);
    auto* info = new QHBoxLayout;
    LGruppen = new QLabel(QStringLiteral("Gruppen: 0"), this);
    LZeit = new QLabel(QStringLiteral("Zeit: "), this);
    LStatus = new QLabel(this);
    info->addWidget(LGruppen);
    info->addSpacing(24);
    info->addWidget(LZeit);
    info->addSpacing(24);
    info->addWidget(LStatus, 1);
    root->addLayout(info);
    LB1 = new QListWidget(this);
    LB1->setFont(QFont(QStringLiteral("DejaVu Sans Mono"), 9));
    root->addWidget(LB1, 1);
    connect(d26, &QPushButton::clicked, this, &Tfphase::d26C);
    // place E11 over the blank run of the caption once the font is known
    int x = 20 + Cb14->fontMetrics().horizontalAdvance(QStringLiteral("MPQS-Faktorisierung sofort bei weniger als "));
    E11->move(x, 0);
}

Tfphase::~Tfphase() = default;

void Tfphase::paintEvent(QPaintEvent*)
{
    platform::Canvas c(this);
    platform::DrawToolTitle(c, width(), height(), QStringLiteral("Faktorisieren"), 18, platform::rgb(240, 240, 232));
}

void Tfphase::closeEvent(QCloseEvent* e)
{
    if (running_) {
        hooks_->aborted = true;
        e->ignore();
        return;
    }
    QDialog::closeEvent(e);
}

void Tfphase::d26C()
{
    if (running_) {
        hooks_->aborted = true;
        return;
    }
    // wrong numbers in the limit fields are replaced by their defaults and written back
    auto readInt = [](QLineEdit* e, int def, int lo, int hi) {
        bool ok = false;
        int v = e->text().trimmed().toInt(&ok);
        if (!ok || v < lo || v > hi) {
            v = def;
            e->setText(QString::number(v));
        }
        return v;
    };
    PhaseOptions o;
    o.groupLimit = readInt(E15, 1200, 1, 1000000000);
    o.digitLimit = readInt(E11, 50, 1, 100);
    o.onlyFactors = CB9->isChecked();
    o.mpqs = Cb14->isChecked();
    o.productCheck = CheckBox1->isChecked();
    // the expanded formula replaces the text
    std::string expanded = phaseExpandFormula(E8->text().toStdString());
    E8->setText(QString::fromStdString(expanded));
    o.text = expanded;

    Hooks hooks(this);
    for (int i = 0; i < LB1->count(); ++i)
        hooks.lines.push_back(LB1->item(i)->text().toStdString());
    hooks_ = &hooks;
    running_ = true;
    d26->setText(QStringLiteral("Abbruch"));
    LGruppen->setText(QStringLiteral("Gruppen: 0"));
    try {
        lastOutcome = phaseRun(o, hooks);
    } catch (const std::exception& ex) {
        mp_reset_error();
        hooks.addLine(std::string(ex.what()) + ".");
        hooks.aborted = true;
    }
    hooks.showTime();
    running_ = false;
    hooks_ = nullptr;
    d26->setText(QStringLiteral("Start"));
    LStatus->clear();
    if (lastOutcome.tooLong)
        showMessage(QString::fromUtf8(PhaseMessage60));
}
