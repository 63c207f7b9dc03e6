#pragma once
// The one table of all tool numbers with their kind and the factory of their window.
#include <QDialog>
#include <functional>
#include <string>

namespace app {

enum class WerkzeugArt {
    A,  // modal window by class, not movable
    B,  // modal window held in a global variable
    C,  // the resident plotter
    D,  // non-modal singleton
    E   // companion program, not built
};

struct WerkzeugEintrag {
    int nummer;
    WerkzeugArt art;
    const char* klasse;
    std::function<QDialog*(QWidget*)> fabrik;  // empty: the tool is not built yet, no case
};

const std::vector<WerkzeugEintrag>& werkzeugtabelle();
const WerkzeugEintrag* werkzeugEintrag(int nummer);

// Starts tool `werkzeugnummer` with the selection globals, then clears wahlseite, wahlpunkt,
// werkzeugtitel. Returns false if the number has no case.
bool teilprogrammstarten(QWidget* hauptfenster);

// When set, tools are not run modally: the window is shown, grabbed into this PNG and closed.
extern std::string bildZiel;
extern int bildBreite, bildHoehe;  // bildschirmbreite/-hoehe for the tools

}  // namespace app
