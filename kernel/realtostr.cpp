#include "kernel/realtostr.h"

#include <charconv>
#include <cmath>
#include <cstdio>
#include <cstring>

namespace kernel {

bool UseDecimalComma = false;
double RealToStrScale = 1.0;

namespace {

// Formats into a stack buffer and trims there, so the only allocation is the result string.
std::string formatReal(int width, int decimals, double x, bool comma)
{
    if (decimals < 0)
        decimals = 0;
    if (decimals > 30)
        decimals = 30;
    if (width < 0)
        width = 0;
    if (width > 60)
        width = 60;
    char buf[400];
    int len;
    if (!std::isfinite(x))
        len = std::snprintf(buf, sizeof buf, "%*s", width, std::isnan(x) ? "NAN" : (x > 0 ? "INF" : "-INF"));
    else if (std::fabs(x) >= 1e300)
        len = std::snprintf(buf, sizeof buf, "%*.*e", width, decimals, x);
    else
        len = std::snprintf(buf, sizeof buf, "%*.*f", width, decimals, x);
    if (len < 0)
        return std::string();
    if (len >= static_cast<int>(sizeof buf))
        len = sizeof buf - 1;
    if (decimals > 0 && std::memchr(buf, '.', static_cast<size_t>(len)) &&
        !std::memchr(buf, 'e', static_cast<size_t>(len))) {
        while (len >= 2 && buf[len - 1] == '0')
            --len;
        while (len > 1 && buf[len - 1] == '.')
            --len;
    }
    // Leading blanks of the width stay; what follows them decides "-0".
    int start = 0;
    while (start < len && buf[start] == ' ')
        ++start;
    if (len - start == 2 && buf[start] == '-' && buf[start + 1] == '0') {
        const int newLen = width > 1 ? width : 1;
        std::memset(buf, ' ', static_cast<size_t>(newLen - 1));
        buf[newLen - 1] = '0';
        len = newLen;
    }
    if (comma) {
        if (char* p = static_cast<char*>(std::memchr(buf, '.', static_cast<size_t>(len))))
            *p = ',';
    }
    return std::string(buf, static_cast<size_t>(len));
}

}  // namespace

std::string RealToStr(int width, int decimals, double x)
{
    return formatReal(width, decimals, x, UseDecimalComma);
}

std::string RealToStrDot(int width, int decimals, double x)
{
    return formatReal(width, decimals, x, false);
}

std::string RealToStr2(double x) { return RealToStr(1, 2, x); }
std::string RealToStr4(double x) { return RealToStr(1, 4, x); }
std::string RealToStrDot2(double x) { return RealToStrDot(1, 2, x); }
std::string RealToStrDot0(double x) { return RealToStrDot(1, 0, x); }

std::string RealToStrScaled(int width, int decimals, double x)
{
    return RealToStr(width, decimals, x * RealToStrScale);
}

std::string RealToStrSigned(int width, int decimals, double x)
{
    std::string s = RealToStr(width, decimals, x);
    size_t start = s.find_first_not_of(' ');
    if (start == std::string::npos)
        return s;
    if (s[start] == '-')
        return s;
    if (start > 0)
        s[start - 1] = '+';
    else
        s.insert(s.begin(), '+');
    return s;
}

int StrToIntSafe(const std::string& s)
{
    size_t a = s.find_first_not_of(" \t");
    if (a == std::string::npos)
        return 0;
    size_t b = s.find_last_not_of(" \t");
    const char* first = s.data() + a;
    const char* last = s.data() + b + 1;
    if (*first == '+')
        ++first;
    int value = 0;
    auto r = std::from_chars(first, last, value);
    if (r.ec != std::errc() || r.ptr != last)
        return 0;
    return value;
}

std::string CommaToPoint(std::string text)
{
    for (char& c : text)
        if (c == ',')
            c = '.';
    return text;
}

double ReadRealPlain(const std::string& text)
{
    const std::string t = CommaToPoint(text);
    size_t a = t.find_first_not_of(" \t");
    if (a == std::string::npos)
        return 0;
    size_t b = t.find_last_not_of(" \t");
    const char* first = t.data() + a;
    const char* last = t.data() + b + 1;
    if (*first == '+')
        ++first;
    double value = 0;
    auto r = std::from_chars(first, last, value);
    if (r.ec != std::errc() || r.ptr != last || !std::isfinite(value))
        return 0;
    return value;
}

std::string DegreesToText(double x)
{
    const bool negative = x < 0;
    double a = std::fabs(x);
    long long deg = static_cast<long long>(std::floor(a));
    double restMin = (a - static_cast<double>(deg)) * 60.0;
    long long min = static_cast<long long>(std::floor(restMin));
    long long sec = std::llround((restMin - static_cast<double>(min)) * 60.0);
    if (sec >= 60) {
        sec -= 60;
        ++min;
    }
    if (min >= 60) {
        min -= 60;
        ++deg;
    }
    char buf[80];
    int len = std::snprintf(buf, sizeof buf, "%s%lld\xB0%lld'%lld\"", negative && (deg || min || sec) ? "-" : "",
                            deg, min, sec);
    return std::string(buf, static_cast<size_t>(len));
}

double TextToDegrees(const std::string& s)
{
    if (s.find('.') != std::string::npos)
        return ReadRealPlain(s);
    size_t i = 0;
    while (i < s.size() && s[i] == ' ')
        ++i;
    double sign = 1;
    if (i < s.size() && s[i] == '-') {
        sign = -1;
        ++i;
    }
    auto isDigit = [](char c) { return c >= '0' && c <= '9'; };
    double part[3] = {0, 0, 0};
    for (int k = 0; k < 3; ++k) {
        double v = 0;
        while (i < s.size() && isDigit(s[i]))
            v = v * 10 + (s[i++] - '0');
        part[k] = v;
        // The separator: a degree sign (one byte, or two in UTF-8), a quote or a blank.
        while (i < s.size() && !isDigit(s[i]))
            ++i;
    }
    return sign * (part[0] + part[1] / 60.0 + part[2] / 3600.0);
}

}  // namespace kernel
