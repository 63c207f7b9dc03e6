#pragma once
// Factories of the cryptography windows for the tool table.
class QDialog;
class QWidget;

namespace crypto {

// The catalogue opens a window at a page and an item (-1: the default).
QDialog* createTForm23(QWidget* parent, int wahlseite = -1, int wahlpunkt = -1);   // tool 23, "Kryptografie"
QDialog* createTenigmaf(QWidget* parent, int wahlseite = -1, int wahlpunkt = -1);  // tool 70, "Enigma"

}  // namespace crypto
