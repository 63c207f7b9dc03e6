#pragma once
// Factories of the windows in numbers/.
class QDialog;
class QWidget;

QDialog* createTrechla(QWidget* parent);  // tool 80, "Langarithmetik"; non-modal, one at a time
QDialog* createTOpBox(QWidget* parent);   // tool 97, "Fließkommaberechnung"
