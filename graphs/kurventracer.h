#pragma once
// The curve tracer: one sample per pixel column, the term error deciding where the pen lifts.
// A pure function of (function, mapping, kind): its result is the list of pen steps, which the
// window draws through the canvas and the tests read directly.
#include "graphs/abbildung.h"

#include <functional>
#include <vector>

namespace graphs {

// f(x) with the term error of this evaluation.
using Funktion = std::function<double(double x, int& termError)>;

enum class Stift : unsigned char { Bewegen, Linie, Punkt };

struct Stiftschritt {
    Stift art;
    int x, y;
};

struct Punkt {
    int x, y;
    bool operator==(const Punkt&) const = default;
};

struct Kurvenspur {
    std::vector<Stiftschritt> schritte;
    long auswertungen = 0;  // evaluations of f spent

    // The joined pieces (each with at least two points) and the single points.
    std::vector<std::vector<Punkt>> polylinien() const;
    std::vector<Punkt> einzelpunkte() const;
};

// Kinds of the tracer.
enum Kurvenart {
    kaNormal = 0,
    kaAbleitung1 = 1,
    kaAbleitung2 = 2,
    kaSpiegelY = 3,   // f(-x)
    kaSpiegelX = 4,   // -f(x)
    kaPunktSpiegel = 5, // -f(-x)
    kaVerkettung = 6  // f(f(x))
};

struct TracerOptionen {
    double domainLow = -10000, domainHigh = 10000;
    bool punktmodus = false;  // single pixels instead of joins
    bool logAchsen = false;   // the start search of step 1 is for linear axes only
};

Kurvenspur kurveVerfolgen(const Funktion& f, const Abbildung& a, int art, const TracerOptionen& o = {});

// Parametric curve (x(t), y(t)) for t from t0 to t1 by dt; polar curves come through here too.
Kurvenspur parameterkurveVerfolgen(const Funktion& fx, const Funktion& fy, double t0, double t1,
                                   double dt, const Abbildung& a, bool punktmodus = false);

// The worst of two codes as the pen sees it: 2 before 1 before 3 before 4 before 0.
int fehlerVereinen(int a, int b);

}  // namespace graphs
