#pragma once
// How the long factoring loops talk to their window: progress texts and the yield that runs the
// message loop and answers whether the user pressed abort. Plain C++, no Qt.
#include <cstdint>
#include <string>
#include <vector>

namespace numbers {

class FactorHooks {
public:
    virtual ~FactorHooks() = default;
    // Runs the message loop; true once the abort flag is set.
    virtual bool yield() { return aborted; }
    // The Pollard rho group counter was raised (the label of the window).
    virtual void rhoGroup(int32_t groups, double ms) { (void)groups; (void)ms; }
    // A running text: curve and stage of the elliptic curves, "Fortschritt: ..." of the sieve.
    virtual void status(const std::string& text) { (void)text; }
    // The result list of the window: lines are added or amended, then linesChanged() shows them.
    virtual void linesChanged() {}
    void addLine(const std::string& text)
    {
        lines.push_back(text);
        linesChanged();
    }
    void amendLast(const std::string& text)
    {
        if (lines.empty())
            lines.emplace_back();
        lines.back() += text;
        linesChanged();
    }
    std::vector<std::string> lines;
    bool aborted = false;
    int32_t rhoGroups = 0;  // the group count label, raised once per group of 256 steps
};

// Milliseconds from a steady high-resolution counter.
double factorNowMs();
// "%.3f s" under a minute, "%dmin %.4fs" under an hour, "%dh %dmin %.4fs" under a day.
std::string factorTimeText(double ms);

}  // namespace numbers
