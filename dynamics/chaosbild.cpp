#include "dynamics/chaosbild.h"

#include "platform/codepage.h"
#include "platform/container.h"

#include <filesystem>

namespace chaos {

namespace {

std::uint32_t qrgb(platform::TColor c)
{
    return 0xFF000000u | (static_cast<std::uint32_t>(platform::redOf(c)) << 16) |
           (static_cast<std::uint32_t>(platform::greenOf(c)) << 8) | static_cast<std::uint32_t>(platform::blueOf(c));
}

}  // namespace

void faerbe(const Werteraster& r, const Palette& p, platform::Picture& bild)
{
    if (bild.width() != r.breite || bild.height() != r.hoehe) bild.setSize(r.breite, r.hoehe);
    std::array<std::uint32_t, 256> q{};
    for (int i = 0; i < 256; ++i) q[static_cast<std::size_t>(i)] = qrgb(p[static_cast<std::size_t>(i)]);
    for (int y = 0; y < r.hoehe; ++y) {
        std::uint32_t* z = bild.scanLine(y);
        const std::uint8_t* w = &r.werte[static_cast<std::size_t>(y) * r.breite];
        for (int x = 0; x < r.breite; ++x) z[x] = q[w[x]];
    }
}

void faerbeLjapunow(const TLyapunovLambdaMap& m, Ljapunowfarben f, platform::TColor einzel, platform::Picture& bild)
{
    if (bild.width() != m.breite() || bild.height() != m.hoehe()) bild.setSize(m.breite(), m.hoehe());
    for (int y = 0; y < m.hoehe(); ++y) {
        std::uint32_t* z = bild.scanLine(y);
        if (y >= m.fertigeZeilen()) {
            for (int x = 0; x < m.breite(); ++x) z[x] = 0xFFFFFFFFu;
            continue;
        }
        for (int x = 0; x < m.breite(); ++x) z[x] = qrgb(TLyapunovLambdaMap::farbe(m.wert(x, y), f, einzel));
    }
}

std::vector<std::string> ladeChaosText(const std::string& container)
{
    return platform::loadTextListUtf8(container.empty() ? platform::programContainer("texte.dll") : container, "CHAOS");
}

}  // namespace chaos
