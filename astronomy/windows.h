#pragma once
// Factories of the astronomy tool windows for the shell's tool table.
class QDialog;
class QWidget;

QDialog* createTFkalend(QWidget* parent);  // tool 9: calendars
