#pragma once
// Factories of the dynamics windows for the tool table.
class QDialog;
class QWidget;

namespace dynamics {

QDialog* createTForm14(QWidget* parent, int wahlseite = -1, int wahlpunkt = -1);  // tool 14, "Simulationen": Game of Life, Donnelly, Wa-Tor

}  // namespace dynamics
