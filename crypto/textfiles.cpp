#include "crypto/textfiles.h"

#include <QFileDialog>
#include <QMessageBox>

#include "platform/codepage.h"

#include <QFile>
#include <QSaveFile>
#include <QStringDecoder>

namespace crypto {

std::string readTextFile(const QString& path, bool& ok)
{
    QFile f(path);
    ok = f.open(QIODevice::ReadOnly);
    if (!ok)
        return {};
    const QByteArray data = f.readAll();
    auto decoder = QStringDecoder(QStringDecoder::Utf8);
    const QString text = decoder(data);
    if (!decoder.hasError())
        return platform::toCp1252(text);
    return std::string(data.constData(), static_cast<std::size_t>(data.size()));
}

bool writeTextFile(const QString& path, const std::string& cp1252)
{
    std::string crlf;
    for (char ch : cp1252) {
        if (ch == '\n')
            crlf += '\r';
        crlf += ch;
    }
    QSaveFile f(path);
    if (!f.open(QIODevice::WriteOnly))
        return false;
    f.write(crlf.data(), static_cast<qint64>(crlf.size()));
    return f.commit();
}

bool askAndReadTextFile(QWidget* owner, std::string& text)
{
    const QString path =
        QFileDialog::getOpenFileName(owner, "Text laden", QString(), "Textdatei (*.txt);;Alle Dateien (*)");
    if (path.isEmpty())
        return false;
    bool ok = false;
    text = readTextFile(path, ok);
    if (!ok)
        QMessageBox::warning(owner, "Quorix", "Die Datei konnte nicht gelesen werden.");
    return ok;
}

}  // namespace crypto
