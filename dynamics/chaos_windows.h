#pragma once
// Factories of the chaos and fractal windows for the shell's tool table.
class QDialog;
class QWidget;

QDialog* createTFchaos(QWidget* parent);      // tool 6: fractals, attractors, Feigenbaum diagram
QDialog* createTFLyapunov(QWidget* parent);   // Lyapunov diagrams
QDialog* createTFabbild(QWidget* parent);     // tool 5: slide show of a picture list
