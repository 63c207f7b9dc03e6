#include "graphs/plotzustand.h"

#include <algorithm>
#include <cctype>

namespace graphs {

using platform::rgb;

std::array<platform::TColor, 16> farbtabelle = {
    rgb(0, 0, 0),       // 0 black
    rgb(0, 128, 0),     // 1 green
    rgb(0, 0, 255),     // 2 blue
    rgb(128, 128, 0),   // 3 olive
    rgb(160, 82, 45),   // 4 brown
    rgb(128, 0, 128),   // 5 purple
    rgb(0, 128, 128),   // 6 teal
    rgb(128, 128, 128), // 7 grey
    rgb(255, 0, 255),   // 8 magenta
    rgb(0, 0, 128),     // 9 navy
    rgb(255, 128, 0),   // 10 orange
    rgb(255, 0, 0),     // 11 red
    rgb(0, 160, 255),   // 12 sky blue
    rgb(128, 0, 0),     // 13 maroon
    rgb(0, 200, 0),     // 14 lime
    rgb(255, 255, 0),   // 15 yellow
};

void PlotZustand::labelsZuruecksetzen()
{
    for (int n = 1; n <= 30; ++n)
        labels[static_cast<size_t>(n - 1)] = {10, (n - 1) * 20 - 30};
}

platform::TColor kurvenfarbe(int n, bool farbig)
{
    if (!farbig || n <= 1)
        return platform::clBlack;
    static const int folge[8] = {0, 11, 2, 1, 8, 6, 4, 5};
    const int eintrag = n <= 8 ? folge[n - 1] : n % 8 + 1;
    return farbtabelle[static_cast<size_t>(eintrag)];
}

int stiftbreite(int tb4)
{
    if (tb4 < 0)
        return 1;
    if (tb4 > 9)
        return 5;
    return std::max(1, tb4);
}

platform::TColor farbwort(const std::string& wort)
{
    std::string w;
    for (char c : wort)
        if (c != ' ')
            w += static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    if (w == "gelb") return rgb(230, 200, 0);
    if (w == "rot") return platform::clRed;
    if (w == "blau") return platform::clBlue;
    if (w == "gruen" || w == "gr\xfcn") return rgb(0, 160, 0);
    if (w == "grau") return platform::clGray;
    if (w == "schwarz") return platform::clBlack;
    return platform::clBlack;
}

}  // namespace graphs

namespace graphs {
PlotZustand& plotZustand()
{
    static PlotZustand z;
    return z;
}
}  // namespace graphs
