#pragma once
// Factories of the factoring windows.
class QDialog;
class QWidget;

QDialog* createTfaktform(QWidget* parent);  // tool 28, "Faktorisierung mit quadratischem Sieb"
QDialog* createTfphase(QWidget* parent);    // tool 19, page "Faktorisieren"
