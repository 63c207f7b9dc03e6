#pragma once
// Factories of the polyhedra tool windows for the shell's tool table.
class QDialog;
class QWidget;

QDialog* createTFpoly(QWidget* parent, int wahlseite = -1, int wahlpunkt = -1);  // tool 11: solids
