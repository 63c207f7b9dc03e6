#pragma once
// The one drawing surface of all tools: screen, picture, file and printer go through it.
// Coordinates are pixels; font sizes are points at 96 dpi, as the tools were laid out.
#include "platform/color.h"
#include "platform/picture.h"

#include <QFont>
#include <QPainter>
#include <QPoint>
#include <memory>
#include <string>
#include <vector>

namespace platform {

struct ByteAdvances;  // per-font byte widths and glyphs, kept by canvas.cpp

enum class PenStyle { Solid, Dash, Dot, Clear };
enum class BrushStyle { Solid, Clear };
enum FontStyle { fsBold = 1, fsItalic = 2, fsUnderline = 4, fsStrikeOut = 8 };

// Delphi-like font names map to fonts that a fresh machine has; "Symbol" and "Wingdings"
// switch text output to the byte tables of codepage.h.
QString mapFontFamily(const std::string& name);

class Canvas {
public:
    explicit Canvas(Picture& picture);
    explicit Canvas(QPaintDevice* device);
    explicit Canvas(QPainter* painter);  // borrowed, e.g. a printer's or a widget's painter
    ~Canvas();
    Canvas(const Canvas&) = delete;
    Canvas& operator=(const Canvas&) = delete;

    QPainter& painter() { return *painter_; }

    // Pen
    void setPenColor(TColor c);
    void setPenWidth(int w);
    void setPenStyle(PenStyle s);
    TColor penColor() const { return penColor_; }
    int penWidth() const { return penWidth_; }
    // Brush
    void setBrushColor(TColor c);
    void setBrushStyle(BrushStyle s);
    TColor brushColor() const { return brushColor_; }
    BrushStyle brushStyle() const { return brushStyle_; }
    // Font
    void setFontName(const std::string& name);
    void setFontSize(int points);
    void setFontStyle(int styleBits);
    void setFontColor(TColor c);
    void setFontAngle(int tenthsOfDegree);  // rotated text, 0 = horizontal
    const std::string& fontName() const { return fontName_; }
    int fontSize() const { return fontSize_; }
    int fontStyle() const { return fontStyle_; }
    TColor fontColor() const { return fontColor_; }

    // Lines and shapes (right and bottom edges exclusive, as on the original surface)
    void moveTo(int x, int y);
    void lineTo(int x, int y);
    QPoint penPos() const { return pos_; }
    void setPixel(int x, int y, TColor c);
    void fillRect(int x1, int y1, int x2, int y2);       // brush only
    void rectangle(int x1, int y1, int x2, int y2);      // pen outline, brush inside
    void frameRect(int x1, int y1, int x2, int y2);      // pen outline only
    void ellipse(int x1, int y1, int x2, int y2);        // pen outline, brush inside
    void polygon(const std::vector<QPoint>& pts);
    void polyline(const std::vector<QPoint>& pts);

    // Text: bytes in Windows-1252 (or the Symbol/Wingdings code page when that font is set).
    // (x, y) is the top left of the text cell; the background stays unless the brush is solid.
    void textOut(int x, int y, const std::string& text);
    void textOutW(int x, int y, const QString& text);
    int textWidth(const std::string& text);
    int textHeight(const std::string& text);
    int textWidthW(const QString& text);

    // Pictures
    void draw(int x, int y, const Picture& pic);
    void stretchDraw(int x, int y, int w, int h, const Picture& pic);

private:
    void applyPen();
    void applyBrush();
    void applyFont();
    QString toScreen(const std::string& text) const;

    std::unique_ptr<QPainter> owned_;
    QPainter* painter_ = nullptr;
    TColor penColor_ = clBlack;
    int penWidth_ = 1;
    PenStyle penStyle_ = PenStyle::Solid;
    TColor brushColor_ = clWhite;
    BrushStyle brushStyle_ = BrushStyle::Solid;
    std::string fontName_ = "Verdana";
    int fontSize_ = 10;
    int fontStyle_ = 0;
    int fontAngle_ = 0;
    TColor fontColor_ = clBlack;
    bool fontDirty_ = true;
    QFont font_;
    const ByteAdvances* advances_ = nullptr;  // of font_, set with it
    QPoint pos_;
};

QColor toQColor(TColor c);
TColor fromQColor(const QColor& c);

}  // namespace platform
