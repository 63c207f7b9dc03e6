#pragma once
// Factory of the numeric workbench window for the shell's tool table.
class QDialog;
class QWidget;

QDialog* createTFnumer(QWidget* parent, int wahlseite = -1, int wahlpunkt = -1);  // tool 7: numeric workbench
