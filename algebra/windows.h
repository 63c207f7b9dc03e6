#pragma once
// Factories of the algebra tool windows for the shell's tool table.
class QDialog;
class QWidget;

QDialog* createTFalgebra(QWidget* parent, int wahlseite = -1, int wahlpunkt = -1);  // tool 8: algebra workbench
