#include "crypto/vigenereanalysis.h"

#include <algorithm>
#include <array>
#include <map>

namespace crypto {

namespace {

// Letter frequencies of German text in per cent (A..Z), umlauts written as two letters.
constexpr std::array<double, 26> kGerman = {6.51, 1.89, 3.06, 5.08, 17.40, 1.66, 3.01, 4.76, 7.55,
                                            0.27, 1.21, 3.44, 2.53, 9.78,  2.51, 0.79, 0.02, 7.00,
                                            7.27, 6.15, 4.35, 0.67, 1.89,  0.03, 0.04, 1.13};
// Method 1 turns a space into a letter like the plain letter T; a German text with its word
// gaps has about one space in seven signs.
constexpr double kSpaceShare = 0.14;
constexpr int kSpaceAsLetter = 19;  // (32 - 65) mod 26

double chiSquare(const std::array<int, 26>& counts, int total, int shift, double spaceShare)
{
    double chi = 0;
    for (int p = 0; p < 26; ++p) {
        double expected = kGerman[p] / 100.0 * (1 - spaceShare);
        if (p == kSpaceAsLetter)
            expected += spaceShare;
        expected = std::max(expected, 0.0005) * total;
        const double d = counts[(p + shift) % 26] - expected;
        chi += d * d / expected;
    }
    return chi;
}

}  // namespace

VigenereAnalysis analyseVigenere(const std::string& codeText)
{
    VigenereAnalysis a;
    std::vector<int> x;
    for (unsigned char c : codeText) {
        if (c >= 'a' && c <= 'z')
            c -= 32;
        if (c >= 'A' && c <= 'Z')
            x.push_back(c - 'A');
    }
    const int n = static_cast<int>(x.size());
    a.maxKeyLength = std::min(kMaxCodeWordLength, n / kLettersPerKeySign);
    if (a.maxKeyLength < kMaxCodeWordLength)
        a.message = "Text l\xE4sst nur Erkennung eines Codewortes von maximal " +
                    std::to_string(a.maxKeyLength) + " Zeichen zu";
    if (a.maxKeyLength < 1)
        return a;

    // Kasiski: distances between equal trigrams
    std::map<int, int> lastSeen;
    a.kasiski.assign(a.maxKeyLength + 1, 0);
    for (int i = 0; i + 2 < n; ++i) {
        const int tri = x[i] * 676 + x[i + 1] * 26 + x[i + 2];
        auto it = lastSeen.find(tri);
        if (it != lastSeen.end()) {
            const int dist = i - it->second;
            for (int l = 1; l <= a.maxKeyLength; ++l)
                if (dist % l == 0)
                    ++a.kasiski[l];
        }
        lastSeen[tri] = i;
    }

    // Index of coincidence of the columns for each length
    a.coincidence.assign(a.maxKeyLength + 1, 0.0);
    double best = 0;
    for (int l = 1; l <= a.maxKeyLength; ++l) {
        double sum = 0;
        for (int col = 0; col < l; ++col) {
            std::array<int, 26> cnt{};
            int m = 0;
            for (int i = col; i < n; i += l, ++m)
                ++cnt[x[i]];
            double ic = 0;
            for (int c : cnt)
                ic += static_cast<double>(c) * (c - 1);
            sum += m > 1 ? ic / (static_cast<double>(m) * (m - 1)) : 0;
        }
        a.coincidence[l] = sum / l;
        best = std::max(best, a.coincidence[l]);
    }
    // Multiples of the true length score as high as the length itself: take the shortest
    // length that comes close to the best. When the statistics are flat (short or odd texts)
    // the trigram distances decide.
    int length = 1;
    if (best >= 0.05) {
        for (int l = 1; l <= a.maxKeyLength; ++l)
            if (a.coincidence[l] >= 0.88 * best) {
                length = l;
                break;
            }
    } else {
        int most = 0;
        for (int l = 2; l <= a.maxKeyLength; ++l)
            most = std::max(most, a.kasiski[l]);
        for (int l = a.maxKeyLength; l >= 2; --l)
            if (most > 0 && a.kasiski[l] >= 0.8 * most) {
                length = l;
                break;
            }
    }

    // The key: per column the shift whose shifted German frequencies fit best; the model with
    // word gaps and the one without are both tried and the better fit kept.
    double bestTotal = -1;
    for (double spaceShare : {0.0, kSpaceShare}) {
        std::string key;
        double total = 0;
        for (int col = 0; col < length; ++col) {
            std::array<int, 26> cnt{};
            int m = 0;
            for (int i = col; i < n; i += length, ++m)
                ++cnt[x[i]];
            int bestShift = 0;
            double bestChi = 1e300;
            for (int s = 0; s < 26; ++s) {
                const double chi = chiSquare(cnt, m, s, spaceShare);
                if (chi < bestChi) {
                    bestChi = chi;
                    bestShift = s;
                }
            }
            total += bestChi;
            // method 1 shifts by (key sign - 64): A by 1, ..., Z by 26 = 0
            key += static_cast<char>(bestShift == 0 ? 'Z' : 'A' + bestShift - 1);
        }
        if (bestTotal < 0 || total < bestTotal) {
            bestTotal = total;
            a.key = key;
        }
    }
    a.keyLength = length;
    a.found = true;
    return a;
}

}  // namespace crypto
