#pragma once
// TForm1: the main window, owner of the global state; shows the lexicon and starts the tools.
#include "lexicon/pagelayout.h"
#include "lexicon/pagestore.h"
#include "lexicon/toolcatalog.h"
#include "platform/picture.h"

#include <QMainWindow>
#include <array>
#include <functional>
#include <map>
#include <string>
#include <vector>

class QLabel;
class QLineEdit;
class QListWidget;
class QPushButton;
class QAction;
class QMenu;

namespace app {

class PaintBox;

class TForm1 : public QMainWindow {
    Q_OBJECT
public:
    // headless: no questions are asked (a new installation keeps the user's data).
    explicit TForm1(bool headless = false, QWidget* parent = nullptr);
    ~TForm1() override;

    // Page display and navigation
    void LB1C();
    void NeueSeite();
    void PB1M(int x, int y);
    void PB1D(int x, int y);
    void S1C();   // next page
    void S2C();   // previous page
    void M451Click();
    void plus1C();
    void T1C();   // history back
    void R1C();   // next keyword
    void H1C();   // previous keyword
    void E1C();
    int M766C();  // the page walk; returns the pages walked
    void B2C();   // start picture on/off
    void B1C();   // side panel calculation
    void S3C();
    void S28C();  // copy the page
    void Dr1C();  // print the page

    // Tools
    void _M(int nummer, const QString& caption);
    void xmenu(const std::string& titel);
    void lexikonsichtbar(bool an);

    // Finding (search window, bookmarks, favourites)
    void S41C();
    void S12C(bool zusatztexte);  // Themenliste / Zusatztexte
    void Su1C();
    void Le1C();
    void Ein1Click();
    void favoritensetzen();
    void favoritenLoeschen();
    bool sucheLaeuft() const { return zeitaufwaendig_; }
    void sucheStoppen() { zeitaufwaendig_ = false; }
    std::vector<std::string> volltextSuchen(const std::string& w1, const std::string& w2,
                                            const std::function<void(int, int)>& fortschritt = {});
    const platform::StringList& stichwortListe() const { return stichworte_; }
    std::string aktuellesStichwort() const;
    void stichwortSuchenUndZeigen(const std::string& text);
    std::string meldung(int nummer) const;
    class Tfsuche* suchfenster() const { return suche_; }
    QAction* menuePunkt(const std::string& name) const;
    void aktuellspeichern();

    // For commands and tests
    bool stichwortWaehlen(const std::string& stichwort);  // exact keyword -> LB1 selection + paint
    bool seiteWaehlen(int seite);                          // page number -> NeueSeite
    QListWidget* lb1() const { return LB1; }
    PaintBox* paintBox() const { return PBox1; }
    const platform::Picture& seitenbild() const { return seitenbild_; }
    const std::vector<lexicon::LinkEintrag>& linkfeld() const { return linkfeld_; }
    const std::string& seitentitel() const { return titel_; }
    const std::vector<std::string>& verlauf() const { return verlauf_; }
    const platform::StringList& lb1Zeilen() const { return lb1Zeilen_; }
    const lexicon::ToolCatalog& katalog() const { return katalog_; }
    int aktseite() const { return aktseite_; }
    int letzteseite() const { return letzteseite_; }
    int p12Breite() const { return p12Breite_; }
    bool startbildOffen() const { return p3Offen_; }
    int menuzaehler(int i) const { return menuzaehler_[static_cast<size_t>(i)]; }
    const std::string& letzteAktion() const { return letzteAktion_; }
    int seitenEnde() const { return seitenEnde_; }  // y below the last painted line
    lexicon::PageStore& pageStore() { return store_; }
    QStringList seitenrechnerZeilen() const;
    void seitenrechnerFelder(const QString& a, const QString& b, const QString& c = {});
    void anordnen();
    void zeileZeigen(int zeile);  // select an LB1 row and paint its page

protected:
    void resizeEvent(QResizeEvent* e) override;
    void closeEvent(QCloseEvent* e) override;
    bool eventFilter(QObject* obj, QEvent* ev) override;

private:
    void FormCreate(bool headless);
    void FormDestroy();
    void menueAufbauen();
    void startbildLaden();
    void labelposition(int dx);
    void linkbilderErzeugen();
    void seitenleisteEinrichten(const lexicon::InteraktiverTeil& teil);
    platform::Picture bildLaden(const std::string& container, const std::string& typ, const std::string& name);

    // Regions
    QWidget* zentrale_ = nullptr;
    QWidget* P1 = nullptr;
    QWidget* P3 = nullptr;
    QWidget* P5 = nullptr;
    QWidget* P6 = nullptr;
    QWidget* P7 = nullptr;
    QWidget* P12 = nullptr;
    QWidget* P14 = nullptr;
    QLabel* I2 = nullptr;
    QLabel* Rx1 = nullptr;
    QLabel* Rx2 = nullptr;
    QLabel* L4 = nullptr;
    QLabel* L5 = nullptr;
    QLabel* titelLabel_ = nullptr;
    QListWidget* LB1 = nullptr;
    PaintBox* PBox1 = nullptr;
    QLabel *L2 = nullptr, *L3 = nullptr, *L10 = nullptr, *L11 = nullptr, *L12 = nullptr, *L6 = nullptr;
    QLineEdit *Ed1 = nullptr, *Ed2 = nullptr, *ed3 = nullptr;
    QPushButton* D2 = nullptr;
    QListWidget* LB3 = nullptr;
    std::map<std::string, QAction*> menuePunkte_;  // by name ("M12", "S3C", ...)
    std::map<int, QString> menueTitel_;            // M number -> caption without "&"

    // State
    lexicon::PageStore store_;
    lexicon::ToolCatalog katalog_;
    platform::StringList lb1Zeilen_;  // "keyword\tpage", LB1's order
    platform::StringList stichworte_;
    std::vector<std::string> verlauf_{"0"};
    int letzterindex_ = -1;
    int aktseite_ = 0;
    int letzteseite_ = 0;
    int letzteBreite_ = -1;
    std::vector<lexicon::LinkEintrag> linkfeld_;
    std::array<platform::Picture, 5> linkbild_;
    platform::Picture seitenbild_;
    std::string titel_;
    bool bildseite_ = false;
    bool p3Offen_ = true;
    int p7Breite_ = 0;
    int p12Breite_ = 0;
    int aktivnummer_ = 0;
    std::string l10Text_;
    bool zeitaufwaendig_ = false;
    bool grossmodus_ = true;
    bool headless_ = false;
    bool malt_ = false;
    std::vector<short> menuzaehler_ = std::vector<short>(820, 0);
    std::string letzteAktion_;  // what the last click asked for, for the tests
    class Tfsuche* suche_ = nullptr;
    bool sucheoffen_ = false;
    std::string suchwort1_, suchwort2_;
    int seitenEnde_ = 0;
};

// The page box: blits the off-screen picture and passes the mouse on.
class PaintBox : public QWidget {
    Q_OBJECT
public:
    explicit PaintBox(TForm1* form, QWidget* parent);

protected:
    void paintEvent(QPaintEvent*) override;
    void mouseMoveEvent(QMouseEvent* e) override;
    void mousePressEvent(QMouseEvent* e) override;

private:
    TForm1* form_;
};

// The one exception handler: a message box with the text and a full stop.
void myexceptionhandler(const std::string& text);
extern bool ausnahmenAufKonsole;  // headless: print instead of a box

}  // namespace app
