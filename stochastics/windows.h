#pragma once
// Factories of the stochastics tool windows for the shell's tool table.
class QDialog;
class QWidget;

// tool 17: statistics and probability; wahlseite = page of the list, wahlpunkt = entry of its list
QDialog* createTForm17(QWidget* parent, int wahlseite = -1, int wahlpunkt = -1);
