#pragma once
// Factories of the geometry tool windows for the shell's tool table.
class QDialog;
class QWidget;

QDialog* createTxDreieck(QWidget* parent, int wahlseite = -1, int wahlpunkt = -1);  // tool 25: interactive triangle
QDialog* createTikonstru(QWidget* parent, int wahlseite = -1, int wahlpunkt = -1);  // tool 47: construction sheet
