#pragma once
// Shared helpers of the page calculators and the members outside seitenrechner.cpp.
#include "lexicon/seitenrechner.h"

#include <cstdint>
#include <string>

namespace lexicon::rechner {

using R = SeitenrechnerRahmen;

void zeileAus(R& r, const std::string& text);
void leerzeile(R& r);
void zahlAus(R& r, int64_t n);
void tabAus(R& r, const std::string& text);
void einrueckAus(R& r, const std::string& text);
// A long digit string in lines of 2 x 10 digits, then "hat N Ziffern".
void ziffernAus(R& r, const std::string& s);
void fehlerEingabe(R& r);

// A field as a real (terms allowed); ok false if it holds none.
double wertFeld(const std::string& feld, bool& ok);
// A field as a 64-bit integer; false if it holds none.
bool ganzFeld(const std::string& feld, int64_t& v);
// The field as an integer brought into min..max and written back.
int64_t ganzGrenzen(std::string& feld, int64_t min, int64_t max);
inline int64_t ganzEd1Grenzen(R& r, int64_t min, int64_t max) { return ganzGrenzen(r.ed1, min, max); }
inline int64_t ganzEd2Grenzen(R& r, int64_t min, int64_t max) { return ganzGrenzen(r.ed2, min, max); }
inline int64_t ganzEd3Grenzen(R& r, int64_t min, int64_t max) { return ganzGrenzen(r.ed3, min, max); }
// "T.M.J" split at the points; false if not three integers.
bool datumZerlegen(const std::string& text, int& tag, int& monat, int& jahr);
// The first field as a date, written back normalised when it could be read.
bool datumEd1(R& r, int& tag, int& monat, int& jahr);

// A real as shown in the result list.
std::string zahl(double x, int stellen = 10);
// Lets the message loop run; false once the user has stopped the run.
bool weiter(R& r);

// Members, one per page number.
void dreieckAusFlaecheRadien(R& r);  // 5
void elliptischeFunktionen(R& r);    // 6
void quadratwurzelHeron(R& r);       // 7
void dreieckAusSeiten(R& r);         // 8
void zinseszins(R& r);               // 9
void ggtKgv(R& r);                   // 10
void primfaktoren(R& r);             // 11
void quadratischeGleichung(R& r);    // 12
void binomialkoeffizient(R& r);      // 13
void fakultaet(R& r);                // 14
void osterdatum(R& r);               // 15
void primzahltest(R& r);             // 16
void binomialverteilung(R& r);       // 17
void wochentag(R& r);                // 18
void roemischeZahlen(R& r);          // 19
void zahlbasen(R& r);                // 20
void collatzFolge(R& r);             // 22
void kettenbruch(R& r);              // 23

}  // namespace lexicon::rechner
