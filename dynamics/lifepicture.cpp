#include "dynamics/lifepicture.h"

#include <QString>
#include <algorithm>

namespace dynamics {

platform::TColor kindColor(int kind)
{
    static constexpr platform::TColor table[16] = {
        platform::clWhite,        platform::rgb(0, 0, 160),   platform::rgb(200, 0, 0),
        platform::rgb(0, 140, 0), platform::rgb(220, 140, 0), platform::rgb(130, 0, 160),
        platform::rgb(0, 150, 160), platform::rgb(120, 80, 30), platform::rgb(230, 60, 160),
        platform::rgb(90, 90, 90),  platform::rgb(100, 160, 255), platform::rgb(150, 220, 60),
        platform::rgb(255, 200, 0), platform::rgb(160, 100, 255), platform::rgb(255, 120, 100),
        platform::rgb(0, 0, 0)};
    return table[std::clamp(kind, 0, 15)];
}

void drawDiagram(platform::Canvas& c, int x, int y, int w, int h, const std::vector<Series>& series,
                 const std::string& xLabel)
{
    c.setBrushStyle(platform::BrushStyle::Solid);
    c.setBrushColor(platform::clWhite);
    c.setPenColor(platform::clBlack);
    c.rectangle(x, y, x + w, y + h);
    size_t len = 0;
    int top = 1;
    for (const Series& s : series) {
        len = std::max(len, s.values.size());
        for (int v : s.values)
            top = std::max(top, v);
    }
    const int left = x + 50, right = x + w - 10, upper = y + 28, lower = y + h - 24;
    c.setFontName("Verdana");
    c.setFontSize(8);
    c.setFontStyle(0);
    c.setFontColor(platform::clBlack);
    c.setBrushStyle(platform::BrushStyle::Clear);
    // axes with the largest count and the number of steps
    c.moveTo(left, upper);
    c.lineTo(left, lower);
    c.lineTo(right, lower);
    c.textOutW(x + 6, upper - 6, QString::number(top));
    c.textOutW(x + 30, lower - 8, "0");
    const QString steps = QString::number(len ? len - 1 : 0) + " " + QString::fromUtf8(xLabel.c_str());
    c.textOutW(right - c.textWidthW(steps), lower + 4, steps);
    int lx = left;
    for (const Series& s : series) {
        c.setFontColor(s.color);
        const QString name = QString::fromUtf8(s.name.c_str());
        c.textOutW(lx, y + 6, name);
        lx += c.textWidthW(name) + 16;
        if (s.values.empty()) continue;
        c.setPenColor(s.color);
        c.setPenWidth(2);
        std::vector<QPoint> pts;
        const size_t n = s.values.size();
        // long runs are thinned to one point per pixel column
        const size_t stepEvery = std::max<size_t>(1, n / static_cast<size_t>(std::max(1, right - left)));
        for (size_t k = 0; k < n; k += stepEvery) {
            const int px = left + static_cast<int>(n > 1 ? static_cast<long long>(k) * (right - left) / (len - 1) : 0);
            const int py = lower - static_cast<int>(static_cast<long long>(s.values[k]) * (lower - upper) / top);
            pts.emplace_back(px, py);
        }
        if (pts.size() == 1) pts.push_back(pts.front() + QPoint(1, 0));
        c.polyline(pts);
        c.setPenWidth(1);
    }
    c.setFontColor(platform::clBlack);
    c.setPenColor(platform::clBlack);
}

}  // namespace dynamics
