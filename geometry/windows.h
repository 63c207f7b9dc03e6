#pragma once
// Factories of the geometry tool windows for the shell's tool table.
class QDialog;
class QWidget;

QDialog* createTxDreieck(QWidget* parent);  // tool 25: interactive triangle
