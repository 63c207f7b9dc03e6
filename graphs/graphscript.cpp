#include "graphs/graphscript.h"

#include "graphs/kernelbindung.h"

#include <cstdlib>

namespace graphs {

void Skriptliste::addText(const std::string& s)
{
    zeilen.push_back(s);
    cursor = zeilen.size();
}

void Skriptliste::addInt(int i) { addText(std::to_string(i)); }

void Skriptliste::addReal(double x) { addText(zahlTextPunkt(1, 10, x)); }

void Skriptliste::addFunktion(const std::string& term)
{
    addText("#F");
    addText(term);
}

const std::string& Skriptliste::naechste() const
{
    static const std::string leer;
    return cursor < zeilen.size() ? zeilen[cursor] : leer;
}

std::string Skriptliste::readText()
{
    if (cursor >= zeilen.size())
        return {};
    return zeilen[cursor++];
}

int Skriptliste::readInt()
{
    if (cursor >= zeilen.size())
        return 0;
    return static_cast<int>(skriptZahl(zeilen[cursor++]));
}

double Skriptliste::readReal()
{
    if (cursor >= zeilen.size())
        return 0;
    return skriptZahl(zeilen[cursor++]);
}

double skriptZahl(const std::string& s)
{
    std::string t;
    for (char c : s)
        if (c != ' ')
            t += c == ',' ? '.' : c;
    if (t.empty())
        return 0;
    char* ende = nullptr;
    const double v = std::strtod(t.c_str(), &ende);
    return ende == t.c_str() ? 0 : v;
}

Skriptliste& graphScript()
{
    static Skriptliste s;
    return s;
}

Skriptliste& graphNumbers()
{
    static Skriptliste s;
    return s;
}

void ScriptAddText(const std::string& s) { graphScript().addText(s); }
void ScriptAddInt(int i) { graphScript().addInt(i); }
void ScriptAddReal(double x) { graphScript().addReal(x); }
void ScriptAddFunction(const std::string& term) { graphScript().addFunktion(term); }
bool ScriptAtEnd() { return graphScript().amEnde(); }
std::string ScriptReadText() { return graphScript().readText(); }
int ScriptReadInt() { return graphScript().readInt(); }
double ScriptReadReal() { return graphScript().readReal(); }

}  // namespace graphs
