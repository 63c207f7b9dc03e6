#pragma once
// The GraphScript: the list of text lines through which any tool hands drawing commands to the
// plotter, with a read cursor; GraphNumbers is a second such list for long numeric data.
#include <string>
#include <vector>

namespace graphs {

class Skriptliste {
public:
    std::vector<std::string> zeilen;
    size_t cursor = 0;

    void leeren() { zeilen.clear(); cursor = 0; }
    void anAnfang() { cursor = 0; }
    void addText(const std::string& s);
    void addInt(int i);
    void addReal(double x);                    // ten decimals, decimal point
    void addFunktion(const std::string& term); // "#F" and the term
    // At or behind the last line, as the tools test it.
    bool amEnde() const { return zeilen.empty() || cursor + 1 >= zeilen.size(); }
    std::string readText();
    int readInt();
    double readReal();
    // The line under the cursor without moving it; empty at the end.
    const std::string& naechste() const;
    bool hatNoch() const { return cursor < zeilen.size(); }
};

// The process-wide lists.
Skriptliste& graphScript();
Skriptliste& graphNumbers();

// The helpers as the tools call them, on the process-wide GraphScript.
void ScriptAddText(const std::string& s);
void ScriptAddInt(int i);
void ScriptAddReal(double x);
void ScriptAddFunction(const std::string& term);
bool ScriptAtEnd();
std::string ScriptReadText();
int ScriptReadInt();
double ScriptReadReal();

// Reading a real from a script line: a point or a comma as decimal mark; 0 if it is no number.
double skriptZahl(const std::string& s);

}  // namespace graphs
