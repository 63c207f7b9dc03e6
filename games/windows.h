#pragma once
// Factories of the game windows for the shell's tool table.
class QDialog;
class QWidget;

QDialog* createTfmuehle(QWidget* parent);      // tool 102: Mühle
QDialog* createTBestenliste(QWidget* parent);  // the shared high-score list (section "Mathe")
