// Planets of the series library: Keplerian motion plus the perturbation series in multiples of
// the mean anomalies of the planet and its perturber, and the few long-period terms of each planet.
#include "astronomy/ephemeris.h"

#include <cmath>
#include <cstring>

namespace astro {

namespace {
constexpr double kPi2 = 6.283185307179586;
constexpr double kArcs = 206264.80624709636;  // arc seconds per radian

struct Head {
    const char* planet;
    const char* by;
    int M, Imin, Imax, m, imin, imax, phiM5;
    int first, count;
};
struct Row {
    double I, i, iT, dlc, dls, drc, drs, dbc, dbs;
};
struct Arg {
    const char* planet;
    int index;
    double c0, c1;
};

const Head heads[] = {
#define SERIES_HEADS
#include "astronomy/tables/planets_series_mp.inc"
#undef SERIES_HEADS
};
const Row rows[] = {
#include "astronomy/tables/planets_series_mp.inc"
};
const Arg args[] = {
#include "astronomy/tables/planets_series_args.inc"
};

double frac(double x) { return x - std::floor(x); }
}  // namespace

bool SeriesPlanet(const std::string& key, double T, double& lOut, double& bOut, double& rOut)
{
    double M[10] = {};
    bool known = false;
    for (const Arg& a : args)
        if (key == a.planet) {
            M[a.index] = kPi2 * frac(a.c0 + a.c1 * T);
            known = true;
        }
    if (!known) return false;
    double dl = 0, dr = 0, db = 0;
    for (const Head& h : heads) {
        if (key != h.planet) continue;
        const double phi = h.phiM5 * M[5];
        for (int k = h.first; k < h.first + h.count; ++k) {
            const Row& r = rows[k];
            const double arg = phi + r.I * M[h.M] + r.i * M[h.m];
            const double t = std::pow(T, r.iT);
            const double u = std::cos(arg) * t, v = std::sin(arg) * t;
            dl += r.dlc * u + r.dls * v;
            dr += r.drc * u + r.drs * v;
            db += r.dbc * u + r.dbs * v;
        }
    }
    auto term = [&](double a5, double a6, double a7, double a9, double cl, double sl, double cr, double sr, double cb,
                    double sb) {
        const double phi = a5 * M[5] + a6 * M[6] + a7 * M[7] + a9 * M[9];
        const double c = std::cos(phi), s = std::sin(phi);
        dl += cl * c + sl * s;
        dr += cr * c + sr * s;
        db += cb * c + sb * s;
    };
    auto sinTurns = [](double a, double b, double T2) { return std::sin(kPi2 * (a + b * T2)); };
    double l = 0, b = 0, r = 0;
    if (key == "Sonne") {
        // the Earth-Moon barycentre against the Earth's centre, and the long-period terms
        const double D = kPi2 * frac(0.8274 + 1236.8531 * T), A = kPi2 * frac(0.3749 + 1325.5524 * T);
        const double U = kPi2 * frac(0.2591 + 1342.2278 * T);
        dl += 6.45 * std::sin(D) - 0.42 * std::sin(D - A) + 0.18 * std::sin(D + A) + 0.17 * std::sin(D - M[3]) -
              0.06 * std::sin(D + M[3]);
        dr += 30.76 * std::cos(D) - 3.06 * std::cos(D - A) + 0.85 * std::cos(D + A) - 0.58 * std::cos(D + M[3]) +
              0.57 * std::cos(D - M[3]);
        db += 0.576 * std::sin(U);
        dl += 6.40 * sinTurns(0.6983, 0.0561, T) + 1.87 * sinTurns(0.5764, 0.4174, T) +
              0.27 * sinTurns(0.4189, 0.3306, T) + 0.20 * sinTurns(0.3581, 2.4814, T);
        l = kPi2 * frac(0.7859453 + M[3] / kPi2 + ((6191.2 + 1.1 * T) * T + dl) / 1296.0e3);
        r = 1.0001398 - 0.0000007 * T + dr * 1.0e-6;
        b = db / kArcs;
    } else if (key == "Merkur") {
        dl += 2.8 + 3.2 * T;
        l = kPi2 * frac(0.2151379 + M[1] / kPi2 + ((5601.7 + 1.1 * T) * T + dl) / 1296.0e3);
        r = 0.3952829 + 0.0000016 * T + dr * 1.0e-6;
        b = (-2522.15 + (-30.18 + 0.04 * T) * T + db) / kArcs;
    } else if (key == "Venus") {
        dl += 2.74 * sinTurns(0.0764, 0.4174, T) + 0.27 * sinTurns(0.9201, 0.3307, T);
        dl += 1.9 + 1.8 * T;
        l = kPi2 * frac(0.3654783 + M[2] / kPi2 + ((5071.2 + 1.1 * T) * T + dl) / 1296.0e3);
        r = 0.7233482 - 0.0000002 * T + dr * 1.0e-6;
        b = (-67.70 + (0.04 + 0.01 * T) * T + db) / kArcs;
    } else if (key == "Mars") {
        dl += 52.49 * sinTurns(0.1868, 0.0549, T) + 0.61 * sinTurns(0.9220, 0.3307, T) +
              0.32 * sinTurns(0.4731, 2.1485, T) + 0.28 * sinTurns(0.9467, 0.1133, T);
        dl += 0.14 + 0.87 * T - 0.11 * T * T;
        l = kPi2 * frac(0.9334591 + M[4] / kPi2 + ((6615.5 + 1.1 * T) * T + dl) / 1296.0e3);
        r = 1.5303352 + 0.0000131 * T + dr * 1.0e-6;
        b = (596.32 + (-2.92 - 0.10 * T) * T + db) / kArcs;
    } else if (key == "Jupiter") {
        term(2, -6, 3, 0, -0.8, 8.5, -0.1, 0, 0, 0);
        term(3, -6, 3, 0, 0.4, 0.5, -0.7, 0.5, -0.1, 0);
        l = kPi2 * frac(0.0388910 + M[5] / kPi2 + ((5025.2 + 0.8 * T) * T + dl) / 1296.0e3);
        r = 5.208873 + 0.000041 * T + dr * 1.0e-5;
        b = (227.3 - 0.3 * T + db) / kArcs;
    } else if (key == "Saturn") {
        term(-2, 5, -3, 0, -0.8, -0.1, -0.2, 1.8, 0.3, 0.5);
        term(-2, 6, -3, 0, 2.4 - 0.7 * T, 27.8 - 0.4 * T, 2.1, -0.2, 0, 0);
        term(-2, 7, -3, 0, 0.1, 1.6, -3.6, 0.3, -0.2, 0.6);
        l = kPi2 * frac(0.2561136 + M[6] / kPi2 + ((5018.6 + T * 1.9) * T + dl) / 1296.0e3);
        r = 9.557584 - 0.000186 * T + dr * 1.0e-5;
        b = (175.1 - 10.2 * T + db) / kArcs;
    } else if (key == "Uranus") {
        l = kPi2 * frac(0.4734843 + M[7] / kPi2 + ((5082.3 + 34.2 * T) * T + dl) / 1296.0e3);
        r = 19.211991 + (-0.000333 - 0.000005 * T) * T + dr * 1.0e-5;
        b = (-130.61 + (-0.54 + 0.04 * T) * T + db) / kArcs;
    } else if (key == "Neptun") {
        l = kPi2 * frac(0.1254046 + M[8] / kPi2 + ((4982.8 - 21.3 * T) * T + dl) / 1296.0e3);
        r = 30.072984 + (0.001234 + 0.000003 * T) * T + dr * 1.0e-5;
        b = (54.77 + (0.26 + 0.06 * T) * T + db) / kArcs;
    } else if (key == "Pluto") {
        // the tiny long-period table of Jupiter and Saturn acting together
        term(1, -1, 0, 0, -9.11, 0.12, -3.4, -3.3, 0.81, 0.78);
        term(1, -1, 0, 1, 5.92, 0.25, 2.3, -3.8, -0.67, -0.51);
        l = kPi2 * frac(0.6232469 + M[9] / kPi2 + dl / 1296.0e3);
        r = 40.7247248 + dr * 1.0e-5;
        b = -3.909434 * kPi2 / 360 + db / kArcs;
        // the series refer to B1950: precess the ecliptic position to the date
        double x, y, z;
        Cart(r, b * 360 / kPi2, l * 360 / kPi2, x, y, z);
        Mat3 p;
        PMatEcl(-0.500002108, T, p);
        PrecArt(p, x, y, z);
        double rr, th, ph;
        Polar(x, y, z, rr, th, ph);
        lOut = ph;
        bOut = th;
        rOut = rr;
        return true;
    }
    lOut = std::fmod(l * 360 / kPi2 + 360.0, 360.0);
    bOut = b * 360 / kPi2;
    rOut = r;
    return true;
}

}  // namespace astro
