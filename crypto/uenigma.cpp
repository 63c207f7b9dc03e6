#include "crypto/uenigma.h"
#include "crypto/windows.h"

#include "platform/canvas.h"
#include "crypto/textfiles.h"
#include "platform/codepage.h"

#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QFile>
#include <QFileDialog>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPainter>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSaveFile>
#include <QStringDecoder>
#include <QVBoxLayout>
#include <cmath>

namespace crypto {

class EnigmaView : public QWidget {
public:
    explicit EnigmaView(Tenigmaf* owner) : QWidget(owner), owner_(owner) { setMinimumSize(560, 330); }

protected:
    void paintEvent(QPaintEvent*) override
    {
        QPainter painter(this);
        platform::Canvas c(&painter);
        drawEnigmaMachine(c, width(), height(), owner_->picture());
    }
    // In live mode the keys of the drawn keyboard can be pressed with the mouse.
    void mousePressEvent(QMouseEvent* ev) override
    {
        const int key = enigmaKeyAt(width(), height(), ev->pos().x(), ev->pos().y());
        if (key >= 0)
            owner_->typeLetter(static_cast<char>('A' + key));
    }

private:
    Tenigmaf* owner_;
};

namespace {

QString letterText(int index) { return QString(QChar('A' + index)); }

}  // namespace

Tenigmaf::Tenigmaf(QWidget* parent, int wahlseite, int wahlpunkt)
    : QDialog(parent), wahlseite_(wahlseite), wahlpunkt_(wahlpunkt)
{
    FormCreate();
}

Tenigmaf::~Tenigmaf() = default;

void Tenigmaf::FormCreate()
{
    setWindowTitle("Quorix");
    resize(1008, 710);
    auto* root = new QVBoxLayout(this);

    auto* title = new QLabel("Enigma", this);
    QFont tf("DejaVu Sans", 16, QFont::Bold);
    title->setFont(tf);
    title->setStyleSheet("background:#303848; color:white; padding:4px 10px;");
    root->addWidget(title);

    auto* top = new QHBoxLayout;
    root->addLayout(top, 3);

    // the settings on the left
    auto* settingsBox = new QGroupBox("Maschineneinstellung", this);
    settingsBox->setFixedWidth(400);
    auto* sl = new QVBoxLayout(settingsBox);
    top->addWidget(settingsBox);

    auto* order = new QGridLayout;
    sl->addWidget(new QLabel("Walzenreihenfolge", this));
    sl->addLayout(order);
    auto* posGrid = new QGridLayout;
    for (int k = 0; k < 3; ++k) {
        C_[k] = new QComboBox(this);
        C_[k]->setObjectName(QString("C%1").arg(k + 1));
        C_[k]->addItems({"I", "II", "III"});
        C_[k]->setCurrentIndex(k);
        order->addWidget(C_[k], 0, k);
        connect(C_[k], &QComboBox::currentIndexChanged, this, [this, k](int i) { rotorChanged(k, i); });
    }
    sl->addWidget(new QLabel("Walzenstellung", this));
    sl->addLayout(posGrid);
    for (int k = 0; k < 3; ++k) {
        C_[3 + k] = new QComboBox(this);
        C_[3 + k]->setObjectName(QString("C%1").arg(k + 4));
        for (int l = 0; l < 26; ++l)
            C_[3 + k]->addItem(letterText(l));
        posGrid->addWidget(C_[3 + k], 0, k);
        connect(C_[3 + k], &QComboBox::currentIndexChanged, this, [this] { settingsChanged(); });
        Edit_[k] = new QLineEdit("A", this);
        Edit_[k]->setObjectName(QString("Edit%1").arg(k + 2));
        Edit_[k]->setReadOnly(true);
        Edit_[k]->setAlignment(Qt::AlignCenter);
        posGrid->addWidget(Edit_[k], 1, k);
    }

    sl->addWidget(new QLabel("Steckerbrett", this));
    auto* plugGrid = new QGridLayout;
    sl->addLayout(plugGrid);
    for (int p = 0; p < 6; ++p) {
        CB_[p] = new QCheckBox(QString("Paar %1").arg(p + 1), this);
        CB_[p]->setObjectName(QString("CB%1").arg(p + 1));
        plugGrid->addWidget(CB_[p], p, 0);
        plugLetters_[p] = {2 * p, 2 * p + 1};
        for (int s = 0; s < 2; ++s) {
            QComboBox* box = new QComboBox(this);
            C_[6 + 2 * p + s] = box;
            box->setObjectName(QString("C%1").arg(7 + 2 * p + s));
            plugGrid->addWidget(box, p, 1 + s);
            connect(box, &QComboBox::currentIndexChanged, this, [this, p, s, box](int) {
                if (updating_ || box->currentIndex() < 0)
                    return;
                plugLetters_[p][s] = box->currentText().at(0).unicode() - 'A';
                rebuildPlugBoxes();
                settingsChanged();
            });
        }
        connect(CB_[p], &QCheckBox::toggled, this, [this] {
            if (updating_)
                return;
            rebuildPlugBoxes();
            settingsChanged();
        });
    }

    sl->addWidget(new QLabel("Einstellung", this));
    settingsEdit_ = new QLineEdit(this);
    settingsEdit_->setObjectName("settingsLine");
    settingsEdit_->setReadOnly(true);
    sl->addWidget(settingsEdit_);
    auto* dRow = new QHBoxLayout;
    const char* dNames[3] = {"Laden", "Speichern", "Zur\xC3\xBC" "cksetzen"};
    for (int k = 0; k < 3; ++k) {
        D_[k] = new QPushButton(QString::fromUtf8(dNames[k]), this);
        D_[k]->setObjectName(QString("D%1").arg(k + 1));
        dRow->addWidget(D_[k]);
    }
    connect(D_[0], &QPushButton::clicked, this, [this] { D1C(); });
    connect(D_[1], &QPushButton::clicked, this, [this] { D2C(); });
    connect(D_[2], &QPushButton::clicked, this, [this] { D3C(); });
    sl->addLayout(dRow);
    sl->addStretch(1);

    // the machine on the right
    view_ = new EnigmaView(this);
    view_->setObjectName("PB1");
    top->addWidget(view_, 1);

    // texts and buttons below
    auto* texts = new QGridLayout;
    root->addLayout(texts, 2);
    texts->addWidget(new QLabel("  Ausgangstext", this), 0, 0);
    texts->addWidget(new QLabel(QString::fromUtf8("  Ver- bzw. entschl\xC3\xBCsselter Text"), this), 0, 1);
    Me1_ = new QPlainTextEdit(this);
    Me1_->setObjectName("Me1");
    Me1_->installEventFilter(this);
    Me2_ = new QPlainTextEdit(this);
    Me2_->setObjectName("Me2");
    Me2_->setReadOnly(true);
    QFont mono("DejaVu Sans Mono", 10);
    Me1_->setFont(mono);
    Me2_->setFont(mono);
    texts->addWidget(Me1_, 1, 0);
    texts->addWidget(Me2_, 1, 1);

    auto* buttons = new QHBoxLayout;
    root->addLayout(buttons);
    B1_ = new QPushButton(QString::fromUtf8("Ver- und Entschl\xC3\xBCsseln"), this);
    B1_->setObjectName("B1");
    S1_ = new QPushButton("Live-Modus", this);
    S1_->setObjectName("S1");
    S1_->setCheckable(true);
    auto* open = new QPushButton("Text laden", this);
    open->setObjectName("OCl");
    auto* paste = new QPushButton(QString::fromUtf8("Text einf\xC3\xBCgen"), this);
    paste->setObjectName("paste");
    auto* save = new QPushButton("Ergebnis speichern", this);
    save->setObjectName("UCl");
    auto* close = new QPushButton("Beenden", this);
    progress_ = new QLabel("0 %", this);
    progress_->setObjectName("progress");
    progress_->setMinimumWidth(60);
    for (QWidget* w : std::initializer_list<QWidget*>{B1_, S1_, open, paste, save})
        buttons->addWidget(w);
    buttons->addWidget(progress_);
    buttons->addStretch(1);
    buttons->addWidget(close);
    connect(B1_, &QPushButton::clicked, this, [this] { B1C(); });
    connect(S1_, &QPushButton::toggled, this, [this](bool on) { S1C(on); });
    connect(open, &QPushButton::clicked, this, [this] { OClC(); });
    connect(paste, &QPushButton::clicked, this, [this] { pasteC(); });
    connect(save, &QPushButton::clicked, this, [this] { UClC(); });
    connect(close, &QPushButton::clicked, this, &QDialog::accept);

    rebuildPlugBoxes();
    liveMode_ = false;
    settingsEdit_->setText(kEnigmaStartLine);
}

EnigmaSettings Tenigmaf::settings() const
{
    EnigmaSettings s;
    for (int k = 0; k < 3; ++k) {
        s.rotors[k] = C_[k]->currentIndex();
        s.positions[k] = C_[3 + k]->currentIndex() + 1;
    }
    for (int p = 0; p < 6; ++p)
        s.plugs[p] = CB_[p]->isChecked() ? plugLetters_[p] : std::array<int, 2>{-1, -1};
    return s;
}

EnigmaPicture Tenigmaf::picture() const
{
    EnigmaPicture pic;
    const EnigmaSettings s = settings();
    pic.rotors = s.rotors;
    pic.positions = shownPositions_;
    pic.plugs = s.plugs;
    pic.litLamp = liveMode_ ? litLamp_ : -1;
    pic.keyPressed = liveMode_ ? keyPressed_ : -1;
    return pic;
}

void Tenigmaf::rotorChanged(int slot, int index)
{
    if (updating_)
        return;
    // the order stays a permutation: the rotor taken from another slot goes to this one's old place
    const int old = rotorOrder_[slot];
    for (int k = 0; k < 3; ++k)
        if (k != slot && rotorOrder_[k] == index) {
            updating_ = true;
            C_[k]->setCurrentIndex(old);
            updating_ = false;
            rotorOrder_[k] = old;
        }
    rotorOrder_[slot] = index;
    settingsChanged();
}

void Tenigmaf::rebuildPlugBoxes()
{
    // A letter of a switched-on pair is not offered in any other pair.
    const bool wasUpdating = updating_;
    updating_ = true;
    for (int p = 0; p < 6; ++p) {
        bool used[26] = {};
        for (int q = 0; q < 6; ++q)
            if (q != p && CB_[q]->isChecked())
                for (int l : plugLetters_[q])
                    used[l] = true;
        for (int s = 0; s < 2; ++s) {
            QComboBox* box = C_[6 + 2 * p + s];
            box->clear();
            int keep = -1, first = -1;
            for (int l = 0; l < 26; ++l) {
                if (used[l])
                    continue;
                if (first < 0)
                    first = l;
                if (l == plugLetters_[p][s])
                    keep = l;
                box->addItem(letterText(l));
            }
            plugLetters_[p][s] = keep >= 0 ? keep : first;
            box->setCurrentText(letterText(plugLetters_[p][s]));
        }
    }
    updating_ = wasUpdating;
}

void Tenigmaf::settingsChanged()
{
    if (updating_)
        return;
    const EnigmaSettings s = settings();
    settingsEdit_->setText(QString::fromStdString(settingsLine(s)));
    if (!running_ && !liveMode_) {
        shownPositions_ = s.positions;
        for (int k = 0; k < 3; ++k)
            Edit_[k]->setText(letterText(s.positions[k] - 1));
    }
    view_->update();
}

void Tenigmaf::applySettings(const EnigmaSettings& s)
{
    updating_ = true;
    for (int k = 0; k < 3; ++k) {
        C_[k]->setCurrentIndex(s.rotors[k]);
        rotorOrder_[k] = s.rotors[k];
        C_[3 + k]->setCurrentIndex(s.positions[k] - 1);
    }
    for (int p = 0; p < 6; ++p) {
        const bool on = s.plugs[p][0] >= 0;
        CB_[p]->setChecked(on);
        if (on)
            plugLetters_[p] = s.plugs[p];
    }
    updating_ = false;
    rebuildPlugBoxes();
    settingsChanged();
}

void Tenigmaf::setControlsEnabled(bool on)
{
    for (auto* c : C_)
        c->setEnabled(on);
    for (auto* c : CB_)
        c->setEnabled(on);
    for (auto* d : D_)
        d->setEnabled(on);
}

void Tenigmaf::showPositions(const Enigma& m)
{
    shownPositions_ = {m.left(), m.middle(), m.right()};
    for (int k = 0; k < 3; ++k) {
        const QString t = letterText(shownPositions_[k] - 1);
        if (Edit_[k]->text().size() == 1)  // a display is updated where it shows one letter
            Edit_[k]->setText(t);
    }
    view_->update();
}

void Tenigmaf::B1C()
{
    if (running_) {
        stopRequested_ = true;
        return;
    }
    if (liveMode_)
        S1_->setChecked(false);
    const std::string text = platform::toCp1252(Me1_->toPlainText());
    int total = 0;
    for (char c : text)
        total += (c >= 'A' && c <= 'Z') ? 1 : 0;
    setControlsEnabled(false);
    S1_->setEnabled(false);
    Me1_->setReadOnly(true);
    running_ = true;
    stopRequested_ = false;
    B1_->setText("Abbruch");
    Enigma machine(settings());
    std::string out;
    std::string line;
    int done = 0;
    for (char c : text) {
        if (c == '\n') {
            out += line + '\n';
            line.clear();
            continue;
        }
        if (c < 'A' || c > 'Z')
            continue;
        line += machine.press(c);
        ++done;
        progress_->setText(QString("%1 %").arg(std::lround(100.0 * done / total)));
        showPositions(machine);
        QApplication::processEvents();  // once a letter: the display moves, "Abbruch" is heard
        if (stopRequested_)
            break;
    }
    out += line;
    Me2_->setPlainText(QString::fromStdString(out));
    running_ = false;
    B1_->setText(QString::fromUtf8("Ver- und Entschl\xC3\xBCsseln"));
    Me1_->setReadOnly(false);
    setControlsEnabled(true);
    S1_->setEnabled(true);
}

void Tenigmaf::S1C(bool on)
{
    liveMode_ = on;
    litLamp_ = keyPressed_ = -1;
    if (on) {
        live_ = std::make_unique<Enigma>(settings());
        settingsEdit_->setText(QString::fromStdString(settingsLine(settings())));
        progress_->setText("0 %");
        showPositions(*live_);
        Me1_->setFocus();
    } else {
        live_.reset();
    }
    setControlsEnabled(!on);
    view_->update();
}

void Tenigmaf::typeLetter(char letter)
{
    if (!liveMode_ || !live_ || Me1_->isReadOnly())
        return;
    Me1_->moveCursor(QTextCursor::End);
    Me1_->insertPlainText(QString(QChar(letter)));
    liveKey(letter);
}

void Tenigmaf::liveKey(char letter)
{
    const char out = live_->press(letter);
    Me2_->moveCursor(QTextCursor::End);
    Me2_->insertPlainText(QString(QChar(out)));
    litLamp_ = out - 'A';
    keyPressed_ = letter - 'A';
    showPositions(*live_);
}

bool Tenigmaf::eventFilter(QObject* obj, QEvent* ev)
{
    if (obj != Me1_ || ev->type() != QEvent::KeyPress)
        return QDialog::eventFilter(obj, ev);
    auto* ke = static_cast<QKeyEvent*>(ev);
    if (Me1_->isReadOnly())
        return false;
    // Me1KD: Backspace and Return pass
    if (ke->key() == Qt::Key_Backspace)
        return false;
    if (ke->key() == Qt::Key_Return || ke->key() == Qt::Key_Enter) {
        if (liveMode_) {
            Me2_->moveCursor(QTextCursor::End);
            Me2_->insertPlainText("\n");
        }
        return false;
    }
    const QString t = ke->text();
    if (t.isEmpty() || (ke->modifiers() & Qt::ControlModifier))
        return false;  // cursor keys and shortcuts are no signs
    // Me1KP: a letter is upper-cased, every other sign dropped
    const QChar ch = t.at(0);
    if (ch.unicode() < 128 && ch.isLetter()) {
        const char letter = static_cast<char>(ch.toUpper().unicode());
        Me1_->insertPlainText(QString(QChar(letter)));
        if (liveMode_ && live_)
            liveKey(letter);
    }
    return true;
}

void Tenigmaf::D1C()
{
    const QString path = QFileDialog::getOpenFileName(this, "Einstellung laden", QString(),
                                                      "Einstellung (*.txt);;Alle Dateien (*)");
    if (path.isEmpty())
        return;
    if (!loadSettingsFile(path))
        QMessageBox::warning(this, "Quorix",
                             QString::fromUtf8("Die Datei enth\xC3\xA4lt keine g\xC3\xBCltige Maschineneinstellung."));
}

bool Tenigmaf::loadSettingsFile(const QString& path)
{
    bool ok = false;
    const std::string text = readTextFile(path, ok);
    EnigmaSettings s;
    const std::string first = text.substr(0, text.find_first_of("\r\n"));
    if (!ok || !parseSettingsLine(first, s))
        return false;
    applySettings(s);
    return true;
}

void Tenigmaf::D2C()
{
    QString path = QFileDialog::getSaveFileName(this, "Einstellung speichern", QString(),
                                                "Einstellung (*.txt)");
    if (path.isEmpty())
        return;
    if (!path.contains('.'))
        path += ".txt";
    if (!saveSettingsFile(path))
        QMessageBox::warning(this, "Quorix", "Die Datei konnte nicht geschrieben werden.");
}

bool Tenigmaf::saveSettingsFile(const QString& path) const
{
    return writeTextFile(path, settingsLine(settings()) + "\n");
}

void Tenigmaf::D3C()
{
    if (S1_->isChecked())
        S1_->setChecked(false);
    for (int p = 0; p < 6; ++p)
        plugLetters_[p] = {2 * p, 2 * p + 1};
    applySettings(EnigmaSettings{});
    for (auto* e : Edit_)
        e->setText("A");
    shownPositions_ = {1, 1, 1};
    progress_->setText("0 %");
    settingsEdit_->setText(kEnigmaStartLine);
    litLamp_ = keyPressed_ = -1;
    view_->update();
}

void Tenigmaf::OClC()
{
    std::string text;
    if (!askAndReadTextFile(this, text))
        return;
    Me1_->setPlainText(QString::fromStdString(prepareEnigmaText(text)));
}

void Tenigmaf::pasteC()
{
    const std::string text = platform::toCp1252(QApplication::clipboard()->text());
    Me1_->insertPlainText(QString::fromStdString(prepareEnigmaText(text)));
}

void Tenigmaf::UClC()
{
    QString path = QFileDialog::getSaveFileName(this, "Daten speichern", QString(), "Textdatei (*.txt)");
    if (path.isEmpty())
        return;
    if (!path.contains('.'))
        path += ".txt";
    if (!writeTextFile(path, platform::toCp1252(Me2_->toPlainText())))
        QMessageBox::warning(this, "Quorix", "Die Datei konnte nicht geschrieben werden.");
}

}  // namespace crypto

namespace crypto {

QDialog* createTenigmaf(QWidget* parent, int wahlseite, int wahlpunkt)
{
    return new Tenigmaf(parent, wahlseite, wahlpunkt);
}

}  // namespace crypto
