#pragma once
// Factories of the astronomy tool windows for the shell's tool table.
class QDialog;
class QWidget;

QDialog* createTFkalend(QWidget* parent, int wahlseite = -1, int wahlpunkt = -1);  // tool 9: calendars
