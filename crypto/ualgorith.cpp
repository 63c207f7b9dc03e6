#include "crypto/ualgorith.h"
#include "crypto/windows.h"

#include "crypto/blockciphers.h"
#include "crypto/cipherpicture.h"
#include "crypto/ciphers.h"
#include "crypto/textfiles.h"
#include "crypto/vigenereanalysis.h"
#include "platform/canvas.h"
#include "platform/codepage.h"

#include <QComboBox>
#include <QFileDialog>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPainter>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTabWidget>
#include <QVBoxLayout>

namespace crypto {

class FrequencyView : public QWidget {
public:
    explicit FrequencyView(TForm23* owner) : QWidget(owner), owner_(owner) { setMinimumHeight(150); }

protected:
    void paintEvent(QPaintEvent*) override
    {
        QPainter painter(this);
        platform::Canvas c(&painter);
        drawLetterFrequencies(c, width(), height(), countLetters(owner_->plainText()),
                              countLetters(owner_->codeText()));
    }

private:
    TForm23* owner_;
};

namespace {

QString fromWin(const std::string& s) { return platform::fromCp1252(s); }
std::string toWin(const QString& s) { return platform::toCp1252(s); }

}  // namespace

TForm23::TForm23(QWidget* parent, int wahlseite, int wahlpunkt)
    : QDialog(parent), wahlseite_(wahlseite), wahlpunkt_(wahlpunkt)
{
    FormCreate();
}

void TForm23::FormCreate()
{
    setWindowTitle("Quorix");
    resize(1008, 710);
    auto* root = new QVBoxLayout(this);
    pages_ = new QTabWidget(this);
    root->addWidget(pages_);
    auto* page = new QWidget(pages_);
    pages_->addTab(page, "Kryptografie");
    auto* layout = new QHBoxLayout(page);

    // method, key and buttons on the left
    auto* left = new QVBoxLayout;
    layout->addLayout(left);
    auto* methodLabel = new QLabel("Verfahren", page);
    left->addWidget(methodLabel);
    CB1_ = new QComboBox(page);
    CB1_->setObjectName("CB1");
    for (int m = 0; m < methodCount; ++m)
        CB1_->addItem(fromWin(methodName(m)));
    CB1_->setFixedWidth(330);
    left->addWidget(CB1_);
    keyCaption_ = new QLabel(page);
    keyCaption_->setObjectName("keyCaption");
    left->addWidget(keyCaption_);
    E_ = new QLineEdit(page);
    E_->setObjectName("E");
    E_->setMaxLength(200);
    left->addWidget(E_);
    left->addSpacing(8);

    auto addButton = [&](const char* name, const char* utf8Caption) {
        auto* b = new QPushButton(QString::fromUtf8(utf8Caption), page);
        b->setObjectName(name);
        left->addWidget(b);
        return b;
    };
    auto* b1 = addButton("B1", "Verschl\xC3\xBCsseln");
    auto* b3 = addButton("B3", "Entschl\xC3\xBCsseln");
    auto* b2 = addButton("B2", "Vigenere-Code analysieren");
    auto* undo = addButton("undo", "letzte \xC3\x84nderung r\xC3\xBC" "ckg\xC3\xA4ngig");
    left->addSpacing(8);
    auto* load = addButton("load", "Text laden");
    auto* save = addButton("save", "Ergebnis speichern");
    left->addSpacing(8);
    status_ = new QLabel(page);
    status_->setObjectName("status");
    status_->setWordWrap(true);
    status_->setFixedWidth(330);
    status_->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    status_->setMinimumHeight(80);
    left->addWidget(status_);
    left->addStretch(1);
    auto* close = addButton("close", "Beenden");

    // the two texts and the chart on the right
    auto* right = new QVBoxLayout;
    layout->addLayout(right, 1);
    right->addWidget(new QLabel("Klartext", page));
    plain_ = new QPlainTextEdit(page);
    plain_->setObjectName("plain");
    right->addWidget(plain_, 2);
    right->addWidget(new QLabel("Geheimtext", page));
    code_ = new QPlainTextEdit(page);
    code_->setObjectName("code");
    right->addWidget(code_, 2);
    view_ = new FrequencyView(this);
    view_->setObjectName("PB1");
    right->addWidget(view_, 1);

    connect(CB1_, &QComboBox::currentIndexChanged, this, [this] { CB1C(); });
    connect(b1, &QPushButton::clicked, this, [this] { B1C(); });
    connect(b3, &QPushButton::clicked, this, [this] { B3C(); });
    connect(b2, &QPushButton::clicked, this, [this] { B2C(); });
    connect(undo, &QPushButton::clicked, this, [this] { undoC(); });
    connect(load, &QPushButton::clicked, this, [this] { loadC(); });
    connect(save, &QPushButton::clicked, this, [this] { saveC(); });
    connect(close, &QPushButton::clicked, this, &QDialog::accept);
    connect(plain_, &QPlainTextEdit::textChanged, view_, qOverload<>(&QWidget::update));
    connect(code_, &QPlainTextEdit::textChanged, view_, qOverload<>(&QWidget::update));

    if (wahlpunkt_ >= 0 && wahlpunkt_ < methodCount)
        CB1_->setCurrentIndex(wahlpunkt_);
    CB1C();  // the key field starts empty: the first run writes the default into it
}

void TForm23::CB1C()
{
    const int m = CB1_->currentIndex();
    keyCaption_->setText(takesKey(m) ? fromWin(keyCaption(m)) : QString::fromUtf8("(ohne Schl\xC3\xBCssel)"));
    E_->setEnabled(takesKey(m));
}

std::string TForm23::plainText() const { return toWin(plain_->toPlainText()); }

std::string TForm23::codeText() const
{
    const QString shown = code_->toPlainText();
    if (!codeShown_.isNull() && shown == codeShown_)
        return codeBytes_;
    const std::string text = toWin(shown);
    Bytes raw;
    if (outputKind(CB1_->currentIndex()) == OutputKind::Bytes && fromHex(text, raw))
        return raw;  // byte code is shown and read as hex
    return text;
}

TForm23::Snapshot TForm23::snapshot() const
{
    return {plain_->toPlainText(), code_->toPlainText(), E_->text(), codeBytes_, codeShown_, true};
}

void TForm23::setCode(const std::string& bytes, const QString& shown)
{
    code_->setPlainText(shown);
    codeBytes_ = bytes;
    codeShown_ = code_->toPlainText();  // as the memo gives it back
}

void TForm23::B1C()
{
    const int m = CB1_->currentIndex();
    const std::string text = plainText();
    const CipherResult r = encipher(m, text, toWin(E_->text()));
    if (r.keyRepaired && takesKey(m))
        E_->setText(fromWin(r.key));
    if (joinLines(text).empty()) {
        status_->setText("Es ist kein Klartext vorhanden.");
        return;
    }
    undo_ = snapshot();
    if (!r.message.empty()) {
        status_->setText(fromWin(r.message));
        return;
    }
    if (outputKind(m) == OutputKind::Bytes)
        setCode(r.output, QString::fromStdString(toHex(r.output)));
    else
        setCode(r.output, fromWin(r.output));
    lastOutputIsCode_ = true;
    status_->setText(QString::fromUtf8("Verschl\xC3\xBCsselt mit \xE2\x80\x9E%1\xE2\x80\x9C.").arg(CB1_->currentText()));
}

void TForm23::B3C()
{
    const int m = CB1_->currentIndex();
    const std::string text = codeText();
    const CipherResult r = decipher(m, text, toWin(E_->text()));
    if (r.keyRepaired && takesKey(m))
        E_->setText(fromWin(r.key));
    if (text.empty()) {
        status_->setText("Es ist kein Geheimtext vorhanden.");
        return;
    }
    if (!r.message.empty()) {
        status_->setText(fromWin(r.message));
        return;
    }
    undo_ = snapshot();
    plain_->setPlainText(fromWin(r.output));
    lastOutputIsCode_ = false;
    status_->setText(QString::fromUtf8("Entschl\xC3\xBCsselt mit \xE2\x80\x9E%1\xE2\x80\x9C.").arg(CB1_->currentText()));
}

void TForm23::B2C()
{
    const std::string code = toWin(code_->toPlainText());
    const VigenereAnalysis a = analyseVigenere(code);
    if (!a.found) {
        status_->setText(fromWin(a.message));
        return;
    }
    undo_ = snapshot();
    CB1_->setCurrentIndex(1);  // the analysis reads the upper-case Vigenère code
    E_->setText(QString::fromStdString(a.key));
    plain_->setPlainText(fromWin(decipher(1, code, a.key).output));
    lastOutputIsCode_ = false;
    QString s = QString::fromUtf8("Codewortl\xC3\xA4nge: %1\nCodewort: %2").arg(a.keyLength).arg(QString::fromStdString(a.key));
    if (!a.message.empty())
        s += "\n" + fromWin(a.message);
    status_->setText(s);
}

void TForm23::undoC()
{
    if (!undo_.valid)
        return;
    const Snapshot now = snapshot();
    plain_->setPlainText(undo_.plain);
    code_->setPlainText(undo_.code);
    E_->setText(undo_.key);
    codeBytes_ = undo_.codeBytes;
    codeShown_ = undo_.codeShown;
    undo_ = now;  // a second press redoes
    status_->clear();
}

void TForm23::loadC()
{
    std::string text;
    if (!askAndReadTextFile(this, text))
        return;
    undo_ = snapshot();
    std::string lf;
    for (char ch : text)
        if (ch != '\r')
            lf += ch;
    plain_->setPlainText(fromWin(lf));
}

void TForm23::saveC()
{
    QString path = QFileDialog::getSaveFileName(this, "Daten speichern", QString(), "Textdatei (*.txt)");
    if (path.isEmpty())
        return;
    if (!path.contains('.'))
        path += ".txt";
    const QString text = lastOutputIsCode_ ? code_->toPlainText() : plain_->toPlainText();
    if (!writeTextFile(path, toWin(text)))
        QMessageBox::warning(this, "Quorix", "Die Datei konnte nicht geschrieben werden.");
}

QDialog* createTForm23(QWidget* parent, int wahlseite, int wahlpunkt)
{
    return new TForm23(parent, wahlseite, wahlpunkt);
}

}  // namespace crypto
