// The printer side of the page print: device figures, document begin and end, PDF output.
#include "lexicon/druck.h"

#include <QPageLayout>
#include <QPageSize>
#include <QPainter>
#include <QPrinter>
#include <stdexcept>

namespace lexicon {

DruckGeraet geraetVon(QPrinter& printer)
{
    DruckGeraet g;
    g.dpiX = printer.logicalDpiX();
    g.dpiY = printer.logicalDpiY();
    g.bildschirmDpi = 96;  // the canvas lays text out at 96 dpi, whatever the screen
    const QRect druckbar = printer.pageLayout().paintRectPixels(printer.resolution());
    g.seitenbreite = druckbar.width();
    g.versatzX = druckbar.left();
    g.versatzY = druckbar.top();
    return g;
}

DruckErgebnis seiteDrucken(QPrinter& printer, const platform::StringList& block, int markerZeile,
                           const platform::Picture& bild, const DruckEinstellungen& e)
{
    printer.setDocName(QStringLiteral("Quorix"));
    const DruckGeraet g = geraetVon(printer);
    QPainter painter;
    if (!painter.begin(&printer))
        throw std::runtime_error("Der Drucker ist nicht bereit");
    DruckErgebnis erg;
    try {
        platform::Canvas canvas(&painter);
        SeitenDrucker drucker(canvas, e, g);
        erg = drucker.druckeSeite(block, markerZeile, bild);
    } catch (...) {
        painter.end();
        throw;
    }
    painter.end();
    return erg;
}

DruckErgebnis seiteAlsPdf(const std::string& pfad, const platform::StringList& block, int markerZeile,
                          const platform::Picture& bild, const DruckEinstellungen& e)
{
    QPrinter printer(QPrinter::HighResolution);
    printer.setOutputFormat(QPrinter::PdfFormat);
    printer.setOutputFileName(QString::fromStdString(pfad));
    printer.setPageSize(QPageSize(QPageSize::A4));
    // Small device margins, so that the page's own margins from the settings decide.
    printer.setPageMargins(QMarginsF(5, 5, 5, 5), QPageLayout::Millimeter);
    return seiteDrucken(printer, block, markerZeile, bild, e);
}

}  // namespace lexicon
