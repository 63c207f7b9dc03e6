#include "app/teilprogramm.h"

#include "algebra/numer_windows.h"
#include "algebra/windows.h"
#include "astronomy/windows.h"
#include "crypto/windows.h"
#include "dynamics/chaos_windows.h"
#include "dynamics/windows.h"
#include "games/windows.h"
#include "geometry/poly_windows.h"
#include "geometry/windows.h"
#include "stochastics/windows.h"
#include "graphs/windows.h"
#include "numbers/windows.h"
#include "numbers/factor/factorwindows.h"
#include "lexicon/globals.h"

#include <QApplication>
#include <QDesktopServices>
#include <QUrl>
#include <map>

namespace app {

std::string bildZiel;
int bildBreite = 1008;
int bildHoehe = 710;

namespace {

std::map<int, QDialog*>& einzelfenster()
{
    static std::map<int, QDialog*> offen;
    return offen;
}

bool bildSpeichern(QDialog* d)
{
    d->resize(bildBreite, bildHoehe);
    d->show();
    for (int i = 0; i < 5; ++i)
        QApplication::processEvents();
    const bool ok = d->grab().save(QString::fromStdString(bildZiel), "PNG");
    d->close();
    return ok;
}

// A window that opens at the page and item the catalogue chose: the values stand in the
// globals while the tool starts.
std::function<QDialog*(QWidget*)> mitSeite(QDialog* (*fabrik)(QWidget*, int, int))
{
    return [fabrik](QWidget* p) { return fabrik(p, lexicon::wahlseite, lexicon::wahlpunkt); };
}

}  // namespace

const std::vector<WerkzeugEintrag>& werkzeugtabelle()
{
    using A = WerkzeugArt;
    // Kind A and B windows and the plotter get their factories as their tools are built.
    static const std::vector<WerkzeugEintrag> tabelle = [] {
        std::vector<WerkzeugEintrag> t = {
            {2, A::A, "TFInter", {}},       {3, A::A, "TFAnalysis", mitSeite(graphs::createTFAnalysis)},   {4, A::C, "TFGraph", graphs::createTFGraph},
            {5, A::A, "TFabbild", mitSeite(::createTFabbild)}, {6, A::A, "TFchaos", mitSeite(::createTFchaos)},      {7, A::B, "TFnumer", mitSeite(::createTFnumer)},
            {8, A::A, "TFalgebra", mitSeite(::createTFalgebra)},     {9, A::A, "TFkalend", mitSeite(::createTFkalend)},     {10, A::A, "Tf2048", {}},
            {11, A::A, "TFpoly", mitSeite(::createTFpoly)},       {12, A::A, "TFintegra", mitSeite(graphs::createTFintegra)},   {13, A::A, "TForm13", {}},
            {14, A::A, "TForm14", mitSeite(dynamics::createTForm14)},      {15, A::A, "TFphy", {}},       {16, A::A, "TForm16", {}},
            {17, A::A, "TForm17", mitSeite(::createTForm17)},      {18, A::A, "Ttranskoord", {}}, {19, A::B, "Tfphase", ::createTfphase},
            {20, A::A, "TForm20", {}},      {21, A::A, "TForm21", {}},     {22, A::A, "TForm22", {}},
            {23, A::A, "TForm23", mitSeite(crypto::createTForm23)},      {24, A::A, "TForm24", {}},     {25, A::A, "TxDreieck", mitSeite(::createTxDreieck)},
            {26, A::A, "TFourier1", {}},    {27, A::A, "Troform", {}},     {28, A::B, "Tfaktform", ::createTfaktform},
            {29, A::A, "TcForm11", {}},     {30, A::A, "TForm30", {}},     {31, A::A, "TFchem", {}},
            {32, A::A, "TpForm10", {}},     {33, A::A, "Tzahlz", {}},      {34, A::A, "TaForm37", {}},
            {35, A::A, "Tfextern", {}},     {36, A::A, "Tpliss", {}},      {37, A::A, "Tphy1", {}},
            {38, A::E, "quorixs.exe", {}},  {39, A::A, "Tfzeitst", {}},    {40, A::A, "TForm21a", {}},
            {41, A::A, "TForm21b", {}},     {42, A::A, "Tphy2", {}},       {43, A::A, "TForm37", {}},
            {44, A::A, "TEForm34", {}},     {45, A::A, "TastroF37", {}},   {46, A::A, "Tfhano", {}},
            {47, A::A, "Tikonstru", mitSeite(::createTikonstru)},    {48, A::A, "TFLab3D", {}},     {49, A::A, "Tfpuzzle2", {}},
            {50, A::A, "TForm28", {}},      {51, A::A, "Tzastro37", {}},   {52, A::A, "TForm26", {}},
            {53, A::A, "TpForm13", {}},     {54, A::A, "Tfmasudoku", {}},  {55, A::B, "Tform3d", {}},
            {56, A::A, "Tpformx11", {}},    {57, A::A, "Tsolitaire", {}},  {58, A::A, "Tform23_a", {}},
            {59, A::A, "Tf11dual", {}},     {60, A::A, "TFimpkurv", {}},   {61, A::A, "Tphy3", {}},
            {62, A::B, "Taform1", {}},      {63, A::A, "Tfkarten", {}},    {64, A::A, "Tfspann", {}},
            {65, A::A, "TFbrute", {}},      {66, A::A, "TpForm8", {}},     {67, A::A, "Tphyf2", {}},
            {68, A::A, "TQuiz1", {}},       {69, A::A, "Tfsortier", {}},   {70, A::A, "Tenigmaf", mitSeite(crypto::createTenigmaf)},
            {71, A::E, "quorixo.exe", {}},  {72, A::A, "Tphraum", {}},     {73, A::A, "TForm31h", {}},
            {74, A::B, "Tfvierfarbe", {}},  {75, A::A, "Tgfilter", {}},    {76, A::A, "Tfsokoban", {}},
            {77, A::A, "Ttspform", {}},     {78, A::A, "Tf11bezier", {}},  {79, A::B, "Tfnform", {}},
            {80, A::D, "Trechla", ::createTrechla},      {81, A::A, "TForm10", {}},     {82, A::A, "Tvexed", {}},
            {83, A::A, "Tfsudoku", {}},     {84, A::E, "quorixt.exe", {}}, {85, A::A, "Tpentoform", {}},
            {86, A::A, "TFRipple", {}},     {87, A::A, "TForm31", {}},     {88, A::B, "TFLyapunov", mitSeite(::createTFLyapunov)},
            {89, A::B, "Tfplot3d", {}},     {90, A::D, "Trechko", {}},     {91, A::E, "quorixc.exe", {}},
            {92, A::B, "Tztetris", {}},     {93, A::A, "Tfvier2", {}},     {94, A::A, "Tfbruch", {}},
            {95, A::A, "TFGraf", {}},       {96, A::A, "TFMus", {}},       {97, A::D, "TOpBox", ::createTOpBox},
            {98, A::E, "quorixx.exe", {}},  {99, A::E, "rechner.exe", {}}, {101, A::B, "TGBoard", {}},
            {102, A::A, "Tfmuehle", ::createTfmuehle},    {103, A::A, "Tf11kugel", {}},  {104, A::A, "TTDame", {}},
            {105, A::A, "Tfstraights", {}}, {106, A::A, "Tfdigger", {}},   {107, A::A, "Trubik", {}},
            {108, A::A, "Tfothello", {}},   {109, A::A, "Tpyram", {}},     {110, A::A, "Tftictac", {}},
            {111, A::A, "Tfescher", {}},    {112, A::A, "Tptangram", {}},  {113, A::A, "Tform10k", {}},
            {114, A::A, "Tffigur", {}},     {115, A::A, "Tfzahlr", {}},    {116, A::A, "Tufflutungs", {}},
            {117, A::A, "Tmemory", {}},     {118, A::A, "Tfvier", {}},     {119, A::A, "Tfrotor", {}},
            {120, A::A, "Tfbpuzzle", {}},   {121, A::E, "quorixf.exe", {}}, {122, A::A, "Tcoramain", {}},
            {123, A::B, "TFLand", {}},      {124, A::A, "Tfpersonal", {}}, {125, A::A, "Tfrmwythoff", {}},
            {126, A::A, "Tfgo", {}},        {127, A::A, "Tlogiktrainer", {}}, {128, A::A, "Tnkette", {}},
            {129, A::A, "Tposrechner", {}}, {130, A::A, "Tdomi", {}},      {131, A::A, "Tlangrechner", {}},
            {132, A::B, "TMinensucher", {}}, {133, A::B, "Theu15", {}},    {134, A::A, "TMatestform", {}},
            {135, A::B, "TFparken", {}},    {136, A::A, "Tfflow", {}},     {137, A::A, "TDoppler", {}},
            {138, A::A, "Tfrally", {}},     {139, A::A, "Trkform", {}},    {140, A::A, "Tfdualpuzzle", {}},
            {141, A::B, "Tfnform2", {}},
        };
        return t;
    }();
    return tabelle;
}

const WerkzeugEintrag* werkzeugEintrag(int nummer)
{
    // 201..280 enter TpForm13's list directly.
    if (nummer >= 201 && nummer <= 280)
        nummer = 53;
    for (const auto& e : werkzeugtabelle())
        if (e.nummer == nummer)
            return &e;
    return nullptr;
}

bool teilprogrammstarten(QWidget* hauptfenster)
{
    using lexicon::wahlpunkt;
    using lexicon::wahlseite;
    const int nummer = lexicon::werkzeugnummer;
    if (nummer >= 201 && nummer <= 280) {
        wahlseite = 0;
        wahlpunkt = nummer - 201;
    }
    const WerkzeugEintrag* e = nummer < 281 ? werkzeugEintrag(nummer) : nullptr;
    bool gestartet = false;
    if (e && e->fabrik) {
        gestartet = true;
        if (e->art == WerkzeugArt::D && bildZiel.empty()) {
            auto& offen = einzelfenster();
            auto it = offen.find(e->nummer);
            if (it != offen.end()) {
                it->second->setWindowState(it->second->windowState() & ~Qt::WindowMinimized);
                it->second->show();
                it->second->raise();
                it->second->activateWindow();
            } else {
                QDialog* d = e->fabrik(hauptfenster);
                d->setAttribute(Qt::WA_DeleteOnClose);
                offen[e->nummer] = d;
                QObject::connect(d, &QObject::destroyed, [n = e->nummer]() { einzelfenster().erase(n); });
                d->show();
            }
        } else if (e->art == WerkzeugArt::C) {
            // The plotter lives as long as the program and is shown again each time.
            static QDialog* resident = nullptr;
            if (!resident)
                resident = e->fabrik(hauptfenster);
            if (!bildZiel.empty())
                bildSpeichern(resident);
            else
                resident->exec();
        } else {
            QDialog* d = e->fabrik(e->art == WerkzeugArt::A ? nullptr : hauptfenster);
            if (!bildZiel.empty()) {
                bildSpeichern(d);
            } else {
                d->resize(bildBreite, bildHoehe);
                d->setWindowTitle("Quorix");
                d->exec();
            }
            delete d;
        }
    } else if (e && e->art == WerkzeugArt::E) {
        // Companion programs are not part of this build: their numbers do nothing.
    }
    wahlseite = -1;
    wahlpunkt = -1;
    lexicon::werkzeugtitel.clear();
    return gestartet;
}

}  // namespace app
