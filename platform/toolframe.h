#pragma once
// Helpers that give all tool windows the same toolbar, save, copy and print of a drawing, text
// files, text resources and numbered messages. A tool hands over one paint routine; screen,
// file, clipboard and printer all get the same drawing.
#include "kernel/coordinates.h"  // the pixel mapping (CoordinatesPixel) lives in the kernel
#include "platform/canvas.h"
#include "platform/picture.h"
#include "platform/textlist.h"

#include <QIcon>
#include <QString>
#include <functional>
#include <string>
#include <vector>

class QAbstractButton;
class QPrinter;
class QWidget;

namespace platform {

// Draws the tool's picture on a canvas of width x height pixels.
using PaintRoutine = std::function<void(Canvas& canvas, int width, int height)>;

// ---- Toolbar buttons
// Hint texts of the kinds 1..13, 20, 21; "" for any other kind.
QString toolButtonHint(int kind);
// Our own glyph of a kind, drawn in code; a null icon for unknown kinds.
QIcon toolButtonGlyph(int kind, int size = 24);
// Dresses a toolbar button: glyph, hint, empty caption in the Verdana stand-in.
void SetToolButton(QAbstractButton* button, int kind);

// ---- Pictures
enum class PictureFormat { Bmp24, Bmp16, Jpeg, Gif, Png, Svg };
// "bmp", "bmp16", "jpg", "gif", "png", "svg" (also "jpeg"); false for anything else.
bool pictureFormatFromName(const std::string& name, PictureFormat& format);
// The dialog's filter in its order (the vector metafile's place is taken by SVG).
QString savePictureFilter();
// The format of the filter entry the user picked in the save dialog; Gif when unknown.
PictureFormat pictureFormatOfFilter(const QString& selectedFilter);

// A white off-screen picture with the font "Verdana" set, painted by `paint`.
Picture paintPicture(int width, int height, const PaintRoutine& paint);
// The file-writing part of SavePicture, without a dialog. Throws ResourceError.
void writePictureFile(const std::string& path, PictureFormat format, int width, int height,
                      const PaintRoutine& paint);
// The bytes of the SVG drawing of `paint` (a vector picture of the same size).
std::string paintSvg(int width, int height, const PaintRoutine& paint);

// Dialog "Abbildung speichern", then writePictureFile. False when cancelled or failed
// (a failure shows its message in a box).
bool SavePicture(int width, int height, const PaintRoutine& paint, QWidget* owner);
// The same paint into a picture on the clipboard.
void CopyPicture(int width, int height, const PaintRoutine& paint, QWidget* owner = nullptr);
// The Qt print dialog, then the drawing scaled to the page. False when cancelled.
bool PrintPicture(int width, int height, const PaintRoutine& paint, QWidget* owner);
// The printing part without a dialog (a PDF printer works on any machine).
void printPictureTo(QPrinter& printer, int width, int height, const PaintRoutine& paint);

// ---- Text files and resources (lines in Windows-1252, CR LF on disk)
bool readTextFile(const std::string& path, StringList& list);        // false: missing, list empty
void writeTextFile(const std::string& path, const StringList& list);  // temp file + rename
// Dialog "Text laden" / "Daten speichern", filter "Textdatei (*.txt)", extension "txt".
bool LoadTextFile(StringList& list, QWidget* owner);
bool SaveTextFile(const StringList& list, QWidget* owner);

// The companion container of the text resources; defaults to <program dir>/000/textx.dll.
void setTextResourceFile(const std::string& path);
std::string textResourceFile();
// Fills `list` from the named text resource of textx.dll; false (and empty) when missing.
bool LoadTextResource(StringList& list, const std::string& name);

// Pictures come the same way from the picture containers (<dir>/<container>.dll, type "Jpeg",
// "GIF", "BMP" or "PNG"); the directory defaults to <program dir>/bmp.
void setPictureDirectory(const std::string& dir);
std::string pictureDirectory();
// False (and an empty picture) when the container, the resource or its data is bad.
bool LoadPictureResource(Picture& picture, const std::string& container, const std::string& type,
                         const std::string& name);
// All frames of an animated GIF resource; false and no frames when missing or damaged.
bool LoadAnimatedGifResource(std::vector<PictureFrame>& frames, const std::string& container,
                             const std::string& name);

// ---- Messages
// Line n of the list "fehlerm" (0-based), or "Allgemeiner Fehler" (Windows-1252).
std::string messageText(int n);
// Shows messageText(n) in a message box titled "Quorix".
void ShowMessageNumber(int n, QWidget* parent = nullptr);

// ---- Drawing
void DrawLine(Canvas& canvas, int x1, int y1, int x2, int y2);
// The head of a tool window: background, the title in navy bold and a rule under it.
void DrawToolTitle(Canvas& canvas, int width, int height, const QString& title, int textY,
                   TColor background);
// Rotated text for axis labels, in tenths of a degree, counter-clockwise.
void SetFontAngle(Canvas& canvas, int tenthsOfDegree);

}  // namespace platform
