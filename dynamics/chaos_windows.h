#pragma once
// Factories of the chaos and fractal windows for the shell's tool table.
class QDialog;
class QWidget;

QDialog* createTFchaos(QWidget* parent, int wahlseite = -1, int wahlpunkt = -1);      // tool 6: fractals, attractors, Feigenbaum diagram
QDialog* createTFLyapunov(QWidget* parent, int wahlseite = -1, int wahlpunkt = -1);   // Lyapunov diagrams
QDialog* createTFabbild(QWidget* parent, int wahlseite = -1, int wahlpunkt = -1);     // tool 5: slide show of a picture list
