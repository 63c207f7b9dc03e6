#pragma once
// The window of the copied page: the RTF export in an editable rich-text box, the page picture
// beside it. Nothing the user changes goes back to the lexicon.
#include "lexicon/rtfleser.h"
#include "platform/canvas.h"
#include "platform/picture.h"

#include <QDialog>
#include <string>

class QLabel;
class QTextEdit;
class QWidget;

namespace app {

class Trtfform : public QDialog {
    Q_OBJECT
public:
    // rtfPfad empty: the export file rtf.000 of the user's data folder.
    explicit Trtfform(QWidget* parent = nullptr, std::string rtfPfad = {}, platform::Picture bild = {},
                      QString seitentitel = {});

    // The head of the window: title, page title and a rule; the same routine fills a picture.
    void kopfMalen(platform::Canvas& c, int breite, int hoehe);

    QTextEdit* r1() const { return R1; }
    int p4Breite() const;
    // The text as it stands now, edits included.
    lexicon::RtfDokument dokument() const;
    // Writes dokument() as RTF; false when the file can't be written.
    bool rtfSpeichern(const std::string& pfad) const;
    void laden();  // fills R1 from the file (done once when shown)

protected:
    void showEvent(QShowEvent* e) override;

private:
    void textKopieren();
    void abbildungKopieren();
    void rtfDateiSpeichern();
    void schriftAendern(int schritte);

    std::string pfad_;
    platform::Picture bild_;
    QString seitentitel_;
    QWidget* P4 = nullptr;
    QLabel* I1 = nullptr;
    QTextEdit* R1 = nullptr;
    QLabel* status_ = nullptr;
    bool geladen_ = false;
    int zoom_ = 0;
};

QDialog* createTrtfform(QWidget* parent);  // the export file as it stands, no picture

}  // namespace app
