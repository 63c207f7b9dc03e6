#pragma once
// Factories of the cryptography windows for the tool table.
class QDialog;
class QWidget;

namespace crypto {

QDialog* createTForm23(QWidget* parent);   // tool 23, the cipher page "Kryptografie"
QDialog* createTenigmaf(QWidget* parent);  // tool 70, "Enigma"

}  // namespace crypto
