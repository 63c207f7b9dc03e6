#include "platform/canvas.h"

#include "platform/codepage.h"

#include <QFontMetrics>
#include <QPolygon>
#include <QGlyphRun>
#include <QRawFont>
#include <QVarLengthArray>
#include <cmath>
#include <map>
#include <optional>

namespace platform {

// Widths of the 256 bytes of a font, so that measuring a line costs no text shaping:
// the page layout measures a line again for every word it takes off at a wrap.
struct ByteAdvances {
    double w[256];
    quint32 glyph[256];
    QRawFont raw;
};

namespace {

// Per-painter cache of metrics: the page layout measures thousands of pieces a second.
thread_local std::optional<QFontMetrics> tlMetrics;
thread_local QFont tlMetricsFont;


const ByteAdvances& advancesFor(const QFont& f, const std::string& fontName, int pixelSize, int style)
{
    thread_local std::map<std::tuple<std::string, int, int>, ByteAdvances> cache;
    const auto key = std::make_tuple(fontName, pixelSize, style);
    auto it = cache.find(key);
    if (it != cache.end())
        return it->second;
    ByteAdvances a;
    const QFontMetricsF fm(f);
    // Glyphs of the bytes too, so that drawing skips shaping as well.
    a.raw = QRawFont::fromFont(f);
    for (int b = 0; b < 256; ++b) {
        const unsigned char c = static_cast<unsigned char>(b);
        const QChar ch = fontName == "Symbol"      ? symbolToUnicode(c)
                         : fontName == "Wingdings" ? wingdingsToUnicode(c)
                                                   : fromCp1252(std::string(1, static_cast<char>(c))).at(0);
        a.w[b] = fm.horizontalAdvance(ch);
        const QList<quint32> g = a.raw.isValid() ? a.raw.glyphIndexesForString(QString(ch)) : QList<quint32>{};
        a.glyph[b] = g.isEmpty() ? 0 : g.front();
    }
    return cache.emplace(key, a).first->second;
}

const QFontMetrics& metricsFor(const QFont& f)
{
    if (!tlMetrics || !(tlMetricsFont == f)) {
        tlMetricsFont = f;
        tlMetrics.emplace(f);
    }
    return *tlMetrics;
}

}  // namespace

QColor toQColor(TColor c)
{
    return QColor(redOf(c), greenOf(c), blueOf(c));
}

TColor fromQColor(const QColor& c)
{
    return rgb(c.red(), c.green(), c.blue());
}

QString mapFontFamily(const std::string& name)
{
    if (name == "Verdana" || name == "Arial" || name == "Tahoma" || name == "MS Sans Serif" ||
        name == "Symbol" || name == "Wingdings" || name.empty())
        return QStringLiteral("DejaVu Sans");
    if (name == "Courier New" || name == "Courier")
        return QStringLiteral("DejaVu Sans Mono");
    if (name == "Times New Roman" || name == "Times")
        return QStringLiteral("DejaVu Serif");
    return QString::fromStdString(name);
}

Canvas::Canvas(Picture& picture)
    : owned_(std::make_unique<QPainter>(&picture.image())), painter_(owned_.get())
{
    painter_->setRenderHint(QPainter::TextAntialiasing, true);
    applyPen();
    applyBrush();
}

Canvas::Canvas(QPaintDevice* device) : owned_(std::make_unique<QPainter>(device)), painter_(owned_.get())
{
    painter_->setRenderHint(QPainter::TextAntialiasing, true);
    applyPen();
    applyBrush();
}

Canvas::Canvas(QPainter* painter) : painter_(painter)
{
    applyPen();
    applyBrush();
}

Canvas::~Canvas() = default;

void Canvas::applyPen()
{
    if (penStyle_ == PenStyle::Clear) {
        painter_->setPen(Qt::NoPen);
        return;
    }
    QPen pen(toQColor(penColor_));
    pen.setWidth(penWidth_ <= 1 ? 0 : penWidth_);  // cosmetic one-pixel pen for width 1
    pen.setStyle(penStyle_ == PenStyle::Dash ? Qt::DashLine
                 : penStyle_ == PenStyle::Dot ? Qt::DotLine
                                              : Qt::SolidLine);
    pen.setCapStyle(Qt::FlatCap);
    painter_->setPen(pen);
}

void Canvas::applyBrush()
{
    if (brushStyle_ == BrushStyle::Clear)
        painter_->setBrush(Qt::NoBrush);
    else
        painter_->setBrush(toQColor(brushColor_));
}

void Canvas::applyFont()
{
    if (!fontDirty_)
        return;
    font_ = QFont(mapFontFamily(fontName_));
    font_.setPixelSize(std::max(1, static_cast<int>(std::lround(fontSize_ * 96.0 / 72.0))));
    font_.setBold(fontStyle_ & fsBold);
    font_.setItalic(fontStyle_ & fsItalic);
    font_.setUnderline(fontStyle_ & fsUnderline);
    font_.setStrikeOut(fontStyle_ & fsStrikeOut);
    font_.setHintingPreference(QFont::PreferFullHinting);
    // Without kerning a text is as wide as its characters together, as the layout measures it.
    font_.setKerning(false);
    advances_ = &advancesFor(font_, fontName_, font_.pixelSize(), fontStyle_);
    fontDirty_ = false;
}

void Canvas::setPenColor(TColor c) { penColor_ = c; applyPen(); }
void Canvas::setPenWidth(int w) { penWidth_ = std::max(1, w); applyPen(); }
void Canvas::setPenStyle(PenStyle s) { penStyle_ = s; applyPen(); }
void Canvas::setBrushColor(TColor c) { brushColor_ = c; brushStyle_ = BrushStyle::Solid; applyBrush(); }
void Canvas::setBrushStyle(BrushStyle s) { brushStyle_ = s; applyBrush(); }

void Canvas::setFontName(const std::string& name)
{
    if (name != fontName_) { fontName_ = name; fontDirty_ = true; }
}
void Canvas::setFontSize(int points)
{
    if (points != fontSize_) { fontSize_ = points; fontDirty_ = true; }
}
void Canvas::setFontStyle(int styleBits)
{
    if (styleBits != fontStyle_) { fontStyle_ = styleBits; fontDirty_ = true; }
}
void Canvas::setFontColor(TColor c) { fontColor_ = c; }
void Canvas::setFontAngle(int tenthsOfDegree) { fontAngle_ = tenthsOfDegree; }

void Canvas::moveTo(int x, int y) { pos_ = QPoint(x, y); }

void Canvas::lineTo(int x, int y)
{
    if (penStyle_ != PenStyle::Clear)
        painter_->drawLine(pos_, QPoint(x, y));
    pos_ = QPoint(x, y);
}

void Canvas::setPixel(int x, int y, TColor c)
{
    QPen keep = painter_->pen();
    painter_->setPen(QPen(toQColor(c), 0));
    painter_->drawPoint(x, y);
    painter_->setPen(keep);
}

void Canvas::fillRect(int x1, int y1, int x2, int y2)
{
    if (brushStyle_ == BrushStyle::Clear)
        return;
    painter_->fillRect(QRect(QPoint(x1, y1), QPoint(x2 - 1, y2 - 1)), toQColor(brushColor_));
}

void Canvas::rectangle(int x1, int y1, int x2, int y2)
{
    fillRect(x1, y1, x2, y2);
    frameRect(x1, y1, x2, y2);
}

void Canvas::frameRect(int x1, int y1, int x2, int y2)
{
    if (penStyle_ == PenStyle::Clear)
        return;
    QBrush keep = painter_->brush();
    painter_->setBrush(Qt::NoBrush);
    painter_->drawRect(QRect(QPoint(x1, y1), QPoint(x2 - 1, y2 - 1)));
    painter_->setBrush(keep);
}

void Canvas::ellipse(int x1, int y1, int x2, int y2)
{
    painter_->drawEllipse(QRect(QPoint(x1, y1), QPoint(x2 - 1, y2 - 1)));
}

void Canvas::polygon(const std::vector<QPoint>& pts)
{
    if (pts.empty())
        return;
    painter_->drawPolygon(pts.data(), static_cast<int>(pts.size()));
}

void Canvas::polyline(const std::vector<QPoint>& pts)
{
    if (pts.size() < 2 || penStyle_ == PenStyle::Clear)
        return;
    painter_->drawPolyline(pts.data(), static_cast<int>(pts.size()));
}

QString Canvas::toScreen(const std::string& text) const
{
    if (fontName_ == "Symbol")
        return symbolText(text);
    if (fontName_ == "Wingdings")
        return wingdingsText(text);
    return fromCp1252(text);
}

void Canvas::textOut(int x, int y, const std::string& text)
{
    applyFont();
    if (fontAngle_ != 0 || (fontStyle_ & (fsUnderline | fsStrikeOut)) || text.empty()) {
        textOutW(x, y, toScreen(text));
        return;
    }
    const ByteAdvances& a = *advances_;
    if (!a.raw.isValid()) {
        textOutW(x, y, toScreen(text));
        return;
    }
    // Fast path: glyphs and advances of the bytes, placed as the layout measured them.
    QVarLengthArray<quint32, 128> glyphs(static_cast<qsizetype>(text.size()));
    QVarLengthArray<QPointF, 128> pos(static_cast<qsizetype>(text.size()));
    double w = 0;
    for (size_t i = 0; i < text.size(); ++i) {
        const unsigned char c = static_cast<unsigned char>(text[i]);
        glyphs[static_cast<qsizetype>(i)] = a.glyph[c];
        pos[static_cast<qsizetype>(i)] = QPointF(std::round(w), 0);
        w += a.w[c];
    }
    const double ascent = a.raw.ascent();
    if (brushStyle_ == BrushStyle::Solid)
        painter_->fillRect(QRectF(x, y, w, ascent + a.raw.descent() + 1), toQColor(brushColor_));
    QGlyphRun run;
    run.setRawFont(a.raw);
    run.setGlyphIndexes(QList<quint32>(glyphs.begin(), glyphs.end()));
    run.setPositions(QList<QPointF>(pos.begin(), pos.end()));
    QPen keep = painter_->pen();
    painter_->setPen(toQColor(fontColor_));
    painter_->drawGlyphRun(QPointF(x, y + std::round(ascent)), run);
    painter_->setPen(keep);
    pos_ = QPoint(x + static_cast<int>(std::lround(w)), y);
}

void Canvas::textOutW(int x, int y, const QString& text)
{
    applyFont();
    const QFontMetrics& fm = metricsFor(font_);
    painter_->setFont(font_);
    if (fontAngle_ != 0) {
        painter_->save();
        painter_->translate(x, y);
        painter_->rotate(-fontAngle_ / 10.0);
        painter_->setPen(toQColor(fontColor_));
        painter_->drawText(0, fm.ascent(), text);
        painter_->restore();
        return;
    }
    if (brushStyle_ == BrushStyle::Solid)
        painter_->fillRect(x, y, fm.horizontalAdvance(text), fm.height(), toQColor(brushColor_));
    QPen keep = painter_->pen();
    painter_->setPen(toQColor(fontColor_));
    painter_->drawText(x, y + fm.ascent(), text);
    painter_->setPen(keep);
    pos_ = QPoint(x + fm.horizontalAdvance(text), y);
}

int Canvas::textWidth(const std::string& text)
{
    applyFont();
    const ByteAdvances& a = *advances_;
    double w = 0;
    for (unsigned char c : text)
        w += a.w[c];
    return static_cast<int>(std::lround(w));
}

int Canvas::textWidthW(const QString& text)
{
    applyFont();
    return metricsFor(font_).horizontalAdvance(text);
}

int Canvas::textHeight(const std::string& /*text*/)
{
    applyFont();
    return metricsFor(font_).height();
}

void Canvas::draw(int x, int y, const Picture& pic)
{
    if (!pic.empty())
        painter_->drawImage(x, y, pic.image());
}

void Canvas::stretchDraw(int x, int y, int w, int h, const Picture& pic)
{
    if (!pic.empty())
        painter_->drawImage(QRect(x, y, w, h), pic.image());
}

}  // namespace platform
