#pragma once
// Tproliste: the list of all topics (catalogue titles) or of the additional texts.
#include <QDialog>

class QLineEdit;
class QListWidget;

namespace app {

class TForm1;

class Tproliste : public QDialog {
    Q_OBJECT
public:
    // zusatztexte: false lists the topics that start tools, true the text tables.
    Tproliste(TForm1* haupt, bool zusatztexte);
    QListWidget* liste = nullptr;
    QString gewaehlt() const { return gewaehlt_; }

private:
    void filtern(const QString& text);
    QLineEdit* filter_ = nullptr;
    QString gewaehlt_;
};

}  // namespace app
